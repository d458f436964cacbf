// How a report leaves the program: the preview's print and save commands, and printing at once.
#include "reports/Saida.h"

#include <QFileInfo>
#include <QPrinterInfo>
#include <QToolButton>
#include <memory>

#include "platform/controls/OpenForms.h"
#include "platform/reporting/LayoutReader.h"
#include "platform/reporting/ReportPreview.h"
#include "records/Impressao.h"
#include "tests/platform/reporting/SampleReport.h"
#include "tests/support/PdfTools.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {

using reporting::Report;
using reporting::ReportPreview;
using test::ScriptedDialogs;
namespace boxes = test::boxes;

namespace {

std::shared_ptr<Report> sample() {
  return std::make_shared<Report>(test::layoutOf(
      R"({"kind": "Detail", "height": 500, "elements": [
          {"kind": "Label", "name": "Label1", "left": 0, "top": 0, "width": 5000, "height": 284,
           "text": "Palavra impressa"}]})"));
}

// The save dialog of a preview, with the report's title as the name proposed.
FileRequest saveRequest() {
  return {.title = QStringLiteral("Salvar como PDF"),
          .filter = QStringLiteral("Arquivos PDF|*.pdf|"),
          .folder = {},
          .fileName = QStringLiteral("Amostra")};
}

// Notes what the print dialog is given, and gives up.
class AskedPrinter : public ScriptedDialogs {
 public:
  bool printer(QPrinter& printer) override {
    documentName = printer.docName();
    return false;
  }
  QString documentName;
};

// A preview of the sample as the program shows it, complete.
struct Shown {
  Shown() {
    Exibe(sample());
    window = qobject_cast<ReportPreview*>(OpenForms::all().value(0));
    complete =
        window != nullptr && QTest::qWaitFor([this] { return button("print")->isEnabled(); });
  }
  ~Shown() {
    window->close();
    // Closing leaves the window to the event loop.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  Shown(const Shown&) = delete;
  Shown& operator=(const Shown&) = delete;

  QToolButton* button(const char* name) const {
    return window->findChild<QToolButton*>(QStringLiteral("button-") + QLatin1String(name));
  }
  void click(const char* name) const { QTest::mouseClick(button(name), Qt::LeftButton); }

  ReportPreview* window = nullptr;
  bool complete = false;
};

}  // namespace

class SaidaTest : public QObject {
  Q_OBJECT

 private slots:
  void designsAreCompiledIn();
  void showsAWindow();
  void savesAsPdf();
  void savingIsGivenUp();
  void unwritablePathIsTold();
  void printsAfterTheDialog();
  void printingIsGivenUp();
  void printDialogProposesTheDocumentsName();
  void commandsAreNamedAsTheirDialogs();
  void failedPrintingIsTold();
  void withoutPrinterIs482();
  void deliversAsAsked_data();
  void deliversAsAsked();
};

void SaidaTest::designsAreCompiledIn() {
  QCOMPARE(Desenho(QStringLiteral("arX")), QStringLiteral(":/quartela/reports/arX.json"));
  for (const char* const name : {"arRequisicao2", "arRequisicao"}) {
    QCOMPARE(reporting::readLayout(Desenho(QString::fromLatin1(name))).name,
             QString::fromLatin1(name));
  }
}

// A window of its own that goes when it is closed.
void SaidaTest::showsAWindow() {
  QPointer<ReportPreview> window;
  {
    const Shown shown;
    QVERIFY(shown.complete);
    window = shown.window;
    QVERIFY(window->isVisible());
    QCOMPARE(window->document()->pageCount(), 1);
  }
  QVERIFY(window.isNull());
}

void SaidaTest::savesAsPdf() {
  const QTemporaryDir folder;
  const QString pdf = folder.filePath(QStringLiteral("relatório.pdf"));
  ScriptedDialogs dialogs;
  dialogs.expectSaveFile(saveRequest(), pdf);
  const Shown shown;
  QVERIFY(shown.complete);
  shown.click("save");
  QCOMPARE(test::textsOfPdf(pdf), QStringLiteral("Palavra impressa"));
  QVERIFY(shown.window->isVisible());
}

void SaidaTest::savingIsGivenUp() {
  ScriptedDialogs dialogs;
  dialogs.expectSaveFile(saveRequest(), {});
  const Shown shown;
  QVERIFY(shown.complete);
  shown.click("save");
  QVERIFY(dialogs.satisfied());
  QVERIFY(shown.window->isVisible());
}

void SaidaTest::unwritablePathIsTold() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("falta/relatório.pdf"));
  ScriptedDialogs dialogs;
  dialogs.expectSaveFile(saveRequest(), path);
  dialogs.expectBox(boxes::internalError(ErrorNumber::PathNotFound, kFuncaoImprimir, path));
  const Shown shown;
  QVERIFY(shown.complete);
  shown.click("save");
  QVERIFY2(dialogs.satisfied(), dialogs.report());
  QVERIFY(shown.window->isVisible());
  QVERIFY(!QFileInfo::exists(path));
}

void SaidaTest::printsAfterTheDialog() {
  const QTemporaryDir folder;
  const QString pdf = folder.filePath(QStringLiteral("impresso.pdf"));
  ScriptedDialogs dialogs;
  dialogs.expectPrinter(pdf);
  const Shown shown;
  QVERIFY(shown.complete);
  shown.click("print");
  QCOMPARE(test::textsOfPdf(pdf), QStringLiteral("Palavra impressa"));
  QVERIFY(shown.window->isVisible());
}

void SaidaTest::printingIsGivenUp() {
  ScriptedDialogs dialogs;
  dialogs.expectPrinter({});
  const Shown shown;
  QVERIFY(shown.complete);
  shown.click("print");
  QVERIFY(dialogs.satisfied());
  QVERIFY(shown.window->isVisible());
}

// Where pages are printed into a file, its name is that of the document.
void SaidaTest::printDialogProposesTheDocumentsName() {
  AskedPrinter asked;
  const Shown shown;
  QVERIFY(shown.complete);
  shown.click("print");
  QCOMPARE(asked.documentName, QStringLiteral("Amostra"));
}

void SaidaTest::commandsAreNamedAsTheirDialogs() {
  const Shown shown;
  QVERIFY(shown.complete);
  QCOMPARE(shown.button("save")->text(), saveRequest().title);
  QCOMPARE(shown.button("print")->text(), QStringLiteral("Imprimir"));
  QCOMPARE(shown.button("close")->text(), QStringLiteral("Fechar"));
}

// The operator picked a printer that does not take the job.
void SaidaTest::failedPrintingIsTold() {
  const QTemporaryDir folder;
  ScriptedDialogs dialogs;
  dialogs.expectPrinter(folder.filePath(QStringLiteral("falta/impresso.pdf")));
  Box box = boxes::internalError(ErrorNumber::PrinterFailure, kFuncaoImprimir);
  box.text = QStringLiteral("Houve um erro interno:\n\nNúmero do erro:\n482\nDescrição :\n") +
             test::kAnything + QStringLiteral("\nOrigem :\nQuartela / Função imprimir");
  dialogs.expectBox(box);
  const Shown shown;
  QVERIFY(shown.complete);
  shown.click("print");
  QVERIFY2(dialogs.satisfied(), dialogs.report());
  QVERIFY(shown.window->isVisible());
}

void SaidaTest::withoutPrinterIs482() {
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) {
    QSKIP("there is a printer here");
  }
  const auto report = sample();
  const auto error = test::raisedBy([&] { Imprime_relatorio(*report, false); });
  QVERIFY(error);
  QCOMPARE(error->number(), 482);
  QVERIFY2(error->description().contains(QStringLiteral("impressora")),
           qPrintable(error->description()));
}

void SaidaTest::deliversAsAsked_data() {
  QTest::addColumn<bool>("shown");
  QTest::newRow("shown first") << true;
  QTest::newRow("printed") << false;
}

void SaidaTest::deliversAsAsked() {
  QFETCH(bool, shown);
  const QTemporaryDir folder;
  const QString pdf = folder.filePath(QStringLiteral("impresso.pdf"));
  ScriptedDialogs dialogs;
  if (!shown) {
    dialogs.expectPrinter(pdf);
  }
  Entrega(sample(), shown);
  QCOMPARE(OpenForms::all().size(), shown ? 1 : 0);
  QCOMPARE(QFileInfo::exists(pdf), !shown);
  for (QWidget* const window : OpenForms::all()) {
    window->close();
  }
  QTRY_VERIFY(OpenForms::all().isEmpty());
}

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::SaidaTest)
#include "Saida_test.moc"
