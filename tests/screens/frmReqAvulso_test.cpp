// The standalone requisition: entering, saving, printing, and what it takes over from the process
// screen.
#include "screens/frmReqAvulso.h"

#include <sqlite3.h>

#include <QPlainTextEdit>

#include "foundation/Banco.h"
#include "platform/controls/MaskedBox.h"
#include "platform/controls/OpenForms.h"
#include "platform/values/Convert.h"
#include "records/Principal.h"
#include "records/cReqAvulso.h"
#include "tests/screens/ProcessDesk.h"
#include "tests/support/SqliteSession.h"
#include "tests/support/WindowChecks.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {
namespace {

using test::ScriptedDialogs;
namespace boxes = test::boxes;

constexpr const char* kButtons = "cmdAplicar cmdOk cmdImprimir Command1_0";

// An office with master rows and frmReqAvulso opened in it.
class AvulsoDesk : public test::RequisitionHands<frmReqAvulso> {
 public:
  AvulsoDesk() { test::addTown(office_); }
  ~AvulsoDesk() {
    delete window_.data();
    test::registerReports({});
    ModoAlteracao = 0;
  }
  AvulsoDesk(const AvulsoDesk&) = delete;
  AvulsoDesk& operator=(const AvulsoDesk&) = delete;

  const test::Office& office() const { return office_; }
  QString rows() const { return office_.ask("SELECT count(*) FROM ReqAvulso"); }

  // Opens a fresh window and saves a complete requisition.
  void save() {
    show();
    fillRequisition();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

 private:
  test::Office office_;
};

}  // namespace

class frmReqAvulsoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { desk_ = std::make_unique<AvulsoDesk>(); }
  void cleanup() { desk_.reset(); }

  void keepsToTheHouseRules() {
    desk_->show();
    desk_->fillRequisition();
    QCOMPARE(test::mnemonicClashes(*desk_->window()), QString());
    QCOMPARE(test::unnamedControls(*desk_->window()), QString());
    QCOMPARE(test::clippedTexts(*desk_->window()), QString());
    QVERIFY(desk_->window()->minimumSizeHint().width() <= 1080);
    QVERIFY(desk_->window()->minimumSizeHint().height() <= 560);
  }

  void opensEmptyWithTodaysDate() {
    desk_->show();
    QCOMPARE(desk_->window()->windowTitle(), QString("Cadastro Avulso de Requisição"));
    QCOMPARE(desk_->text("dtpdata"), QString("21/11/2014"));
    QCOMPARE(desk_->text("mskprocesso"), QString());
    QCOMPARE(desk_->text("lblProcesso"), QString("Código"));
    for (const char* name : {"cmbOrgao", "cmbOrdenador", "cmbResponsavel", "cmbTipo", "cmbficha"}) {
      QCOMPARE(desk_->items(name), QStringList());
    }
    for (const char* name : {"txtid", "txtid2", "txtcargo", "mskvalor", "txtjustificativa"}) {
      QCOMPARE(desk_->text(name), QString());
    }
    QVERIFY(!desk_->widget("txtcargo")->isVisible());
    QCOMPARE(desk_->enabled(kButtons), QString("1001"));
    QCOMPARE(desk_->text("cmdAplicar"), QString("Aplicar"));
    QCOMPARE(desk_->text("cmdOk"), QString("OK"));
    QCOMPARE(desk_->text("cmdImprimir"), QString("Imprimir"));
    QCOMPARE(desk_->text("Command1_0"), QString("Sair"));
  }

  // It takes no yearly number and moves no counter.
  void theNumberHasNoTemplateAndIsNotTyped() {
    desk_->show();
    const auto* number = desk_->child<MaskedBox>("mskprocesso");
    QCOMPARE(number->mask(), QString());
    QCOMPARE(number->maxLength(), 64);
    QCOMPARE(number->accessibleName(), QString("Código"));
    desk_->type("mskprocesso", "9999");
    QCOMPARE(desk_->text("mskprocesso"), QString());
  }

  void marksTheRequiredFields() {
    desk_->show();
    for (const char* name : {"cmbOrgao", "cmbOrdenador", "cmbResponsavel", "cmbTipo", "cmbficha",
                             "mskvalor", "txtjustificativa"}) {
      QCOMPARE(desk_->widget(name)->property("Tag").toString(), QString("1"));
    }
    for (const char* name : {"mskprocesso", "dtpdata", "txtid", "txtid2", "txtcargo"}) {
      QCOMPARE(desk_->widget(name)->property("Tag").toString(), QString());
    }
  }

  void theTabKeyVisitsTheFieldsInOrder() {
    desk_->show();
    QCOMPARE(desk_->focused(), QString("dtpdata"));
    QCOMPARE(test::tabRound(*desk_->window()),
             QStringList({"dtpdata", "cmbOrgao", "cmbOrdenador", "cmbResponsavel", "cmbTipo",
                          "cmbficha", "mskvalor", "txtjustificativa", "cmdAplicar", "Command1_0"}));
  }

  void theTabKeyVisitsTheOtherButtonsOnceSaved() {
    desk_->save();
    QCOMPARE(desk_->focused(), QString("cmdOk"));
    QCOMPARE(
        test::tabRound(*desk_->window()),
        QStringList({"cmdOk", "cmdImprimir", "Command1_0", "dtpdata", "cmbOrgao", "cmbOrdenador",
                     "cmbResponsavel", "cmbTipo", "cmbficha", "mskvalor", "txtjustificativa"}));
  }

  void fillsTheListsOneAfterTheOther() {
    desk_->show();
    desk_->pick("cmbOrgao", "Saúde");
    QCOMPARE(desk_->items("cmbOrgao"), QStringList({"Educação", "Saúde"}));
    QCOMPARE(desk_->items("cmbTipo"), QStringList({"Miúdas", "Viagem"}));
    desk_->pick("cmbOrdenador", "Ana Lima");
    QCOMPARE(desk_->text("txtid"), QString("RG: 11.111 - CPF: 111.111.111-11"));
    desk_->pick("cmbResponsavel", "Davi Souza");
    QCOMPARE(desk_->items("cmbResponsavel"), QStringList({"Davi Souza", "Fábio Dias"}));
    QCOMPARE(desk_->text("txtid2"), QString("RG: 44.444 - CPF: 444.444.444-44"));
    QCOMPARE(desk_->text("txtcargo"), QString("Motorista"));
    desk_->pick("cmbTipo", "Miúdas");
    QCOMPARE(desk_->items("cmbficha"), QStringList({"128", "128", "130"}));
    emit desk_->combo("cmbficha")->dropDown();
    QCOMPARE(desk_->items("cmbficha"), QStringList({"128", "130"}));
    desk_->pick("cmbOrgao", "Educação");
    QCOMPARE(desk_->text("txtid"), QString());
    QCOMPARE(desk_->items("cmbOrdenador"), QStringList{"Célia Prado"});
    QCOMPARE(desk_->items("cmbTipo"), QStringList{"Curso"});
  }

  void offersActiveOrderersWhateverTheMode_data() {
    QTest::addColumn<int>("mode");
    QTest::newRow("including") << 0;
    QTest::newRow("altering") << -1;
  }
  void offersActiveOrderersWhateverTheMode() {
    QFETCH(int, mode);
    ModoAlteracao = static_cast<std::int16_t>(mode);
    desk_->show();
    desk_->pick("cmbOrgao", "Saúde");
    QCOMPARE(desk_->items("cmbOrdenador"), QStringList{"Ana Lima"});
  }

  void theListsAreReadAnewWhenTheyDropDown() {
    desk_->show();
    desk_->fillRequisition();
    desk_->office().run(
        "INSERT INTO Orgao(IDORGAO, ORGAO) VALUES (3, 'Agricultura');"
        "INSERT INTO Tomador(ID, NOME1, ATIVO) VALUES (4, 'Bia Alves', 1);"
        "INSERT INTO Dotacao(IDTIPO, IDORGAO, DOTACAO, ANO) VALUES (1, 1, 131, 2014)");
    for (const char* name : {"cmbOrgao", "cmbResponsavel", "cmbficha"}) {
      const QString before = desk_->text(name);
      emit desk_->combo(name)->dropDown();
      QCOMPARE(desk_->text(name), before);
    }
    QCOMPARE(desk_->items("cmbOrgao"), QStringList({"Agricultura", "Educação", "Saúde"}));
    QCOMPARE(desk_->items("cmbResponsavel"),
             QStringList({"Bia Alves", "Davi Souza", "Fábio Dias"}));
    QCOMPARE(desk_->items("cmbficha"), QStringList({"128", "130", "131"}));
  }

  void theAllocationTakesNoTyping() {
    desk_->show();
    desk_->fillRequisition();
    desk_->type("cmbficha", "7");
    QCOMPARE(desk_->text("cmbficha"), QString("128"));
    QTest::keyClick(desk_->widget("cmbficha"), Qt::Key_Backspace);
    QCOMPARE(desk_->text("cmbficha"), QString("128"));
  }

  // Without a purpose there is nothing to read.
  void theAllocationStaysEmptyWithoutAPurpose() {
    desk_->show();
    emit desk_->combo("cmbficha")->dropDown();
    QCOMPARE(desk_->items("cmbficha"), QStringList());
  }

  void asksForEveryRequiredField_data() { test::addRequiredFieldRows(); }
  void asksForEveryRequiredField() {
    QFETCH(QByteArray, field);
    desk_->show();
    desk_->fillRequisition();
    desk_->empty(field.constData());
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::fieldsMissing());
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->focused(), QString::fromLatin1(field));
    QCOMPARE(desk_->rows(), QString("0"));
    QCOMPARE(desk_->enabled(kButtons), QString("1001"));
  }

  void focusesTheLastOfSeveralEmptyFields() {
    desk_->show();
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::fieldsMissing());
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->focused(), QString("txtjustificativa"));
    desk_->type("txtjustificativa", "Algo");
    dialogs.expectBox(test::fieldsMissing());
    desk_->click("cmdAplicar");
    QCOMPARE(desk_->focused(), QString("mskvalor"));
  }

  void savesAndShowsTheNumber() {
    desk_->office().run("INSERT INTO ReqAvulso(SEQ) VALUES (41)");
    desk_->show();
    desk_->fillRequisition();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes,
                      [this] { QCOMPARE(desk_->text("mskprocesso"), QString()); });
    dialogs.expectBox(boxes::saved());
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask(
                 "SELECT DATA||'|'||ORGAO||'|'||TOMADOR||'|'||VALOR||'|'||FINALIDADE||'|'||"
                 "JUSTIFICATIVA||'|'||FICHA FROM ReqAvulso WHERE SEQ = 42"),
             QString("2014-11-21 00:00:00|1|1|15005000|1|Compras miúdas|128"));
    QCOMPARE(desk_->text("mskprocesso"), QString("42"));
    QCOMPARE(desk_->enabled(kButtons), QString("0111"));
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM Requisicao"), QString("0"));
    QVERIFY(desk_->isOpen());
  }

  // An advance of the same person and purpose that is still open is nobody's business here.
  void warnsOfNoOpenAdvance() {
    desk_->office().run(
        "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE) VALUES "
        "(114, '2014-11-03 00:00:00', 1, 1, 1, 1), (214, '2014-11-03 00:00:00', 1, 3, 1, 2);");
    desk_->save();
    QCOMPARE(desk_->rows(), QString("1"));
  }

  void savesTheKeysNotThePlacesInTheLists() {
    desk_->show();
    desk_->fillRequisition();
    desk_->pick("cmbResponsavel", "Fábio Dias");
    desk_->pick("cmbOrgao", "Educação");
    desk_->pick("cmbOrdenador", "Célia Prado");
    desk_->pick("cmbTipo", "Curso");
    desk_->combo("cmbficha")->setText("7");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask("SELECT ORGAO||'|'||TOMADOR||'|'||FINALIDADE||'|'||FICHA "
                                 "FROM ReqAvulso"),
             QString("3|3|3|7"));
  }

  void anAmountThatIsNoneIsToldAndLosesNothing() {
    desk_->show();
    desk_->fillRequisition();
    desk_->child<QLineEdit>("mskvalor")->setText("muito");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::warning("Valor inválido!!"));
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->focused(), QString("mskvalor"));
    QCOMPARE(desk_->rows(), QString("0"));
    QCOMPARE(desk_->enabled(kButtons), QString("1001"));
    QCOMPARE(desk_->text("txtjustificativa"), QString("Compras miúdas"));
  }

  void keepsApostrophesAccentsAndLines() {
    desk_->show();
    desk_->fillRequisition();
    const QString reason = "Pão d'água, \"café\" & 50% à João;\nSão Luís — ida e volta's";
    desk_->child<QPlainTextEdit>("txtjustificativa")->setPlainText(reason);
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask("SELECT JUSTIFICATIVA FROM ReqAvulso"), reason);
  }

  void aDeclinedSaveLeavesEverything() {
    desk_->show();
    desk_->fillRequisition();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::No);
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->rows(), QString("0"));
    QCOMPARE(desk_->enabled(kButtons), QString("1001"));
    QCOMPARE(desk_->text("mskprocesso"), QString());
    QCOMPARE(desk_->text("txtjustificativa"), QString("Compras miúdas"));
    QCOMPARE(desk_->text("mskvalor"), QString("1.500,50"));
  }

  void aFailedSaveIsToldAndLosesNothing_data() {
    QTest::addColumn<bool>("locked");
    QTest::newRow("locked by another program") << true;
    QTest::newRow("a database that can only be read") << false;
  }
  void aFailedSaveIsToldAndLosesNothing() {
    QFETCH(bool, locked);
    desk_->show();
    desk_->fillRequisition();
    Connection other;
    if (locked) {
      other.open(QStringLiteral("Data Source=") + desk_->office().database());
      other.beginTransaction();
    } else {
      writable(false);
    }
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(
        boxes::saveFailure(locked ? ErrorNumber::RowLocked : ErrorNumber::ReadOnlyDatabase));
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->enabled(kButtons), QString("1001"));
    QCOMPARE(desk_->text("mskprocesso"), QString());
    QCOMPARE(desk_->text("cmbOrdenador"), QString("Ana Lima"));
    QCOMPARE(desk_->text("txtjustificativa"), QString("Compras miúdas"));
    if (locked) {
      other.rollback();
    } else {
      writable(true);
    }
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->rows(), QString("1"));
  }

  void aSavedOneIsNotSavedTwice() {
    desk_->save();
    desk_->click("cmdAplicar");
    QTest::keyClick(desk_->window(), Qt::Key_A, Qt::AltModifier);
    QCOMPARE(desk_->rows(), QString("1"));
    desk_->click("cmdOk");
    desk_->save();
    QCOMPARE(desk_->rows(), QString("2"));
    QCOMPARE(desk_->text("mskprocesso"), QString("2"));
  }

  // The process screen leaves the mode behind; without a row of its own there is nothing to alter,
  // not even the requisition that was saved last.
  void theModeLeftByTheProcessScreenAltersNothing() {
    desk_->save();
    desk_->click("cmdOk");
    ModoAlteracao = -1;
    desk_->show();
    desk_->fillRequisition();
    desk_->type("mskvalor", "9");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::CurrentRowMissing));
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask("SELECT group_concat(VALOR) FROM ReqAvulso"), QString("15005000"));
    QCOMPARE(desk_->enabled(kButtons), QString("1001"));
    QCOMPARE(desk_->text("mskprocesso"), QString());
    QCOMPARE(desk_->text("mskvalor"), QString("9,00"));
    QCOMPARE(int{ModoAlteracao}, -1);
    dialogs.expectBox(boxes::askAlteration(), Button::No);
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void printsTheFormAndCloses() {
    test::PrintedReports printed;
    desk_->office().run("INSERT INTO ReqAvulso(SEQ) VALUES (30)");
    desk_->save();
    desk_->click("cmdImprimir");
    QCOMPARE(printed.requests.size(), 1);
    QVERIFY(printed.requests[0].relatorio == Relatorio::Requisicao2);
    QCOMPARE(printed.requests[0].comando,
             QString("Select * from Sel_Print_reqavulso WHERE ReqAvulso.SEQ = 31"));
    QCOMPARE(Sql_atual, printed.requests[0].comando);
    QVERIFY(printed.requests[0].exibe);
    QVERIFY(printed.requests[0].campos.isEmpty());
    QVERIFY(!desk_->isOpen());
  }

  // What is printed is the row that was saved.
  void thePrintedStatementFindsTheRow() {
    QStringList row;
    registra_impressao(Relatorio::Requisicao2, [&row](const PedidoImpressao& request) {
      Recordset data;
      data.open(request.comando, *Conexao);
      QCOMPARE(data.recordCount(), 1);
      for (const QStringView name : {u"SEQ", u"NOME1", u"NOME", u"ORGAO", u"TIPO", u"FICHA"}) {
        row << Convert::toText(data.field(name));
      }
    });
    desk_->save();
    desk_->click("cmdImprimir");
    QCOMPARE(row, QStringList({"1", "Davi Souza", "Ana Lima", "Saúde", "Miúdas", "128"}));
  }

  void aReportThatFailsIsTold() {
    registra_impressao(Relatorio::Requisicao2, [](const PedidoImpressao&) {
      throw RuntimeError(ErrorNumber::PrinterFailure);
    });
    desk_->save();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::PrinterFailure, "Função imprimir"));
    desk_->click("cmdImprimir");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(desk_->isOpen());
    QCOMPARE(desk_->enabled(kButtons), QString("0111"));
  }

  void withoutAReportItIsToldAndTheWindowStays() {
    desk_->save();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::documentMissing());
    desk_->click("cmdImprimir");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(desk_->isOpen());
    QCOMPARE(desk_->enabled(kButtons), QString("0111"));
  }

  void nothingIsPrintedBeforeSaving() {
    test::PrintedReports printed;
    desk_->show();
    desk_->fillRequisition();
    desk_->click("cmdImprimir");
    desk_->click("cmdOk");
    QCOMPARE(printed.requests.size(), 0);
    QVERIFY(desk_->isOpen());
  }

  void closesWithoutRefreshingTheMainList_data() {
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("OK") << QByteArray("cmdOk");
    QTest::newRow("Sair") << QByteArray("Command1_0");
  }
  void closesWithoutRefreshingTheMainList() {
    QFETCH(QByteArray, button);
    ListView list;
    StatusBar bar;
    registra_lista_principal(&list, &bar);
    list.addColumn("N°.", ColumnWidth::pixels(80));
    list.addRow({"a row"});
    desk_->save();
    desk_->click(button.constData());
    registra_lista_principal(nullptr, nullptr);
    QVERIFY(!desk_->isOpen());
    QVERIFY(UmaJanela<frmReqAvulso>::aberta() == nullptr);
    QCOMPARE(list.count(), 1);
    QCOMPARE(list.text(0), QString("a row"));
  }

  void leavesWithoutSaving() {
    desk_->show();
    desk_->fillRequisition();
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::askAbandon(), Button::No);
    desk_->click("Command1_0");
    QVERIFY(desk_->isOpen());
    dialogs.expectBox(test::askAbandon(), Button::Yes);
    desk_->click("Command1_0");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!desk_->isOpen());
    QCOMPARE(desk_->rows(), QString("0"));
  }

  void whatIsTypedAfterTheSaveIsAskedForToo_data() {
    QTest::addColumn<QByteArray>("button");
    for (const char* name : {"cmdOk", "cmdImprimir", "Command1_0"}) {
      QTest::newRow(name) << QByteArray(name);
    }
  }
  void whatIsTypedAfterTheSaveIsAskedForToo() {
    QFETCH(QByteArray, button);
    const test::PrintedReports printed;
    desk_->show();
    desk_->fillRequisition();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    desk_->click("cmdAplicar");
    desk_->type("txtjustificativa", "mais");
    dialogs.expectBox(test::askAbandon(), Button::No);
    desk_->click(button.constData());
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(desk_->isOpen());
    QCOMPARE(printed.requests.size(), 0);
    dialogs.expectBox(test::askAbandon(), Button::Yes);
    desk_->click(button.constData());
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!desk_->isOpen());
    QCOMPARE(printed.requests.size(), button == "cmdImprimir" ? 1 : 0);
  }

  void escapeAsksBeforeTypingIsLost() {
    desk_->show();
    desk_->fillRequisition();
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::askAbandon(), Button::No);
    QTest::keyClick(desk_->widget("txtjustificativa"), Qt::Key_Escape);
    QVERIFY(desk_->isOpen());
    QCOMPARE(desk_->text("txtjustificativa"), QString("Compras miúdas"));
    dialogs.expectBox(test::askAbandon(), Button::Yes);
    QTest::keyClick(desk_->widget("txtjustificativa"), Qt::Key_Escape);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!desk_->isOpen());
  }

  // By its frame, by a command of the main window, with the program.
  void closingAsksBeforeTypingIsLost() {
    desk_->show();
    desk_->fillRequisition();
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::askAbandon(), Button::No);
    QVERIFY(!OpenForms::unload(desk_->window()));
    QVERIFY(desk_->isOpen());
    QCOMPARE(desk_->text("txtjustificativa"), QString("Compras miúdas"));
    dialogs.expectBox(test::askAbandon(), Button::Yes);
    QVERIFY(OpenForms::unload(desk_->window()));
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(UmaJanela<frmReqAvulso>::aberta() == nullptr);
  }

  void escapeWithNothingToLoseJustCloses_data() {
    QTest::addColumn<bool>("saved");
    QTest::newRow("nothing typed") << false;
    QTest::newRow("all saved") << true;
  }
  void escapeWithNothingToLoseJustCloses() {
    QFETCH(bool, saved);
    saved ? desk_->save() : desk_->show();
    ScriptedDialogs dialogs;
    QTest::keyClick(desk_->widget("txtjustificativa"), Qt::Key_Escape);
    QVERIFY(!desk_->isOpen());
  }

  void refusesADateThatIsNone() {
    desk_->show();
    desk_->fillRequisition();
    desk_->type("dtpdata", "31022014");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::warning("Data inválida!!"));
    desk_->widget("mskvalor")->setFocus();
    desk_->click("cmdAplicar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->focused(), QString("dtpdata"));
    QCOMPARE(desk_->rows(), QString("0"));
  }

  // A letter of the keyboard presses the button without leaving the field.
  void aDateTypedByHalfIsNotPassedOverByTheKeyboard() {
    desk_->show();
    desk_->fillRequisition();
    desk_->type("dtpdata", "15");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::warning("Data inválida!!"));
    desk_->mnemonic(Qt::Key_A);
    QTRY_VERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->focused(), QString("dtpdata"));
    QCOMPARE(desk_->rows(), QString("0"));
  }

  void aDateTypedByHalfDoesNotOutliveTheWindow() {
    desk_->show();
    desk_->type("dtpdata", "15");
    delete desk_->window();
    QVERIFY(UmaJanela<frmReqAvulso>::aberta() == nullptr);
  }

  void staysAboveTheMainWindow() {
    QWidget main;
    OpenForms::setMainWindow(&main);
    desk_->show();
    QCOMPARE(desk_->window()->parentWidget(), &main);
    QVERIFY(desk_->window()->isWindow());
    QVERIFY(!desk_->window()->isModal());
    OpenForms::setMainWindow(nullptr);
    delete desk_->window();
  }

 private:
  static void writable(bool write) {
    const char* const sql = write ? "PRAGMA query_only = 0" : "PRAGMA query_only = 1";
    QCOMPARE(sqlite3_exec(test::sqliteSession(*Conexao).handle(), sql, nullptr, nullptr, nullptr),
             SQLITE_OK);
  }

  std::unique_ptr<AvulsoDesk> desk_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmReqAvulsoTest)
#include "frmReqAvulso_test.moc"
