// What a ListView shows. Rows added are not told to the view one by one: they wait until flush(),
// so that filling is quick however it is done.
#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <QList>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "platform/controls/ListSource.h"
#include "platform/controls/RowStore.h"

namespace quartela {

class ListModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  explicit ListModel(QObject* parent);

  void addColumn(const QString& header, Qt::Alignment alignment);
  void setHeader(int column, const QString& header);
  void setIcons(const QList<QIcon>& icons);
  void setCheckBoxes(bool on);
  bool checkBoxes() const { return checkBoxes_; }

  int count() const { return source_ ? source_->count() : store_.count(); }
  QString text(int row, int cell) const;
  // At least the first `bytes` bytes of a cell's text, where that is less work than all of it.
  QString head(int row, int cell, std::size_t bytes) const;
  QString tag(int row) const { return source_ ? QString() : store_.tag(row); }
  int icon(int row) const;
  bool isChecked(int row) const { return !source_ && store_.info(row).checked; }
  // Cells of a row, its text among them.
  int cells() const;

  // Shows these rows in the place of those it has. They are copied only when one is changed, added
  // or removed.
  void setSource(std::unique_ptr<ListSource> source);
  int append(std::span<const QString> cells);
  void setText(int row, int cell, const QString& text);
  void setIcon(int row, int icon);
  void setTag(int row, const QString& tag);
  void setChecked(int row, bool checked);
  void removeRow(int row);
  void clear();

  void setSortKey(int cell);
  void setSortOrder(Qt::SortOrder order);
  void setSorted(bool sorted);
  int sortKey() const { return sortKey_; }
  Qt::SortOrder sortOrder() const { return sortOrder_; }
  bool isSorted() const { return sorted_; }

  // Whether rows wait to be shown or sorted.
  bool hasWork() const;
  // Shows the rows that wait, behind those shown.
  void publish();
  // Publishes, and puts the rows in order when the list is sorted.
  void flush();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 signals:
  void checkToggled(int row, bool checked);

 private:
  struct Column {
    QString header;
    Qt::Alignment alignment;
  };

  QVariant iconPicture(int row) const;
  int sourceRow(int row) const {
    return order_.empty() ? row : static_cast<int>(order_[static_cast<std::size_t>(row)]);
  }
  // Copies the source's rows, so that they can be changed.
  void ownRows();
  void appendSortKeyOf(int row, std::string& out) const;
  void reorder(const std::vector<std::uint32_t>& order);
  void shown(int row, int column, int role);
  void sortRows();

  QList<Column> columns_;
  QList<QIcon> icons_;
  // Where there is a source the store is empty; `order_` tells, once sorted, which of its rows
  // stands where.
  std::unique_ptr<ListSource> source_;
  std::vector<std::uint32_t> order_;
  RowStore store_;
  int published_ = 0;
  bool checkBoxes_ = false;
  bool sorted_ = false;
  bool orderStale_ = false;
  int sortKey_ = 0;
  Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};

}  // namespace quartela
