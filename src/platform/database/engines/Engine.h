// What Connection and Recordset ask of the engine behind them: one open database.
//
// An engine stands in a folder of its own below this one, and nothing outside of it names it but
// Engines.cpp, which opens it.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

#include "platform/database/ResultRows.h"
#include "platform/database/SchemaSteps.h"
#include "platform/database/dialect/Dialect.h"

namespace quartela {

// A column as an engine loads it; the name is for the error's words.
struct LoadedColumn {
  QString name;
  ValueType type = ValueType::Text;
  bool computed = false;
};
using LoadedColumns = std::vector<LoadedColumn>;

struct CellToWrite {
  QString column;
  Value value;
};
using CellsToWrite = std::vector<CellToWrite>;

class Engine : public std::enable_shared_from_this<Engine> {
 public:
  Engine() = default;
  // Rolls back what is open.
  virtual ~Engine() = default;
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  virtual const Catalogue& catalogue() const = 0;
  // What the opening has to tell an operator; empty as a rule.
  virtual const QStringList& notices() const = 0;

  // Adds the rows of a SELECT to `rows`, the cells of `columns` from the first on: those of its
  // result and its key behind them. Error 13, naming the column, for a cell that is not of its
  // column's type, as another program can have written it; error 6 for a computed one, 11 for a
  // division by zero.
  virtual void select(const dialect::AnalysedStatement& statement, const LoadedColumns& columns,
                      ResultRows& rows) = 0;
  // Runs a DELETE; gives the count of rows that went of the table it names. Errors: 3200 naming the
  // table of the dependants, 3218, 61, 3051.
  virtual int remove(const dialect::AnalysedStatement& statement) = 0;

  // One transaction at a time. Error 5 for a second one, and for a commit without one or when the
  // engine has given it up by itself. A rollback without one does nothing.
  virtual void beginTransaction() = 0;
  virtual void commit() = 0;
  virtual void rollback() = 0;
  virtual bool inTransaction() const = 0;

  // Between the two a row is begun under the pessimistic lock: the one of that key, or a new one
  // when `key` is empty. Error 3218 when another program keeps it, after a short wait.
  virtual void holdRow(const CatalogueTable& table, const CellsToWrite& key) = 0;
  virtual void releaseRow() = 0;

  // Whether there is a row of that key.
  virtual bool hasRow(const CatalogueTable& table, const CellsToWrite& key) = 0;
  // Both write one row, which is then safe unless a transaction goes on, and add it as it then
  // stands to `rows`; an empty name among `returned` is a column that the table does not have, and
  // comes back null. Nothing is added when they fail: 3022, 3201, 3314 and 3317 naming the field,
  // 3167 when there is no row of that key, 3218, 61, 3051.
  virtual void insertRow(const CatalogueTable& table, const CellsToWrite& cells,
                         const LoadedColumns& returned, ResultRows& rows) = 0;
  virtual void changeRow(const CatalogueTable& table, const CellsToWrite& key,
                         const CellsToWrite& cells, const LoadedColumns& returned,
                         ResultRows& rows) = 0;
};

// Opens the database that a connection text leads to. Errors as Connection::open tells them.
std::shared_ptr<Engine> openEngine(const QString& connectionText, const SchemaSteps& steps);

}  // namespace quartela
