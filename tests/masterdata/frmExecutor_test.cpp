// The expense orderers: the secretariat's list, the taxpayer number, the tick.
#include "masterdata/frmExecutor.h"

#include "foundation/Banco.h"
#include "masterdata/cExecutor.h"
#include "tests/masterdata/Tela.h"
#include "tests/support/WindowChecks.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

using test::Tela;
namespace boxes = test::boxes;

class frmExecutorTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    office_->run(
        "UPDATE Executor SET RG = '12.345', CPF = '529.982.247-25', FUNCAO = 'Diretor';"
        "INSERT INTO Executor(ORDEM, IDORGAO, NOME) VALUES (2, 1, 'Beatriz')");
    open();
  }
  void cleanup() {
    tela_.reset();
    window_.reset();
    office_.reset();
  }

  void anUnfilledNumberIsStoredAsItStands() {
    tela_->press("Command1_3");
    tela_->pick("cmbOrgao", QStringLiteral("Saúde"));
    tela_->type("txtnome", QStringLiteral("Maria"));
    save(boxes::askInclusion(), boxes::saved());
    QCOMPARE(office_->ask("SELECT CPF FROM Executor WHERE ORDEM = 3"),
             QStringLiteral("___.___.___-__"));
  }

  void whatIsRequired_data() {
    QTest::addColumn<QString>("secretariat");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("focus");
    QTest::newRow("secretariat") << QString() << QStringLiteral("Maria")
                                 << QStringLiteral("cmbOrgao");
    QTest::newRow("name") << QStringLiteral("Saúde") << QString() << QStringLiteral("txtnome");
  }
  void whatIsRequired() {
    QFETCH(QString, secretariat);
    QFETCH(QString, name);
    tela_->press("Command1_3");
    if (!secretariat.isEmpty()) {
      tela_->pick("cmbOrgao", secretariat);
    }
    tela_->type("txtnome", name);
    tela_->at<QLineEdit>("txtrg").setFocus();
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::required());
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QTEST(tela_->focus(), "focus");
  }

  void aTickInTheListWritesNothingButComesOver() {
    tela_->click(QStringLiteral("0002"));
    QTest::keyClick(&tela_->list(), Qt::Key_Space);
    QVERIFY(tela_->list().isChecked(tela_->rowOf(QStringLiteral("0002"))));
    QCOMPARE(office_->ask("SELECT ATIVO FROM Executor WHERE ORDEM = 2"), QStringLiteral("0"));
    tela_->press("Command1_1");
    QVERIFY(tela_->ticked("chkAtivo"));
  }

  void aSecretariatOfFourDigitsIsNotFound() {
    office_->run(
        "INSERT INTO Orgao(IDORGAO, ORGAO) VALUES (1234, 'Longe');"
        "UPDATE Executor SET IDORGAO = 1234 WHERE ORDEM = 2");
    open();
    QCOMPARE(tela_->row(tela_->rowOf(QStringLiteral("0002"))).at(1),
             QStringLiteral("1234 - Longe"));
    tela_->click(QStringLiteral("0002"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::untrapped(ErrorNumber::SubscriptOutOfRange));
    tela_->press("Command1_1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!tela_->editing());
  }

  void anApostropheInTheSearchIsTold() {
    tela_->type("txtpesquisa", QStringLiteral("D'Ávila"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(
        ErrorNumber::SyntaxError, QStringLiteral("Função Lista_Adiantamento"), test::kAnything));
    tela_->press("cmdProcura");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(QApplication::overrideCursor());
    tela_->type("txtpesquisa", QString());
    tela_->press("cmdProcura");
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(tela_->list().count(), 2);
  }

  void theLimits() {
    tela_->press("Command1_3");
    const QString many(120, QLatin1Char('9'));
    for (const char* field : {"txtnome", "txtrg", "txtfuncao", "txtcpf"}) {
      tela_->type(field, many);
    }
    QCOMPARE(tela_->text("txtnome").size(), 50);
    QCOMPARE(tela_->text("txtrg").size(), 120);
    QCOMPARE(tela_->text("txtfuncao").size(), 50);
    QCOMPARE(tela_->text("txtcpf"), QStringLiteral("999.999.999-99"));
  }

  void aNumberThatDoesNotFitIsHintedAtAndSaved() {
    tela_->press("Command1_3");
    tela_->pick("cmbOrgao", QStringLiteral("Saúde"));
    tela_->type("txtnome", QStringLiteral("Maria"));
    const auto& mark = tela_->at<QLabel>("aviso_txtcpf");
    QCOMPARE(mark.text(), QString());
    tela_->type("txtcpf", QStringLiteral("12345678901"));
    QCOMPARE(mark.text(), QStringLiteral("Confira: os dígitos não fecham"));
    QTRY_COMPARE(test::clippedTexts(*window_), QString());
    save(boxes::askInclusion(), boxes::saved());
    QCOMPARE(office_->ask("SELECT CPF FROM Executor WHERE ORDEM = 3"),
             QStringLiteral("123.456.789-01"));
    tela_->press("Command1_3");
    QCOMPARE(mark.text(), QString());
    tela_->type("txtcpf", QStringLiteral("12345678909"));
    QCOMPARE(mark.text(), QString());
  }

  void loadingAPerson() {
    cExecutor& record = cExecutor::compartilhada();
    record.Ordem = 1;
    record.CarregaList();
    QCOMPARE(QStringList({record.Nome, record.RG, record.CPF, record.Funcao}),
             QStringList({"Ordenador", "12.345", "529.982.247-25", "Diretor"}));
    record.Ordem = 99;
    record.CarregaList();
    QCOMPARE(record.Nome, QStringLiteral("Ordenador"));
    record.Ordem = 2;
    record.CarregaList();
    QCOMPARE(QStringList({record.Nome, record.RG, record.CPF, record.Funcao}),
             QStringList({"Beatriz", "", "", ""}));
    QCOMPARE(Tabela.state(), Recordset::Closed);
    Conexao->close();
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(
        boxes::internalError(ErrorNumber::ObjectClosed, QStringLiteral("CarregaList")));
    record.CarregaList();
  }

 private:
  void open() {
    tela_.reset();
    window_ = std::make_unique<frmExecutor>();
    tela_ = std::make_unique<Tela>(*window_);
  }
  void save(const Box& question, const Box& told) const {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(question, Button::Yes);
    dialogs.expectBox(told);
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!tela_->editing());
  }

  std::unique_ptr<test::Office> office_;
  std::unique_ptr<frmExecutor> window_;
  std::unique_ptr<Tela> tela_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmExecutorTest)
#include "frmExecutor_test.moc"
