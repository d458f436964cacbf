// Dates as operators type and read them.
#pragma once

#include <QStringView>
#include <optional>

#include "platform/values/DateTime.h"

namespace quartela {

// "dd/MM/yyyy", with " HH:mm" or " HH:mm:ss" behind it or without; two digits for day and month,
// four for the year; blanks around it. Nothing when the text is anything else or the day does not
// exist.
std::optional<DateTime> dateFromText(QStringView text);

// The moment that a serial number stands for: days since 30 December 1899 and the fraction of a
// day, to the nearest second. Nothing outside of the calendar.
std::optional<DateTime> dateFromSerial(double serial);

}  // namespace quartela
