#include "platform/database/RecordsetData.h"

#include <algorithm>

#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

int positionOfColumn(const std::vector<dialect::ResultColumn>& columns, const QString& column) {
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const auto& candidate) {
    return candidate.column.compare(column, Qt::CaseInsensitive) == 0;
  });
  return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

ValueType typeOfColumn(const CatalogueTable& table, const QString& name) {
  for (const CatalogueColumn& column : table.columns) {
    if (column.name.compare(name, Qt::CaseInsensitive) == 0) {
      return column.type;
    }
  }
  throw RuntimeError(ErrorNumber::UnknownName, name);
}

void addKey(const dialect::Result& result, const CatalogueTable& table, RowLayout& layout) {
  for (const QString& name : result.keyColumns) {
    layout.key.push_back({name, positionOfColumn(result.columns, name)});
  }
  const bool shown = std::all_of(layout.key.begin(), layout.key.end(),
                                 [](const KeyColumn& column) { return column.position >= 0; });
  if (shown) {
    return;
  }
  for (KeyColumn& column : layout.key) {
    column.position = static_cast<int>(layout.loaded.size());
    layout.loaded.push_back({column.name, typeOfColumn(table, column.name), false});
    layout.inTable.push_back(layout.loaded.back());
  }
}

RowLayout layOut(const dialect::Result& result, const CatalogueTable* table) {
  RowLayout layout;
  for (const dialect::ResultColumn& column : result.columns) {
    const bool computed = column.column.isEmpty();
    layout.loaded.push_back({column.name, column.type, computed});
    layout.inTable.push_back({column.column, column.type, computed});
  }
  if (table != nullptr) {
    addKey(result, *table, layout);
  }
  return layout;
}

ResultRows rowsFor(const LoadedColumns& columns) {
  std::vector<ValueType> types;
  types.reserve(columns.size());
  for (const LoadedColumn& column : columns) {
    types.push_back(column.type);
  }
  return ResultRows(std::move(types));
}

}  // namespace

Recordset::Data::Data(Engine& from, dialect::Result shown, LockType lockType)
    : engine(from.weak_from_this()),
      lock(lockType),
      result(std::move(shown)),
      layout(layOut(result, lock == LockType::ReadOnly || result.updatableTable.isEmpty()
                                ? nullptr
                                : &targetTable(from))),
      rows(rowsFor(layout.loaded)) {}

std::shared_ptr<Engine> Recordset::Data::openEngine() const {
  auto open = engine.lock();
  if (!open) {
    throw RuntimeError(ErrorNumber::ObjectClosed);
  }
  return open;
}

const CatalogueTable& Recordset::Data::targetTable(const Engine& from) const {
  const CatalogueTable* const table = from.catalogue().table(result.updatableTable);
  if (table == nullptr) {
    throw RuntimeError(ErrorNumber::UnknownTable, result.updatableTable);
  }
  return *table;
}

void Recordset::Data::requireCurrentRow() const {
  if (!hasCurrentRow()) {
    throw RuntimeError(ErrorNumber::CurrentRowMissing);
  }
}

void Recordset::Data::requireNoEdit() const {
  if (edit) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                       QStringLiteral("há um registro iniciado e não gravado"));
  }
}

void Recordset::Data::checkPosition(int column) const {
  if (column < 0 || column >= static_cast<int>(result.columns.size())) {
    throw RuntimeError(ErrorNumber::ColumnNotFound, QString::number(column));
  }
}

// A column that the result bears twice is kept once, at its first position.
int Recordset::Data::writablePosition(int column) const {
  const QString& name = result.columns[static_cast<std::size_t>(column)].column;
  if (lock == LockType::ReadOnly || result.updatableTable.isEmpty() || name.isEmpty()) {
    throw RuntimeError(ErrorNumber::SourceReadOnly);
  }
  return positionOfColumn(result.columns, name);
}

Value Recordset::Data::cell(int column) const {
  if (!edit) {
    requireCurrentRow();
    return rows.value(position, column);
  }
  const QString& name = result.columns[static_cast<std::size_t>(column)].column;
  const int kept = name.isEmpty() ? column : positionOfColumn(result.columns, name);
  const std::optional<Value>& set = edit->cells[static_cast<std::size_t>(kept)];
  if (set) {
    return *set;
  }
  return edit->adding ? Value() : rows.value(position, column);
}

void Recordset::Data::beginNew() {
  begin(*openEngine(), true);
}

void Recordset::Data::beginChange() {
  const auto open = openEngine();
  begin(*open, false);
  try {
    requireRowInFile(*open);
  } catch (...) {
    endEdit();
    throw;
  }
}

void Recordset::Data::begin(Engine& in, bool adding) {
  if (lock == LockType::ReadOnly || result.updatableTable.isEmpty()) {
    throw RuntimeError(ErrorNumber::SourceReadOnly);
  }
  Edit begun;
  begun.adding = adding;
  begun.cells.resize(result.columns.size());
  if (lock == LockType::Pessimistic) {
    in.holdRow(targetTable(in), adding ? CellsToWrite() : currentKey());
    begun.holdsLock = true;
  }
  edit = std::move(begun);
}

void Recordset::Data::requireRowInFile(Engine& in) const {
  if (!in.hasRow(targetTable(in), currentKey())) {
    throw RuntimeError(ErrorNumber::RowDeleted);
  }
}

CellsToWrite Recordset::Data::cellsSet() const {
  CellsToWrite cells;
  for (std::size_t i = 0; i < edit->cells.size(); ++i) {
    if (edit->cells[i]) {
      cells.push_back({result.columns[i].column, *edit->cells[i]});
    }
  }
  return cells;
}

CellsToWrite Recordset::Data::currentKey() const {
  CellsToWrite cells;
  for (const KeyColumn& column : layout.key) {
    cells.push_back({column.name, rows.value(position, column.position)});
  }
  return cells;
}

// The row as the file then has it stands behind the others until it is shown.
void Recordset::Data::write(Engine& to) {
  if (edit->adding) {
    to.insertRow(targetTable(to), cellsSet(), layout.inTable, rows);
  } else {
    to.changeRow(targetTable(to), currentKey(), cellsSet(), layout.inTable, rows);
  }
  showWrittenRow();
  endEdit();
}

// A computed cell of a changed row keeps what it showed.
void Recordset::Data::showWrittenRow() {
  if (edit->adding) {
    position = rows.rowCount() - 1;
    return;
  }
  for (int i = 0; i < rows.columnCount(); ++i) {
    if (!layout.inTable[static_cast<std::size_t>(i)].name.isEmpty()) {
      rows.moveLastCell(i, position);
    }
  }
  rows.dropLastRow();
}

void Recordset::Data::endEdit() {
  if (edit && edit->holdsLock) {
    if (const auto open = engine.lock()) {
      open->releaseRow();
    }
  }
  edit.reset();
}

}  // namespace quartela
