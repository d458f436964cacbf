#include "platform/database/engines/sqlite/Parameters.h"

#include "platform/values/Clock.h"

namespace quartela::sqlite {

void bindParameters(Statement& statement, const EngineStatement& translated) {
  int index = 0;
  for (const Parameter parameter : translated.parameters) {
    ++index;
    switch (parameter) {
      case Parameter::Now:
        statement.bind(index, Clock::now());
        break;
    }
  }
}

}  // namespace quartela::sqlite
