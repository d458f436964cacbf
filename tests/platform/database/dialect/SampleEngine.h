// An empty database in memory with the sample tables, to prove that a rendered text is one that the
// engine takes, and to count with it.
#pragma once

#include <sqlite3.h>

#include <QByteArray>
#include <QString>
#include <string>

#include "platform/database/engines/sqlite/Arithmetic.h"
#include "platform/database/engines/sqlite/Latin.h"
#include "tests/platform/database/dialect/SampleCatalogue.h"

namespace quartela::test {

class SampleEngine {
 public:
  SampleEngine() {
    sqlite3_open(":memory:", &db_);
    sqlite::registerLatin(db_);
    sqlite::registerArithmetic(db_);
    for (const SampleTable& table : kSampleTables) {
      create(sampleTable(table));
    }
  }
  ~SampleEngine() { sqlite3_close(db_); }
  SampleEngine(const SampleEngine&) = delete;
  SampleEngine& operator=(const SampleEngine&) = delete;

  // Empty when the engine takes the text as one statement that gives `columns` columns (a DELETE
  // none); else what it says.
  QString refusal(const std::string& sql, int columns) {
    sqlite3_stmt* statement = nullptr;
    const char* tail = nullptr;
    const int code =
        sqlite3_prepare_v2(db_, sql.data(), static_cast<int>(sql.size()), &statement, &tail);
    QString refused = code == SQLITE_OK ? QString() : QString::fromUtf8(sqlite3_errmsg(db_));
    if (code == SQLITE_OK && tail != sql.data() + sql.size()) {
      refused = QStringLiteral("a second statement");
    }
    if (code == SQLITE_OK && sqlite3_column_count(statement) != columns) {
      refused = QStringLiteral("%1 columns").arg(sqlite3_column_count(statement));
    }
    sqlite3_finalize(statement);
    return refused;
  }

  // All rows, cells as the engine writes them, "|" between cells and ";" between rows. The first
  // placeholder is the moment that tests have stopped at.
  QString rows(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
      return QString::fromUtf8(sqlite3_errmsg(db_));
    }
    if (sqlite3_bind_parameter_count(statement) > 0) {
      sqlite3_bind_text(statement, 1, "2014-11-21 10:30:00", -1, SQLITE_STATIC);
    }
    QStringList rows;
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(statement)) == SQLITE_ROW) {
      rows.append(row(statement));
    }
    if (code != SQLITE_DONE) {
      rows = {QString::fromUtf8(sqlite3_errmsg(db_))};
    }
    sqlite3_finalize(statement);
    return rows.join(QLatin1Char(';'));
  }

  void run(const char* sql) { sqlite3_exec(db_, sql, nullptr, nullptr, nullptr); }

 private:
  static QString row(sqlite3_stmt* statement) {
    QStringList cells;
    for (int i = 0; i < sqlite3_column_count(statement); ++i) {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
      cells.append(text == nullptr ? QStringLiteral("null") : QString::fromUtf8(text));
    }
    return cells.join(QLatin1Char('|'));
  }

  static const char* declared(ValueType type) {
    switch (type) {
      case ValueType::Number:
        return "REAL";
      case ValueType::DateTime:
      case ValueType::Text:
        return "TEXT";
      default:
        return "INTEGER";
    }
  }

  void create(const CatalogueTable& table) {
    QStringList columns;
    for (const CatalogueColumn& column : table.columns) {
      QString name = column.name;
      columns.append(QStringLiteral("\"%1\" %2")
                         .arg(name.replace(QLatin1Char('"'), QLatin1String("\"\"")),
                              QLatin1String(declared(column.type))));
    }
    run(QStringLiteral("CREATE TABLE \"%1\" (%2)")
            .arg(table.name, columns.join(QLatin1Char(',')))
            .toUtf8()
            .constData());
  }

  sqlite3* db_ = nullptr;
};

}  // namespace quartela::test
