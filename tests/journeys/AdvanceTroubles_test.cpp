// The road of an advance where others have been before: an empenho's number is taken, the process
// is deleted by another program, a folder takes no files.
#include <QFileInfo>

#include "tests/journeys/ProcessRoad.h"
#include "tests/platform/files/OrdinaryUser.h"
#include "tests/support/Files.h"
#include "tests/support/PdfTools.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {
namespace {

namespace boxes = test::boxes;

}  // namespace

class AdvanceTroublesTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { road_ = std::make_unique<test::ProcessRoad>(); }
  void cleanup() { road_.reset(); }

  // The dialog closes; the process screen stays as it was, for a second try with another number.
  void aNumberThatIsTaken() {
    road_->desk.office().run(
        "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE, JUSTIFICATIVA, FICHA)"
        " VALUES (114, '2014-10-01 00:00:00', 1, 1, 5, 1, 'Outra', '1');"
        "INSERT INTO Adiantamento(EMPENHO, PROCESSO, OP) VALUES (60014, 114, 5)");
    road_->openProcess();
    road_->keys.openNewEmpenho();
    const QString before = road_->shown();
    const QString stored = road_->stored();
    road_->keys.typeEmpenho("0060014", "123", "21112014");
    road_->keys.confirmEmpenho(
        {{boxes::askInclusion(), Button::Yes},
         {boxes::saveFailure(ErrorNumber::DuplicateKey, test::kAnything), Button::Ok}});
    QCOMPARE(road_->shown(), before);
    QCOMPARE(road_->stored(), stored);
    road_->keys.includeEmpenho("0060114", "123", "21112014");
    QCOMPARE(road_->desk.list("lstEmpenho")->text(0), QString("00601/14"));
    QCOMPARE(road_->ask("SELECT PROCESSO FROM Adiantamento WHERE EMPENHO = 60014"), QString("114"));
  }

  // Another workstation saved the number that this one was offered.
  void aProcessNumberThatIsTaken() {
    road_->openNew();
    road_->keys.typeRequisition("80", "Curso");
    road_->desk.office().run(
        "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE, JUSTIFICATIVA, FICHA)"
        " VALUES (32814, '2014-10-01 00:00:00', 1, 1, 5, 1, 'Outra', '1')");
    const QString typed = road_->shown();
    road_->keys.answer(
        'A', {{boxes::askInclusion(), Button::Yes},
              {boxes::saveFailure(ErrorNumber::DuplicateKey, test::kAnything), Button::Ok}});
    QCOMPARE(road_->shown(), QString(typed).replace("0328/14", "0329/14"));
    road_->keys.answer('A', {{boxes::askInclusion(), Button::Yes}, {boxes::saved(), Button::Ok}});
    QCOMPARE(road_->desk.office().ask("SELECT JUSTIFICATIVA FROM Requisicao WHERE SEQ = 32814"),
             QString("Outra"));
    QCOMPARE(road_->desk.office().ask("SELECT count(*) FROM Requisicao WHERE SEQ = 32914"),
             QString("1"));
  }

  // The list still shows the row. What comes up is the process loaded before, whole and under its
  // own number.
  void aDeletedRequisitionIsNotOpened() {
    road_->desk.addEmpenho();
    road_->desk.office().run(
        "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE, JUSTIFICATIVA, FICHA)"
        " VALUES (114, '2014-10-01 00:00:00', 1, 3, 50000, 1, 'Outra', '1')");
    road_->openProcess();
    const QString before = road_->shown();
    road_->keys.leave();
    road_->openProcess("0001/14");
    QCOMPARE(road_->desk.text("mskvalor"), QString("5,00"));
    const int row = road_->desk.mainList().selectedRow();
    road_->keys.leave();
    road_->openProcess();
    road_->keys.leave();
    road_->desk.office().run("DELETE FROM Requisicao WHERE SEQ = 114");
    road_->desk.mainList().selectRow(row);
    Tag_principal = road_->desk.mainList().text(row);
    QCOMPARE(Tag_principal, QString("0001/14"));
    road_->desk.show();
    QCOMPARE(road_->desk.text("mskprocesso"), QString("0012/14"));
    QCOMPARE(road_->shown(), before);
  }

  void aDeletedRequisitionIsNotAltered() {
    road_->openProcess();
    test::tabTo("mskvalor");
    test::typeHere("2000");
    road_->desk.office().run("DELETE FROM Requisicao");
    changesNothing('A', {{boxes::askAlteration(), Button::Yes},
                         {boxes::saveFailure(ErrorNumber::CurrentRowMissing), Button::Ok}});
  }

  void aDeletedRequisitionGetsNoEmpenho() {
    road_->openProcess();
    road_->keys.openNewEmpenho();
    road_->desk.office().run("DELETE FROM Requisicao");
    const QString before = road_->shown();
    road_->keys.typeEmpenho("0060014", "123", "21112014");
    road_->keys.confirmEmpenho(
        {{boxes::askInclusion(), Button::Yes},
         {boxes::saveFailure(ErrorNumber::ParentMissing, test::kAnything), Button::Ok}});
    QCOMPARE(road_->shown(), before);
    QCOMPARE(road_->ask("SELECT count(*) FROM Adiantamento"), QString("0"));
    road_->keys.leave();
    QCOMPARE(road_->desk.mainList().count(), 0);
  }

  // The note stays in its fields; the page, come to anew, shows that the stored ones are gone.
  void aDeletedRequisitionTakesNoNotes() {
    road_->openWithANote();
    road_->keys.typeNote("05112014", "18", "hotel", "70");
    road_->desk.office().run("DELETE FROM Requisicao");
    changesNothing('G',
                   {{boxes::saveFailure(ErrorNumber::ParentMissing, test::kAnything), Button::Ok}});
    QCOMPARE(road_->desk.text("txtrazao_social"), QString("HOTEL"));
    test::mnemonic('N');
    test::mnemonic('V');
    road_->keys.goToNotes();
    QCOMPARE(road_->desk.list("lstNotas")->count(), 0);
    QCOMPARE(road_->desk.text("lblGasto"), QString("0,00"));
    QCOMPARE(road_->desk.enabled("Command1_4 Command1_5 cmdEncerrar"), QString("000"));
  }

  void aDeletedRequisitionIsNotClosed() {
    road_->openWithANote();
    road_->desk.office().run("DELETE FROM Requisicao");
    road_->keys.answer(
        'E', {{test::askClosing(), Button::Yes},
              {boxes::internalError(ErrorNumber::CurrentRowMissing, "Encerra_adiantamento"),
               Button::Ok}});
    QVERIFY(test::previews().isEmpty());
    QCOMPARE(road_->desk.text("cmdEncerrar"), QString("Encerrar Empenho"));
    QCOMPARE(road_->desk.list("lstEmpenho")->count(), 0);
    QCOMPARE(road_->desk.mainList().count(), 0);
  }

  // What is left of the form are its headings, whatever the question is answered.
  void aDeletedRequisitionPrintsItsHeadingsAlone_data() {
    QTest::addColumn<bool>("withNumber");
    QTest::newRow("with number and date") << true;
    QTest::newRow("without") << false;
  }
  void aDeletedRequisitionPrintsItsHeadingsAlone() {
    QFETCH(bool, withNumber);
    road_->openProcess();
    road_->desk.office().run("DELETE FROM Requisicao");
    road_->dialogs.expectBox(test::askNumberAndDate(), withNumber ? Button::Yes : Button::No);
    test::mnemonic('I');
    const QString pdf = road_->file("requisicao.pdf");
    test::savePreview(road_->dialogs, test::kRequisicao, pdf);
    const QString page = test::textsOfPdf(pdf);
    QVERIFY2(page.contains("REQUISIÇÃO DE ADIANTAMENTO"), qPrintable(page));
    QVERIFY2(!page.contains("Davi Souza"), qPrintable(page));
  }

  void aFolderThatTakesNoExport_data() {
    QTest::addColumn<bool>("exists");
    QTest::addColumn<int>("number");
    QTest::newRow("missing") << false << 76;
    QTest::newRow("read-only") << true << 70;
  }
  void aFolderThatTakesNoExport() {
    QFETCH(bool, exists);
    QFETCH(int, number);
    road_->openWithANote();
    const QTemporaryDir folder;
    const QString path = folder.filePath(exists ? "notas.txt" : "falta/notas.txt");
    {
      const test::OrdinaryUser user(folder.path());
      if (!user.isOrdinary()) {
        QSKIP("this user may write everywhere");
      }
      QVERIFY(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));
      road_->dialogs.expectSaveFile(test::exportRequest(), path);
      const QString before = road_->shown();
      road_->keys.answer(
          'X', {{test::stopped(QString("Erro ao exportar registro! Erro n.º %1").arg(number)),
                 Button::Ok}});
      QCOMPARE(road_->shown(), before);
    }
    QVERIFY(!QFileInfo::exists(path));
    // The next folder takes it.
    const QString good = road_->file("notas.txt");
    road_->dialogs.expectSaveFile(test::exportRequest(), good);
    road_->keys.answer('X', {{boxes::told("Exportado com sucesso!!"), Button::Ok}});
    QCOMPARE(test::contentOf(good), QByteArray("0001;00500/14;05/11/2014;17;POSTO;300,00\r\n"));
  }

  // The preview stays, so that the document can go elsewhere.
  void aFolderThatTakesNoDocument() {
    road_->openWithANote();
    test::mnemonic('M');
    test::awaitPreview(test::kPrestacao);
    const QString path = road_->file("falta/prestacao.pdf");
    road_->dialogs.expectSaveFile(test::pdfRequest(test::kPrestacao), path);
    road_->dialogs.expectBox(
        boxes::internalError(ErrorNumber::PathNotFound, "Função imprimir", path));
    test::press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY2(road_->dialogs.satisfied(), road_->dialogs.report());
    const QString good = road_->file("prestacao.pdf");
    test::savePreview(road_->dialogs, test::kPrestacao, good);
    QVERIFY(test::textsOfPdf(good).contains("17 POSTO 300,00 700,00"));
  }

 private:
  void changesNothing(char letter, const QList<QPair<Box, Button>>& boxes) {
    const QString before = road_->shown();
    const QString stored = road_->stored();
    road_->keys.answer(letter, boxes);
    QCOMPARE(road_->shown(), before);
    QCOMPARE(road_->stored(), stored);
  }

  std::unique_ptr<test::ProcessRoad> road_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::AdvanceTroublesTest)
#include "AdvanceTroubles_test.moc"
