// An operator with a keyboard and no mouse: keys go to whatever has the focus, as on a screen.
#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QTest>

#include "tests/support/Typing.h"

namespace quartela::test {

// What has the keyboard: an open list before the window behind it, the window itself where nothing
// in it has. Without a window in front the test program ends.
inline QWidget* keyTarget() {
  const QWidget* const popup = QApplication::activePopupWidget();
  QWidget* target = popup != nullptr && popup->focusWidget() != nullptr
                        ? popup->focusWidget()
                        : QApplication::focusWidget();
  target = target != nullptr ? target : QApplication::activeWindow();
  if (target == nullptr) {
    qFatal("nothing has the keyboard");
  }
  return target;
}

// Comes in as the desktop's keys do: through the window, so that underlined letters are seen before
// the field that has the keyboard.
inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  if (QGuiApplication::focusWindow() == nullptr) {
    qFatal("no window has the keyboard");
  }
  QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
}

// What a desktop does when the window in front of it has gone.
inline void comeForward(QWidget* window) {
  window->activateWindow();
  QTRY_VERIFY(window->isActiveWindow());
}

// The letter underlined in a label or on a button, with Alt.
inline void mnemonic(char letter) {
  press(static_cast<Qt::Key>(letter), Qt::AltModifier);
}

inline void typeHere(const QString& text) {
  typeText(keyTarget(), text);
}

// The name of what has the keyboard.
inline QString focusName() {
  return keyTarget()->objectName();
}

// Goes on with Tab until the control of that name has the keyboard.
inline void tabTo(const char* name) {
  constexpr int kMostStops = 40;
  for (int stop = 0; focusName() != QLatin1String(name); ++stop) {
    QVERIFY2(stop < kMostStops, name);
    press(Qt::Key_Tab);
  }
}

// Drops down the list that has the keyboard, goes down to the item and takes it.
inline void choose(const QString& item) {
  auto* const box = qobject_cast<QComboBox*>(keyTarget());
  QVERIFY2(box != nullptr, qPrintable(focusName()));
  press(Qt::Key_Down, Qt::AltModifier);
  QVERIFY2(box->view()->isVisible(), qPrintable(item));
  press(Qt::Key_Home);
  for (int steps = 0; box->view()->currentIndex().data().toString() != item; ++steps) {
    QVERIFY2(steps < box->count(), qPrintable(item));
    press(Qt::Key_Down);
  }
  press(Qt::Key_Return);
  QVERIFY(!box->view()->isVisible());
  QCOMPARE(box->currentText(), item);
}

}  // namespace quartela::test
