// The secretariats, and with them what needs to be seen on one of the screens of two pages.
#include "masterdata/frmOrgao.h"

#include "foundation/Banco.h"
#include "foundation/UmaJanela.h"
#include "masterdata/TelaCadastro.h"
#include "masterdata/cOrgao.h"
#include "masterdata/frmTomador.h"
#include "records/Gravacao.h"
#include "tests/masterdata/Tela.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

using test::Tela;
namespace boxes = test::boxes;

class frmOrgaoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    office_->run(
        "INSERT INTO Orgao(IDORGAO, ORGAO) VALUES (1, 'Saúde'), (2, 'Educação'), (7, NULL)");
    open();
  }
  void cleanup() {
    tela_.reset();
    window_.reset();
    office_.reset();
  }

  void opensOnTheFullList() {
    QCOMPARE(tela_->list().count(), 3);
    QCOMPARE(tela_->row(0), QStringList({"0001", "Saúde"}));
    QCOMPARE(tela_->row(2), QStringList({"0007", ""}));
    const auto& tabs = tela_->at<TwoPageTab>("SSTab1");
    QVERIFY(!tela_->editing());
    QVERIFY(tabs.tabEnabled(0));
    QVERIFY(!tabs.tabEnabled(1));
  }

  void anInclusion() {
    tela_->type("txtpesquisa", QStringLiteral("xyz"));
    tela_->press("Command1_3");
    QVERIFY(tela_->editing());
    QCOMPARE(tela_->text("txtordem"), QStringLiteral("Aut.Num."));
    QCOMPARE(tela_->text("txtsecretaria"), QString());
    QCOMPARE(tela_->text("txtpesquisa"), QString());
    QCOMPARE(tela_->focus(), QStringLiteral("txtsecretaria"));
    QVERIFY(!tela_->at<QLineEdit>("txtordem").isEnabled());
    QVERIFY(!tela_->at<TwoPageTab>("SSTab1").tabEnabled(0));
    QCOMPARE(Operacao, kInclusao);
    tela_->type("txtsecretaria", QStringLiteral("  Obras d'Água "));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes,
                      [] { QCOMPARE(Tabela.state(), Recordset::Closed); });
    dialogs.expectBox(boxes::saved());
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!tela_->editing());
    QCOMPARE(tela_->row(3), QStringList({"0008", "Obras d'Água"}));
    QCOMPARE(office_->ask("SELECT ORGAO FROM Orgao WHERE IDORGAO = 8"),
             QStringLiteral("Obras d'Água"));
  }

  void theSearch_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("found");
    QTest::newRow("within a name") << QStringLiteral("uca") << QStringList{"Educação"};
    QTest::newRow("other case") << QStringLiteral("SAÚDE") << QStringList{"Saúde"};
    QTest::newRow("nothing typed: all that have a name")
        << QString() << QStringList{"Educação", "Saúde"};
    QTest::newRow("none") << QStringLiteral("Obras") << QStringList{};
  }
  void theSearch() {
    QFETCH(QString, typed);
    tela_->type("txtpesquisa", typed);
    tela_->key(Qt::Key_Return);
    QTEST(tela_->names(), "found");
    QCOMPARE(Tabela.state(), Recordset::Closed);
  }

  void anApostropheInTheSearchIsToldAndNothingElse() {
    tela_->type("txtpesquisa", QStringLiteral("d'Água"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::untrapped(ErrorNumber::SyntaxError, test::kAnything));
    tela_->press("cmdProcura");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    tela_->type("txtpesquisa", QStringLiteral("Sa"));
    tela_->press("cmdProcura");
    QCOMPARE(tela_->names(), QStringList{"Saúde"});
  }

  void cancelKeepsFieldsAndSearchResults() {
    tela_->type("txtpesquisa", QStringLiteral("Sa"));
    tela_->press("cmdProcura");
    tela_->press("Command1_3");
    tela_->type("txtsecretaria", QStringLiteral("Obras"));
    tela_->press("Command1_0");
    QVERIFY(!tela_->editing());
    QCOMPARE(tela_->names(), QStringList{"Saúde"});
    QCOMPARE(tela_->text("txtsecretaria"), QStringLiteral("Obras"));
    QCOMPARE(tela_->text("txtordem"), QStringLiteral("Aut.Num."));
    tela_->press("Command1_3");
    QCOMPARE(tela_->text("txtsecretaria"), QString());
  }

  void blanksPassAndAreSavedAsNothing() {
    include(QStringLiteral("   "));
    QCOMPARE(office_->ask("SELECT '[' || ORGAO || ']' FROM Orgao WHERE IDORGAO = 8"),
             QStringLiteral("[]"));
  }

  void aDeclinedInclusionGoesOnAsOne() {
    tela_->press("Command1_3");
    tela_->type("txtsecretaria", QStringLiteral("Obras"));
    {
      test::ScriptedDialogs dialogs;
      dialogs.expectBox(boxes::askInclusion(), Button::No);
      tela_->press("Command2");
    }
    QVERIFY(tela_->editing());
    QCOMPARE(tela_->text("txtordem"), QStringLiteral("0"));
    QCOMPARE(tela_->text("txtsecretaria"), QStringLiteral("Obras"));
    QCOMPARE(office_->ask("SELECT count(*) FROM Orgao"), QStringLiteral("3"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(office_->ask("SELECT ORGAO FROM Orgao WHERE IDORGAO = 8"), QStringLiteral("Obras"));
  }

  void aDeclinedAlterationStays() {
    tela_->click(QStringLiteral("0001"));
    tela_->press("Command1_1");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::No);
    tela_->press("Command2");
    QVERIFY(tela_->editing());
    QCOMPARE(tela_->text("txtordem"), QStringLiteral("0001"));
  }

  void aRowThatAnotherProgramDeleted() {
    tela_->click(QStringLiteral("0002"));
    tela_->press("Command1_1");
    tela_->type("txtsecretaria", QStringLiteral("Ensino"));
    office_->run("DELETE FROM Orgao WHERE IDORGAO = 2");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::CurrentRowMissing));
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(tela_->editing());
    QCOMPARE(tela_->text("txtsecretaria"), QStringLiteral("Ensino"));
    tela_->press("Command1_0");
    include(QStringLiteral("Obras"));
    QCOMPARE(tela_->names(), QStringList({"", "Obras", "Saúde"}));
  }

  void aDeclinedDeleteChangesNothing() {
    tela_->click(QStringLiteral("0002"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askDelete(QStringLiteral("0002")), Button::No);
    tela_->excludeByMenu();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->list().count(), 3);
  }

  void aKeyAboveSixteenBitsOverflows() {
    office_->run("INSERT INTO Orgao(IDORGAO, ORGAO) VALUES (40000, 'Longe')");
    open();
    tela_->click(QStringLiteral("40000"));
    tela_->press("Command1_1");
    QVERIFY(tela_->editing());
    {
      test::ScriptedDialogs dialogs;
      dialogs.expectBox(boxes::untrapped(ErrorNumber::Overflow));
      tela_->press("Command2");
    }
    QVERIFY(tela_->editing());
    tela_->press("Command1_0");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askDelete(QStringLiteral("40000")), Button::Yes);
    dialogs.expectBox(boxes::untrapped(ErrorNumber::Overflow));
    QTest::keyClick(&tela_->list(), Qt::Key_Delete);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->list().count(), 4);
  }

  void theListWithoutRows() {
    office_->run("DELETE FROM Orgao");
    open();
    QCOMPARE(tela_->list().count(), 0);
    QCOMPARE(Tabela.state(), Recordset::Closed);
  }

  void theNameHasFiftyCharactersAtMost() {
    tela_->press("Command1_3");
    tela_->type("txtsecretaria", QString(60, QLatin1Char('x')));
    QCOMPARE(tela_->text("txtsecretaria"), QString(50, QLatin1Char('x')));
  }

  // What the page to edit is for is one thing for all screens: the one opened last decides.
  void theOperationIsSharedByAllScreens() {
    tela_->press("Command1_3");
    tela_->type("txtsecretaria", QStringLiteral("Obras"));
    office_->run("INSERT INTO Tomador(ID, NOME1) VALUES (1, 'Ana')");
    frmTomador other;
    const Tela people(other);
    people.click(QStringLiteral("0001"));
    people.press("Command1_1");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::No);
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void leavingAsksNothingAndTheNextOpeningIsFresh() {
    window_.reset();
    UmaJanela<frmOrgao>::mostra();
    frmOrgao* const first = UmaJanela<frmOrgao>::aberta();
    const Tela screen(*first);
    screen.click(QStringLiteral("0001"));
    screen.press("Command1_1");
    screen.type("txtsecretaria", QStringLiteral("Outra"));
    screen.press("Command3");
    QVERIFY(!UmaJanela<frmOrgao>::aberta());
    UmaJanela<frmOrgao>::mostra();
    const Tela again(*UmaJanela<frmOrgao>::aberta());
    QVERIFY(!again.editing());
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::mustPick());
    again.press("Command1_1");
    again.press("Command3");
    QCOMPARE(office_->ask("SELECT ORGAO FROM Orgao WHERE IDORGAO = 1"), QStringLiteral("Saúde"));
  }

  void aWholeCycleByKeys() {
    tela_->shortcut(Qt::Key_I);
    test::typeText(window_->focusWidget(), QStringLiteral("Obras"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    tela_->shortcut(Qt::Key_G);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->focus(), QStringLiteral("ListView1"));
    tela_->key(Qt::Key_End);
    tela_->key(Qt::Key_Return);
    QVERIFY(tela_->editing());
    QCOMPARE(tela_->text("txtordem"), QStringLiteral("0008"));
    tela_->key(Qt::Key_A, Qt::ControlModifier);
    test::typeText(window_->focusWidget(), QStringLiteral("Viação"));
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::altered());
    tela_->shortcut(Qt::Key_G);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->row(3), QStringList({"0008", "Viação"}));
    tela_->key(Qt::Key_End);
    dialogs.expectBox(boxes::askDelete(QStringLiteral("0008")), Button::Yes);
    dialogs.expectBox(boxes::deleted());
    tela_->excludeByMenu();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->list().count(), 3);
    // Without a window manager nobody hands the activity back from the window that showed the
    // delete.
    window_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    tela_->shortcut(Qt::Key_S);
    QVERIFY(!window_->isVisible());
  }

  // The first row of a list just filled is current, though nobody has clicked it.
  void enterIsAClickOnItsRow() {
    QTest::keyClick(&tela_->list(), Qt::Key_Return);
    QVERIFY(tela_->editing());
    QCOMPARE(tela_->text("txtordem"), QStringLiteral("0001"));
    QCOMPARE(tela_->text("txtsecretaria"), QStringLiteral("Saúde"));
  }

  void aDoubleClickAlters() {
    tela_->click(QStringLiteral("0002"));
    const QRect row = tela_->list().visualRect(tela_->list().model()->index(1, 0));
    QTest::mouseDClick(tela_->list().viewport(), Qt::LeftButton, {}, row.center());
    QVERIFY(tela_->editing());
    QCOMPARE(tela_->text("txtsecretaria"), QStringLiteral("Educação"));
  }

  void loadingByKeyNamesAColumnThatIsNotThere() {
    try {
      cOrgao::compartilhada().Envia_dados(1);
      QFAIL("no error");
    } catch (const RuntimeError& error) {
      QCOMPARE(error.code(), ErrorNumber::UnknownName);
    }
  }

  void anUnknownListModeHasNoStatement() {
    QVERIFY_EXCEPTION_THROWN(cOrgao::compartilhada().Lista_Orgao(tela_->list(), 2), RuntimeError);
    QCOMPARE(tela_->list().count(), 0);
  }

 private:
  void open() {
    tela_.reset();
    window_ = std::make_unique<frmOrgao>();
    tela_ = std::make_unique<Tela>(*window_);
  }
  void include(const QString& name) const {
    tela_->press("Command1_3");
    tela_->type("txtsecretaria", name);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    tela_->press("Command2");
  }

  std::unique_ptr<test::Office> office_;
  std::unique_ptr<frmOrgao> window_;
  std::unique_ptr<Tela> tela_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmOrgaoTest)
#include "frmOrgao_test.moc"
