#include "platform/files/TextEncoding.h"

#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

const QString kUpperControls =
    QStringLiteral("€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ");

QByteArray allBytes() {
  QByteArray bytes(256, '\0');
  for (int i = 0; i < 256; ++i) {
    bytes[i] = static_cast<char>(i);
  }
  return bytes;
}

}  // namespace

class TextEncodingTest : public QObject {
  Q_OBJECT

 private slots:
  void tellsUtf8FromOthers_data();
  void tellsUtf8FromOthers();
  void knowsEveryByteOfWindows1252();
  void losesNoByteOfWindows1252();
  void composesAccents();
  void lacksCharacters_data();
  void lacksCharacters();
  void losesNoCharacterOfUtf8();
  void readsBrokenUtf8();
};

void TextEncodingTest::tellsUtf8FromOthers_data() {
  QTest::addColumn<QByteArray>("bytes");
  QTest::addColumn<bool>("isUtf8");
  QTest::newRow("empty") << QByteArray() << true;
  QTest::newRow("ascii") << QByteArray("[Diretorio]\r\n") << true;
  QTest::newRow("NUL") << QByteArray("a\0b", 3) << true;
  QTest::newRow("two bytes") << QByteArray("Secret\xC3\xA1rio") << true;
  QTest::newRow("three bytes") << QByteArray("\xE2\x82\xAC") << true;
  QTest::newRow("four bytes") << QByteArray("\xF0\x9F\x98\x80") << true;
  QTest::newRow("mark") << QByteArray("\xEF\xBB\xBFx") << true;
  QTest::newRow("1252") << QByteArray("Secret\xE1rio") << false;
  QTest::newRow("cut at the end") << QByteArray("a\xC3") << false;
  QTest::newRow("cut in the middle") << QByteArray("\xE2\x82z") << false;
  QTest::newRow("lone continuation") << QByteArray("\x80") << false;
  QTest::newRow("overlong") << QByteArray("\xC0\xAF") << false;
  QTest::newRow("surrogate") << QByteArray("\xED\xA0\x80") << false;
  QTest::newRow("beyond the last") << QByteArray("\xF4\x90\x80\x80") << false;
  QTest::newRow("never a byte") << QByteArray("\xFF") << false;
  QTest::newRow("long, wrong last") << QByteArray(100'000, 'x') + QByteArray("\xE1") << false;
}

void TextEncodingTest::tellsUtf8FromOthers() {
  QFETCH(QByteArray, bytes);
  QFETCH(bool, isUtf8);
  QCOMPARE(detectEncoding(bytes) == TextEncoding::Utf8, isUtf8);
}

void TextEncodingTest::knowsEveryByteOfWindows1252() {
  const QByteArray bytes = allBytes();
  QCOMPARE(decodeText(bytes.mid(0x80, 0x20), TextEncoding::Windows1252), kUpperControls);
  const QString text = decodeText(bytes, TextEncoding::Windows1252);
  for (int i = 0; i < 256; ++i) {
    if (i < 0x80 || i > 0x9F) {
      QCOMPARE(int{text[i].unicode()}, i);
    }
  }
}

void TextEncodingTest::losesNoByteOfWindows1252() {
  const QByteArray bytes = allBytes();
  const QString text = decodeText(bytes, TextEncoding::Windows1252);
  const auto again = encodeText(text, TextEncoding::Windows1252);
  QVERIFY(again.has_value());
  QCOMPARE(*again, bytes);
}

void TextEncodingTest::composesAccents() {
  const QString decomposed = QStringLiteral("a\u0303o, c\u0327");
  QCOMPARE(*encodeText(decomposed, TextEncoding::Windows1252), QByteArray("\xE3o, \xE7"));
}

void TextEncodingTest::lacksCharacters_data() {
  QTest::addColumn<QString>("text");
  QTest::newRow("polish l") << QStringLiteral("Łódź");
  QTest::newRow("behind 255") << QStringLiteral("\u0100");
  QTest::newRow("byte of another character") << QStringLiteral("\u0080");
  QTest::newRow("chinese") << QStringLiteral("a漢");
  QTest::newRow("outside of the basic plane") << QStringLiteral("😀");
}

void TextEncodingTest::lacksCharacters() {
  QFETCH(QString, text);
  QVERIFY(!encodeText(text, TextEncoding::Windows1252).has_value());
  QCOMPARE(*encodeText(text, TextEncoding::Utf8), text.toUtf8());
}

void TextEncodingTest::losesNoCharacterOfUtf8() {
  const QString text = QStringLiteral("Prestação nº 5 — € 1.234,50 😀 a\u0303");
  const auto bytes = encodeText(text, TextEncoding::Utf8);
  QVERIFY(bytes.has_value());
  QCOMPARE(decodeText(*bytes, TextEncoding::Utf8), text);
}

void TextEncodingTest::readsBrokenUtf8() {
  QCOMPARE(decodeText(QByteArray("a\xE1z"), TextEncoding::Utf8), QStringLiteral("a\uFFFDz"));
}

QUARTELA_TEST_MAIN(TextEncodingTest)
#include "TextEncoding_test.moc"
