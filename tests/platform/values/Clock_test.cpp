#include "platform/values/Clock.h"

#include <QDateTime>

#include "tests/support/TestMain.h"

using namespace quartela;

class ClockTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { Clock::run(); }

  void standsWhereItWasStopped();
  void runsWithTheMachine();
};

void ClockTest::standsWhereItWasStopped() {
  const DateTime moment = DateTime::of(2014, 2, 28, 23, 59, 58);
  Clock::stopAt(moment);
  QCOMPARE(Clock::now(), moment);
  QCOMPARE(Clock::today(), DateTime::of(2014, 2, 28));
  Clock::stopAt(moment.addDays(1));
  QCOMPARE(Clock::today(), DateTime::of(2014, 3, 1));
}

void ClockTest::runsWithTheMachine() {
  Clock::stopAt(DateTime::of(1999, 1, 1));
  Clock::run();
  const auto iso = [](const QDateTime& moment) {
    return moment.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
  };
  const QString before = iso(QDateTime::currentDateTime());
  const QString shown = Clock::now().toIso();
  const QString after = iso(QDateTime::currentDateTime());
  QVERIFY2(before <= shown && shown <= after, qPrintable(shown));
}

QUARTELA_TEST_MAIN(ClockTest)
#include "Clock_test.moc"
