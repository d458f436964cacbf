#include "tests/support/WindowChecks.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

namespace quartela::test {
namespace {

QChar mnemonic(const QString& text) {
  const qsizetype at =
      QString(text).replace(QStringLiteral("&&"), QStringLiteral("  ")).indexOf('&');
  return at >= 0 && at + 1 < text.size() ? text[at + 1].toUpper() : QChar();
}

QString textOf(const QWidget* widget) {
  if (const auto* label = qobject_cast<const QLabel*>(widget)) {
    return label->buddy() ? label->text() : QString();
  }
  if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
    return button->text();
  }
  if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
    return group->title();
  }
  return {};
}

// The tab page that `widget` stands on; null for none.
const QWidget* pageOf(const QWidget* widget) {
  for (const QWidget* page = widget; page; page = page->parentWidget()) {
    if (page->parentWidget() &&
        qobject_cast<const QTabWidget*>(page->parentWidget()->parentWidget())) {
      return page;
    }
  }
  return nullptr;
}

struct Taken {
  QString name;
  const QWidget* page;
};

void take(QMap<QChar, QList<Taken>>& letters, const QString& text, const Taken& taken) {
  if (const QChar letter = mnemonic(text); !letter.isNull()) {
    letters[letter].append(taken);
  }
}

bool clash(const Taken& one, const Taken& other) {
  return !one.page || !other.page || one.page == other.page;
}

// A wrapped text must have the height that its width asks for, and room for its longest word.
QSize sizeOfLabel(const QLabel& label) {
  if (label.text().isEmpty()) {
    return {};
  }
  if (!label.wordWrap()) {
    return label.minimumSizeHint();
  }
  const QRect place(0, 0, label.contentsRect().width(), QWIDGETSIZE_MAX);
  const QSize text = label.fontMetrics().boundingRect(place, Qt::TextWordWrap, label.text()).size();
  return text + (label.size() - label.contentsRect().size());
}

// What the text of a label, button or check box takes; nothing for any other widget.
QSize sizeOfText(const QWidget* widget) {
  if (const auto* label = qobject_cast<const QLabel*>(widget)) {
    return sizeOfLabel(*label);
  }
  const auto* button = qobject_cast<const QAbstractButton*>(widget);
  const auto* tool = qobject_cast<const QToolButton*>(widget);
  const bool picture =
      tool && !tool->icon().isNull() && tool->toolButtonStyle() == Qt::ToolButtonIconOnly;
  if (!button || picture || button->text().isEmpty()) {
    return {};
  }
  constexpr QSize kEdges(12, 6);
  const QSize text = widget->fontMetrics().size(Qt::TextShowMnemonic, button->text());
  const bool pushed = qobject_cast<const QPushButton*>(widget) != nullptr;
  return pushed ? text + kEdges : button->minimumSizeHint();
}

}  // namespace

QString mnemonicClashes(const QWidget& window) {
  QMap<QChar, QList<Taken>> letters;
  for (const auto* widget : window.findChildren<QWidget*>()) {
    take(letters, textOf(widget), {widget->objectName(), pageOf(widget)});
    if (const auto* tabs = qobject_cast<const QTabWidget*>(widget)) {
      for (int i = 0; i < tabs->count(); ++i) {
        take(letters, tabs->tabText(i), {tabs->objectName(), nullptr});
      }
    }
  }
  QString found;
  for (auto letter = letters.cbegin(); letter != letters.cend(); ++letter) {
    for (qsizetype i = 0; i < letter->size(); ++i) {
      for (qsizetype j = i + 1; j < letter->size(); ++j) {
        if (clash(letter->at(i), letter->at(j))) {
          found += QStringLiteral("%1: %2 and %3; ")
                       .arg(letter.key())
                       .arg(letter->at(i).name, letter->at(j).name);
        }
      }
    }
  }
  return found;
}

QString unnamedControls(const QWidget& window) {
  QString found;
  for (const auto* widget : window.findChildren<QWidget*>()) {
    const bool field =
        qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QComboBox*>(widget);
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    const bool wordless = button && !button->text().contains(QRegularExpression("\\p{L}"));
    const bool ours = !widget->objectName().startsWith(QStringLiteral("qt_"));
    if (ours && (field || wordless) && widget->accessibleName().isEmpty()) {
      found += widget->objectName() + QStringLiteral("; ");
    }
  }
  return found;
}

QString clippedTexts(const QWidget& window) {
  QString found;
  for (const auto* widget : window.findChildren<QWidget*>()) {
    const QSize need = sizeOfText(widget);
    const bool inside = widget->parentWidget()->rect().contains(widget->geometry());
    if (!need.isEmpty() && widget->isVisible() &&
        (need.width() > widget->width() || need.height() > widget->height() || !inside)) {
      found += widget->objectName() + QStringLiteral("; ");
    }
  }
  return found;
}

QStringList tabRound(QWidget& window) {
  QStringList names;
  const QWidget* const first = window.focusWidget();
  constexpr int kMost = 100;
  while (names.size() < kMost) {
    names << window.focusWidget()->objectName();
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    if (window.focusWidget() == first) {
      break;
    }
  }
  return names;
}

}  // namespace quartela::test
