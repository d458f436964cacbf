// Section "Escritorio" of Config.ini: the keys with which an office lifts limits of the program
// that a small town never meets. Without the section every limit is in force.
#pragma once

#include <QString>
#include <cstdint>

#include "platform/values/Value.h"

namespace quartela {

// The number of a process, note, sheet or request, as every window and record class reads it: 16
// bits wide, or 32 with "numeros=32". Errors: 13 for no number, 6 for one that is too large.
std::int32_t Le_numero(const Value& numero);

// A search text as it stands between the quotes of a statement. With "aspas=1" its own quotes are
// doubled, so that they are found; without, they end the text, and the statement is refused.
QString Texto_procurado(const QString& texto);

}  // namespace quartela
