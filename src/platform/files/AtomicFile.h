// Writing a file whole or not at all.
#pragma once

#include <QByteArray>
#include <QFileDevice>
#include <QString>

#include "platform/values/RuntimeError.h"

namespace quartela {

// Puts `bytes` in the place of the file at `path`, or makes it there, through a file beside it that
// is renamed when it is complete and on the disk; its permissions stay. On any failure the file is
// as it was, and the error is 76 for a folder that does not exist, 70 where writing is not allowed,
// 61 for a full disk, else 75.
void replaceFile(const QString& path, const QByteArray& bytes);

// The number for what went wrong with a file that was being written.
ErrorNumber writeErrorNumber(QFileDevice::FileError error);

}  // namespace quartela
