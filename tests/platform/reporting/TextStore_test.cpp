// Texts kept in little room: one by one, and in rows that stand together.
#include "platform/reporting/TextStore.h"

#include <QTest>
#include <array>

#include "tests/support/TestMain.h"

using quartela::reporting::TextStore;
using RowText = TextStore::RowText;

class TextStoreTest : public QObject {
  Q_OBJECT

 private slots:
  void keepsTextsOfEveryLength_data() {
    QTest::addColumn<int>("length");
    for (const int length : {0, 1, 126, 253, 254, 255, 256, 70'000, 300'000}) {
      QTest::addRow("%d", length) << length;
    }
  }
  void keepsTextsOfEveryLength() {
    QFETCH(int, length);
    TextStore store;
    const QString text(length, QLatin1Char('x'));
    const std::uint32_t place = store.add(text);
    const std::uint32_t other = store.add(QStringLiteral("ç"));
    QCOMPARE(store.at(place), text);
    QCOMPARE(store.at(other), QStringLiteral("ç"));
  }

  void aRowIsFoundByItsFirstText() {
    TextStore store;
    const QByteArray longText(1000, 'l');
    const std::array row{RowText{"um"}, RowText{""}, RowText{longText}, RowText{"três"}};
    const std::vector<std::uint32_t> places = store.addRow(row);
    QCOMPARE(places.size(), std::size_t{4});
    std::uint32_t place = places.front();
    for (std::size_t at = 0; at < row.size(); ++at) {
      QCOMPARE(place, places[at]);
      QCOMPARE(store.at(place), QString::fromUtf8(row[at].bytes));
      place = store.next(place);
    }
  }

  void aRepeatedTextTakesItsPlaceOnly() {
    TextStore store;
    const std::uint32_t first = store.add(QStringLiteral("a mesma descrição"));
    const std::size_t before = store.bytes();
    const std::array row{RowText{"a mesma descrição", first}, RowText{"outra"}};
    const std::vector<std::uint32_t> places = store.addRow(row);
    QCOMPARE(store.bytes() - before, std::size_t{5 + 6});
    QCOMPARE(store.at(places[0]), QStringLiteral("a mesma descrição"));
    QCOMPARE(store.at(places[1]), QStringLiteral("outra"));
    QCOMPARE(store.next(places[0]), places[1]);
  }

  void aShortTextIsSoonerWrittenAnew() {
    TextStore store;
    const std::uint32_t first = store.add(QStringLiteral("1"));
    const std::size_t before = store.bytes();
    const std::array row{RowText{"1", first}};
    store.addRow(row);
    QCOMPARE(store.bytes() - before, std::size_t{2});
  }

  // Blocks of the store are full in between.
  void rowsNeverPart() {
    TextStore store;
    const QByteArray text(5'000, 'x');
    const std::array row{RowText{text}, RowText{"fim"}};
    for (int count = 0; count < 500; ++count) {
      const std::vector<std::uint32_t> places = store.addRow(row);
      QCOMPARE(store.next(places[0]), places[1]);
      QCOMPARE(store.at(places[1]), QStringLiteral("fim"));
    }
  }
};

QUARTELA_TEST_MAIN(TextStoreTest)
#include "TextStore_test.moc"
