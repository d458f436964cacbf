// A standalone requisition from the main window: the ribbon's button, the fields by mouse and keys,
// saving, printing, a second one, and what an alteration left open before it does to it.
#include "foundation/Banco.h"
#include "platform/controls/OpenForms.h"
#include "records/Principal.h"
#include "screens/frmCadastro.h"
#include "screens/frmReqAvulso.h"
#include "tests/journeys/Ribbon.h"
#include "tests/screens/RequisitionHands.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {
namespace {

namespace boxes = test::boxes;

// The window that the ribbon opened.
class Hands : public test::RequisitionHands<frmReqAvulso> {
 public:
  void take() {
    window_ = UmaJanela<frmReqAvulso>::aberta();
    QVERIFY(window_ != nullptr);
    QTRY_VERIFY(window_->isActiveWindow());
  }
};

}  // namespace

class ReqAvulsoJourney : public QObject {
  Q_OBJECT

 private slots:
  void anAfternoon() {
    UmaJanela<frmOficce>::mostra();
    QVERIFY(QTest::qWaitForWindowExposed(main()));
    const QString processes = office_.ask("SELECT count(*) FROM Requisicao");
    const int last = office_.ask("SELECT max(SEQ) FROM ReqAvulso").toInt();

    opensAndClosesWithItsButton();
    enters();
    saves(last + 1);
    prints(last + 1);
    enters();
    saves(last + 2);
    hands_.click("cmdOk");
    inheritsTheAlteration();

    QCOMPARE(office_.ask("SELECT count(*) FROM Requisicao"), processes);
    QCOMPARE(office_.ask("SELECT max(SEQ) FROM ReqAvulso").toInt(), last + 2);
    endsTheProgram();
  }

 private:
  static frmOficce* main() { return UmaJanela<frmOficce>::aberta(); }
  static void press(const char* key) { test::pressRibbon(*main(), QString::fromLatin1(key)); }

  void opensAndClosesWithItsButton() {
    press("6");
    hands_.take();
    QCOMPARE(hands_.window()->parentWidget(), main());
    press("6");
    QVERIFY(UmaJanela<frmReqAvulso>::aberta() == nullptr);
  }

  // The first item of each list, picked with the keys, and the rest typed field by field.
  void enters() {
    press("6");
    hands_.take();
    QCOMPARE(hands_.focused(), QString("dtpdata"));
    for (const char* name : {"cmbOrgao", "cmbOrdenador", "cmbResponsavel", "cmbTipo", "cmbficha"}) {
      QTest::keyClick(hands_.window()->focusWidget(), Qt::Key_Tab);
      QCOMPARE(hands_.focused(), QString::fromLatin1(name));
      QTest::keyClick(hands_.window()->focusWidget(), Qt::Key_Down);
      QVERIFY2(!hands_.text(name).isEmpty(), name);
    }
    QTest::keyClick(hands_.window()->focusWidget(), Qt::Key_Tab);
    test::typeText(hands_.window()->focusWidget(), "850");
    QTest::keyClick(hands_.window()->focusWidget(), Qt::Key_Tab);
    test::typeText(hands_.window()->focusWidget(), "Inscrição no curso d'água");
    QCOMPARE(hands_.text("mskvalor"), QString("850,00"));
  }

  void saves(int number) {
    dialogs_.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs_.expectBox(boxes::saved());
    hands_.click("cmdAplicar");
    QVERIFY2(dialogs_.satisfied(), dialogs_.report());
    QCOMPARE(hands_.text("mskprocesso"), QString::number(number));
    QCOMPARE(office_.ask(qPrintable(QStringLiteral("SELECT VALOR||'|'||JUSTIFICATIVA FROM "
                                                   "ReqAvulso WHERE SEQ = %1")
                                        .arg(number))),
             QString("8500000|Inscrição no curso d'água"));
  }

  void prints(int number) {
    const test::PrintedReports printed;
    hands_.click("cmdImprimir");
    QCOMPARE(printed.requests.size(), 1);
    QCOMPARE(
        printed.requests[0].comando,
        QStringLiteral("Select * from Sel_Print_reqavulso WHERE ReqAvulso.SEQ = %1").arg(number));
    QVERIFY(UmaJanela<frmReqAvulso>::aberta() == nullptr);
  }

  // A process opened for alteration and left leaves its mode behind.
  void inheritsTheAlteration() {
    QTest::mouseClick(
        main()->ListView1().viewport(), Qt::LeftButton, {},
        main()->ListView1().visualRect(main()->ListView1().model()->index(0, 0)).center());
    press("1");
    QTRY_VERIFY(UmaJanela<frmCadastro>::aberta() != nullptr);
    UmaJanela<frmCadastro>::aberta()->close();
    enters();
    dialogs_.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs_.expectBox(boxes::saveFailure(ErrorNumber::CurrentRowMissing));
    hands_.click("cmdAplicar");
    QVERIFY2(dialogs_.satisfied(), dialogs_.report());
    QCOMPARE(hands_.enabled("cmdAplicar cmdOk cmdImprimir"), QString("100"));
  }

  // The requisition that could not be saved is asked for before it goes with the program.
  void endsTheProgram() {
    dialogs_.expectBox(test::askAbandon(), Button::No);
    main()->close();
    QVERIFY2(dialogs_.satisfied(), dialogs_.report());
    QCOMPARE(Conexao->state(), Connection::Open);
    QCOMPARE(hands_.text("txtjustificativa"), QString("Inscrição no curso d'água"));
    dialogs_.expectBox(test::askAbandon(), Button::Yes);
    main()->close();
    QVERIFY2(dialogs_.satisfied(), dialogs_.report());
    QCOMPARE(Conexao->state(), Connection::Closed);
  }

  test::Office office_{test::Data::Demonstration};
  Hands hands_;
  test::ScriptedDialogs dialogs_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::ReqAvulsoJourney)
#include "ReqAvulso_test.moc"
