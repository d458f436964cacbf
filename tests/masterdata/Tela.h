// A reference table's window under test: its controls by name, and an operator's hands on them.
#pragma once

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "platform/controls/ComboBox.h"
#include "platform/controls/ListView.h"
#include "platform/controls/TwoPageTab.h"
#include "tests/support/Hands.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/Typing.h"
#include "tests/support/office/Boxes.h"

namespace quartela::test {

namespace boxes {

inline Box mustPick() {
  return {.text = QStringLiteral("Informe um item !!!"),
          .title = QStringLiteral("Aviso"),
          .icon = BoxIcon::Stop};
}

inline Box warning(const QString& text) {
  return {.text = text, .title = QStringLiteral("Aviso"), .icon = BoxIcon::Exclamation};
}

inline Box required() {
  return warning(QStringLiteral("Todos os campos obrigatórios devem ser preenchidos!!"));
}

inline Box askDelete(const QString& key) {
  return question(key + QStringLiteral(" - Confirma exclusão deste item?"));
}

// What no routine traps.
inline Box untrapped(ErrorNumber number, const QString& detail = {}) {
  return {
      .text = QStringLiteral("Erro em tempo de execução %1:\n\n").arg(static_cast<int>(number)) +
              RuntimeError(number, detail).description(),
      .title = {},
      .icon = BoxIcon::Stop};
}

}  // namespace boxes

class Tela {
 public:
  explicit Tela(QWidget& window) : window_(window) {
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) {
      qFatal("the window does not become active");
    }
  }

  QWidget& window() const { return window_; }

  template <typename Control>
  Control& at(const char* name) const {
    auto* const control = window_.findChild<Control*>(QLatin1String(name));
    if (!control) {
      qFatal("no control %s", name);
    }
    return *control;
  }
  ListView& list() const { return at<ListView>("ListView1"); }
  bool editing() const { return at<TwoPageTab>("SSTab1").current() == 1; }

  // What a line, a masked or combo box, or a memo shows.
  QString text(const char* name) const {
    auto& control = at<QWidget>(name);
    if (const auto* combo = qobject_cast<ComboBox*>(&control)) {
      return combo->text();
    }
    if (const auto* memo = qobject_cast<QPlainTextEdit*>(&control)) {
      return memo->toPlainText();
    }
    return at<QLineEdit>(name).text();
  }
  bool ticked(const char* name) const { return at<QCheckBox>(name).isChecked(); }
  QString focus() const {
    return window_.focusWidget() ? window_.focusWidget()->objectName() : QString();
  }

  QStringList row(int n) const {
    QStringList cells;
    for (int column = 0; column < list().columnCount(); ++column) {
      cells << list().subItem(n, column);
    }
    return cells;
  }
  // The second column, in alphabetical order.
  QStringList names() const {
    QStringList names;
    for (int n = 0; n < list().count(); ++n) {
      names << list().subItem(n, 1);
    }
    names.sort();
    return names;
  }
  int rowOf(const QString& key) const {
    for (int n = 0; n < list().count(); ++n) {
      if (list().text(n) == key) {
        return n;
      }
    }
    return -1;
  }

  void key(Qt::Key pressed, Qt::KeyboardModifiers with = Qt::NoModifier) const {
    QTest::keyClick(window_.focusWidget() ? window_.focusWidget() : &window_, pressed, with);
  }
  // Alt and a letter. The button goes down and up as if it were pressed, which takes a moment.
  void shortcut(Qt::Key letter) const {
    key(letter, Qt::AltModifier);
    for (const auto* button : window_.findChildren<QPushButton*>()) {
      QTRY_VERIFY(!button->isDown());
    }
  }
  void press(const char* button) const {
    auto& pressed = at<QPushButton>(button);
    if (!pressed.isVisible() || !pressed.isEnabled()) {
      qFatal("%s cannot be pressed", button);
    }
    QTest::mouseClick(&pressed, Qt::LeftButton);
  }
  void tick(const char* name) const { QTest::keyClick(&at<QCheckBox>(name), Qt::Key_Space); }
  // Clicks the row of that key.
  void click(const QString& rowKey) const {
    list().flush();
    const QModelIndex index = list().model()->index(rowOf(rowKey), 0);
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualRect(index).center());
  }
  // Types `text` over what stands in the field.
  void type(const char* name, const QString& text) const {
    auto& field = at<QWidget>(name);
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    typeText(&field, text);
  }
  // Takes an entry from the list that drops down.
  void pick(const char* name, const QString& entry) const { pickItem(at<ComboBox>(name), entry); }
  // The menu key on the list, then the one command.
  void excludeByMenu() const {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(list().viewport(), &event);
    auto& menu = at<QMenu>("mnuopcoes");
    QVERIFY(menu.isVisible());
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
  }

 private:
  QWidget& window_;
};

}  // namespace quartela::test
