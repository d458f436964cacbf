#include "platform/database/engines/sqlite/Parameters.h"

#include "platform/values/Clock.h"

namespace quartela::sqlite {

void bindParameters(Statement& statement, const dialect::EngineStatement& translated) {
  int index = 0;
  for (const dialect::Parameter parameter : translated.parameters) {
    ++index;
    switch (parameter) {
      case dialect::Parameter::Now:
        statement.bind(index, Clock::now());
        break;
    }
  }
}

}  // namespace quartela::sqlite
