// An order for the rows that a SELECT leaves open, so that they come alike each time and from any
// engine.
#pragma once

#include "platform/database/dialect/Bound.h"

namespace quartela::dialect {

// Rows that the statement's own order leaves together come by the keys of its tables, in the order
// of its FROM; a table whose row another's tells (joined by its key) adds nothing. Groups come by
// what they are grouped by, distinct rows by their columns.
void completeOrder(bound::Statement& statement);

}  // namespace quartela::dialect
