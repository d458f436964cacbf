#include "platform/database/engines/sqlite/PrivateCopy.h"

#include <QDir>
#include <QFile>

#include "platform/database/engines/sqlite/Journal.h"
#include "platform/files/AtomicFile.h"
#include "platform/values/RuntimeError.h"

namespace quartela::sqlite {
namespace {

constexpr int kTries = 5;

void copyFile(const QString& from, const QString& to) {
  QFile::remove(to);
  if (!QFile::exists(from)) {
    return;
  }
  QFile source(from);
  if (!source.copy(to)) {
    throw RuntimeError(writeErrorNumber(source.error()), from);
  }
  // The copy is undone where the file itself may only be read.
  QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
}

}  // namespace

CopySource::CopySource(const QString& path) {
  const std::array names{path, journalOf(path), logOf(path)};
  for (std::size_t i = 0; i < names.size(); ++i) {
    struct stat status {};
    if (::stat(QFile::encodeName(names[i]).constData(), &status) == 0) {
      states_[i] = {status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
    }
  }
}

PrivateCopy::PrivateCopy(const QString& path)
    : folder_(QDir::tempPath() + QStringLiteral("/quartela-leitura-XXXXXX")), source_(path) {
  if (!folder_.isValid()) {
    throw RuntimeError(ErrorNumber::PathFileAccess, folder_.errorString());
  }
  for (int i = 0; i < kTries; ++i) {
    copyFile(path, this->path());
    copyFile(journalOf(path), journalOf(this->path()));
    copyFile(logOf(path), logOf(this->path()));
    const CopySource after(path);
    if (after == source_) {
      return;
    }
    source_ = after;
  }
  throw RuntimeError(ErrorNumber::RowLocked);
}

}  // namespace quartela::sqlite
