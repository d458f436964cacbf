#include "platform/reporting/TextFit.h"

#include <QFontMetricsF>
#include <QTest>
#include <cmath>

#include "tests/support/TestMain.h"

using namespace quartela::reporting;

namespace {

const FontSpec kMono{QStringLiteral("Liberation Mono"), 10, false, false, false};

int lineHeight(int lines) {
  return heightOfLines(Face::of(kMono), lines);
}

// The width of so many letters of the fixed pitch, rounded up.
int letters(int count) {
  return static_cast<int>(std::ceil(Face::of(kMono).width(QString(count, QLatin1Char('0')))));
}

FittedText fit(const QString& text, int width, int height, bool wrap, bool grow = false) {
  return fitText(Face::of(kMono), text,
                 {.width = width, .height = height, .wrap = wrap, .grow = grow});
}

}  // namespace

class TextFitTest : public QObject {
  Q_OBJECT

 private slots:
  void measuresAsTheToolkit_data();
  void measuresAsTheToolkit();
  void measuresAreTwips();
  void familiesShareABaseLine();
  void fits_data();
  void fits();
  void growsWithItsText();
  void everyLineFits_data();
  void everyLineFits();
  void partsBetweenLines();
};

void TextFitTest::measuresAsTheToolkit_data() {
  QTest::addColumn<QString>("family");
  QTest::addColumn<bool>("bold");
  for (const char* family :
       {"Liberation Mono", "Liberation Sans", "Liberation Serif", "DejaVu Sans"}) {
    QTest::addRow("%s", family) << QString::fromLatin1(family) << false;
    QTest::addRow("%s bold", family) << QString::fromLatin1(family) << true;
  }
}

void TextFitTest::measuresAsTheToolkit() {
  QFETCH(QString, family);
  QFETCH(bool, bold);
  const Face& face = Face::of({family, 9, bold, false, false});
  const QFontMetricsF metrics(face.font());
  for (const char* text : {"", "AVATAR To", "PRESTAÇÃO DE CONTAS DE ADIANTAMENTO",
                           "1.234.567,89 (-12,00)", "oficina, filho, flor, affluente",
                           "Ação nº 3 – “São João” 5 €", "日本 ﬁ", "e\u0301 a\u0303"}) {
    const QString utf16 = QString::fromUtf8(text);
    const double expected = metrics.horizontalAdvance(utf16);
    QVERIFY2(std::abs(face.width(utf16) - expected) < 1.0,
             qPrintable(
                 QStringLiteral("%1: %2, not %3").arg(utf16).arg(face.width(utf16)).arg(expected)));
  }
}

// Ten points of a fixed pitch are 120 twips a letter, whatever the screen.
void TextFitTest::measuresAreTwips() {
  const Face& face = Face::of(kMono);
  QVERIFY(std::abs(face.width(QStringLiteral("0123456789")) - 1200) < 2);
  QVERIFY(face.lineHeight() > 200 && face.lineHeight() < 240);
  QVERIFY(&face == &Face::of(kMono));
  QVERIFY(&face != &Face::of({QStringLiteral("Liberation Mono"), 10, true, false, false}));
}

// Labels and values of one size stand beside each other in different families.
void TextFitTest::familiesShareABaseLine() {
  const auto fromBottom = [](const char* family) {
    const Face& face = Face::of({QString::fromLatin1(family), 9, false, false, false});
    return face.lineHeight() - face.base();
  };
  const double mono = fromBottom("Liberation Mono");
  for (const char* const family : {"Liberation Sans", "Liberation Serif"}) {
    QVERIFY2(std::abs(fromBottom(family) - mono) < 3, family);
  }
  // Letters that reach below the line have their place in it.
  const Face& face = Face::of(kMono);
  const double below =
      QFontMetricsF(face.font()).tightBoundingRect(QStringLiteral("gpqyç")).bottom();
  QVERIFY(below > 0 && below <= face.lineHeight() - face.base());
}

void TextFitTest::fits_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("columns");
  QTest::addColumn<int>("rows");
  QTest::addColumn<bool>("wrap");
  QTest::addColumn<QString>("fitted");
  const auto row = [](const char* name, const char* text, int columns, int rows, bool wrap,
                      const char* fitted) {
    QTest::newRow(name) << QString::fromUtf8(text) << columns << rows << wrap
                        << QString::fromUtf8(fitted);
  };
  row("empty", "", 10, 1, true, "");
  row("just fits", "0123456789", 10, 1, false, "0123456789");
  row("cut", "0123456789A", 10, 1, false, "012345678…");
  row("cut without a blank before the sign", "01234567 9ABC", 10, 1, false, "01234567…");
  row("own lines", "um\ndois", 10, 2, false, "um\ndois");
  row("own lines of the other kind", "um\r\ndois", 10, 2, false, "um\ndois");
  row("own lines cut", "um\ndois\ntres", 10, 2, false, "um\ndois…");
  row("empty line between", "um\n\ntres", 10, 3, false, "um\n\ntres");
  row("tab", "um\tdois", 10, 1, false, "um dois");
  row("wraps", "um dois tres quatro", 10, 3, true, "um dois\vtres\vquatro");
  row("wraps at a full line", "0123456789 ABC", 10, 2, true, "0123456789\vABC");
  row("wraps inside a long word", "0123456789ABCDE F", 10, 3, true, "0123456789\fABCDE F");
  row("wrapped and cut", "um dois tres quatro cinco", 10, 2, true, "um dois\vtres…");
  row("cut in a full last line", "um dois 0123456789 ABC", 10, 2, true, "um dois\v012345678…");
  row("one line at the least", "um dois", 10, 0, true, "um dois");
  row("no room for a letter", "abc", 0, 1, false, "…");
}

void TextFitTest::fits() {
  QFETCH(QString, text);
  QFETCH(int, columns);
  QFETCH(int, rows);
  QFETCH(bool, wrap);
  QFETCH(QString, fitted);
  const FittedText result = fit(text, letters(columns), lineHeight(rows), wrap);
  QCOMPARE(result.text, fitted);
  const auto ends = std::count_if(fitted.begin(), fitted.end(), endsLine);
  QCOMPARE(result.lines, fitted.isEmpty() ? 0 : static_cast<int>(ends) + 1);
  QCOMPARE(result.cut, fitted.endsWith(kCutSign));
}

void TextFitTest::growsWithItsText() {
  const QString text = QStringLiteral("palavra ").repeated(50).trimmed();
  const FittedText result = fit(text, letters(16), lineHeight(1), true, true);
  QCOMPARE(result.lines, 25);
  QCOMPARE(readable(result.text), text);
}

void TextFitTest::everyLineFits_data() {
  QTest::addColumn<int>("width");
  for (const int width : {1, 100, 137, 1000, 2345, 9000}) {
    QTest::addRow("%d", width) << width;
  }
}

void TextFitTest::everyLineFits() {
  QFETCH(int, width);
  const Face& face = Face::of({QStringLiteral("Liberation Sans"), 9, false, false, false});
  const QString text = QStringLiteral(
      "Aquisição de materiais de consumo, peças e serviços 😀 para a oficina;\n"
      "umapalavramuitolongaquenaocabeemlinhanenhumadestapagina fim");
  const FittedText result =
      fitText(face, text, {.width = width, .height = 0, .wrap = true, .grow = true});
  QCOMPARE(readable(result.text), text);
  QString lines = result.text;
  lines.replace(kSoftBreak, kLineEnd).replace(kWordBreak, kLineEnd);
  for (const QString& line : lines.split(kLineEnd)) {
    // A single letter wider than the box stands alone.
    QVERIFY2(face.width(line) <= width + 1 || line.toUcs4().size() == 1, qPrintable(line));
  }
}

void TextFitTest::partsBetweenLines() {
  const FittedText text{QStringLiteral("um\vdois\ntres\fquatro"), 4};
  const PartedText parted = partText(text, 2);
  QCOMPARE(parted.head.text, QStringLiteral("um\vdois"));
  QCOMPARE(parted.head.lines, 2);
  QCOMPARE(parted.tail.text, QStringLiteral("tres\fquatro"));
  QCOMPARE(parted.tail.lines, 2);
  QCOMPARE(partText(text, 4).head.text, text.text);
  QCOMPARE(partText(text, 4).tail.lines, 0);
  QCOMPARE(partText(text, 0).tail.text, text.text);
}

QUARTELA_TEST_MAIN(TextFitTest)
#include "TextFit_test.moc"
