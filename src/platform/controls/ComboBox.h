// A combo box whose items have a 32-bit key each: a fixed list, or, when editable, a line with
// proposals.
//
// Items count from 0; -1 is no item. Only a choice by keys or mouse, or setListIndex(), picks one:
// a text that stands in an editable line when it is left is no choice, since several items may bear
// it. The arrows go on from the item whose text the line shows. The wheel changes nothing while the
// box has no focus. The screens fill a box when it is about to drop down; a box that is still empty
// is filled in the same way when an arrow or a letter asks for an item.
#pragma once

#include <QComboBox>
#include <cstdint>

namespace quartela {

class ComboBox : public QComboBox {
  Q_OBJECT
 public:
  explicit ComboBox(QWidget* parent = nullptr);

  // Gives the new item's number. Its key is 0 until one is set.
  int addItem(const QString& text);
  int addItem(const QString& text, std::int32_t key);
  // Error 9 for an item that does not exist.
  void setItemData(int item, std::int32_t key);
  std::int32_t itemDataAt(int item) const;
  // Empties list and line, without a signal of picked().
  void clear();

  // -1 also when another text stands in an editable line.
  int listIndex() const;
  // Picks an item as the operator does: signals picked() when it was another one. Error 9.
  void setListIndex(int item);
  // The first item with the key, -1 for none.
  int findKey(std::int32_t key) const;
  // Picks the item with the key; error 9 when there is none.
  void selectByData(std::int32_t key);

  // The line's text, or the item's.
  QString text() const { return currentText(); }
  // Sets an editable line as it stands, and gives up an item of another text; a fixed list goes to
  // the item of that text (-1 for none).
  void setText(const QString& text);
  void setEditable(bool editable);
  // An editable line that cannot be typed into; its list can still be picked from.
  void setTypingBlocked(bool blocked);

  void showPopup() override;

 signals:
  // An item was picked, by the operator or by setListIndex(), also the same one again.
  void picked(int item);
  // The list is about to open.
  void dropDown();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  int checked(int item) const;
  void followLine();
};

}  // namespace quartela
