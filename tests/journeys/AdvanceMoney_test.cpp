// The end of an advance by what was spent of its 1.000,00: the summary on the screen, the printed
// accountability, what closing stores, and whether the collection slip comes.
#include <QColor>

#include "foundation/Ini.h"
#include "tests/journeys/ProcessRoad.h"
#include "tests/support/PdfTools.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {
namespace {

namespace boxes = test::boxes;

}  // namespace

class AdvanceMoneyTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    road_ = std::make_unique<test::ProcessRoad>();
    road_->desk.addEmpenho();
  }
  void cleanup() { road_.reset(); }

  // `paper` is what the accountability says from the last row to the foot, `code` the bar code of
  // the slip, empty where none comes.
  void endsByWhatWasSpent_data() {
    QTest::addColumn<QStringList>("amounts");
    QTest::addColumn<QString>("summary");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<QString>("paper");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("code");
    const QColor blue(0, 0, 255);
    const QColor red(0xD0, 0, 0);
    const QString closed = "2014-11-21 00:00:00";
    QTest::newRow("money left")
        << QStringList{"699,5", "0,25"} << "1.000,00 699,75 300,25" << blue
        << "0,25 300,25 Importância não Aplicada.: 300,25 (trezentos reais e vinte e cinco "
           "centavos)"
        << closed + "|3002500|" + closed << "00091626600000300250000001200000000000000001";
    QTest::newRow("one cent left")
        << QStringList{"999,99"} << "1.000,00 999,99 ,01" << blue
        << "999,99 0,01 Importância não Aplicada.: 0,01 (um centavo)" << closed + "|100|" + closed
        << "00091626600000000010000001200000000000000001";
    QTest::newRow("all of it spent")
        << QStringList{"400", "600"} << "1.000,00 1.000,00 ,00" << red
        << "600,00 0,00 Importância não Aplicada.: 0,00 Data do Recolhimento" << closed + "|0|"
        << "";
    QTest::newRow("more than it spent")
        << QStringList{"900", "350,75"} << "1.000,00 1.250,75 -250,75" << red
        << "350,75 -250,75 Importância não Aplicada.: 0,00 Data do Recolhimento" << closed + "|0|"
        << "";
  }
  void endsByWhatWasSpent() {
    QFETCH(QStringList, amounts);
    QFETCH(QString, paper);
    QFETCH(QString, code);
    road_->openNotes();
    spend(amounts);
    QTEST(summary(), "summary");
    QTEST(colour("lblNao_aplicado", QPalette::WindowText), "colour");
    const QString page = accountability();
    QVERIFY2(page.contains(paper), qPrintable(page));

    road_->openNotes();
    road_->keys.close();
    QTEST(test::closingOf(road_->desk.office()), "stored");
    QCOMPARE(road_->desk.isOpen(), code.isEmpty());
    if (code.isEmpty()) {
      staysWithTheClosedEmpenho();
    } else {
      const QString pdf = road_->file("guia.pdf");
      test::savePreview(road_->dialogs, test::kGuia, pdf);
      QCOMPARE(test::barCodeOfPdf(pdf, 300), code);
    }
  }

  // Without a note the button waits; the dialog closes the empenho, and reopens it.
  void anUnspentAdvanceIsClosedAndReopenedByHand() {
    road_->openNotes();
    QCOMPARE(summary(), QString("1.000,00 0,00 1.000,00"));
    QCOMPARE(colour("lblNao_aplicado", QPalette::WindowText), QColor(0, 0, 255));
    test::mnemonic('E');
    QCOMPARE(test::closingOf(road_->desk.office()), QString("|0|"));
    const QString paper = "ADIANTAMENTO 1.000,00 Importância não Aplicada.: 1.000,00 (mil reais)";
    QVERIFY(accountability().contains(paper));

    road_->openProcess();
    road_->keys.openEmpenho();
    test::tabTo("dtpfechamento");
    test::typeHere("20112014");
    QCOMPARE(road_->keys.empenhoText("mskdev"), QString("0,00"));
    test::tabTo("mskdev");
    test::typeHere("1000");
    test::tabTo("dtpdevolucao");
    test::typeHere("19112014");
    road_->keys.alterEmpenho();
    QCOMPARE(test::closingOf(road_->desk.office()),
             QString("2014-11-20 00:00:00|10000000|2014-11-19 00:00:00"));
    QVERIFY(test::previews().isEmpty());

    road_->keys.openEmpenho();
    test::tabTo("dtpfechamento");
    test::press(Qt::Key_Delete, Qt::ControlModifier);
    road_->keys.alterEmpenho();
    QCOMPARE(test::closingOf(road_->desk.office()), QString("|0|"));
  }

  // The accountability and the slip go the ways of the settings: here both to the printer.
  void printsAtOnceWhereTheSettingsSaySo() {
    Grava_ini("Requisicao", "valor2", "0", road_->desk.office().config());
    road_->openNotes();
    spend({"250"});
    const QString accountability = road_->file("prestacao.pdf");
    road_->dialogs.expectPrinter(accountability);
    test::mnemonic('M');
    QVERIFY2(road_->dialogs.satisfied(), road_->dialogs.report());
    QVERIFY(test::textsOfPdf(accountability).contains("POSTO 250,00 750,00"));

    road_->openNotes();
    road_->dialogs.expectBox(test::askClosing(), Button::Yes);
    road_->dialogs.expectBox(test::closed());
    const QString slip = road_->file("guia.pdf");
    road_->dialogs.expectPrinter(slip);
    test::mnemonic('E');
    QVERIFY2(road_->dialogs.satisfied(), road_->dialogs.report());
    QCOMPARE(test::barCodeOfPdf(slip, 300),
             QString("00091626600000750000000001200000000000000001"));
    QVERIFY(test::previews().isEmpty());
  }

 private:
  void spend(const QStringList& amounts) {
    for (const QString& amount : amounts) {
      road_->keys.addNote("05112014", "17", "posto", amount);
    }
  }
  QString summary() const {
    const test::ProcessDesk& desk = road_->desk;
    return desk.text("lblEmpenho") + ' ' + desk.text("lblGasto") + ' ' +
           desk.text("lblNao_aplicado");
  }
  QColor colour(const char* name, QPalette::ColorRole role) const {
    return road_->desk.widget(name)->palette().color(role);
  }
  // The whole page as text; printing it closes the process.
  QString accountability() {
    test::mnemonic('M');
    const QString pdf = road_->file("prestacao.pdf");
    test::savePreview(road_->dialogs, test::kPrestacao, pdf);
    return test::textsOfPdf(pdf);
  }
  void staysWithTheClosedEmpenho() {
    QVERIFY(test::previews().isEmpty());
    QCOMPARE(road_->desk.text("cmdEncerrar"), QString("Reativar Empenho"));
    QCOMPARE(colour("cmdEncerrar", QPalette::Button), QColor(255, 0, 0));
    QCOMPARE(road_->desk.list("lstEmpenho")->subItem(0, 4), QString("21/11/2014"));
    QCOMPARE(road_->desk.mainList().subItem(0, 10), QString("21/11/2014"));
    // The list was filled anew; what is printed is still of this empenho.
    QVERIFY(accountability().contains("Empenho n°.: 00500/14"));
  }

  std::unique_ptr<test::ProcessRoad> road_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::AdvanceMoneyTest)
#include "AdvanceMoney_test.moc"
