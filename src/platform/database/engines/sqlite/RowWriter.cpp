#include "platform/database/engines/sqlite/RowWriter.h"

#include <algorithm>
#include <string>

#include "platform/database/engines/sqlite/Refusals.h"
#include "platform/database/engines/sqlite/Session.h"
#include "platform/values/RuntimeError.h"

namespace quartela::sqlite {
namespace {

using Cells = CellsToWrite;

[[noreturn]] void raiseRequired(const CatalogueTable& table, const CatalogueColumn& column) {
  throw RuntimeError(ErrorNumber::ColumnRequired, namedField(table, column.name));
}

// "name" = ?n, ... with the given text between them; the numbers go on from `first`.
std::string assignments(const Cells& cells, std::size_t first, const char* between) {
  std::string text;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    text += (i == 0 ? "" : between) + quoted(cells[i].column) + " = ?" + std::to_string(first + i);
  }
  return text;
}

std::string insertText(const CatalogueTable& table, const Cells& cells) {
  if (cells.empty()) {
    return "INSERT INTO " + quoted(table.name) + " DEFAULT VALUES";
  }
  std::string names;
  std::string places;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const char* const comma = i == 0 ? "" : ", ";
    names += comma + quoted(cells[i].column);
    places += comma + ("?" + std::to_string(i + 1));
  }
  return "INSERT INTO " + quoted(table.name) + " (" + names + ") VALUES (" + places + ")";
}

void bindAll(Statement& statement, const Cells& cells, std::size_t first) {
  for (std::size_t i = 0; i < cells.size(); ++i) {
    statement.bind(static_cast<int>(first + i), cells[i].value);
  }
}

const CellToWrite* cellOf(const Cells& cells, const QString& column) {
  const auto found = std::find_if(cells.begin(), cells.end(), [&](const CellToWrite& cell) {
    return cell.column.compare(column, Qt::CaseInsensitive) == 0;
  });
  return found == cells.end() ? nullptr : &*found;
}

}  // namespace

RowWriter::RowWriter(SqliteSession& session, const CatalogueTable& table,
                     const LoadedColumns& returned)
    : session_(session), table_(table), returned_(returned) {}

void RowWriter::insert(const Cells& cells, ResultRows& rows) const {
  requireCells(cells);
  runAndLoad(insertText(table_, cells) + returning(), cells, {}, rows);
}

void RowWriter::change(const Cells& key, const Cells& cells, ResultRows& rows) const {
  refuseNulls(cells);
  const std::string sql = "UPDATE " + quoted(table_.name) + " SET " + assignments(cells, 1, ", ") +
                          " WHERE " + assignments(key, cells.size() + 1, " AND ") + returning();
  if (!runAndLoad(sql, cells, key, rows)) {
    throw RuntimeError(ErrorNumber::RowDeleted);
  }
}

bool RowWriter::exists(const Cells& key) const {
  Statement statement(
      session_.handle(),
      "SELECT 1 FROM " + quoted(table_.name) + " WHERE " + assignments(key, 1, " AND "),
      Activity::Reading);
  bindAll(statement, key, 1);
  return statement.step();
}

// A key that the engine does not generate is asked for too: the engine would fill it in by itself.
void RowWriter::requireCells(const Cells& cells) const {
  for (const CatalogueColumn& column : table_.columns) {
    if (!column.required || column.generated) {
      continue;
    }
    const CellToWrite* const cell = cellOf(cells, column.name);
    const bool missing = cell == nullptr ? !hasDefault(column) : cell->value.isNull();
    if (missing) {
      raiseRequired(table_, column);
    }
  }
}

void RowWriter::refuseNulls(const Cells& cells) const {
  for (const CatalogueColumn& column : table_.columns) {
    const CellToWrite* const cell = cellOf(cells, column.name);
    if (column.required && cell != nullptr && cell->value.isNull()) {
      raiseRequired(table_, column);
    }
  }
}

bool RowWriter::hasDefault(const CatalogueColumn& column) const {
  Statement statement(session_.handle(),
                      "SELECT 1 FROM pragma_table_info(?1)"
                      " WHERE name = ?2 AND dflt_value IS NOT NULL",
                      Activity::Reading);
  statement.bind(1, table_.name);
  statement.bind(2, column.name);
  return statement.step();
}

std::string RowWriter::returning() const {
  std::string text = " RETURNING ";
  for (std::size_t i = 0; i < returned_.size(); ++i) {
    const QString& name = returned_[i].name;
    text += (i == 0 ? "" : ", ") + (name.isEmpty() ? std::string("NULL") : quoted(name));
  }
  return text;
}

bool RowWriter::step(Statement& statement, const Cells& written) const {
  const int code = statement.tryStep();
  if (isConstraint(code)) {
    raiseRefusedRow(session_.handle(), code, table_, written);
  }
  check(session_.handle(), code, Activity::Writing);
  return code == SQLITE_ROW;
}

bool RowWriter::runAndLoad(const std::string& sql, const Cells& first, const Cells& second,
                           ResultRows& rows) const {
  Statement statement(session_.handle(), session_.prepared(sql), Activity::Writing);
  bindAll(statement, first, 1);
  bindAll(statement, second, first.size() + 1);
  const int before = rows.rowCount();
  try {
    while (step(statement, first)) {
      loadRow(statement, returned_, rows);
    }
  } catch (...) {
    while (rows.rowCount() > before) {
      rows.dropLastRow();
    }
    throw;
  }
  return rows.rowCount() > before;
}

}  // namespace quartela::sqlite
