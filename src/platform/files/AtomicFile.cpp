#include "platform/files/AtomicFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "platform/files/OpenFile.h"

namespace quartela {
namespace {

constexpr mode_t kOfficeRights = 0660;
constexpr mode_t kUsualRights = 0666;
constexpr mode_t kTemporaryRights = 0600;  // what mkostemp gives
const QLatin1String kMark(".gravando-");

[[noreturn]] void fail(ErrorNumber number, const QString& path) {
  throw RuntimeError(number, path);
}

ErrorNumber numberOf(int error) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
      return ErrorNumber::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
      return ErrorNumber::PermissionDenied;
    case ENOENT:
    case ENOTDIR:
      return ErrorNumber::PathNotFound;
    default:
      return ErrorNumber::PathFileAccess;
  }
}

[[noreturn]] void failAs(int error, const QString& path) {
  fail(numberOf(error), path);
}

mode_t usualRights() {
  static const mode_t mask = [] {
    const mode_t now = ::umask(077);
    ::umask(now);
    return now;
  }();
  return kUsualRights & ~mask;
}

// What the path leads to: a file that is to be replaced, or nothing.
std::optional<struct stat> statusOf(const QString& path) {
  struct stat status {};
  if (::stat(QFile::encodeName(path).constData(), &status) == 0) {
    return status;
  }
  if (errno != ENOENT) {
    failAs(errno, path);
  }
  return std::nullopt;
}

void checkPlace(const QString& path, const std::optional<struct stat>& present) {
  if (!present) {
    return;
  }
  if (!S_ISREG(present->st_mode)) {
    fail(ErrorNumber::PathFileAccess, path);
  }
  if (::faccessat(AT_FDCWD, QFile::encodeName(path).constData(), W_OK, AT_EACCESS) != 0) {
    failAs(errno, path);
  }
}

// Whether those of the group may nothing that all others may not.
bool isGroupIdle(mode_t rights) {
  return (((rights >> 3) & ~rights) & 07) == 0;
}

bool hasRights(int file, mode_t rights) {
  struct stat status {};
  return ::fstat(file, &status) == 0 && (status.st_mode & 07777) == rights;
}

// Everybody who could use the old file can use the new one.
void keepRights(int file, const struct stat& old, const QString& path) {
  const mode_t rights = old.st_mode & 07777;
  struct stat fresh {};
  if (::fstat(file, &fresh) != 0) {
    failAs(errno, path);
  }
  const bool isGroupKept = fresh.st_gid == old.st_gid ||
                           ::fchown(file, static_cast<uid_t>(-1), old.st_gid) == 0 ||
                           isGroupIdle(rights);
  // A system without such rights shows the same ones for every file.
  if (!isGroupKept || (::fchmod(file, rights) != 0 && !hasRights(file, rights))) {
    fail(ErrorNumber::PermissionDenied, path);
  }
}

void giveRights(int file, NewFile rights) {
  // Where this fails the file stays its owner's alone.
  static_cast<void>(::fchmod(file, rights == NewFile::Office ? kOfficeRights : usualRights()));
}

bool writeAll(int file, const QByteArray& bytes) {
  qsizetype done = 0;
  while (done < bytes.size()) {
    const ssize_t count =
        ::write(file, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
    if (count < 0 && errno != EINTR) {
      return false;
    }
    done += std::max<ssize_t>(count, 0);
  }
  return true;
}

// A link stays one: what it leads to is written.
QString targetOf(const QString& path) {
  const QString real = QFileInfo(path).canonicalFilePath();
  return real.isEmpty() ? QFileInfo(path).absoluteFilePath() : real;
}

}  // namespace

struct AtomicFile::Place {
  QString path;
  QString folder;
  QByteArray target;
  QByteArray temporary;
  int file = -1;
};

AtomicFile::AtomicFile(const QString& path, NewFile rights) : place_(std::make_unique<Place>()) {
  const QFileInfo target(targetOf(path));
  place_->path = path;
  place_->folder = target.absolutePath();
  if (path.isEmpty() || !QFileInfo(place_->folder).isDir()) {
    fail(ErrorNumber::PathNotFound, path);
  }
  const auto present = statusOf(path);
  checkPlace(path, present);
  place_->target = QFile::encodeName(target.absoluteFilePath());
  place_->temporary = QFile::encodeName(place_->folder + QLatin1String("/.") + target.fileName() +
                                        kMark + QLatin1String("XXXXXX"));
  place_->file = ::mkostemp(place_->temporary.data(), O_CLOEXEC);
  if (place_->file < 0) {
    failAs(errno, path);
  }
  try {
    // Tells those who clear up that this one is in use.
    static_cast<void>(::flock(place_->file, LOCK_EX | LOCK_NB));
    if (present) {
      keepRights(place_->file, *present, path);
    } else {
      giveRights(place_->file, rights);
    }
  } catch (...) {
    ::unlink(place_->temporary.constData());
    ::close(place_->file);
    throw;
  }
}

AtomicFile::~AtomicFile() {
  if (place_->file >= 0) {
    ::unlink(place_->temporary.constData());
    ::close(place_->file);
  }
}

int AtomicFile::descriptor() const {
  return place_->file;
}

void AtomicFile::write(const QByteArray& bytes) {
  if (!writeAll(place_->file, bytes)) {
    failAs(errno, place_->path);
  }
}

void AtomicFile::commit() {
  const FolderToSync folder(place_->folder);
  if (!folder.isReady() || ::fsync(place_->file) != 0 ||
      std::rename(place_->temporary.constData(), place_->target.constData()) != 0) {
    failAs(errno, place_->path);
  }
  // Everything is on the disk: closing can lose nothing any more.
  ::close(place_->file);
  place_->file = -1;
  if (!folder.sync()) {
    fail(ErrorNumber::PathFileAccess, place_->path);
  }
}

void replaceFile(const QString& path, const QByteArray& bytes, NewFile rights) {
  AtomicFile file(path, rights);
  file.write(bytes);
  file.commit();
}

std::optional<QByteArray> readWhole(const QString& path, qint64 most) {
  // A pipe must not keep anybody waiting.
  const OpenFile file(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK);
  if (!file.isOpen()) {
    if (errno == ENOENT) {
      return std::nullopt;
    }
    failAs(errno, path);
  }
  struct stat status {};
  if (::fstat(file.descriptor(), &status) != 0 || !S_ISREG(status.st_mode) ||
      status.st_size > most) {
    fail(ErrorNumber::PathFileAccess, path);
  }
  QByteArray bytes(static_cast<qsizetype>(status.st_size), Qt::Uninitialized);
  qsizetype done = 0;
  while (done < bytes.size()) {
    const ssize_t count = ::read(file.descriptor(), bytes.data() + done,
                                 static_cast<std::size_t>(bytes.size() - done));
    if (count == 0 || (count < 0 && errno != EINTR)) {
      fail(ErrorNumber::PathFileAccess, path);
    }
    done += std::max<ssize_t>(count, 0);
  }
  return bytes;
}

void clearLeftovers(const QString& folder) {
  const QDir place(folder);
  const QStringList names = place.entryList({QLatin1String(".*") + kMark + QLatin1String("??????")},
                                            QDir::Files | QDir::Hidden | QDir::NoSymLinks);
  for (const QString& name : names) {
    const QByteArray path = QFile::encodeName(place.filePath(name));
    const OpenFile file(path.constData(), O_RDWR);
    if (file.isOpen() && ::flock(file.descriptor(), LOCK_EX | LOCK_NB) == 0) {
      ::unlink(path.constData());
    }
  }
}

FolderToSync::FolderToSync(const QString& folder)
    : open_(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY),
      ready_(open_.isOpen() || errno == EACCES) {}

bool FolderToSync::sync() const {
  // Some network systems know no such thing.
  return !open_.isOpen() || ::fsync(open_.descriptor()) == 0 || errno == EINVAL || errno == ENOTSUP;
}

ErrorNumber writeErrorNumber(QFileDevice::FileError error) {
  switch (error) {
    case QFileDevice::PermissionsError:
      return ErrorNumber::PermissionDenied;
    case QFileDevice::ResourceError:
      return ErrorNumber::DiskFull;
    default:
      return ErrorNumber::PathFileAccess;
  }
}

}  // namespace quartela
