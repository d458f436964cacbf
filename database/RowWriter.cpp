#include "database/RowWriter.h"

#include <sqlite3.h>

#include <algorithm>

#include "platform/values/RuntimeError.h"

namespace quartela::database {

namespace {

ErrorNumber errorNumber(int code) {
  switch (code & 0xFF) {
    case SQLITE_FULL:
      return ErrorNumber::DiskFull;
    case SQLITE_CANTOPEN:
      return ErrorNumber::InvalidPath;
    case SQLITE_READONLY:
      return ErrorNumber::ReadOnlyDatabase;
    case SQLITE_CONSTRAINT:
      return ErrorNumber::ValueRefused;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return ErrorNumber::DatabaseDamaged;
    default:
      return ErrorNumber::PathFileAccess;
  }
}

std::string insertStatement(std::string_view table, std::string_view columns) {
  std::string places = "?";
  const auto commas = std::count(columns.begin(), columns.end(), ',');
  for (auto i = commas; i > 0; --i) {
    places += ", ?";
  }
  std::string sql = "INSERT INTO ";
  sql.append(table).append(" (").append(columns).append(") VALUES (").append(places).append(")");
  return sql;
}

}  // namespace

void check(int code, sqlite3* database) {
  if (code == SQLITE_OK || code == SQLITE_ROW || code == SQLITE_DONE) {
    return;
  }
  const char* words = database != nullptr ? sqlite3_errmsg(database) : sqlite3_errstr(code);
  throw RuntimeError(errorNumber(code), QString::fromUtf8(words));
}

RowWriter::RowWriter(sqlite3* database, std::string_view table, std::string_view columns)
    : database_(database) {
  const std::string sql = insertStatement(table, columns);
  check(sqlite3_prepare_v3(database_, sql.c_str(), static_cast<int>(sql.size()),
                           SQLITE_PREPARE_PERSISTENT, &statement_, nullptr),
        database_);
}

RowWriter::~RowWriter() {
  sqlite3_finalize(statement_);
}

std::int32_t RowWriter::step() {
  position_ = 0;
  const int code = sqlite3_step(statement_);
  if (code != SQLITE_DONE) {
    check(code, database_);
  }
  check(sqlite3_reset(statement_), database_);
  return static_cast<std::int32_t>(sqlite3_last_insert_rowid(database_));
}

void RowWriter::bind(int position, std::nullopt_t) {
  check(sqlite3_bind_null(statement_, position), database_);
}

void RowWriter::bind(int position, std::int32_t value) {
  check(sqlite3_bind_int(statement_, position, value), database_);
}

void RowWriter::bind(int position, bool value) {
  check(sqlite3_bind_int(statement_, position, value ? 1 : 0), database_);
}

void RowWriter::bind(int position, double value) {
  check(sqlite3_bind_double(statement_, position, value), database_);
}

void RowWriter::bind(int position, Money value) {
  check(sqlite3_bind_int64(statement_, position, value.units()), database_);
}

void RowWriter::bind(int position, const DateTime& value) {
  const QByteArray iso = value.toIso().toLatin1();
  bind(position, std::string_view(iso.constData(), static_cast<std::size_t>(iso.size())));
}

void RowWriter::bind(int position, std::string_view value) {
  check(sqlite3_bind_text(statement_, position, value.data(), static_cast<int>(value.size()),
                          SQLITE_TRANSIENT),
        database_);
}

}  // namespace quartela::database
