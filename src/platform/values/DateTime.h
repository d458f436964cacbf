// A date of the Gregorian calendar with a time of day, to the second, without a time zone.
#pragma once

#include <QString>
#include <QStringView>
#include <compare>
#include <cstdint>
#include <optional>

namespace quartela {

class DateTime {
 public:
  static constexpr std::int32_t kSecondsPerDay = 86'400;

  // 30 December 1899, the day that the serial number 0 stands for.
  constexpr DateTime() = default;

  // Nothing when the day or the time does not exist; years 100 to 9999.
  static std::optional<DateTime> fromParts(int year, int month, int day, int hour = 0,
                                           int minute = 0, int second = 0);
  // As fromParts, but raises error 13.
  static DateTime of(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
  // `days` since 30 December 1899, `seconds` of that day (0 to 86,399); error 6 out of range.
  static DateTime fromSerial(std::int64_t days, std::int32_t seconds = 0);
  // "YYYY-MM-DD HH:MM:SS" or "YYYY-MM-DD", as the database file keeps it.
  static std::optional<DateTime> fromIso(QStringView text);
  static std::optional<DateTime> fromIso(const char* text, int length);

  int year() const;
  int month() const;
  int day() const;
  // 1 Sunday to 7 Saturday.
  int weekday() const;
  int hour() const { return seconds_ / 3600; }
  int minute() const { return seconds_ / 60 % 60; }
  int second() const { return seconds_ % 60; }

  // Days since 30 December 1899, and the seconds of that day.
  std::int32_t days() const { return days_; }
  std::int32_t secondsOfDay() const { return seconds_; }
  bool hasTime() const { return seconds_ != 0; }
  DateTime date() const { return DateTime(days_, 0); }

  // Error 6 when the result leaves the calendar.
  DateTime addDays(std::int64_t days) const;
  // "YYYY-MM-DD HH:MM:SS".
  QString toIso() const;

  friend constexpr auto operator<=>(const DateTime&, const DateTime&) = default;

 private:
  constexpr DateTime(std::int32_t days, std::int32_t seconds) : days_(days), seconds_(seconds) {}
  std::int32_t days_ = 0;
  std::int32_t seconds_ = 0;
};

}  // namespace quartela
