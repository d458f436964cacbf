// A statement on its whole way: what it gives, and its text for the embedded engine.
#pragma once

#include "platform/database/engines/sqlite/Translation.h"

namespace quartela::test {

struct Translated : dialect::Result, sqlite::EngineStatement {
  dialect::StatementKind kind = dialect::StatementKind::Select;
};

inline Translated translate(QStringView statement, const Catalogue& catalogue) {
  const dialect::AnalysedStatement analysed = dialect::analyse(statement, catalogue);
  return {analysed.result, sqlite::translate(analysed), analysed.kind()};
}

}  // namespace quartela::test
