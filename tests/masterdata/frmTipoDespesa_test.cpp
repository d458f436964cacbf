// The expense purposes: what differs from the secretariats.
#include "masterdata/frmTipoDespesa.h"

#include "tests/masterdata/Tela.h"
#include "tests/support/WindowChecks.h"
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
    office_->run(
        "DELETE FROM Finalidade WHERE ID > 4;"
        "UPDATE sqlite_sequence SET seq = 4 WHERE name = 'Finalidade'");
    window_ = std::make_unique<frmTipoDespesa>();
    tela_ = std::make_unique<Tela>(*window_);
  }
  void cleanup() {
    tela_.reset();
    window_.reset();
    office_.reset();
  }

  void opensOnTheFullList() {
    QCOMPARE(window_->windowTitle(), QStringLiteral("Tipos de Adiantamentos"));
    QCOMPARE(tela_->at<QLabel>("Label_0").text(), QStringLiteral("Pesquisar por Finalidade:"));
    QCOMPARE(tela_->names(), QStringList({"Curso", "Miúdas", "Transporte", "Viagem"}));
    QCOMPARE(tela_->row(0), QStringList({"0001", "Miúdas"}));
    const auto* model = tela_->list().model();
    QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), QStringLiteral("FINALIDADE"));
    QCOMPARE(tela_->list().leastWidth(1),
             ColumnWidth::twips(8819).toPixels(window_->logicalDpiX()));
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
    QCOMPARE(office_->ask("SELECT '[' || FINALIDADE || ']' FROM Finalidade WHERE ID = 5"),
             QStringLiteral("[%1]").arg(stored));
    QCOMPARE(tela_->row(4), QStringList({"0005", stored}));
  }

  void alteredAndDeleted() {
    tela_->click(QStringLiteral("0003"));
    tela_->press("Command1_1");
    QCOMPARE(tela_->text("txtFinalidade"), QStringLiteral("Curso"));
    QCOMPARE(tela_->focus(), QStringLiteral("txtFinalidade"));
    tela_->type("txtFinalidade", QStringLiteral("Congresso"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::altered());
    tela_->press("Command2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->row(2), QStringList({"0003", "Congresso"}));
    dialogs.expectBox(boxes::askDelete(QStringLiteral("0003")), Button::Yes);
    dialogs.expectBox(boxes::deleted());
    tela_->click(QStringLiteral("0003"));
    tela_->excludeByMenu();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(tela_->names(), QStringList({"Miúdas", "Transporte", "Viagem"}));
  }

  void theSearch() {
    tela_->type("txtpesquisa", QStringLiteral("RANSP"));
    tela_->press("cmdProcura");
    QCOMPARE(tela_->names(), QStringList{"Transporte"});
  }

  void keysAndNames() {
    QCOMPARE(test::mnemonicClashes(*window_), QString());
    QCOMPARE(test::unnamedControls(*window_), QString());
    QCOMPARE(test::clippedTexts(*window_), QString());
    tela_->press("Command1_3");
    QCOMPARE(test::clippedTexts(*window_), QString());
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
