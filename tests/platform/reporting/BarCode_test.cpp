#include "platform/reporting/BarCode.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "platform/reporting/Output.h"
#include "platform/reporting/Report.h"
#include "tests/platform/reporting/SampleReport.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::reporting;
using quartela::test::errorOf;
using quartela::test::layoutOf;

namespace {

const QString kDigits = QStringLiteral("81660000001214011062014112110000000000050014");

// The slip's own measures.
const QByteArray kLayout = R"({"kind": "Detail", "height": 3000, "elements": [
  {"kind": "BarCode", "name": "Barcode1", "left": 0, "top": 500, "width": 7795, "height": 567}]})";

QString outputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  if (!process.waitForFinished()) {
    return QStringLiteral("no answer of ") + program;
  }
  return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

}  // namespace

class BarCodeTest : public QObject {
  Q_OBJECT

 private slots:
  void hasBarsAndSpaces();
  void refuses_data();
  void refuses();
  void wrongTextEndsTheReport();
  void emptyTextDrawsNothing();
  void isReadFromARenderedPage_data();
  void isReadFromARenderedPage();
};

// Two digits: four narrow modules to begin, five bars and spaces of which two each are wide, and
// the end.
void BarCodeTest::hasBarsAndSpaces() {
  const BarCode code = interleaved2of5(QStringLiteral("12"));
  QCOMPARE(code.bars.size(), std::size_t{2 + 5 + 2});
  QCOMPARE(code.bars.front().start, 0);
  QCOMPARE(code.bars.front().width, 1);
  QCOMPARE(code.bars.back().start + code.bars.back().width, code.modules);
  int end = 0;
  for (const BarCode::Bar& bar : code.bars) {
    QVERIFY(bar.start >= end && bar.width >= 1 && bar.width <= 3);
    end = bar.start + bar.width + 1;
  }
  QCOMPARE(interleaved2of5(kDigits).modules, 405);
}

void BarCodeTest::refuses_data() {
  QTest::addColumn<QString>("text");
  QTest::newRow("empty") << "";
  QTest::newRow("odd") << "123";
  QTest::newRow("letter") << "12A4";
  QTest::newRow("blank") << "12 4";
  QTest::newRow("another script's digits") << QString::fromUtf8("١٢");
}

void BarCodeTest::refuses() {
  QFETCH(QString, text);
  QCOMPARE(errorOf([&] { interleaved2of5(text); }), 5);
}

void BarCodeTest::wrongTextEndsTheReport() {
  Report report(layoutOf(kLayout));
  report.setText(u"Barcode1", QStringLiteral("12345"));
  QCOMPARE(errorOf([&] { report.build(); }), 5);
}

void BarCodeTest::emptyTextDrawsNothing() {
  Report report(layoutOf(kLayout));
  report.build();
  QCOMPARE(report.document()->page(0).items().size(), 0);
}

void BarCodeTest::isReadFromARenderedPage_data() {
  QTest::addColumn<int>("resolution");
  QTest::newRow("150 dpi") << 150;
  QTest::newRow("300 dpi") << 300;
}

void BarCodeTest::isReadFromARenderedPage() {
  QFETCH(int, resolution);
  for (const char* program : {"pdftoppm", "zbarimg"}) {
    QVERIFY2(!QStandardPaths::findExecutable(QLatin1String(program)).isEmpty(), program);
  }
  const QTemporaryDir folder;
  const QString pdf = folder.filePath(QStringLiteral("guia.pdf"));
  Report report(layoutOf(kLayout));
  report.setText(u"Barcode1", kDigits);
  report.build();
  QCOMPARE(report.document()->page(0).text(u"Barcode1"), kDigits);
  exportPdf(*report.document(), pdf);
  const QString picture = folder.filePath(QStringLiteral("guia"));
  outputOf(QStringLiteral("pdftoppm"),
           {QStringLiteral("-r"), QString::number(resolution), QStringLiteral("-singlefile"),
            QStringLiteral("-png"), pdf, picture});
  QCOMPARE(outputOf(QStringLiteral("zbarimg"),
                    {QStringLiteral("-q"), QStringLiteral("--raw"), QStringLiteral("-Sdisable"),
                     QStringLiteral("-Si25.enable"), picture + QStringLiteral(".png")}),
           kDigits);
}

QUARTELA_TEST_MAIN(BarCodeTest)
#include "BarCode_test.moc"
