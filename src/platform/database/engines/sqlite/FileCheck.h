// What stands at a path, before the engine is let near it: looked at without changing anything.
#pragma once

#include <QString>

namespace quartela::sqlite {

// "QTLA": the mark of this program's databases in the head of the file.
inline constexpr quint32 kApplicationId = 0x51544C41;

// Passes when the file looks like a database of this program. Error 3024 for a file that does not
// exist in a folder that does, otherwise 3044; the words name the path and what is wrong with it.
void checkFile(const QString& path);

// Whether both the file and its folder (where the engine keeps its journal) can be written.
bool canBeWritten(const QString& path);

}  // namespace quartela::sqlite
