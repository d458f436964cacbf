#include "platform/database/engines/sqlite/Arithmetic.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

#include "platform/values/DateTime.h"
#include "platform/values/RuntimeError.h"

namespace quartela::sqlite {
namespace {

constexpr std::int64_t kSecondsPerDay = 86'400;

bool isNull(sqlite3_value* value) {
  return sqlite3_value_type(value) == SQLITE_NULL;
}

void overflow(sqlite3_context* context) {
  sqlite3_result_error(context, "overflow", -1);
}

void divisor(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (!isNull(arguments[0]) && sqlite3_value_double(arguments[0]) == 0) {
    sqlite3_result_error(context, kDivisionByZero, -1);
    return;
  }
  sqlite3_result_value(context, arguments[0]);
}

void whole(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (isNull(arguments[0])) {
    return;
  }
  const double rounded = std::nearbyint(sqlite3_value_double(arguments[0]));
  if (rounded < std::numeric_limits<std::int32_t>::min() ||
      rounded > std::numeric_limits<std::int32_t>::max()) {
    overflow(context);
    return;
  }
  sqlite3_result_int(context, static_cast<int>(rounded));
}

void moment(sqlite3_context* context, int, sqlite3_value** arguments) {
  static const std::int64_t kEpoch = DateTime::of(1970, 1, 1).days();
  if (isNull(arguments[0])) {
    return;
  }
  const std::int64_t seconds = sqlite3_value_int64(arguments[0]);
  const std::int64_t days = (seconds < 0 ? seconds - kSecondsPerDay + 1 : seconds) / kSecondsPerDay;
  try {
    const auto rest = static_cast<std::int32_t>(seconds - days * kSecondsPerDay);
    const QByteArray iso = DateTime::fromSerial(kEpoch + days, rest).toIso().toLatin1();
    sqlite3_result_text(context, iso.constData(), static_cast<int>(iso.size()), SQLITE_TRANSIENT);
  } catch (const RuntimeError&) {
    overflow(context);
  }
}

}  // namespace

int registerArithmetic(sqlite3* db) {
  struct Function {
    const char* name;
    void (*compute)(sqlite3_context*, int, sqlite3_value**);
  };
  constexpr std::array kFunctions{Function{"divisor", divisor}, Function{"whole", whole},
                                  Function{"moment", moment}};
  for (const Function& function : kFunctions) {
    const int code =
        sqlite3_create_function_v2(db, function.name, 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                   nullptr, function.compute, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) {
      return code;
    }
  }
  return SQLITE_OK;
}

}  // namespace quartela::sqlite
