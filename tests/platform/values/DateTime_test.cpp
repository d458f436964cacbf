#include "platform/values/DateTime.h"

#include "platform/values/RuntimeError.h"
#include "tests/support/Errors.h"
#include "tests/support/TestMain.h"

using namespace quartela;

class DateTimeTest : public QObject {
  Q_OBJECT

 private slots:
  void startsAtTheDayOfSerialZero();
  void knowsTheCalendar_data();
  void knowsTheCalendar();
  void refusesTimesThatDoNotExist_data();
  void refusesTimesThatDoNotExist();
  void hasPartsAndSerial_data();
  void hasPartsAndSerial();
  void separatesDayAndTime();
  void addsDays();
  void staysInsideTheCalendar();
  void readsAndWritesTheFileForm();
  void refusesOtherForms_data();
  void refusesOtherForms();
  void comparesDayThenTime();
};

void DateTimeTest::startsAtTheDayOfSerialZero() {
  QCOMPARE(DateTime(), DateTime::of(1899, 12, 30));
  QCOMPARE(DateTime().days(), 0);
}

void DateTimeTest::knowsTheCalendar_data() {
  QTest::addColumn<int>("year");
  QTest::addColumn<int>("month");
  QTest::addColumn<int>("day");
  QTest::addColumn<bool>("exists");
  QTest::newRow("usual") << 2014 << 11 << 21 << true;
  QTest::newRow("last of april") << 2014 << 4 << 30 << true;
  QTest::newRow("31 april") << 2014 << 4 << 31 << false;
  QTest::newRow("31 february") << 2014 << 2 << 31 << false;
  QTest::newRow("29 february, common year") << 2014 << 2 << 29 << false;
  QTest::newRow("29 february, leap year") << 2012 << 2 << 29 << true;
  QTest::newRow("29 february 1900") << 1900 << 2 << 29 << false;
  QTest::newRow("29 february 2000") << 2000 << 2 << 29 << true;
  QTest::newRow("day 0") << 2014 << 1 << 0 << false;
  QTest::newRow("month 0") << 2014 << 0 << 1 << false;
  QTest::newRow("month 13") << 2014 << 13 << 1 << false;
  QTest::newRow("negative day") << 2014 << 1 << -1 << false;
  QTest::newRow("first year") << 100 << 1 << 1 << true;
  QTest::newRow("before the first year") << 99 << 12 << 31 << false;
  QTest::newRow("last day") << 9999 << 12 << 31 << true;
  QTest::newRow("behind the last day") << 10000 << 1 << 1 << false;
}

void DateTimeTest::knowsTheCalendar() {
  QFETCH(int, year);
  QFETCH(int, month);
  QFETCH(int, day);
  QFETCH(bool, exists);
  QCOMPARE(DateTime::fromParts(year, month, day).has_value(), exists);
  QCOMPARE(test::errorOf([=] { return DateTime::of(year, month, day); }), exists ? 0 : 13);
}

void DateTimeTest::refusesTimesThatDoNotExist_data() {
  QTest::addColumn<int>("hour");
  QTest::addColumn<int>("minute");
  QTest::addColumn<int>("second");
  QTest::addColumn<bool>("exists");
  QTest::newRow("midnight") << 0 << 0 << 0 << true;
  QTest::newRow("last second") << 23 << 59 << 59 << true;
  QTest::newRow("hour 24") << 24 << 0 << 0 << false;
  QTest::newRow("minute 60") << 0 << 60 << 0 << false;
  QTest::newRow("second 60") << 0 << 0 << 60 << false;
  QTest::newRow("negative hour") << -1 << 0 << 0 << false;
  QTest::newRow("negative minute") << 0 << -1 << 0 << false;
  QTest::newRow("negative second") << 0 << 0 << -1 << false;
}

void DateTimeTest::refusesTimesThatDoNotExist() {
  QFETCH(int, hour);
  QFETCH(int, minute);
  QFETCH(int, second);
  QFETCH(bool, exists);
  QCOMPARE(DateTime::fromParts(2014, 11, 21, hour, minute, second).has_value(), exists);
}

// The serial numbers are those of the calendar: 36526 is 1 January 2000, a Saturday.
void DateTimeTest::hasPartsAndSerial_data() {
  QTest::addColumn<int>("year");
  QTest::addColumn<int>("month");
  QTest::addColumn<int>("day");
  QTest::addColumn<int>("serial");
  QTest::addColumn<int>("weekday");
  QTest::newRow("serial zero") << 1899 << 12 << 30 << 0 << 7;
  QTest::newRow("serial one") << 1899 << 12 << 31 << 1 << 1;
  QTest::newRow("1900") << 1900 << 1 << 1 << 2 << 2;
  QTest::newRow("2000") << 2000 << 1 << 1 << 36'526 << 7;
  QTest::newRow("due-date base") << 1997 << 10 << 7 << 35'710 << 3;
  QTest::newRow("2014") << 2014 << 11 << 21 << 41'964 << 6;
  QTest::newRow("before zero") << 1899 << 12 << 29 << -1 << 6;
  QTest::newRow("last") << 9999 << 12 << 31 << 2'958'465 << 6;
  QTest::newRow("first") << 100 << 1 << 1 << -657'434 << 6;
}

void DateTimeTest::hasPartsAndSerial() {
  QFETCH(int, year);
  QFETCH(int, month);
  QFETCH(int, day);
  QFETCH(int, serial);
  const DateTime date = DateTime::of(year, month, day, 13, 5, 9);
  QCOMPARE(date.days(), serial);
  QTEST(date.weekday(), "weekday");
  const DateTime again = DateTime::fromSerial(serial, 13 * 3600 + 5 * 60 + 9);
  QCOMPARE(again, date);
  QCOMPARE(again.year(), year);
  QCOMPARE(again.month(), month);
  QCOMPARE(again.day(), day);
  QCOMPARE(again.hour(), 13);
  QCOMPARE(again.minute(), 5);
  QCOMPARE(again.second(), 9);
}

void DateTimeTest::separatesDayAndTime() {
  const DateTime moment = DateTime::of(2014, 11, 21, 10, 30);
  QVERIFY(moment.hasTime());
  QCOMPARE(moment.secondsOfDay(), 37'800);
  QCOMPARE(moment.date(), DateTime::of(2014, 11, 21));
  QVERIFY(!moment.date().hasTime());
}

void DateTimeTest::addsDays() {
  const DateTime moment = DateTime::of(2014, 12, 30, 8, 0, 0);
  QCOMPARE(moment.addDays(30), DateTime::of(2015, 1, 29, 8, 0, 0));
  QCOMPARE(moment.addDays(-365), DateTime::of(2013, 12, 30, 8, 0, 0));
  QCOMPARE(moment.addDays(0), moment);
}

void DateTimeTest::staysInsideTheCalendar() {
  const DateTime last = DateTime::of(9999, 12, 31);
  QCOMPARE(test::errorOf([&] { return last.addDays(1); }), 6);
  QCOMPARE(test::errorOf([&] { return last.addDays(std::numeric_limits<std::int64_t>::max()); }),
           6);
  QCOMPARE(test::errorOf([] { return DateTime::of(100, 1, 1).addDays(-1); }), 6);
  QCOMPARE(
      test::errorOf([] { return DateTime().addDays(std::numeric_limits<std::int64_t>::min()); }),
      6);
  QCOMPARE(test::errorOf([] { return DateTime::fromSerial(2'958'466); }), 6);
  QCOMPARE(test::errorOf([] { return DateTime::fromSerial(0, 86'400); }), 6);
  QCOMPARE(test::errorOf([] { return DateTime::fromSerial(0, -1); }), 6);
}

void DateTimeTest::readsAndWritesTheFileForm() {
  const DateTime moment = DateTime::of(2014, 3, 7, 9, 5, 1);
  QCOMPARE(moment.toIso(), QStringLiteral("2014-03-07 09:05:01"));
  QCOMPARE(*DateTime::fromIso(QStringView(u"2014-03-07 09:05:01")), moment);
  QCOMPARE(*DateTime::fromIso(QStringView(u"2014-03-07")), moment.date());
  QCOMPARE(*DateTime::fromIso("2014-03-07 09:05:01", 19), moment);
  QCOMPARE(DateTime::of(100, 1, 1).toIso(), QStringLiteral("0100-01-01 00:00:00"));
}

void DateTimeTest::refusesOtherForms_data() {
  QTest::addColumn<QString>("text");
  for (const char* text : {"", "2014", "2014-3-7", "2014-02-30", "2014/03/07", "07/03/2014",
                           "2014-03-07 9:05", "2014-03-07T09:05:01", "2014-03-07 09:05:61",
                           "2014-03-07 09-05-01", "2O14-03-07", "2014-03-07 ", "aaaa-bb-cc"}) {
    QTest::newRow(*text ? text : "empty") << QString::fromUtf8(text);
  }
}

void DateTimeTest::refusesOtherForms() {
  QFETCH(QString, text);
  QVERIFY(!DateTime::fromIso(QStringView(text)).has_value());
  const QByteArray bytes = text.toUtf8();
  QVERIFY(!DateTime::fromIso(bytes.constData(), static_cast<int>(bytes.size())).has_value());
}

void DateTimeTest::comparesDayThenTime() {
  QVERIFY(DateTime::of(2014, 1, 1, 23, 59, 59) < DateTime::of(2014, 1, 2));
  QVERIFY(DateTime::of(2014, 1, 2, 0, 0, 1) > DateTime::of(2014, 1, 2));
  QVERIFY(DateTime::of(1899, 12, 29, 12, 0) < DateTime());
}

QUARTELA_TEST_MAIN(DateTimeTest)
#include "DateTime_test.moc"
