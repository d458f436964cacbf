// The older wizard to an accountability: its steps, its picker and its end.
#include "screens/frmTab3.h"

#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

#include "foundation/Banco.h"
#include "foundation/Estilo.h"
#include "foundation/Leitura.h"
#include "foundation/UmaJanela.h"
#include "platform/controls/ListView.h"
#include "platform/controls/MaskedBox.h"
#include "platform/values/Convert.h"
#include "records/Impressao.h"
#include "reports/arPrestacao.h"
#include "screens/frmProcura.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/Typing.h"
#include "tests/support/WindowChecks.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

using test::ScriptedDialogs;
namespace boxes = test::boxes;

class frmTab3Test : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    test::addOpenProcess(*office_);
    office_->run("UPDATE Adiantamento SET FECHAMENTO = '2014-11-20 00:00:00'");
    wizard_ = std::make_unique<frmTab3>();
    wizard_->show();
    QVERIFY(QTest::qWaitForWindowActive(wizard_.get()));
  }
  void cleanup() {
    wizard_.reset();
    delete UmaJanela<frmProcura>::aberta();
    registra_impressao(Relatorio::PrestacaoAnterior, {});
    office_.reset();
  }

  void opensOnTheFirstStep() {
    QCOMPARE(wizard_->windowTitle(), QString("Prestação de Contas"));
    QCOMPARE(step(), 0);
    QVERIFY(child<QWidget>("mskempenho")->hasFocus());
    QCOMPARE(enabled(), QStringList({"cmdAvancar", "Command1"}));
    QCOMPARE(caption("cmdVoltar"), QString("<<  Voltar"));
    QCOMPARE(caption("cmdAvancar"), QString("Avançar >>"));
    QCOMPARE(caption("cmdConcluir"), QString("Concluir"));
    QCOMPARE(caption("Command1"), QString("Cancelar"));
    QCOMPARE(field("txtmomento")->text(), QString("21/11/2014"));
    QCOMPARE(field("txthora")->text(), QString("10:30:00"));
    QCOMPARE(child<QLabel>("lblststus")->text(), QString());
    QCOMPARE(child<QLabel>("lblconcluida")->text(), QString("Operação concluída com sucesso!!!"));
    QCOMPARE(child<QLabel>("lblvisualizar")->text(),
             QString("Para visualizar o relatório clique em concluir."));
  }

  void hasItsSizeWhenItIsActive() {
    QCOMPARE(wizard_->size(),
             QSize(Estilo::pixels(5835, *wizard_), Estilo::pixels(4290, *wizard_)));
  }

  void goesForthAndBack() {
    click("cmdAvancar");
    QCOMPARE(step(), 1);
    QCOMPARE(enabled(), QStringList({"cmdVoltar", "cmdAvancar", "Command1"}));
    QVERIFY(field("txtmomento")->hasFocus());
    click("cmdAvancar");
    QCOMPARE(step(), 2);
    QCOMPARE(enabled(), QStringList({"cmdVoltar", "cmdConcluir", "Command1"}));
    QVERIFY(button("cmdConcluir")->hasFocus());
    click("cmdVoltar");
    QCOMPARE(step(), 1);
    QCOMPARE(enabled(), QStringList({"cmdVoltar", "cmdAvancar", "Command1"}));
    click("cmdVoltar");
    QCOMPARE(step(), 0);
    QCOMPARE(enabled(), QStringList({"cmdAvancar", "Command1"}));
    QVERIFY(child<QWidget>("mskempenho")->hasFocus());
  }

  void theTabsGoThereToo() {
    QTabBar* const bar = child<QTabWidget>("TabStrip1")->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(2).center());
    QCOMPARE(step(), 2);
    QCOMPARE(enabled(), QStringList({"cmdVoltar", "cmdConcluir", "Command1"}));
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(0).center());
    QCOMPARE(enabled(), QStringList({"cmdAvancar", "Command1"}));
  }

  void enterGoesOn() {
    child<QWidget>("mskempenho")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(step(), 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(step(), 2);
    QVERIFY(button("cmdConcluir")->isDefault());
  }

  void theNumberIsCompletedOnLeaving() {
    test::typeText(child<QWidget>("mskempenho"), "500");
    QTest::keyClick(child<QWidget>("mskempenho"), Qt::Key_Return);
    QCOMPARE(step(), 1);
    QCOMPARE(child<MaskedBox>("mskempenho")->text(), QString("00500/14"));
  }

  void enterOnBackGoesBack() {
    click("cmdAvancar");
    button("cmdVoltar")->setFocus();
    QTest::keyClick(button("cmdVoltar"), Qt::Key_Return);
    QCOMPARE(step(), 0);
  }

  void theDateTakesDigitsAlone() {
    click("cmdAvancar");
    QLineEdit* const date = field("txtmomento");
    date->clear();
    test::typeText(date, "0a5/1b1-2014");
    QCOMPARE(date->text(), QString("05/11/2014"));
    QTest::keyClick(date, Qt::Key_Backspace);
    QCOMPARE(date->text(), QString("05/11/201"));
  }

  void thePickerFillsTheEmpenho() {
    click("Command2");
    auto* const picker = UmaJanela<frmProcura>::aberta();
    QVERIFY(picker != nullptr && picker->isVisible());
    QCOMPARE(int{ModoProcura}, 2);
    auto* const list = picker->findChild<ListView*>("ListView1");
    list->flush();
    QCOMPARE(list->count(), 1);
    const QRect row = list->visualRect(list->model()->index(0, 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center());
    QTest::mouseClick(picker->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    QCOMPARE(child<MaskedBox>("mskempenho")->text(), QString("00500/14"));
    QCOMPARE(child<QLabel>("lblststus")->text(), QString("Responsável - Miúdas"));
  }

  void aClosedWizardTakesNothing() {
    click("Command2");
    auto* const picker = UmaJanela<frmProcura>::aberta();
    auto* const list = picker->findChild<ListView*>("ListView1");
    list->flush();
    wizard_.reset();
    const QRect row = list->visualRect(list->model()->index(0, 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center());
    QTest::mouseClick(picker->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    QVERIFY(UmaJanela<frmProcura>::aberta() == nullptr);
  }

  void asksForTheReport() {
    QList<PedidoImpressao> requests;
    registra_impressao(Relatorio::PrestacaoAnterior,
                       [&requests](const PedidoImpressao& request) { requests.append(request); });
    fillIn();
    click("cmdConcluir");
    QCOMPARE(requests.size(), 1);
    QCOMPARE(requests[0].comando,
             QString("SELECT PrestContas.DATA, PrestContas.ORDEM, PrestContas.HISTORICO, "
                     "PrestContas.DESPESAS, Requisicao.VALOR FROM Requisicao INNER JOIN "
                     "(Adiantamento INNER JOIN PrestContas ON Adiantamento.EMPENHO = "
                     "PrestContas.PROCESSO) ON Requisicao.SEQ = Adiantamento.PROCESSO Where "
                     "PrestContas.Processo = 0050014 ORDER BY PrestContas.DATA;"));
    const QString head = requests[0].campos.value("Data2");
    QCOMPARE(head,
             QString("SELECT Requisicao.VALOR, Requisicao.SEQ, Adiantamento.EMPENHO, "
                     "Adiantamento.ABERTURA, Adiantamento.RETIRADA, Adiantamento.DATADEV, "
                     "Adiantamento.DEVOLUCAO, Executor.NOME, Executor.FUNCAO FROM (Executor INNER "
                     "JOIN Requisicao ON Executor.ORDEM = Requisicao.ORGAO) INNER JOIN "
                     "Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO Where "
                     "Adiantamento.EMPENHO = 0050014"));
    QCOMPARE(requests[0].campos, (QMap<QString, QString>{{"Data2", head},
                                                         {"Field23", "21/11/2014 - 10:30:00"},
                                                         {"Field24", "Tesouraria"},
                                                         {"Field25", "Nenhuma"}}));
    QStringList names;
    Le_tabela(head, [&names] { names << Convert::toText(Tabela.field(u"NOME")); });
    QCOMPARE(names, QStringList{"Ordenador"});
  }

  void withoutAReportItIsTold() {
    fillIn();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::documentMissing());
    click("cmdConcluir");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(wizard_->isVisible());
  }

  // The report that it was made for is no longer there.
  void endsInTheErrorBox() {
    registra_arPrestacao();
    fillIn();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::SubscriptOutOfRange, kFuncaoImprimir,
                                           "arPrestacao.Data2"));
    click("cmdConcluir");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(wizard_->isVisible());
    QCOMPARE(step(), 2);
    QCOMPARE(field("txtlocal")->text(), QString("Tesouraria"));
  }

  void cancelCloses() {
    click("Command1");
    QVERIFY(!wizard_->isVisible());
  }

  void escapeCloses() {
    QTest::keyClick(wizard_.get(), Qt::Key_Escape);
    QVERIFY(!wizard_->isVisible());
  }

  void keepsToTheHouse() {
    QCOMPARE(test::mnemonicClashes(*wizard_), QString());
    QCOMPARE(test::unnamedControls(*wizard_), QString());
    for (int at = 0; at < 3; ++at) {
      child<QTabWidget>("TabStrip1")->setCurrentIndex(at);
      child<QLabel>("lblststus")->setText("Maria Aparecida de Oliveira e Silva - Miúdas");
      QCOMPARE(test::clippedTexts(*wizard_), QString());
    }
  }

  void theTabKeyVisitsEveryField() {
    click("cmdAvancar");
    QCOMPARE(test::tabRound(*wizard_),
             QStringList({"txtmomento", "txthora", "txtlocal", "txtatipicidade", "cmdVoltar",
                          "cmdAvancar", "Command1", "qt_tabwidget_tabbar"}));
  }

 private:
  template <typename T>
  T* child(const char* name) const {
    return wizard_->findChild<T*>(QString::fromLatin1(name));
  }
  QPushButton* button(const char* name) const { return child<QPushButton>(name); }
  QLineEdit* field(const char* name) const { return child<QLineEdit>(name); }
  QString caption(const char* name) const { return button(name)->text().remove(QLatin1Char('&')); }
  void click(const char* name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
  // To the last step.
  void fillIn() const {
    test::typeText(child<QWidget>("mskempenho"), "0050014");
    click("cmdAvancar");
    test::typeText(field("txtlocal"), "Tesouraria");
    test::typeText(field("txtatipicidade"), "Nenhuma");
    click("cmdAvancar");
  }
  int step() const { return child<QTabWidget>("TabStrip1")->currentIndex(); }
  QStringList enabled() const {
    QStringList names;
    for (const char* const name : {"cmdVoltar", "cmdAvancar", "cmdConcluir", "Command1"}) {
      if (button(name)->isEnabled()) {
        names << QString::fromLatin1(name);
      }
    }
    return names;
  }

  std::unique_ptr<test::Office> office_;
  std::unique_ptr<frmTab3> wizard_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmTab3Test)
#include "frmTab3_test.moc"
