// What stands at a path, before the engine is let near it: looked at without changing anything.
#pragma once

#include <sys/types.h>

#include <QByteArray>
#include <QString>
#include <optional>

namespace quartela::sqlite {

// "QTLA": the mark of this program's databases in the head of the file.
inline constexpr quint32 kApplicationId = 0x51544C41;

// The head of a database file, and places in it: 2 for a file with a write-ahead log, 1 for one
// with a rollback journal; the counter that every save moves on by one.
inline constexpr int kHeadBytes = 100;
inline constexpr int kModeOffset = 18;
inline constexpr char kLogMode = 2;
inline constexpr int kCounterOffset = 24;

// Pass when a file of some kind stands at the path, and when its first bytes are those of a
// database of this program. Error 3024 for a file that does not exist in a folder that does,
// otherwise 3044; the words name the path and what is wrong with it.
void checkPlace(const QString& path);
void checkHead(const QString& path, const QByteArray& head);

// Which file the system has at a path.
struct FileIdentity {
  dev_t device = 0;
  ino_t inode = 0;
  bool operator==(const FileIdentity&) const = default;
};
// Nothing when no file can be found there.
std::optional<FileIdentity> identityOf(const char* path);

// Whether both the file and its folder (where the engine keeps its journal) can be written.
bool canBeWritten(const QString& path);

}  // namespace quartela::sqlite
