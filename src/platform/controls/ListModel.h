// What a ListView shows. Rows added are not told to the view one by one: they wait until flush(),
// so that filling is quick however it is done.
#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <QList>
#include <span>

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

  const RowStore& store() const { return store_; }
  int append(std::span<const QString> cells);
  void setText(int row, int cell, const QString& text);
  void setIcon(int row, int icon);
  void setTag(int row, const QString& tag) { store_.setTag(row, tag); }
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

  QVariant icon(int row) const;
  void shown(int row, int column, int role);
  void sortRows();

  QList<Column> columns_;
  QList<QIcon> icons_;
  RowStore store_;
  int published_ = 0;
  bool checkBoxes_ = false;
  bool sorted_ = false;
  bool orderStale_ = false;
  int sortKey_ = 0;
  Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};

}  // namespace quartela
