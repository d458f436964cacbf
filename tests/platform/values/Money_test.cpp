#include "platform/values/Money.h"

#include <limits>

#include "platform/values/RuntimeError.h"
#include "tests/support/Errors.h"
#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

}  // namespace

class MoneyTest : public QObject {
  Q_OBJECT

 private slots:
  void startsAtZero();
  void isMadeOfUnitsCentsAndReais();
  void roundsToCentsHalfAwayFromZero_data();
  void roundsToCentsHalfAwayFromZero();
  void addsAndSubtracts();
  void compares();
  void neverLeavesItsRangeUnseen();
};

void MoneyTest::startsAtZero() {
  const Money zero;
  QCOMPARE(zero.units(), 0);
  QVERIFY(zero.isZero());
  QVERIFY(!zero.isNegative());
}

void MoneyTest::isMadeOfUnitsCentsAndReais() {
  QCOMPARE(Money::fromUnits(12'345).units(), 12'345);
  QCOMPARE(Money::fromCents(-7).units(), -700);
  QCOMPARE(Money::fromReais(3).units(), 30'000);
  QVERIFY(Money::fromUnits(-1).isNegative());
  QVERIFY(!Money::fromUnits(-1).isZero());
}

void MoneyTest::roundsToCentsHalfAwayFromZero_data() {
  QTest::addColumn<qint64>("units");
  QTest::addColumn<qint64>("cents");
  QTest::newRow("zero") << qint64{0} << qint64{0};
  QTest::newRow("whole") << qint64{12'300} << qint64{123};
  QTest::newRow("below half") << qint64{12'349} << qint64{123};
  QTest::newRow("half") << qint64{12'350} << qint64{124};
  QTest::newRow("above half") << qint64{12'399} << qint64{124};
  QTest::newRow("half of nothing") << qint64{50} << qint64{1};
  QTest::newRow("negative below half") << qint64{-49} << qint64{0};
  QTest::newRow("negative half") << qint64{-50} << qint64{-1};
  QTest::newRow("negative whole") << qint64{-12'300} << qint64{-123};
  QTest::newRow("most") << qint64{kMost} << qint64{92'233'720'368'547'758};
  QTest::newRow("least") << qint64{kLeast} << qint64{-92'233'720'368'547'758};
}

void MoneyTest::roundsToCentsHalfAwayFromZero() {
  QFETCH(qint64, units);
  QFETCH(qint64, cents);
  QCOMPARE(Money::fromUnits(units).cents(), cents);
  QCOMPARE(Money::fromUnits(units).roundedToCents().units(), cents * 100);
}

void MoneyTest::addsAndSubtracts() {
  Money sum = Money::fromCents(1'050);
  sum += Money::fromCents(25);
  QCOMPARE(sum, Money::fromCents(1'075));
  sum -= Money::fromReais(20);
  QCOMPARE(sum, Money::fromCents(-925));
  QCOMPARE(Money::fromCents(10) + Money::fromCents(20), Money::fromCents(30));
  QCOMPARE(Money::fromCents(10) - Money::fromCents(20), Money::fromCents(-10));
  QCOMPARE(Money::fromUnits(-12'345) * 3, Money::fromUnits(-37'035));
  QCOMPARE(-Money::fromCents(10), Money::fromCents(-10));
  // A tenth, ten times, is one: what no double holds.
  Money tenths;
  for (int i = 0; i < 10; ++i) {
    tenths += Money::fromCents(10);
  }
  QCOMPARE(tenths, Money::fromReais(1));
}

void MoneyTest::compares() {
  QVERIFY(Money::fromCents(1) < Money::fromCents(2));
  QVERIFY(Money::fromCents(-1) < Money());
  QVERIFY(Money::fromCents(100) == Money::fromReais(1));
  QVERIFY(Money::fromUnits(1) != Money());
}

void MoneyTest::neverLeavesItsRangeUnseen() {
  const Money most = Money::fromUnits(kMost);
  const Money least = Money::fromUnits(kLeast);
  const Money one = Money::fromUnits(1);
  QCOMPARE(test::errorOf([&] { return most + one; }), 6);
  QCOMPARE(test::errorOf([&] { return least - one; }), 6);
  QCOMPARE(test::errorOf([&] { return -least; }), 6);
  QCOMPARE(test::errorOf([&] { return most * 2; }), 6);
  QCOMPARE(test::errorOf([] { return Money::fromReais(kMost / 10'000 + 1); }), 6);
  QCOMPARE(test::errorOf([] { return Money::fromCents(kLeast / 100 - 1); }), 6);
  QCOMPARE(test::errorOf([&] { return most - one; }), 0);
  QCOMPARE(test::errorOf([&] { return -most; }), 0);
  QCOMPARE(test::errorOf([] { return Money::fromReais(kMost / 10'000); }), 0);
}

QUARTELA_TEST_MAIN(MoneyTest)
#include "Money_test.moc"
