// A copy of a database file for a program that may only read it: what another program's interrupted
// save has left half done is undone in the copy.
#pragma once

#include <sys/stat.h>

#include <QString>
#include <QTemporaryDir>
#include <array>
#include <optional>

namespace quartela::sqlite {

// The state of a file and of what stands beside it: equal as long as nobody writes.
class CopySource {
 public:
  explicit CopySource(const QString& path);
  bool operator==(const CopySource&) const = default;

 private:
  struct State {
    ino_t inode = 0;
    off_t size = -1;
    time_t seconds = 0;
    long nanoseconds = 0;
    bool operator==(const State&) const = default;
  };
  std::array<State, 3> states_;
};

// The file at `path`, with its journal or log, as it was at one moment, in a folder that is gone
// with the object. Error 3218 when other programs write too often for that, 61, 70 or 75 when it
// cannot be copied.
class PrivateCopy {
 public:
  explicit PrivateCopy(const QString& path);

  QString path() const { return folder_.filePath(QStringLiteral("copia.mdb")); }
  const CopySource& source() const { return source_; }

 private:
  QTemporaryDir folder_;
  CopySource source_;
};

}  // namespace quartela::sqlite
