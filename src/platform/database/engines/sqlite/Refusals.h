// Which field of which table it is that the engine has refused, in the operator's language: the
// engine tells it in English, for relations not at all.
#pragma once

#include <string>
#include <vector>

#include "platform/database/engines/sqlite/RowWriter.h"
#include "platform/database/engines/sqlite/Translation.h"

namespace quartela::sqlite {

// The errors of a row that a constraint has refused, `code` being the engine's: 3022, 3201, 3314
// and 3317. `cells` are those that were to be written.
[[noreturn]] void raiseRefusedRow(sqlite3* db, int code, const CatalogueTable& table,
                                  const CellsToWrite& cells);

// The error of a DELETE that a relation has refused: 3200, with the table whose rows depend on
// those that were to go.
[[noreturn]] void raiseRefusedDeletion(sqlite3* db, const EngineStatement& deletion,
                                       const QString& table);

bool isConstraint(int code);

// "campo NOME da tabela Executor".
QString namedField(const CatalogueTable& table, const QString& column);

}  // namespace quartela::sqlite
