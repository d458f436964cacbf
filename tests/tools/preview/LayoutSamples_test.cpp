// Layouts with made-up rows: the program's own, and the developer's command.
#include "tools/preview/LayoutSamples.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#include "platform/values/RuntimeError.h"
#include "tests/support/PdfTools.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using preview::LayoutSamples;
using reporting::Page;

namespace {

const char* const kLayout = R"({"name": "amostra", "sections": [
  {"kind": "GroupHeader", "height": 300, "group": "g", "column": "FOLHA", "elements": [
    {"kind": "Field", "name": "Folha", "left": 0, "top": 0, "width": 900, "height": 250,
     "column": "FOLHA"}]},
  {"kind": "Detail", "height": 300, "elements": [
    {"kind": "Field", "name": "Data", "left": 0, "top": 0, "width": 1500, "height": 250,
     "column": "DIA", "format": "dd/MM/yyyy"},
    {"kind": "Field", "name": "Valor", "left": 2000, "top": 0, "width": 1500, "height": 250,
     "column": "VALOR", "format": "#,##0.00"},
    {"kind": "Field", "name": "Total", "left": 4000, "top": 0, "width": 1500, "height": 250,
     "column": "VALOR", "summary": "sum", "format": "#,##0.00"},
    {"kind": "Field", "name": "Numero", "left": 6000, "top": 0, "width": 1000, "height": 250,
     "column": "NUMERO", "format": "0000/00"},
    {"kind": "Field", "name": "Nome", "left": 7000, "top": 0, "width": 1500, "height": 250,
     "column": "NOME"},
    {"kind": "Field", "name": "PorCodigo", "left": 8500, "top": 0, "width": 1500, "height": 250},
    {"kind": "BarCode", "name": "Barras", "left": 0, "top": 0, "width": 5000, "height": 250}]},
  {"kind": "ReportFooter", "height": 300, "elements": [
    {"kind": "SubReport", "name": "dentro", "left": 0, "top": 0, "width": 5000, "height": 10}]}]})";
const char* const kInner = R"({"name": "dentro", "sections": [
  {"kind": "Detail", "height": 300, "elements": [
    {"kind": "Field", "name": "Interno", "left": 0, "top": 0, "width": 3000, "height": 250,
     "column": "ITEM"}]}]})";

QStringList texts(const Page& page, QStringView element) {
  QStringList found;
  for (const reporting::PlacedItem& item : page.items(element)) {
    found << item.text;
  }
  return found;
}

}  // namespace

class LayoutSamplesTest : public QObject {
  Q_OBJECT

 private slots:
  void makesRowsOfEveryType() {
    const LayoutSamples samples(written("amostra.json", kLayout), 9);
    samples.report()->build();
    const Page page = samples.report()->document()->page(0);
    QCOMPARE(texts(page, u"Data").mid(0, 2), QStringList({"01/01/2014", "02/01/2014"}));
    QCOMPARE(texts(page, u"Valor").mid(0, 3), QStringList({"0,00", "79,19", "158,38"}));
    QCOMPARE(texts(page, u"Total").at(2), QString("237,57"));
    QCOMPARE(texts(page, u"Numero").mid(0, 2), QStringList({"0000/14", "0001/14"}));
    QCOMPARE(texts(page, u"Nome").mid(0, 2), QStringList({"nome 0", "nome 1"}));
    QCOMPARE(texts(page, u"PorCodigo").at(8), QString("PorCodigo"));
    QCOMPARE(texts(page, u"Barras").size(), 9);
    QCOMPARE(texts(page, u"Folha"), QStringList({"1", "2"}));
  }

  void findsSubReportsBesideTheLayout() {
    written("dentro.json", kInner);
    const LayoutSamples samples(written("amostra.json", kLayout), 2);
    samples.report()->build();
    QCOMPARE(texts(samples.report()->document()->page(0), u"Interno"),
             QStringList({"item 0", "item 1", "item 2"}));
  }

  void everyLayoutOfTheProgramCanBeSeen_data() {
    QTest::addColumn<QString>("file");
    const QDir folder(QStringLiteral(LAYOUTS));
    for (const QString& name : folder.entryList({QStringLiteral("*.json")}, QDir::Files)) {
      QTest::newRow(qPrintable(name)) << name;
    }
  }
  void everyLayoutOfTheProgramCanBeSeen() {
    QFETCH(QString, file);
    const LayoutSamples samples(QStringLiteral(LAYOUTS "/") + file);
    samples.report()->build();
    QVERIFY(samples.report()->document()->pageCount() >= 1);
    QVERIFY(!samples.report()->document()->page(0).items().isEmpty());
  }

  void theCommandWritesAPdf() {
    const QString pdf = folder_.filePath("amostra.pdf");
    QProcess command;
    command.start(QStringLiteral(PREVIEW_PROGRAM), {written("amostra.json", kLayout), pdf});
    QVERIFY(command.waitForFinished());
    QCOMPARE(command.exitCode(), 0);
    QVERIFY(test::textsOfPdf(pdf).contains("PorCodigo"));
  }

  void theCommandTellsWhatIsWrong() {
    QProcess command;
    command.start(QStringLiteral(PREVIEW_PROGRAM),
                  {written("errado.json", R"({"name": "a", "altura": 3, "sections": []})"),
                   folder_.filePath("errado.pdf")});
    QVERIFY(command.waitForFinished());
    QCOMPARE(command.exitCode(), 1);
    const QString told = QString::fromUtf8(command.readAllStandardError());
    QVERIFY2(told.contains("altura") && told.contains("errado.json"), qPrintable(told));
  }

  void theCommandNeedsALayout() {
    QProcess command;
    command.start(QStringLiteral(PREVIEW_PROGRAM), QStringList());
    QVERIFY(command.waitForFinished());
    QCOMPARE(command.exitCode(), 2);
  }

 private:
  QString written(const char* name, const char* text) const {
    QFile file(folder_.filePath(QLatin1String(name)));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) < 0) {
      qFatal("%s cannot be written", name);
    }
    return file.fileName();
  }

  QTemporaryDir folder_;
};

QUARTELA_TEST_MAIN(LayoutSamplesTest)
#include "LayoutSamples_test.moc"
