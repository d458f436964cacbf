// The rows of a session: reading, writing and removing them.
#include "platform/database/engines/sqlite/LeastMatch.h"
#include "platform/database/engines/sqlite/Parameters.h"
#include "platform/database/engines/sqlite/Refusals.h"
#include "platform/database/engines/sqlite/RowLoader.h"
#include "platform/database/engines/sqlite/RowWriter.h"
#include "platform/database/engines/sqlite/Session.h"
#include "platform/database/engines/sqlite/Translation.h"

namespace quartela {

using sqlite::Activity;
using sqlite::EngineStatement;
using sqlite::RowWriter;
using sqlite::WriteScope;

void SqliteSession::select(const dialect::AnalysedStatement& statement,
                           const LoadedColumns& columns, ResultRows& rows) {
  const EngineStatement translated = sqlite::translate(statement);
  prepareToRead();
  if (translated.leastMatch && selectLeastMatch(*translated.leastMatch, columns, rows)) {
    return;
  }
  sqlite::Statement select(handle(), translated.sql, Activity::Reading);
  sqlite::bindParameters(select, translated);
  while (select.step()) {
    sqlite::loadRow(select, columns, rows);
  }
}

// False when the statement has to be run as it is.
bool SqliteSession::selectLeastMatch(const sqlite::LeastMatch& wanted, const LoadedColumns& columns,
                                     ResultRows& rows) {
  const sqlite::FoundText found = sqlite::findLeastMatch(*this, wanted);
  if (found.text) {
    sqlite::Statement select(handle(), prepared(wanted.sql), Activity::Reading);
    select.bind(1, QString::fromStdString(*found.text));
    if (!select.step()) {
      return false;
    }
    sqlite::loadRow(select, columns, rows);
  }
  return found.known;
}

int SqliteSession::remove(const dialect::AnalysedStatement& statement) {
  const EngineStatement translated = sqlite::translate(statement);
  WriteScope scope(*this);
  int removed = 0;
  {
    sqlite::Statement command(handle(), translated.sql, Activity::Deleting);
    sqlite::bindParameters(command, translated);
    const int code = command.tryStep();
    if (sqlite::isConstraint(code)) {
      sqlite::raiseRefusedDeletion(handle(), translated, statement.target());
    }
    sqlite::check(handle(), code, Activity::Deleting);
    removed = sqlite3_changes(handle());
  }
  scope.commit();
  return removed;
}

bool SqliteSession::hasRow(const CatalogueTable& table, const CellsToWrite& key) {
  return RowWriter(*this, table, {}).exists(key);
}

// A row that has been added is taken back when it cannot be made safe.
template <typename Write>
void SqliteSession::writeRow(ResultRows& rows, Write write) {
  WriteScope scope(*this);
  write();
  try {
    scope.commit();
  } catch (...) {
    rows.dropLastRow();
    throw;
  }
}

void SqliteSession::insertRow(const CatalogueTable& table, const CellsToWrite& cells,
                              const LoadedColumns& returned, ResultRows& rows) {
  writeRow(rows, [&] { RowWriter(*this, table, returned).insert(cells, rows); });
}

void SqliteSession::changeRow(const CatalogueTable& table, const CellsToWrite& key,
                              const CellsToWrite& cells, const LoadedColumns& returned,
                              ResultRows& rows) {
  writeRow(rows, [&] { RowWriter(*this, table, returned).change(key, cells, rows); });
}

}  // namespace quartela
