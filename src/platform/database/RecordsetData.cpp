#include "platform/database/RecordsetData.h"

#include <algorithm>

#include "platform/database/engines/sqlite/LeastMatch.h"
#include "platform/database/engines/sqlite/Parameters.h"
#include "platform/database/engines/sqlite/RowLoader.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

using Cells = std::vector<sqlite::CellToWrite>;

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

void addKey(const dialect::EngineStatement& statement, const CatalogueTable& table,
            RowLayout& layout) {
  for (const QString& name : statement.keyColumns) {
    layout.key.push_back({name, positionOfColumn(statement.columns, name)});
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

RowLayout layOut(const dialect::EngineStatement& statement, const CatalogueTable* table) {
  RowLayout layout;
  for (const dialect::ResultColumn& column : statement.columns) {
    const bool computed = column.column.isEmpty();
    layout.loaded.push_back({column.name, column.type, computed});
    layout.inTable.push_back({column.column, column.type, computed});
  }
  if (table != nullptr) {
    addKey(statement, *table, layout);
  }
  return layout;
}

ResultRows rowsFor(const std::vector<sqlite::LoadedColumn>& columns) {
  std::vector<ValueType> types;
  types.reserve(columns.size());
  for (const sqlite::LoadedColumn& column : columns) {
    types.push_back(column.type);
  }
  return ResultRows(std::move(types));
}

}  // namespace

Recordset::Data::Data(SqliteSession& from, dialect::EngineStatement translated, LockType lockType)
    : session(from.weak_from_this()),
      lock(lockType),
      statement(std::move(translated)),
      layout(layOut(statement, lock == LockType::ReadOnly || statement.updatableTable.isEmpty()
                                   ? nullptr
                                   : &targetTable(from))),
      rows(rowsFor(layout.loaded)) {}

void Recordset::Data::load(SqliteSession& from) {
  from.prepareToRead();
  if (statement.leastMatch && loadLeastMatch(from)) {
    return;
  }
  sqlite::Statement select(from.handle(), statement.sql, sqlite::Activity::Reading);
  sqlite::bindParameters(select, statement);
  while (select.step()) {
    sqlite::loadRow(select, layout.loaded, rows);
  }
}

bool Recordset::Data::loadLeastMatch(SqliteSession& from) {
  const sqlite::FoundText found = sqlite::findLeastMatch(from, *statement.leastMatch);
  if (found.text) {
    sqlite::Statement select(from.handle(), from.prepared(statement.leastMatch->sql),
                             sqlite::Activity::Reading);
    select.bind(1, QString::fromStdString(*found.text));
    if (!select.step()) {
      return false;
    }
    sqlite::loadRow(select, layout.loaded, rows);
  }
  return found.known;
}

std::shared_ptr<SqliteSession> Recordset::Data::openSession() const {
  auto open = session.lock();
  if (!open) {
    throw RuntimeError(ErrorNumber::ObjectClosed);
  }
  return open;
}

const CatalogueTable& Recordset::Data::targetTable(const SqliteSession& from) const {
  const CatalogueTable* const table = from.catalogue().table(statement.updatableTable);
  if (table == nullptr) {
    throw RuntimeError(ErrorNumber::UnknownTable, statement.updatableTable);
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
  if (column < 0 || column >= static_cast<int>(statement.columns.size())) {
    throw RuntimeError(ErrorNumber::ColumnNotFound, QString::number(column));
  }
}

// A column that the result bears twice is kept once, at its first position.
int Recordset::Data::writablePosition(int column) const {
  const QString& name = statement.columns[static_cast<std::size_t>(column)].column;
  if (lock == LockType::ReadOnly || statement.updatableTable.isEmpty() || name.isEmpty()) {
    throw RuntimeError(ErrorNumber::SourceReadOnly);
  }
  return positionOfColumn(statement.columns, name);
}

Value Recordset::Data::cell(int column) const {
  if (!edit) {
    requireCurrentRow();
    return rows.value(position, column);
  }
  const QString& name = statement.columns[static_cast<std::size_t>(column)].column;
  const int kept = name.isEmpty() ? column : positionOfColumn(statement.columns, name);
  const std::optional<Value>& set = edit->cells[static_cast<std::size_t>(kept)];
  if (set) {
    return *set;
  }
  return edit->adding ? Value() : rows.value(position, column);
}

void Recordset::Data::beginNew() {
  begin(*openSession(), true);
}

void Recordset::Data::beginChange() {
  const auto open = openSession();
  begin(*open, false);
  try {
    requireRowInFile(*open);
  } catch (...) {
    endEdit();
    throw;
  }
}

void Recordset::Data::begin(SqliteSession& in, bool adding) {
  if (lock == LockType::ReadOnly || statement.updatableTable.isEmpty()) {
    throw RuntimeError(ErrorNumber::SourceReadOnly);
  }
  Edit begun;
  begun.adding = adding;
  begun.cells.resize(statement.columns.size());
  if (lock == LockType::Pessimistic) {
    in.addLockHolder();
    begun.holdsLock = true;
  }
  edit = std::move(begun);
}

void Recordset::Data::requireRowInFile(SqliteSession& in) const {
  const sqlite::RowWriter writer(in, targetTable(in), layout.inTable);
  if (!writer.exists(currentKey())) {
    throw RuntimeError(ErrorNumber::RowDeleted);
  }
}

Cells Recordset::Data::cellsSet() const {
  Cells cells;
  for (std::size_t i = 0; i < edit->cells.size(); ++i) {
    if (edit->cells[i]) {
      cells.push_back({statement.columns[i].column, *edit->cells[i]});
    }
  }
  return cells;
}

Cells Recordset::Data::currentKey() const {
  Cells cells;
  for (const KeyColumn& column : layout.key) {
    cells.push_back({column.name, rows.value(position, column.position)});
  }
  return cells;
}

// The row as the file then has it stands behind the others until the file has it for good.
void Recordset::Data::write(SqliteSession& to) {
  sqlite::WriteScope scope(to);
  const sqlite::RowWriter writer(to, targetTable(to), layout.inTable);
  if (edit->adding) {
    writer.insert(cellsSet(), rows);
  } else {
    writer.change(currentKey(), cellsSet(), rows);
  }
  try {
    scope.commit();
  } catch (...) {
    rows.dropLastRow();
    throw;
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
    if (const auto open = session.lock()) {
      open->removeLockHolder();
    }
  }
  edit.reset();
}

}  // namespace quartela
