// A cell as text after one of the system's format texts, always in the Brazilian form whatever the
// machine's own settings are.
//
// Number formats: 0 a digit or zero, # a digit or nothing, "," between digits the thousands groups,
// "." the decimal comma, \x the character x itself, other characters (the "/" among them) as they
// stand, "a;b" a second section for negative numbers. Rounded half away from zero.
// Date formats: d dd, M MM MMMM, yyyy (any case), h hh, mm minutes behind an hour, ss; "/" and ":"
// as they stand. Month names are lower case ("março").
//
// Null gives the empty text. A text that is no number (or no date, for a date format) comes out
// unchanged.
#pragma once

#include <QString>
#include <QStringView>

#include "platform/values/Value.h"

namespace quartela {

QString Format(const Value& value, QStringView format);

}  // namespace quartela
