// The example of docs/reports.md, compiled and run as the page shows it.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

#include "platform/reporting/Output.h"
#include "platform/reporting/ReportPreview.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "tests/platform/reporting/SampleReport.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using quartela::reporting::ReportPreview;
using quartela::test::SampleRows;
using quartela::test::textsOf;

namespace {

// What the page takes as given bears its names.
std::shared_ptr<reporting::Report> run(Connection& connection, const QString& folder,
                                       const Money& advance) {
  const auto print = [](ReportPreview&) {};
  const auto save = [](ReportPreview&) {};
  const auto failed = [](const RuntimeError& error) { QFAIL(error.what()); };
#include "example.inc"
  return report;
}

}  // namespace

class DocExampleTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    for (const char* const name : {"arExemplo.json", "srExemplo.json"}) {
      QVERIFY(
          QFile::copy(QStringLiteral(EXAMPLE "/") + QLatin1String(name), folder_.filePath(name)));
    }
  }
  void cleanup() { qDeleteAll(previews()); }

  // Seven rows, five of them of the first sheet; row n is over 10.00 times n.
  void doesWhatThePageTells() {
    SampleRows rows(7);
    const auto report = run(rows.connection(), folder_.path(), Money::fromReais(1000));
    const reporting::Page page = report->document()->page(0);
    QCOMPARE(report->document()->pageCount(), 1);
    QCOMPARE(page.text(u"Label1"), QString("DESPESAS"));
    QCOMPARE(textsOf(page, u"Field1"),
             QStringList({"0001", "02/11/2014", "03/11/2014", "04/11/2014", "05/11/2014",
                          "06/11/2014", "0002", "07/11/2014", "08/11/2014"}));
    QCOMPARE(textsOf(page, u"Field33").size(), 7);
    QCOMPARE(textsOf(page, u"Field36"),
             QStringList({"990,00", "970,00", "940,00", "900,00", "850,00", "790,00", "720,00"}));
    QCOMPARE(textsOf(page, u"Field2"), QStringList({"150,00", "NF 1", "NF 2", "NF 3", "NF 4",
                                                    "NF 5", "130,00", "NF 6", "NF 7"}));
    QCOMPARE(page.text(u"Field23"), QString("1"));
    QVERIFY(QFileInfo(folder_.filePath("despesas.pdf")).size() > 1000);
    QCOMPARE(previews().size(), 1);
  }

  void theGroupsHeaderStandsOnEachPage() {
    SampleRows rows(100);
    const auto report = run(rows.connection(), folder_.path(), Money::fromReais(100'000));
    QVERIFY(report->document()->pageCount() > 1);
    QVERIFY(textsOf(report->document()->page(1), u"Label2").size() >= 1);
  }

 private:
  static QList<ReportPreview*> previews() {
    QList<ReportPreview*> found;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (auto* const preview = qobject_cast<ReportPreview*>(window)) {
        found << preview;
      }
    }
    return found;
  }

  QTemporaryDir folder_;
};

QUARTELA_TEST_MAIN(DocExampleTest)
#include "DocExample_test.moc"
