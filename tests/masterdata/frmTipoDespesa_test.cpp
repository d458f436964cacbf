// The expense purposes: what differs from the secretariats.
#include "masterdata/frmTipoDespesa.h"

#include "tests/masterdata/Tela.h"
#include "tests/support/office/Office.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {

using test::Tela;
namespace boxes = test::boxes;

class frmTipoDespesaTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    window_ = std::make_unique<frmTipoDespesa>();
    tela_ = std::make_unique<Tela>(*window_);
  }
  void cleanup() {
    tela_.reset();
    window_.reset();
    office_.reset();
  }

  void aPurposeIsKeptAsTyped_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");
    QTest::newRow("nothing passes too") << QString() << QString();
    QTest::newRow("blanks stay") << QStringLiteral(" Ajuda ") << QStringLiteral(" Ajuda ");
    QTest::newRow("twenty characters")
        << QStringLiteral("123456789 123456789 12") << QStringLiteral("123456789 123456789 ");
    QTest::newRow("apostrophe") << QStringLiteral("Copo d'água") << QStringLiteral("Copo d'água");
  }
  void aPurposeIsKeptAsTyped() {
    QFETCH(QString, typed);
    QFETCH(QString, stored);
    tela_->press("Command1_3");
    QCOMPARE(tela_->focus(), QStringLiteral("txtFinalidade"));
    tela_->type("txtFinalidade", typed);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(office_->ask("SELECT '[' || FINALIDADE || ']' FROM Finalidade ORDER BY ID DESC"),
             QStringLiteral("[%1]").arg(stored));
    QCOMPARE(tela_->list().subItem(tela_->list().count() - 1, 1), stored);
  }

  // The star stands there, although nothing is checked.
  void theStarBesideTheName() {
    QCOMPARE(tela_->at<QLabel>("lbl_txtFinalidade").text().remove(QLatin1Char('&')),
             QStringLiteral("Finalidade"));
    QCOMPARE(tela_->at<QLabel>("marca_txtFinalidade").text(), QStringLiteral("*"));
  }

 private:
  std::unique_ptr<test::Office> office_;
  std::unique_ptr<frmTipoDespesa> window_;
  std::unique_ptr<Tela> tela_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmTipoDespesaTest)
#include "frmTipoDespesa_test.moc"
