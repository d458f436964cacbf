// What leaves the process screen: accountability, collection slip, text file.
#include <QFile>
#include <QFileInfo>
#include <QProgressBar>

#include "foundation/Ini.h"
#include "foundation/Leitura.h"
#include "tests/screens/ProcessDesk.h"
#include "tests/support/Files.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {

using test::ScriptedDialogs;
namespace boxes = test::boxes;

class frmCadastroSaidaTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { desk_ = std::make_unique<test::ProcessDesk>(); }
  void cleanup() { desk_.reset(); }

  void printsTheAccountability_data() {
    QTest::addColumn<int>("spent");
    QTest::addColumn<QString>("setting");
    QTest::addColumn<bool>("shownFirst");
    QTest::addColumn<QString>("left");
    QTest::newRow("shown first") << 300 << "1" << true << "700,00";
    QTest::newRow("printed at once") << 300 << "0" << false << "700,00";
    QTest::newRow("no setting") << 300 << "" << true << "700,00";
    QTest::newRow("nothing left") << 1000 << "1" << true << "0,00";
    QTest::newRow("more spent than given") << 1300 << "1" << true << "0,00";
  }
  void printsTheAccountability() {
    QFETCH(int, spent);
    QFETCH(QString, setting);
    QFETCH(bool, shownFirst);
    QFETCH(QString, left);
    Grava_ini("Requisicao", "valor2", setting, desk_->office().config());
    test::PrintedReports printed;
    openWith(spent);
    desk_->click("Command1_4");
    QVERIFY(!desk_->isOpen());
    QCOMPARE(printed.requests.size(), 1);
    const PedidoImpressao& request = printed.requests.first();
    QVERIFY(request.relatorio == Relatorio::PrestContas);
    QCOMPARE(request.comando,
             QString("Select * from PrestContas Where PROCESSO = 0050014 Order by DATA, SEQ;"));
    QCOMPARE(request.exibe, shownFirst);
    QCOMPARE(request.campos, (QMap<QString, QString>{{"Field1", "Davi Souza"},
                                                     {"Field2", "Saúde"},
                                                     {"Field3", "00500/14"},
                                                     {"Field37", "1.000,00"},
                                                     {"Field4", "01/11/2014"},
                                                     {"Field40", left},
                                                     {"Field42", "Motorista"},
                                                     {"Field43", " 21/11/2014 10:30"},
                                                     {"Field44", "Saúde"},
                                                     {"Field45", "21 de novembro de 2014"},
                                                     {"Field46", "Ana Lima"},
                                                     {"Field47", "Davi Souza"},
                                                     {"Field5", "03/11/2014"}}));
    int rows = 0;
    Le_tabela(request.comando, [&rows] { ++rows; });
    QCOMPARE(rows, 1);
  }

  void printsTheSlip_data() {
    QTest::addColumn<QString>("setting");
    QTest::addColumn<bool>("shownFirst");
    QTest::newRow("shown first") << "1" << true;
    QTest::newRow("printed at once") << "0" << false;
  }
  void printsTheSlip() {
    QFETCH(QString, setting);
    Grava_ini("Requisicao", "valor2", setting, desk_->office().config());
    test::PrintedReports printed;
    openWith(765);
    close();
    QCOMPARE(printed.requests.size(), 1);
    const PedidoImpressao& request = printed.requests.first();
    QVERIFY(request.relatorio == Relatorio::Guia);
    QTEST(request.exibe, "shownFirst");
    QCOMPARE(request.comando, QString());
    // 6266 days from 07/10/1997 to 03/12/2014, 235,00.
    QCOMPARE(request.campos, (QMap<QString, QString>{
                                 {"Field56", "Davi Souza"},
                                 {"Field57", "Saúde"},
                                 {"Field58", "Miúdas"},
                                 {"Field59", "03/12/2014"},
                                 {"Field60", "00500/14"},
                                 {"Field61", "77"},
                                 {"Field62", "235,00"},
                                 {"Barcode1", "00091626600000235000000001200000000000000001"}}));
    QVERIFY(!desk_->isOpen());
  }

  void withoutAReportItIsToldAndTheWindowStays() {
    openWith(300);
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::documentMissing());
    desk_->click("Command1_4");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(desk_->isOpen());
  }

  void withoutASlipItIsToldAndTheEmpenhoIsClosed() {
    openWith(300);
    ScriptedDialogs dialogs;
    expectClosing(dialogs);
    dialogs.expectBox(boxes::documentMissing());
    desk_->click("cmdEncerrar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(desk_->isOpen());
    QCOMPARE(desk_->text("cmdEncerrar"), QString("Reativar Empenho"));
  }

  void aFailingReportIsTold() {
    registra_impressao(Relatorio::PrestContas, [](const PedidoImpressao&) {
      throw RuntimeError(ErrorNumber::PrinterFailure);
    });
    openWith(300);
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::PrinterFailure, "Função imprimir"));
    desk_->click("Command1_4");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(desk_->isOpen());
  }

  // The empenho is closed by then; only the window stays.
  void aFailingSlipIsToldAndTheEmpenhoIsClosed() {
    registra_impressao(Relatorio::Guia, [](const PedidoImpressao&) {
      throw RuntimeError(ErrorNumber::PrinterFailure);
    });
    openWith(300);
    ScriptedDialogs dialogs;
    expectClosing(dialogs);
    dialogs.expectBox(boxes::internalError(ErrorNumber::PrinterFailure, "Função imprimir"));
    desk_->click("cmdEncerrar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(desk_->isOpen());
    QCOMPARE(desk_->text("cmdEncerrar"), QString("Reativar Empenho"));
    QCOMPARE(desk_->office().ask("SELECT DEVOLUCAO FROM Adiantamento"), QString("7000000"));
  }

  void exportsTheNotes() {
    desk_->addNoteRows();
    const QString path = desk_->office().file("notas.txt");
    write(path,
          "an earlier and longer export, to be replaced as a whole by this one, every line of it; "
          "and more");
    ScriptedDialogs dialogs;
    dialogs.expectSaveFile(request(), path);
    dialogs.expectBox(boxes::told("Exportado com sucesso!!"));
    desk_->click("Command1_5");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(test::contentOf(path), QByteArray("0001;00500/14;05/11/2014;17;POSTO;10,00\r\n"
                                               "0002;00500/14;06/11/2014;45;MERCADO;30,00\r\n"
                                               "0003;00500/14;07/11/2014;46;PADARIA;5,00\r\n"));
    QCOMPARE(desk_->text("Text1"), path);
    QCOMPARE(desk_->child<QProgressBar>("pbr")->value(), 0);
    QCOMPARE(desk_->child<QProgressBar>("pbr")->maximum(), 3);
    QVERIFY(!desk_->widget("pbr")->isVisible());
    QCOMPARE(desk_->list("lstNotas")->selectedRow(), 2);
  }

  void exportsInTheEightBitCodePage() {
    desk_->addEmpenho();
    desk_->addNote("2014-11-05", "1", "AÇÃO", 1);
    desk_->openProcess();
    desk_->click("cmdPrestacao");
    const QString path = desk_->office().file("notas.txt");
    ScriptedDialogs dialogs;
    dialogs.expectSaveFile(request(), path);
    dialogs.expectBox(boxes::told("Exportado com sucesso!!"));
    desk_->click("Command1_5");
    QVERIFY(test::contentOf(path).contains("A\xC7\xC3O"));
  }

  void withoutANameNothingIsExported() {
    openWith(300);
    ScriptedDialogs dialogs;
    dialogs.expectSaveFile(request(), desk_->office().file("notas.txt"));
    dialogs.expectBox(boxes::told("Exportado com sucesso!!"));
    desk_->click("Command1_5");
    dialogs.expectSaveFile(request(), {});
    desk_->click("Command1_5");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->text("Text1"), QString());
  }

  void withoutNotesTheFileIsEmpty() {
    desk_->openNotes();
    const QString path = desk_->office().file("notas.txt");
    ScriptedDialogs dialogs;
    dialogs.expectSaveFile(request(), path);
    desk_->click("Command1_5");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(QFileInfo::exists(path));
    QCOMPARE(test::contentOf(path), QByteArray());
  }

  void aFailedExportLeavesNoFile() {
    openWith(300);
    const QString path = desk_->office().file("nowhere/notas.txt");
    ScriptedDialogs dialogs;
    dialogs.expectSaveFile(request(), path);
    dialogs.expectBox(test::stopped("Erro ao exportar registro! Erro n.º 76"));
    desk_->click("Command1_5");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!QFileInfo::exists(path));
    QVERIFY(!desk_->widget("pbr")->isVisible());
  }

  void aCharacterWithoutAPlaceInTheCodePageFailsAndKeepsTheEarlierFile() {
    desk_->addEmpenho();
    desk_->addNote("2014-11-05", "1", "ПОСТ", 1);
    desk_->openProcess();
    desk_->click("cmdPrestacao");
    const QString path = desk_->office().file("notas.txt");
    write(path, "earlier");
    ScriptedDialogs dialogs;
    dialogs.expectSaveFile(request(), path);
    dialogs.expectBox(test::stopped("Erro ao exportar registro! Erro n.º 5"));
    desk_->click("Command1_5");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(test::contentOf(path), QByteArray("earlier"));
  }

 private:
  static FileRequest request() {
    return {.title = "Salvar...", .filter = "TXT Files(*.txt)|*.txt|"};
  }
  static void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
  }
  void openWith(int spent) {
    desk_->addEmpenho();
    desk_->addNote("2014-11-05", "17", "POSTO", spent);
    desk_->openProcess();
    desk_->click("cmdPrestacao");
  }
  static void expectClosing(ScriptedDialogs& dialogs) {
    dialogs.expectBox(test::informedQuestion("Deseja Encerrar o Adiantamento agora?"), Button::Yes);
    dialogs.expectBox({.text = "Empenho Encerrado!!!",
                       .title = "Finalizar Prestação de Contas",
                       .icon = BoxIcon::Information});
  }
  void close() {
    ScriptedDialogs dialogs;
    expectClosing(dialogs);
    desk_->click("cmdEncerrar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  std::unique_ptr<test::ProcessDesk> desk_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmCadastroSaidaTest)
#include "frmCadastro_saida_test.moc"
