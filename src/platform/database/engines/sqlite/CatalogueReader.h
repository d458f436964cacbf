// What the file holds, read from the engine's own schema.
#pragma once

#include <sqlite3.h>

#include "platform/database/dialect/Catalogue.h"

namespace quartela::sqlite {

// All tables but the one of the stored queries, and the stored queries. A declared type gives the
// type of the values: SMALLINT, INTEGER, MONEY, DATETIME, BOOLEAN, DOUBLE, any other one is text.
// Error 3044 when the table of the stored queries is missing.
Catalogue readCatalogue(sqlite3* db);

}  // namespace quartela::sqlite
