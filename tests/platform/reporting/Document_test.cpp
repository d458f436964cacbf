#include "platform/reporting/Document.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include "platform/reporting/PagePainter.h"
#include "platform/reporting/Report.h"
#include "tests/platform/reporting/SampleReport.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::reporting;
using quartela::test::errorOf;
using quartela::test::layoutOf;
using quartela::test::SampleRows;

namespace {

constexpr double kDotsPerTwip = 0.1;

// The page's dots, 144 to the inch.
QImage painted(const Page& page, const QRectF& exposed = {}) {
  QImage image((QSizeF(page.size()) * kDotsPerTwip).toSize(), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(kDotsPerTwip, kDotsPerTwip);
  paintPage(painter, page, exposed);
  return image;
}

// The smallest rectangle of twips that holds all that is not white.
QRect inked(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != qRgb(255, 255, 255)) {
        ink |= QRect(x, y, 1, 1);
      }
    }
  }
  return {ink.x() * 10, ink.y() * 10, ink.width() * 10, ink.height() * 10};
}

ReportLayout oneElementLayout(const QByteArray& kind, const QByteArray& more) {
  return layoutOf(R"({"kind": "Detail", "height": 4000, "elements": [{"kind": ")" + kind +
                  R"(", "name": "e", "left": 1000, "top": 1000, "width": 3000, "height": 1000)" +
                  more + "}]}");
}

QRect inkOf(const QByteArray& kind, const QByteArray& more) {
  Report report(oneElementLayout(kind, more));
  report.build();
  return inked(painted(report.document()->page(0)));
}

}  // namespace

class DocumentTest : public QObject {
  Q_OBJECT

 private slots:
  void keepsTexts_data();
  void keepsTexts();
  void keepsManyTexts();
  void sameTextIsKeptOnce();
  void aRowIsKeptAsOneItem();
  void rowsOfManyLooksAreKept();
  void textStandsWhereItIsAligned_data();
  void textStandsWhereItIsAligned();
  void textStaysInItsBox();
  void paintsLinesAndShapes();
  void paintsPictures_data();
  void paintsPictures();
  void pictureErrors();
  void paintsOnlyWhatIsExposed();
};

void DocumentTest::keepsTexts_data() {
  QTest::addColumn<QString>("text");
  QTest::newRow("empty") << "";
  QTest::newRow("accents") << QString::fromUtf8("Orgão 😀");
  QTest::newRow("254") << QString(254, QLatin1Char('x'));
  QTest::newRow("255") << QString(255, QLatin1Char('x'));
  QTest::newRow("larger than a block") << QString(300'000, QLatin1Char('x'));
}

void DocumentTest::keepsTexts() {
  QFETCH(QString, text);
  TextStore store;
  const std::uint32_t before = store.add(QStringLiteral("antes"));
  const std::uint32_t place = store.add(text);
  const std::uint32_t after = store.add(QStringLiteral("depois"));
  QCOMPARE(store.at(before), QStringLiteral("antes"));
  QCOMPARE(store.at(place), text);
  QCOMPARE(store.at(after), QStringLiteral("depois"));
}

void DocumentTest::keepsManyTexts() {
  TextStore store;
  std::vector<std::uint32_t> places;
  for (int number = 0; number < 100'000; ++number) {
    places.push_back(store.add(QString::number(number)));
  }
  for (int number = 0; number < 100'000; ++number) {
    QCOMPARE(store.at(places[static_cast<std::size_t>(number)]), QString::number(number));
  }
}

void DocumentTest::sameTextIsKeptOnce() {
  SampleRows rows(300);
  Report report(layoutOf(R"({"kind": "PageHeader", "height": 300, "elements": [
      {"kind": "Label", "name": "a", "left": 0, "top": 0, "width": 5000, "height": 250,
       "text": "CABECALHO DA PAGINA"}]}, {"kind": "Detail", "height": 5000})"));
  report.setSource(rows.connection(), SampleRows::all());
  report.build();
  QVERIFY(report.document()->pageCount() >= 100);
  QVERIFY(report.document()->textBytes() < 50);
  QCOMPARE(report.document()->page(99).text(u"a"), QStringLiteral("CABECALHO DA PAGINA"));
}

namespace {

const char* const kRuledRow = R"({"kind": "Detail", "height": 300, "elements": [
      {"kind": "Field", "name": "a", "left": 0, "top": 0, "width": 2000, "height": 250,
       "column": "RAZAO"},
      {"kind": "Line", "name": "b", "left": 2000, "top": 0, "width": 0, "height": 300},
      {"kind": "Field", "name": "c", "left": 2100, "top": 0, "width": 2000, "height": 250,
       "column": "DOCUMENTO"},
      {"kind": "Line", "name": "d", "left": 0, "top": 300, "width": 5000, "height": 0}]})";

}  // namespace

void DocumentTest::aRowIsKeptAsOneItem() {
  SampleRows rows(300);
  Report report(layoutOf(kRuledRow));
  report.setSource(rows.connection(), SampleRows::all());
  report.build();
  const auto document = report.document();
  // An item of sixteen bytes for each row, and little for each page.
  QVERIFY2(document->itemBytes() <
               static_cast<std::size_t>(300 * 16 + 64 * 16 + document->pageCount() * 64),
           qPrintable(QString::number(document->itemBytes())));
  const Page page = document->page(1);
  const int before = static_cast<int>(document->page(0).items(u"a").size());
  const QList<PlacedItem> items = page.items();
  QCOMPARE(items.size(), page.items(u"a").size() * 4);
  QCOMPARE(items[4].element, QStringLiteral("a"));
  QCOMPARE(items[4].text, QStringLiteral("Fornecedor %1").arg(before + 2));
  QCOMPARE(items[4].rect, QRect(1000, 1300, 2000, 250));
  QCOMPARE(items[5].rect, QRect(3000, 1300, 0, 300));
  QCOMPARE(items[6].text, QStringLiteral("NF %1").arg(before + 2));
  QCOMPARE(items[6].section, QStringLiteral("Detail"));
  QCOMPARE(items[7].rect, QRect(1000, 1600, 5000, 0));
  QVERIFY(items[7].kind == ItemKind::Line);
}

// Each row has its field at another place.
void DocumentTest::rowsOfManyLooksAreKept() {
  SampleRows rows(200);
  Report report(layoutOf(kRuledRow));
  report.setSource(rows.connection(), SampleRows::all());
  report.onFormat(u"Detail", [](SectionInstance& section) {
    section.element(u"c").setPosition(2100 + section.row(), 0);
  });
  report.build();
  int row = 0;
  for (const Page& page : report.document()->pages()) {
    for (const PlacedItem& item : page.items(u"c")) {
      ++row;
      QCOMPARE(item.rect.left(), 1000 + 2100 + row);
      QCOMPARE(item.text, QStringLiteral("NF %1").arg(row));
    }
  }
  QCOMPARE(row, 200);
}

void DocumentTest::textStandsWhereItIsAligned_data() {
  QTest::addColumn<QByteArray>("align");
  QTest::addColumn<int>("left");
  QTest::addColumn<int>("top");
  // Three letters of 120 twips in a box of 3000 x 1000 at 2000, 2000.
  QTest::newRow("left, top") << QByteArray(R"("left", "verticalAlign": "top")") << 2000 << 2000;
  QTest::newRow("center, middle") << QByteArray(R"("center", "verticalAlign": "middle")") << 3320
                                  << 2390;
  QTest::newRow("right, bottom") << QByteArray(R"("right", "verticalAlign": "bottom")") << 4640
                                 << 2773;
}

void DocumentTest::textStandsWhereItIsAligned() {
  QFETCH(QByteArray, align);
  QFETCH(int, left);
  QFETCH(int, top);
  const QRect ink = inkOf("Label", R"(, "text": "HHH", "align": )" + align);
  const QRect line(left, top, 360, 230);
  QVERIFY2(line.adjusted(-10, -10, 10, 10).contains(ink), qPrintable(QStringLiteral("%1 %2 %3 %4")
                                                                         .arg(ink.x())
                                                                         .arg(ink.y())
                                                                         .arg(ink.width())
                                                                         .arg(ink.height())));
  QVERIFY(ink.width() > 300 && ink.height() > 100);
}

void DocumentTest::textStaysInItsBox() {
  const QByteArray longText = QByteArray("palavra ").repeated(200);
  for (const char* wrap : {"true", "false"}) {
    const QRect ink =
        inkOf("Label", QByteArray(R"(, "wordWrap": )") + wrap + R"(, "text": ")" + longText + "\"");
    QVERIFY(QRect(2000, 2000, 3000, 1000).adjusted(-10, -10, 10, 10).contains(ink));
    QVERIFY(ink.width() > 2500);
  }
}

void DocumentTest::paintsLinesAndShapes() {
  QCOMPARE(inkOf("Line", "").topLeft(), QPoint(2000, 2000));
  const QRect frame = inkOf("Shape", "");
  QVERIFY(QRect(2000, 2000, 3000, 1000).adjusted(-20, -20, 20, 20).contains(frame));
  QVERIFY(frame.contains(QRect(2020, 2020, 2960, 960)));
  QCOMPARE(inkOf("Shape", R"(, "lineWeight": 0, "backColor": "#808080")"),
           QRect(2000, 2000, 3000, 1000));
  QVERIFY(inkOf("Shape", R"(, "lineWeight": 0)").isEmpty());
}

void DocumentTest::paintsPictures_data() {
  QTest::addColumn<QString>("name");
  QTest::newRow("drawing") << "a.svg";
  QTest::newRow("dots") << "a.png";
}

// A square stands in the middle of its box, undistorted.
void DocumentTest::paintsPictures() {
  QFETCH(QString, name);
  const QTemporaryDir folder;
  const QString path = folder.filePath(name);
  if (name.endsWith(QLatin1String("svg"))) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 10 10">
        <rect width="10" height="10" fill="#123456"/></svg>)");
  } else {
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(0x123456);
    QVERIFY(image.save(path));
  }
  const QRect ink = inkOf("Image", R"(, "image": ")" + path.toUtf8() + "\"");
  QVERIFY(QRect(2990, 1990, 1020, 1020).contains(ink));
  QVERIFY(ink.contains(QRect(3010, 2010, 980, 980)));
}

void DocumentTest::pictureErrors() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("a.svg"));
  Report missing(oneElementLayout("Image", R"(, "image": ")" + path.toUtf8() + "\""));
  QCOMPARE(errorOf([&] { missing.start(); }), 53);
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write("no picture");
  file.close();
  QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Cannot read file.*")));
  QCOMPARE(errorOf([&] { missing.start(); }), 481);
}

void DocumentTest::paintsOnlyWhatIsExposed() {
  Report report(oneElementLayout("Shape", ""));
  report.build();
  const Page page = report.document()->page(0);
  QVERIFY(inked(painted(page, QRectF(0, 0, 500, 500))).isEmpty());
  QVERIFY(!inked(painted(page, QRectF(2500, 2500, 100, 100))).isEmpty());
}

QUARTELA_TEST_MAIN(DocumentTest)
#include "Document_test.moc"
