// The find dialog: which search each filter gets, by name and by number.
#include "screens/frmLocalizar.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "platform/controls/ListView.h"
#include "platform/controls/StatusBar.h"
#include "platform/values/RuntimeError.h"
#include "records/Principal.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

class frmLocalizarTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    test::addOpenProcess(*office_);
    office_->run(
        "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE) VALUES "
        "(214, '2014-10-01 00:00:00', 1, 1, 5, 1), (313, '2013-10-01 00:00:00', 1, 1, 5, 1);"
        "INSERT INTO Adiantamento(EMPENHO, PROCESSO, ABERTURA, FECHAMENTO) VALUES "
        "(30013, 313, '2013-10-02 00:00:00', '2013-11-02 00:00:00')");
    list_ = std::make_unique<ListView>();
    bar_ = std::make_unique<StatusBar>();
    for (int column = 0; column < 12; ++column) {
      list_->addColumn(QString::number(column), ColumnWidth::pixels(80));
    }
    list_->addItem(QStringLiteral("antes"));
    registra_lista_principal(list_.get(), bar_.get());
    FiltroStatus = 1;
    dialog_ = std::make_unique<frmLocalizar>();
    dialog_->show();
  }
  void cleanup() {
    dialog_.reset();
    registra_lista_principal(nullptr, nullptr);
    bar_.reset();
    list_.reset();
    office_.reset();
  }

  void opensOnNameWithTheTextReady() {
    QCOMPARE(combo()->currentText(), QStringLiteral("NOME"));
    QCOMPARE(combo()->count(), 2);
    QCOMPARE(combo()->itemText(1), QStringLiteral("PROCESSO"));
    QCOMPARE(dialog_->windowTitle(), QStringLiteral("Localizar"));
  }

  void byName_data() {
    QTest::addColumn<int>("filter");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("0") << 0 << QStringList{"0001/14", "0002/14", "0003/13"};
    QTest::newRow("1") << 1 << QStringList{"0001/14", "0002/14"};
    QTest::newRow("2") << 2 << QStringList{"0001/14"};
    QTest::newRow("3") << 3 << QStringList{"0003/13"};
    QTest::newRow("4 has no search: the list stays") << 4 << QStringList{"antes"};
  }
  void byName() {
    QFETCH(int, filter);
    FiltroStatus = static_cast<std::int16_t>(filter);
    type(QStringLiteral("  RESPONSÁVEL "));
    pressOk();
    QTEST(shown(), "rows");
    QCOMPARE(int{FiltroStatus}, filter);
    QVERIFY(!dialog_->isVisible());
  }

  void byNumber_data() {
    QTest::addColumn<QString>("number");
    QTest::newRow("as shown") << QStringLiteral("0001/14");
    QTest::newRow("without the slash") << QStringLiteral("114");
  }
  void byNumber() {
    QFETCH(QString, number);
    combo()->setCurrentIndex(1);
    type(number);
    pressOk();
    QCOMPARE(shown(), QStringList{"0001/14"});
  }

  void emptyTextOnlyCloses() {
    pressOk();
    QCOMPARE(shown(), QStringList{"antes"});
    QVERIFY(!dialog_->isVisible());
  }

  void aNumberThatIsNoneChangesNothing_data() {
    QTest::addColumn<QString>("number");
    QTest::addColumn<int>("error");
    QTest::newRow("letters") << QStringLiteral("doze") << 13;
    QTest::newRow("above sixteen bits") << QStringLiteral("0328/14") << 6;
  }
  void aNumberThatIsNoneChangesNothing() {
    QFETCH(QString, number);
    QFETCH(int, error);
    combo()->setCurrentIndex(1);
    type(number);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox({.text = QStringLiteral("Erro em tempo de execução %1:\n\n").arg(error) +
                               errorDescription(static_cast<ErrorNumber>(error)),
                       .title = QStringLiteral("Quartela"),
                       .icon = BoxIcon::Stop});
    pressOk();
    QCOMPARE(shown(), QStringList{"antes"});
    QVERIFY(dialog_->isVisible());
    QCOMPARE(text()->text(), number);
  }

  void anApostropheIsReported() {
    type(QStringLiteral("D'Ávila"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(test::boxes::internalError(
        ErrorNumber::SyntaxError, QStringLiteral("Função Lista_Movimento"), test::kAnything));
    pressOk();
    QVERIFY(!dialog_->isVisible());
  }

 private:
  QComboBox* combo() const { return dialog_->findChild<QComboBox*>(QStringLiteral("Combo1")); }
  QLineEdit* text() const { return dialog_->findChild<QLineEdit*>(QStringLiteral("Text1")); }
  void type(const QString& characters) const { text()->setText(characters); }
  void pressOk() const { QTest::keyClick(text(), Qt::Key_Return); }
  QStringList shown() const {
    QStringList rows;
    for (int row = 0; row < list_->count(); ++row) {
      rows << list_->text(row);
    }
    rows.sort();
    return rows;
  }

  std::unique_ptr<test::Office> office_;
  std::unique_ptr<ListView> list_;
  std::unique_ptr<StatusBar> bar_;
  std::unique_ptr<frmLocalizar> dialog_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmLocalizarTest)
#include "frmLocalizar_test.moc"
