// The engine's text of a statement as a Recordset runs it, for the peers that run the same.
#pragma once

#include <string>

#include "platform/database/dialect/CompleteOrder.h"
#include "platform/database/engines/sqlite/Translation.h"

namespace quartela::bench {

inline std::string engineText(const QString& statement, const Catalogue& catalogue) {
  dialect::AnalysedStatement analysed = dialect::analyse(statement, catalogue);
  dialect::completeOrder(analysed.bound);
  return sqlite::translate(analysed).sql;
}

}  // namespace quartela::bench
