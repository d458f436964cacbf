#include "platform/reporting/Output.h"

#include <sys/stat.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QPageRanges>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

#include "platform/reporting/PagePainter.h"
#include "tests/platform/reporting/SampleReport.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::reporting;
using quartela::test::errorOf;
using quartela::test::layoutOf;
using quartela::test::SampleRows;

namespace {

const QByteArray kList = R"({"kind": "PageHeader", "height": 500, "elements": [
    {"kind": "Label", "name": "Titulo", "left": 0, "top": 0, "width": 9000, "height": 250,
     "text": "PRESTAÇÃO DE CONTAS", "align": "center", "font": {"bold": true}}]},
  {"kind": "Detail", "height": 500, "elements": [
    {"kind": "Field", "name": "Nome", "left": 0, "top": 0, "width": 3000, "height": 250,
     "column": "RAZAO"},
    {"kind": "Field", "name": "Valor", "left": 4000, "top": 0, "width": 2000, "height": 250,
     "column": "VALOR", "format": "#,##0.00", "align": "right"},
    {"kind": "Line", "name": "Regua", "left": 0, "top": 400, "width": 9000, "height": 0}]},
  {"kind": "PageFooter", "height": 300, "elements": [
    {"kind": "Field", "name": "Pagina", "left": 0, "top": 0, "width": 900, "height": 250,
     "shows": "pageNumber"},
    {"kind": "Field", "name": "Total", "left": 900, "top": 0, "width": 900, "height": 250,
     "shows": "pageTotal"}]})";

struct Built {
  explicit Built(int rowCount) : rows(rowCount), report(layoutOf(kList)) {
    report.setSource(rows.connection(), SampleRows::all());
    report.build();
  }
  const Document& document() const { return *report.document(); }
  SampleRows rows;
  Report report;
};

QString textsOfPdf(const QString& pdf, int page) {
  QProcess process;
  const QString number = QString::number(page);
  process.start(QStringLiteral("pdftotext"),
                {QStringLiteral("-layout"), QStringLiteral("-f"), number, QStringLiteral("-l"),
                 number, pdf, QStringLiteral("-")});
  return process.waitForFinished() ? QString::fromUtf8(process.readAllStandardOutput()) : QString();
}

QString infoOfPdf(const QString& pdf) {
  QProcess process;
  process.start(QStringLiteral("pdfinfo"), {pdf});
  return process.waitForFinished() ? QString::fromUtf8(process.readAllStandardOutput()).simplified()
                                   : QString();
}

void setPdf(QPrinter& printer, const QString& path) {
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(path);
}

// Notes the lines that are painted on it.
class LineCounter : public QPaintDevice {
 public:
  const QList<QLineF>& lines() const { return engine_.seen; }
  QPaintEngine* paintEngine() const override { return &engine_; }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    return metric == PdmWidth || metric == PdmHeight ? 20'000 : 72;
  }

 private:
  struct Engine : QPaintEngine {
    Engine() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawLines(const QLineF* lines, int count) override {
      seen += QList<QLineF>(lines, lines + count);
    }
    Type type() const override { return User; }
    QList<QLineF> seen;
  };
  mutable Engine engine_;
};

}  // namespace

class OutputTest : public QObject {
  Q_OBJECT

 private slots:
  void keepsADrawingOnce();
  void pdfHoldsTheTextsInReadingOrder();
  void pdfHoldsTextsOfEveryKind_data();
  void pdfHoldsTextsOfEveryKind();
  void pdfHasTheLettersWhereTheyStand();
  void rulesThatGoOnAreOneLine();
  void pdfHasPaperAndTitle();
  void landscapePaperStaysSo();
  void pdfReplacesAnOlderOne();
  void unwritablePathsAreErrors_data();
  void unwritablePathsAreErrors();
  void failureLeavesNoFile();
  void fullDiskIsSeen();
  void onlyFilesAreReplaced();
  void incompleteOrEmptyIs5();
  void withoutAPrinterIs482_data();
  void withoutAPrinterIs482();
  void printsAllPages();
  void picksPages_data();
  void picksPages();
  void pagesBeyondTheEndAre5();
};

void OutputTest::pdfHoldsTheTextsInReadingOrder() {
  Built built(40);
  const QTemporaryDir folder;
  const QString pdf = folder.filePath(QStringLiteral("lista.pdf"));
  exportPdf(built.document(), pdf);
  QCOMPARE(built.document().pageCount(), 2);
  for (int page = 0; page < 2; ++page) {
    QStringList expected{QStringLiteral("PRESTAÇÃO DE CONTAS")};
    const QList<PlacedItem> names = built.document().page(page).items(u"Nome");
    const QList<PlacedItem> values = built.document().page(page).items(u"Valor");
    QCOMPARE(names.size(), page == 0 ? 28 : 12);
    for (qsizetype row = 0; row < names.size(); ++row) {
      expected << names[row].text << values[row].text;
    }
    expected << QString::number(page + 1) << QStringLiteral("2");
    QCOMPARE(textsOfPdf(pdf, page + 1).simplified(), expected.join(QLatin1Char(' ')));
  }
}

void OutputTest::pdfHoldsTextsOfEveryKind_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<QByteArray>("more");
  const QByteArray none;
  QTest::newRow("letters") << "Adiantamento à Fazenda" << none;
  QTest::newRow("joined letters") << "oficial, fluxo, efêmero" << none;
  QTest::newRow("underlined") << "Atenção" << QByteArray(R"(, "font": {"underline": true})");
  QTest::newRow("beyond the table") << "100 € – 200 €" << none;
  QTest::newRow("bold, to the right")
      << "1.234,56" << QByteArray(R"(, "align": "right", "font": {"bold": true})");
}

void OutputTest::pdfHoldsTextsOfEveryKind() {
  QFETCH(QString, text);
  QFETCH(QByteArray, more);
  const QTemporaryDir folder;
  const QString pdf = folder.filePath(QStringLiteral("texto.pdf"));
  Report report(layoutOf(R"({"kind": "Detail", "height": 900, "elements": [
      {"kind": "Field", "name": "antes", "left": 0, "top": 0, "width": 5000, "height": 250,
       "text": "antes"},
      {"kind": "Field", "name": "texto", "left": 0, "top": 300, "width": 8000, "height": 250)" +
                         more + R"(},
      {"kind": "Field", "name": "depois", "left": 0, "top": 600, "width": 5000, "height": 250,
       "text": "depois"}]})"));
  report.setText(u"texto", text);
  report.build();
  exportPdf(*report.document(), pdf);
  QCOMPARE(textsOfPdf(pdf, 1).simplified(), QStringLiteral("antes ") + text + " depois");
}

// Texts far from each other, with places that a PDF cannot tell whole: where their words begin, to
// a fiftieth of a point.
void OutputTest::pdfHasTheLettersWhereTheyStand() {
  const QTemporaryDir folder;
  const QString pdf = folder.filePath(QStringLiteral("lugares.pdf"));
  Report report(layoutOf(R"({"kind": "Detail", "height": 300, "elements": [
      {"kind": "Label", "name": "um", "left": 0, "top": 0, "width": 2000, "height": 250,
       "text": "um"},
      {"kind": "Label", "name": "dois", "left": 3001, "top": 0, "width": 1999, "height": 250,
       "text": "dois", "align": "center"},
      {"kind": "Label", "name": "tres", "left": 5003, "top": 0, "width": 3997, "height": 250,
       "text": "tres", "align": "right"}]})"));
  report.build();
  exportPdf(*report.document(), pdf);
  QProcess process;
  process.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
  QVERIFY(process.waitForFinished());
  const QString words = QString::fromUtf8(process.readAllStandardOutput());
  // Letters of ten points in this face are 120 twips wide, and a point is twenty.
  const QList<std::pair<const char*, double>> expected{
      {"um", 1000}, {"dois", 1000 + 3001 + (1999 - 480) / 2.0}, {"tres", 1000 + 9000 - 480}};
  for (const auto& [word, left] : expected) {
    const QRegularExpression place(
        QStringLiteral("xMin=\"([0-9.]+)\"[^>]*>%1<").arg(QLatin1String(word)));
    const QRegularExpressionMatch found = place.match(words);
    QVERIFY2(found.hasMatch(), qPrintable(words));
    QVERIFY2(std::abs(found.captured(1).toDouble() - left / 20) < 0.02, qPrintable(words));
  }
}

void OutputTest::rulesThatGoOnAreOneLine() {
  SampleRows rows(10);
  Report report(layoutOf(R"({"kind": "Detail", "height": 300, "elements": [
      {"kind": "Line", "name": "a", "left": 0, "top": 0, "width": 0, "height": 300},
      {"kind": "Line", "name": "b", "left": 5000, "top": 0, "width": 0, "height": 290},
      {"kind": "Line", "name": "c", "left": 0, "top": 300, "width": 5000, "height": 0}]})"));
  report.setSource(rows.connection(), SampleRows::all());
  report.build();
  LineCounter counter;
  QPainter painter(&counter);
  paintPage(painter, report.document()->page(0));
  painter.end();
  // The first for all rows; the second has gaps, and the level ones are apart.
  QCOMPARE(counter.lines().size(), 1 + 10 + 10);
  QVERIFY(counter.lines().contains(QLineF(1000, 1000, 1000, 4000)));
}

void OutputTest::pdfHasPaperAndTitle() {
  Built built(1);
  const QTemporaryDir folder;
  const QString pdf = folder.filePath(QStringLiteral("lista.pdf"));
  exportPdf(built.document(), pdf);
  const QString info = infoOfPdf(pdf);
  QVERIFY2(info.contains(QStringLiteral("Title: Amostra")), qPrintable(info));
  QVERIFY2(info.contains(QStringLiteral("(A4)")), qPrintable(info));
  QVERIFY2(info.contains(QStringLiteral("Pages: 1 ")), qPrintable(info));
}

void OutputTest::landscapePaperStaysSo() {
  Report report(parseLayout(
      R"({"name": "n", "page": {"width": 16838, "height": 11906}, "sections": [
          {"kind": "Detail", "height": 100}]})",
      QStringLiteral("n")));
  report.build();
  const QTemporaryDir folder;
  const QString pdf = folder.filePath(QStringLiteral("n.pdf"));
  exportPdf(*report.document(), pdf);
  QVERIFY2(infoOfPdf(pdf).contains(QRegularExpression(QStringLiteral("Page size: 84\\d.* x 595"))),
           qPrintable(infoOfPdf(pdf)));
}

void OutputTest::pdfReplacesAnOlderOne() {
  Built built(1);
  const QTemporaryDir folder;
  QFile old(folder.filePath(QStringLiteral("a.pdf")));
  QVERIFY(old.open(QIODevice::WriteOnly));
  old.write("old");
  old.close();
  exportPdf(built.document(), old.fileName());
  QVERIFY(old.open(QIODevice::ReadOnly));
  QVERIFY(old.readAll().startsWith("%PDF"));
  QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}

void OutputTest::unwritablePathsAreErrors_data() {
  QTest::addColumn<QString>("path");
  QTest::addColumn<int>("number");
  QTest::newRow("no folder") << "falta/a.pdf" << 76;
  QTest::newRow("a folder") << "pasta" << 75;
  QTest::newRow("a file for a folder") << "arquivo/a.pdf" << 75;
  QTest::newRow("protected folder") << "protegida/a.pdf" << 70;
}

void OutputTest::unwritablePathsAreErrors() {
  QFETCH(QString, path);
  QFETCH(int, number);
  Built built(1);
  const QTemporaryDir folder;
  QDir(folder.path()).mkdir(QStringLiteral("pasta"));
  QFile file(folder.filePath(QStringLiteral("arquivo")));
  QVERIFY(file.open(QIODevice::WriteOnly));
  const QString locked = folder.filePath(QStringLiteral("protegida"));
  QVERIFY(QDir().mkdir(locked));
  QVERIFY(QFile::setPermissions(locked, QFile::ReadOwner | QFile::ExeOwner));
  QFile probe(locked + QStringLiteral("/x"));
  if (number == 70 && probe.open(QIODevice::WriteOnly)) {
    QSKIP("this user may write everywhere");
  }
  const auto error = test::raisedBy([&] { exportPdf(built.document(), folder.filePath(path)); });
  QVERIFY(error);
  QCOMPARE(error->number(), number);
  QVERIFY2(error->description().contains(path), qPrintable(error->description()));
  QFile::setPermissions(locked, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void OutputTest::failureLeavesNoFile() {
  SampleRows rows(0);
  Report report(layoutOf(kList, R"("emptyData": "nothing",)"));
  report.setSource(rows.connection(), SampleRows::all());
  report.build();
  const QTemporaryDir folder;
  QCOMPARE(
      errorOf([&] { exportPdf(*report.document(), folder.filePath(QStringLiteral("a.pdf"))); }), 5);
  QVERIFY(QDir(folder.path()).isEmpty());
}

// The system's own full device, written to directly.
void OutputTest::fullDiskIsSeen() {
  QFile full(QStringLiteral("/dev/full"));
  const QFileInfo info(full);
  if (!info.exists() || info.isFile() || !full.open(QIODevice::WriteOnly)) {
    QSKIP("no such device here");
  }
  Built built(400);
  QCOMPARE(errorOf([&] { writePdf(built.document(), full); }), 61);
}

// A pipe would be taken away by the file that takes its name.
void OutputTest::onlyFilesAreReplaced() {
  Built built(1);
  const QTemporaryDir folder;
  const QString pipe = folder.filePath(QStringLiteral("a.pdf"));
  QCOMPARE(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
  QCOMPARE(errorOf([&] { exportPdf(built.document(), pipe); }), 75);
  QVERIFY(QFileInfo::exists(pipe) && !QFileInfo(pipe).isFile());
}

void OutputTest::incompleteOrEmptyIs5() {
  SampleRows rows(100);
  Report report(layoutOf(kList));
  report.setSource(rows.connection(), SampleRows::all());
  report.start();
  QVERIFY(report.buildPage());
  QBuffer buffer;
  QVERIFY(buffer.open(QIODevice::WriteOnly));
  QCOMPARE(errorOf([&] { writePdf(*report.document(), buffer); }), 5);
  QPrinter printer;
  QCOMPARE(errorOf([&] { printDocument(*report.document(), printer); }), 5);
  QCOMPARE(buffer.size(), 0);
}

void OutputTest::withoutAPrinterIs482_data() {
  QTest::addColumn<QPrinter::OutputFormat>("format");
  QTest::newRow("printer") << QPrinter::NativeFormat;
  // What a program gets that asks for the default printer where there is none.
  QTest::newRow("file without a name") << QPrinter::PdfFormat;
}

void OutputTest::withoutAPrinterIs482() {
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) {
    QSKIP("there is a printer here");
  }
  Built built(1);
  QPrinter printer(QPrinter::HighResolution);
  QFETCH(QPrinter::OutputFormat, format);
  printer.setOutputFormat(format);
  const auto error = test::raisedBy([&] { printDocument(built.document(), printer); });
  QVERIFY(error);
  QCOMPARE(error->number(), 482);
  QVERIFY2(error->description().contains(QStringLiteral("Nenhuma impressora")),
           qPrintable(error->description()));
}

void OutputTest::printsAllPages() {
  Built built(40);
  const QTemporaryDir folder;
  const QString pdf = folder.filePath(QStringLiteral("p.pdf"));
  QPrinter printer(QPrinter::HighResolution);
  setPdf(printer, pdf);
  printDocument(built.document(), printer);
  QVERIFY2(infoOfPdf(pdf).contains(QStringLiteral("Pages: 2 ")), qPrintable(infoOfPdf(pdf)));
  QVERIFY(textsOfPdf(pdf, 2).contains(QStringLiteral("Fornecedor 29")));
  QVERIFY(textsOfPdf(pdf, 2).contains(QStringLiteral("PRESTAÇÃO DE CONTAS")));
}

void OutputTest::picksPages_data() {
  QTest::addColumn<QString>("ranges");
  QTest::addColumn<int>("copies");
  QTest::addColumn<bool>("collate");
  QTest::addColumn<bool>("backwards");
  QTest::addColumn<QList<int>>("pages");
  QTest::newRow("all") << "" << 1 << true << false << QList<int>({0, 1, 2, 3});
  QTest::newRow("range") << "2-3" << 1 << true << false << QList<int>({1, 2});
  QTest::newRow("ranges") << "1,3-9" << 1 << true << false << QList<int>({0, 2, 3});
  QTest::newRow("beyond the end") << "7-9" << 1 << true << false << QList<int>();
  QTest::newRow("copies") << "1-2" << 2 << true << false << QList<int>({0, 1, 0, 1});
  QTest::newRow("copies page by page") << "1-2" << 2 << false << false << QList<int>({0, 0, 1, 1});
  QTest::newRow("last page first") << "" << 1 << true << true << QList<int>({3, 2, 1, 0});
}

void OutputTest::picksPages() {
  QFETCH(QString, ranges);
  QFETCH(int, copies);
  QFETCH(bool, collate);
  QFETCH(bool, backwards);
  QFETCH(QList<int>, pages);
  Built built(100);
  QPrinter printer(QPrinter::ScreenResolution);
  setPdf(printer, QStringLiteral("nothing.pdf"));
  if (!ranges.isEmpty()) {
    printer.setPrintRange(QPrinter::PageRange);
    printer.setPageRanges(QPageRanges::fromString(ranges));
  }
  printer.setCopyCount(copies);
  printer.setCollateCopies(collate);
  printer.setPageOrder(backwards ? QPrinter::LastPageFirst : QPrinter::FirstPageFirst);
  QVERIFY(!printer.supportsMultipleCopies());
  QCOMPARE(pagesToPrint(built.document(), printer), pages);
}

void OutputTest::pagesBeyondTheEndAre5() {
  Built built(1);
  const QTemporaryDir folder;
  QPrinter printer;
  setPdf(printer, folder.filePath(QStringLiteral("p.pdf")));
  printer.setPrintRange(QPrinter::PageRange);
  printer.setFromTo(2, 3);
  QCOMPARE(errorOf([&] { printDocument(built.document(), printer); }), 5);
  QVERIFY(QDir(folder.path()).isEmpty());
}

// The crest of a hundred pages must not be written a hundred times.
void OutputTest::keepsADrawingOnce() {
  const QTemporaryDir folder;
  QFile drawing(folder.filePath("square.svg"));
  QVERIFY(drawing.open(QIODevice::WriteOnly));
  drawing.write(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 10 10">
      <rect width="10" height="10"/></svg>)");
  drawing.close();
  const QByteArray head = R"({"kind": "PageHeader", "name": "Crest", "height": 900, "elements": [
      {"kind": "Image", "name": "Image1", "left": 0, "top": 0, "width": 600, "height": 600,
       "image": ")" + drawing.fileName().toUtf8() +
                          "\"}]}," + QByteArray(kList).replace("PageHeader", "ReportHeader");
  QList<qsizetype> pictures;
  for (const int rowCount : {1, 100}) {
    SampleRows rows(rowCount);
    Report report(layoutOf(head));
    report.setSource(rows.connection(), SampleRows::all());
    report.build();
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::WriteOnly));
    writePdf(*report.document(), buffer);
    QCOMPARE(report.document()->pageCount() > 1, rowCount > 1);
    pictures << buffer.data().count("/Subtype /Image");
  }
  QVERIFY(pictures[0] > 0);
  QCOMPARE(pictures[1], pictures[0]);
}

QUARTELA_TEST_MAIN(OutputTest)
#include "Output_test.moc"
