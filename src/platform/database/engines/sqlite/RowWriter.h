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

struct CellToWrite {
  QString column;
  Value value;
};

class RowWriter {
 public:
  // `returned` are the columns of the row that is given back after the writing; an empty name is a
  // column that the table does not have, and comes back null. All must outlive the writer.
  RowWriter(SqliteSession& session, const CatalogueTable& table,
            const std::vector<LoadedColumn>& returned);

  // Both add the row as it then stands to `rows`. Errors: 3314 naming the column, before the engine
  // is asked; what the engine refuses; 3167 when there is no row of that key.
  void insert(const std::vector<CellToWrite>& cells, ResultRows& rows) const;
  void change(const std::vector<CellToWrite>& key, const std::vector<CellToWrite>& cells,
              ResultRows& rows) const;

  // Whether there is a row of that key.
  bool exists(const std::vector<CellToWrite>& key) const;

 private:
  void requireCells(const std::vector<CellToWrite>& cells) const;
  void refuseNulls(const std::vector<CellToWrite>& cells) const;
  bool hasDefault(const CatalogueColumn& column) const;
  std::string returning() const;
  bool step(Statement& statement, const std::vector<CellToWrite>& written) const;
  bool runAndLoad(const std::string& sql, const std::vector<CellToWrite>& first,
                  const std::vector<CellToWrite>& second, ResultRows& rows) const;

  SqliteSession& session_;
  const CatalogueTable& table_;
  const std::vector<LoadedColumn>& returned_;
};

}  // namespace quartela::sqlite
