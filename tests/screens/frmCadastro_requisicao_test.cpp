// The requisition side of the process screen.
#include <QAbstractItemView>
#include <QFile>

#include "foundation/Caminhos.h"
#include "platform/controls/OpenForms.h"
#include "tests/screens/ProcessDesk.h"
#include "tests/support/WindowChecks.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {

using test::ScriptedDialogs;
namespace boxes = test::boxes;

constexpr const char* kStates =
    "fracadastro cmdAplicar cmdOk cmdImprimir cmdnovo cmdalterar cmdexcluir cmdPrestacao";

class frmCadastroRequisicaoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { desk_ = std::make_unique<test::ProcessDesk>(); }
  void cleanup() { desk_.reset(); }

  void keepsToTheHouseRules() {
    desk_->openNotes();
    QCOMPARE(test::mnemonicClashes(*desk_->window()), QString());
    QCOMPARE(test::unnamedControls(*desk_->window()), QString());
    QCOMPARE(test::clippedTexts(*desk_->window()), QString());
    QVERIFY(desk_->window()->minimumSizeHint().width() <= 1080);
    QVERIFY(desk_->window()->minimumSizeHint().height() <= 560);
    desk_->click("cmdPrestacao");
    QCOMPARE(test::mnemonicClashes(*desk_->window()), QString());
    QCOMPARE(test::clippedTexts(*desk_->window()), QString());
  }

  // The table of states, cell by cell.
  void enablesByState_data() {
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("enabled");
    QTest::newRow("new, unsaved") << "new"
                                  << "11000000";
    QTest::newRow("new, saved") << "saved"
                                << "10110000";
    QTest::newRow("existing, no empenho") << "existing"
                                          << "11011110";
    QTest::newRow("existing, one empenho, main list without opening date") << "stale"
                                                                           << "11010111";
    QTest::newRow("existing, one empenho") << "empenho"
                                           << "01010111";
    QTest::newRow("existing, two empenhos") << "two"
                                            << "01011110";
    QTest::newRow("dialog opened by cmdnovo") << "novo"
                                              << "00011110";
    QTest::newRow("dialog opened by cmdalterar") << "alterar"
                                                 << "00010111";
  }
  void enablesByState() {
    QFETCH(QString, state);
    enter(state);
    QCOMPARE(desk_->enabled(kStates), QTest::currentDataTag() ? expected() : QString());
  }

  void bearsItsCaptions() {
    desk_->openNew();
    QCOMPARE(desk_->firstOther(
                 {{"lblProcesso", "Processo"},
                  {"lblData", "Data"},
                  {"lblOrgao", "Orgão (Secretaria)"},
                  {"lblTipo", "Finalidade"},
                  {"lblficha", "Dotação"},
                  {"lblvalor", "Valor"},
                  {"lblJustificativa",
                   "Justificativa (Qual a necessidade da aquisição deste adiantamento, se for "
                   "curso relatar o tipo de curso, cidade, datas e os participantes desta)"},
                  {"lblObrigatorios", "( * ) Campos de preenchimento obrigatórios"},
                  {"cmdnovo", "Incluir Empenho"},
                  {"cmdalterar", "Aletrar Empenho"},
                  {"cmdexcluir", "Excluir Empenho"},
                  {"cmdOk", "OK"},
                  {"cmdImprimir", "Imprimir"},
                  {"cmdAplicar", "Aplicar"},
                  {"Command1_0", "Sair"},
                  {"cmdPrestacao", "Prestação de Contas >>"}}),
             QString());
    QCOMPARE(desk_->widget("Frame2")->property("title").toString(), "O&rdenador:");
    QCOMPARE(desk_->widget("Frame3")->property("title").toString(), "Respo&nsável:");
    const auto* tabs = desk_->child<TwoPageTab>("SSTab1");
    QCOMPARE(tabs->tabText(0), "Requisição");
    QCOMPARE(tabs->tabText(1), "&Prestação de Contas");
    QCOMPARE(desk_->headers("lstEmpenho"),
             QStringList({"Empenho", "Abertura", "Retirada", "Fechar em", "Fechamento",
                          "Valor devolvido", "Data devolução", "O.P.", "Anulado?"}));
  }

  // What must be filled in is what bears a star.
  void marksTheRequiredFields() {
    desk_->openNew();
    const QList<QPair<const char*, const char*>> starred{{"cmbOrgao", "ast_orgao"},
                                                         {"cmbOrdenador", "ast_cmbOrdenador"},
                                                         {"cmbResponsavel", "ast_cmbResponsavel"},
                                                         {"cmbTipo", "ast_tipo"},
                                                         {"cmbficha", "ast_ficha"},
                                                         {"mskvalor", "ast_valor"},
                                                         {"txtjustificativa", "ast_justificativa"}};
    for (const auto& [field, star] : starred) {
      QCOMPARE(desk_->widget(field)->property("Tag").toString(), "1");
      QVERIFY(desk_->widget(star)->isVisible());
      QCOMPARE(desk_->text(star), "*");
    }
    for (const char* field : {"mskprocesso", "dtpdata", "txtid", "txtid2", "txtcargo"}) {
      QCOMPARE(desk_->widget(field)->property("Tag").toString(), "");
    }
    QVERIFY(!desk_->widget("txtcargo")->isVisible() && !desk_->widget("txtkey")->isVisible());
  }

  void opensANewRequisition() {
    desk_->openNew();
    QCOMPARE(desk_->window()->windowTitle(), "Cadastro de Requisição");
    QCOMPARE(desk_->text("mskprocesso"), "0328/14");
    QCOMPARE(desk_->text("dtpdata"), "21/11/2014");
    for (const char* name : {"cmbOrgao", "cmbOrdenador", "cmbResponsavel", "cmbTipo", "cmbficha"}) {
      QCOMPARE(desk_->items(name), QStringList());
    }
    QCOMPARE(desk_->child<TwoPageTab>("SSTab1")->current(), 0);
    QVERIFY(!desk_->child<TwoPageTab>("SSTab1")->tabEnabled(1));
    desk_->type("mskprocesso", "9999");
    QCOMPARE(desk_->text("mskprocesso"), "0328/14");
  }

  void theTabKeyVisitsTheFieldsInOrder() {
    desk_->openNew();
    QCOMPARE(desk_->focused(), "dtpdata");
    desk_->openProcess();
    QCOMPARE(desk_->focused(), "dtpdata");
    QCOMPARE(test::tabRound(*desk_->window()),
             QStringList({"dtpdata", "cmbOrgao", "cmbOrdenador", "cmbResponsavel", "cmbTipo",
                          "cmbficha", "mskvalor", "txtjustificativa", "lstEmpenho", "cmdnovo",
                          "cmdalterar", "cmdexcluir", "cmdImprimir", "cmdAplicar", "Command1_0"}));
  }

  void theTabKeyPassesByWhatCannotBeAlteredAnyMore() {
    desk_->addEmpenho();
    desk_->openProcess();
    QCOMPARE(desk_->focused(), "lstEmpenho");
    QCOMPARE(test::tabRound(*desk_->window()),
             QStringList({"lstEmpenho", "cmdalterar", "cmdexcluir", "cmdImprimir", "cmdAplicar",
                          "cmdPrestacao", "Command1_0"}));
  }

  void fillsTheListsOneAfterTheOther() {
    desk_->openNew();
    desk_->pick("cmbOrgao", "Saúde");
    QCOMPARE(desk_->items("cmbOrgao"), QStringList({"Educação", "Saúde"}));
    QCOMPARE(desk_->items("cmbOrdenador"), QStringList{"Ana Lima"});
    QCOMPARE(desk_->items("cmbTipo"), QStringList({"Miúdas", "Viagem"}));
    desk_->pick("cmbOrdenador", "Ana Lima");
    QCOMPARE(desk_->text("txtid"), "RG: 11.111 - CPF: 111.111.111-11");
    desk_->pick("cmbResponsavel", "Davi Souza");
    QCOMPARE(desk_->items("cmbResponsavel"), QStringList({"Davi Souza", "Fábio Dias"}));
    QCOMPARE(desk_->text("txtid2"), "RG: 44.444 - CPF: 444.444.444-44");
    QCOMPARE(desk_->text("txtcargo"), "Motorista");
    desk_->pick("cmbTipo", "Miúdas");
    QCOMPARE(desk_->items("cmbficha"), QStringList({"128", "128", "130"}));
    emit desk_->combo("cmbficha")->dropDown();
    QCOMPARE(desk_->items("cmbficha"), QStringList({"128", "130"}));
    desk_->pick("cmbOrgao", "Educação");
    QCOMPARE(desk_->text("txtid"), "");
    QCOMPARE(desk_->items("cmbOrdenador"), QStringList{"Célia Prado"});
    QCOMPARE(desk_->items("cmbTipo"), QStringList{"Curso"});
  }

  void keepsWhatWasChosenWhenAListDropsDown() {
    desk_->openNew();
    desk_->fillRequisition();
    for (const char* name : {"cmbOrgao", "cmbResponsavel", "cmbficha"}) {
      const QString before = desk_->text(name);
      emit desk_->combo(name)->dropDown();
      QCOMPARE(desk_->text(name), before);
    }
    QCOMPARE(desk_->text("txtid"), "RG: 11.111 - CPF: 111.111.111-11");
  }

  void neitherTypingNorTheWheelChangesAList() {
    desk_->openProcess();
    desk_->type("cmbficha", "7");
    QCOMPARE(desk_->text("cmbficha"), "99");
    QWidget* box = desk_->widget("cmbOrgao");
    box->setFocus();
    QWheelEvent wheel(QPointF(5, 5), box->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &wheel);
    QCOMPARE(desk_->text("cmbOrgao"), "Saúde");
  }

  void listsInactiveOrderersOnlyWhenEditing() {
    desk_->openProcess();
    QCOMPARE(desk_->items("cmbOrdenador"), QStringList({"Ana Lima", "Beto Reis"}));
  }

  void asksForEveryRequiredField_data() { test::addRequiredFieldRows(); }
  void asksForEveryRequiredField() {
    QFETCH(QByteArray, field);
    desk_->openNew();
    desk_->fillRequisition();
    desk_->empty(field.constData());
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::fieldsMissing());
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->focused(), QString::fromLatin1(field));
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM Requisicao"), "1");
  }

  void focusesTheLastOfSeveralEmptyFields() {
    desk_->openNew();
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::fieldsMissing());
    desk_->click("cmdAplicar");
    QCOMPARE(desk_->focused(), "txtjustificativa");
  }

  void savesANewRequisitionAndMovesTheCounter() {
    desk_->openNew();
    desk_->fillRequisition();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask(
                 "SELECT DATA||'|'||ORGAO||'|'||TOMADOR||'|'||VALOR||'|'||FINALIDADE||'|'||"
                 "JUSTIFICATIVA||'|'||FICHA FROM Requisicao WHERE SEQ = 32814"),
             "2014-11-21 00:00:00|1|1|15005000|1|Compras miúdas|128");
    QCOMPARE(counter(), "0328");
    QCOMPARE(desk_->mainList().count(), 2);
    QVERIFY(desk_->isOpen());
  }

  void aNumberShownButNotSavedIsOfferedAgain() {
    desk_->openNew();
    QCOMPARE(desk_->text("mskprocesso"), "0328/14");
    desk_->click("Command1_0");
    QVERIFY(!desk_->isOpen());
    QCOMPARE(counter(), "327");
    savesANewRequisitionAndMovesTheCounter();
    desk_->openNew();
    QCOMPARE(desk_->text("mskprocesso"), "0329/14");
  }

  void aRefusedSaveLeavesEverything() {
    desk_->openNew();
    desk_->fillRequisition();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::No);
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->enabled("cmdAplicar cmdOk cmdImprimir"), "100");
    QCOMPARE(desk_->text("txtjustificativa"), "Compras miúdas");
    QCOMPARE(counter(), "327");
  }

  // Another desk has saved meanwhile, and the program has ended between a row and the counter.
  void aNumberTakenMeanwhileGivesWayToAFreshOne() {
    desk_->openNew();
    desk_->fillRequisition();
    QCOMPARE(desk_->text("mskprocesso"), "0328/14");
    desk_->office().run("INSERT INTO Requisicao(SEQ) VALUES (32814), (33514), (33613), (33015)");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::DuplicateKey, test::kAnything));
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->text("mskprocesso"), "0336/14");
    QCOMPARE(desk_->text("mskvalor"), "1.500,50");
    QCOMPARE(desk_->text("txtjustificativa"), "Compras miúdas");
    QCOMPARE(desk_->enabled("cmdAplicar cmdOk cmdImprimir"), "100");
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask("SELECT JUSTIFICATIVA FROM Requisicao WHERE SEQ = 33614"),
             "Compras miúdas");
    QCOMPARE(counter(), "0336");
  }

  void aFailedSaveIsToldAndLosesNothing() {
    desk_->openNew();
    desk_->fillRequisition();
    desk_->office().run(
        "CREATE TRIGGER full BEFORE INSERT ON Requisicao BEGIN SELECT RAISE(ABORT, 'x'); END");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox({.text = test::kAnything, .title = {}, .icon = BoxIcon::Stop});
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->text("mskprocesso"), "0328/14");
    QCOMPARE(desk_->text("mskvalor"), "1.500,50");
    QCOMPARE(desk_->enabled("cmdAplicar"), "1");
    QCOMPARE(counter(), "327");
  }

  // The first test goes by the places in the lists: person 1 stands at place 0, and process 12 is
  // of person 1 and type 1, so only places (1, 1) find it.
  void warnsByPlacesInTheLists_data() {
    QTest::addColumn<QString>("person");
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("warned");
    QTest::newRow("the very person and type") << "Davi Souza"
                                              << "Miúdas" << false;
    QTest::newRow("others at those places") << "Fábio Dias"
                                            << "Viagem" << true;
  }
  void warnsByPlacesInTheLists() {
    QFETCH(QString, person);
    QFETCH(QString, type);
    QFETCH(bool, warned);
    desk_->openNew();
    desk_->fillRequisition();
    desk_->pick("cmbResponsavel", person);
    desk_->pick("cmbTipo", type);
    desk_->combo("cmbficha")->setText("128");
    ScriptedDialogs dialogs;
    if (warned) {
      dialogs.expectBox(test::openAdvance(), Button::Cancel);
      desk_->click("cmdAplicar");
      dialogs.expectBox(test::openAdvance(), Button::Ok);
    }
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(
        desk_->office().ask("SELECT TOMADOR||'|'||FINALIDADE FROM Requisicao WHERE SEQ = 32814"),
        warned ? "3|2" : "1|1");
  }

  void loadsAProcess() {
    desk_->openProcess();
    const QList<QPair<const char*, QString>> shown{
        {"mskprocesso", "0012/14"},
        {"dtpdata", "03/11/2014"},
        {"mskvalor", "1.000,00"},
        {"cmbOrgao", "Saúde"},
        {"cmbOrdenador", "Ana Lima"},
        {"cmbResponsavel", "Davi Souza"},
        {"cmbTipo", "Miúdas"},
        {"txtcargo", "Motorista"},
        {"txtid", "RG: 11.111 - CPF: 111.111.111-11"},
        {"cmbficha", "99"},
        {"txtjustificativa", "Despesas de pronto pagamento"}};
    for (const auto& [name, text] : shown) {
      QCOMPARE(desk_->text(name), text);
    }
    QVERIFY(!desk_->widget("mskprocesso")->isEnabled());
  }

  // Person and type stand at places (1, 1), where the other requisition would be found.
  void altersAProcessWithoutWarningOrCounter() {
    desk_->office().run("UPDATE Requisicao SET TOMADOR = 2, FINALIDADE = 2");
    desk_->office().run(
        "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE) VALUES "
        "(114, '2014-10-01 00:00:00', 1, 1, 5, 1)");
    desk_->openProcess();
    desk_->type("mskvalor", "2000");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::altered());
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask("SELECT VALOR||'|'||FICHA FROM Requisicao WHERE SEQ = 1214"),
             "20000000|99");
    QCOMPARE(counter(), "327");
    QCOMPARE(desk_->enabled("cmdAplicar cmdOk cmdImprimir"), "011");
  }

  void showsPeopleWhoAreNoLongerActive() {
    desk_->office().run("UPDATE Requisicao SET TOMADOR = 2, ORGAO = 2");
    desk_->openProcess();
    QCOMPARE(desk_->text("cmbResponsavel"), "Elza Nunes");
    QCOMPARE(desk_->text("txtid2"), "RG: 55 - CPF: 5");
    QCOMPARE(desk_->text("cmbOrdenador"), "Beto Reis");
  }

  void keepsAnInactivePersonWhenTheListIsOpened() {
    desk_->office().run("UPDATE Requisicao SET TOMADOR = 2");
    desk_->openProcess();
    ComboBox* const people = desk_->combo("cmbResponsavel");
    QTest::keyClick(people, Qt::Key_F4);
    QTRY_VERIFY(people->view()->isVisible());
    QTest::keyClick(people->view(), Qt::Key_Escape);
    QTRY_VERIFY(!people->view()->isVisible());
    QCOMPARE(desk_->text("cmbResponsavel"), "Elza Nunes");
    QCOMPARE(desk_->text("txtid2"), "RG: 55 - CPF: 5");
    desk_->type("mskvalor", "2000");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::altered());
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask("SELECT TOMADOR FROM Requisicao WHERE SEQ = 1214"), "2");
  }

  void anInactivePersonIsGoneFromTheListOnceAnotherIsPicked() {
    desk_->office().run("UPDATE Requisicao SET TOMADOR = 2");
    desk_->openProcess();
    ComboBox* const people = desk_->combo("cmbResponsavel");
    QTest::keyClick(people, Qt::Key_F4);
    QTRY_VERIFY(people->view()->isVisible());
    QCOMPARE(desk_->items("cmbResponsavel"),
             QStringList({"Davi Souza", "Fábio Dias", "Elza Nunes"}));
    QTest::keyClick(people->view(), Qt::Key_Home);
    QTest::keyClick(people->view(), Qt::Key_Return);
    QCOMPARE(desk_->text("txtid2"), "RG: 44.444 - CPF: 444.444.444-44");
    QTest::keyClick(people, Qt::Key_F4);
    QTRY_VERIFY(people->view()->isVisible());
    QCOMPARE(desk_->items("cmbResponsavel"), QStringList({"Davi Souza", "Fábio Dias"}));
    QTest::keyClick(people->view(), Qt::Key_Escape);
  }

  // Quotes end a text in a statement; none of these stands in one.
  void takesApostrophesInNamesAndTexts() {
    desk_->office().run(
        "UPDATE Orgao SET ORGAO = 'Caixa d''Água';"
        "UPDATE Executor SET NOME = 'Ana D''Ávila' WHERE ORDEM = 1;"
        "UPDATE Tomador SET NOME1 = 'Davi Sant''Ana' WHERE ID = 1;"
        "UPDATE Tipos SET TIPO = 'Miúdas d''uso' WHERE SEQUENCIA = 1");
    desk_->openProcess();
    QCOMPARE(desk_->firstOther({{"cmbOrgao", "Caixa d'Água"},
                                {"cmbOrdenador", "Ana D'Ávila"},
                                {"cmbResponsavel", "Davi Sant'Ana"},
                                {"cmbTipo", "Miúdas d'uso"}}),
             QString());
    emit desk_->combo("cmbficha")->dropDown();
    desk_->empty("txtjustificativa");
    desk_->type("txtjustificativa", "copo d'água; DROP TABLE Requisicao --");
    saveAltered();
    QCOMPARE(desk_->office().ask("SELECT JUSTIFICATIVA FROM Requisicao"),
             "copo d'água; DROP TABLE Requisicao --");
  }

  void theAmountTakesAmountsOnly_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");
    QTest::newRow("letters") << "a1b2"
                             << "120000";
    QTest::newRow("dotted thousands") << "1.500,00"
                                      << "15000000";
    QTest::newRow("minus") << "-5"
                           << "50000";
    QTest::newRow("dot as comma") << "12.50"
                                  << "125000";
    QTest::newRow("as many digits as money holds") << "99999999999999"
                                                   << "999999999999990000";
  }
  void theAmountTakesAmountsOnly() {
    QFETCH(QString, typed);
    desk_->openProcess();
    desk_->type("mskvalor", typed);
    saveAltered();
    QTEST(desk_->office().ask("SELECT VALOR FROM Requisicao"), "stored");
  }

  // A letter of the keyboard presses the button without leaving the field.
  void aDateTypedByHalfIsNotPassedOverByTheKeyboard() {
    desk_->openProcess();
    desk_->type("dtpdata", "15");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::warning("Data inválida!!"));
    desk_->mnemonic(Qt::Key_A);
    QTRY_VERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->focused(), "dtpdata");
    QCOMPARE(desk_->enabled("cmdAplicar"), "1");
  }

  // What the lists cannot read is passed over; the rest of the routine runs.
  void aListWithoutAChoiceReadsNothing() {
    desk_->openProcess();
    desk_->combo("cmbOrgao")->setCurrentIndex(-1);
    ScriptedDialogs dialogs;
    emit desk_->combo("cmbOrgao")->picked(0);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->text("txtid"), "");
    QCOMPARE(desk_->items("cmbTipo"), QStringList({"Miúdas", "Viagem"}));
  }

  // It would pass for number 1000 of another year.
  void aNumberThatOutgrowsItsPlaceIsNotCut() {
    Grava_contador("2014", "9998", desk_->office().counter());
    desk_->openNew();
    QCOMPARE(desk_->text("mskprocesso"), "9999/14");
    Grava_contador("2014", "9999", desk_->office().counter());
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::Overflow, "Função Novo_item"));
    desk_->openNew();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->text("mskprocesso"), "____/__");
  }

  void withoutANumberNothingIsSaved() {
    Grava_contador("2015", "0", desk_->office().counter());
    ScriptedDialogs dialogs;
    dialogs.expectBox({.text = "Erro no relógio do micro ou o arquivo INI está adulterado."});
    desk_->openNew();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    desk_->fillRequisition();
    dialogs.expectBox(test::untrapped(ErrorNumber::TypeMismatch));
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM Requisicao"), "1");
    QCOMPARE(desk_->text("txtjustificativa"), "Compras miúdas");
  }

  void aNumberBeyondSixteenBitsFailsToLoad() {
    desk_->office().run("UPDATE Requisicao SET SEQ = 32814");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::Overflow, "Função Carrega_dados"));
    desk_->openProcess("0328/14");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(desk_->isOpen());
    QCOMPARE(desk_->enabled("cmdnovo cmdalterar cmdexcluir"), "000");
  }

  void aKeyThatIsNotListedEndsTheLoading() {
    desk_->office().run("UPDATE Requisicao SET FINALIDADE = 3");
    ScriptedDialogs dialogs;
    dialogs.expectBox(
        boxes::internalError(ErrorNumber::SubscriptOutOfRange, "Função Carrega_dados"));
    desk_->openProcess();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->text("cmbOrdenador"), "Ana Lima");
    QCOMPARE(desk_->enabled("cmdnovo cmdImprimir"), "01");
  }

  void anEmptyMainListEndsTheLoading() {
    desk_->mainList().clear();
    ModoAlteracao = -1;
    Tag_principal = "0012/14";
    ScriptedDialogs dialogs;
    dialogs.expectBox(
        boxes::internalError(ErrorNumber::SubscriptOutOfRange, "Função Carrega_dados"));
    desk_->show();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->text("cmbficha"), "99");
    QCOMPARE(desk_->enabled("mskprocesso cmdnovo"), "10");
  }

  void aCounterThatCannotBeWrittenIsToldAfterTheSave() {
    desk_->openNew();
    desk_->fillRequisition();
    caminhos.number = desk_->office().file("nowhere/Number.Ini");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    dialogs.expectBox({.text = test::kAnything, .title = {}, .icon = BoxIcon::Stop});
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->enabled("cmdAplicar cmdOk cmdImprimir"), "011");
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM Requisicao"), "2");
    QCOMPARE(desk_->mainList().count(), 2);
  }

  // Whatever becomes of the list, the number is counted as soon as its row is saved.
  void theCounterMovesBeforeTheListIsRefilled() {
    desk_->openNew();
    desk_->fillRequisition();
    QString seen;
    QObject::connect(desk_->mainList().model(), &QAbstractItemModel::modelReset, desk_->window(),
                     [&] { seen = seen.isEmpty() ? counter() : seen; });
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(seen, "0328");
  }

  void staysAboveTheMainWindow() {
    QWidget main;
    OpenForms::setMainWindow(&main);
    desk_->openNew();
    QCOMPARE(desk_->window()->parentWidget(), &main);
    QVERIFY(desk_->window()->isWindow());
    QVERIFY(!desk_->window()->isModal());
    OpenForms::setMainWindow(nullptr);
    delete desk_->window();
  }

  void refusesDatesOutOfTime_data() {
    QTest::addColumn<QString>("typed");
    QTest::newRow("before 1997") << "31121996";
    QTest::newRow("after 2100") << "01012101";
    QTest::newRow("no such day") << "31022014";
    QTest::newRow("half a date") << "1511";
  }
  void refusesDatesOutOfTime() {
    QFETCH(QString, typed);
    desk_->openProcess();
    desk_->type("dtpdata", typed);
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::warning("Data inválida!!"));
    desk_->widget("mskvalor")->setFocus();
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->focused(), "dtpdata");
    QCOMPARE(desk_->text("dtpdata"), "03/11/2014");
  }

  void showsADateOlderThanWhatCanBeTyped() {
    desk_->office().run("UPDATE Requisicao SET DATA = '1995-05-01 00:00:00'");
    desk_->openProcess();
    QCOMPARE(desk_->text("dtpdata"), "01/05/1995");
  }

  void printsTheForm() {
    test::PrintedReports printed;
    desk_->openProcess();
    desk_->click("cmdImprimir");
    QCOMPARE(printed.requests.size(), 1);
    QVERIFY(printed.requests[0].relatorio == Relatorio::Requisicao2);
    QCOMPARE(printed.requests[0].comando,
             "Select * from Sel_Print_req WHERE Requisicao.SEQ = 001214");
    QVERIFY(printed.requests[0].exibe);
    QVERIFY(!desk_->isOpen());
  }

  void aReportThatFailsIsTold() {
    registra_impressao(Relatorio::Requisicao2, [](const PedidoImpressao&) {
      throw RuntimeError(ErrorNumber::PrinterFailure);
    });
    desk_->openProcess();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::PrinterFailure, "Função imprimir"));
    desk_->click("cmdImprimir");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(desk_->isOpen());
  }

  void withoutAReportItIsToldAndTheWindowStays() {
    desk_->openProcess();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::documentMissing());
    desk_->click("cmdImprimir");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(desk_->isOpen());
  }

  void okRefreshesAndCloses() {
    desk_->openNew();
    savedState();
    desk_->office().run("DELETE FROM Requisicao");
    desk_->click("cmdOk");
    QVERIFY(!desk_->isOpen());
    QCOMPARE(desk_->mainList().count(), 0);
  }

  void escapeAsksBeforeTypingIsLost() {
    desk_->openNew();
    desk_->fillRequisition();
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::askAbandon(), Button::No);
    QTest::keyClick(desk_->widget("txtjustificativa"), Qt::Key_Escape);
    QVERIFY(desk_->isOpen());
    QCOMPARE(desk_->text("txtjustificativa"), "Compras miúdas");
    dialogs.expectBox(test::askAbandon(), Button::Yes);
    QTest::keyClick(desk_->widget("txtjustificativa"), Qt::Key_Escape);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!desk_->isOpen());
  }

  // An amount loses its thousands dots while it has the focus.
  void escapeWithNothingTypedJustCloses_data() {
    QTest::addColumn<QByteArray>("field");
    for (const char* name : {"txtjustificativa", "mskvalor", "dtpdata", "cmbTipo"}) {
      QTest::newRow(name) << QByteArray(name);
    }
  }
  void escapeWithNothingTypedJustCloses() {
    QFETCH(QByteArray, field);
    desk_->openProcess();
    QWidget* const focused = desk_->widget(field.constData());
    focused->setFocus();
    ScriptedDialogs dialogs;
    QTest::keyClick(focused, Qt::Key_Escape);
    QVERIFY(!desk_->isOpen());
  }

  // By its frame, by a command of the main window, with the program.
  void closingAsksBeforeTypingIsLost() {
    desk_->openNew();
    desk_->fillRequisition();
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::askAbandon(), Button::No);
    QVERIFY(!OpenForms::unload(desk_->window()));
    QVERIFY(desk_->isOpen());
    QVERIFY(OpenForms::find("frmCadastro") != nullptr);
    QCOMPARE(desk_->text("txtjustificativa"), "Compras miúdas");
    dialogs.expectBox(test::askAbandon(), Button::Yes);
    QVERIFY(desk_->window()->close());
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(OpenForms::find("frmCadastro") == nullptr);
  }

  void itsOwnCommandsAskToo_data() {
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("printouts");
    QTest::newRow("Sair") << QByteArray("Command1_0") << 0;
    QTest::newRow("OK") << QByteArray("cmdOk") << 0;
    QTest::newRow("Imprimir") << QByteArray("cmdImprimir") << 1;
  }
  void itsOwnCommandsAskToo() {
    QFETCH(QByteArray, button);
    const test::PrintedReports printed;
    desk_->openNew();
    savedState();
    desk_->type("txtjustificativa", "mais");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::askAbandon(), Button::No);
    desk_->click(button.constData());
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(desk_->isOpen());
    QVERIFY(desk_->text("txtjustificativa").contains("mais"));
    QCOMPARE(printed.requests.size(), 0);
    dialogs.expectBox(test::askAbandon(), Button::Yes);
    desk_->click(button.constData());
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!desk_->isOpen());
    QTEST(int(printed.requests.size()), "printouts");
  }

  // Behind these commands the requisition can be altered no more.
  void whatFreezesTheRequisitionAsksFirst_data() {
    QTest::addColumn<QByteArray>("button");
    for (const char* name : {"cmdnovo", "cmdalterar", "cmdexcluir"}) {
      QTest::newRow(name) << QByteArray(name);
    }
  }
  void whatFreezesTheRequisitionAsksFirst() {
    QFETCH(QByteArray, button);
    if (button != "cmdnovo") {
      registra_lista_principal(nullptr, nullptr);
      desk_->addEmpenho();
    }
    desk_->openProcess();
    desk_->type("mskvalor", "5");
    if (button != "cmdnovo") {
      test::ProcessDesk::clickRow(desk_->list("lstEmpenho"), 0);
    }
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::askAbandon(), Button::No);
    desk_->click(button.constData());
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->enabled("fracadastro cmdAplicar"), "11");
    QCOMPARE(desk_->text("mskvalor"), "5,00");
  }

  // What the screen rounds or does not show at all.
  void whatWasNotTypedIsSavedAsItWas() {
    const char* exact = "SELECT DATA||'|'||VALOR FROM Requisicao";
    desk_->office().run("UPDATE Requisicao SET DATA = '2014-11-03 16:45:00', VALOR = 123456");
    desk_->openProcess();
    QCOMPARE(desk_->text("mskvalor"), "12,35");
    desk_->widget("mskvalor")->setFocus();
    desk_->widget("dtpdata")->setFocus();
    saveAltered();
    QCOMPARE(desk_->office().ask(exact), "2014-11-03 16:45:00|123456");
    desk_->openProcess();
    desk_->type("mskvalor", "12,34");
    desk_->type("dtpdata", "04112014");
    saveAltered();
    QCOMPARE(desk_->office().ask(exact), "2014-11-04 00:00:00|123400");
  }

  void anAmountThatIsNoneIsRefused_data() {
    QTest::addColumn<QString>("typed");
    QTest::newRow("two dots") << "1.2.3";
    QTest::newRow("two commas") << "1,2,3";
    QTest::newRow("three decimals") << "1,239";
    QTest::newRow("more digits than money holds") << "999999999999999";
  }
  void anAmountThatIsNoneIsRefused() {
    QFETCH(QString, typed);
    desk_->openProcess();
    desk_->type("mskvalor", typed);
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::warning("Valor inválido!!"));
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->focused(), "mskvalor");
    QCOMPARE(desk_->text("mskvalor"), typed);
    QCOMPARE(desk_->office().ask("SELECT VALOR FROM Requisicao"), "10000000");
  }

 private:
  static QString expected() {
    QFETCH(QString, enabled);
    return enabled;
  }
  QString counter() {
    QFile file(desk_->office().counter());
    if (!file.open(QIODevice::ReadOnly)) {
      return {};
    }
    return QString::fromUtf8(file.readAll()).section("number=", 1).trimmed();
  }
  void saveAltered() {
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::altered());
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }
  void savedState() {
    desk_->fillRequisition();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    desk_->click("cmdAplicar");
  }
  void enter(const QString& state) {
    if (state == "new") {
      desk_->openNew();
    } else if (state == "saved") {
      desk_->openNew();
      savedState();
    } else if (state == "existing") {
      desk_->openProcess();
    } else if (state == "stale") {
      registra_lista_principal(nullptr, nullptr);
      desk_->addEmpenho();
      desk_->openProcess();
    } else if (state == "novo") {
      desk_->openProcess();
      desk_->click("cmdnovo");
    } else {
      desk_->addEmpenho();
      if (state == "two") {
        desk_->office().run(
            "INSERT INTO Adiantamento(EMPENHO, PROCESSO, ABERTURA, OP) VALUES (60014, 1214, "
            "'2014-11-02 00:00:00', 5)");
      }
      desk_->openProcess();
      if (state == "alterar") {
        test::ProcessDesk::clickRow(desk_->list("lstEmpenho"), 0);
        desk_->click("cmdalterar");
      }
    }
  }

  std::unique_ptr<test::ProcessDesk> desk_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmCadastroRequisicaoTest)
#include "frmCadastro_requisicao_test.moc"
