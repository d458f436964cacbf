// The database as the program's first delivery brought it, from the files that were kept of it.
#pragma once

#include <QString>

namespace quartela::test {

// Makes the file at `path`, which must not exist: schema and stored queries of version 1, no rows.
// qFatal when that fails.
void makeFirstDelivery(const QString& path);

}  // namespace quartela::test
