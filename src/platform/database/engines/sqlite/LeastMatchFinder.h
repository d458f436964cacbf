// Recognises a SELECT that asks for the least text beginning with some letters.
#pragma once

#include <optional>

#include "platform/database/dialect/Bound.h"
#include "platform/database/engines/sqlite/Translation.h"

namespace quartela::sqlite {

// Null for every other statement.
std::optional<LeastMatch> findLeastMatch(const dialect::bound::Statement& statement);

}  // namespace quartela::sqlite
