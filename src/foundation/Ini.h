// Access to the key-and-section files of the program.
#pragma once

#include <QString>
#include <vector>

#include "platform/files/KeyFile.h"

namespace quartela {

// One key's value, cut at 255 characters; "" for an absent key, section or file. Raises error 75
// (or 70, 76) for a file that is there and cannot be read. Sections and keys are matched without
// regard to case.
QString Le_ini(const QString& secao, const QString& chave, const QString& arquivo);

// Write keys, creating sections and file as needed, in one rewriting of the file.
// Raise error 75 (or 61, 70, 76) when the file cannot be written; it is then as it was.
void Grava_ini(const QString& secao, const QString& chave, const QString& valor,
               const QString& arquivo);
void Grava_ini(const std::vector<KeyValue>& chaves, const QString& arquivo);

// The same for Config.ini in the program's folder.
QString Le_config(const QString& secao, const QString& chave);
void Grava_config(const QString& secao, const QString& chave, const QString& valor);

}  // namespace quartela
