// What a Recordset keeps while it is open: where its rows come from, the rows, the current one, and
// the row begun. Recordset checks what it is asked; the work is done here.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/database/Recordset.h"
#include "platform/database/ResultRows.h"
#include "platform/database/dialect/Dialect.h"
#include "platform/database/engines/sqlite/RowWriter.h"
#include "platform/database/engines/sqlite/Session.h"

namespace quartela {

struct KeyColumn {
  QString name;
  int position;  // among the loaded columns
};

// What is loaded of each row: the result's columns and, when the row's key is not among them, the
// key behind them.
struct RowLayout {
  std::vector<sqlite::LoadedColumn> loaded;
  // The same columns under their names in the table, for reading a row back that has been written.
  std::vector<sqlite::LoadedColumn> inTable;
  std::vector<KeyColumn> key;
};

struct Recordset::Data {
  // A row begun: added, or the current one changed.
  struct Edit {
    bool adding = false;
    bool holdsLock = false;
    std::vector<std::optional<Value>> cells;
  };

  Data(SqliteSession& from, dialect::EngineStatement translated, LockType lockType);

  // Reads all rows; the first one is then current.
  void load(SqliteSession& from);
  // For a statement that asks for the least match; false when it has to be run as it is.
  bool loadLeastMatch(SqliteSession& from);
  // Error 3704 when the connection has been closed meanwhile.
  std::shared_ptr<SqliteSession> openSession() const;
  const CatalogueTable& targetTable(const SqliteSession& from) const;

  bool hasCurrentRow() const { return position >= 0 && position < rows.rowCount(); }
  void requireCurrentRow() const;
  void requireNoEdit() const;
  void checkPosition(int column) const;
  // Where the value set for the column is kept; error 3027 when it cannot be written.
  int writablePosition(int column) const;
  Value cell(int column) const;

  // Begin a row, with the write lock when the lock type asks for it.
  void beginNew();
  void beginChange();
  void begin(SqliteSession& in, bool adding);
  void requireRowInFile(SqliteSession& in) const;
  // Writes the row begun, shows it and ends it; a failure leaves all as it was.
  void write(SqliteSession& to);
  void showWrittenRow();
  // Forgets the row begun, if there is one, and gives its lock up.
  void endEdit();
  std::vector<sqlite::CellToWrite> cellsSet() const;
  std::vector<sqlite::CellToWrite> currentKey() const;

  std::weak_ptr<SqliteSession> session;
  LockType lock;
  dialect::EngineStatement statement;
  RowLayout layout;
  ResultRows rows;
  int position = 0;
  std::optional<Edit> edit;
};

}  // namespace quartela
