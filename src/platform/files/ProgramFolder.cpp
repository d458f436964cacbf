#include "platform/files/ProgramFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform/files/AtomicFile.h"

namespace quartela {
namespace {

// Empty until it is known.
QString& folderInForce() {
  static QString folder;
  return folder;
}

void makeFolder(const QString& folder) {
  if (!QDir().mkpath(folder)) {
    throw RuntimeError(ErrorNumber::PathFileAccess, folder);
  }
}

void copyFile(const QString& from, const QString& to) {
  QFile source(from);
  if (!source.open(QIODevice::ReadOnly)) {
    throw RuntimeError(ErrorNumber::PathFileAccess, from);
  }
  const QByteArray bytes = source.readAll();
  if (source.error() != QFileDevice::NoError) {
    throw RuntimeError(ErrorNumber::PathFileAccess, from);
  }
  replaceFile(to, bytes);
}

// The program itself stays where it is. A folder without settings is no delivery (the program may
// stand among those of the whole system), so there is nothing to take along.
void fill(const QString& folder, const QString& from) {
  makeFolder(folder);
  if (!QFileInfo::exists(from + QStringLiteral("/Config.ini"))) {
    return;
  }
  const QDir source(from);
  QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString file = files.next();
    const QString copy = folder + QLatin1Char('/') + source.relativeFilePath(file);
    const bool isProgram = file == QCoreApplication::applicationFilePath();
    if (!isProgram && !QFileInfo::exists(copy)) {
      makeFolder(QFileInfo(copy).absolutePath());
      copyFile(file, copy);
    }
  }
}

QString withSlashes(const QString& path) {
  QString result = path;
  return result.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

}  // namespace

QString chooseProgramFolder(const QString& executables, const QString& own) {
  if (QFileInfo(executables).isWritable()) {
    return executables;
  }
  fill(own, executables);
  return own;
}

QString programFolder() {
  QString& folder = folderInForce();
  if (folder.isEmpty()) {
    folder = chooseProgramFolder(QCoreApplication::applicationDirPath(),
                                 QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
  }
  return folder;
}

QString programFile(const QString& name) {
  return QDir::cleanPath(programFolder() + QLatin1Char('/') + withSlashes(name));
}

QString nativePath(const QString& path) {
  if (path.isEmpty()) {
    return {};
  }
  const QString slashed = withSlashes(path);
  return QDir::isAbsolutePath(slashed) ? QDir::cleanPath(slashed) : programFile(slashed);
}

void setProgramFolder(const QString& folder) {
  folderInForce() = folder.isEmpty() ? QString() : QDir::cleanPath(withSlashes(folder));
}

}  // namespace quartela
