// The persons responsible for the money.
#include "masterdata/frmTomador.h"

#include "masterdata/cTomador.h"
#include "tests/masterdata/Tela.h"
#include "tests/support/WindowChecks.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

using test::Tela;
namespace boxes = test::boxes;

class frmTomadorTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    office_->run(
        "INSERT INTO Tomador(ID, NOME1, RG1, CPF1) VALUES (2, '7', '8', '529.982.247-25'), "
        "(3, NULL, NULL, NULL)");
    window_ = std::make_unique<frmTomador>();
    tela_ = std::make_unique<Tela>(*window_);
  }
  void cleanup() {
    tela_.reset();
    window_.reset();
    office_.reset();
  }

  void opensOnTheFullList() {
    QCOMPARE(window_->windowTitle(), QStringLiteral("Responsáveis pelo Recursos"));
    QCOMPARE(tela_->at<QLabel>("Label_0").text(), QStringLiteral("Pesquisar por Nome:"));
    QCOMPARE(tela_->at<QAction>("mnuexcluir").text(), QStringLiteral("Excluir Item"));
    QCOMPARE(tela_->row(0), QStringList({"0001", "Responsável", "Motorista", "", ""}));
    QCOMPARE(tela_->row(2), QStringList({"0003", "", "", "", ""}));
    QVERIFY(tela_->list().isChecked(0));
    QVERIFY(!tela_->list().isChecked(1));
    QStringList heads;
    for (int n = 0; n < tela_->list().columnCount(); ++n) {
      heads << tela_->list().model()->headerData(n, Qt::Horizontal).toString();
    }
    QCOMPARE(heads, QStringList({"ORDEM", "NOME", "CARGO", "RG", "CPF"}));
  }

  void aNameOfDigitsComesBackPadded() {
    QCOMPARE(tela_->row(1), QStringList({"0002", "007", "", "8", "529.982.247-25"}));
    tela_->click(QStringLiteral("0002"));
    tela_->press("Command1_1");
    QCOMPARE(tela_->text("txtnome"), QStringLiteral("007"));
  }

  void aWholeCycle() {
    tela_->press("Command1_3");
    QCOMPARE(tela_->focus(), QStringLiteral("txtnome"));
    QVERIFY(!tela_->ticked("chkAtivo"));
    tela_->type("txtnome", QStringLiteral(" João D'Ávila "));
    tela_->type("txtrg", QStringLiteral(" 55 "));
    tela_->type("txtcpf", QStringLiteral("52998224725"));
    tela_->type("txtcargo", QStringLiteral(" Fiscal "));
    tela_->tick("chkAtivo");
    save(boxes::askInclusion(), boxes::saved());
    QCOMPARE(stored(), QStringLiteral("João D'Ávila|Fiscal|55|529.982.247-25|1"));
    tela_->click(QStringLiteral("0004"));
    tela_->press("Command1_1");
    QCOMPARE(tela_->focus(), QStringLiteral("txtnome"));
    QCOMPARE(tela_->text("txtordem"), QStringLiteral("0004"));
    QCOMPARE(tela_->text("txtnome"), QStringLiteral("João D'Ávila"));
    QCOMPARE(tela_->text("txtcargo"), QStringLiteral("Fiscal"));
    QCOMPARE(tela_->text("txtrg"), QStringLiteral("55"));
    QCOMPARE(tela_->text("txtcpf"), QStringLiteral("529.982.247-25"));
    QVERIFY(tela_->ticked("chkAtivo"));
    tela_->tick("chkAtivo");
    tela_->type("txtcpf", QString());
    save(boxes::askAlteration(), boxes::altered());
    QCOMPARE(stored(), QStringLiteral("João D'Ávila|Fiscal|55|___.___.___-__|0"));
    tela_->click(QStringLiteral("0004"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askDelete(QStringLiteral("0004")), Button::Yes);
    dialogs.expectBox(boxes::deleted());
    tela_->excludeByMenu();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->list().count(), 3);
  }

  void theNameIsRequired() {
    tela_->press("Command1_3");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(
        boxes::warning(QStringLiteral("Todos os campos obrigatórios devem ser preenchidos !!")));
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->focus(), QStringLiteral("txtnome"));
  }

  void nothingHasALimit() {
    tela_->press("Command1_3");
    for (const char* field : {"txtnome", "txtrg", "txtcargo"}) {
      tela_->type(field, QString(300, QLatin1Char('x')));
      QCOMPARE(tela_->text(field).size(), 300);
    }
  }

  void aTickInTheListWritesNothingButComesOver() {
    tela_->click(QStringLiteral("0001"));
    QTest::keyClick(&tela_->list(), Qt::Key_Space);
    QCOMPARE(office_->ask("SELECT ATIVO FROM Tomador WHERE ID = 1"), QStringLiteral("1"));
    tela_->press("Command1_1");
    QVERIFY(!tela_->ticked("chkAtivo"));
  }

  void aPersonWithAProcessStays() {
    office_->run("INSERT INTO Requisicao(SEQ, ORGAO, TOMADOR) VALUES (114, 1, 1)");
    tela_->click(QStringLiteral("0001"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askDelete(QStringLiteral("0001")), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::DependantsExist, test::kAnything));
    QTest::keyClick(&tela_->list(), Qt::Key_Delete);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->list().count(), 3);
  }

  void theSearch() {
    tela_->type("txtpesquisa", QStringLiteral("respons"));
    tela_->press("cmdProcura");
    QCOMPARE(tela_->names(), QStringList{"Responsável"});
  }

  void loadingAPerson() {
    cTomador& record = cTomador::compartilhada();
    record.Ordem = 1;
    record.CarregaList();
    QCOMPARE(QStringList({record.Nome, record.RG, record.CPF, record.Cargo}),
             QStringList({"Responsável", "", "", "Motorista"}));
    record.Ordem = 99;
    record.CarregaList();
    QCOMPARE(record.Cargo, QStringLiteral("Motorista"));
  }

  void keysAndNames() {
    QCOMPARE(test::mnemonicClashes(*window_), QString());
    QCOMPARE(test::unnamedControls(*window_), QString());
    QCOMPARE(test::clippedTexts(*window_), QString());
    tela_->press("Command1_3");
    QCOMPARE(test::clippedTexts(*window_), QString());
    QCOMPARE(test::tabRound(*window_),
             QStringList({"txtnome", "txtrg", "txtcpf", "txtcargo", "chkAtivo", "Command2",
                          "Command1_0", "Command3"}));
  }

 private:
  void save(const Box& question, const Box& told) const {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(question, Button::Yes);
    dialogs.expectBox(told);
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!tela_->editing());
  }
  QString stored() const {
    return office_->ask(
        "SELECT NOME1 || '|' || CARGO || '|' || RG1 || '|' || CPF1 || '|' || ATIVO "
        "FROM Tomador WHERE ID = 4");
  }

  std::unique_ptr<test::Office> office_;
  std::unique_ptr<frmTomador> window_;
  std::unique_ptr<Tela> tela_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmTomadorTest)
#include "frmTomador_test.moc"
