// The program's folder: where Config.ini, Set.dat, the pictures and the databases of a delivery
// stand.
#pragma once

#include <QString>

namespace quartela {

// The executable's folder when it can be written; otherwise the user's own data folder, filled from
// the executable's at first use (files that are there already are left alone). No trailing slash.
QString programFolder();

// `name` with either separator in front or none ("\Config.ini") inside the program's folder.
QString programFile(const QString& name);

// A path as an operator or a key file gives it, with either separator, as this system takes it. A
// relative path is taken from the program's folder; the empty text stays empty.
QString nativePath(const QString& path);

// What programFolder() is for an executable in `executables` and a user whose data folder is `own`.
// Only a folder with "Config.ini" is a delivery that `own` is filled from; the program itself is
// not copied. Error 75, 70 or 61 when the filling fails.
QString chooseProgramFolder(const QString& executables, const QString& own);

// Tests put a folder of their own in its place; the empty text gives the real one back.
void setProgramFolder(const QString& folder);

}  // namespace quartela
