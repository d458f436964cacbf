#include "platform/controls/RowStore.h"

#include "platform/controls/SortKey.h"
#include "platform/controls/TextPool.h"
#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

// The rows of `store` in the order of their cell `cell`.
std::vector<std::uint32_t> inOrder(const RowStore& store, int cell, bool descending) {
  return sortedRows(
      store.count(), [&](int row, std::string& out) { appendSortKey(store.bytes(row, cell), out); },
      descending);
}

}  // namespace

class RowStoreTest : public QObject {
  Q_OBJECT
 private slots:
  void givesBackEveryText_data();
  void givesBackEveryText();
  void poolTellsEmptyTextFromAll();
  void cellsThatWereNotSetAreEmpty();
  void moreCellsComeToAllRows();
  void changedAndRemovedRowsKeepTheOthers();
  void memoryIsGivenBackUnderConstantChange();
  void reordersWithEverythingOfTheRow();
  void sortsByText_data();
  void sortsByText();
  void equalTextsKeepTheirOrder();
};

void RowStoreTest::givesBackEveryText_data() {
  QTest::addColumn<QString>("text");
  QTest::newRow("empty") << QString();
  QTest::newRow("one letter") << "a";
  QTest::newRow("accents") << QStringLiteral("Irmã Conceição, nº 7 — «Ação»");
  QTest::newRow("beyond the first plane") << QString::fromUcs4(U"a\U0001F4B0b");
  QTest::newRow("127 bytes") << QString(127, 'x');
  QTest::newRow("128 bytes") << QString(128, 'x');
  QTest::newRow("16384 bytes") << QString(16384, 'y');
  QTest::newRow("longer than a block") << QString(700'000, QChar(0xE9));
  QTest::newRow("zero inside") << QStringLiteral("a\0b");
}

void RowStoreTest::givesBackEveryText() {
  QFETCH(QString, text);
  RowStore store;
  for (int row = 0; row < 3; ++row) {
    QCOMPARE(store.append(), row);
    store.setText(row, 0, text);
    store.setText(row, 1, u"next");
    store.setTag(row, text);
  }
  for (int row = 0; row < 3; ++row) {
    QCOMPARE(store.text(row, 0), text);
    QCOMPARE(store.text(row, 1), "next");
    QCOMPARE(store.tag(row), text);
  }
}

void RowStoreTest::poolTellsEmptyTextFromAll() {
  TextPool pool;
  QCOMPARE(pool.add(QStringView()), TextPool::kEmpty);
  QCOMPARE(pool.used(), std::size_t{0});
  QVERIFY(pool.add(u"a") != TextPool::kEmpty);
  QVERIFY(pool.used() > 0);
}

void RowStoreTest::cellsThatWereNotSetAreEmpty() {
  RowStore store;
  store.append();
  QCOMPARE(store.text(0, 0), QString());
  QCOMPARE(store.text(0, 40), QString());
}

void RowStoreTest::moreCellsComeToAllRows() {
  RowStore store;
  store.setText(store.append(), 0, u"A");
  store.setText(store.append(), 0, u"B");
  store.setText(1, 3, u"B3");
  QCOMPARE(store.cells(), 4);
  QCOMPARE(store.text(0, 0), "A");
  QCOMPARE(store.text(0, 3), "");
  QCOMPARE(store.text(1, 0), "B");
  QCOMPARE(store.text(1, 3), "B3");
}

void RowStoreTest::changedAndRemovedRowsKeepTheOthers() {
  RowStore store;
  for (const QChar name : QStringLiteral("ABC")) {
    const int row = store.append();
    store.setText(row, 0, QString(name));
    store.setText(row, 1, QString(name) + '1');
  }
  store.setText(0, 0, u"longer than before");
  store.remove(1);
  QCOMPARE(store.count(), 2);
  QCOMPARE(store.text(0, 0), "longer than before");
  QCOMPARE(store.text(0, 1), "A1");
  QCOMPARE(store.text(1, 0), "C");
  QCOMPARE(store.text(1, 1), "C1");
}

void RowStoreTest::memoryIsGivenBackUnderConstantChange() {
  RowStore store;
  store.append();
  store.setText(0, 0, u"kept");
  store.setTag(0, u"tag");
  const QString big(100'000, 'z');
  for (int i = 0; i < 200; ++i) {
    store.setText(0, 1, big);
  }
  QVERIFY(store.textBytes() < 2'500'000);
  QCOMPARE(store.text(0, 0), "kept");
  QCOMPARE(store.text(0, 1), big);
  QCOMPARE(store.tag(0), "tag");
}

void RowStoreTest::reordersWithEverythingOfTheRow() {
  RowStore store;
  for (const QChar name : QStringLiteral("ABC")) {
    const int row = store.append();
    store.setText(row, 1, QString(name));
    store.setTag(row, QString(name).toLower());
    store.info(row).icon = static_cast<std::int16_t>(row);
    store.info(row).checked = row == 0;
  }
  store.reorder({2, 0, 1});
  QCOMPARE(store.text(0, 1), "C");
  QCOMPARE(store.tag(1), "a");
  QCOMPARE(store.info(1).checked, true);
  QCOMPARE(store.info(0).icon, std::int16_t{2});
  QCOMPARE(store.text(2, 1), "B");
}

void RowStoreTest::sortsByText_data() {
  QTest::addColumn<QStringList>("texts");
  QTest::addColumn<QStringList>("sorted");
  QTest::newRow("letter case") << QStringList{"beta", "Alfa", "ALFB", "alfC"}
                               << QStringList{"Alfa", "ALFB", "alfC", "beta"};
  QTest::newRow("accents beside their letter")
      << QStringList{"Zelo", "Água", "Agua", "água doce", "Ábaco", "Bola"}
      << QStringList{"Ábaco", "Agua", "Água", "água doce", "Bola", "Zelo"};
  QTest::newRow("accents decide last")
      << QStringList{"é", "e", "É", "E"} << QStringList{"e", "E", "é", "É"};
  QTest::newRow("accents behind their letters") << QStringList{"e\u0301b", "éc", "e\u0301a", "ez"}
                                                << QStringList{"e\u0301a", "e\u0301b", "éc", "ez"};
  QTest::newRow("numbers as text")
      << QStringList{"10", "9", "100", "1"} << QStringList{"1", "10", "100", "9"};
  QTest::newRow("same first eight") << QStringList{"prefeitura b", "prefeitura", "prefeitura a"}
                                    << QStringList{"prefeitura", "prefeitura a", "prefeitura b"};
  QTest::newRow("empty first") << QStringList{"a", "", " "} << QStringList{"", " ", "a"};
  QTest::newRow("cedilla") << QStringList{"caçada", "cacada", "cabo", "cado"}
                           << QStringList{"cabo", "cacada", "caçada", "cado"};
}

void RowStoreTest::sortsByText() {
  QFETCH(QStringList, texts);
  QFETCH(QStringList, sorted);
  RowStore store;
  for (const QString& text : texts) {
    store.setText(store.append(), 1, text);
  }
  QStringList up;
  for (const std::uint32_t row : inOrder(store, 1, false)) {
    up.append(texts.at(static_cast<qsizetype>(row)));
  }
  QCOMPARE(up, sorted);
}

void RowStoreTest::equalTextsKeepTheirOrder() {
  RowStore store;
  for (const char16_t* text : {u"b", u"A", u"B", u"a"}) {
    store.setText(store.append(), 0, text);
  }
  QCOMPARE(inOrder(store, 0, false), (std::vector<std::uint32_t>{1, 3, 0, 2}));
  QCOMPARE(inOrder(store, 0, true), (std::vector<std::uint32_t>{0, 2, 1, 3}));
}

QUARTELA_TEST_MAIN(RowStoreTest)
#include "RowStore_test.moc"
