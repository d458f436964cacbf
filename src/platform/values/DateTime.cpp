#include "platform/values/DateTime.h"

#include <chrono>

#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;
constexpr int kDateLength = 10;
constexpr int kDateTimeLength = 19;
constexpr sys_days kEpoch{std::chrono::year{1899} / 12 / 30};

year_month_day calendarDay(std::int32_t days) {
  return year_month_day{kEpoch + std::chrono::days{days}};
}

std::int64_t serialOf(int year, int month, int day) {
  const auto date = std::chrono::year{year} / month / day;
  return (sys_days{date} - kEpoch).count();
}

bool isTimeOfDay(int hour, int minute, int second) {
  return hour >= 0 && hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 60;
}

// The value of `count` digits from `position` on, or -1 where one of them is none.
template <typename Character>
int digitsAt(const Character* text, int position, int count) {
  int value = 0;
  for (int i = position; i < position + count; ++i) {
    const unsigned digit = static_cast<unsigned>(text[i]) - '0';
    if (digit > 9) {
      return -1;
    }
    value = value * 10 + static_cast<int>(digit);
  }
  return value;
}

template <typename Character>
std::optional<DateTime> parseIso(const Character* text, qsizetype length) {
  if (length != kDateLength && length != kDateTimeLength) {
    return std::nullopt;
  }
  if (text[4] != '-' || text[7] != '-') {
    return std::nullopt;
  }
  const int year = digitsAt(text, 0, 4);
  const int month = digitsAt(text, 5, 2);
  const int day = digitsAt(text, 8, 2);
  if (length == kDateLength) {
    return DateTime::fromParts(year, month, day);
  }
  if (text[10] != ' ' || text[13] != ':' || text[16] != ':') {
    return std::nullopt;
  }
  return DateTime::fromParts(year, month, day, digitsAt(text, 11, 2), digitsAt(text, 14, 2),
                             digitsAt(text, 17, 2));
}

}  // namespace

std::optional<DateTime> DateTime::fromParts(int year, int month, int day, int hour, int minute,
                                            int second) {
  if (year < kFirstYear || year > kLastYear || month < 1 || day < 1 ||
      !isTimeOfDay(hour, minute, second)) {
    return std::nullopt;
  }
  const year_month_day date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                            std::chrono::day{static_cast<unsigned>(day)}};
  if (!date.ok()) {
    return std::nullopt;
  }
  const auto days = (sys_days{date} - kEpoch).count();
  return DateTime(static_cast<std::int32_t>(days), (hour * 60 + minute) * 60 + second);
}

DateTime DateTime::of(int year, int month, int day, int hour, int minute, int second) {
  const auto value = fromParts(year, month, day, hour, minute, second);
  if (!value) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  return *value;
}

DateTime DateTime::fromSerial(std::int64_t days, std::int32_t seconds) {
  static const std::int64_t first = serialOf(kFirstYear, 1, 1);
  static const std::int64_t last = serialOf(kLastYear, 12, 31);
  if (days < first || days > last || seconds < 0 || seconds >= kSecondsPerDay) {
    throw RuntimeError(ErrorNumber::Overflow);
  }
  return DateTime(static_cast<std::int32_t>(days), seconds);
}

std::optional<DateTime> DateTime::fromIso(QStringView text) {
  return parseIso(text.utf16(), text.size());
}

std::optional<DateTime> DateTime::fromIso(const char* text, int length) {
  return parseIso(text, length);
}

int DateTime::year() const {
  return static_cast<int>(calendarDay(days_).year());
}

int DateTime::month() const {
  return static_cast<int>(static_cast<unsigned>(calendarDay(days_).month()));
}

int DateTime::day() const {
  return static_cast<int>(static_cast<unsigned>(calendarDay(days_).day()));
}

int DateTime::weekday() const {
  const std::chrono::weekday weekday{kEpoch + std::chrono::days{days_}};
  return static_cast<int>(weekday.c_encoding()) + 1;
}

DateTime DateTime::addDays(std::int64_t days) const {
  std::int64_t sum = 0;
  if (__builtin_add_overflow(static_cast<std::int64_t>(days_), days, &sum)) {
    throw RuntimeError(ErrorNumber::Overflow);
  }
  return fromSerial(sum, seconds_);
}

QString DateTime::toIso() const {
  return QString::asprintf("%04d-%02d-%02d %02d:%02d:%02d", year(), month(), day(), hour(),
                           minute(), second());
}

}  // namespace quartela
