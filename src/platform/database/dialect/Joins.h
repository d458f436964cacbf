// Brings nested joins into the order in which engines plan them best: one flat list, each source
// after those that its condition names, groups only where an outer join needs them.
#pragma once

#include "platform/database/dialect/Bound.h"

namespace quartela::dialect {

bound::Joins singleJoin(Index source);

// All rows of `left` with all of `right` that hold `on` (kNone: all).
bound::Joins innerJoin(bound::Joins left, bound::Joins right, Index on);

// All rows of `kept`, with those of `optional` that hold `on`.
bound::Joins outerJoin(bound::Joins kept, bound::Joins optional, Index on);

}  // namespace quartela::dialect
