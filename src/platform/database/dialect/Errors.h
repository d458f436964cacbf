// The errors that a statement can raise, with the place or the name in the detail.
#pragma once

#include <QStringView>

#include "platform/values/RuntimeError.h"

namespace quartela::dialect {

// 3075; `position` counts the characters of the statement from 0 and is told from 1.
[[noreturn]] void syntaxError(qsizetype position, const char* detail);
// 3075 for what is wrong with the statement as a whole.
[[noreturn]] void syntaxError(const char* detail);
[[noreturn]] void tooComplex();
// 3061
[[noreturn]] void unknownName(QStringView qualifier, QStringView name);
[[noreturn]] void ambiguousName(QStringView qualifier, QStringView name);
// 3078
[[noreturn]] void unknownTable(QStringView name);
// 3464
[[noreturn]] void operandMismatch();
// 3065
[[noreturn]] void invalidStatement(QStringView word);

}  // namespace quartela::dialect
