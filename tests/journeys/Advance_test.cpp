// The whole road of one advance, typed through the real controls: requisition, empenho, notes,
// closing with money left, reopening.
#include "screens/frmAdiantamento.h"
#include "tests/screens/ProcessDesk.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {

using test::ScriptedDialogs;
namespace boxes = test::boxes;

class AdvanceTest : public QObject {
  Q_OBJECT

 private slots:
  void travelsTheWholeRoad() {
    // The process of this road stands alone in the main list.
    desk_.office().run("DELETE FROM Requisicao");
    types();
    commits();
    spends();
    closes();
    reopens();
  }

 private:
  void types() {
    desk_.openNew();
    desk_.fillRequisition();
    dialogs_.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs_.expectBox(boxes::saved());
    desk_.click("cmdAplicar");
    desk_.click("cmdOk");
    QVERIFY2(dialogs_.satisfied(), dialogs_.report());
    QCOMPARE(desk_.mainList().count(), 1);
    QCOMPARE(desk_.mainList().text(0), kProcess);
  }

  void commits() {
    desk_.openProcess(kProcess);
    desk_.click("cmdnovo");
    auto* dialog = desk_.child<frmAdiantamento>("frmAdiantamento");
    QTRY_VERIFY(dialog->isActiveWindow());
    for (const auto& [name, typed] : {std::pair("mskempenho", "0050014"), std::pair("mskOP", "321"),
                                      std::pair("dtpretirada", "21112014")}) {
      auto* field = dialog->findChild<QLineEdit*>(QString::fromLatin1(name));
      field->setFocus();
      field->selectAll();
      test::typeText(field, QString::fromLatin1(typed));
    }
    dialogs_.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs_.expectBox(boxes::saved());
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    QVERIFY2(dialogs_.satisfied(), dialogs_.report());
    desk_.click("Command1_0");
    QCOMPARE(desk_.mainList().subItem(0, 1), QString("00500/14"));
    QCOMPARE(desk_.mainList().subItem(0, 9), QString("21/12/2014"));
  }

  void spends() {
    desk_.openProcess(kProcess);
    QVERIFY(!desk_.widget("fracadastro")->isEnabled());
    desk_.click("cmdPrestacao");
    note("21112014", "101", "posto central", "300,25");
    note("24112014", "102", "hotel", "700");
    QCOMPARE(desk_.text("lblGasto"), QString("1.000,25"));
    QCOMPARE(desk_.text("lblNao_aplicado"), QString("500,25"));
  }

  void note(const char* date, const char* document, const char* history, const char* amount) {
    desk_.click("Command1_3");
    desk_.type("txtdatanota", QString::fromLatin1(date));
    desk_.type("txtordem", QString::fromLatin1(document));
    desk_.type("txtrazao_social", QString::fromLatin1(history));
    desk_.type("mskValor_nota", QString::fromLatin1(amount));
    dialogs_.expectBox(boxes::saved());
    desk_.click("Command1_2");
    QVERIFY2(dialogs_.satisfied(), dialogs_.report());
  }

  void closes() {
    dialogs_.expectBox(test::informedQuestion("Deseja Encerrar o Adiantamento agora?"),
                       Button::Yes);
    dialogs_.expectBox({.text = "Empenho Encerrado!!!",
                        .title = "Finalizar Prestação de Contas",
                        .icon = BoxIcon::Information});
    desk_.click("cmdEncerrar");
    QVERIFY2(dialogs_.satisfied(), dialogs_.report());
    QCOMPARE(printed_.requests.size(), 1);
    QVERIFY(printed_.requests[0].relatorio == Relatorio::Guia);
    QCOMPARE(printed_.requests[0].campos.value("Field62"), QString("500,25"));
    QCOMPARE(advance(), QString("2014-11-21 00:00:00|5002500|2014-11-21 00:00:00"));
  }

  void reopens() {
    desk_.openProcess(kProcess);
    desk_.click("cmdPrestacao");
    QCOMPARE(desk_.text("cmdEncerrar"), QString("Reativar Empenho"));
    dialogs_.expectBox(test::informedQuestion("Deseja Reativar o Adiantamento agora?"),
                       Button::Yes);
    dialogs_.expectBox({.text = "Empenho Reativado!!!",
                        .title = "Reativar Prestação de Contas",
                        .icon = BoxIcon::Information});
    desk_.click("cmdEncerrar");
    QVERIFY2(dialogs_.satisfied(), dialogs_.report());
    QCOMPARE(advance(), QString("|0|"));
    QCOMPARE(desk_.office().ask("SELECT count(*) FROM PrestContas"), QString("2"));
  }

  QString advance() {
    return desk_.office().ask(
        "SELECT coalesce(FECHAMENTO, '')||'|'||DEVOLUCAO||'|'||coalesce(DATADEV, '') FROM "
        "Adiantamento");
  }

  // The first process of the year, so that its number fits sixteen bits.
  const QString kProcess = QStringLiteral("0001/14");
  test::ProcessDesk desk_{1};
  test::PrintedReports printed_;
  ScriptedDialogs dialogs_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::AdvanceTest)
#include "Advance_test.moc"
