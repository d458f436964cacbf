#include "platform/controls/ListModel.h"

#include "platform/controls/SortKey.h"

namespace quartela {

ListModel::ListModel(QObject* parent) : QAbstractTableModel(parent) {}

void ListModel::addColumn(const QString& header, Qt::Alignment alignment) {
  const auto position = static_cast<int>(columns_.size());
  beginInsertColumns({}, position, position);
  columns_.append({header, alignment | Qt::AlignVCenter});
  store_.reserveCells(position + 1);
  endInsertColumns();
}

void ListModel::setHeader(int column, const QString& header) {
  columns_[column].header = header;
  emit headerDataChanged(Qt::Horizontal, column, column);
}

void ListModel::setIcons(const QList<QIcon>& icons) {
  icons_ = icons;
  if (published_ > 0) {
    emit dataChanged(index(0, 0), index(published_ - 1, 0), {Qt::DecorationRole});
  }
}

void ListModel::setCheckBoxes(bool on) {
  checkBoxes_ = on;
  if (published_ > 0) {
    emit dataChanged(index(0, 0), index(published_ - 1, 0), {Qt::CheckStateRole});
  }
}

int ListModel::append(std::span<const QString> cells) {
  orderStale_ = true;
  return store_.append(cells);
}

void ListModel::setText(int row, int cell, const QString& text) {
  store_.setText(row, cell, text);
  orderStale_ = orderStale_ || cell == sortKey_;
  shown(row, cell, Qt::DisplayRole);
}

void ListModel::setIcon(int row, int icon) {
  store_.info(row).icon = static_cast<std::int16_t>(icon);
  shown(row, 0, Qt::DecorationRole);
}

void ListModel::setChecked(int row, bool checked) {
  store_.info(row).checked = checked;
  shown(row, 0, Qt::CheckStateRole);
}

void ListModel::shown(int row, int column, int role) {
  if (row < published_ && column < columns_.size()) {
    emit dataChanged(index(row, column), index(row, column), {role});
  }
}

void ListModel::removeRow(int row) {
  publish();
  beginRemoveRows({}, row, row);
  store_.remove(row);
  --published_;
  endRemoveRows();
}

void ListModel::clear() {
  beginResetModel();
  store_.clear();
  published_ = 0;
  orderStale_ = false;
  endResetModel();
}

void ListModel::setSortKey(int cell) {
  if (cell != sortKey_) {
    sortKey_ = cell;
    orderStale_ = true;
  }
}

void ListModel::setSortOrder(Qt::SortOrder order) {
  if (order != sortOrder_) {
    sortOrder_ = order;
    orderStale_ = true;
  }
}

void ListModel::setSorted(bool sorted) {
  orderStale_ = orderStale_ || (sorted && !sorted_);
  sorted_ = sorted;
}

bool ListModel::hasWork() const {
  return published_ < store_.count() || (sorted_ && orderStale_);
}

void ListModel::publish() {
  if (published_ == store_.count()) {
    return;
  }
  beginInsertRows({}, published_, store_.count() - 1);
  published_ = store_.count();
  endInsertRows();
}

void ListModel::flush() {
  publish();
  if (sorted_ && orderStale_) {
    orderStale_ = false;
    sortRows();
  }
}

// The rows that the view holds on to (the current one, the selected one) go where their texts go.
void ListModel::sortRows() {
  emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
  const std::vector<std::uint32_t> order =
      sortedRows(store_, sortKey_, sortOrder_ == Qt::DescendingOrder);
  std::vector<int> places(order.size());
  for (std::size_t place = 0; place < order.size(); ++place) {
    places[order[place]] = static_cast<int>(place);
  }
  store_.reorder(order);
  const QModelIndexList before = persistentIndexList();
  QModelIndexList after;
  for (const QModelIndex& held : before) {
    after.append(index(places[static_cast<std::size_t>(held.row())], held.column()));
  }
  changePersistentIndexList(before, after);
  emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

int ListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : published_;
}

int ListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  switch (role) {
    case Qt::DisplayRole:
      return store_.text(index.row(), index.column());
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(columns_.at(index.column()).alignment);
    case Qt::DecorationRole:
      return index.column() == 0 ? icon(index.row()) : QVariant();
    case Qt::CheckStateRole:
      if (checkBoxes_ && index.column() == 0) {
        return store_.info(index.row()).checked ? Qt::Checked : Qt::Unchecked;
      }
      return {};
    default:
      return {};
  }
}

QVariant ListModel::icon(int row) const {
  const int number = store_.info(row).icon;
  return number >= 1 && number <= icons_.size() ? QVariant(icons_.at(number - 1)) : QVariant();
}

bool ListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || role != Qt::CheckStateRole || !checkBoxes_) {
    return false;
  }
  const bool checked = value.toInt() == Qt::Checked;
  setChecked(index.row(), checked);
  emit checkToggled(index.row(), checked);
  return true;
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= columns_.size()) {
    return {};
  }
  const Column& column = columns_.at(section);
  if (role == Qt::DisplayRole) {
    return column.header;
  }
  return role == Qt::TextAlignmentRole ? QVariant::fromValue(column.alignment) : QVariant();
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  if (checkBoxes_ && index.column() == 0) {
    flags |= Qt::ItemIsUserCheckable;
  }
  return flags;
}

}  // namespace quartela
