// From rows of the engine to rows of a result.
#pragma once

#include <QString>
#include <vector>

#include "platform/database/ResultRows.h"
#include "platform/database/engines/sqlite/Statement.h"

namespace quartela::sqlite {

// A column as the loader takes it; the name is for the error's words.
struct LoadedColumn {
  QString name;
  ValueType type = ValueType::Text;
  bool computed = false;
};

// Adds the row that `statement` stands on. The first columns of the statement are those of
// `columns`. Error 13, naming the column, for a cell that is not of its column's type, as another
// program can have written it; error 6 for a computed one.
void loadRow(const Statement& statement, const std::vector<LoadedColumn>& columns,
             ResultRows& rows);

}  // namespace quartela::sqlite
