#include "platform/values/Convert.h"

#include <limits>

#include "platform/values/RuntimeError.h"
#include "tests/support/Errors.h"
#include "tests/support/TestMain.h"

using namespace quartela;

Q_DECLARE_METATYPE(quartela::Value)

namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

}  // namespace

class ConvertTest : public QObject {
  Q_OBJECT

 private slots:
  void readsNumbersTheBrazilianWay_data();
  void readsNumbersTheBrazilianWay();
  void refusesTextsThatAreNoNumber_data();
  void refusesTextsThatAreNoNumber();
  void roundsIntegersHalfToEven_data();
  void roundsIntegersHalfToEven();
  void refusesIntegersOutOfRange_data();
  void refusesIntegersOutOfRange();
  void readsMoneyExactly_data();
  void readsMoneyExactly();
  void refusesMoneyOutOfRange_data();
  void refusesMoneyOutOfRange();
  void readsDates_data();
  void readsDates();
  void refusesTextsThatAreNoDate_data();
  void refusesTextsThatAreNoDate();
  void countsDatesAsSerials();
  void refusesSerialsOutsideOfTheCalendar_data();
  void refusesSerialsOutsideOfTheCalendar();
  void readsBools_data();
  void readsBools();
  void refusesNullEverywhere();
  void writesTexts_data();
  void writesTexts();
  void convertsToColumnTypes_data();
  void convertsToColumnTypes();
  void keepsNullInEveryColumn();
  void readsBackWhatItWrites_data();
  void readsBackWhatItWrites();
  void readsLongNumbers();
};

void ConvertTest::readsNumbersTheBrazilianWay_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<double>("number");
  const auto row = [](const char* text, double number) {
    QTest::newRow(text) << QString::fromUtf8(text) << number;
  };
  row("0", 0);
  row("5", 5);
  row("-5", -5);
  row("+5", 5);
  row("514", 514);
  row("000514", 514);
  row("1234,5", 1234.5);
  row("1.234,50", 1234.5);
  row("1.234", 1234);
  row("12.345", 12'345);
  row("123.456", 123'456);
  row("1.234.567,89", 1'234'567.89);
  row("-1.234,50", -1234.5);
  row("0,5", 0.5);
  row(",5", 0.5);
  row(",00", 0);
  row("-,50", -0.5);
  row("5,", 5);
  row("0,00", 0);
  row("-0,00", 0);
  row("00,10", 0.1);
  row("  12,5  ", 12.5);
  row("\t7\n", 7);
  row("\u00A0"
      "8",
      8);
  row("0,00001", 0.00001);
}

void ConvertTest::readsNumbersTheBrazilianWay() {
  QFETCH(QString, text);
  QVERIFY(Convert::isNumeric(text));
  QTEST(Convert::toNumber(text), "number");
}

void ConvertTest::refusesTextsThatAreNoNumber_data() {
  QTest::addColumn<QString>("text");
  for (const char* text : {"",
                           " ",
                           "abc",
                           "12.50",
                           "1.23,5",
                           "1,2,3",
                           "1.2345",
                           "1234.567",
                           "1..234",
                           ".5",
                           ".500",
                           "1.",
                           "1.234.",
                           "1.234.56",
                           "1,234.56",
                           "1,234.567",
                           "0.500",
                           "01.234",
                           "000.123",
                           "-",
                           "+",
                           "--5",
                           "-+5",
                           "5-",
                           "- 5",
                           "1 234",
                           ",",
                           "-,",
                           ",,5",
                           "5,,",
                           "5,-",
                           "1e5",
                           "0x10",
                           "R$ 5,00",
                           "(5,00)",
                           "5%",
                           "\u0661\u0662",
                           "\uFF15",
                           "21/11/2014",
                           "Verdadeiro",
                           "1.234,5.6",
                           "5a",
                           "NaN",
                           "inf",
                           "1,.5",
                           "1.234,567.890"}) {
    QTest::newRow(*text ? text : "empty") << QString::fromUtf8(text);
  }
  QTest::newRow("NUL behind") << QString(QStringLiteral("5") + QChar(0));
}

void ConvertTest::refusesTextsThatAreNoNumber() {
  QFETCH(QString, text);
  QVERIFY(!Convert::isNumeric(text));
  QCOMPARE(test::errorOf([&] { Convert::toNumber(text); }), 13);
  QCOMPARE(test::errorOf([&] { Convert::toMoney(text); }), 13);
  QCOMPARE(test::errorOf([&] { Convert::toI16(text); }), 13);
  QCOMPARE(test::errorOf([&] { Convert::toI32(text); }), 13);
}

void ConvertTest::roundsIntegersHalfToEven_data() {
  QTest::addColumn<Value>("value");
  QTest::addColumn<int>("whole");
  QTest::newRow("0,5") << Value("0,5") << 0;
  QTest::newRow("1,5") << Value("1,5") << 2;
  QTest::newRow("2,5") << Value("2,5") << 2;
  QTest::newRow("3,5") << Value("3,5") << 4;
  QTest::newRow("-0,5") << Value("-0,5") << 0;
  QTest::newRow("-1,5") << Value("-1,5") << -2;
  QTest::newRow("-2,5") << Value("-2,5") << -2;
  QTest::newRow("2,50") << Value("2,50") << 2;
  QTest::newRow("2,5000001") << Value("2,5000001") << 3;
  QTest::newRow("2,49999") << Value("2,49999") << 2;
  QTest::newRow("9,5") << Value("9,5") << 10;
  QTest::newRow("99,51") << Value("99,51") << 100;
  QTest::newRow(",51") << Value(",51") << 1;
  QTest::newRow("1.234") << Value("1.234") << 1234;
  QTest::newRow("number 2.5") << Value(2.5) << 2;
  QTest::newRow("number 3.5") << Value(3.5) << 4;
  QTest::newRow("number -2.5") << Value(-2.5) << -2;
  QTest::newRow("money 2,50") << Value(Money::fromCents(250)) << 2;
  QTest::newRow("money 2,5001") << Value(Money::fromUnits(25'001)) << 3;
  QTest::newRow("money -3,50") << Value(Money::fromCents(-350)) << -4;
  QTest::newRow("I16") << Value(std::int16_t{-32'768}) << -32'768;
  QTest::newRow("I32") << Value(32'767) << 32'767;
  QTest::newRow("true") << Value(true) << -1;
  QTest::newRow("false") << Value(false) << 0;
  QTest::newRow("date") << Value(DateTime::of(1900, 1, 1)) << 2;
  QTest::newRow("date after noon") << Value(DateTime::of(1900, 1, 1, 18)) << 3;
}

void ConvertTest::roundsIntegersHalfToEven() {
  QFETCH(Value, value);
  QFETCH(int, whole);
  QCOMPARE(Convert::toI32(value), whole);
  QCOMPARE(int{Convert::toI16(value)}, whole);
}

void ConvertTest::refusesIntegersOutOfRange_data() {
  QTest::addColumn<Value>("value");
  QTest::addColumn<int>("i16");
  QTest::addColumn<int>("i32");
  QTest::newRow("32767") << Value("32767") << 0 << 0;
  QTest::newRow("32767,5") << Value("32767,5") << 6 << 0;
  QTest::newRow("32767,4") << Value("32767,4") << 0 << 0;
  QTest::newRow("32768") << Value("32768") << 6 << 0;
  QTest::newRow("-32768") << Value("-32768") << 0 << 0;
  QTest::newRow("-32768,5") << Value("-32768,5") << 0 << 0;
  QTest::newRow("-32769") << Value("-32769") << 6 << 0;
  QTest::newRow("process of 2014") << Value(99'914) << 6 << 0;
  QTest::newRow("2147483647") << Value("2147483647") << 6 << 0;
  QTest::newRow("2147483648") << Value("2147483648") << 6 << 6;
  QTest::newRow("-2147483648") << Value("-2147483648") << 6 << 0;
  QTest::newRow("-2147483649") << Value("-2147483649") << 6 << 6;
  QTest::newRow("thirty digits") << Value(QString(30, u'9')) << 6 << 6;
  QTest::newRow("leading zeros") << Value(QString(40, u'0') + QStringLiteral("7")) << 0 << 0;
  QTest::newRow("money") << Value(Money::fromReais(3'000'000'000)) << 6 << 6;
  QTest::newRow("number") << Value(1e300) << 6 << 6;
  QTest::newRow("infinite") << Value(kInfinite) << 6 << 6;
  QTest::newRow("not a number") << Value(kNotANumber) << 6 << 6;
}

void ConvertTest::refusesIntegersOutOfRange() {
  QFETCH(Value, value);
  QTEST(test::errorOf([&] { Convert::toI16(value); }), "i16");
  QTEST(test::errorOf([&] { Convert::toI32(value); }), "i32");
}

void ConvertTest::readsMoneyExactly_data() {
  QTest::addColumn<Value>("value");
  QTest::addColumn<qint64>("units");
  const auto row = [](const char* text, qint64 units) {
    QTest::newRow(text) << Value(text) << units;
  };
  row("0,00", 0);
  row("0,01", 100);
  row("-0,01", -100);
  row("1.234,50", 12'345'000);
  row("1234,5", 12'345'000);
  row(",00", 0);
  row("0,1234", 1'234);
  row("0,12345", 1'234);
  row("0,12355", 1'236);
  row("0,123450001", 1'235);
  row("0,12349999", 1'235);
  row("-0,12345", -1'234);
  row("-0,12355", -1'236);
  row("0,99995", 10'000);
  row("0,00005", 0);
  row("0,00015", 2);
  row("999.999.999.999,99", 9'999'999'999'999'900);
  row("922337203685477,5807", 9'223'372'036'854'775'807);
  row("-922337203685477,5808", std::numeric_limits<qint64>::min());
  row("90071992547409,93", 900'719'925'474'099'300);
  QTest::newRow("money") << Value(Money::fromUnits(7)) << qint64{7};
  QTest::newRow("I32") << Value(12) << qint64{120'000};
  QTest::newRow("I16") << Value(std::int16_t{-1}) << qint64{-10'000};
  QTest::newRow("number 0.1") << Value(0.1) << qint64{1'000};
  QTest::newRow("number 1.00005") << Value(1.00005) << qint64{10'000};
  QTest::newRow("number 1.00015") << Value(1.00015) << qint64{10'002};
  QTest::newRow("number -2.675") << Value(-2.675) << qint64{-26'750};
}

void ConvertTest::readsMoneyExactly() {
  QFETCH(Value, value);
  QTEST(qint64{Convert::toMoney(value).units()}, "units");
}

void ConvertTest::refusesMoneyOutOfRange_data() {
  QTest::addColumn<Value>("value");
  QTest::newRow("one unit too many") << Value("922337203685477,5808");
  QTest::newRow("one unit too few") << Value("-922337203685477,5809");
  QTest::newRow("rounded over") << Value("922337203685477,58075");
  QTest::newRow("a million digits") << Value(QString(1'000'000, u'7'));
  QTest::newRow("number") << Value(1e15);
  QTest::newRow("infinite") << Value(-kInfinite);
}

void ConvertTest::refusesMoneyOutOfRange() {
  QFETCH(Value, value);
  QCOMPARE(test::errorOf([&] { Convert::toMoney(value); }), 6);
}

void ConvertTest::readsDates_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<QString>("iso");
  const auto row = [](const char* text, const char* iso) {
    QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(iso);
  };
  row("21/11/2014", "2014-11-21 00:00:00");
  row(" 21/11/2014 ", "2014-11-21 00:00:00");
  row("29/02/2012", "2012-02-29 00:00:00");
  row("01/01/0100", "0100-01-01 00:00:00");
  row("31/12/9999", "9999-12-31 00:00:00");
  row("21/11/2014 10:30", "2014-11-21 10:30:00");
  row("21/11/2014 10:30:59", "2014-11-21 10:30:59");
  row("21/11/2014 00:00", "2014-11-21 00:00:00");
}

void ConvertTest::readsDates() {
  QFETCH(QString, text);
  QVERIFY(Convert::isDate(text));
  QTEST(Convert::toDateTime(text).toIso(), "iso");
}

void ConvertTest::refusesTextsThatAreNoDate_data() {
  QTest::addColumn<QString>("text");
  for (const char* text : {"",
                           "  /  /    ",
                           "31/02/2014",
                           "29/02/2014",
                           "1/1/2014",
                           "01/01/14",
                           "2014/11/21",
                           "2014-11-21",
                           "21-11-2014",
                           "21.11.2014",
                           "11/21/2014",
                           "00/11/2014",
                           "21/00/2014",
                           "21/13/2014",
                           "32/01/2014",
                           "21/11/0099",
                           "21/11/20145",
                           "21/11/2014x",
                           "21/11/2014  10:30",
                           "21/11/2014 24:00",
                           "21/11/2014 10:60",
                           "21/11/2014 10:30:60",
                           "21/11/2014 1:30",
                           "21/11/2014 10",
                           "21/11/2014T10:30",
                           "10:30",
                           "41964",
                           "abc",
                           "2a/11/2014",
                           "\u0662\u0661/11/2014"}) {
    QTest::newRow(*text ? text : "empty") << QString::fromUtf8(text);
  }
}

void ConvertTest::refusesTextsThatAreNoDate() {
  QFETCH(QString, text);
  QVERIFY(!Convert::isDate(text));
  QCOMPARE(test::errorOf([&] { Convert::toDateTime(text); }), 13);
}

void ConvertTest::countsDatesAsSerials() {
  const DateTime noon = DateTime::of(2014, 11, 21, 12);
  QCOMPARE(Convert::toNumber(noon), 41'964.5);
  QCOMPARE(Convert::toDateTime(41'964.5), noon);
  QCOMPARE(Convert::toDateTime(41'964), DateTime::of(2014, 11, 21));
  QCOMPARE(Convert::toDateTime(Money::fromReais(41'964)), DateTime::of(2014, 11, 21));
  QCOMPARE(Convert::toMoney(noon), Money::fromUnits(419'645'000));
  QCOMPARE(Convert::toDateTime(-0.25), DateTime::of(1899, 12, 29, 18));
  // The last half second of a day belongs to the next one.
  QCOMPARE(Convert::toDateTime(1.999999), DateTime::fromSerial(2));
  const DateTime last = DateTime::of(9999, 12, 31, 23, 59, 59);
  QCOMPARE(Convert::toDateTime(Convert::toNumber(last)), last);
}

void ConvertTest::refusesSerialsOutsideOfTheCalendar_data() {
  QTest::addColumn<double>("serial");
  QTest::newRow("behind") << 2'958'466.0;
  QTest::newRow("rounded behind") << 2'958'465.9999999;
  QTest::newRow("before") << -657'434.5;
  QTest::newRow("far") << 1e300;
  QTest::newRow("infinite") << kInfinite;
  QTest::newRow("not a number") << kNotANumber;
}

void ConvertTest::refusesSerialsOutsideOfTheCalendar() {
  QFETCH(double, serial);
  QCOMPARE(test::errorOf([&] { Convert::toDateTime(serial); }), 6);
}

void ConvertTest::readsBools_data() {
  QTest::addColumn<Value>("value");
  QTest::addColumn<int>("expected");  // 13 stands for the error
  QTest::newRow("true") << Value(true) << 1;
  QTest::newRow("false") << Value(false) << 0;
  QTest::newRow("Verdadeiro") << Value("Verdadeiro") << 1;
  QTest::newRow("FALSO") << Value("FALSO") << 0;
  QTest::newRow("true, text") << Value(" true ") << 1;
  QTest::newRow("False, text") << Value("False") << 0;
  QTest::newRow("0, text") << Value("0") << 0;
  QTest::newRow("-1, text") << Value("-1") << 1;
  QTest::newRow("0,00") << Value("0,00") << 0;
  QTest::newRow("1") << Value(1) << 1;
  QTest::newRow("0") << Value(0) << 0;
  QTest::newRow("I16") << Value(std::int16_t{2}) << 1;
  QTest::newRow("money") << Value(Money::fromUnits(1)) << 1;
  QTest::newRow("number") << Value(0.0) << 0;
  QTest::newRow("Sim") << Value("Sim") << 13;
  QTest::newRow("empty") << Value("") << 13;
}

void ConvertTest::readsBools() {
  QFETCH(Value, value);
  QFETCH(int, expected);
  bool result = false;
  const int error = test::errorOf([&] { result = Convert::toBool(value); });
  QCOMPARE(error, expected == 13 ? 13 : 0);
  QCOMPARE(result, expected == 1);
}

void ConvertTest::refusesNullEverywhere() {
  const Value null;
  QCOMPARE(test::errorOf([&] { Convert::toI16(null); }), 13);
  QCOMPARE(test::errorOf([&] { Convert::toI32(null); }), 13);
  QCOMPARE(test::errorOf([&] { Convert::toMoney(null); }), 13);
  QCOMPARE(test::errorOf([&] { Convert::toNumber(null); }), 13);
  QCOMPARE(test::errorOf([&] { Convert::toDateTime(null); }), 13);
  QCOMPARE(test::errorOf([&] { Convert::toBool(null); }), 13);
}

void ConvertTest::writesTexts_data() {
  QTest::addColumn<Value>("value");
  QTest::addColumn<QString>("text");
  const auto row = [](const char* text, const Value& value) {
    QTest::addRow("%s, type %d", text, static_cast<int>(value.type()))
        << value << QString::fromUtf8(text);
  };
  row("", Value());
  row("", Value(""));
  row(" como está ", Value(" como está "));
  row("Verdadeiro", Value(true));
  row("Falso", Value(false));
  row("-7", Value(std::int16_t{-7}));
  row("514", Value(514));
  row("-2147483648", Value(std::numeric_limits<std::int32_t>::min()));
  row("0", Value(Money()));
  row("1234,5", Value(Money::fromCents(123'450)));
  row("-0,0001", Value(Money::fromUnits(-1)));
  row("100", Value(Money::fromReais(100)));
  row("-922337203685477,5808", Value(Money::fromUnits(std::numeric_limits<std::int64_t>::min())));
  row("0,1", Value(0.1));
  row("-2,5", Value(-2.5));
  row("0", Value(-0.0));
  row("5", Value(5.0));
  row("100000000000000000000", Value(1e20));
  row("0,00001", Value(1e-5));
  row("21/11/2014", Value(DateTime::of(2014, 11, 21)));
  row("07/03/2014 09:05:01", Value(DateTime::of(2014, 3, 7, 9, 5, 1)));
  row("01/01/0100", Value(DateTime::of(100, 1, 1)));
}

void ConvertTest::writesTexts() {
  QFETCH(Value, value);
  QTEST(Convert::toText(value), "text");
}

void ConvertTest::convertsToColumnTypes_data() {
  QTest::addColumn<Value>("value");
  QTest::addColumn<int>("type");
  QTest::addColumn<Value>("expected");
  const auto row = [](const char* name, const Value& value, const Value& expected) {
    QTest::newRow(name) << value << static_cast<int>(expected.type()) << expected;
  };
  row("text to I16", "12", std::int16_t{12});
  row("I32 to I16", 12, std::int16_t{12});
  row("text to I32", "1.234", 1234);
  row("text to money", "1.234,56", Money::fromCents(123'456));
  row("text to number", "0,25", 0.25);
  row("text to date", "21/11/2014", DateTime::of(2014, 11, 21));
  row("text to bool", "Falso", false);
  row("I32 to bool", 1, true);
  row("I32 to text", 514, "514");
  row("date to text", DateTime::of(2014, 11, 21), "21/11/2014");
  row("bool to text", true, "Verdadeiro");
  row("text to text", " x ", " x ");
  row("empty text to text", "", "");
  row("date to date", DateTime::of(2014, 11, 21, 8), DateTime::of(2014, 11, 21, 8));
}

void ConvertTest::convertsToColumnTypes() {
  QFETCH(Value, value);
  QFETCH(int, type);
  QFETCH(Value, expected);
  QVERIFY(Convert::toType(value, static_cast<ValueType>(type)) == expected);
}

void ConvertTest::keepsNullInEveryColumn() {
  for (int type = 0; type <= static_cast<int>(ValueType::Text); ++type) {
    QVERIFY(Convert::toType(Value(), static_cast<ValueType>(type)).isNull());
  }
  QVERIFY(Convert::toType(5, ValueType::Null) == Value(5));
  QCOMPARE(test::errorOf([] { Convert::toType("", ValueType::DateTime); }), 13);
  QCOMPARE(test::errorOf([] { Convert::toType("", ValueType::Money); }), 13);
  QCOMPARE(test::errorOf([] { Convert::toType("99999", ValueType::I16); }), 6);
}

void ConvertTest::readsBackWhatItWrites_data() {
  QTest::addColumn<Value>("value");
  QTest::newRow("most money") << Value(Money::fromUnits(std::numeric_limits<std::int64_t>::max()));
  QTest::newRow("least money") << Value(Money::fromUnits(std::numeric_limits<std::int64_t>::min()));
  QTest::newRow("money") << Value(Money::fromUnits(-10'203));
  QTest::newRow("largest number") << Value(std::numeric_limits<double>::max());
  QTest::newRow("smallest number") << Value(std::numeric_limits<double>::denorm_min());
  QTest::newRow("third") << Value(-1.0 / 3.0);
  QTest::newRow("I32") << Value(std::numeric_limits<std::int32_t>::min());
  QTest::newRow("date") << Value(DateTime::of(2014, 12, 31, 23, 59, 59));
  QTest::newRow("bool") << Value(true);
}

void ConvertTest::readsBackWhatItWrites() {
  QFETCH(Value, value);
  QVERIFY(Convert::toType(Convert::toText(value), value.type()) == value);
}

void ConvertTest::readsLongNumbers() {
  QCOMPARE(test::errorOf([] { Convert::toNumber(QString(400, u'9')); }), 6);
  QCOMPARE(Convert::toNumber(QString("0," + QString(400, u'0') + "1")), 0.0);
  QCOMPARE(Convert::toNumber(QString(QString(400, u'0') + "7")), 7.0);
}

QUARTELA_TEST_MAIN(ConvertTest)
#include "Convert_test.moc"
