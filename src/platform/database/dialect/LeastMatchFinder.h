// Recognises a SELECT that asks for the least text beginning with some letters.
#pragma once

#include <optional>

#include "platform/database/dialect/Bound.h"
#include "platform/database/dialect/Dialect.h"

namespace quartela::dialect {

// Null for every other statement.
std::optional<LeastMatch> findLeastMatch(const bound::Statement& statement);

}  // namespace quartela::dialect
