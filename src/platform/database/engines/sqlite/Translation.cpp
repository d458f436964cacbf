#include "platform/database/engines/sqlite/Translation.h"

#include "platform/database/engines/sqlite/LeastMatchFinder.h"
#include "platform/database/engines/sqlite/Renderer.h"

namespace quartela::sqlite {

EngineStatement translate(const dialect::AnalysedStatement& statement) {
  EngineStatement engine;
  engine.sql = Renderer(statement.bound).render(engine.parameters);
  if (statement.kind() == dialect::StatementKind::Select) {
    engine.leastMatch = findLeastMatch(statement.bound);
  }
  return engine;
}

}  // namespace quartela::sqlite
