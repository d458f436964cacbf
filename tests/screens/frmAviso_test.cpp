// The deadline alert: which advances it warns of, and that it goes by itself when there is none.
#include "screens/frmAviso.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include "foundation/Banco.h"
#include "platform/controls/ListView.h"
#include "platform/values/RuntimeError.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

class frmAvisoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    test::addOpenProcess(*office_);
  }
  void cleanup() { office_.reset(); }

  // Now is 21/11/2014 10:30.
  void deadlines_data() {
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("rows");
    const auto deadline = [](const char* day) {
      return QStringLiteral("UPDATE Adiantamento SET FECHAR_EM = '%1 00:00:00'")
          .arg(QLatin1String(day));
    };
    QTest::newRow("far away") << deadline("2014-12-03") << 0;
    QTest::newRow("seven days away") << deadline("2014-11-28") << 0;
    QTest::newRow("six days away") << deadline("2014-11-27") << 1;
    QTest::newRow("today") << deadline("2014-11-21") << 1;
    QTest::newRow("long past") << deadline("2013-01-01") << 1;
    QTest::newRow("none") << QStringLiteral("UPDATE Adiantamento SET FECHAR_EM = NULL") << 0;
    QTest::newRow("closed") << QStringLiteral(
                                   "UPDATE Adiantamento SET FECHAR_EM = '2014-11-21 00:00:00', "
                                   "FECHAMENTO = '2014-11-20 00:00:00'")
                            << 0;
    QTest::newRow("annulled") << QStringLiteral(
                                     "UPDATE Adiantamento SET FECHAR_EM = '2014-11-21 00:00:00', "
                                     "ANULADO = 1")
                              << 1;
  }
  void deadlines() {
    QFETCH(QString, change);
    office_->run(qPrintable(change));
    frmAviso alert;
    QTEST(alert.findChild<ListView*>(QStringLiteral("lvList"))->count(), "rows");
  }

  void aRowShowsTheOrderersName() {
    office_->run("UPDATE Adiantamento SET FECHAR_EM = '2014-11-25 00:00:00'");
    frmAviso alert;
    const auto* list = alert.findChild<ListView*>(QStringLiteral("lvList"));
    QStringList cells;
    for (int n = 0; n < list->columnCount(); ++n) {
      cells << list->subItem(0, n);
    }
    QCOMPARE(cells, QStringList({"0001/14", "Ordenador", "Miúdas", "25/11/2014"}));
    QCOMPARE(alert.windowTitle(), QStringLiteral("A L E R T A"));
  }

  void withNothingToWarnOfItClosesItself() {
    frmAviso alert;
    QCOMPARE(alert.exec(), int{QDialog::Rejected});
    QVERIFY(!alert.isVisible());
  }

  void withARowItStaysUntilOk() {
    office_->run("UPDATE Adiantamento SET FECHAR_EM = '2014-11-25 00:00:00'");
    frmAviso alert;
    alert.show();
    QVERIFY(QTest::qWaitForWindowExposed(&alert));
    QTest::qWait(100);
    QVERIFY(alert.isVisible());
    QTest::mouseClick(alert.findChild<QPushButton*>(QStringLiteral("Command1")), Qt::LeftButton);
    QVERIFY(!alert.isVisible());
  }

  void everyColumnIsInView() {
    office_->run("DELETE FROM Adiantamento");
    constexpr int kMoreThanFit = 60;
    for (int n = 0; n < kMoreThanFit; ++n) {
      office_->run(
          qPrintable(QStringLiteral("INSERT INTO Adiantamento(EMPENHO, PROCESSO, FECHAR_EM) VALUES "
                                    "(%1, 114, '2014-11-25 00:00:00')")
                         .arg(100 * (n + 1000) + 14)));
    }
    frmAviso alert;
    alert.show();
    QVERIFY(QTest::qWaitForWindowExposed(&alert));
    auto* const list = alert.findChild<ListView*>(QStringLiteral("lvList"));
    list->flush();
    QTRY_VERIFY(list->verticalScrollBar()->isVisible());
    QCOMPARE(list->horizontalScrollBar()->maximum(), 0);
  }

  void aReopenedProcessComesBack() {
    office_->run(
        "UPDATE Adiantamento SET FECHAR_EM = '2014-11-21 00:00:00', FECHAMENTO = '2014-11-20 "
        "00:00:00'");
    QCOMPARE(frmAviso().findChild<ListView*>(QStringLiteral("lvList"))->count(), 0);
    office_->run("UPDATE Adiantamento SET FECHAMENTO = NULL");
    QCOMPARE(frmAviso().findChild<ListView*>(QStringLiteral("lvList"))->count(), 1);
  }

  void aFailureIsToldAndTheWindowOpens() {
    Conexao->close();
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(
        test::boxes::internalError(ErrorNumber::ObjectClosed, QStringLiteral("Função Form_Load")));
    frmAviso alert;
    QCOMPARE(alert.findChild<ListView*>(QStringLiteral("lvList"))->count(), 0);
  }

 private:
  std::unique_ptr<test::Office> office_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmAvisoTest)
#include "frmAviso_test.moc"
