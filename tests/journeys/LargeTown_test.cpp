// An office that has outgrown the numbers of a small town, and whose people have quotes in their
// names: its Config.ini lifts both limits.
#include <QPushButton>
#include <QRadioButton>

#include "foundation/Ini.h"
#include "masterdata/frmExecutor.h"
#include "masterdata/frmOrgao.h"
#include "masterdata/frmTipoDespesa.h"
#include "masterdata/frmTipos.h"
#include "masterdata/frmTomador.h"
#include "screens/frmLocalizar.h"
#include "screens/frmProcura.h"
#include "tests/journeys/ProcessRoad.h"
#include "tests/masterdata/Tela.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {

namespace boxes = test::boxes;

class LargeTownTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    road_ = std::make_unique<test::ProcessRoad>(400);
    Grava_config("Escritorio", "numeros", "32");
    Grava_config("Escritorio", "aspas", "1");
  }
  void cleanup() {
    road_.reset();
    ModoProcura = 0;
  }

  // Each number is beyond what 16 bits hold: the process has 40014, the first note 40000.
  void theRoadOfProcess0400() {
    road_->openNew();
    QCOMPARE(road_->desk.text("mskprocesso"), QString("0400/14"));
    road_->keys.typeRequisition("1000", "despesas");
    road_->keys.include();
    road_->keys.leave();

    find("400/14");
    QCOMPARE(road_->desk.mainList().count(), 1);
    QCOMPARE(road_->desk.mainList().text(0), QString("0400/14"));

    road_->openProcess("0400/14");
    QCOMPARE(road_->desk.text("txtjustificativa"), QString("despesas"));
    road_->keys.includeEmpenho("0060014", "123", "21112014");
    road_->keys.leave();
    road_->desk.office().run(
        "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE) VALUES (114, "
        "'2014-10-01 00:00:00', 1, 1, 5, 1);"
        "INSERT INTO Adiantamento(EMPENHO, PROCESSO, OP) VALUES (10014, 114, 5);"
        "INSERT INTO PrestContas(SEQ, PROCESSO, DATA, DESPESAS) VALUES (39999, 10014, '2014-10-01 "
        "00:00:00', 5)");

    road_->openNotes("0400/14");
    road_->keys.addNote("21112014", "17", "posto", "50");
    road_->keys.addNote("21112014", "18", "mercado", "70");
    QCOMPARE(notes(), QString("40000 POSTO 500000,40001 MERCADO 700000"));

    // After an inclusion a note can be altered once the page has been left.
    test::mnemonic('V');
    road_->keys.goToNotes();
    road_->keys.pickNote();
    road_->keys.answer('T', {});
    test::tabTo("txtrazao_social");
    test::press(Qt::Key_Delete);
    test::typeHere("padaria");
    road_->keys.answer('G',
                       {{boxes::askAlteration(), Button::Yes}, {boxes::altered(), Button::Ok}});
    QCOMPARE(notes(), QString("40000 PADARIA 500000,40001 MERCADO 700000"));

    road_->dialogs.expectBox(boxes::question("Confirma exclusão deste item? - 40000"), Button::Yes);
    road_->dialogs.expectBox(boxes::deleted());
    road_->keys.pickNote();
    test::press(Qt::Key_Delete);
    QVERIFY2(road_->dialogs.satisfied(), road_->dialogs.report());
    QCOMPARE(notes(), QString("40001 MERCADO 700000"));
  }

  // The same office before its Config.ini had the section.
  void withoutTheKeysTheNumbersEndAt16Bits() {
    Grava_config("Escritorio", "numeros", "");
    road_->openNew();
    road_->keys.typeRequisition("1000", "despesas");
    road_->keys.include();
    road_->keys.leave();
    road_->dialogs.expectBox(boxes::internalError(ErrorNumber::Overflow, "Função Carrega_dados"));
    road_->openProcess("0400/14");
    QVERIFY2(road_->dialogs.satisfied(), road_->dialogs.report());
  }

  void findsAQuoteEverywhere_data() {
    QTest::addColumn<QString>("where");
    QTest::addColumn<bool>("doubled");
    for (const char* where : {"Localizar", "Procura, nome", "Procura, tipo", "Responsáveis",
                              "Ordenadores", "Secretarias", "Finalidades", "Tipos"}) {
      QTest::addRow("%s", where) << QString::fromUtf8(where) << true;
      QTest::addRow("%s, without the key", where) << QString::fromUtf8(where) << false;
    }
  }
  void findsAQuoteEverywhere() {
    QFETCH(QString, where);
    QFETCH(bool, doubled);
    nameWithQuotes();
    if (!doubled) {
      Grava_config("Escritorio", "aspas", "");
      const bool untrapped = where == "Secretarias" || where == "Finalidades" || where == "Tipos";
      road_->dialogs.expectBox({.text = test::kAnything,
                                .title = untrapped ? QString() : QStringLiteral("Aviso"),
                                .icon = untrapped ? BoxIcon::Stop : BoxIcon::Exclamation});
    }
    const int found = search(where);
    QVERIFY2(road_->dialogs.satisfied(), road_->dialogs.report());
    QCOMPARE(found, doubled ? 1 : 0);
  }

  void proposesAHistoryWithAQuote() {
    road_->desk.addEmpenho();
    road_->desk.addNote("2014-11-05", "17", "D''AVILA LTDA", 10);
    road_->openNotes();
    test::mnemonic('U');
    test::tabTo("txtrazao_social");
    test::typeHere("d'a");
    QCOMPARE(road_->desk.text("txtrazao_social"), QString("D'AVILA LTDA"));
  }

 private:
  QString notes() {
    return road_->ask(
        "SELECT group_concat(SEQ||' '||HISTORICO||' '||DESPESAS) FROM PrestContas WHERE PROCESSO = "
        "60014");
  }
  static void find(const QString& number, int by = 1) {
    frmLocalizar dialog;
    dialog.show();
    dialog.findChild<QComboBox*>("Combo1")->setCurrentIndex(by);
    test::typeText(dialog.findChild<QLineEdit*>("Text1"), number);
    QTest::mouseClick(dialog.findChild<QPushButton*>("Command1"), Qt::LeftButton);
  }
  // One of each, beside others without.
  void nameWithQuotes() {
    road_->desk.office().run(
        "UPDATE Tomador SET NOME1 = 'Ana D''Ávila' WHERE ID = 1;"
        "UPDATE Executor SET NOME = 'Rui D''Ávila' WHERE ORDEM = 1;"
        "UPDATE Orgao SET ORGAO = 'Escola D''Ávila' WHERE IDORGAO = 2;"
        "UPDATE Tipos SET TIPO = 'Verba D''Ávila' WHERE SEQUENCIA = 1;"
        "INSERT INTO Finalidade(FINALIDADE) VALUES ('Casa D''Ávila')");
    road_->desk.addEmpenho();
  }
  // How many rows the search of that window finds.
  int search(const QString& where) {
    const QString text = "d'ávila";
    if (where == "Localizar") {
      find(text, 0);
      return road_->desk.mainList().count();
    }
    if (where.startsWith("Procura")) {
      frmProcura picker;
      picker.show();
      picker.findChild<QRadioButton*>(where.endsWith("tipo") ? "Option2" : "Option1")->click();
      test::typeText(picker.findChild<QLineEdit*>("txtprocura"), text);
      QTest::mouseClick(picker.findChild<QAbstractButton*>("Command3"), Qt::LeftButton);
      return picker.findChild<ListView*>("ListView1")->count();
    }
    if (where == "Responsáveis") {
      return searchIn<frmTomador>(text);
    }
    if (where == "Ordenadores") {
      return searchIn<frmExecutor>(text);
    }
    if (where == "Secretarias") {
      return searchIn<frmOrgao>(text);
    }
    return where == "Tipos" ? searchIn<frmTipos>(text) : searchIn<frmTipoDespesa>(text);
  }
  template <typename Window>
  static int searchIn(const QString& text) {
    Window window;
    const test::Tela table(window);
    table.type("txtpesquisa", text);
    table.press("cmdProcura");
    return table.list().count();
  }

  std::unique_ptr<test::ProcessRoad> road_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::LargeTownTest)
#include "LargeTown_test.moc"
