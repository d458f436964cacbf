// Access to the key-and-section files of the program.
#pragma once

#include <QString>

namespace quartela {

// One key's value, cut at 255 characters; "" for an absent key, section or file, or one that cannot
// be read. Sections and keys are matched without regard to case.
QString Le_ini(const QString& secao, const QString& chave, const QString& arquivo);

// Writes one key, creating section and file as needed. Raises error 75 (or 61, 70, 76) when the
// file cannot be written; the file is then as it was.
void Grava_ini(const QString& secao, const QString& chave, const QString& valor,
               const QString& arquivo);

}  // namespace quartela
