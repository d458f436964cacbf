#include <QTest>

#include "platform/reporting/Report.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "tests/platform/reporting/SampleReport.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::reporting;
using quartela::test::errorOf;
using quartela::test::layoutOf;
using quartela::test::SampleRows;
using quartela::test::textsOf;

namespace {

// A list with a balance that is carried from page to page.
const QByteArray kBalance = R"({"kind": "PageHeader", "height": 500, "elements": [
    {"kind": "Field", "name": "Transporte", "left": 0, "top": 0, "width": 2000, "height": 250},
    {"kind": "Field", "name": "Inicial", "left": 0, "top": 250, "width": 2000, "height": 250,
     "visible": false, "format": "#,##0.00"}]},
  {"kind": "Detail", "height": 500, "elements": [
    {"kind": "Field", "name": "Numero", "left": 0, "top": 0, "width": 900, "height": 250,
     "column": "IDENTIFICA"},
    {"kind": "Field", "name": "Soma", "left": 1000, "top": 0, "width": 1000, "height": 250,
     "column": "VALOR", "summary": "sum", "visible": false},
    {"kind": "Field", "name": "Saldo", "left": 2000, "top": 0, "width": 2000, "height": 250}]},
  {"kind": "PageFooter", "height": 500, "elements": [
    {"kind": "Field", "name": "Pergunta", "left": 0, "top": 0, "width": 2000, "height": 250},
    {"kind": "Field", "name": "Nome", "left": 0, "top": 250, "width": 2000, "height": 250}]})";

}  // namespace

class FormatRoutinesTest : public QObject {
  Q_OBJECT

 private slots:
  void carryABalanceOverPages();
  void runOnceForEachPageFooter();
  void showAndHide();
  void moveElements();
  void skipRows();
  void skippedLastRowLeavesNoEmptyPage();
  void changeTheSectionsHeight();
  void readTheCurrentRow();
  void errorsEndTheReport();
  void unknownSectionIs9();
  void startRoutineRunsAtEachStart();
  void mayAskForMoreMeanwhile();
  void mayCancel();
};

void FormatRoutinesTest::carryABalanceOverPages() {
  SampleRows rows(60);
  Report report(layoutOf(kBalance));
  report.setSource(rows.connection(), SampleRows::all());
  report.element(u"Inicial").setValue(Money::fromReais(1000));
  Money carried;
  int counted = 0;
  report.onFormat(u"PageHeader", [&](SectionInstance& section) {
    const Value shown =
        counted == 0 ? Value(section.text(u"Inicial")) : Value(Convert::toText(carried));
    section.setText(u"Transporte", Format(Convert::toMoney(shown), u"#,##0.00"));
  });
  report.onFormat(u"Detail", [&](SectionInstance& section) {
    ++counted;
    QCOMPARE(section.row(), counted);
    carried = Convert::toMoney(section.text(u"Inicial")) - Convert::toMoney(section.text(u"Soma"));
    section.setText(u"Saldo", Format(carried, u"#,##0.00"));
  });
  report.build();
  const QList<Page> pages = report.document()->pages();
  QCOMPARE(pages.size(), 3);
  QCOMPARE(counted, 60);
  QCOMPARE(pages[0].text(u"Transporte"), QStringLiteral("1.000,00"));
  for (int page = 1; page < 3; ++page) {
    QCOMPARE(pages[page].text(u"Transporte"), textsOf(pages[page - 1], u"Saldo").last());
  }
  QCOMPARE(textsOf(pages[2], u"Saldo").last(), QStringLiteral("-17.300,00"));
  QCOMPARE(pages[0].items(u"Soma").size(), 0);
}

void FormatRoutinesTest::runOnceForEachPageFooter() {
  SampleRows rows(60);
  Report report(layoutOf(kBalance));
  report.setSource(rows.connection(), SampleRows::all());
  QList<int> asked;
  report.onFormat(u"PageFooter", [&](SectionInstance& section) {
    asked << section.page();
    if (section.page() == 2) {
      section.setText(u"Pergunta", QStringLiteral("na segunda"));
    }
    section.setText(u"Nome", QStringLiteral("Linha ") + section.text(u"Numero"));
  });
  report.build();
  QCOMPARE(asked, QList<int>({1, 2, 3}));
  const QList<Page> pages = report.document()->pages();
  QCOMPARE(pages[0].text(u"Pergunta"), QString());
  QCOMPARE(pages[1].text(u"Pergunta"), QStringLiteral("na segunda"));
  // What a routine set stays until it is set again.
  QCOMPARE(pages[2].text(u"Pergunta"), QStringLiteral("na segunda"));
  QCOMPARE(pages[0].text(u"Nome"), QStringLiteral("Linha 27"));
  QCOMPARE(pages[2].text(u"Nome"), QStringLiteral("Linha 60"));
}

void FormatRoutinesTest::showAndHide() {
  SampleRows rows(4);
  Report report(layoutOf(kBalance));
  report.setSource(rows.connection(), SampleRows::all());
  report.onFormat(u"Detail", [](SectionInstance& section) {
    section.element(u"Numero").setVisible(section.row() % 2 == 0);
  });
  report.build();
  QCOMPARE(textsOf(report.document()->page(0), u"Numero"), QStringList({"2", "4"}));
}

void FormatRoutinesTest::moveElements() {
  SampleRows rows(2);
  Report report(layoutOf(kBalance));
  report.setSource(rows.connection(), SampleRows::all());
  report.onFormat(u"Detail", [](SectionInstance& section) {
    section.element(u"Numero").setPosition(100 * section.row(), 20);
    section.element(u"Numero").setHeight(240);
    section.element(u"Numero").setWidth(800);
  });
  report.build();
  const Page page = report.document()->page(0);
  QCOMPARE(page.items(u"Numero").at(0).rect, QRect(1100, 1520, 800, 240));
  QCOMPARE(page.items(u"Numero").at(1).rect, QRect(1200, 2020, 800, 240));
}

void FormatRoutinesTest::skipRows() {
  SampleRows rows(5);
  Report report(layoutOf(kBalance));
  report.setSource(rows.connection(), SampleRows::all());
  report.onFormat(u"Detail", [](SectionInstance& section) {
    if (section.row() == 2) {
      section.skip();
    }
  });
  report.build();
  const Page page = report.document()->page(0);
  QCOMPARE(textsOf(page, u"Numero"), QStringList({"1", "3", "4", "5"}));
  QCOMPARE(page.items(u"Numero").at(1).rect.y(), 2000);
}

void FormatRoutinesTest::skippedLastRowLeavesNoEmptyPage() {
  SampleRows rows(28);
  Report report(layoutOf(kBalance));
  report.setSource(rows.connection(), SampleRows::all());
  report.onFormat(u"Detail", [](SectionInstance& section) {
    if (section.row() == 28) {
      section.skip();
    }
  });
  report.build();
  QCOMPARE(report.document()->pageCount(), 1);
}

void FormatRoutinesTest::changeTheSectionsHeight() {
  SampleRows rows(2);
  Report report(layoutOf(kBalance));
  report.setSource(rows.connection(), SampleRows::all());
  report.onFormat(u"Detail", [](SectionInstance& section) {
    QCOMPARE(section.height(), 500);
    section.setHeight(900);
  });
  report.build();
  QCOMPARE(report.document()->page(0).items(u"Numero").at(1).rect.y(), 1500 + 900);
}

void FormatRoutinesTest::readTheCurrentRow() {
  SampleRows rows(1);
  Report report(layoutOf(kBalance));
  report.setSource(rows.connection(), SampleRows::all());
  int checked = 0;
  report.onFormat(u"Detail", [&](SectionInstance& section) {
    QCOMPARE(section.field(u"valor"), Value(Money::fromReais(10)));
    QCOMPARE(section.section().name, QStringLiteral("Detail"));
    QCOMPARE(errorOf([&] { section.field(u"falta"); }), 3265);
    QCOMPARE(errorOf([&] { section.element(u"falta"); }), 9);
    ++checked;
  });
  report.build();
  QCOMPARE(checked, 1);
}

void FormatRoutinesTest::errorsEndTheReport() {
  SampleRows rows(60);
  Report report(layoutOf(kBalance));
  report.setSource(rows.connection(), SampleRows::all());
  report.onFormat(u"Detail", [](SectionInstance& section) {
    if (section.row() == 40) {
      throw RuntimeError(ErrorNumber::TypeMismatch);
    }
  });
  QCOMPARE(errorOf([&] { report.build(); }), 13);
  QCOMPARE(report.state(), Report::State::Failed);
  QCOMPARE(report.document()->pageCount(), 1);
}

void FormatRoutinesTest::unknownSectionIs9() {
  Report report(layoutOf(kBalance));
  QCOMPARE(errorOf([&] { report.onFormat(u"ReportFooter", {}); }), 9);
}

void FormatRoutinesTest::startRoutineRunsAtEachStart() {
  Report report(layoutOf(R"({"kind": "Detail", "height": 100})"));
  int starts = 0;
  report.onStart([&] { ++starts; });
  report.build();
  report.build();
  QCOMPARE(starts, 2);
}

// As when a routine shows a box, behind which the window's timer goes on.
void FormatRoutinesTest::mayAskForMoreMeanwhile() {
  SampleRows rows(10);
  Report report(layoutOf(kBalance));
  report.setSource(rows.connection(), SampleRows::all());
  report.onFormat(u"Detail", [&](SectionInstance&) { QVERIFY(report.buildFor(5)); });
  report.build();
  QCOMPARE(report.document()->page(0).items(u"Numero").size(), 10);
}

void FormatRoutinesTest::mayCancel() {
  SampleRows rows(60);
  Report report(layoutOf(kBalance));
  report.setSource(rows.connection(), SampleRows::all());
  report.onFormat(u"PageFooter", [&](SectionInstance&) { report.cancel(); });
  report.build();
  QCOMPARE(report.state(), Report::State::Cancelled);
  QCOMPARE(report.document()->pageCount(), 1);
}

QUARTELA_TEST_MAIN(FormatRoutinesTest)
#include "FormatRoutines_test.moc"
