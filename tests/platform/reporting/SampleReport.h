// What the tests of reports build on: layouts in short form, and a database with rows for them.
#pragma once

#include <sqlite3.h>

#include <QString>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "database/Builder.h"
#include "platform/database/Connection.h"
#include "platform/reporting/LayoutReader.h"
#include "platform/reporting/Report.h"
#include "platform/values/RuntimeError.h"
#include "tests/support/Errors.h"

namespace quartela::test {

// A layout of the sections, on A4 paper with margins of 1000 twips and a type of 10 points.
inline reporting::ReportLayout layoutOf(const QByteArray& sections, const QByteArray& more = {}) {
  return reporting::parseLayout(
      R"({"name": "amostra", "title": "Amostra", "printWidth": 9000,
          "page": {"width": 11906, "height": 16838,
                   "margins": {"left": 1000, "top": 1000, "right": 1000, "bottom": 1000}},
          "font": {"family": "Liberation Mono", "size": 10},)" +
          more + R"("sections": [)" + sections + "]}",
      QStringLiteral("amostra.json"));
}

// Rows of the table ItensTransp: 1 to count, five to a group, 10.00 times the number each.
class SampleRows {
 public:
  explicit SampleRows(int count) {
    const QString path = folder_.filePath(QStringLiteral("amostra.mdb"));
    database::NewDatabase database(path);
    for (int row = 1; row <= count; ++row) {
      const QString sql =
          QStringLiteral(
              "INSERT INTO ItensTransp(IDENTIFICA, IDENT_TRANSP, DATADOC, RAZAO, DOCUMENTO, VALOR) "
              "VALUES (%1, %2, '2014-11-%3 00:00:00', 'Fornecedor %1', 'NF %1', %4)")
              .arg(row)
              .arg((row - 1) / 5 + 1)
              .arg(row % 28 + 1, 2, 10, QLatin1Char('0'))
              .arg(row * 100'000);
      if (sqlite3_exec(database.handle(), sql.toUtf8().constData(), nullptr, nullptr, nullptr) !=
          SQLITE_OK) {
        qFatal("no sample rows: %s", sqlite3_errmsg(database.handle()));
      }
    }
    database.finish();
    connection_.open(QStringLiteral("Provider=q;Data Source=%1;").arg(path));
  }

  Connection& connection() { return connection_; }
  static QString all() { return QStringLiteral("SELECT * FROM ItensTransp ORDER BY IDENTIFICA"); }

 private:
  QTemporaryDir folder_;
  Connection connection_;
};

// The texts of an element on a page, in order.
inline QStringList textsOf(const reporting::Page& page, QStringView element) {
  QStringList texts;
  for (const reporting::PlacedItem& item : page.items(element)) {
    texts << item.text;
  }
  return texts;
}

}  // namespace quartela::test
