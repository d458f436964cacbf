// The values that stand behind a translated statement's placeholders at the moment it runs.
#pragma once

#include "platform/database/dialect/Dialect.h"
#include "platform/database/engines/sqlite/Statement.h"

namespace quartela::sqlite {

void bindParameters(Statement& statement, const dialect::EngineStatement& translated);

}  // namespace quartela::sqlite
