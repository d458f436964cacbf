// From rows of the engine to rows of a result.
#pragma once

#include <QString>
#include <vector>

#include "platform/database/engines/Engine.h"
#include "platform/database/engines/sqlite/Statement.h"

namespace quartela::sqlite {

// Adds the row that `statement` stands on. The first columns of the statement are those of
// `columns`. Error 13, naming the column, for a cell that is not of its column's type, as another
// program can have written it; error 6 for a computed one.
void loadRow(const Statement& statement, const LoadedColumns& columns, ResultRows& rows);

}  // namespace quartela::sqlite
