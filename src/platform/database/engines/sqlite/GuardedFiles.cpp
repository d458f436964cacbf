#include "platform/database/engines/sqlite/GuardedFiles.h"

#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <list>
#include <mutex>
#include <string>
#include <string_view>

#include "platform/database/engines/sqlite/Errors.h"
#include "platform/database/engines/sqlite/FileCheck.h"
#include "platform/database/engines/sqlite/Journal.h"
#include "platform/files/AtomicFile.h"

namespace quartela::sqlite {
namespace {

constexpr int kTries = 3;

// A database file that the engine has open; the engine calls it by `methods`, which are the
// system's but for a few.
struct DatabaseFile {
  const char* name;
  sqlite3_file* file;
  const sqlite3_io_methods* system;
  sqlite3_io_methods methods;
};

std::mutex mutex;
// Entries stay where they are: the engine has their methods' addresses.
std::list<DatabaseFile> openFiles;

sqlite3_vfs* systemFiles() {
  static sqlite3_vfs* const files = sqlite3_vfs_find(nullptr);
  return files;
}

const sqlite3_io_methods* systemMethods(const sqlite3_file* file) {
  const std::scoped_lock lock(mutex);
  return std::find_if(openFiles.begin(), openFiles.end(),
                      [file](const DatabaseFile& open) { return open.file == file; })
      ->system;
}

int closeFile(sqlite3_file* file) {
  const sqlite3_io_methods* const system = systemMethods(file);
  file->pMethods = system;
  const int code = system->xClose(file);
  const std::scoped_lock lock(mutex);
  openFiles.remove_if([file](const DatabaseFile& open) { return open.file == file; });
  return code;
}

// On the way to a lock the engine gives another one up; when that fails it forgets the lock that it
// has got.
int lockFile(sqlite3_file* file, int level) {
  const sqlite3_io_methods* const system = systemMethods(file);
  int code = system->xLock(file, level);
  const bool isForgotten = code == SQLITE_IOERR_UNLOCK;
  for (int i = 0; isForgotten && i < kTries && code != SQLITE_OK; ++i) {
    code = system->xLock(file, level);
  }
  return code;
}

// The engine takes a lock that it could not give up for given up: it has to be taken once more
// before it can be. What was saved is saved, whatever becomes of the lock, so the caller is not
// told.
int unlockFile(sqlite3_file* file, int level) {
  const sqlite3_io_methods* const system = systemMethods(file);
  int code = system->xUnlock(file, level);
  for (int i = 0; i < kTries && code != SQLITE_OK; ++i) {
    const bool isHeld =
        level != SQLITE_LOCK_NONE || system->xLock(file, SQLITE_LOCK_SHARED) == SQLITE_OK;
    code = isHeld ? system->xUnlock(file, level) : code;
  }
  return SQLITE_OK;
}

void watch(const char* name, sqlite3_file* file) {
  const std::scoped_lock lock(mutex);
  DatabaseFile& entry = openFiles.emplace_back(name, file, file->pMethods, *file->pMethods);
  entry.methods.xClose = closeFile;
  entry.methods.xLock = lockFile;
  entry.methods.xUnlock = unlockFile;
  file->pMethods = &entry.methods;
}

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
  const int code = systemFiles()->xOpen(systemFiles(), name, file, flags, outFlags);
  if (code == SQLITE_OK && (flags & SQLITE_OPEN_MAIN_DB) != 0 && name != nullptr) {
    watch(name, file);
  }
  return code;
}

// The bytes of a file that is shorter are zeros.
int readBytes(sqlite3_file* file, int offset, void* bytes, int count) {
  const int code = file->pMethods->xRead(file, bytes, count, offset);
  return code == SQLITE_IOERR_SHORT_READ ? SQLITE_OK : code;
}

// Whether the engine is to see the existing journal of that database file.
int seeJournal(sqlite3_file* database, const char* journal, int* exists) {
  std::array<unsigned char, 4> counter{};
  const int code = readBytes(database, kCounterOffset, counter.data(), counter.size());
  if (code != SQLITE_OK) {
    return code;
  }
  const JournalKind kind = judgeJournal(journal, qFromBigEndian<quint32>(counter.data()));
  *exists = kind == JournalKind::Belongs ? 1 : 0;
  if (kind == JournalKind::Unreadable) {
    return SQLITE_IOERR_READ;
  }
  return kind == JournalKind::Unknown ? kUnknownJournal : SQLITE_OK;
}

int seeLog(sqlite3_file* database, int* exists) {
  unsigned char mode = 0;
  const int code = readBytes(database, kModeOffset, &mode, 1);
  *exists = mode == kLogMode ? 1 : 0;
  return code;
}

int accessFile(sqlite3_vfs*, const char* name, int flags, int* result) {
  const int code = systemFiles()->xAccess(systemFiles(), name, flags, result);
  if (code != SQLITE_OK || *result == 0 || flags != SQLITE_ACCESS_EXISTS) {
    return code;
  }
  const std::scoped_lock lock(mutex);
  for (const DatabaseFile& open : openFiles) {
    if (sqlite3_filename_journal(open.name) == name) {
      return seeJournal(open.file, name, result);
    }
    if (sqlite3_filename_wal(open.name) == name) {
      return seeLog(open.file, result);
    }
  }
  return SQLITE_OK;
}

// Without its name a journal undoes nothing: the save would come to be seen although its failure is
// told.
void giveNameBack(const char* ended, const char* journal) {
  int back = std::rename(ended, journal);
  for (int i = 0; i < kTries && back != 0; ++i) {
    back = std::rename(ended, journal);
  }
  if (back != 0) {
    static_cast<void>(!::link(ended, journal));
  }
}

int endSave(const char* journal) {
  const FolderToSync folder(QFileInfo(QFile::decodeName(journal)).path());
  const std::string ended = std::string(journal) + kEndedSuffix;
  if (!folder.isReady()) {
    return SQLITE_IOERR_DIR_FSYNC;
  }
  if (std::rename(journal, ended.c_str()) != 0) {
    return errno == ENOENT ? SQLITE_IOERR_DELETE_NOENT : SQLITE_IOERR_DELETE;
  }
  if (!folder.sync()) {
    giveNameBack(ended.c_str(), journal);
    return SQLITE_IOERR_DIR_FSYNC;
  }
  // What is left of it has no effect and is cleared at the next opening.
  ::unlink(ended.c_str());
  return SQLITE_OK;
}

int deleteFile(sqlite3_vfs*, const char* name, int syncFolderToo) {
  const bool endsSave = syncFolderToo != 0 && std::string_view(name).ends_with("-journal");
  return endsSave ? endSave(name) : systemFiles()->xDelete(systemFiles(), name, syncFolderToo);
}

}  // namespace

const char* guardedFiles() {
  static sqlite3_vfs* const guarded = [] {
    static sqlite3_vfs files = *systemFiles();
    files.zName = "quartela";
    files.pNext = nullptr;
    files.xOpen = openFile;
    files.xAccess = accessFile;
    files.xDelete = deleteFile;
    sqlite3_vfs_register(&files, 0);
    return &files;
  }();
  return guarded->zName;
}

QByteArray readHead(sqlite3* db) {
  sqlite3_file* file = nullptr;
  check(db, sqlite3_file_control(db, "main", SQLITE_FCNTL_FILE_POINTER, &file), Activity::Opening);
  sqlite3_int64 size = 0;
  check(db, file->pMethods->xFileSize(file, &size), Activity::Opening);
  QByteArray bytes(static_cast<qsizetype>(std::min<sqlite3_int64>(size, kHeadBytes)), '\0');
  if (!bytes.isEmpty()) {
    check(db, readBytes(file, 0, bytes.data(), static_cast<int>(bytes.size())), Activity::Opening);
  }
  return bytes;
}

}  // namespace quartela::sqlite
