// The legal clauses: one page, whose enabled controls tell what is being done.
#include "masterdata/frmLei.h"

#include <QAbstractItemView>

#include "foundation/Banco.h"
#include "masterdata/cInciso.h"
#include "tests/masterdata/Tela.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

using test::Tela;
namespace boxes = test::boxes;

class frmLeiTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    office_->run(
        "INSERT INTO Tipos(SEQUENCIA, IDORGAO, TIPO) VALUES "
        "(2, 1, 'Um nome de tipo bem comprido');"
        "INSERT INTO Inciso(ID, TIPO, DESCRICAO, CATEGORIA, PRAZO, ATIVO) VALUES "
        "(1, 1, 'Pronto pagamento', 'Consumo', 5, 1), (2, 2, 'Viagens', 'Serviço', 180, 0)");
    open();
  }
  void cleanup() {
    tela_.reset();
    window_.reset();
    office_.reset();
  }

  void theTermsOfferedAndTheKeyThatIsNotTyped() {
    QStringList terms;
    for (int n = 0; n < tela_->at<ComboBox>("Combo4").count(); ++n) {
      terms << tela_->at<ComboBox>("Combo4").itemText(n);
    }
    QCOMPARE(terms, QStringList({"05", "15", "30", "60", "90"}));
    QVERIFY(!tela_->at<QLineEdit>("Text3").isEnabledTo(&tela_->at<QWidget>("Frame1")));
    QVERIFY(!tela_->list().isChecked(1));
  }

  // Frame1, Text1, Command3, Command1_3, Command1_1, Command1_0.
  void whatEachCommandLeavesEnabled_data() {
    QTest::addColumn<QList<QByteArray>>("commands");
    QTest::addColumn<QString>("enabled");
    const QByteArray include = "Command1_3";
    const QByteArray alter = "Command1_1";
    const QByteArray cancel = "Command1_0";
    const QByteArray save = "Command3";
    using Commands = QList<QByteArray>;
    QTest::newRow("load") << Commands{} << QStringLiteral("010110");
    QTest::newRow("include") << Commands{include} << QStringLiteral("111001");
    QTest::newRow("alter") << Commands{alter} << QStringLiteral("101001");
    QTest::newRow("cancel an inclusion") << Commands{include, cancel} << QStringLiteral("010110");
    QTest::newRow("cancel an alteration") << Commands{alter, cancel} << QStringLiteral("010110");
    QTest::newRow("save an inclusion") << Commands{include, save} << QStringLiteral("010110");
    QTest::newRow("save an alteration") << Commands{alter, save} << QStringLiteral("000110");
    QTest::newRow("include after an alteration")
        << Commands{alter, save, include} << QStringLiteral("111001");
  }
  void whatEachCommandLeavesEnabled() {
    QFETCH(QList<QByteArray>, commands);
    tela_->click(QStringLiteral("0001"));
    test::ScriptedDialogs dialogs;
    for (const QByteArray& command : commands) {
      if (command == "Command3") {
        const bool inclusion = commands.first() == "Command1_3";
        if (inclusion) {
          fill();
        }
        dialogs.expectBox(inclusion ? boxes::askInclusion() : boxes::askAlteration(), Button::Yes);
        dialogs.expectBox(inclusion ? boxes::saved() : boxes::altered());
      }
      tela_->press(command.constData());
    }
    QTEST(enabled(), "enabled");
  }

  void aLongTypeIsCutButItsKeyIsSaved() {
    tela_->click(QStringLiteral("0002"));
    tela_->press("Command1_1");
    QCOMPARE(fields(),
             QStringList({"0002", "Um nome de tipo bem ", "002", "Viagens", "Serviço", "18"}));
    save(boxes::askAlteration(), boxes::altered());
    QCOMPARE(office_->ask("SELECT TIPO || '|' || PRAZO FROM Inciso WHERE ID = 2"),
             QStringLiteral("2|18"));
    QCOMPARE(tela_->row(1).at(1), QStringLiteral("002 - Um nome de tipo bem comprido"));
  }

  void anInclusionCarriesOverWhatItDoesNotClear() {
    tela_->click(QStringLiteral("0001"));
    tela_->press("Command1_1");
    tela_->press("Command1_0");
    QCOMPARE(fields(), QStringList({"", "", "", "", "Consumo", "5"}));
    tela_->press("Command1_3");
    QCOMPARE(fields(), QStringList({"Aut.Num.", "", "", "", "Consumo", "5"}));
    QVERIFY(tela_->ticked("Check1"));
  }

  void theTickIsTheLists() {
    tela_->click(QStringLiteral("0002"));
    QTest::keyClick(&tela_->list(), Qt::Key_Space);
    QCOMPARE(office_->ask("SELECT ATIVO FROM Inciso WHERE ID = 2"), QStringLiteral("0"));
    tela_->press("Command1_1");
    QVERIFY(tela_->ticked("Check1"));
  }

  void aNoLeavesTheEditing() {
    tela_->press("Command1_3");
    fill();
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::No);
    tela_->press("Command3");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(enabled(), QStringLiteral("010110"));
    QCOMPARE(tela_->text("Text1"), QStringLiteral("0"));
    QCOMPARE(tela_->list().count(), 2);
  }

  void aFailedSaveLeavesTheEditing() {
    tela_->click(QStringLiteral("0001"));
    tela_->press("Command1_1");
    office_->run("DELETE FROM Inciso WHERE ID = 1");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::CurrentRowMissing));
    tela_->press("Command3");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(enabled(), QStringLiteral("000110"));
    QCOMPARE(tela_->text("Text2"), QStringLiteral("Pronto pagamento"));
    QCOMPARE(tela_->list().count(), 1);
  }

  void typeAndDescriptionAreRequired() {
    tela_->press("Command1_3");
    tela_->at<QLineEdit>("Text4").setFocus();
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::warning(QStringLiteral("Informe o tipo de adiantamento !!")));
    tela_->press("Command3");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->focus(), QStringLiteral("Combo1"));
    pickType();
    dialogs.expectBox(boxes::warning(QStringLiteral("Informe o tipo de inciso !!")));
    tela_->press("Command3");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->focus(), QStringLiteral("Text2"));
    QCOMPARE(tela_->text("Text1"), QStringLiteral("Aut.Num."));
    QCOMPARE(enabled(), QStringLiteral("111001"));
  }

  void whatIsNoNumberFailsInTheEvent_data() {
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("error");
    QTest::newRow("no term") << QByteArray("Combo4") << QString() << 13;
    QTest::newRow("a term of letters") << QByteArray("Combo4") << QStringLiteral("dez") << 13;
    QTest::newRow("a key typed over") << QByteArray("Text1") << QStringLiteral("novo") << 13;
    QTest::newRow("a term too long") << QByteArray("Combo4") << QStringLiteral("40000") << 6;
  }
  void whatIsNoNumberFailsInTheEvent() {
    QFETCH(QByteArray, field);
    QFETCH(QString, typed);
    QFETCH(int, error);
    tela_->press("Command1_3");
    fill();
    tela_->type(field.constData(), typed);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::untrapped(static_cast<ErrorNumber>(error)));
    tela_->press("Command3");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(enabled(), QStringLiteral("111001"));
    QCOMPARE(tela_->text("Text2"), QStringLiteral(" Copo d'água "));
    QCOMPARE(office_->ask("SELECT count(*) FROM Inciso"), QStringLiteral("2"));
  }

  void savingDoesNothingWhenNothingIsEdited() {
    test::ScriptedDialogs dialogs;
    emit tela_->at<QPushButton>("Command3").clicked();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->text("Text1"), QString());
  }

  void theTypesAreReadEachTimeTheListDrops() {
    tela_->press("Command1_3");
    auto& types = tela_->at<ComboBox>("Combo1");
    QCOMPARE(types.count(), 0);
    types.showPopup();
    types.hidePopup();
    QCOMPARE(types.count(), 2);
    office_->run("INSERT INTO Tipos(IDORGAO, TIPO) VALUES (1, 'Adiante')");
    types.showPopup();
    types.hidePopup();
    QCOMPARE(types.itemText(0), QStringLiteral("Adiante"));
    QCOMPARE(types.count(), 3);
  }

  // Types of one name stand in every secretariat: only the operator's choice may change the key.
  void leavingTheTypePicksNothing() {
    office_->run("INSERT INTO Tipos(SEQUENCIA, IDORGAO, TIPO) VALUES (3, 2, 'Miúdas')");
    office_->run("UPDATE Inciso SET TIPO = 3 WHERE ID = 1");
    open();
    tela_->press("Command1_3");
    dropDownAndEscape();
    tela_->press("Command1_0");
    tela_->click(QStringLiteral("0001"));
    tela_->press("Command1_1");
    QCOMPARE(tela_->text("Text3"), QStringLiteral("003"));
    tela_->key(Qt::Key_Tab);
    QCOMPARE(tela_->focus(), QStringLiteral("Text2"));
    QCOMPARE(tela_->text("Text3"), QStringLiteral("003"));
    save(boxes::askAlteration(), boxes::altered());
    QCOMPARE(office_->ask("SELECT TIPO FROM Inciso WHERE ID = 1"), QStringLiteral("3"));
  }

  void openingTheListKeepsTypeAndKey() {
    tela_->click(QStringLiteral("0001"));
    tela_->press("Command1_1");
    dropDownAndEscape();
    QCOMPARE(tela_->text("Combo1"), QStringLiteral("Miúdas"));
    QCOMPARE(tela_->text("Text3"), QStringLiteral("001"));
    auto& types = tela_->at<ComboBox>("Combo1");
    QTest::keyClick(&types, Qt::Key_F4);
    QTRY_VERIFY(types.view()->isVisible());
    QTest::keyClick(types.view(), Qt::Key_Down);
    QTest::keyClick(types.view(), Qt::Key_Return);
    QCOMPARE(tela_->text("Combo1"), QStringLiteral("Um nome de tipo bem comprido"));
    QCOMPARE(tela_->text("Text3"), QStringLiteral("002"));
  }

  // What is typed is no choice; name and key shown stay those of one type.
  void aTypedNameGivesWayToTheKeys() {
    tela_->click(QStringLiteral("0001"));
    tela_->press("Command1_1");
    tela_->type("Combo1", QStringLiteral("Um nome"));
    tela_->key(Qt::Key_Tab);
    QCOMPARE(tela_->text("Text3"), QStringLiteral("001"));
    QCOMPARE(tela_->text("Combo1"), QStringLiteral("Miúdas"));
  }

  void aSingleTypeCanBePickedAgainAfterACancel() {
    office_->run("DELETE FROM Inciso WHERE ID = 2; DELETE FROM Tipos WHERE SEQUENCIA = 2");
    open();
    for (int time = 0; time < 2; ++time) {
      tela_->press("Command1_3");
      QTest::keyClick(&tela_->at<ComboBox>("Combo1"), Qt::Key_Down);
      QCOMPARE(tela_->text("Combo1"), QStringLiteral("Miúdas"));
      QCOMPARE(tela_->text("Text3"), QStringLiteral("001"));
      tela_->press("Command1_0");
      QCOMPARE(tela_->text("Text3"), QString());
    }
  }

  void aShortTermIsNotCompleted() {
    tela_->press("Command1_3");
    auto& term = tela_->at<ComboBox>("Combo4");
    term.setFocus();
    test::typeText(&term, QStringLiteral("3"));
    QCOMPARE(term.text(), QStringLiteral("3"));
  }

  void byKeys() {
    tela_->key(Qt::Key_Home);
    tela_->key(Qt::Key_Return);
    QCOMPARE(enabled(), QStringLiteral("101001"));
    QCOMPARE(tela_->text("Text1"), QStringLiteral("0001"));
    // The row below is clicked while this one is edited: it is not loaded.
    QTest::keyClick(&tela_->list(), Qt::Key_End);
    QTest::keyClick(&tela_->list(), Qt::Key_Return);
    QCOMPARE(tela_->text("Text1"), QStringLiteral("0001"));
    tela_->shortcut(Qt::Key_C);
    tela_->shortcut(Qt::Key_O);
    QVERIFY(!window_->isVisible());
  }

  void aFailedListingIsTold() {
    Conexao->close();
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::ObjectClosed,
                                           QStringLiteral("Função Lista_Adiantamento")));
    open();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->list().count(), 0);
    QVERIFY(QApplication::overrideCursor());
    QApplication::restoreOverrideCursor();
  }

  void loadingCategoryAndTerm() {
    cInciso& record = cInciso::compartilhada();
    record.ID = 2;
    record.Carrega_lista();
    QCOMPARE(record.Categoria, QStringLiteral("Serviço"));
    QCOMPARE(int{record.Prazo}, 180);
    record.ID = 99;
    record.Carrega_lista();
    QCOMPARE(record.Categoria, QStringLiteral("Serviço"));
  }

 private:
  void open() {
    tela_.reset();
    window_ = std::make_unique<frmLei>();
    tela_ = std::make_unique<Tela>(*window_);
  }
  void dropDownAndEscape() const {
    auto& types = tela_->at<ComboBox>("Combo1");
    QTest::keyClick(&types, Qt::Key_F4);
    QTRY_VERIFY(types.view()->isVisible());
    QTest::keyClick(types.view(), Qt::Key_Escape);
    QTRY_VERIFY(!types.view()->isVisible());
  }
  void pickType() const { tela_->pick("Combo1", QStringLiteral("Miúdas")); }
  void fill() const {
    pickType();
    tela_->type("Text2", QStringLiteral(" Copo d'água "));
    tela_->pick("Combo4", QStringLiteral("15"));
  }
  QStringList fields() const {
    QStringList texts;
    for (const char* field : {"Text1", "Combo1", "Text3", "Text2", "Text4", "Combo4"}) {
      texts << tela_->text(field);
    }
    return texts;
  }
  QString enabled() const {
    QString flags;
    for (const char* name :
         {"Frame1", "Text1", "Command3", "Command1_3", "Command1_1", "Command1_0"}) {
      const auto& control = tela_->at<QWidget>(name);
      flags += control.isEnabledTo(control.parentWidget()) ? QLatin1Char('1') : QLatin1Char('0');
    }
    return flags;
  }
  void save(const Box& question, const Box& told) const {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(question, Button::Yes);
    dialogs.expectBox(told);
    tela_->press("Command3");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  std::unique_ptr<test::Office> office_;
  std::unique_ptr<frmLei> window_;
  std::unique_ptr<Tela> tela_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmLeiTest)
#include "frmLei_test.moc"
