#include "platform/reporting/LayoutReader.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "platform/values/RuntimeError.h"
#include "tests/platform/reporting/SampleReport.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::reporting;
using quartela::test::errorOf;
using quartela::test::layoutOf;

class LayoutReaderTest : public QObject {
  Q_OBJECT

 private slots:
  void readsThePage();
  void hasUsualValues();
  void readsASection();
  void readsATextElement();
  void readsAFieldsSource();
  void readsLinesAndImages();
  void fontsAreInherited();
  void refuses_data();
  void refuses();
  void tellsTheLineOfBrokenText();
  void readsAFile();
  void missingFileIs53();
};

void LayoutReaderTest::readsThePage() {
  const ReportLayout layout = parseLayout(
      R"({"name": "n", "title": "t", "printWidth": 8000, "emptyData": "nothing",
          "page": {"width": 16838, "height": 11906,
                   "margins": {"left": 1, "top": 2, "right": 3, "bottom": 4}}})",
      QStringLiteral("f"));
  QCOMPARE(layout.name, QStringLiteral("n"));
  QCOMPARE(layout.title, QStringLiteral("t"));
  QCOMPARE(layout.printWidth, 8000);
  QCOMPARE(layout.emptyData, EmptyData::Nothing);
  QCOMPARE(layout.paper, QSize(16838, 11906));
  QCOMPARE(layout.margins, QMargins(1, 2, 3, 4));
}

void LayoutReaderTest::hasUsualValues() {
  const ReportLayout layout = parseLayout(
      R"({"name": "n", "sections": [{"kind": "Detail", "height": 1, "elements": [
          {"kind": "Label", "name": "a", "left": 0, "top": 0, "width": 1, "height": 1}]}]})",
      QStringLiteral("f"));
  QCOMPARE(layout.title, QStringLiteral("n"));
  QCOMPARE(layout.paper, QSize(11906, 16838));
  QCOMPARE(layout.emptyData, EmptyData::Headings);
  const SectionLayout& section = layout.sections.at(0);
  QCOMPARE(section.name, QStringLiteral("Detail"));
  QVERIFY(section.canGrow && section.keepTogether && section.visible);
  QVERIFY(!section.canShrink && !section.repeatOnPage && !section.backColor.isValid());
  QCOMPARE(section.newPage, NewPage::None);
  const ElementLayout& element = section.elements.at(0);
  QVERIFY(element.visible && !element.wordWrap && !element.canGrow && !element.canShrink);
  QCOMPARE(element.align, Alignment::Left);
  QCOMPARE(element.color, QColor(Qt::black));
  QCOMPARE(element.font, FontSpec());
}

void LayoutReaderTest::readsASection() {
  const ReportLayout layout = layoutOf(
      R"({"kind": "GroupHeader", "name": "Cabeca", "height": 300, "canGrow": false,
          "canShrink": true, "keepTogether": false, "visible": false, "repeatOnPage": true,
          "newPage": "both", "group": "g", "column": "C", "backColor": "#c0c0c0"},
         {"kind": "GroupFooter", "height": 0, "group": "g", "newPage": "after"})");
  const SectionLayout& section = layout.sections.at(0);
  QCOMPARE(section.kind, SectionKind::GroupHeader);
  QCOMPARE(section.name, QStringLiteral("Cabeca"));
  QCOMPARE(section.height, 300);
  QVERIFY(!section.canGrow && section.canShrink && !section.keepTogether && !section.visible);
  QVERIFY(section.repeatOnPage);
  QCOMPARE(section.newPage, NewPage::Both);
  QCOMPARE(section.group, QStringLiteral("g"));
  QCOMPARE(section.column, QStringLiteral("C"));
  QCOMPARE(section.backColor, QColor(0xC0, 0xC0, 0xC0));
  QCOMPARE(layout.sections.at(1).kind, SectionKind::GroupFooter);
  QCOMPARE(layout.sections.at(1).newPage, NewPage::After);
}

void LayoutReaderTest::readsATextElement() {
  const ReportLayout layout = layoutOf(
      R"({"kind": "Detail", "height": 300, "elements": [
          {"kind": "Label", "name": "a", "left": 1, "top": 2, "width": 3, "height": 4,
           "text": "Orgão", "visible": false, "align": "right", "verticalAlign": "bottom",
           "wordWrap": true, "canGrow": true, "canShrink": true, "smallest": 7.5,
           "room": {"left": 5, "top": 6, "bottom": 7},
           "color": "#ff0000", "backColor": "#00ff00"}]})");
  const ElementLayout& element = layout.sections.at(0).elements.at(0);
  QCOMPARE(element.kind, ElementKind::Label);
  QCOMPARE(element.name, QStringLiteral("a"));
  QCOMPARE(element.place, QRect(1, 2, 3, 4));
  QCOMPARE(element.text, QStringLiteral("Orgão"));
  QVERIFY(!element.visible && element.wordWrap && element.canGrow && element.canShrink);
  QCOMPARE(element.align, Alignment::Right);
  QCOMPARE(element.verticalAlign, VerticalAlignment::Bottom);
  QCOMPARE(element.smallest, 7.5);
  QCOMPARE(element.room, QMargins(5, 6, 0, 7));
  QCOMPARE(element.color, QColor(Qt::red));
  QCOMPARE(element.backColor, QColor(Qt::green));
}

void LayoutReaderTest::readsAFieldsSource() {
  const ReportLayout layout = layoutOf(
      R"({"kind": "GroupHeader", "height": 0, "group": "g"},
         {"kind": "Detail", "height": 300, "elements": [
          {"kind": "Field", "name": "a", "left": 0, "top": 0, "width": 1, "height": 1,
           "column": "VALOR", "optional": true, "format": "#,##0.00", "summary": "sum", "over": "g"},
          {"kind": "Field", "name": "b", "left": 0, "top": 0, "width": 1, "height": 1,
           "shows": "pageTotal"},
          {"kind": "BarCode", "name": "c", "left": 0, "top": 0, "width": 1, "height": 1},
          {"kind": "SubReport", "name": "d", "left": 0, "top": 0, "width": 1, "height": 1},
          {"kind": "PageBreak", "name": "e", "top": 7}]})");
  const std::vector<ElementLayout>& elements = layout.sections.at(1).elements;
  QCOMPARE(elements.at(0).column, QStringLiteral("VALOR"));
  QVERIFY(elements.at(0).optional);
  QCOMPARE(elements.at(0).format, QStringLiteral("#,##0.00"));
  QCOMPARE(elements.at(0).summary, Summary::Sum);
  QCOMPARE(elements.at(0).over, QStringLiteral("g"));
  QCOMPARE(elements.at(1).shows, Shows::PageTotal);
  QCOMPARE(elements.at(2).kind, ElementKind::BarCode);
  QCOMPARE(elements.at(3).kind, ElementKind::SubReport);
  QCOMPARE(elements.at(4).kind, ElementKind::PageBreak);
  QCOMPARE(elements.at(4).place, QRect(0, 7, 0, 0));
}

void LayoutReaderTest::readsLinesAndImages() {
  const ReportLayout layout = layoutOf(
      R"({"kind": "Detail", "height": 300, "elements": [
          {"kind": "Line", "name": "a", "left": -1000, "top": 0, "width": 9, "height": 0,
           "lineStyle": "dash", "lineWeight": 20, "stretch": true},
          {"kind": "Image", "name": "b", "left": 0, "top": 0, "width": 1, "height": 1,
           "image": "crest.svg"},
          {"kind": "Image", "name": "c", "left": 0, "top": 0, "width": 1, "height": 1,
           "image": ":/crest.svg"}]})");
  const std::vector<ElementLayout>& elements = layout.sections.at(0).elements;
  QCOMPARE(elements.at(0).place, QRect(-1000, 0, 9, 0));
  QCOMPARE(elements.at(0).lineStyle, LineStyle::Dash);
  QCOMPARE(elements.at(0).lineWeight, 20);
  QVERIFY(elements.at(0).stretch);
  QCOMPARE(elements.at(1).image, QStringLiteral("./crest.svg"));
  QCOMPARE(elements.at(2).image, QStringLiteral(":/crest.svg"));
}

void LayoutReaderTest::fontsAreInherited() {
  const ReportLayout layout = layoutOf(
      R"({"kind": "Detail", "height": 300, "font": {"size": 8.5, "italic": true}, "elements": [
          {"kind": "Label", "name": "a", "left": 0, "top": 0, "width": 1, "height": 1,
           "font": {"family": "Liberation Sans", "bold": true, "underline": true}}]})");
  const FontSpec font = layout.sections.at(0).elements.at(0).font;
  QCOMPARE(font.family, QStringLiteral("Liberation Sans"));
  QCOMPARE(font.points, 8.5);
  QVERIFY(font.bold && font.italic && font.underline);
}

void LayoutReaderTest::refuses_data() {
  QTest::addColumn<QByteArray>("json");
  QTest::addColumn<QString>("word");
  const auto inDetail = [](const QByteArray& element) {
    return R"({"name": "n", "sections": [{"kind": "Detail", "height": 9, "elements": [)" + element +
           "]}]}";
  };
  const auto sections = [](const QByteArray& text) {
    return R"({"name": "n", "sections": [)" + text + "]}";
  };
  const QByteArray place = R"("left": 0, "top": 0, "width": 1, "height": 1)";
  QTest::newRow("no object") << QByteArray("[]") << "objeto";
  QTest::newRow("no name") << QByteArray("{}") << "\"name\"";
  QTest::newRow("unknown key") << QByteArray(R"({"name": "n", "wdith": 1})") << "\"wdith\"";
  QTest::newRow("unknown section") << sections(R"({"kind": "Footer", "height": 1})") << "\"kind\"";
  QTest::newRow("section without height") << sections(R"({"kind": "Detail"})") << "\"height\"";
  QTest::newRow("two details")
      << sections(
             R"({"kind": "Detail", "height": 1}, {"kind": "Detail", "name": "x", "height": 1})")
      << "segunda";
  QTest::newRow("two names")
      << sections(
             R"({"kind": "Detail", "height": 1}, {"kind": "PageHeader", "name": "DETAIL", "height": 1})")
      << "duas se";
  QTest::newRow("group in a detail")
      << sections(R"({"kind": "Detail", "height": 1, "group": "g"})") << "\"group\"";
  QTest::newRow("group footer alone")
      << sections(R"({"kind": "GroupFooter", "height": 1, "group": "g"})") << "\"g\"";
  QTest::newRow("unknown element")
      << inDetail(R"({"kind": "Chart", "name": "a", )" + place + "}") << "Detail/a";
  QTest::newRow("element without name")
      << inDetail(R"({"kind": "Label", )" + place + "}") << "\"name\"";
  QTest::newRow("element without place")
      << inDetail(R"({"kind": "Label", "name": "a"})") << "\"left\"";
  QTest::newRow("negative width")
      << inDetail(
             R"({"kind": "Label", "name": "a", "left": 0, "top": 0, "width": -1, "height": 1})")
      << "\"width\"";
  QTest::newRow("beyond the paper's edge")
      << inDetail(
             R"({"kind": "Label", "name": "a", "left": -781, "top": 0, "width": 1, "height": 1})")
      << "\"left\"";
  QTest::newRow("above its section")
      << inDetail(
             R"({"kind": "Label", "name": "a", "left": 0, "top": -1, "width": 1, "height": 1})")
      << "\"top\"";
  QTest::newRow("place that is a text")
      << inDetail(
             R"({"kind": "Label", "name": "a", "left": "0", "top": 0, "width": 1, "height": 1})")
      << "\"left\"";
  QTest::newRow("half a twip")
      << inDetail(
             R"({"kind": "Label", "name": "a", "left": 0.5, "top": 0, "width": 1, "height": 1})")
      << "\"left\"";
  QTest::newRow("two elements") << inDetail(R"({"kind": "Label", "name": "a", )" + place +
                                            R"(}, {"kind": "Field", "name": "A", )" + place + "}")
                                << "dois elementos";
  QTest::newRow("unknown alignment")
      << inDetail(R"({"kind": "Label", "name": "a", "align": "middle", )" + place + "}")
      << "\"align\"";
  QTest::newRow("no colour") << inDetail(R"({"kind": "Label", "name": "a", "color": "azulado", )" +
                                         place + "}")
                             << "\"color\"";
  QTest::newRow("text that is a number")
      << inDetail(R"({"kind": "Label", "name": "a", "text": 1, )" + place + "}") << "\"text\"";
  QTest::newRow("flag that is a text")
      << inDetail(R"({"kind": "Label", "name": "a", "visible": "no", )" + place + "}")
      << "\"visible\"";
  QTest::newRow("smallest type above the type")
      << inDetail(R"({"kind": "Label", "name": "a", "smallest": 10.5, )" + place + "}")
      << "\"smallest\"";
  QTest::newRow("image without picture")
      << inDetail(R"({"kind": "Image", "name": "a", )" + place + "}") << "\"image\"";
  QTest::newRow("sum without column")
      << inDetail(R"({"kind": "Field", "name": "a", "summary": "sum", )" + place + "}")
      << "\"column\"";
  QTest::newRow("sum over no group")
      << inDetail(R"({"kind": "Field", "name": "a", "summary": "count", "over": "g", )" + place +
                  "}")
      << "\"g\"";
  QTest::newRow("total before its rows")
      << sections(R"({"kind": "ReportHeader", "height": 1, "elements": [
             {"kind": "Field", "name": "a", "summary": "count", )" +
                  place + "}]}")
      << "antes das suas linhas";
  QTest::newRow("font size") << QByteArray(R"({"name": "n", "font": {"size": 0}})") << "\"size\"";
  QTest::newRow("font key") << QByteArray(R"({"name": "n", "font": {"weight": 1}})")
                            << "\"weight\"";
  QTest::newRow("paper too large")
      << QByteArray(R"({"name": "n", "page": {"width": 40000}})") << "\"width\"";
}

void LayoutReaderTest::refuses() {
  QFETCH(QByteArray, json);
  QFETCH(QString, word);
  const auto error = test::raisedBy([&] { parseLayout(json, QStringLiteral("pasta/x.json")); });
  QVERIFY(error);
  QCOMPARE(error->number(), 5);
  const QString& description = error->description();
  QVERIFY2(description.contains(QStringLiteral("x.json")), qPrintable(description));
  QVERIFY2(description.contains(word), qPrintable(description));
}

void LayoutReaderTest::tellsTheLineOfBrokenText() {
  const auto error =
      test::raisedBy([] { parseLayout("{\n\"name\": \"n\",\n ]\n}", QStringLiteral("x.json")); });
  QVERIFY(error);
  QCOMPARE(error->number(), 5);
  QVERIFY2(error->description().contains(QStringLiteral("linha 3")),
           qPrintable(error->description()));
}

void LayoutReaderTest::readsAFile() {
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("r.json")));
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write(R"({"name": "n", "sections": [{"kind": "Detail", "height": 1, "elements": [
      {"kind": "Image", "name": "a", "left": 0, "top": 0, "width": 1, "height": 1, "image": "i.png"}]}]})");
  file.close();
  const ReportLayout layout = readLayout(file.fileName());
  QCOMPARE(layout.sections.at(0).elements.at(0).image, folder.filePath(QStringLiteral("i.png")));
}

void LayoutReaderTest::missingFileIs53() {
  QCOMPARE(errorOf([] { readLayout(QStringLiteral("/nada/x.json")); }), 53);
}

QUARTELA_TEST_MAIN(LayoutReaderTest)
#include "LayoutReader_test.moc"
