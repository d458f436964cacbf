#include "platform/database/engines/sqlite/FileCheck.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <filesystem>

#include "platform/values/RuntimeError.h"

namespace quartela::sqlite {
namespace {

constexpr int kApplicationIdOffset = 68;
constexpr int kAccessMarkOffset = 4;

[[noreturn]] void refuse(const QString& words) {
  throw RuntimeError::withDescription(ErrorNumber::InvalidPath, words);
}

[[noreturn]] void refuseMissing(const QString& path) {
  const QString folder = QFileInfo(path).absolutePath();
  if (!QFileInfo(folder).isDir()) {
    refuse(QStringLiteral("A pasta do banco de dados não existe: \"%1\".")
               .arg(QDir::toNativeSeparators(folder)));
  }
  throw RuntimeError::withDescription(
      ErrorNumber::DatabaseNotFound,
      QStringLiteral("O arquivo do banco de dados não foi encontrado: \"%1\".").arg(path));
}

void checkPath(const QString& path) {
  if (path.isEmpty()) {
    refuse(QStringLiteral("O caminho do banco de dados está vazio."));
  }
  if (path.contains(QChar(QChar::Null))) {
    refuse(QStringLiteral("O caminho do banco de dados não é válido: \"%1\".")
               .arg(QString(path).replace(QChar(QChar::Null), QLatin1Char('?'))));
  }
}

void checkKind(const QString& path) {
  std::error_code failure;
  const auto status = std::filesystem::status(QFile::encodeName(path).toStdString(), failure);
  switch (status.type()) {
    case std::filesystem::file_type::regular:
      return;
    case std::filesystem::file_type::not_found:
      refuseMissing(path);
    case std::filesystem::file_type::directory:
      refuse(QStringLiteral("\"%1\" é uma pasta, não um arquivo de banco de dados.").arg(path));
    case std::filesystem::file_type::none:
      refuse(failure == std::errc::permission_denied
                 ? QStringLiteral("Sem permissão para chegar ao arquivo \"%1\".").arg(path)
                 : QStringLiteral("O caminho do banco de dados não é válido: \"%1\".").arg(path));
    default:
      refuse(QStringLiteral("\"%1\" não é um arquivo comum.").arg(path));
  }
}

void checkReadable(const QString& path) {
  if (::faccessat(AT_FDCWD, QFile::encodeName(path).constData(), R_OK, AT_EACCESS) != 0) {
    refuse(QStringLiteral("O arquivo \"%1\" não pode ser lido. Confira as permissões.").arg(path));
  }
}

bool isAccess(const QByteArray& head) {
  const QByteArray mark = head.mid(kAccessMarkOffset);
  return mark.startsWith("Standard Jet DB") || mark.startsWith("Standard ACE DB");
}

bool isSqlite(const QByteArray& head) {
  return head.size() == kHeadBytes && head.startsWith(QByteArray("SQLite format 3\0", 16));
}

// The effective user counts, as it does when the engine opens.
bool isWritable(const QString& path) {
  return ::faccessat(AT_FDCWD, QFile::encodeName(path).constData(), W_OK, AT_EACCESS) == 0;
}

}  // namespace

void checkPlace(const QString& path) {
  checkPath(path);
  checkKind(path);
  checkReadable(path);
}

void checkHead(const QString& path, const QByteArray& head) {
  if (head.isEmpty()) {
    refuse(QStringLiteral("O arquivo \"%1\" está vazio.").arg(path));
  }
  if (isAccess(head)) {
    refuse(QStringLiteral("O arquivo \"%1\" é um banco de dados Access. O Quartela não o abre; "
                          "escolha um banco de dados do Quartela.")
               .arg(path));
  }
  if (!isSqlite(head)) {
    refuse(QStringLiteral("O arquivo \"%1\" não é um banco de dados.").arg(path));
  }
  if (qFromBigEndian<quint32>(head.constData() + kApplicationIdOffset) != kApplicationId) {
    refuse(QStringLiteral("O arquivo \"%1\" é um banco de dados de outro programa.").arg(path));
  }
}

std::optional<FileIdentity> identityOf(const char* path) {
  struct stat status {};
  if (::stat(path, &status) != 0) {
    return std::nullopt;
  }
  return FileIdentity{status.st_dev, status.st_ino};
}

bool canBeWritten(const QString& path) {
  return isWritable(path) && isWritable(QFileInfo(path).absolutePath());
}

}  // namespace quartela::sqlite
