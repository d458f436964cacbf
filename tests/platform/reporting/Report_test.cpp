#include "platform/reporting/Report.h"

#include <QTest>

#include "platform/database/Recordset.h"
#include "tests/platform/reporting/SampleReport.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::reporting;
using quartela::test::errorOf;
using quartela::test::layoutOf;
using quartela::test::SampleRows;
using quartela::test::textsOf;

namespace {

// A row of 500 twips with every kind of field.
const QByteArray kDetail = R"({"kind": "Detail", "height": 500, "elements": [
  {"kind": "Field", "name": "Numero", "left": 0, "top": 0, "width": 900, "height": 250,
   "column": "IDENTIFICA", "format": "0000"},
  {"kind": "Field", "name": "Data", "left": 1000, "top": 0, "width": 1400, "height": 250,
   "column": "DATADOC"},
  {"kind": "Field", "name": "Valor", "left": 2500, "top": 0, "width": 1500, "height": 250,
   "column": "VALOR", "format": "#,##0.00", "align": "right"},
  {"kind": "Field", "name": "Soma", "left": 4000, "top": 0, "width": 1500, "height": 250,
   "column": "VALOR", "format": "#,##0.00", "summary": "sum"},
  {"kind": "Field", "name": "Conta", "left": 5600, "top": 0, "width": 900, "height": 250,
   "summary": "count"}]})";

const QByteArray kPageFooter = R"({"kind": "PageFooter", "height": 400, "elements": [
  {"kind": "Field", "name": "Pagina", "left": 0, "top": 0, "width": 900, "height": 250,
   "shows": "pageNumber"},
  {"kind": "Field", "name": "Total", "left": 1000, "top": 0, "width": 900, "height": 250,
   "shows": "pageTotal"},
  {"kind": "Field", "name": "UltimoNumero", "left": 2000, "top": 0, "width": 900, "height": 250,
   "column": "IDENTIFICA"},
  {"kind": "Field", "name": "SomaDaPagina", "left": 3000, "top": 0, "width": 1500, "height": 250,
   "column": "VALOR", "format": "#,##0.00", "summary": "sum"}]})";

const QByteArray kPageHeader = R"({"kind": "PageHeader", "name": "Cabecalho", "height": 600,
  "elements": [
  {"kind": "Label", "name": "Titulo", "left": 0, "top": 0, "width": 5000, "height": 250,
   "text": "TITULO"},
  {"kind": "Field", "name": "PrimeiroNumero", "left": 0, "top": 300, "width": 900, "height": 250,
   "column": "IDENTIFICA"}]})";

QByteArray label(const QByteArray& name, const QByteArray& more = "") {
  return R"({"kind": "Label", "name": ")" + name +
         R"(", "left": 0, "top": 0, "width": 4000, "height": 250, "text": ")" + name + "\"" + more +
         "}";
}

}  // namespace

class ReportTest : public QObject {
  Q_OBJECT

 private slots:
  void formatsTheRows();
  void sumsAndCountsRun();
  void headersAndFootersStandOnEachPage();
  void totalIsKnownAtTheEndOnly();
  void groupsHaveHeadersAndFooters();
  void groupHeadersAreRepeated();
  void withoutASourceDetailIsFormattedOnce();
  void withoutRowsHeadingsStand();
  void withoutRowsNothingStandsWhereAskedFor();
  void missingColumnIs3265();
  void optionalColumnKeepsItsText();
  void statementErrorsLeaveStart();
  void overflowOfASumIs6();
  void canBeBuiltAgain();
  void canBeCancelled();
  void firstPageComesFirst();
  void subReportsStandInTheirRows();
  void subReportInItselfIs5();
  void showsItsTitle();
};

void ReportTest::formatsTheRows() {
  SampleRows rows(3);
  Report report(layoutOf(kDetail));
  report.setSource(rows.connection(), SampleRows::all());
  report.build();
  QCOMPARE(report.state(), Report::State::Complete);
  QCOMPARE(report.document()->pageCount(), 1);
  const Page page = report.document()->page(0);
  QCOMPARE(textsOf(page, u"numero"), QStringList({"0001", "0002", "0003"}));
  QCOMPARE(textsOf(page, u"Data"), QStringList({"02/11/2014", "03/11/2014", "04/11/2014"}));
  QCOMPARE(textsOf(page, u"Valor"), QStringList({"10,00", "20,00", "30,00"}));
  const PlacedItem item = page.items(u"Valor").at(1);
  QCOMPARE(item.rect, QRect(1000 + 2500, 1000 + 500, 1500, 250));
  QCOMPARE(item.section, QStringLiteral("Detail"));
  QCOMPARE(item.align, Alignment::Right);
  QCOMPARE(item.font.pixelSize(), 200);
}

void ReportTest::sumsAndCountsRun() {
  SampleRows rows(4);
  Report report(layoutOf(kDetail));
  report.setSource(rows.connection(), SampleRows::all());
  report.build();
  const Page page = report.document()->page(0);
  QCOMPARE(textsOf(page, u"Soma"), QStringList({"10,00", "30,00", "60,00", "100,00"}));
  QCOMPARE(textsOf(page, u"Conta"), QStringList({"1", "2", "3", "4"}));
}

// 27 rows have place on a page: 14838 less the header and the footer is 13838.
void ReportTest::headersAndFootersStandOnEachPage() {
  SampleRows rows(60);
  Report report(layoutOf(kPageHeader + "," + kDetail + "," + kPageFooter));
  report.setSource(rows.connection(), SampleRows::all());
  report.build();
  const QList<Page> pages = report.document()->pages();
  QCOMPARE(pages.size(), 3);
  QCOMPARE(textsOf(pages[0], u"Numero").size(), 27);
  QCOMPARE(textsOf(pages[1], u"Numero").size(), 27);
  QCOMPARE(textsOf(pages[2], u"Numero").size(), 6);
  for (int index = 0; index < 3; ++index) {
    QCOMPARE(pages[index].text(u"Titulo"), QStringLiteral("TITULO"));
    QCOMPARE(pages[index].items(u"Titulo").at(0).rect.y(), 1000);
    QCOMPARE(pages[index].text(u"PrimeiroNumero"), QString::number(index * 27 + 1));
    QCOMPARE(pages[index].text(u"Pagina"), QString::number(index + 1));
    QCOMPARE(pages[index].text(u"Total"), QStringLiteral("3"));
    QCOMPARE(pages[index].items(u"Pagina").at(0).rect.y(), 16838 - 1000 - 400);
    const int last = std::min(60, (index + 1) * 27);
    QCOMPARE(pages[index].text(u"UltimoNumero"), QString::number(last));
    QCOMPARE(pages[index].text(u"SomaDaPagina"),
             QLocale(QLocale::Portuguese).toString(last * (last + 1) / 2 * 10) + ",00");
  }
}

void ReportTest::totalIsKnownAtTheEndOnly() {
  SampleRows rows(60);
  Report report(layoutOf(kDetail + "," + kPageFooter));
  report.setSource(rows.connection(), SampleRows::all());
  report.start();
  QVERIFY(report.buildPage());
  QCOMPARE(report.document()->page(0).text(u"Pagina"), QStringLiteral("1"));
  QCOMPARE(report.document()->page(0).text(u"Total"), QString());
  QVERIFY(!report.document()->isComplete());
  while (report.buildPage()) {
  }
  QVERIFY(report.document()->isComplete());
  QCOMPARE(report.document()->page(0).text(u"Total"), QStringLiteral("3"));
}

void ReportTest::groupsHaveHeadersAndFooters() {
  SampleRows rows(12);
  Report report(layoutOf(
      R"({"kind": "GroupHeader", "height": 300, "group": "g", "column": "IDENT_TRANSP", "elements": [
          {"kind": "Field", "name": "Grupo", "left": 0, "top": 0, "width": 900, "height": 250,
           "column": "IDENT_TRANSP"}]},)" +
      kDetail + R"(,{"kind": "GroupFooter", "height": 300, "group": "g", "elements": [
          {"kind": "Field", "name": "DoGrupo", "left": 0, "top": 0, "width": 900, "height": 250,
           "column": "VALOR", "format": "#,##0.00", "summary": "sum", "over": "g"},
          {"kind": "Field", "name": "Linhas", "left": 1000, "top": 0, "width": 900, "height": 250,
           "summary": "count", "over": "g"},
          {"kind": "Field", "name": "Fechado", "left": 2000, "top": 0, "width": 900, "height": 250,
           "column": "IDENT_TRANSP"}]},
         {"kind": "ReportFooter", "height": 300, "elements": [
          {"kind": "Field", "name": "Geral", "left": 0, "top": 0, "width": 1500, "height": 250,
           "column": "VALOR", "format": "#,##0.00", "summary": "sum"}]})"));
  report.setSource(rows.connection(), SampleRows::all());
  report.build();
  const Page page = report.document()->page(0);
  QCOMPARE(textsOf(page, u"Grupo"), QStringList({"1", "2", "3"}));
  QCOMPARE(textsOf(page, u"Fechado"), QStringList({"1", "2", "3"}));
  QCOMPARE(textsOf(page, u"Linhas"), QStringList({"5", "5", "2"}));
  QCOMPARE(textsOf(page, u"DoGrupo"), QStringList({"150,00", "400,00", "230,00"}));
  QCOMPARE(textsOf(page, u"Geral"), QStringList({"780,00"}));
  // Three headers, twelve rows and two footers stand above the third footer.
  QCOMPARE(page.items(u"Fechado").at(2).rect.y(), 1000 + 3 * 300 + 12 * 500 + 2 * 300);
}

void ReportTest::groupHeadersAreRepeated() {
  SampleRows rows(40);
  Report report(layoutOf(
      R"({"kind": "GroupHeader", "height": 300, "group": "g", "repeatOnPage": true, "elements": [)" +
      label("Cabeca") + "]}," + kDetail));
  report.setSource(rows.connection(), SampleRows::all());
  report.build();
  QCOMPARE(report.document()->pageCount(), 2);
  const Page second = report.document()->page(1);
  QCOMPARE(second.text(u"Cabeca"), QStringLiteral("Cabeca"));
  QCOMPARE(second.items(u"Cabeca").at(0).rect.y(), 1000);
  QCOMPARE(second.items(u"Numero").at(0).rect.y(), 1300);
  QCOMPARE(second.text(u"Numero"), QStringLiteral("0030"));
}

void ReportTest::withoutASourceDetailIsFormattedOnce() {
  Report report(layoutOf(R"({"kind": "Detail", "height": 300, "elements": [)" + label("a") + "]}"));
  report.setText(u"A", QStringLiteral("posto de fora"));
  report.build();
  QCOMPARE(report.document()->pageCount(), 1);
  QCOMPARE(textsOf(report.document()->page(0), u"a"), QStringList({"posto de fora"}));
  QCOMPARE(errorOf([&] { report.setText(u"b", {}); }), 9);
}

void ReportTest::withoutRowsHeadingsStand() {
  SampleRows rows(0);
  Report report(layoutOf(kPageHeader + "," + kDetail + "," + kPageFooter));
  report.setSource(rows.connection(), SampleRows::all());
  report.build();
  QCOMPARE(report.document()->pageCount(), 1);
  const Page page = report.document()->page(0);
  QCOMPARE(page.text(u"Titulo"), QStringLiteral("TITULO"));
  QCOMPARE(page.text(u"PrimeiroNumero"), QString());
  QCOMPARE(page.items(u"Numero").size(), 0);
  QCOMPARE(page.text(u"Total"), QStringLiteral("1"));
}

void ReportTest::withoutRowsNothingStandsWhereAskedFor() {
  SampleRows rows(0);
  Report report(layoutOf(kPageHeader + "," + kDetail, R"("emptyData": "nothing",)"));
  report.setSource(rows.connection(), SampleRows::all());
  report.build();
  QCOMPARE(report.document()->pageCount(), 0);
  QVERIFY(report.document()->isComplete());
  QCOMPARE(report.progress(), 1000);
}

void ReportTest::missingColumnIs3265() {
  SampleRows rows(1);
  Report report(layoutOf(kDetail));
  report.setSource(rows.connection(), QStringLiteral("SELECT IDENTIFICA FROM ItensTransp"));
  QCOMPARE(errorOf([&] { report.start(); }), 3265);
  QCOMPARE(report.state(), Report::State::Failed);
}

void ReportTest::optionalColumnKeepsItsText() {
  SampleRows rows(1);
  Report report(layoutOf(R"({"kind": "Detail", "height": 300, "elements": [)" +
                         label("a", R"(, "column": "FALTA", "optional": true)") + "]}"));
  report.setSource(rows.connection(), SampleRows::all());
  report.build();
  QCOMPARE(report.document()->page(0).text(u"a"), QStringLiteral("a"));
}

void ReportTest::statementErrorsLeaveStart() {
  SampleRows rows(1);
  Report report(layoutOf(kDetail));
  report.setSource(rows.connection(), QStringLiteral("SELECT * FROM Falta"));
  QCOMPARE(errorOf([&] { report.start(); }), 3078);
  report.setSource(rows.connection(), QStringLiteral("SELECT FROM"));
  QCOMPARE(errorOf([&] { report.build(); }), 3075);
}

void ReportTest::overflowOfASumIs6() {
  SampleRows rows(2);
  Recordset row;
  row.open(SampleRows::all(), rows.connection(), CursorType::Static, LockType::Optimistic);
  row.setField(u"VALOR", Money::fromUnits(std::numeric_limits<std::int64_t>::max()));
  row.update();
  row.close();
  Report report(layoutOf(kDetail));
  report.setSource(rows.connection(), SampleRows::all());
  QCOMPARE(errorOf([&] { report.build(); }), 6);
  QCOMPARE(report.state(), Report::State::Failed);
  QVERIFY(!report.buildFor(1));
}

void ReportTest::canBeBuiltAgain() {
  SampleRows rows(3);
  Report report(layoutOf(kDetail));
  report.setSource(rows.connection(), SampleRows::all());
  report.build();
  const std::shared_ptr<const Document> first = report.document();
  report.build();
  QVERIFY(report.document() != first);
  QCOMPARE(textsOf(report.document()->page(0), u"Soma"), textsOf(first->page(0), u"Soma"));
}

void ReportTest::canBeCancelled() {
  SampleRows rows(100);
  Report report(layoutOf(kDetail + "," + kPageFooter));
  report.setSource(rows.connection(), SampleRows::all());
  report.start();
  QVERIFY(report.buildPage());
  report.cancel();
  QCOMPARE(report.state(), Report::State::Cancelled);
  QVERIFY(!report.buildPage());
  QCOMPARE(report.document()->pageCount(), 1);
  QVERIFY(!report.document()->isComplete());
}

void ReportTest::firstPageComesFirst() {
  SampleRows rows(1000);
  Report report(layoutOf(kDetail));
  report.setSource(rows.connection(), SampleRows::all());
  report.start();
  QCOMPARE(report.progress(), 0);
  QVERIFY(report.buildPage());
  QCOMPARE(report.document()->pageCount(), 1);
  QVERIFY(report.progress() > 0 && report.progress() < 100);
  report.build();
  QCOMPARE(report.document()->pageCount(), 35);
  QCOMPARE(errorOf([&] { report.document()->page(35); }), 9);
}

void ReportTest::subReportsStandInTheirRows() {
  SampleRows rows(7);
  Report report(
      layoutOf(R"({"kind": "Detail", "height": 600, "elements": [)" + label("Acima") +
               R"(,{"kind": "SubReport", "name": "Itens", "left": 300, "top": 300, "width": 5000,
           "height": 100},
          {"kind": "Label", "name": "Abaixo", "left": 0, "top": 450, "width": 500, "height": 150,
           "text": "x"}]})"));
  report.setSource(
      rows.connection(),
      QStringLiteral("SELECT DISTINCT IDENT_TRANSP FROM ItensTransp ORDER BY IDENT_TRANSP"));
  const auto inner = std::make_shared<Report>(
      layoutOf(kPageHeader + R"(,{"kind": "ReportHeader", "height": 250, "elements": [)" +
               label("Dentro") + "]}," + kDetail));
  report.setSubReport(u"itens", inner);
  report.onFormat(u"detail", [&](SectionInstance& section) {
    inner->setSource(rows.connection(),
                     QStringLiteral("SELECT * FROM ItensTransp WHERE IDENT_TRANSP = %1 ORDER BY "
                                    "IDENTIFICA")
                         .arg(section.field(u"IDENT_TRANSP").i32()));
  });
  report.build();
  const Page page = report.document()->page(0);
  QCOMPARE(textsOf(page, u"Numero"),
           QStringList({"0001", "0002", "0003", "0004", "0005", "0006", "0007"}));
  QCOMPARE(textsOf(page, u"Conta"), QStringList({"1", "2", "3", "4", "5", "1", "2"}));
  QCOMPARE(page.items(u"Dentro").size(), 2);
  QCOMPARE(page.items(u"Titulo").size(), 0);
  QCOMPARE(page.items(u"Dentro").at(0).rect.topLeft(), QPoint(1300, 1300));
  QCOMPARE(page.items(u"Numero").at(0).rect.y(), 1550);
  // The first inner report is 250 + 5 x 500 high, 100 of which were there.
  QCOMPARE(page.items(u"Abaixo").at(0).rect.y(), 1450 + 2650);
  QCOMPARE(page.items(u"Acima").at(1).rect.y(), 1600 + 2650);
}

void ReportTest::subReportInItselfIs5() {
  const auto report =
      std::make_shared<Report>(layoutOf(R"({"kind": "Detail", "height": 600, "elements": [
          {"kind": "SubReport", "name": "s", "left": 0, "top": 0, "width": 1, "height": 1}]})"));
  report->setSubReport(u"s", report);
  QCOMPARE(errorOf([&] { report->build(); }), 5);
  report->setSubReport(u"s", nullptr);
}

void ReportTest::showsItsTitle() {
  Report report(layoutOf(R"({"kind": "Detail", "height": 300, "elements": [)" +
                         label("a", R"(, "shows": "title")") + "]}"));
  QCOMPARE(report.title(), QStringLiteral("Amostra"));
  report.setTitle(QStringLiteral("Outro"));
  report.build();
  QCOMPARE(report.document()->title(), QStringLiteral("Outro"));
  QCOMPARE(report.document()->page(0).text(u"a"), QStringLiteral("Outro"));
}

QUARTELA_TEST_MAIN(ReportTest)
#include "Report_test.moc"
