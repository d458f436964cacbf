// A cell as text after one of the system's format texts, always in the Brazilian form whatever the
// machine's own settings are.
//
// Number formats: 0 a digit or zero, # a digit or nothing, "," between digits the thousands groups,
// "." the decimal comma, \x the character x itself, other characters (the "/" among them) as they
// stand, "a;b" a second section for negative numbers. Rounded half away from zero.
// Date formats: d dd, M MM MMMM, yy yyyy (any case), h hh, mm minutes behind an hour, ss; "/" and
// ":" as they stand. Month names are lower case ("março").
//
// Texts are read as Convert reads them. A number format shows a date by its serial number, a date
// format a number as the date of that serial. What rounds to zero has no minus. Null gives the
// empty text. A text that is no number (or no date, for a date format), a bool, and a number
// outside of the calendar come out as Convert::toText gives them. Error 6 for a number that is not
// finite.
#pragma once

#include <QString>
#include <QStringView>

#include "platform/values/Value.h"

namespace quartela {

// The formats of dates and of amounts that the lists, the windows and the papers share.
inline constexpr const char16_t* kDateFormat = u"dd/MM/yyyy";
inline constexpr const char16_t* kAmountFormat = u"#,##0.00";

QString Format(const Value& value, QStringView format);

}  // namespace quartela
