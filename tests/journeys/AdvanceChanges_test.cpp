// What comes between on the road of an advance: an annulled empenho, a clock that was set back, a
// process changed after its empenho, and a run of notes.
#include <QCheckBox>

#include "records/Numeracao.h"
#include "tests/journeys/ProcessRoad.h"
#include "tests/support/WindowChecks.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {
namespace {

namespace boxes = test::boxes;

Box wrongClock() {
  return {.text = QStringLiteral("Erro no relógio do micro ou o arquivo INI está adulterado.")};
}

}  // namespace

class AdvanceChangesTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { road_ = std::make_unique<test::ProcessRoad>(1); }
  void cleanup() { road_.reset(); }

  // The mark goes with the next save that does not set it again, and lives through closing and
  // reopening, which do not touch it.
  void anAnnulledEmpenho() {
    road_->desk.addEmpenho();
    road_->desk.addNote("2014-11-05", "17", "POSTO", 1000);
    road_->openProcess();
    annuls();
    QCOMPARE(mark(), QString("1 SIM"));

    road_->keys.goToNotes();
    road_->keys.close();
    road_->keys.reopen();
    QCOMPARE(mark(), QString("1 SIM"));
    test::mnemonic('V');

    road_->keys.openEmpenho();
    QVERIFY(!annulBox()->isChecked());
    test::press(Qt::Key_Escape);
    QVERIFY(!road_->keys.empenhoIsOpen());
    QCOMPARE(mark(), QString("1 SIM"));

    test::comeForward(road_->desk.window());
    annuls();
    QCOMPARE(mark(), QString("1 SIM"));
    road_->keys.openEmpenho();
    road_->keys.alterEmpenho();
    QCOMPARE(mark(), QString("0 NÃO"));
  }

  // An earlier day of the same year: the numbers go on, what is dated by the clock bears its day,
  // and what is reckoned from typed dates does not know of it.
  void aClockSetBackSomeDays() {
    newRequisition("0001/14", "21/11/2014");
    Clock::stopAt(DateTime::of(2014, 11, 10, 8, 0));
    newRequisition("0002/14", "10/11/2014");
    QCOMPARE(counter(), QString("2014 0002"));

    road_->openProcess("0001/14");
    road_->keys.openNewEmpenho();
    QCOMPARE(road_->keys.empenhoText("dtpabertura"), QString("10/11/2014"));
    road_->keys.typeEmpenho("0060014", "123", "21112014");
    QCOMPARE(road_->keys.empenhoText("dtpfechar_em"), QString("21/12/2014"));
    road_->keys.confirmEmpenho(
        {{boxes::askInclusion(), Button::Yes}, {boxes::saved(), Button::Ok}});

    Clock::stopAt(DateTime::of(2014, 11, 3, 8, 0));
    road_->openNotes("0001/14");
    road_->keys.addNote("21112014", "17", "posto", "50");
    road_->keys.close();
    QCOMPARE(test::closingOf(road_->desk.office()),
             QString("2014-11-03 00:00:00|300000|2014-11-03 00:00:00"));
    test::awaitPreview(test::kGuia);
    test::closePreview();
  }

  // An earlier year: no number is given, and a process without one cannot be saved; the processes
  // that there are go their way, under the dates of the clock.
  void aClockSetBackAYear() {
    road_->desk.addEmpenho();
    road_->desk.addNote("2014-11-05", "17", "POSTO", 300);
    Clock::stopAt(DateTime::of(2013, 11, 21, 10, 30));
    road_->dialogs.expectBox(wrongClock());
    road_->openNew();
    QVERIFY2(road_->dialogs.satisfied(), road_->dialogs.report());
    QCOMPARE(road_->desk.text("mskprocesso"), QString("____/__"));
    road_->keys.typeRequisition("80", "Curso");
    QCOMPARE(road_->desk.text("cmbficha"), QString("99"));
    const QString before = road_->shown();
    const QString stored = road_->stored();
    road_->keys.apply({{test::untrapped(ErrorNumber::TypeMismatch), Button::Ok}});
    QCOMPARE(road_->shown(), before);
    QCOMPARE(road_->stored(), stored);

    road_->openNotes();
    road_->keys.close();
    test::awaitPreview(test::kGuia);
    test::closePreview();
    QCOMPARE(test::closingOf(road_->desk.office()),
             QString("2013-11-21 00:00:00|7000000|2013-11-21 00:00:00"));

    Clock::stopAt(DateTime::of(2014, 11, 22, 10, 30));
    newRequisition("0001/14", "22/11/2014");
  }

  // A clock that was ahead for a moment has begun the counter of that year; since nothing was saved
  // in it, the year before goes on where it stood.
  void aClockSetBackFromTheNextYear() {
    Clock::stopAt(DateTime::of(2015, 1, 5, 10, 30));
    road_->openNew();
    QCOMPARE(road_->desk.text("mskprocesso"), QString("0001/15"));
    road_->keys.leave();
    QCOMPARE(counter(), QString("2015 0"));
    Clock::stopAt(DateTime::of(2014, 11, 21, 10, 30));
    road_->openNew();
    QCOMPARE(road_->desk.text("mskprocesso"), QString("0001/14"));
    QCOMPARE(counter(), QString("2014 0"));
  }

  // The requisition of an empenho shows, and takes nothing; saving it writes what stood there.
  void aRequisitionWithItsEmpenho() {
    road_->desk.addEmpenho();
    road_->openProcess();
    QCOMPARE(road_->desk.enabled("fracadastro cmdAplicar cmdnovo cmdPrestacao"), QString("0101"));
    const QString before = road_->shown();
    const QString stored = road_->stored();
    const QStringList reached = test::tabRound(*road_->desk.window());
    for (const char* field :
         {"dtpdata", "cmbOrgao", "cmbTipo", "cmbficha", "mskvalor", "txtjustificativa"}) {
      QVERIFY2(!reached.contains(QLatin1String(field)), field);
    }
    for (const char letter : {'L', 'J', 'D', 'G', 'F', 'T'}) {
      test::mnemonic(letter);
      test::typeHere("77");
    }
    QCOMPARE(road_->shown(), before);
    road_->keys.apply({{boxes::askAlteration(), Button::Yes}, {boxes::altered(), Button::Ok}});
    QCOMPARE(road_->stored(), stored);
    QCOMPARE(road_->desk.enabled("fracadastro cmdAplicar cmdOk"), QString("001"));
  }

  // Without its empenho, and opened again, it takes a new amount, which the next accounts go by.
  void aRequisitionThatLostItsEmpenho() {
    road_->desk.addEmpenho();
    road_->desk.addNote("2014-11-05", "17", "POSTO", 300);
    road_->openProcess();
    road_->keys.pickEmpenho();
    road_->keys.answer('X', {{boxes::question("Confirma exclusão do Adiantamento: 00500/14 e seus "
                                              "relacionamentos."),
                              Button::Yes},
                             {boxes::deleted(), Button::Ok}});
    QCOMPARE(road_->desk.enabled("fracadastro cmdAplicar"), QString("00"));
    test::comeForward(road_->desk.window());
    road_->keys.leave();

    road_->openProcess();
    QCOMPARE(road_->desk.enabled("fracadastro cmdAplicar cmdnovo"), QString("111"));
    test::mnemonic('L');
    test::typeHere("2500");
    road_->keys.apply({{boxes::askAlteration(), Button::Yes}, {boxes::altered(), Button::Ok}});
    road_->keys.includeEmpenho("0060014", "123", "21112014");
    road_->keys.leave();
    road_->openNotes();
    QCOMPARE(road_->desk.text("lblEmpenho"), QString("2.500,00"));
    QCOMPARE(road_->desk.text("lblGasto"), QString("0,00"));
  }

  // An empenho dialog that was only looked at keeps the requisition disabled until the next
  // opening.
  void aRequisitionWhoseEmpenhoWasNotMade() {
    road_->openProcess();
    road_->keys.openNewEmpenho();
    test::press(Qt::Key_Escape);
    QCOMPARE(road_->desk.enabled("fracadastro cmdAplicar"), QString("00"));
    test::comeForward(road_->desk.window());
    road_->keys.leave();
    road_->openProcess();
    QCOMPARE(road_->desk.enabled("fracadastro cmdAplicar"), QString("11"));
  }

  // Ten notes of one day. From the second note of a supplier on, three letters are enough.
  void aRunOfTenNotes() {
    road_->desk.addEmpenho();
    road_->openNotes();
    note(1, "05112014", "padaria central", "PADARIA CENTRAL");
    note(2, {}, "posto da serra", "POSTO DA SERRA");
    for (int n = 3; n <= 8; ++n) {
      const bool bakery = n % 2 == 1;
      note(n, {}, bakery ? "pad" : "pos", bakery ? "PADARIA CENTRAL" : "POSTO DA SERRA");
    }
    note(9, {}, "padaria nova", "PADARIA NOVA");
    test::mnemonic('B');
    QVERIFY(!road_->desk.child<QCheckBox>("Check1")->isChecked());
    note(10, {}, "pad", "PAD");

    QCOMPARE(road_->desk.list("lstNotas")->count(), 10);
    QCOMPARE(road_->desk.list("lstNotas")->subItem(9, 5), QString("125,50"));
    QCOMPARE(road_->desk.text("lblGasto"), QString("125,50"));
    QCOMPARE(road_->desk.text("lblNao_aplicado"), QString("874,50"));
    QCOMPARE(road_->desk.text("txtdatanota"), QString("05/11/2014"));
    QCOMPARE(road_->ask("SELECT group_concat(HISTORICO) FROM (SELECT HISTORICO||' '||count(*)||' "
                        "'||min(DATA)||' '||max(DATA) AS HISTORICO FROM PrestContas GROUP BY "
                        "PrestContas.HISTORICO)"),
             QString("PAD 1 2014-11-05 00:00:00 2014-11-05 00:00:00,"
                     "PADARIA CENTRAL 4 2014-11-05 00:00:00 2014-11-05 00:00:00,"
                     "PADARIA NOVA 1 2014-11-05 00:00:00 2014-11-05 00:00:00,"
                     "POSTO DA SERRA 4 2014-11-05 00:00:00 2014-11-05 00:00:00"));
  }

 private:
  void newRequisition(const QString& number, const QString& date) {
    road_->openNew();
    QCOMPARE(road_->desk.text("mskprocesso"), number);
    QCOMPARE(road_->desk.text("dtpdata"), date);
    road_->keys.typeRequisition("80", "Curso");
    road_->keys.include();
    test::press(Qt::Key_Return);
    QVERIFY(!road_->desk.isOpen());
  }
  QString counter() {
    QFile file(road_->desk.office().counter());
    if (!file.open(QIODevice::ReadOnly)) {
      return {};
    }
    const QString text = QString::fromUtf8(file.readAll());
    return text.section("ano=", 1).section('\n', 0, 0).trimmed() + ' ' +
           text.section("number=", 1).section('\n', 0, 0).trimmed();
  }

  QCheckBox* annulBox() const { return road_->keys.empenho()->findChild<QCheckBox*>("Check1"); }
  // Ticks the box, which opens without a tick, and saves.
  void annuls() {
    road_->keys.openEmpenho();
    QVERIFY(!annulBox()->isChecked());
    test::mnemonic('E');
    QVERIFY(annulBox()->isChecked());
    road_->keys.alterEmpenho();
  }
  // As stored and as listed.
  QString mark() {
    return road_->ask("SELECT ANULADO FROM Adiantamento") + ' ' +
           road_->desk.list("lstEmpenho")->subItem(0, 8);
  }

  // Note `n` over 12,55, typed as `typed`, shown and stored as `history`.
  void note(int n, const QString& date, const QString& typed, const QString& history) {
    road_->keys.typeNote(date, QString::number(100 + n), typed, "12,55");
    QCOMPARE(road_->desk.text("txtrazao_social"), history);
    road_->dialogs.expectBox(boxes::saved());
    test::press(Qt::Key_Return);
    QVERIFY2(road_->dialogs.satisfied(), road_->dialogs.report());
    QCOMPARE(test::focusName(), QString("Command1_3"));
  }

  std::unique_ptr<test::ProcessRoad> road_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::AdvanceChangesTest)
#include "AdvanceChanges_test.moc"
