// What a Recordset keeps while it is open: where its rows come from, the rows, the current one, and
// the row begun. Recordset checks what it is asked; the work is done here.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/database/Recordset.h"
#include "platform/database/ResultRows.h"
#include "platform/database/dialect/Dialect.h"
#include "platform/database/engines/Engine.h"

namespace quartela {

struct KeyColumn {
  QString name;
  int position;  // among the loaded columns
};

// What is loaded of each row: the result's columns and, when the row's key is not among them, the
// key behind them.
struct RowLayout {
  LoadedColumns loaded;
  // The same columns under their names in the table, for reading a row back that has been written.
  LoadedColumns inTable;
  std::vector<KeyColumn> key;
};

struct Recordset::Data {
  // A row begun: added, or the current one changed.
  struct Edit {
    bool adding = false;
    bool holdsLock = false;
    std::vector<std::optional<Value>> cells;
  };

  Data(Engine& from, dialect::Result shown, LockType lockType);

  // Error 3704 when the connection has been closed meanwhile.
  std::shared_ptr<Engine> openEngine() const;
  const CatalogueTable& targetTable(const Engine& from) const;

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
  void begin(Engine& in, bool adding);
  void requireRowInFile(Engine& in) const;
  // Writes the row begun, shows it and ends it; a failure leaves all as it was.
  void write(Engine& to);
  void showWrittenRow();
  // Forgets the row begun, if there is one, and gives its lock up.
  void endEdit();
  CellsToWrite cellsSet() const;
  CellsToWrite currentKey() const;

  std::weak_ptr<Engine> engine;
  LockType lock;
  dialect::Result result;
  RowLayout layout;
  ResultRows rows;
  int position = 0;
  std::optional<Edit> edit;
};

}  // namespace quartela
