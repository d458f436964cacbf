// The advance types: picked texts, memos, the clone.
#include "masterdata/frmTipos.h"

#include <QAbstractItemView>

#include "masterdata/cTipos.h"
#include "tests/masterdata/Tela.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

using test::Tela;
namespace boxes = test::boxes;

class frmTiposTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    office_->run(
        "UPDATE Tipos SET ELEMENTO = '339030 - Outros Materiais de Consumo', LEI = 'Lei 1', "
        "MATERIAIS = 'Papel'");
    open();
  }
  void cleanup() {
    tela_.reset();
    window_.reset();
    office_.reset();
  }

  void theFixedLists() {
    QCOMPARE(entries("cmbElemento"),
             QStringList({"339039 - Outros Serviços de Terceiros (Jurídica)",
                          "339036 - Outros Serviços de Terceiros (Fisica)",
                          "339030 - Outros Materiais de Consumo",
                          "339032 - Outros Materiais de Distribuição Gratuita",
                          "339033 - Passagens e Locomoções"}));
    QCOMPARE(entries("cmbPrazo"), QStringList({"05 dias", "30 dias", "60 dias"}));
    for (const char* purpose : {"Curso", "Miúdas", "Transporte", "Viagem"}) {
      QVERIFY(entries("txttipo").contains(QString::fromUtf8(purpose)));
    }
  }

  void thePurposesAreLoadedOnce() {
    office_->run("INSERT INTO Finalidade(FINALIDADE) VALUES ('Adiante')");
    tela_->press("Command1_0");
    QVERIFY(!entries("txttipo").contains(QStringLiteral("Adiante")));
    open();
    QVERIFY(entries("txttipo").contains(QStringLiteral("Adiante")));
  }

  void aCloneIsANewRowWithAllValues() {
    tela_->click(QStringLiteral("0001"));
    tela_->press("Command1_3");
    QVERIFY(tela_->editing());
    QCOMPARE(tela_->focus(), QStringLiteral("cmbOrgao"));
    QCOMPARE(fields(),
             QStringList({"Aut.Num.", "Saúde", "Miúdas", "339030 - Outros Materiais de Consumo",
                          "30 dias", "Lei 1", "Papel"}));
    QVERIFY(tela_->ticked("chkAtivo"));
    save(boxes::askInclusion(), boxes::saved());
    QCOMPARE(tela_->row(1).mid(1), tela_->row(0).mid(1));
    QCOMPARE(tela_->row(1).at(0), QStringLiteral("0002"));
    QCOMPARE(
        office_->ask("SELECT count(*) FROM Tipos a JOIN Tipos b ON a.SEQUENCIA = 1 AND "
                     "b.SEQUENCIA = 2 AND a.IDORGAO = b.IDORGAO AND a.TIPO = b.TIPO AND "
                     "a.ELEMENTO = b.ELEMENTO AND a.LEI = b.LEI AND a.MATERIAIS = b.MATERIAIS AND "
                     "a.PRAZO = b.PRAZO AND a.ATIVO = b.ATIVO"),
        QStringLiteral("1"));
  }
  void nothingClickedYetIsCloned() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::mustPick());
    tela_->press("Command1_3");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!tela_->editing());
  }

  // The values that were loaded before are those of another row.
  void aRowThatAnotherProgramDeletedShowsNoOtherRowsValues_data() {
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("alter") << QByteArray("Command1_1");
    QTest::newRow("clone") << QByteArray("Command1_3");
  }
  void aRowThatAnotherProgramDeletedShowsNoOtherRowsValues() {
    QFETCH(QByteArray, button);
    office_->run("INSERT INTO Tipos(SEQUENCIA, IDORGAO, TIPO) VALUES (2, 2, 'Curso')");
    open();
    tela_->click(QStringLiteral("0001"));
    tela_->press("Command1_1");
    tela_->press("Command1_2");
    tela_->click(QStringLiteral("0002"));
    office_->run("DELETE FROM Tipos WHERE SEQUENCIA = 2");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::untrapped(ErrorNumber::SubscriptOutOfRange));
    tela_->press(button.constData());
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!tela_->editing());
  }

  void theTickIsTheListsNotTheDatabases() {
    tela_->click(QStringLiteral("0001"));
    QTest::keyClick(&tela_->list(), Qt::Key_Space);
    QCOMPARE(office_->ask("SELECT ATIVO FROM Tipos"), QStringLiteral("1"));
    tela_->press("Command1_1");
    QVERIFY(!tela_->ticked("chkAtivo"));
    cTipos& record = cTipos::compartilhada();
    record.Ativo = false;
    record.Envia_dados(1);
    QVERIFY(!record.Ativo);
  }

  void typingIsRefused_data() {
    QTest::addColumn<QByteArray>("combo");
    for (const char* combo : {"txttipo", "cmbElemento", "cmbPrazo"}) {
      QTest::newRow(combo) << QByteArray(combo);
    }
  }
  void typingIsRefused() {
    QFETCH(QByteArray, combo);
    tela_->press("Command1_0");
    auto& field = tela_->at<ComboBox>(combo.constData());
    field.setFocus();
    test::typeText(&field, QStringLiteral("Viagem 05"));
    QTest::keyClick(&field, Qt::Key_Backspace);
    QCOMPARE(field.text(), QString());
  }

  void allButTheTickIsRequired() {
    tela_->press("Command1_0");
    tela_->pick("cmbOrgao", QStringLiteral("Educação"));
    tela_->pick("txttipo", QStringLiteral("Viagem"));
    tela_->pick("cmbElemento", QStringLiteral("339033 - Passagens e Locomoções"));
    tela_->pick("cmbPrazo", QStringLiteral("05 dias"));
    for (const char* memo : {"txtInciso", "txtMateriais"}) {
      test::ScriptedDialogs dialogs;
      dialogs.expectBox(
          boxes::warning(QStringLiteral("Todos os campos obrigatórios devem ser preenchidos !!")));
      tela_->press("Command3");
      QVERIFY2(dialogs.satisfied(), dialogs.report());
      tela_->type(memo, QStringLiteral("x"));
    }
    save(boxes::askInclusion(), boxes::saved());
  }

  void theSearchIsBySecretariat_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("rows");
    QTest::newRow("a part") << QStringLiteral("aúd") << 1;
    QTest::newRow("all with a name") << QString() << 1;
    QTest::newRow("one without types") << QStringLiteral("Educação") << 0;
    QTest::newRow("the type's name is not looked at") << QStringLiteral("Miúdas") << 0;
  }
  void theSearchIsBySecretariat() {
    QFETCH(QString, typed);
    office_->run(
        "INSERT INTO Orgao(IDORGAO, ORGAO) VALUES (3, NULL);"
        "INSERT INTO Tipos(IDORGAO, TIPO) VALUES (3, 'Sem nome')");
    tela_->type("txtpesquisa", typed);
    tela_->press("cmdProcura");
    QTEST(tela_->list().count(), "rows");
  }

  void aKeyAboveSixteenBitsOverflows() {
    office_->run("INSERT INTO Tipos(SEQUENCIA, IDORGAO, TIPO) VALUES (40000, 1, 'Longe')");
    open();
    tela_->click(QStringLiteral("40000"));
    for (const char* button : {"Command1_1", "Command1_3"}) {
      test::ScriptedDialogs dialogs;
      dialogs.expectBox(boxes::untrapped(ErrorNumber::Overflow));
      tela_->press(button);
      QVERIFY2(dialogs.satisfied(), dialogs.report());
      QVERIFY(!tela_->editing());
    }
  }

  void theListOpensOnTheRowsOwnEntry() {
    tela_->click(QStringLiteral("0001"));
    tela_->press("Command1_1");
    tela_->key(Qt::Key_Escape);
    tela_->press("Command1_1");
    QTest::keyClick(&tela_->at<ComboBox>("cmbPrazo"), Qt::Key_Down);
    QCOMPARE(tela_->text("cmbPrazo"), QStringLiteral("60 dias"));
  }

  void escapeClosesAnOpenListFirst() {
    tela_->press("Command1_0");
    auto& term = tela_->at<ComboBox>("cmbPrazo");
    term.showPopup();
    QVERIFY(term.view()->isVisible());
    QTest::keyClick(term.view(), Qt::Key_Escape);
    QVERIFY(!term.view()->isVisible());
    QVERIFY(tela_->editing());
  }

 private:
  void open() {
    tela_.reset();
    window_ = std::make_unique<frmTipos>();
    tela_ = std::make_unique<Tela>(*window_);
  }
  QStringList entries(const char* combo) const {
    QStringList texts;
    for (int n = 0; n < tela_->at<ComboBox>(combo).count(); ++n) {
      texts << tela_->at<ComboBox>(combo).itemText(n);
    }
    return texts;
  }
  QStringList fields() const {
    QStringList texts;
    for (const char* field :
         {"txtId", "cmbOrgao", "txttipo", "cmbElemento", "cmbPrazo", "txtInciso", "txtMateriais"}) {
      texts << tela_->text(field);
    }
    return texts;
  }
  void save(const Box& question, const Box& told) const {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(question, Button::Yes);
    dialogs.expectBox(told);
    tela_->press("Command3");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!tela_->editing());
  }

  std::unique_ptr<test::Office> office_;
  std::unique_ptr<frmTipos> window_;
  std::unique_ptr<Tela> tela_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmTiposTest)
#include "frmTipos_test.moc"
