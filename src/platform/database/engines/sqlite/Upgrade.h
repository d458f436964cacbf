// Brings a file of an older version of the program forward.
#pragma once

#include <sqlite3.h>

#include "platform/database/SchemaSteps.h"

namespace quartela::sqlite {

// Leaves `db`, open for reading and writing on the file at `path`, at the version of the last step.
// An older file is first copied beside itself ("NAME.versao-1", with a number behind it where that
// is taken); then all missing steps run in one transaction, which is committed only when the file
// passes the engine's check and no relation is broken. Nothing happens with a file of that version
// already, or without steps.
//
// Errors, with the file as it was: 3044 for a file of a newer version, of none, of an older one
// that cannot be written (`writable` false), and for a step that fails, which the words name; 3218
// when another program works with the file; 61 and 75 for a copy that cannot be made.
void bringForward(sqlite3* db, const QString& path, bool writable, const SchemaSteps& steps);

}  // namespace quartela::sqlite
