#include "tests/database/PlainDatabase.h"

#include <sqlite3.h>

#include <QCryptographicHash>

namespace quartela::test {

namespace {

QString cell(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
      return kNull;
    case SQLITE_INTEGER:
      return QString::number(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
      return QString::number(sqlite3_column_double(statement, column), 'g', 17);
    default: {
      const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
      return QString::fromUtf8(bytes, sqlite3_column_bytes(statement, column));
    }
  }
}

void readHead(sqlite3_stmt* statement, PlainRows& result) {
  for (int column = 0; column < sqlite3_column_count(statement); ++column) {
    result.names << QString::fromUtf8(sqlite3_column_name(statement, column));
    result.types << QString::fromUtf8(sqlite3_column_decltype(statement, column));
  }
}

QStringList readRow(sqlite3_stmt* statement) {
  QStringList row;
  for (int column = 0; column < sqlite3_column_count(statement); ++column) {
    row << cell(statement, column);
  }
  return row;
}

}  // namespace

PlainDatabase::PlainDatabase(const QString& path) {
  if (sqlite3_open_v2(path.toUtf8().constData(), &database_, SQLITE_OPEN_READWRITE, nullptr) !=
          SQLITE_OK ||
      // These files die with the test: no wait on the disk.
      run("PRAGMA foreign_keys = ON; PRAGMA synchronous = OFF") != SQLITE_OK) {
    qFatal("cannot open %s", qUtf8Printable(path));
  }
}

PlainDatabase::~PlainDatabase() {
  sqlite3_close_v2(database_);
}

int PlainDatabase::run(const QByteArray& sql) {
  return runExtended(sql) & 0xFF;
}

int PlainDatabase::runExtended(const QByteArray& sql) {
  sqlite3_exec(database_, sql.constData(), nullptr, nullptr, nullptr);
  return sqlite3_extended_errcode(database_);
}

PlainRows PlainDatabase::query(const QByteArray& sql) {
  sqlite3_stmt* statement = nullptr;
  PlainRows result;
  int code = sqlite3_prepare_v2(database_, sql.constData(), -1, &statement, nullptr);
  if (code == SQLITE_OK) {
    readHead(statement, result);
    while ((code = sqlite3_step(statement)) == SQLITE_ROW) {
      result.rows << readRow(statement);
    }
  }
  sqlite3_finalize(statement);
  if (code != SQLITE_DONE) {
    qFatal("%s: %s", sql.constData(), sqlite3_errmsg(database_));
  }
  return result;
}

QString PlainDatabase::text(const QByteArray& sql) {
  const PlainRows result = query(sql);
  if (result.rows.isEmpty()) {
    qFatal("no row: %s", sql.constData());
  }
  return result.rows.first().first();
}

int PlainDatabase::number(const QByteArray& sql) {
  bool good = false;
  const int value = text(sql).toInt(&good);
  if (!good) {
    qFatal("no number: %s", sql.constData());
  }
  return value;
}

QStringList PlainDatabase::tables() {
  QStringList names;
  const PlainRows result = query(
      "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite_%' "
      "ORDER BY name");
  for (const QStringList& row : result.rows) {
    names << row.first();
  }
  return names;
}

QByteArray PlainDatabase::contentHash() {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  for (const QString& table : tables()) {
    hash.addData(table.toUtf8());
    const PlainRows result = query("SELECT * FROM " + table.toUtf8() + " ORDER BY 1");
    for (const QStringList& row : result.rows) {
      hash.addData(row.join(QChar(0x1F)).toUtf8());
      hash.addData(QByteArray(1, '\x1E'));
    }
  }
  return hash.result();
}

}  // namespace quartela::test
