// The names that can be said in one SELECT.
#pragma once

#include <QStringView>
#include <memory>
#include <span>
#include <vector>

#include "platform/database/dialect/Bound.h"

namespace quartela::dialect {

// A table or query of a FROM under the name that it bears there.
struct Exposure {
  QStringView name;
  Index source = kNone;  // a table or a derived table; or
  // a stored query whose joins were merged with the statement's: what it shows, and the names that
  // can be said inside it.
  std::vector<bound::Output> outputs;
  std::vector<Exposure> inner;
};

using Exposures = std::span<const Exposure>;

struct Found {
  const Exposure* exposure = nullptr;
  int position = -1;  // of the column, or of the query's output
};

// Finds a column: first among what the exposures show; then, one stored query deeper each time,
// among the tables behind them. Errors: 3061 unknown, or more than one at the same depth.
Found findColumn(const bound::Statement& statement, Exposures exposures, QStringView qualifier,
                 QStringView name);

// The exposure of that name, at the least depth; null when there is none.
const Exposure* findExposure(Exposures exposures, QStringView name);

int columnCount(const bound::Statement& statement, const Exposure& exposure);
// The name under which the exposure shows a column.
const QString& columnName(const bound::Statement& statement, const Exposure& exposure,
                          int position);

}  // namespace quartela::dialect
