// The empenho side of the process screen: list, buttons, the way to the notes, closing and
// reopening.
#include "screens/frmAdiantamento.h"
#include "tests/screens/ProcessDesk.h"
#include "tests/support/WindowChecks.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {

using test::ScriptedDialogs;
namespace boxes = test::boxes;

class frmCadastroEmpenhoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { desk_ = std::make_unique<test::ProcessDesk>(); }
  void cleanup() { desk_.reset(); }

  void showsTheEmpenho() {
    desk_->addEmpenho();
    desk_->openProcess();
    const ListView* list = desk_->list("lstEmpenho");
    QCOMPARE(list->count(), 1);
    QStringList row{list->text(0)};
    for (int n = 1; n <= 8; ++n) {
      row << list->subItem(0, n);
    }
    QCOMPARE(row, QStringList({"00500/14", "01/11/2014", "03/11/2014", "03/12/2014", "", "0,00", "",
                               "77", "NÃO"}));
  }

  void asksForASelection_data() {
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("alter") << QByteArray("cmdalterar");
    QTest::newRow("delete") << QByteArray("cmdexcluir");
  }
  void asksForASelection() {
    QFETCH(QByteArray, button);
    desk_->addEmpenho();
    desk_->openProcess();
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::stopped("Selecione um item da lista !!!"));
    desk_->click(button.constData());
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!dialog());
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM Adiantamento"), QString("1"));
  }

  void aClickOrAKeyTakesTheEmpenho_data() {
    QTest::addColumn<bool>("withKey");
    QTest::newRow("click") << false;
    QTest::newRow("key") << true;
  }
  void aClickOrAKeyTakesTheEmpenho() {
    QFETCH(bool, withKey);
    desk_->addEmpenho();
    desk_->openProcess();
    QCOMPARE(desk_->text("txtkey"), QString());
    select(withKey);
    QCOMPARE(desk_->text("txtkey"), QString("00500/14"));
  }

  void opensTheDialog_data() {
    QTest::addColumn<QString>("way");
    QTest::addColumn<int>("mode");
    QTest::newRow("button include") << "novo" << 0;
    QTest::newRow("button alter") << "alterar" << -1;
    QTest::newRow("double click") << "double" << -1;
    QTest::newRow("Enter") << "enter" << -1;
  }
  void opensTheDialog() {
    QFETCH(QString, way);
    if (way != "novo") {
      desk_->addEmpenho();
    }
    desk_->openProcess();
    ListView* list = desk_->list("lstEmpenho");
    if (way == "novo") {
      desk_->click("cmdnovo");
    } else {
      select(false);
      if (way == "alterar") {
        desk_->click("cmdalterar");
      } else if (way == "enter") {
        QTest::keyClick(list, Qt::Key_Return);
      } else {
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                           list->visualRect(list->model()->index(0, 0)).center());
      }
    }
    QVERIFY(dialog());
    QVERIFY(!dialog()->isModal());
    QTEST(int{AlteraEmpenho}, "mode");
    QCOMPARE(desk_->enabled("fracadastro cmdAplicar"), QString("00"));
  }

  void aSecondPressBringsTheSameDialogForward() {
    desk_->openProcess();
    desk_->click("cmdnovo");
    const QWidget* first = dialog();
    desk_->click("cmdnovo");
    QCOMPARE(dialog(), first);
  }

  void excludesTheEmpenhoWithItsNotes_data() {
    QTest::addColumn<bool>("yes");
    QTest::newRow("yes") << true;
    QTest::newRow("no") << false;
  }
  void excludesTheEmpenhoWithItsNotes() {
    QFETCH(bool, yes);
    desk_->addEmpenho();
    desk_->addNote("2014-11-05", "1", "A", 10);
    desk_->office().run("UPDATE Adiantamento SET ABERTURA = NULL");
    desk_->openProcess();
    QCOMPARE(desk_->enabled("fracadastro cmdAplicar"), QString("11"));
    select(false);
    ScriptedDialogs dialogs;
    dialogs.expectBox(askExclusion(), yes ? Button::Yes : Button::No);
    if (yes) {
      dialogs.expectBox(boxes::deleted());
    }
    desk_->click("cmdexcluir");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->list("lstEmpenho")->count(), yes ? 0 : 1);
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM PrestContas"), QString(yes ? "0" : "1"));
    QCOMPARE(desk_->enabled("fracadastro cmdAplicar"), QString(yes ? "00" : "11"));
  }

  void leavingRefreshesOnlyAfterAnEmpenhoCommand_data() {
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("way");
    for (const char* way : {"Sair", "Escape", "frame"}) {
      for (const char* name : {"untouched", "cmdnovo", "cmdalterar", "cmdexcluir"}) {
        QTest::addRow("%s, %s", name, way)
            << (QByteArray(name) == "untouched" ? QByteArray() : QByteArray(name))
            << QByteArray(way);
      }
    }
  }
  void leavingRefreshesOnlyAfterAnEmpenhoCommand() {
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, way);
    if (command == "cmdalterar" || command == "cmdexcluir") {
      desk_->addEmpenho();
    }
    desk_->openProcess();
    if (!command.isEmpty()) {
      ScriptedDialogs dialogs;
      if (command == "cmdexcluir") {
        dialogs.expectBox(askExclusion(), Button::No);
      }
      if (command != "cmdnovo") {
        select(false);
      }
      desk_->click(command.constData());
      QVERIFY2(dialogs.satisfied(), dialogs.report());
    }
    desk_->office().run("DELETE FROM Requisicao");
    if (way == "Sair") {
      desk_->click("Command1_0");
    } else if (way == "Escape") {
      QTest::keyClick(desk_->window(), Qt::Key_Escape);
    } else {
      QVERIFY(desk_->window()->close());
    }
    QVERIFY(!desk_->isOpen());
    QCOMPARE(desk_->mainList().count(), command.isEmpty() ? 1 : 0);
  }

  void columnsSortAndTurnRound() {
    desk_->addEmpenho();
    desk_->office().run("INSERT INTO Adiantamento(EMPENHO, PROCESSO, OP) VALUES (60014, 1214, 5)");
    desk_->openProcess();
    ListView* list = desk_->list("lstEmpenho");
    emit list->columnClicked(1);
    list->flush();
    const QString first = list->text(0);
    emit list->columnClicked(1);
    list->flush();
    QVERIFY(list->text(0) != first);
  }

  void goesToTheNotesAndBack() {
    desk_->addEmpenho();
    desk_->addNote("2014-11-05", "17", "POSTO", 120);
    desk_->openProcess();
    auto* tabs = desk_->child<TwoPageTab>("SSTab1");
    desk_->click("cmdPrestacao");
    QCOMPARE(tabs->current(), 1);
    QVERIFY(tabs->tabEnabled(1) && !tabs->tabEnabled(0));
    QCOMPARE(desk_->text("cmdPrestacao"), QString("<< Voltar a Requisição"));
    QCOMPARE(desk_->text("lblIdentificacao_27"), QString("00500/14 - Davi Souza - Miúdas"));
    for (const char* name : {"cmdOk", "cmdAplicar", "cmdImprimir"}) {
      QVERIFY(!desk_->widget(name)->isVisible());
    }
    desk_->click("cmdPrestacao");
    QCOMPARE(tabs->current(), 0);
    QVERIFY(tabs->tabEnabled(0) && !tabs->tabEnabled(1));
    QCOMPARE(desk_->text("cmdPrestacao"), QString("Prestação de Contas >>"));
    for (const char* name : {"cmdOk", "cmdAplicar", "cmdImprimir"}) {
      QVERIFY(desk_->widget(name)->isVisible());
    }
  }

  void withoutItsEmpenhoThePageIsNotReached() {
    desk_->addEmpenho();
    desk_->openProcess();
    select(false);
    ScriptedDialogs dialogs;
    dialogs.expectBox(askExclusion(), Button::Yes);
    dialogs.expectBox(boxes::deleted());
    desk_->click("cmdexcluir");
    dialogs.expectBox(test::untrapped(ErrorNumber::SubscriptOutOfRange));
    desk_->click("cmdPrestacao");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->child<TwoPageTab>("SSTab1")->current(), 0);
  }

  void showsWhetherItIsClosed_data() {
    QTest::addColumn<bool>("closed");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("open") << false << "Encerrar Empenho" << QColor(255, 255, 128);
    QTest::newRow("closed") << true << "Reativar Empenho" << QColor(255, 0, 0);
  }
  void showsWhetherItIsClosed() {
    QFETCH(bool, closed);
    desk_->addEmpenho();
    if (closed) {
      desk_->office().run("UPDATE Adiantamento SET FECHAMENTO = '2014-11-20 00:00:00'");
    }
    desk_->openProcess();
    QCOMPARE(desk_->text("cmdEncerrar"), QString("Encerrar Despesas"));
    desk_->click("cmdPrestacao");
    QTEST(desk_->text("cmdEncerrar"), "caption");
    QTEST(buttonColour(), "colour");
  }

  // Spent of 1.000,00; what is stored, and whether the slip is printed.
  void closes_data() {
    QTest::addColumn<int>("spent");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("slip");
    QTest::newRow("money left") << 700 << "2014-11-21 00:00:00|3000000|2014-11-21 00:00:00" << true;
    QTest::newRow("nothing left") << 1000 << "2014-11-21 00:00:00|0|" << false;
    QTest::newRow("more spent than given") << 1200 << "2014-11-21 00:00:00|0|" << false;
  }
  void closes() {
    QFETCH(int, spent);
    QFETCH(bool, slip);
    test::PrintedReports printed;
    openWith(spent);
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::informedQuestion("Deseja Encerrar o Adiantamento agora?"), Button::Yes);
    dialogs.expectBox({.text = "Empenho Encerrado!!!",
                       .title = "Finalizar Prestação de Contas",
                       .icon = BoxIcon::Information});
    desk_->click("cmdEncerrar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QTEST(state(), "stored");
    QCOMPARE(printed.requests.size(), slip ? 1 : 0);
    QCOMPARE(desk_->isOpen(), !slip);
    QCOMPARE(desk_->mainList().subItem(0, 10), QString("21/11/2014"));
    if (!slip) {
      QCOMPARE(desk_->text("cmdEncerrar"), QString("Reativar Empenho"));
      QCOMPARE(buttonColour(), QColor(255, 0, 0));
      QCOMPARE(desk_->list("lstEmpenho")->subItem(0, 4), QString("21/11/2014"));
    }
  }

  void aFailedClosingKeepsTheCaption() {
    openWith(1000);
    desk_->office().run("DELETE FROM Adiantamento");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::informedQuestion("Deseja Encerrar o Adiantamento agora?"), Button::Yes);
    dialogs.expectBox(boxes::internalError(ErrorNumber::CurrentRowMissing, "Encerra_adiantamento"));
    desk_->click("cmdEncerrar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->text("cmdEncerrar"), QString("Encerrar Empenho"));
    QCOMPARE(buttonColour(), QColor(255, 255, 128));
    QCOMPARE(desk_->list("lstEmpenho")->count(), 0);
    QVERIFY(desk_->isOpen());
  }

  // Its list is read anew; the page goes on working on it.
  void aClosedEmpenhoStaysTheChosenOne() {
    openWith(1000);
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::informedQuestion("Deseja Encerrar o Adiantamento agora?"), Button::Yes);
    dialogs.expectBox({.text = "Empenho Encerrado!!!",
                       .title = "Finalizar Prestação de Contas",
                       .icon = BoxIcon::Information});
    desk_->click("cmdEncerrar");
    QCOMPARE(test::mnemonicClashes(*desk_->window()), QString());
    QCOMPARE(test::clippedTexts(*desk_->window()), QString());
    test::PrintedReports printed;
    desk_->click("Command1_4");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(printed.requests.size(), 1);
    QCOMPARE(printed.requests[0].campos.value("Field3"), QString("00500/14"));
  }

  // The dialog goes with this window, but not what is typed in it.
  void closingAsksForWhatIsTypedInTheDialog() {
    desk_->openProcess();
    desk_->click("cmdnovo");
    test::typeText(dialog()->findChild<QWidget*>("mskOP"), "77");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::askAbandon(), Button::No);
    desk_->click("Command1_0");
    QVERIFY(desk_->isOpen());
    QVERIFY(dialog() != nullptr);
    dialogs.expectBox(test::askAbandon(), Button::Yes);
    desk_->click("Command1_0");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!desk_->isOpen());
  }

  // Both lists are read anew all the same.
  void notClosingChangesNothing() {
    openWith(10);
    desk_->office().run("UPDATE Requisicao SET VALOR = 20000000; UPDATE Adiantamento SET OP = 78");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::informedQuestion("Deseja Encerrar o Adiantamento agora?"), Button::No);
    desk_->click("cmdEncerrar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->mainList().subItem(0, 5), QString("2.000,00"));
    QCOMPARE(desk_->list("lstEmpenho")->subItem(0, 7), QString("78"));
    QCOMPARE(state(), QString("|0|"));
    QCOMPARE(desk_->text("cmdEncerrar"), QString("Encerrar Empenho"));
  }

  void reopens_data() {
    QTest::addColumn<bool>("yes");
    QTest::newRow("yes") << true;
    QTest::newRow("no") << false;
  }
  void reopens() {
    QFETCH(bool, yes);
    desk_->addEmpenho();
    desk_->addNote("2014-11-05", "1", "A", 10);
    desk_->office().run(
        "UPDATE Adiantamento SET FECHAMENTO = '2014-11-20 00:00:00', DEVOLUCAO = 9900000, DATADEV "
        "= "
        "'2014-11-20 00:00:00'");
    desk_->openProcess();
    desk_->click("cmdPrestacao");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::informedQuestion("Deseja Reativar o Adiantamento agora?"),
                      yes ? Button::Yes : Button::No);
    if (yes) {
      dialogs.expectBox({.text = "Empenho Reativado!!!",
                         .title = "Reativar Prestação de Contas",
                         .icon = BoxIcon::Information});
    }
    desk_->click("cmdEncerrar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(state(), QString(yes ? "|0|" : "2014-11-20 00:00:00|9900000|2014-11-20 00:00:00"));
    QCOMPARE(desk_->text("cmdEncerrar"), QString(yes ? "Encerrar Empenho" : "Reativar Empenho"));
    QCOMPARE(buttonColour(), yes ? QColor(255, 255, 128) : QColor(255, 0, 0));
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM PrestContas"), QString("1"));
  }

 private:
  static Box askExclusion() {
    return boxes::question("Confirma exclusão do Adiantamento: 00500/14 e seus relacionamentos.");
  }
  // One note of that many reais, on the page of the notes.
  void openWith(int spent) {
    desk_->addEmpenho();
    desk_->addNote("2014-11-05", "1", "A", spent);
    desk_->openProcess();
    desk_->click("cmdPrestacao");
  }
  void select(bool withKey) {
    ListView* list = desk_->list("lstEmpenho");
    if (withKey) {
      list->setFocus();
      QTest::keyClick(list, Qt::Key_Down);
    } else {
      test::ProcessDesk::clickRow(list, 0);
    }
  }
  QWidget* dialog() const {
    auto* found = desk_->child<frmAdiantamento>("frmAdiantamento");
    return found != nullptr && found->isVisible() ? found : nullptr;
  }
  QColor buttonColour() const {
    return desk_->widget("cmdEncerrar")->palette().color(QPalette::Active, QPalette::Button);
  }
  QString state() {
    return desk_->office().ask(
        "SELECT coalesce(FECHAMENTO, '')||'|'||DEVOLUCAO||'|'||coalesce(DATADEV, '') FROM "
        "Adiantamento");
  }

  std::unique_ptr<test::ProcessDesk> desk_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmCadastroEmpenhoTest)
#include "frmCadastro_empenho_test.moc"
