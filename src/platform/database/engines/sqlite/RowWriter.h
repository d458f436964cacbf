// Adding and changing one row of a table, with bound values.
#pragma once

#include <QString>
#include <vector>

#include "platform/database/dialect/Catalogue.h"
#include "platform/database/engines/sqlite/RowLoader.h"

namespace quartela {
class SqliteSession;
}

namespace quartela::sqlite {

class RowWriter {
 public:
  // `returned` are the columns of the row that is given back after the writing; an empty name is a
  // column that the table does not have, and comes back null. All must outlive the writer.
  RowWriter(SqliteSession& session, const CatalogueTable& table, const LoadedColumns& returned);

  // Both add the row as it then stands to `rows`. Errors: 3314 naming the column, before the engine
  // is asked; what the engine refuses; 3167 when there is no row of that key.
  void insert(const CellsToWrite& cells, ResultRows& rows) const;
  void change(const CellsToWrite& key, const CellsToWrite& cells, ResultRows& rows) const;

  // Whether there is a row of that key.
  bool exists(const CellsToWrite& key) const;

 private:
  void requireCells(const CellsToWrite& cells) const;
  void refuseNulls(const CellsToWrite& cells) const;
  bool hasDefault(const CatalogueColumn& column) const;
  std::string returning() const;
  bool step(Statement& statement, const CellsToWrite& written) const;
  bool runAndLoad(const std::string& sql, const CellsToWrite& first, const CellsToWrite& second,
                  ResultRows& rows) const;

  SqliteSession& session_;
  const CatalogueTable& table_;
  const LoadedColumns& returned_;
};

}  // namespace quartela::sqlite
