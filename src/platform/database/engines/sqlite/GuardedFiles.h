// The way on which the engine reaches database files: the system's own, with these differences.
//
// - A rollback journal beside a file is only seen when it undoes an interrupted save of that very
//   file; one that was written for another state of it, or that has nothing to undo, is as if it
//   were not there. One of which this cannot be told is kUnknownJournal.
// - A write-ahead log is only seen beside a file whose head says that it has one.
// - A save ends when its journal has lost its name and the folder is on the disk. When the folder
//   cannot be synchronised the journal gets its name back, so that a save that was refused is
//   undone.
// - A lock that cannot be given up is tried again.
#pragma once

#include <sqlite3.h>

#include <QByteArray>

namespace quartela::sqlite {

// An extended code of the engine's SQLITE_CANTOPEN.
inline constexpr int kUnknownJournal = SQLITE_CANTOPEN | (101 << 8);

// The name to be given to sqlite3_open_v2.
const char* guardedFiles();

// The first bytes of the open database file, up to kHeadBytes of FileCheck.h, past the engine's
// cache and locks. (A file that is opened and closed a second time would lose the locks that this
// process has on it.)
QByteArray readHead(sqlite3* db);

// What a journal is called from the end of its save until it is removed.
inline constexpr const char* kEndedSuffix = "-fim";

}  // namespace quartela::sqlite
