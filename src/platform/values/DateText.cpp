#include "platform/values/DateText.h"

#include <cmath>

#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

// 0 stands for a digit, everything else for itself.
bool hasShape(QStringView text, QStringView shape) {
  if (text.size() != shape.size()) {
    return false;
  }
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool fits = shape[i] == u'0' ? text[i] >= u'0' && text[i] <= u'9' : text[i] == shape[i];
    if (!fits) {
      return false;
    }
  }
  return true;
}

int numberAt(QStringView text, qsizetype position, int count) {
  int value = 0;
  for (qsizetype i = position; i < position + count; ++i) {
    value = value * 10 + (text[i].unicode() - u'0');
  }
  return value;
}

}  // namespace

std::optional<DateTime> dateFromText(QStringView text) {
  const QStringView date = text.trimmed();
  const bool hasSeconds = hasShape(date, u"00/00/0000 00:00:00");
  const bool hasTime = hasSeconds || hasShape(date, u"00/00/0000 00:00");
  if (!hasTime && !hasShape(date, u"00/00/0000")) {
    return std::nullopt;
  }
  return DateTime::fromParts(numberAt(date, 6, 4), numberAt(date, 3, 2), numberAt(date, 0, 2),
                             hasTime ? numberAt(date, 11, 2) : 0,
                             hasTime ? numberAt(date, 14, 2) : 0,
                             hasSeconds ? numberAt(date, 17, 2) : 0);
}

std::optional<DateTime> dateFromSerial(double serial) {
  // Far outside of the calendar, and small enough for the sums below.
  constexpr double kFarAway = 1e8;
  if (!(std::abs(serial) < kFarAway)) {
    return std::nullopt;
  }
  const double whole = std::floor(serial);
  auto days = static_cast<std::int64_t>(whole);
  auto seconds =
      static_cast<std::int32_t>(std::lround((serial - whole) * DateTime::kSecondsPerDay));
  if (seconds == DateTime::kSecondsPerDay) {
    ++days;
    seconds = 0;
  }
  try {
    return DateTime::fromSerial(days, seconds);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

}  // namespace quartela
