// The one strict way from text, and from other cells, to values. Used by every field and every
// column, so that nothing typed is ever read as something else.
//
// Text is read in the Brazilian form: decimal comma; the thousands dot only in proper groups of
// three ("1.234,50", not "12.50"); dates "dd/MM/yyyy" that exist in the calendar, with an optional
// time " HH:mm" or " HH:mm:ss". Blanks around the text are passed over. A number may have a sign in
// front, and no digits on one side of its comma (",50", "5,"); one with dots does not begin with 0.
//
// A date counts as the number of its days since 30 December 1899, with the fraction of the day;
// True counts as -1.
//
// Errors: 13 for a text that is empty or malformed and for a null, 6 for a number out of range.
#pragma once

#include <QString>
#include <QStringView>
#include <cstdint>

#include "platform/values/Value.h"

namespace quartela::Convert {

// Fractions are rounded half to even, as the 16- and 32-bit conversions of the office's field do.
std::int16_t toI16(const Value& value);
std::int32_t toI32(const Value& value);
// More than four decimals are rounded half to even to the fourth.
Money toMoney(const Value& value);
double toNumber(const Value& value);
DateTime toDateTime(const Value& value);
// True for any number but 0; the texts "Verdadeiro", "Falso", "True", "False" in any case.
bool toBool(const Value& value);

// The cell joined to an empty text: null gives "", numbers their shortest decimal form with a
// comma, dates "dd/MM/yyyy" with " HH:mm:ss" behind it when they have a time, bools
// "Verdadeiro"/"Falso".
QString toText(const Value& value);

// The cell as the type of a column; null stays null, anything becomes text for a text column.
Value toType(const Value& value, ValueType type);

// Whether the text is a number in the Brazilian form, or a date; never raises.
bool isNumeric(QStringView text);
bool isDate(QStringView text);

}  // namespace quartela::Convert
