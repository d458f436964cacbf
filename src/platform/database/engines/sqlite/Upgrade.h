// Brings a file of an older version of the program forward.
#pragma once

#include <sqlite3.h>

#include "platform/database/SchemaSteps.h"

namespace quartela::sqlite {

// Leaves `db`, open for reading and writing on the file at `path`, at the version of the last step;
// true when that took a change. An older file is first copied beside itself ("NAME.versao-1", with
// a number behind it where that is taken); then all missing steps run in one transaction, which is
// committed only when the file passes the engine's check and no relation is broken. Relations are
// enforced afterwards. Nothing happens with a file of that version already, or without steps.
//
// Errors, with the file as it was: 3044 for a file of a newer version, of none, and for a step that
// fails, which the words name; 3218 when another program works with the file; 61 and 75 for a copy
// that cannot be made.
bool bringForward(sqlite3* db, const QString& path, const SchemaSteps& steps);

// Passes when the file is of the version of the last step, or there are no steps: for one that can
// only be read. Error 3044 otherwise.
void requireVersion(sqlite3* db, const QString& path, const SchemaSteps& steps);

}  // namespace quartela::sqlite
