#include "tools/preview/LayoutSamples.h"

#include <sqlite3.h>

#include <QFileInfo>
#include <QMap>
#include <QStringList>

#include "database/Builder.h"
#include "platform/values/RuntimeError.h"

namespace quartela::preview {
namespace {

using reporting::ElementKind;
using reporting::ElementLayout;
using reporting::Report;
using reporting::ReportLayout;
using reporting::SectionKind;
using reporting::SectionLayout;

constexpr int kRowsOfGroup = 7;
constexpr int kSubReportRows = 3;
const QString kDigits = QStringLiteral("00091626600000235000000001200000000000000001");

// A column of the made-up table: its type in the file, and the SQL of its value in row "n".
struct Column {
  QString type;
  QString value;
};

bool isDate(const QString& format) {
  return format.contains(QLatin1Char('y'), Qt::CaseInsensitive) ||
         format.contains(QLatin1Char('h'), Qt::CaseInsensitive);
}

bool isAmount(const ElementLayout& element) {
  return element.summary == reporting::Summary::Sum || element.format.contains(QLatin1Char('#'));
}

bool isNumber(const QString& format) {
  return format.contains(QLatin1Char('0'));
}

Column columnFor(const ElementLayout& element) {
  if (isDate(element.format)) {
    return {QStringLiteral("DATETIME"),
            QStringLiteral("strftime('%Y-%m-%d 00:00:00', '2014-01-01', n || ' days')")};
  }
  if (isAmount(element)) {
    return {QStringLiteral("MONEY"), QStringLiteral("(n * 7919 % 1000000) * 100")};
  }
  if (isNumber(element.format)) {
    return {QStringLiteral("INTEGER"), QStringLiteral("n * 100 + 14")};
  }
  const QString words = element.kind == ElementKind::BarCode
                            ? QStringLiteral("'%1'").arg(kDigits)
                            : QStringLiteral("'%1 ' || n").arg(element.column.toLower());
  return {QStringLiteral("TEXT"), words};
}

// By the name in capitals. An amount counts for more than a text where two elements show a column.
QMap<QString, Column> columnsOf(const ReportLayout& layout) {
  QMap<QString, Column> columns;
  for (const SectionLayout& section : layout.sections) {
    for (const ElementLayout& element : section.elements) {
      const QString name = element.column.toUpper();
      const Column column = columnFor(element);
      if (!name.isEmpty() && !element.optional &&
          (!columns.contains(name) || column.type != QLatin1String("TEXT"))) {
        columns.insert(name, column);
      }
    }
    if (section.kind == SectionKind::GroupHeader && !section.column.isEmpty()) {
      columns.insert(section.column.toUpper(),
                     {QStringLiteral("INTEGER"), QStringLiteral("n / %1 + 1").arg(kRowsOfGroup)});
    }
  }
  return columns;
}

void run(sqlite3* database, const QString& sql) {
  if (sqlite3_exec(database, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw RuntimeError::withDescription(ErrorNumber::InvalidProcedureCall,
                                        QString::fromUtf8(sqlite3_errmsg(database)));
  }
}

void makeTable(const QString& path, const QMap<QString, Column>& columns, int rows) {
  QStringList declared{QStringLiteral("LINHA INTEGER PRIMARY KEY")};
  QStringList values{QStringLiteral("n")};
  for (auto column = columns.begin(); column != columns.end(); ++column) {
    declared << QStringLiteral("\"%1\" %2").arg(column.key(), column->type);
    values << column->value;
  }
  database::NewDatabase database(path);
  run(database.handle(),
      QStringLiteral("CREATE TABLE Amostra (%1)").arg(declared.join(QStringLiteral(", "))));
  run(database.handle(),
      QStringLiteral("WITH RECURSIVE numbers(n) AS (VALUES(0) UNION ALL SELECT n + 1 FROM numbers "
                     "WHERE n + 1 < %1) INSERT INTO Amostra SELECT %2 FROM numbers")
          .arg(QString::number(rows), values.join(QStringLiteral(", "))));
  database.finish();
}

// A field without a column is filled by code, which is not there: its name stands for it.
void nameFields(Report& report) {
  for (const SectionLayout& section : report.layout().sections) {
    for (const ElementLayout& element : section.elements) {
      const bool own = element.column.isEmpty() || element.optional;
      if (element.kind == ElementKind::Field && own && element.text.isEmpty() &&
          element.shows == reporting::Shows::Text) {
        report.setText(element.name, element.name);
      } else if (element.kind == ElementKind::BarCode && own) {
        report.setText(element.name, kDigits);
      }
    }
  }
}

}  // namespace

LayoutSamples::LayoutSamples(const QString& layoutFile, int rows)
    : report_(std::make_shared<Report>(layoutFile)) {
  fill(*report_, rows);
  addSubReports(*report_, QFileInfo(layoutFile).path());
}

void LayoutSamples::fill(Report& report, int rows) {
  nameFields(report);
  const QMap<QString, Column> columns = columnsOf(report.layout());
  if (columns.isEmpty()) {
    return;
  }
  const QString path = folder_.filePath(QStringLiteral("amostra%1.mdb").arg(connections_.size()));
  makeTable(path, columns, rows);
  connections_.push_back(std::make_unique<Connection>());
  connections_.back()->open(QStringLiteral("Provider=amostra;Data Source=%1;").arg(path));
  report.setSource(*connections_.back(), QStringLiteral("SELECT * FROM Amostra ORDER BY LINHA"));
}

void LayoutSamples::addSubReports(Report& report, const QString& folder) {
  for (const SectionLayout& section : report.layout().sections) {
    for (const ElementLayout& element : section.elements) {
      const QString file = QStringLiteral("%1/%2.json").arg(folder, element.name);
      if (element.kind == ElementKind::SubReport && QFileInfo::exists(file)) {
        const auto inner = std::make_shared<Report>(file);
        fill(*inner, kSubReportRows);
        report.setSubReport(element.name, inner);
      }
    }
  }
}

}  // namespace quartela::preview
