// Small file systems of a test's own: seen by this process only, and gone when it ends.
#pragma once

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <QString>

namespace quartela::test {

// To be called before any thread is started. False when this machine does not allow it.
inline bool enterPrivateMounts() {
  const uid_t user = ::getuid();
  if (::unshare(CLONE_NEWNS | (user == 0 ? 0 : CLONE_NEWUSER)) != 0) {
    return false;
  }
  if (user != 0) {
    QFile map(QStringLiteral("/proc/self/uid_map"));
    const QByteArray line = "0 " + QByteArray::number(user) + " 1\n";
    if (!map.open(QIODevice::WriteOnly) || map.write(line) != line.size() || !map.flush()) {
      return false;
    }
  }
  return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

// A file system of `bytes` at an existing folder.
inline bool mountSmallDisk(const QString& folder, int bytes) {
  const QByteArray options = "size=" + QByteArray::number(bytes);
  return ::mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", 0, options.constData()) ==
         0;
}

inline bool protectDisk(const QString& folder) {
  return ::mount(nullptr, QFile::encodeName(folder).constData(), nullptr, MS_REMOUNT | MS_RDONLY,
                 nullptr) == 0;
}

inline bool unmountDisk(const QString& folder) {
  return ::umount2(QFile::encodeName(folder).constData(), MNT_DETACH) == 0;
}

}  // namespace quartela::test
