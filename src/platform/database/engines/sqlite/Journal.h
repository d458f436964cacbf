// The rollback journal that an interrupted save has left beside a database file.
#pragma once

#include <QString>
#include <cstdint>

namespace quartela::sqlite {

enum class JournalKind : std::uint8_t {
  Absent,
  // Nothing of it has reached the database file: it need not, and may not, be played back.
  Idle,
  // It undoes an interrupted save of the file.
  Belongs,
  // It was written for another state of the file, such as the one that a backup has replaced since.
  Foreign,
  // It is there, and cannot be read at the moment.
  Unreadable,
  // It does not hold the first page, which this program's saves write before any other.
  Unknown,
};

// What the journal at `path` is to a database file with that change counter.
JournalKind judgeJournal(const char* path, std::uint32_t changeCounter);

// Names of the files that may stand beside the database file at `path`.
QString journalOf(const QString& path);
QString logOf(const QString& path);

// Puts the file out of the engine's sight, under a name that says so, and gives that name. Error 75
// when it cannot be moved. The caller holds the write lock.
QString setAside(const QString& path);

}  // namespace quartela::sqlite
