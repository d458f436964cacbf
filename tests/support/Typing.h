// Typing as an operator does, letters with accents included.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QString>
#include <QWidget>

namespace quartela::test {

// Sends `text` letter by letter to `target`, each as a key pressed and let go.
inline void typeText(QWidget* target, const QString& text) {
  for (const QChar letter : text) {
    const int key = letter.unicode() < 0x80 ? letter.toUpper().unicode() : int{Qt::Key_unknown};
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, Qt::NoModifier, QString(letter));
      QApplication::sendEvent(target, &event);
    }
  }
}

}  // namespace quartela::test
