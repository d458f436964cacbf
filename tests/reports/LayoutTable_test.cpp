// The checks of layouts and pages find what they are there for.
#include "tests/reports/LayoutTable.h"

#include <QTest>

#include "tests/platform/reporting/SampleReport.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;

namespace {

// Two labels of 10 points side by side, touching nothing, and a line below them.
reporting::ReportLayout sample(
    const QByteArray& second = R"("left": 1000, "top": 0, "text": "b")") {
  return layoutOf(R"({"kind": "Detail", "height": 900, "elements": [
      {"kind": "Label", "name": "Label1", "left": 0, "top": 0, "width": 900, "height": 284,
       "text": "a"},
      {"kind": "Label", "name": "Label2", "width": 900, "height": 284, )" +
                  second + R"(},
      {"kind": "Field", "name": "Field1", "left": 0, "top": 400, "width": 900, "height": 284,
       "column": "VALOR", "format": "0", "visible": false},
      {"kind": "Line", "name": "Line1", "left": 0, "top": 700, "width": 9000, "height": 0}]})");
}

const QList<ElementRow> kTable{{"Detail", "Label1", {0, 0, 900, 284}, text("a")},
                               {"Detail", "Label2", {1000, 0, 900, 284}, text("b")},
                               {"Detail", "Field1", {0, 400, 900, 284}, column("VALOR"), "0"}};

std::shared_ptr<const reporting::Document> pagesOf(const QByteArray& second) {
  reporting::Report report(sample(second));
  report.build();
  return report.document();
}

}  // namespace

class LayoutTableTest : public QObject {
  Q_OBJECT

 private slots:
  void findsNothingWrong();
  void findsDifferences_data();
  void findsDifferences();
  void findsWhatIsNotListed();
  void findsMissingLines();
  void findsFlaws_data();
  void findsFlaws();
  void overprintIsNoCollision();
};

void LayoutTableTest::findsNothingWrong() {
  QCOMPARE(layoutDifferences(sample(), kTable), QString());
  QCOMPARE(unlistedElements(sample(), kTable), QString());
  QCOMPARE(missingLines(sample(), {{"Detail", 700, 9000}}), QString());
}

void LayoutTableTest::findsDifferences_data() {
  QTest::addColumn<ElementRow>("row");
  QTest::addColumn<QString>("problem");
  const QRect place(0, 400, 900, 284);
  QTest::newRow("place") << ElementRow{"Detail", "Label1", {0, 1, 900, 284}, text("a")}
                         << "Label1: place is \"0,0 900x284\" instead of \"0,1 900x284\"";
  QTest::newRow("text") << ElementRow{"Detail", "Label1", {0, 0, 900, 284}, text("A")}
                        << "Label1: text is \"a\" instead of \"A\"";
  QTest::newRow("column") << ElementRow{"Detail", "Field1", place, column("X"), "0"}
                          << "Field1: column is \"VALOR\" instead of \"X\"";
  QTest::newRow("format") << ElementRow{"Detail", "Field1", place, column("VALOR")}
                          << "Field1: format is \"0\" instead of \"\"";
  QTest::newRow("section") << ElementRow{"PageHeader", "Field1", place, column("VALOR"), "0"}
                           << "PageHeader/Field1 is missing";
}

void LayoutTableTest::findsDifferences() {
  QFETCH(ElementRow, row);
  QFETCH(QString, problem);
  QCOMPARE(layoutDifferences(sample(), {row}), problem);
}

void LayoutTableTest::findsWhatIsNotListed() {
  QCOMPARE(unlistedElements(sample(), kTable.mid(0, 1)), QStringLiteral("Label2 Field1"));
}

void LayoutTableTest::findsMissingLines() {
  QCOMPARE(missingLines(sample(), {{"Detail", 701, 9000}, {"Detail", 700, 9000, 5}}),
           QStringLiteral("Detail 0,701 9000x0\nDetail 5,700 9000x0"));
}

void LayoutTableTest::findsFlaws_data() {
  QTest::addColumn<QByteArray>("second");
  QTest::addColumn<QString>("collisionsFound");
  QTest::addColumn<QString>("cutsFound");
  QTest::addColumn<QString>("off");
  const QString none;
  QTest::newRow("none") << QByteArray(R"("left": 1000, "top": 0, "text": "b")") << none << none
                        << none;
  QTest::newRow("letters on letters")
      << QByteArray(R"("left": 60, "top": 100, "text": "b")") << "Label1 on Label2" << none << none;
  QTest::newRow("boxes only") << QByteArray(R"("left": 130, "top": 0, "text": "b")") << none << none
                              << none;
  QTest::newRow("at the other end")
      << QByteArray(R"("left": 0, "top": 0, "text": "b", "align": "right")") << none << none
      << none;
  QTest::newRow("cut") << QByteArray(R"("left": 1000, "top": 0, "text": "bbbbbbbbbb")") << none
                       << QStringLiteral("Label2: bbbbbb\u2026") << none;
  QTest::newRow("off the paper") << QByteArray(R"("left": 10100, "top": 0, "text": "b")") << none
                                 << none << "Label2";
}

void LayoutTableTest::findsFlaws() {
  QFETCH(QByteArray, second);
  QFETCH(QString, collisionsFound);
  QFETCH(QString, cutsFound);
  QFETCH(QString, off);
  const auto document = pagesOf(second);
  QCOMPARE(collisions(document->page(0)), collisionsFound);
  QCOMPARE(cutTexts(document->page(0)), cutsFound);
  QCOMPARE(offPaper(document->page(0)), off);
}

void LayoutTableTest::overprintIsNoCollision() {
  const auto document = pagesOf(R"("left": 0, "top": 0, "text": "b")");
  QCOMPARE(collisions(document->page(0)), QStringLiteral("Label1 on Label2"));
  QCOMPARE(collisions(document->page(0), {QStringLiteral("Label2")}), QString());
}

QUARTELA_TEST_MAIN(LayoutTableTest)
#include "LayoutTable_test.moc"
