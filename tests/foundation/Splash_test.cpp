#include "foundation/Splash.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QImageReader>
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>

#include "foundation/Estilo.h"
#include "foundation/UmaJanela.h"
#include "platform/controls/ScreenPointer.h"
#include "platform/files/ProgramFolder.h"
#include "platform/values/RuntimeError.h"
#include "tests/support/FreshFolder.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowChecks.h"

using namespace quartela;  // NOLINT(google-build-using-namespace)
using test::FreshFolder;
using test::ScriptedDialogs;

namespace {

constexpr int kWhole = 10000;  // ms; a splash is gone after about 4000

int pixelsOf(int twips) {
  return static_cast<int>(std::lround(twips / 15.0));
}

Box report(ErrorNumber number, const QString& file) {
  const RuntimeError error(number, programFile(file), "Splash");
  return {QStringLiteral("Houve um erro interno:\n\nNúmero do erro:\n%1\nDescrição :\n%2\n"
                         "Origem :\nSplash / Função Load")
              .arg(QString::number(error.number()), error.description()),
          "Aviso", BoxIcon::Exclamation};
}

}  // namespace

class Splash_test : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Estilo::aplica(*qApp); }
  void init() {
    folder_ = std::make_unique<FreshFolder>();
    folder_->deliver("progress.gif");
    Splash::registra_principal({});
  }

  void cleanup() {
    if (Splash* const splash = UmaJanela<Splash>::aberta()) {
      splash->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Splash::registra_principal({});
    setScreenPointer(PointerShape::Normal);
    folder_.reset();
  }

  void loads() {
    mostra_Splash();
    const Splash* const splash = UmaJanela<Splash>::aberta();
    QVERIFY(splash && splash->isVisible());
    QVERIFY(!splash->isModal());
    QVERIFY(splash->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QCOMPARE(label("Image1")->x(), pixelsOf(-10150));
    QCOMPARE(label("lblVersion")->text(), "Version 4.0.2");
    QCOMPARE(label("lblStatus")->text(), "Aguarde Carregando Controles...");
    QCOMPARE(screenPointer(), PointerShape::Hourglass);
    QCOMPARE(test::clippedTexts(*splash), QString());
  }

  void theTimersHaveTheirIntervals() {
    mostra_Splash();
    QCOMPARE(timer("Timer1")->interval(), 100);
    QCOMPARE(timer("Timer2")->interval(), 4000);
    QCOMPARE(timer("Timer3")->interval(), 3000);
    QVERIFY(timer("Timer1")->isActive());
    QVERIFY(timer("Timer2")->isActive());
    QVERIFY(!timer("Timer3")->isActive());
  }

  void eachTickMovesThePictureAndTheFirstStartsTheThirdTimer() {
    mostra_Splash();
    QVERIFY(!timer("Timer3")->isActive());
    QList<int> places;
    QList<bool> running;
    QList<int> left;
    const QObject listener;
    connect(timer("Timer1"), &QTimer::timeout, &listener, [&] {
      places << label("Image1")->x();
      running << timer("Timer3")->isActive();
      left << timer("Timer3")->remainingTime();
    });
    QTRY_VERIFY(places.size() >= 3);
    QCOMPARE(places.first(3), QList<int>({pixelsOf(-9950), pixelsOf(-9750), pixelsOf(-9550)}));
    QCOMPARE(running.first(3), QList<bool>({true, true, true}));
    // The later ticks let it run on: begun anew at each, it would never end.
    QVERIFY(left.at(2) < left.at(0));
  }

  void bringsUpTheMainWindowOnceAndGoesAway() {
    QWidget main;
    int calls = 0;
    QString status;
    bool visible = false;
    PointerShape pointer = PointerShape::Normal;
    Splash::registra_principal([&] {
      ++calls;
      status = label("lblStatus")->text();
      visible = UmaJanela<Splash>::aberta()->isVisible();
      pointer = screenPointer();
      QVERIFY(!timer("Timer3")->isActive());
      main.show();
    });
    mostra_Splash();
    const QPointer<Splash> splash = UmaJanela<Splash>::aberta();
    QSignalSpy ticks(timer("Timer1"), &QTimer::timeout);
    QTRY_COMPARE_WITH_TIMEOUT(calls, 1, kWhole);
    QVERIFY(ticks.size() > 1);
    QCOMPARE(status, "Finalizando o Processo...");
    QVERIFY(visible);
    QCOMPARE(pointer, PointerShape::Hourglass);
    QVERIFY(!main.isModal());
    QTRY_VERIFY_WITH_TIMEOUT(splash.isNull(), kWhole);
    QCOMPARE(calls, 1);
    QCOMPARE(screenPointer(), PointerShape::Normal);
    QVERIFY(!UmaJanela<Splash>::aberta());
    QVERIFY(main.isVisible());
  }

  // A slow loading, or a box in it, outlasts the splash, which goes while the call still runs.
  void aMainWindowThatTakesLongOutlivesTheSplash() {
    bool done = false;
    Splash::registra_principal([&done] {
      QEventLoop loop;
      connect(UmaJanela<Splash>::aberta(), &QObject::destroyed, &loop, &QEventLoop::quit);
      loop.exec();
      done = true;
    });
    mostra_Splash();
    QTRY_VERIFY_WITH_TIMEOUT(done, kWhole);
    QVERIFY(!UmaJanela<Splash>::aberta());
    QCOMPARE(screenPointer(), PointerShape::Normal);
  }

  void withoutAMainWindowThereIsNothingToShow() {
    mostra_Splash();
    const QPointer<Splash> splash = UmaJanela<Splash>::aberta();
    QPointer<QLabel> status = label("lblStatus");
    QTRY_COMPARE_WITH_TIMEOUT(status->text(), "Finalizando o Processo...", kWhole);
    QTRY_VERIFY_WITH_TIMEOUT(splash.isNull(), kWhole);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QCOMPARE(screenPointer(), PointerShape::Normal);
  }

  void withoutThePictureTheStartGoesOn() {
    QVERIFY(QFile::remove(folder_->path("progress.gif")));
    int calls = 0;
    Splash::registra_principal([&calls] { ++calls; });
    ScriptedDialogs dialogs;
    dialogs.expectBox(report(ErrorNumber::FileNotFound, "progress.gif"));
    mostra_Splash();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(UmaJanela<Splash>::aberta()->isVisible());
    QCOMPARE(screenPointer(), PointerShape::Normal);
    QVERIFY(timer("Timer1")->isActive());
    QVERIFY(timer("Timer2")->isActive());
    QTRY_COMPARE_WITH_TIMEOUT(calls, 1, kWhole);
    QTRY_VERIFY_WITH_TIMEOUT(!UmaJanela<Splash>::aberta(), kWhole);
  }

  void aMissingPictureLeavesThePointerAsItWas() {
    QVERIFY(QFile::remove(folder_->path("progress.gif")));
    setScreenPointer(PointerShape::Hourglass);
    ScriptedDialogs dialogs;
    dialogs.expectBox(report(ErrorNumber::FileNotFound, "progress.gif"));
    mostra_Splash();
    QCOMPARE(screenPointer(), PointerShape::Hourglass);
  }

  void aBrokenPictureIsReported_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("garbage") << QByteArray("this is no picture at all");
    QTest::newRow("cut off in its head") << QByteArray("GIF89a\x10");
  }
  void aBrokenPictureIsReported() {
    QFETCH(const QByteArray, bytes);
    folder_->write("progress.gif", bytes);
    ScriptedDialogs dialogs;
    dialogs.expectBox(report(ErrorNumber::InvalidPicture, "progress.gif"));
    mostra_Splash();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(screenPointer(), PointerShape::Normal);
    QVERIFY(timer("Timer1")->isActive());
  }

  void theProgramDoesNotEndWhenTheLoginClosesUnderTheSplash() {
    QWidget login;
    login.show();
    mostra_Splash();
    QSignalSpy last(qApp, &QGuiApplication::lastWindowClosed);
    bool goesOn = false;
    QTimer::singleShot(0, this, [&] {
      login.close();
      QMetaObject::invokeMethod(
          this,
          [&] {
            goesOn = last.isEmpty();
            UmaJanela<Splash>::aberta()->close();
          },
          Qt::QueuedConnection);
    });
    QCOMPARE(QCoreApplication::exec(), 0);
    QVERIFY(goesOn);
    QCOMPARE(last.size(), 1);
  }

  void theDeliveredPictureStartsOutsideAndMovesInItself() {
    QImageReader reader(folder_->path("progress.gif"));
    QCOMPARE(reader.imageCount(), 8);
    const QImage first = reader.read();
    QVERIFY(first.width() * 15 <= 10150);
    QVERIFY(reader.read() != first);
    QCOMPARE(reader.loopCount(), -1);
  }

 private:
  static QLabel* label(const char* name) {
    return UmaJanela<Splash>::aberta()->findChild<QLabel*>(name);
  }
  static QTimer* timer(const char* name) {
    return UmaJanela<Splash>::aberta()->findChild<QTimer*>(name);
  }

  std::unique_ptr<FreshFolder> folder_;
};

QUARTELA_TEST_MAIN(Splash_test)
#include "Splash_test.moc"
