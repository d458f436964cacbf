#include "tests/support/FirstDelivery.h"

#include <sqlite3.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <memory>

#include "tests/support/Files.h"
#include "tests/support/Folders.h"

namespace quartela::test {
namespace {

struct CloseDatabase {
  void operator()(sqlite3* database) const { sqlite3_close(database); }
};

void run(sqlite3* database, const QByteArray& sql) {
  if (sqlite3_exec(database, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    qFatal("%s: %s", sql.constData(), sqlite3_errmsg(database));
  }
}

QByteArray quoted(QByteArray text) {
  return "'" + text.replace("'", "''") + "'";
}

}  // namespace

void makeFirstDelivery(const QString& path) {
  const QDir folder(inSource(QStringLiteral("tests/database/versions/1")));
  sqlite3* opened = nullptr;
  const int code = sqlite3_open(path.toUtf8().constData(), &opened);
  const std::unique_ptr<sqlite3, CloseDatabase> database(opened);
  if (code != SQLITE_OK) {
    qFatal("%s cannot be made", qPrintable(path));
  }
  run(opened, contentOf(folder.filePath(QStringLiteral("schema.sql"))));
  const QDir queries(folder.filePath(QStringLiteral("stored-queries")));
  for (const QFileInfo& query : queries.entryInfoList({QStringLiteral("*.sql")})) {
    run(opened, "INSERT INTO Consultas VALUES (" + quoted(query.baseName().toUtf8()) + ", " +
                    quoted(contentOf(query.filePath())) + ")");
  }
}

}  // namespace quartela::test
