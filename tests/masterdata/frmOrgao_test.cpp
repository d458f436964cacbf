// The secretariats, and with them all that the screens of the reference tables have in common.
#include "masterdata/frmOrgao.h"

#include "foundation/Banco.h"
#include "foundation/UmaJanela.h"
#include "masterdata/TelaCadastro.h"
#include "masterdata/cOrgao.h"
#include "masterdata/frmTomador.h"
#include "records/Gravacao.h"
#include "tests/masterdata/Tela.h"
#include "tests/support/WindowChecks.h"
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
    QCOMPARE(window_->windowTitle(), QStringLiteral("Cadastro de Secretarias"));
    QCOMPARE(tela_->list().count(), 3);
    QCOMPARE(tela_->row(0), QStringList({"0001", "Saúde"}));
    QCOMPARE(tela_->row(2), QStringList({"0007", ""}));
    const auto& tabs = tela_->at<TwoPageTab>("SSTab1");
    QVERIFY(!tela_->editing());
    QVERIFY(tabs.tabEnabled(0));
    QVERIFY(!tabs.tabEnabled(1));
    QCOMPARE(tabs.tabText(0), QStringLiteral("Consulta"));
    QCOMPARE(tabs.tabText(1), QStringLiteral("Cadastro"));
    QCOMPARE(Tabela.state(), Recordset::Closed);
  }

  void theWords() {
    QCOMPARE(tela_->at<QLabel>("Label_0").text(), QStringLiteral("Pesquisar por Nome:"));
    QCOMPARE(tela_->at<QLabel>("Label_4").text(),
             QStringLiteral("( * ) Campos de preenchimento obrigatórios"));
    QCOMPARE(word("cmdProcura"), QStringLiteral("Procurar"));
    QCOMPARE(word("Command1_3"), QStringLiteral("Incluir"));
    QCOMPARE(word("Command1_1"), QStringLiteral("Alterar"));
    QCOMPARE(word("Command1_0"), QStringLiteral("Cancel"));
    QCOMPARE(word("Command2"), QStringLiteral("Gravar"));
    QCOMPARE(word("Command3"), QStringLiteral("Sair"));
    QCOMPARE(tela_->at<QAction>("mnuexcluir").text(), QStringLiteral("Excluir item"));
    const auto* model = tela_->list().model();
    QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), QStringLiteral("ORDEM"));
    QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), QStringLiteral("SECRETARIA"));
    QCOMPARE(tela_->list().leastWidth(1),
             ColumnWidth::twips(7056).toPixels(window_->logicalDpiX()));
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

  void anAlteration() {
    tela_->click(QStringLiteral("0002"));
    tela_->press("Command1_1");
    QVERIFY(tela_->editing());
    QCOMPARE(tela_->text("txtordem"), QStringLiteral("0002"));
    QCOMPARE(tela_->text("txtsecretaria"), QStringLiteral("Educação"));
    QCOMPARE(tela_->focus(), QStringLiteral("txtsecretaria"));
    QCOMPARE(Operacao, kAlteracao);
    tela_->type("txtsecretaria", QStringLiteral("Ensino"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::altered());
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->names(), QStringList({"", "Ensino", "Saúde"}));
    QCOMPARE(office_->ask("SELECT count(*) FROM Orgao"), QStringLiteral("3"));
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

  void nothingClickedYet() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::mustPick());
    tela_->press("Command1_1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!tela_->editing());
    dialogs.expectBox(boxes::mustPick());
    tela_->at<QAction>("mnuexcluir").trigger();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void theNameIsRequired() {
    tela_->press("Command1_3");
    tela_->at<QPushButton>("Command2").setFocus();
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::required());
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(tela_->editing());
    QCOMPARE(tela_->focus(), QStringLiteral("txtsecretaria"));
    QCOMPARE(tela_->text("txtordem"), QStringLiteral("Aut.Num."));
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

  void aFreeRowIsDeletedAndItsKeyStays() {
    tela_->click(QStringLiteral("0002"));
    {
      test::ScriptedDialogs dialogs;
      dialogs.expectBox(boxes::askDelete(QStringLiteral("0002")), Button::Yes);
      dialogs.expectBox(boxes::deleted());
      tela_->excludeByMenu();
    }
    QCOMPARE(tela_->names(), QStringList({"", "Saúde"}));
    QVERIFY(!Conexao->inTransaction());
    // The key of the row that is gone, the name of the row that is current now.
    tela_->press("Command1_1");
    QCOMPARE(tela_->text("txtordem"), QStringLiteral("0002"));
    QCOMPARE(tela_->text("txtsecretaria"), QStringLiteral("Saúde"));
  }

  void aDeclinedDeleteChangesNothing() {
    tela_->click(QStringLiteral("0002"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askDelete(QStringLiteral("0002")), Button::No);
    tela_->excludeByMenu();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->list().count(), 3);
  }

  void aRowWithDependantsStays() {
    office_->run(
        "INSERT INTO Executor(ORDEM, IDORGAO, NOME) VALUES (1, 2, 'Ordenador');"
        "INSERT INTO Orgao(ORGAO) VALUES ('Nova')");
    tela_->click(QStringLiteral("0002"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askDelete(QStringLiteral("0002")), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::DependantsExist, test::kAnything), Button::Ok,
                      [] { QVERIFY(!Conexao->inTransaction()); });
    tela_->excludeByMenu();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->names(), QStringList({"", "Educação", "Nova", "Saúde"}));
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

  // The first row of a list just filled is current, but another one may be the last clicked.
  void enterIsAClickOnItsRow() {
    tela_->click(QStringLiteral("0002"));
    tela_->press("Command1_3");
    tela_->type("txtsecretaria", QStringLiteral("Obras"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    tela_->press("Command2");
    QTest::keyClick(&tela_->list(), Qt::Key_Return);
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

  void escapeGoesOneStepBackAndKeepsWhatWasTyped() {
    tela_->press("Command1_3");
    tela_->type("txtsecretaria", QStringLiteral("Obras"));
    tela_->key(Qt::Key_Escape);
    QVERIFY(window_->isVisible());
    QVERIFY(!tela_->editing());
    QCOMPARE(tela_->text("txtsecretaria"), QStringLiteral("Obras"));
    tela_->key(Qt::Key_Escape);
    QVERIFY(!window_->isVisible());
  }

  void tabVisitsThePagesInOrder() {
    QCOMPARE(test::tabRound(*window_), QStringList({"txtpesquisa", "cmdProcura", "ListView1",
                                                    "Command1_3", "Command1_1", "Command3"}));
    tela_->press("Command1_3");
    QCOMPARE(test::tabRound(*window_),
             QStringList({"txtsecretaria", "Command2", "Command1_0", "Command3"}));
  }

  void keysAndNames() {
    QCOMPARE(test::mnemonicClashes(*window_), QString());
    QCOMPARE(test::unnamedControls(*window_), QString());
    QCOMPARE(test::clippedTexts(*window_), QString());
    tela_->press("Command1_3");
    QCOMPARE(test::clippedTexts(*window_), QString());
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
  QString word(const char* button) const {
    return tela_->at<QPushButton>(button).text().remove(QLatin1Char('&'));
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
