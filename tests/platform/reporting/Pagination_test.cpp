#include <QTest>

#include "platform/reporting/Block.h"
#include "platform/reporting/Report.h"
#include "tests/platform/reporting/SampleReport.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::reporting;
using quartela::test::errorOf;
using quartela::test::layoutOf;
using quartela::test::SampleRows;
using quartela::test::textsOf;

namespace {

// Between the margins of the sample's paper.
constexpr int kBody = 14838;
constexpr int kTop = 1000;

QByteArray section(const QByteArray& kind, int height, const QByteArray& elements,
                   const QByteArray& more = "") {
  return R"({"kind": ")" + kind + R"(", "height": )" + QByteArray::number(height) + more +
         R"(, "elements": [)" + elements + "]}";
}

QByteArray field(const QByteArray& name, int top, int height, const QByteArray& more = "") {
  return R"({"kind": "Field", "name": ")" + name + R"(", "left": 0, "width": 2400, "top": )" +
         QByteArray::number(top) + R"(, "height": )" + QByteArray::number(height) + more + "}";
}

const QByteArray kNumber = R"(, "column": "IDENTIFICA")";
const QByteArray kMemo = R"(, "wordWrap": true, "canGrow": true)";

struct Built {
  Built(const QByteArray& sections, int rowCount) : rows(rowCount), report(layoutOf(sections)) {
    report.setSource(rows.connection(), SampleRows::all());
  }
  QList<Page> pages() {
    report.build();
    return report.document()->pages();
  }
  SampleRows rows;
  Report report;
};

int topOf(const Page& page, QStringView element, int index = 0) {
  return page.items(element).at(index).rect.y();
}

int heightOf(const Page& page, QStringView element) {
  return page.items(element).at(0).rect.height();
}

// Words that make so many lines of twenty letters in a box of 2400 twips.
QString words(int lines) {
  return QStringLiteral("uma palavra por vez ").repeated(lines).trimmed();
}

}  // namespace

class PaginationTest : public QObject {
  Q_OBJECT

 private slots:
  void reportHeaderStandsAboveThePageHeader();
  void reportHeaderCanHaveItsOwnPage();
  void reportFooterMovesOnWhole();
  void newPageBeforeAndAfter();
  void pageBreakParts();
  void headingStaysWithItsFirstRow();
  void growingMovesWhatFollows();
  void growingMovesOnlyWhatStandsBelow();
  void shrinkingDrawsUp();
  void shapesStretch();
  void grownRowMovesOn();
  void textThatMayNotGrowIsCut();
  void textIsSetSmallerBeforeItIsCut_data();
  void textIsSetSmallerBeforeItIsCut();
  void textTakesTheRoomRoundItsBox_data();
  void textTakesTheRoomRoundItsBox();
  void sectionHigherThanAPageIsParted();
  void partedSectionMayBeginBelowOthers();
  void headersWithoutPlaceAre5();
  void bandIsAsWideAsPrint();
  void splitGivesWayToWhatMovesOn();
};

void PaginationTest::reportHeaderStandsAboveThePageHeader() {
  Built built(section("ReportHeader", 1000, field("rh", 0, 250, R"(, "text": "rh")")) + "," +
                  section("PageHeader", 500, field("ph", 0, 250, R"(, "text": "ph")")) + "," +
                  section("Detail", 1000, field("n", 0, 250, kNumber)),
              14);
  const QList<Page> pages = built.pages();
  QCOMPARE(pages.size(), 2);
  QCOMPARE(topOf(pages[0], u"rh"), kTop);
  QCOMPARE(topOf(pages[0], u"ph"), kTop + 1000);
  QCOMPARE(topOf(pages[0], u"n"), kTop + 1500);
  QCOMPARE(pages[0].items(u"n").size(), 13);
  QCOMPARE(pages[1].items(u"rh").size(), 0);
  QCOMPARE(topOf(pages[1], u"ph"), kTop);
  QCOMPARE(topOf(pages[1], u"n"), kTop + 500);
}

void PaginationTest::reportHeaderCanHaveItsOwnPage() {
  Built built(section("ReportHeader", 1000, field("rh", 0, 250, R"(, "text": "rh")"),
                      R"(, "newPage": "after")") +
                  "," + section("PageHeader", 500, field("ph", 0, 250, R"(, "text": "ph")")) + "," +
                  section("Detail", 1000, field("n", 0, 250, kNumber)),
              1);
  const QList<Page> pages = built.pages();
  QCOMPARE(pages.size(), 2);
  QCOMPARE(pages[0].items().size(), 1);
  QCOMPARE(topOf(pages[1], u"ph"), kTop);
}

void PaginationTest::reportFooterMovesOnWhole() {
  Built built(section("Detail", 1000, field("n", 0, 250, kNumber)) + "," +
                  section("ReportFooter", 900, field("rf", 0, 250, R"(, "text": "rf")")),
              14);
  const QList<Page> pages = built.pages();
  QCOMPARE(pages.size(), 2);
  QCOMPARE(pages[0].items(u"n").size(), 14);
  QCOMPARE(topOf(pages[1], u"rf"), kTop);
}

void PaginationTest::newPageBeforeAndAfter() {
  Built before(section("Detail", 500, field("n", 0, 250, kNumber), R"(, "newPage": "before")"), 3);
  QCOMPARE(before.pages().size(), 3);
  Built after(section("Detail", 500, field("n", 0, 250, kNumber), R"(, "newPage": "after")"), 3);
  QCOMPARE(after.pages().size(), 3);
  QCOMPARE(after.report.document()->page(2).text(u"n"), QStringLiteral("3"));
}

void PaginationTest::pageBreakParts() {
  Built built(section("Detail", 1000,
                      field("acima", 0, 250, kNumber) +
                          R"(,{"kind": "PageBreak", "name": "q", "top": 400},)" +
                          field("abaixo", 600, 250, kNumber)),
              2);
  const QList<Page> pages = built.pages();
  QCOMPARE(pages.size(), 3);
  QCOMPARE(pages[0].text(u"acima"), QStringLiteral("1"));
  QCOMPARE(pages[0].items(u"abaixo").size(), 0);
  QCOMPARE(pages[1].text(u"abaixo"), QStringLiteral("1"));
  QCOMPARE(topOf(pages[1], u"abaixo"), kTop + 200);
  QCOMPARE(topOf(pages[1], u"acima"), kTop + 600);
  QCOMPARE(pages[2].text(u"abaixo"), QStringLiteral("2"));
}

// Fifteen rows and three headings leave room for a fourth heading, but not for a row below it.
void PaginationTest::headingStaysWithItsFirstRow() {
  Built built(section("GroupHeader", 400, field("g", 0, 250, R"(, "column": "IDENT_TRANSP")"),
                      R"(, "group": "g", "column": "IDENT_TRANSP")") +
                  "," + section("Detail", 875, field("n", 0, 250, kNumber)),
              16);
  const QList<Page> pages = built.pages();
  QCOMPARE(pages.size(), 2);
  QCOMPARE(pages[0].items(u"n").size(), 15);
  QCOMPARE(pages[0].items(u"g").size(), 3);
  QCOMPARE(pages[1].text(u"g"), QStringLiteral("4"));
  QCOMPARE(topOf(pages[1], u"n"), kTop + 400);
}

void PaginationTest::growingMovesWhatFollows() {
  Built built(
      section("Detail", 1000,
              field("memo", 0, 300, kMemo) + "," + field("abaixo", 400, 300, R"(, "text": "x")")),
      2);
  built.report.setText(u"memo", words(4));
  const QList<Page> pages = built.pages();
  const PlacedItem memo = pages[0].items(u"memo").at(0);
  QCOMPARE(memo.lines.size(), 4);
  const int grown = memo.rect.height() - 300;
  QVERIFY(grown > 3 * 200);
  QCOMPARE(topOf(pages[0], u"abaixo"), kTop + 400 + grown);
  QCOMPARE(topOf(pages[0], u"memo", 1), kTop + 1000 + grown);
}

void PaginationTest::growingMovesOnlyWhatStandsBelow() {
  const QByteArray beside =
      R"({"kind": "Label", "name": "ao lado", "left": 3000, "top": 200, "width": 900, "height": 250,
          "text": "x"})";
  Built built(section("Detail", 1000, field("memo", 0, 300, kMemo) + "," + beside), 1);
  built.report.setText(u"memo", words(4));
  const QList<Page> pages = built.pages();
  QCOMPARE(topOf(pages[0], u"ao lado"), kTop + 200);
}

void PaginationTest::shrinkingDrawsUp() {
  Built built(section("Detail", 1000,
                      field("vazio", 0, 300, R"(, "canShrink": true)") + "," +
                          field("n", 400, 300, kNumber),
                      R"(, "canShrink": true)"),
              2);
  const QList<Page> pages = built.pages();
  QCOMPARE(topOf(pages[0], u"n"), kTop + 100);
  QCOMPARE(topOf(pages[0], u"n", 1), kTop + 700 + 100);
}

void PaginationTest::shapesStretch() {
  Built built(section("Detail", 500,
                      R"({"kind": "Shape", "name": "quadro", "left": 0, "top": 0, "width": 9000,
                  "height": 500, "stretch": true},
                 {"kind": "Line", "name": "regua", "left": 4500, "top": 0, "width": 0,
                  "height": 500, "stretch": true},
                 {"kind": "Line", "name": "pe", "left": 0, "top": 450, "width": 9000,
                  "height": 0, "stretch": true},)" +
                          field("memo", 50, 300, kMemo)),
              1);
  built.report.setText(u"memo", words(6));
  const QList<Page> pages = built.pages();
  const int grown = heightOf(pages[0], u"memo") - 300;
  QVERIFY(grown > 0);
  QCOMPARE(heightOf(pages[0], u"quadro"), 500 + grown);
  QCOMPARE(heightOf(pages[0], u"regua"), 500 + grown);
  QCOMPARE(heightOf(pages[0], u"pe"), 0);
  QCOMPARE(topOf(pages[0], u"pe"), kTop + 450 + grown);
}

// The eleventh row would have had room, but not with what it grew by.
void PaginationTest::grownRowMovesOn() {
  Built built(
      section("Detail", 1400, field("n", 0, 250, kNumber) + "," + field("memo", 300, 250, kMemo)) +
          "," +
          section("PageFooter", 500,
                  field("ultimo", 0, 250, kNumber) +
                      R"(,{"kind": "Field", "name": "soma", "left": 3000, "top": 0,
                                  "width": 2000, "height": 250, "column": "VALOR",
                                  "format": "#,##0.00", "summary": "sum"})"),
      11);
  built.report.onFormat(u"Detail", [](SectionInstance& row) {
    row.setText(u"memo", words(row.row() == 10 ? 9 : 1));
  });
  const QList<Page> pages = built.pages();
  QCOMPARE(pages.size(), 2);
  QCOMPARE(pages[0].items(u"n").size(), 9);
  QCOMPARE(pages[0].text(u"ultimo"), QStringLiteral("9"));
  QCOMPARE(pages[0].text(u"soma"), QStringLiteral("450,00"));
  QCOMPARE(pages[1].text(u"n"), QStringLiteral("10"));
  QCOMPARE(pages[1].items(u"memo").at(0).lines.size(), 9);
  QCOMPARE(pages[1].text(u"soma"), QStringLiteral("660,00"));
}

void PaginationTest::textThatMayNotGrowIsCut() {
  Built built(section("Detail", 1000,
                      field("fixo", 0, 460, R"(, "wordWrap": true)") + "," +
                          field("abaixo", 460, 250, R"(, "text": "x")")),
              1);
  built.report.setText(u"fixo", words(5));
  const QList<Page> pages = built.pages();
  const PlacedItem fixed = pages[0].items(u"fixo").at(0);
  QCOMPARE(fixed.lines.size(), 2);
  QVERIFY(fixed.text.endsWith(QChar(0x2026)));
  QCOMPARE(fixed.rect.height(), 460);
  QCOMPARE(topOf(pages[0], u"abaixo"), kTop + 460);
}

void PaginationTest::textIsSetSmallerBeforeItIsCut_data() {
  QTest::addColumn<int>("letters");
  QTest::addColumn<QString>("more");
  QTest::addColumn<double>("points");
  QTest::addColumn<bool>("cut");
  // 2400 twips hold 20 letters of ten points, 21 of 9.5, 22 of nine, 23 of 8.5 and 8.6.
  const QString smallest = QStringLiteral(R"(, "smallest": 8.6)");
  QTest::newRow("fits") << 20 << smallest << 10.0 << false;
  QTest::newRow("half a point less") << 21 << smallest << 9.5 << false;
  QTest::newRow("a point less") << 22 << smallest << 9.0 << false;
  QTest::newRow("the smallest") << 23 << smallest << 8.6 << false;
  QTest::newRow("too much for the smallest") << 24 << smallest << 8.6 << true;
  QTest::newRow("not wanted") << 21 << QString() << 10.0 << true;
  // Two lines of ten points have room in the height, three of eight as well.
  const QString wrapped = QStringLiteral(R"(, "wordWrap": true, "smallest": 6)");
  QTest::newRow("wrapped") << 40 << wrapped << 10.0 << false;
  QTest::newRow("wrapped, smaller") << 75 << wrapped << 8.0 << false;
}

// The box is 2400 twips wide and 240 high, which is one line of ten points.
void PaginationTest::textTakesTheRoomRoundItsBox_data() {
  QTest::addColumn<int>("letters");
  QTest::addColumn<QString>("more");
  QTest::addColumn<double>("points");
  QTest::addColumn<QRect>("place");
  QTest::addColumn<int>("lines");
  const QRect box(0, 0, 2400, 240);
  const QString sideways =
      QStringLiteral(R"(, "smallest": 8, "room": {"left": 120, "right": 240})");
  const QRect wide(-120, 0, 2760, 240);
  QTest::newRow("not needed") << 20 << sideways << 10.0 << box << 1;
  QTest::newRow("sideways") << 21 << sideways << 10.0 << wide << 1;
  QTest::newRow("all of it") << 23 << sideways << 10.0 << wide << 1;
  QTest::newRow("and smaller") << 24 << sideways << 9.5 << wide << 1;
  const QString upward =
      QStringLiteral(R"(, "wordWrap": true, "smallest": 6, "room": {"top": 240, "bottom": 10})");
  const QRect high(0, -240, 2400, 490);
  QTest::newRow("no second line") << 20 << upward << 10.0 << box << 1;
  QTest::newRow("a second line") << 21 << upward << 10.0 << high << 2;
  QTest::newRow("a smaller one in the room") << 42 << upward << 9.5 << high << 2;
  const QString growing = QStringLiteral(R"(, "wordWrap": true, "smallest": 8, "canGrow": true)");
  QTest::newRow("smaller before it grows") << 24 << growing << 8.0 << box << 1;
  QTest::newRow("grows in its own type") << 60 << growing << 10.0 << QRect(0, 0, 2400, 680) << 3;
}

void PaginationTest::textTakesTheRoomRoundItsBox() {
  QFETCH(int, letters);
  QFETCH(QString, more);
  QFETCH(QRect, place);
  Built built(section("Detail", 1000, field("letras", 300, 240, more.toUtf8())), 1);
  const QString text = QString(letters, QLatin1Char('x'));
  built.report.setText(u"letras", text);
  const PlacedItem item = built.pages().at(0).items(u"letras").at(0);
  QFETCH(double, points);
  QCOMPARE(item.font.pixelSize(), static_cast<int>(points * kTwipsPerPoint));
  QCOMPARE(item.text, text);
  QTEST(static_cast<int>(item.lines.size()), "lines");
  QCOMPARE(item.rect, place.translated(1000, kTop + 300));
}

void PaginationTest::textIsSetSmallerBeforeItIsCut() {
  QFETCH(int, letters);
  QFETCH(QString, more);
  Built built(section("Detail", 1000, field("letras", 0, 545, more.toUtf8())), 2);
  const QString text = QString(letters, QLatin1Char('x'));
  built.report.setText(u"letras", text);
  const Page page = built.pages().at(0);
  const PlacedItem item = page.items(u"letras").at(1);
  QFETCH(double, points);
  QCOMPARE(item.font.pixelSize(), static_cast<int>(points * kTwipsPerPoint));
  QTEST(item.text != text, "cut");
  QCOMPARE(item.rect, QRect(1000, kTop + 1000, 2400, 545));
}

void PaginationTest::sectionHigherThanAPageIsParted() {
  Built built(section("Detail", 1000,
                      field("n", 0, 250, kNumber) + "," + field("memo", 300, 250, kMemo) + "," +
                          field("fim", 600, 250, R"(, "text": "fim")")),
              1);
  built.report.setText(u"memo", words(150));
  const QList<Page> pages = built.pages();
  QCOMPARE(pages.size(), 3);
  QStringList lines;
  for (const Page& page : pages) {
    for (const PlacedItem& item : page.items()) {
      QVERIFY(item.rect.y() >= kTop && item.rect.bottom() <= kTop + kBody);
    }
    for (const PlacedItem& item : page.items(u"memo")) {
      lines << item.lines;
    }
  }
  QCOMPARE(lines.size(), 150);
  QCOMPARE(lines.join(QLatin1Char(' ')), words(150));
  QCOMPARE(pages[2].text(u"fim"), QStringLiteral("fim"));
  QVERIFY(topOf(pages[2], u"fim") >= topOf(pages[2], u"memo") + heightOf(pages[2], u"memo"));
}

void PaginationTest::partedSectionMayBeginBelowOthers() {
  Built built(section("Detail", 6000,
                      field("a", 0, 250, kNumber) + "," + field("b", 3000, 250, kNumber) + "," +
                          field("c", 5500, 250, kNumber),
                      R"(, "keepTogether": false)"),
              3);
  const QList<Page> pages = built.pages();
  QCOMPARE(pages.size(), 2);
  QCOMPARE(textsOf(pages[0], u"a"), QStringList({"1", "2", "3"}));
  QCOMPARE(textsOf(pages[0], u"b"), QStringList({"1", "2"}));
  QCOMPARE(textsOf(pages[1], u"b"), QStringList({"3"}));
  QCOMPARE(textsOf(pages[1], u"c"), QStringList({"3"}));
}

void PaginationTest::headersWithoutPlaceAre5() {
  Report report(layoutOf(section("PageHeader", 14700, "") + "," + section("Detail", 100, "")));
  QCOMPARE(errorOf([&] { report.start(); }), 5);
}

void PaginationTest::bandIsAsWideAsPrint() {
  Built built(section("Detail", 500, field("n", 0, 250, kNumber), R"(, "backColor": "#eeeeee")"),
              1);
  const QList<PlacedItem> items = built.pages().at(0).items();
  QCOMPARE(items.size(), 2);
  QCOMPARE(items.at(0).kind, ItemKind::Area);
  QCOMPARE(items.at(0).rect, QRect(1000, kTop, 9000, 500));
}

// An item of 400 that crosses the cut goes down whole, and what stood below makes room for it.
void PaginationTest::splitGivesWayToWhatMovesOn() {
  Block block;
  block.height = 2000;
  const auto item = [](int top, int height) {
    BlockItem picture;
    picture.kind = ItemKind::Picture;
    picture.place = QRect(0, top, 10, height);
    return picture;
  };
  block.items = {item(0, 100), item(900, 400), item(1300, 100)};
  block.breaks = {1500};
  QCOMPARE(block.cleanCut(1000), 900);
  const Block rest = block.splitAt(1000);
  QCOMPARE(block.height, 1000);
  QCOMPARE(block.items.size(), std::size_t{1});
  QCOMPARE(rest.items.at(0).place, QRect(0, 0, 10, 400));
  QCOMPARE(rest.items.at(1).place, QRect(0, 400, 10, 100));
  QCOMPARE(rest.height, 1100);
  QCOMPARE(rest.breaks.at(0), 600);
}

QUARTELA_TEST_MAIN(PaginationTest)
#include "Pagination_test.moc"
