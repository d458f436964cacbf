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

QString ListModel::text(int row, int cell) const {
  return source_ ? source_->text(sourceRow(row), cell) : store_.text(row, cell);
}

QString ListModel::head(int row, int cell, std::size_t bytes) const {
  if (source_) {
    return text(row, cell);
  }
  const std::string_view utf8 = store_.bytes(row, cell).substr(0, bytes);
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

int ListModel::icon(int row) const {
  return source_ ? source_->icon(sourceRow(row)) : store_.info(row).icon;
}

int ListModel::cells() const {
  return source_ ? columnCount() : store_.cells();
}

void ListModel::setSource(std::unique_ptr<ListSource> source) {
  clear();
  source_ = std::move(source);
  orderStale_ = true;
}

void ListModel::ownRows() {
  if (!source_) {
    return;
  }
  std::vector<QString> row(static_cast<std::size_t>(columnCount()));
  for (int n = 0; n < count(); ++n) {
    for (int cell = 0; cell < columnCount(); ++cell) {
      row[static_cast<std::size_t>(cell)] = text(n, cell);
    }
    store_.info(store_.append(row)).icon = static_cast<std::int16_t>(icon(n));
  }
  source_.reset();
  order_.clear();
}

void ListModel::setTag(int row, const QString& tag) {
  ownRows();
  store_.setTag(row, tag);
}

int ListModel::append(std::span<const QString> cells) {
  ownRows();
  orderStale_ = true;
  return store_.append(cells);
}

void ListModel::setText(int row, int cell, const QString& text) {
  ownRows();
  store_.setText(row, cell, text);
  orderStale_ = orderStale_ || cell == sortKey_;
  shown(row, cell, Qt::DisplayRole);
}

void ListModel::setIcon(int row, int icon) {
  ownRows();
  store_.info(row).icon = static_cast<std::int16_t>(icon);
  shown(row, 0, Qt::DecorationRole);
}

void ListModel::setChecked(int row, bool checked) {
  ownRows();
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
  ownRows();
  beginRemoveRows({}, row, row);
  store_.remove(row);
  --published_;
  endRemoveRows();
}

void ListModel::clear() {
  beginResetModel();
  store_.clear();
  source_.reset();
  order_.clear();
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
  return published_ < count() || (sorted_ && orderStale_);
}

void ListModel::publish() {
  if (published_ == count()) {
    return;
  }
  beginInsertRows({}, published_, count() - 1);
  published_ = count();
  endInsertRows();
}

void ListModel::flush() {
  publish();
  if (sorted_ && orderStale_) {
    orderStale_ = false;
    sortRows();
  }
}

void ListModel::appendSortKeyOf(int row, std::string& out) const {
  if (source_) {
    const QByteArray utf8 = text(row, sortKey_).toUtf8();
    appendSortKey({utf8.constData(), static_cast<std::size_t>(utf8.size())}, out);
  } else {
    appendSortKey(store_.bytes(row, sortKey_), out);
  }
}

void ListModel::reorder(const std::vector<std::uint32_t>& order) {
  if (!source_) {
    store_.reorder(order);
    return;
  }
  std::vector<std::uint32_t> rows;
  rows.reserve(order.size());
  for (const std::uint32_t row : order) {
    rows.push_back(static_cast<std::uint32_t>(sourceRow(static_cast<int>(row))));
  }
  order_ = std::move(rows);
}

// The rows that the view holds on to (the current one, the selected one) go where their texts go.
void ListModel::sortRows() {
  emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
  const std::vector<std::uint32_t> order = sortedRows(
      count(), [this](int row, std::string& out) { appendSortKeyOf(row, out); },
      sortOrder_ == Qt::DescendingOrder);
  std::vector<int> places(order.size());
  for (std::size_t place = 0; place < order.size(); ++place) {
    places[order[place]] = static_cast<int>(place);
  }
  reorder(order);
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
      return text(index.row(), index.column());
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(columns_.at(index.column()).alignment);
    case Qt::DecorationRole:
      return index.column() == 0 ? iconPicture(index.row()) : QVariant();
    case Qt::CheckStateRole:
      if (checkBoxes_ && index.column() == 0) {
        return isChecked(index.row()) ? Qt::Checked : Qt::Unchecked;
      }
      return {};
    default:
      return {};
  }
}

QVariant ListModel::iconPicture(int row) const {
  const int number = icon(row);
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
