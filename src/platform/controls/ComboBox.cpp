#include "platform/controls/ComboBox.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

#include "platform/values/RuntimeError.h"

namespace quartela {

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setInsertPolicy(QComboBox::NoInsert);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(this, &QComboBox::activated, this, &ComboBox::picked);
}

// The first item of a list is not picked by being added: the screens ask whether one was.
int ComboBox::addItem(const QString& text) {
  return addItem(text, 0);
}

int ComboBox::addItem(const QString& text, std::int32_t key) {
  const int before = currentIndex();
  const QString line = isEditable() ? currentText() : QString();
  QComboBox::addItem(text, key);
  if (before == -1 && currentIndex() != -1) {
    setCurrentIndex(-1);
    if (isEditable()) {
      setEditText(line);
    }
  }
  return count() - 1;
}

// The toolkit takes the end of an edit for the choice of the first item of that text.
void ComboBox::setEditable(bool editable) {
  QComboBox::setEditable(editable);
  if (lineEdit() != nullptr) {
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
  }
}

int ComboBox::checked(int item) const {
  if (item < 0 || item >= count()) {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  }
  return item;
}

void ComboBox::setItemData(int item, std::int32_t key) {
  QComboBox::setItemData(checked(item), key);
}

std::int32_t ComboBox::itemDataAt(int item) const {
  return itemData(checked(item)).toInt();
}

void ComboBox::clear() {
  QComboBox::clear();
  if (isEditable()) {
    clearEditText();
  }
}

int ComboBox::listIndex() const {
  const int item = currentIndex();
  return isEditable() && itemText(item) != currentText() ? -1 : item;
}

void ComboBox::setListIndex(int item) {
  if (item != -1) {
    checked(item);
  }
  const bool other = item != listIndex();
  setCurrentIndex(item);
  if (isEditable() && other) {
    setEditText(itemText(item));
  }
  if (other && item != -1) {
    emit picked(item);
  }
}

int ComboBox::findKey(std::int32_t key) const {
  return findData(key);
}

void ComboBox::selectByData(std::int32_t key) {
  setListIndex(checked(findKey(key)));
}

void ComboBox::setText(const QString& text) {
  if (!isEditable()) {
    setCurrentIndex(text.isEmpty() ? -1 : findText(text));
    return;
  }
  if (itemText(currentIndex()) != text) {
    setCurrentIndex(-1);
  }
  setEditText(text);
}

void ComboBox::setTypingBlocked(bool blocked) {
  setEditable(true);
  lineEdit()->setReadOnly(blocked);
}

void ComboBox::showPopup() {
  emit dropDown();
  QComboBox::showPopup();
}

void ComboBox::followLine() {
  if (!isEditable() || listIndex() != -1) {
    return;
  }
  const QString line = currentText();
  setCurrentIndex(findText(line, Qt::MatchExactly | Qt::MatchCaseSensitive));
  setEditText(line);
}

void ComboBox::keyPressEvent(QKeyEvent* event) {
  const bool moves = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
  const bool letter = !isEditable() && !event->text().isEmpty() && event->text().at(0).isPrint();
  const bool plain = !(event->modifiers() & (Qt::AltModifier | Qt::ControlModifier));
  if (count() == 0 && plain && (moves || letter)) {
    emit dropDown();
  }
  if (plain && moves) {
    followLine();
  }
  QComboBox::keyPressEvent(event);
}

void ComboBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace quartela
