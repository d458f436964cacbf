// The whole road of one advance from the main window, with the keyboard alone and with the real
// documents: requisition, empenho, notes, accountability, closing with money left, reopening.
#include <QDir>

#include "foundation/Banco.h"
#include "foundation/Textos.h"
#include "platform/controls/OpenForms.h"
#include "records/Numeracao.h"
#include "records/Principal.h"
#include "shell/frmOficce.h"
#include "tests/journeys/Previews.h"
#include "tests/journeys/ProcessKeys.h"
#include "tests/support/Folders.h"
#include "tests/support/PdfTools.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {
namespace {

namespace boxes = test::boxes;

constexpr int kRowsOfAPage = 41;
// The first process of the year: a number that also opens again.
const QString kProcess = QStringLiteral("0001/14");

// The window of the process that the main window opened.
class Screen : public test::RequisitionHands<frmCadastro> {
 public:
  void take() {
    window_ = UmaJanela<frmCadastro>::aberta();
    QVERIFY(window_ != nullptr);
    QTRY_VERIFY(window_->isActiveWindow());
  }
};

// Waits for the alert that comes by itself after the start; nothing is due, so that it goes again.
class AlertWatch : public QObject {
 public:
  AlertWatch() { qApp->installEventFilter(this); }
  void wait() const { QTRY_VERIFY_WITH_TIMEOUT(gone_, 10'000); }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    gone_ = gone_ || (event->type() == QEvent::Hide && object->objectName() == "frmAviso");
    return false;
  }

 private:
  bool gone_ = false;
};

// Where the documents of this road stay, to be looked at.
QString paper(const char* name) {
  const QDir folder(quartela::test::inBuild(QStringLiteral("papers")));
  folder.mkpath(QStringLiteral("."));
  return folder.filePath(QLatin1String(name));
}

}  // namespace

class AdvanceTest : public QObject {
  Q_OBJECT

 private slots:
  void travelsTheWholeRoad() {
    addTown(office_);
    Grava_contador(QStringLiteral("2014"), QStringLiteral("0"), office_.counter());
    const AlertWatch alert;
    UmaJanela<frmOficce>::mostra();
    alert.wait();
    test::comeForward(main());

    types();
    keeps();
    printsWithoutNumber();
    commits();
    spends();
    accounts();
    closes();
    reopens();

    main()->close();
    QCOMPARE(Conexao->state(), Connection::Closed);
  }

 private:
  static frmOficce* main() { return UmaJanela<frmOficce>::aberta(); }

  // Through the ribbon: from its tab down to its first command.
  void includesProcess() {
    test::press(Qt::Key_F10);
    test::press(Qt::Key_Down);
    test::press(Qt::Key_Return);
    screen_.take();
    QCOMPARE(screen_.text("mskprocesso"), kProcess);
    QCOMPARE(screen_.text("dtpdata"), QString("21/11/2014"));
  }

  // Through the main list: to its first row, then Enter.
  void opensProcess() {
    test::comeForward(main());
    test::tabTo("ListView1");
    test::press(Qt::Key_Down);
    QCOMPARE(Tag_principal, kProcess);
    test::press(Qt::Key_Return);
    screen_.take();
  }

  void types() {
    includesProcess();
    keys_.typeRequisition("1500,5", "Refeições na viagem a São José");
    keys_.include();
    QCOMPARE(test::focusName(), QString("cmdOk"));
    dialogs_.expectBox(test::askNumberAndDate(), Button::Yes);
    test::mnemonic('I');
    QVERIFY(!screen_.isOpen());
    const QString pdf = paper("requisicao-com-numero.pdf");
    test::savePreview(dialogs_, test::kRequisicao, pdf);
    QCOMPARE(test::firstOutOfOrder(
                 test::textsOfPdf(pdf),
                 {"REQUISIÇÃO DE ADIANTAMENTO", "Data da Solicitação.....: 21/11/2014",
                  "Responsável pelo Recurso: Davi Souza",
                  "1.500,50 (mil e quinhentos reais e cinquenta centavos)",
                  "Refeições na viagem a São José", "128", "novembro", "000114 0001 14"}),
             QString());
  }

  // The exclusion that Delete asks for, declined.
  void keeps() {
    test::comeForward(main());
    test::tabTo("ListView1");
    test::press(Qt::Key_Down);
    dialogs_.expectBox(boxes::question("Confirma exclusão do Cadastro: 0001/14 e seus "
                                       "relacionamentos."),
                       Button::No);
    test::press(Qt::Key_Delete);
    QVERIFY2(dialogs_.satisfied(), dialogs_.report());
    QCOMPARE(main()->ListView1().count(), 1);
    QCOMPARE(office_.ask("SELECT count(*) FROM Requisicao"), QString("1"));
  }

  void printsWithoutNumber() {
    opensProcess();
    dialogs_.expectBox(test::askNumberAndDate(), Button::No);
    test::mnemonic('I');
    QVERIFY(!screen_.isOpen());
    const QString pdf = paper("requisicao-sem-numero.pdf");
    test::savePreview(dialogs_, test::kRequisicao, pdf);
    const QString page = test::textsOfPdf(pdf);
    QVERIFY2(page.contains("000114 Nº DO PROCESSO: _________/____"), qPrintable(page));
    QVERIFY2(!page.contains("novembro"), qPrintable(page));
  }

  void commits() {
    opensProcess();
    keys_.includeEmpenho("0050014", "321", "21112014");
    QCOMPARE(screen_.list("lstEmpenho")->subItem(0, 3), QString("21/12/2014"));
    keys_.leave();
    QCOMPARE(main()->ListView1().subItem(0, 1), QString("00500/14"));
    QCOMPARE(main()->ListView1().subItem(0, 9), QString("21/12/2014"));
  }

  void spends() {
    opensProcess();
    QVERIFY(!screen_.widget("fracadastro")->isEnabled());
    keys_.goToNotes();
    keys_.addNote("21112014", "1", "posto central", "25");
    for (int n = 2; n <= kRowsOfAPage; ++n) {
      keys_.addNote({}, QString::number(n), "posto central", "25");
    }
    keys_.addNote("24112014", "nf 42", "pousada são joão", "100,25");
    keys_.addNote({}, "43", "hotel", "75");
    QCOMPARE(screen_.list("lstNotas")->subItem(kRowsOfAPage + 1, 5), QString("1.200,25"));
    QCOMPARE(screen_.text("lblGasto"), QString("1.200,25"));
    QCOMPARE(screen_.text("lblNao_aplicado"), QString("300,25"));
  }

  void accounts() {
    test::mnemonic('M');
    QVERIFY(!screen_.isOpen());
    const QString pdf = paper("prestacao.pdf");
    test::savePreview(dialogs_, test::kPrestacao, pdf);
    const QString left =
        "Importância não Aplicada.: 300,25 (trezentos reais e vinte e cinco "
        "centavos)";
    QCOMPARE(test::firstOutOfOrder(
                 test::textsOfPdf(pdf),
                 {"Responsável....: Davi Souza", "Empenho n°.: 00500/14", "ADIANTAMENTO 1.500,50",
                  "1 21/11/2014 1 POSTO CENTRAL 25,00 1.475,50",
                  "41 21/11/2014 41 POSTO CENTRAL 25,00 475,50", left,
                  "PRESTAÇÃO DE CONTAS DE ADIANTAMENTO", "ADIANTAMENTO 475,50",
                  "42 24/11/2014 Nf 42 POUSADA SAO JOAO 100,25 375,25",
                  "43 24/11/2014 43 HOTEL 75,00 300,25", left}),
             QString());
  }

  void closes() {
    opensProcess();
    keys_.goToNotes();
    keys_.close();
    QVERIFY(!screen_.isOpen());
    QCOMPARE(test::closingOf(office_), QString("2014-11-21 00:00:00|3002500|2014-11-21 00:00:00"));
    const QString pdf = paper("guia.pdf");
    test::savePreview(dialogs_, test::kGuia, pdf);
    const QStringList copy{"DEVOLUÇÃO DE ADIANTAMENTO",
                           "21/12/2014",
                           "Davi Souza",
                           "00500/14",
                           "Saúde",
                           "321",
                           "300,25",
                           "Miúdas",
                           "300,25"};
    QCOMPARE(test::firstOutOfOrder(test::textsOfPdf(pdf), copy + copy + copy), QString());
    const QString code = test::barCodeOfPdf(pdf, 300);
    QCOMPARE(code, QString("00091628400000300250000001200000000000000001"));
    QCOMPARE(code, Monta_barras("000", "9", "30025", Value(DateTime::of(2014, 12, 21)), "12", "1"));
  }

  // A process closed this year leaves the list of those begun and open.
  void reopens() {
    test::comeForward(main());
    QCOMPARE(main()->ListView1().count(), 0);
    listsAll();
    opensProcess();
    keys_.goToNotes();
    QCOMPARE(screen_.text("cmdEncerrar"), QString("Reativar Empenho"));
    keys_.reopen();
    QCOMPARE(screen_.text("cmdEncerrar"), QString("Encerrar Empenho"));
    QCOMPARE(test::closingOf(office_), QString("|0|"));
    QCOMPARE(office_.ask("SELECT count(*) FROM PrestContas"), QString::number(kRowsOfAPage + 2));
    QCOMPARE(main()->ListView1().subItem(0, 10), QString());
    keys_.leave();
  }

  // "Todos os Processos": the last but one command of the ribbon's first tab.
  static void listsAll() {
    test::press(Qt::Key_F10);
    test::press(Qt::Key_Down);
    test::press(Qt::Key_End);
    test::press(Qt::Key_Left);
    test::press(Qt::Key_Return);
    QCOMPARE(int{FiltroStatus}, 0);
    QCOMPARE(main()->ListView1().count(), 1);
  }

  test::Office office_;
  test::ScriptedDialogs dialogs_;
  Screen screen_;
  test::ProcessKeys keys_{screen_, dialogs_};
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::AdvanceTest)
#include "Advance_test.moc"
