// What the engine computes in another way than the program. Offered to it as
//   divisor(number)   the number; error 11 when it is zero.
//   whole(number)     the whole number of 32 bits, fractions rounded half to even; error 6 beyond.
//   moment(seconds)   the moment so many seconds from 1970 on as ISO text; error 6 outside of the
//                     calendar.
// Null for a null.
#pragma once

#include <sqlite3.h>

namespace quartela::sqlite {

// The engine's message when a statement has failed by a division by zero; any other number that
// cannot be computed is an overflow.
inline constexpr const char* kDivisionByZero = "division by zero";

// Gives them to a connection; the result code of the engine.
int registerArithmetic(sqlite3* db);

}  // namespace quartela::sqlite
