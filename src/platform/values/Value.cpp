#include "platform/values/Value.h"

#include "platform/values/RuntimeError.h"

namespace quartela {

void Value::typeMismatch() {
  throw RuntimeError(ErrorNumber::TypeMismatch);
}

}  // namespace quartela
