#include "platform/values/Value.h"

#include <functional>

#include "platform/values/RuntimeError.h"
#include "tests/support/TestMain.h"

using namespace quartela;

Q_DECLARE_METATYPE(quartela::Value)

class ValueTest : public QObject {
  Q_OBJECT

 private slots:
  void startsAsNull();
  void keepsTypeAndContent();
  void givesOnlyItsOwnType_data();
  void givesOnlyItsOwnType();
  void comparesTypeAndContent();
};

void ValueTest::startsAsNull() {
  QVERIFY(Value().isNull());
  QCOMPARE(Value().type(), ValueType::Null);
}

void ValueTest::keepsTypeAndContent() {
  QCOMPARE(Value(true).boolean(), true);
  QCOMPARE(Value(std::int16_t{-7}).i16(), -7);
  QCOMPARE(Value(514).i32(), 514);
  QCOMPARE(Value(Money::fromCents(99)).money(), Money::fromCents(99));
  QCOMPARE(Value(0.5).number(), 0.5);
  QCOMPARE(Value(DateTime::of(2014, 11, 21)).dateTime(), DateTime::of(2014, 11, 21));
  QCOMPARE(Value(QStringLiteral("São João")).text(), QStringLiteral("São João"));
  QCOMPARE(Value("São João").text(), QStringLiteral("São João"));
  QVERIFY(!Value(QString()).isNull());
}

void ValueTest::givesOnlyItsOwnType_data() {
  QTest::addColumn<Value>("value");
  QTest::addColumn<int>("type");
  QTest::newRow("null") << Value() << 0;
  QTest::newRow("bool") << Value(false) << 1;
  QTest::newRow("I16") << Value(std::int16_t{0}) << 2;
  QTest::newRow("I32") << Value(0) << 3;
  QTest::newRow("money") << Value(Money()) << 4;
  QTest::newRow("number") << Value(0.0) << 5;
  QTest::newRow("date") << Value(DateTime()) << 6;
  QTest::newRow("text") << Value("") << 7;
}

void ValueTest::givesOnlyItsOwnType() {
  QFETCH(Value, value);
  QFETCH(int, type);
  QCOMPARE(static_cast<int>(value.type()), type);
  const std::function<void()> getters[] = {[&] { value.boolean(); }, [&] { value.i16(); },
                                           [&] { value.i32(); },     [&] { value.money(); },
                                           [&] { value.number(); },  [&] { value.dateTime(); },
                                           [&] { value.text(); }};
  int position = 0;
  for (const auto& getter : getters) {
    ++position;
    int error = 0;
    try {
      getter();
    } catch (const RuntimeError& mismatch) {
      error = mismatch.number();
    }
    QCOMPARE(error, position == type ? 0 : 13);
  }
}

void ValueTest::comparesTypeAndContent() {
  QCOMPARE(Value(5), Value(5));
  QVERIFY(!(Value(5) == Value(6)));
  QVERIFY(!(Value(5) == Value(std::int16_t{5})));
  QVERIFY(!(Value(0) == Value()));
  QVERIFY(Value() == Value());
  QVERIFY(!(Value("a") == Value("A")));
}

QUARTELA_TEST_MAIN(ValueTest)
#include "Value_test.moc"
