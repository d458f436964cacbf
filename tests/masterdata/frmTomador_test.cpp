// The persons responsible for the money.
#include "masterdata/frmTomador.h"

#include "masterdata/cTomador.h"
#include "tests/masterdata/Tela.h"
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

  void nullsShowAsNothing() {
    QCOMPARE(tela_->row(2), QStringList({"0003", "", "", "", ""}));
    QVERIFY(!tela_->list().isChecked(2));
  }

  void aNameOfDigitsComesBackPadded() {
    QCOMPARE(tela_->row(1), QStringList({"0002", "007", "", "8", "529.982.247-25"}));
    tela_->click(QStringLiteral("0002"));
    tela_->press("Command1_1");
    QCOMPARE(tela_->text("txtnome"), QStringLiteral("007"));
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

 private:
  std::unique_ptr<test::Office> office_;
  std::unique_ptr<frmTomador> window_;
  std::unique_ptr<Tela> tela_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmTomadorTest)
#include "frmTomador_test.moc"
