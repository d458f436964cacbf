// The values that stand behind a translated statement's placeholders at the moment it runs.
#pragma once

#include "platform/database/engines/sqlite/Statement.h"
#include "platform/database/engines/sqlite/Translation.h"

namespace quartela::sqlite {

void bindParameters(Statement& statement, const EngineStatement& translated);

}  // namespace quartela::sqlite
