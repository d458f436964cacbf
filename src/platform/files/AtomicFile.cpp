#include "platform/files/AtomicFile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace quartela {
namespace {

[[noreturn]] void fail(ErrorNumber number, const QString& path) {
  throw RuntimeError(number, path);
}

void checkPlace(const QString& path) {
  const QFileInfo file(path);
  if (!QFileInfo(file.absolutePath()).isDir()) {
    fail(ErrorNumber::PathNotFound, path);
  }
  if (!file.exists()) {
    return;
  }
  if (!file.isFile()) {
    fail(ErrorNumber::PathFileAccess, path);
  }
  if (!file.isWritable()) {
    fail(ErrorNumber::PermissionDenied, path);
  }
}

}  // namespace

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

void replaceFile(const QString& path, const QByteArray& bytes) {
  checkPlace(path);
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) {
    const bool isForbidden = !QFileInfo(QFileInfo(path).absolutePath()).isWritable();
    fail(isForbidden ? ErrorNumber::PermissionDenied : writeErrorNumber(file.error()), path);
  }
  const bool isWritten = file.write(bytes) == bytes.size() && file.flush();
  if (!isWritten || !file.commit()) {
    fail(writeErrorNumber(file.error()), path);
  }
}

}  // namespace quartela
