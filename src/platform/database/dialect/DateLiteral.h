// What stands between the number signs of a date: "yyyy/mm/dd" ("-" does too), with an optional
// time "hh:mm" or "hh:mm:ss".
#pragma once

#include <QStringView>
#include <optional>

#include "platform/values/DateTime.h"

namespace quartela::dialect {

// Nothing when it is malformed, or no day of the calendar.
std::optional<DateTime> readDate(QStringView text);

}  // namespace quartela::dialect
