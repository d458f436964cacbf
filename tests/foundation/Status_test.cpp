#include "foundation/Status.h"

#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QSignalSpy>

#include "foundation/Estilo.h"
#include "foundation/UmaJanela.h"
#include "platform/controls/AviPlayer.h"
#include "tests/support/Files.h"
#include "tests/support/Folders.h"
#include "tests/support/FreshFolder.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowChecks.h"

using namespace quartela;  // NOLINT(google-build-using-namespace)
using test::FreshFolder;

class Status_test : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Estilo::aplica(*qApp); }
  void init() {
    folder_ = std::make_unique<FreshFolder>();
    folder_->deliver("FILEDELR.avi");
  }
  void cleanup() {
    QVERIFY(!UmaJanela<Status>::aberta());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    folder_.reset();
  }

  void showsTheDeletionAndGoesAway() {
    const QPointer<Status> status = &UmaJanela<Status>::instancia();
    auto* const bar = status->findChild<QProgressBar*>("Bar1");
    auto* const player = status->findChild<AviPlayer*>("Animation1");
    QList<int> values;
    QStringList percentages;
    QStringList problems;
    int playing = 0;
    // The percentage is shown behind the bar's step, so each step finds the one before.
    connect(bar, &QProgressBar::valueChanged, this, [&](int value) {
      values << value;
      percentages << status->findChild<QLabel*>("Label1")->text();
      playing += player->isPlaying() ? 1 : 0;
      problems << test::clippedTexts(*status);
      if (value == 50) {
        QCOMPARE(QApplication::activeModalWidget(), status.data());
        QVERIFY(status->isVisible());
        QCOMPARE(status->windowTitle(), "Excluindo Registro...");
        QCOMPARE(status->findChild<QLabel*>("Label3")->text(), "Aguarde Processando...");
        QCOMPARE(status->findChild<QLabel*>("lblPorcento")->text(), "%");
      }
    });
    QCOMPARE(bar->minimum(), 0);
    QCOMPARE(bar->maximum(), 100);
    Animacao_exclusao();
    QVERIFY(status.isNull());
    QList<int> steps;
    QStringList shown{"0"};
    for (int value = 5; value <= 100; value += 5) {
      steps << value;
      shown << QString::number(value);
    }
    shown.removeLast();
    QCOMPARE(values, steps);
    QCOMPARE(percentages, shown);
    QCOMPARE(playing, 20);
    problems.removeAll(QString());
    QCOMPARE(problems, QStringList());
  }

  void theTimersHaveTheirIntervals() {
    Status& status = UmaJanela<Status>::instancia();
    QCOMPARE(status.findChild<QTimer*>("Timer1")->interval(), 15);
    QCOMPARE(status.findChild<QTimer*>("Timer2")->interval(), 1);
    QVERIFY(!status.findChild<QTimer*>("Timer1")->isActive());
    QVERIFY(!status.findChild<QTimer*>("Timer2")->isActive());
    connect(status.findChild<QProgressBar*>("Bar1"), &QProgressBar::valueChanged, this, [&status] {
      QVERIFY(status.findChild<QTimer*>("Timer1")->isActive());
      QVERIFY(!status.findChild<QTimer*>("Timer2")->isActive());
    });
    Animacao_exclusao();
  }

  void aFileThatCannotBePlayedDoesNotStopIt_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("missing");
    QTest::newRow("missing") << QByteArray() << true;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("garbage") << QByteArray("no animation") << false;
    QTest::newRow("cut off") << delivered().left(5000) << false;
  }
  void aFileThatCannotBePlayedDoesNotStopIt() {
    QFETCH(const QByteArray, bytes);
    QFETCH(const bool, missing);
    if (missing) {
      QVERIFY(QFile::remove(folder_->path("FILEDELR.avi")));
    } else {
      folder_->write("FILEDELR.avi", bytes);
    }
    const QPointer<Status> status = &UmaJanela<Status>::instancia();
    QSignalSpy steps(status->findChild<QProgressBar*>("Bar1"), &QProgressBar::valueChanged);
    bool playing = false;
    connect(status->findChild<QProgressBar*>("Bar1"), &QProgressBar::valueChanged, this,
            [&] { playing = playing || status->findChild<AviPlayer*>("Animation1")->isPlaying(); });
    Animacao_exclusao();
    QCOMPARE(steps.size(), 20);
    QVERIFY(!playing);
    QVERIFY(status.isNull());
  }

  void nothingEndsItEarly() {
    const QPointer<Status> status = &UmaJanela<Status>::instancia();
    auto* const bar = status->findChild<QProgressBar*>("Bar1");
    QSignalSpy steps(bar, &QProgressBar::valueChanged);
    connect(bar, &QProgressBar::valueChanged, this, [&status](int value) {
      if (value == 10) {
        QTest::keyClick(status.data(), Qt::Key_Escape);
      } else if (value == 20) {
        QVERIFY(!status->close());
      }
    });
    Animacao_exclusao();
    QCOMPARE(steps.size(), 20);
  }

  void standsOverTheActiveWindow() {
    QWidget window;
    window.setWindowFlag(Qt::WindowStaysOnTopHint);
    window.show();
    window.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    QCOMPARE(UmaJanela<Status>::instancia().parentWidget(), &window);
    Animacao_exclusao();
  }

  void eachDeletionStartsFromZero() {
    Animacao_exclusao();
    QCOMPARE(UmaJanela<Status>::instancia().findChild<QProgressBar*>("Bar1")->value(), 0);
    Animacao_exclusao();
  }

 private:
  static QByteArray delivered() {
    return quartela::test::contentOf(
        quartela::test::inSource(QStringLiteral("resources/delivery/FILEDELR.avi")));
  }

  std::unique_ptr<FreshFolder> folder_;
};

QUARTELA_TEST_MAIN(Status_test)
#include "Status_test.moc"
