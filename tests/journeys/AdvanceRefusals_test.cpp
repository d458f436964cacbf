// The road of an advance where the operator says No: nothing is written, and the process screen
// shows what it showed before.
#include "tests/journeys/ProcessRoad.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {
namespace {

namespace boxes = test::boxes;

}  // namespace

class AdvanceRefusalsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { road_ = std::make_unique<test::ProcessRoad>(); }
  void cleanup() { road_.reset(); }

  void aNewRequisition() {
    road_->openNew();
    road_->keys.typeRequisition("1500,5", "Refeições em São José");
    refuse('A', boxes::askInclusion());
    road_->keys.include();
    QCOMPARE(requisition(), QString("32814|2014-11-21 00:00:00|1|1|15005000|1|Refeições em São "
                                    "José|128"));
  }

  // The warning goes by the places in the lists, and there process 12 is of another person.
  void aSecondAdvanceOfAPerson() {
    road_->openNew();
    road_->keys.typeRequisition("80", "Curso", {.name = "Fábio Dias", .purpose = "Viagem"});
    refuse('A', test::openAdvance(), Button::Cancel);
    const QString before = road_->shown();
    road_->keys.apply({{test::openAdvance(), Button::Ok}, {boxes::askInclusion(), Button::No}});
    QCOMPARE(road_->shown(), before);
    road_->keys.apply({{test::openAdvance(), Button::Ok},
                       {boxes::askInclusion(), Button::Yes},
                       {boxes::saved(), Button::Ok}});
    QCOMPARE(requisition(), QString("32814|2014-11-21 00:00:00|1|3|800000|2|Curso|200"));
  }

  void anAlteredRequisition() {
    road_->openProcess();
    test::tabTo("mskvalor");
    test::typeHere("2000");
    refuse('A', boxes::askAlteration());
    QCOMPARE(road_->desk.text("mskvalor"), QString("2.000,00"));
    road_->keys.apply({{boxes::askAlteration(), Button::Yes}, {boxes::altered(), Button::Ok}});
    QCOMPARE(road_->ask("SELECT VALOR FROM Requisicao"), QString("20000000"));
  }

  // The dialog goes with its answer; the process screen is ready for it to come again.
  void aNewEmpenho() {
    road_->openProcess();
    road_->keys.openNewEmpenho();
    const QString before = road_->shown();
    const QString stored = road_->stored();
    road_->keys.typeEmpenho("0060014", "123", "21112014");
    road_->keys.confirmEmpenho({{boxes::askInclusion(), Button::No}});
    QVERIFY(!road_->keys.empenhoIsOpen());
    QCOMPARE(road_->shown(), before);
    QCOMPARE(road_->stored(), stored);
    road_->keys.includeEmpenho("0060014", "123", "21112014");
    QCOMPARE(road_->ask("SELECT EMPENHO||'|'||FECHAR_EM FROM Adiantamento"),
             QString("60014|2014-12-21 00:00:00"));
  }

  void anAlteredEmpenho() {
    road_->desk.addEmpenho();
    road_->openProcess();
    road_->keys.openEmpenho();
    const QString before = road_->shown();
    const QString stored = road_->stored();
    test::tabTo("dtpretirada");
    test::typeHere("10112014");
    QCOMPARE(road_->keys.empenhoText("dtpfechar_em"), QString("10/12/2014"));
    road_->keys.confirmEmpenho({{boxes::askAlteration(), Button::No}});
    QVERIFY(!road_->keys.empenhoIsOpen());
    QCOMPARE(road_->shown(), before);
    QCOMPARE(road_->stored(), stored);
  }

  void theExclusionOfAnEmpenho() {
    road_->desk.addEmpenho();
    road_->desk.addNote("2014-11-05", "17", "POSTO", 300);
    road_->openProcess();
    road_->keys.pickEmpenho();
    refuse('X', boxes::question("Confirma exclusão do Adiantamento: 00500/14 e seus "
                                "relacionamentos."));
  }

  // A refused alteration ends the entry as a saved one does, and the list shows the stored note.
  void anAlteredNote() {
    road_->openWithANote();
    road_->keys.pickNote();
    test::mnemonic('T');
    QCOMPARE(road_->desk.text("mskValor_nota"), QString("300,00"));
    const QString stored = road_->stored();
    test::tabTo("mskValor_nota");
    test::typeHere("40");
    road_->keys.answer('G', {{boxes::askAlteration(), Button::No}});
    QCOMPARE(road_->stored(), stored);
    QCOMPARE(road_->desk.list("lstNotas")->subItem(0, 4), QString("300,00"));
    QCOMPARE(road_->desk.text("lblGasto"), QString("300,00"));
    QCOMPARE(road_->desk.enabled("fraNotas Command1_1 Command1_2 Command1_3 Command1_6"),
             QString("01010"));
  }

  void theExclusionOfANote() {
    road_->openWithANote();
    road_->keys.pickNote();
    const QString before = road_->shown();
    const QString stored = road_->stored();
    road_->dialogs.expectBox(boxes::question("Confirma exclusão deste item? - 0001"), Button::No);
    test::press(Qt::Key_Delete);
    QVERIFY2(road_->dialogs.satisfied(), road_->dialogs.report());
    QCOMPARE(road_->shown(), before);
    QCOMPARE(road_->stored(), stored);
  }

  void theClosingAndTheReopening() {
    road_->openWithANote();
    refuse('E', test::askClosing());
    QVERIFY(test::previews().isEmpty());
    road_->desk.office().run("UPDATE PrestContas SET DESPESAS = 10000000");
    road_->openNotes();
    road_->keys.close();
    refuse('R', test::askReopening());
    QCOMPARE(road_->desk.mainList().subItem(0, 10), QString("21/11/2014"));
  }

  void theNamesOfFiles() {
    road_->openWithANote();
    const QString stored = road_->stored();
    road_->dialogs.expectSaveFile(test::exportRequest(), {});
    refuseBox('X');
    test::mnemonic('M');
    test::awaitPreview(test::kPrestacao);
    road_->dialogs.expectSaveFile(test::pdfRequest(test::kPrestacao), {});
    test::press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY2(road_->dialogs.satisfied(), road_->dialogs.report());
    QCOMPARE(test::previews().size(), 1);
    road_->dialogs.expectPrinter({});
    test::press(Qt::Key_P, Qt::ControlModifier);
    QVERIFY2(road_->dialogs.satisfied(), road_->dialogs.report());
    QCOMPARE(test::previews().size(), 1);
    QCOMPARE(road_->stored(), stored);
  }

  // Escape asks before anything typed is lost.
  void theLeavingOfWhatWasTyped() {
    road_->openNew();
    road_->keys.typeRequisition("80", "Curso");
    abandons(Button::No);
    abandons(Button::Yes);
    road_->openWithANote();
    road_->keys.typeNote("05112014", "18", "hotel", "70");
    abandons(Button::No);
    road_->dialogs.expectBox(boxes::saved());
    test::press(Qt::Key_Return);
    QVERIFY2(road_->dialogs.satisfied(), road_->dialogs.report());
    QCOMPARE(road_->desk.text("lblGasto"), QString("370,00"));
  }

 private:
  // The button of that letter asks, and the answer changes nothing.
  void refuse(char letter, const Box& box, Button answer = Button::No) {
    road_->dialogs.expectBox(box, answer);
    refuseBox(letter);
  }
  void refuseBox(char letter) {
    const QString before = road_->shown();
    const QString stored = road_->stored();
    test::mnemonic(letter);
    QVERIFY2(road_->dialogs.satisfied(), road_->dialogs.report());
    QCOMPARE(road_->shown(), before);
    QCOMPARE(road_->stored(), stored);
    QVERIFY(road_->desk.isOpen());
  }
  void abandons(Button answer) {
    const QString before = road_->shown();
    const QString stored = road_->stored();
    road_->dialogs.expectBox(test::askAbandon(), answer);
    test::press(Qt::Key_Escape);
    QVERIFY2(road_->dialogs.satisfied(), road_->dialogs.report());
    QCOMPARE(road_->desk.isOpen(), answer == Button::No);
    QCOMPARE(road_->stored(), stored);
    if (answer == Button::No) {
      QCOMPARE(road_->shown(), before);
    }
  }
  QString requisition() {
    return road_->ask(
        "SELECT SEQ||'|'||DATA||'|'||ORGAO||'|'||TOMADOR||'|'||VALOR||'|'||FINALIDADE||'|'||"
        "JUSTIFICATIVA||'|'||FICHA FROM Requisicao WHERE SEQ = 32814");
  }

  std::unique_ptr<test::ProcessRoad> road_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::AdvanceRefusalsTest)
#include "AdvanceRefusals_test.moc"
