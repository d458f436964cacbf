// The budget allocations: the two linked lists, the year, the search by number.
#include "masterdata/frmDotacao.h"

#include "platform/values/Clock.h"
#include "tests/masterdata/Tela.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

using test::Tela;
namespace boxes = test::boxes;

class frmDotacaoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    office_->run(
        "INSERT INTO Tipos(SEQUENCIA, IDORGAO, TIPO, ATIVO) VALUES (2, 2, 'Viagem', 1), "
        "(3, 2, 'Curso', 0), (4, 2, 'Adiante', 1);"
        "INSERT INTO Dotacao(ID, IDTIPO, IDORGAO, DOTACAO, ANO, DESCRICAO) VALUES "
        "(1, 2, 2, 125, 2013, 'Passagens'), (2, 1, 1, 126, 2014, 'Papel')");
    open();
  }
  void cleanup() {
    tela_.reset();
    window_.reset();
    office_.reset();
  }

  void onlyTheActiveTypesOfTheSecretariatCanBePicked() {
    tela_->press("Command1_3");
    tela_->pick("cmbSetor", QStringLiteral("Educação"));
    QCOMPARE(entries("cmbTipo"), QStringList({"Adiante", "Viagem"}));
    tela_->pick("cmbSetor", QStringLiteral("Saúde"));
    QCOMPARE(entries("cmbTipo"), QStringList{"Miúdas"});
    QCOMPARE(tela_->text("cmbTipo"), QString());
  }

  void anAlterationOffersTheActiveTypesOnly() {
    tela_->click(QStringLiteral("0001"));
    tela_->press("Command1_1");
    QCOMPARE(fields(), QStringList({"0001", "Educação", "Viagem", "125", "2013", "Passagens"}));
    QCOMPARE(entries("cmbTipo"), QStringList({"Adiante", "Viagem"}));
  }

  void whatCannotBeFoundRunsOffTheList_data() {
    QTest::addColumn<QString>("change");
    QTest::newRow("the type has become inactive")
        << QStringLiteral("UPDATE Tipos SET ATIVO = 0 WHERE SEQUENCIA = 2");
    QTest::newRow("the type's key has four digits")
        << QStringLiteral("UPDATE Tipos SET SEQUENCIA = 1002 WHERE SEQUENCIA = 2");
    QTest::newRow("the secretariat's key has four digits")
        << QStringLiteral("UPDATE Orgao SET IDORGAO = 1002 WHERE IDORGAO = 2");
  }
  void whatCannotBeFoundRunsOffTheList() {
    QFETCH(QString, change);
    office_->run(qPrintable(change));
    open();
    tela_->click(QStringLiteral("0001"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::untrapped(ErrorNumber::SubscriptOutOfRange));
    tela_->press("Command1_1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!tela_->editing());
  }

  void aTypeOfFourDigitsShowsThemAll() {
    office_->run("UPDATE Tipos SET SEQUENCIA = 1002 WHERE SEQUENCIA = 2");
    open();
    QCOMPARE(tela_->row(tela_->rowOf(QStringLiteral("0001"))).at(1),
             QStringLiteral("1002 - Viagem"));
  }

  void theSearchIsByNumber() {
    tela_->type("txtpesquisa", QStringLiteral("126"));
    tela_->key(Qt::Key_Return);
    QCOMPARE(tela_->names(), QStringList{"001 - Miúdas"});
    tela_->type("txtpesquisa", QStringLiteral("12"));
    tela_->key(Qt::Key_Return);
    QCOMPARE(tela_->list().count(), 0);
  }

  void aSearchForNoNumber_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("error");
    QTest::newRow("letters") << QStringLiteral("abc") << 13;
    QTest::newRow("nothing") << QString() << 13;
    QTest::newRow("too great") << QStringLiteral("40000") << 6;
  }
  void aSearchForNoNumber() {
    QFETCH(QString, typed);
    QFETCH(int, error);
    tela_->type("txtpesquisa", typed);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::untrapped(static_cast<ErrorNumber>(error)));
    tela_->press("cmdProcura");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->list().count(), 2);
  }

  void whatIsRequired() {
    tela_->press("Command1_3");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::required());
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    tela_->pick("cmbSetor", QStringLiteral("Educação"));
    dialogs.expectBox(boxes::required());
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->focus(), QStringLiteral("cmbTipo"));
  }

  // Their marks have no check behind them: an empty description is saved.
  void numberAndDescriptionAreNotChecked() {
    fill(QStringLiteral("77"));
    tela_->type("txtdescricao", QString());
    save(boxes::askInclusion(), boxes::saved());
    QCOMPARE(stored(), QStringLiteral("4|2|77|2014|"));
  }

  void whatIsNoNumberFailsOnSaving_data() {
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("year");
    QTest::newRow("number missing") << QString() << QStringLiteral("2014");
    QTest::newRow("year missing") << QStringLiteral("77") << QString();
    QTest::newRow("year half filled") << QStringLiteral("77") << QStringLiteral("20");
  }
  void whatIsNoNumberFailsOnSaving() {
    QFETCH(QString, number);
    QFETCH(QString, year);
    fill(number);
    tela_->type("txtano", year);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::untrapped(ErrorNumber::TypeMismatch));
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(tela_->editing());
    QCOMPARE(tela_->text("txtdotacao"), number);
    QCOMPARE(office_->ask("SELECT count(*) FROM Dotacao"), QStringLiteral("2"));
  }

  void neitherTheYearNorTheNumberIsChecked() {
    fill(QStringLiteral("125"));
    tela_->type("txtano", QStringLiteral("9999"));
    save(boxes::askInclusion(), boxes::saved());
    fill(QStringLiteral("125"));
    tela_->type("txtano", QStringLiteral("9999"));
    save(boxes::askInclusion(), boxes::saved());
    QCOMPARE(office_->ask("SELECT count(*) FROM Dotacao WHERE DOTACAO = 125 AND ANO = 9999"),
             QStringLiteral("2"));
  }

  void theYearIsThatOfTheDay() {
    Clock::stopAt(DateTime::of(2015, 1, 1, 0, 0));
    tela_->press("Command1_3");
    const QString proposed = tela_->text("txtano");
    Clock::stopAt(DateTime::of(2014, 11, 21, 10, 30));
    QCOMPARE(proposed, QStringLiteral("2015"));
  }

  void theLimits() {
    tela_->press("Command1_3");
    tela_->type("txtdescricao", QString(60, QLatin1Char('x')));
    QCOMPARE(tela_->text("txtdescricao").size(), 50);
    tela_->type("txtano", QStringLiteral("201456"));
    QCOMPARE(tela_->text("txtano"), QStringLiteral("2014"));
    tela_->type("txtdotacao", QStringLiteral("1a2b345"));
    QCOMPARE(tela_->text("txtdotacao"), QStringLiteral("1234"));
    tela_->type("txtdotacao", QStringLiteral("12"));
    QTest::keyClick(&tela_->at<QLineEdit>("txtdotacao"), Qt::Key_Backspace);
    QCOMPARE(tela_->text("txtdotacao"), QStringLiteral("1"));
  }

 private:
  void open() {
    tela_.reset();
    window_ = std::make_unique<frmDotacao>();
    tela_ = std::make_unique<Tela>(*window_);
  }
  void fill(const QString& number) const {
    tela_->press("Command1_3");
    tela_->pick("cmbSetor", QStringLiteral("Educação"));
    tela_->pick("cmbTipo", QStringLiteral("Adiante"));
    tela_->type("txtdotacao", number);
  }
  QStringList entries(const char* combo) const {
    QStringList texts;
    for (int n = 0; n < tela_->at<ComboBox>(combo).count(); ++n) {
      texts << tela_->at<ComboBox>(combo).itemText(n);
    }
    texts.sort();
    return texts;
  }
  QStringList fields() const {
    QStringList texts;
    for (const char* field :
         {"txtordem", "cmbSetor", "cmbTipo", "txtdotacao", "txtano", "txtdescricao"}) {
      texts << tela_->text(field);
    }
    return texts;
  }
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
        "SELECT IDTIPO || '|' || IDORGAO || '|' || DOTACAO || '|' || ANO || '|' || "
        "DESCRICAO FROM Dotacao WHERE ID = 3");
  }

  std::unique_ptr<test::Office> office_;
  std::unique_ptr<frmDotacao> window_;
  std::unique_ptr<Tela> tela_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmDotacaoTest)
#include "frmDotacao_test.moc"
