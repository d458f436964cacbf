// Writing a file whole or not at all, and reading one whole or knowing that there is none.
#pragma once

#include <QByteArray>
#include <QFileDevice>
#include <QString>
#include <memory>
#include <optional>

#include "platform/files/OpenFile.h"
#include "platform/values/RuntimeError.h"

namespace quartela {

// Who may read a file that was not there before. One that is replaced keeps its rights and group.
enum class NewFile : std::uint8_t {
  // Whom the system lets by default.
  Usual,
  // Owner and group alone.
  Office,
};

// A file that takes its path's place when it is complete and on the disk. Until commit() it stands
// beside it under a name of its own, and is gone with the object. Errors: 76 for a folder that does
// not exist, 70 where writing is not allowed or the file's rights cannot be kept, 61 for a full
// disk, else 75.
class AtomicFile {
 public:
  explicit AtomicFile(const QString& path, NewFile rights = NewFile::Usual);
  ~AtomicFile();
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;

  // Open for writing; owned by this object.
  int descriptor() const;
  void write(const QByteArray& bytes);
  // The path leads to the new file, and does so after a power cut.
  void commit();

 private:
  struct Place;
  std::unique_ptr<Place> place_;
};

// Puts `bytes` in the place of the file at `path`, or makes it there.
void replaceFile(const QString& path, const QByteArray& bytes, NewFile rights = NewFile::Usual);

// The bytes of the file at `path`; nothing when there is none. What is there and cannot be read to
// its end, is no ordinary file or has more than `most` bytes is error 75, or 70 where reading is
// not allowed.
std::optional<QByteArray> readWhole(const QString& path, qint64 most);

// Removes what a program that was killed has left of an AtomicFile in the folder. Files that are
// being written at the moment stay.
void clearLeftovers(const QString& folder);

// The folder whose files gain or lose names: opened before they do, so that there is nothing left
// to fail but the synchronising itself.
class FolderToSync {
 public:
  explicit FolderToSync(const QString& folder);
  // False when the folder cannot be opened. One that may be written but not read can be
  // synchronised by nobody, and need not.
  bool isReady() const { return ready_; }
  // The names are on the disk. False when that failed.
  bool sync() const;

 private:
  OpenFile open_;
  bool ready_;
};

// The number for what went wrong with a file that was being written.
ErrorNumber writeErrorNumber(QFileDevice::FileError error);

}  // namespace quartela
