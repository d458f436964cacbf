// The report list of every screen: rows of a text and its sub-items, for a hundred rows or a
// hundred thousand.
//
// Rows count from 0 in the order shown; sub-items from 1, as the columns behind the first do. A row
// that does not exist raises error 9. Rows added are shown, and in a sorted list put in their
// place, when control returns to the event loop (or at flush()); until then they keep the number
// that adding gave, so a handler may fill a list in any way. Nothing is signalled while the program
// fills.
//
// Columns share the width that is left at the right; the widths that they were added with are the
// least. A column whose border the operator has moved keeps the width given so. A text that its
// column cuts short shows whole in a tip.
//
// A list with rows always has a current row: the first, unless another was clicked or selected.
//
// Keyboard: arrows, Home, End and the page keys move; letters typed jump to the row whose first
// column begins with them; Enter acts as a double click; Delete asks for deletion; Space ticks; the
// menu key asks for the menu.
#pragma once

#include <QElapsedTimer>
#include <QIcon>
#include <QList>
#include <QString>
#include <QTreeView>
#include <initializer_list>
#include <memory>
#include <span>

namespace quartela {

class ListModel;
class ListSource;

// A column's width in the measure at hand, on paper as on the screen.
class ColumnWidth {
 public:
  static constexpr ColumnWidth pixels(int n) { return {n, 0}; }
  static constexpr ColumnWidth twips(int n) { return {n, 1440}; }
  static constexpr ColumnWidth hundredthsOfMillimetre(int n) { return {n, 2540}; }

  // `dpi` is the screen's logical resolution.
  int toPixels(int dpi) const;

 private:
  constexpr ColumnWidth(int amount, int perInch) : amount_(amount), perInch_(perInch) {}
  int amount_;
  int perInch_;  // 0: pixels
};

class ListView : public QTreeView {
  Q_OBJECT
 public:
  explicit ListView(QWidget* parent = nullptr);

  void addColumn(const QString& header, ColumnWidth width, Qt::Alignment alignment = Qt::AlignLeft);
  void setColumnHeader(int column, const QString& header);
  int columnCount() const;
  // What a column keeps at least, in pixels: the width that it was added with, or the operator's;
  // for the first as much as its first row needs.
  int leastWidth(int column) const;

  // Empties the list; the columns stay.
  void clear();
  int count() const;
  // Shows these rows, as many as they are, in the place of those it has. Nothing is read of them
  // but what is shown, searched, sorted or asked for.
  void setSource(std::unique_ptr<ListSource> source);
  int addItem(const QString& text);
  // A whole row at once: its text and its sub-items from 1 on.
  int addRow(std::span<const QString> cells);
  int addRow(std::initializer_list<QString> cells);
  void setText(int row, const QString& text);
  void setSubItem(int row, int n, const QString& text);
  QString text(int row) const;
  // Sub-item 0 is the row's text; one that was never set is empty.
  QString subItem(int row, int n) const;
  void setTag(int row, const QString& tag);
  QString tag(int row) const;
  void removeItem(int row);

  // The icons that rows may have, numbered from 1; `size` is what they are drawn at.
  void setIconList(const QList<QIcon>& icons, QSize size);
  // 0 takes the icon away.
  void setIcon(int row, int icon);
  int icon(int row) const;

  void setCheckBoxes(bool on);
  // No signal.
  void setChecked(int row, bool checked);
  bool isChecked(int row) const;

  // The current row, -1 in an empty list.
  int selectedRow() const;
  // Makes the row current, selected and visible, without itemClicked. -1 takes the selection away.
  void selectRow(int row);
  bool hasSelection() const;
  // At the next flush when rows or an order wait for it.
  void ensureVisible(int row);
  // The first row, from `from` on, one of whose sub-items begins with `beginning`, without regard
  // to case, accents behind their letters as composed ones; -1 for none and for an empty beginning.
  int findSubItem(const QString& beginning, int from = 0) const;

  // Sorts by the text (0) or by sub-item `cell`: as text, without regard to case, stable.
  void setSortKey(int cell);
  void setSortOrder(Qt::SortOrder order);
  void setSorted(bool sorted);
  int sortKey() const;
  Qt::SortOrder sortOrder() const;
  bool isSorted() const;

  // Shows and sorts at once what waits for the event loop.
  void flush();

 signals:
  // The row was pressed with either button, or reached with the keyboard.
  void itemClicked(int row);
  void itemDoubleClicked(int row);
  // Double click or Enter.
  void itemActivated(int row);
  void itemCheckToggled(int row, bool checked);
  // The header of a column, counted from 1.
  void columnClicked(int index);
  void deleteRequested(int row);
  // Right button or menu key; -1 beside the rows. `position` is the screen's.
  void contextMenuRequested(int row, const QPoint& position);

 protected:
  void keyboardSearch(const QString& text) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void setUpHeader();
  void shareWidth();
  void keepTypedWidth(int column, int width);
  void keepSelectionVisible();
  void showSortIndicator();
  void later();
  void keepCurrentRow();
  void showRow();
  int checked(int row) const;
  int rowAt(const QPoint& position) const;
  bool pressCommandKey(int key);
  bool selectOnFirstMove(QKeyEvent* event);
  void goTo(int row);

  ListModel* model_;
  QList<int> least_;      // the columns' widths as they were told, in pixels
  QList<bool> byHand_;    // whether the operator has set a column's width
  bool sharing_ = false;  // widths change by the list's own doing
  bool flushPosted_ = false;
  int toShow_ = -1;  // the row that the next flush scrolls to
  QString typed_;
  QElapsedTimer sinceTyped_;
};

}  // namespace quartela
