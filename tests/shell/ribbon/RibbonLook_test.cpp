// The ribbon as it comes out on the screen: that a pressed button can be read, and that the
// captions stand in the middle of their bands.
#include <cmath>

#include "tests/shell/ribbon/SampleRibbon.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::ribbon;

namespace {

constexpr int kFirst = 1;  // the first real button

double luminance(QRgb colour) {
  const auto channel = [](int value) {
    const double part = value / 255.0;
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * channel(qRed(colour)) + 0.7152 * channel(qGreen(colour)) +
         0.0722 * channel(qBlue(colour));
}

double contrast(double one, double other) {
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

// The dots of a piece in a picture of the whole ribbon.
QRect dotsOf(const Piece& piece, double scale) {
  const QRectF rect = piece.rect();
  return QRectF(rect.topLeft() / kTwipsPerPixel * scale, rect.size() / kTwipsPerPixel * scale)
      .toRect();
}

QImage shot(FaixaRibbon& ribbon, double scale) {
  QImage image(QSizeF(ribbon.width() * scale, ribbon.height() * scale).toSize(),
               QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(scale);
  ribbon.render(&image);
  return image;
}

QList<double> luminances(const QImage& image, const QRect& part) {
  QList<double> found;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) {
      found << luminance(image.pixel(x, y));
    }
  }
  std::sort(found.begin(), found.end());
  return found;
}

// The rows of `column` beside the text where the band lies: between the lines above and below it.
struct Rows {
  double first;
  double last;
  double middle() const { return (first + last) / 2; }
};

// From the band's upper line, the strongest step in the middle of the frame, to the frame's end.
Rows bandRows(const QImage& image, int x, int from, int to) {
  int line = from;
  double strongest = 0;
  for (int y = from; y < to - 8; ++y) {
    const double step = contrast(luminance(image.pixel(x, y)), luminance(image.pixel(x, y - 1)));
    if (step > strongest) {
      strongest = step;
      line = y;
    }
  }
  return {double(line), double(to)};
}

}  // namespace

class RibbonLookTest : public QObject {
  Q_OBJECT
 private slots:
  void aPressedButtonCanBeRead_data() { everyLook(); }
  void aPressedButtonCanBeRead();
  void captionsStandInTheMiddleOfTheirBand_data() { everyLook(); }
  void captionsStandInTheMiddleOfTheirBand();
  void aLitButtonEndsAboveTheBand_data() { everyLook(); }
  void aLitButtonEndsAboveTheBand();

 private:
  static void everyLook();
  static void prepare(FaixaRibbon& ribbon);
};

void RibbonLookTest::everyLook() {
  QTest::addColumn<int>("theme");
  QTest::addColumn<double>("scale");
  for (int theme = 0; theme < kThemes; ++theme) {
    for (const double scale : {1.0, 1.25, 1.5}) {
      QTest::addRow("%s at %g", themeColours(theme).group, scale) << theme << scale;
    }
  }
}

void RibbonLookTest::prepare(FaixaRibbon& ribbon) {
  QFETCH(int, theme);
  QPalette palette;
  palette.setColor(QPalette::WindowText, QColor(0x1D, 0x2A, 0x38));
  ribbon.setPalette(palette);
  ribbon.setTheme(static_cast<std::int16_t>(theme));
  ribbon.resize(1366, 116);
  test::fill(ribbon);
  ribbon.Refresh();
}

// What counts is what is seen: thin letters are painted paler than their colour.
void RibbonLookTest::aPressedButtonCanBeRead() {
  QFETCH(double, scale);
  FaixaRibbon ribbon;
  prepare(ribbon);
  test::moveTo(ribbon, Element::ButMouse, kFirst);
  test::pressAt(ribbon, Element::ButMouse, kFirst);
  const QRect caption = dotsOf(ribbon.elements().at(Element::Button_Caption, kFirst), scale);
  const QList<double> seen = luminances(shot(ribbon, scale), caption);
  const double ink = seen.at(seen.size() / 50);
  const double ground = seen.at(seen.size() / 2);
  QVERIFY2(contrast(ink, ground) >= 4.5, qPrintable(QString::number(contrast(ink, ground))));
}

void RibbonLookTest::captionsStandInTheMiddleOfTheirBand() {
  QFETCH(double, scale);
  FaixaRibbon ribbon;
  prepare(ribbon);
  const QImage image = shot(ribbon, scale);
  const QRect frame = dotsOf(ribbon.elements().at(Element::Cat_Center_off, 0), scale);
  const QRect caption = dotsOf(ribbon.elements().at(Element::Cat_Caption, 0), scale);
  // The frame's last row of dots stays free, and the one above is its border.
  const int border = frame.bottom() - int(std::floor(scale + 0.5)) - int(std::floor(scale)) + 1;
  const Rows band = bandRows(image, frame.left() + 2, frame.top() + frame.height() / 2, border);
  QVERIFY2(std::abs(caption.top() + caption.height() / 2.0 - band.middle()) <= 1.0 * scale,
           qPrintable(QStringLiteral("text %1 to %2, band %3 to %4")
                          .arg(caption.top())
                          .arg(caption.bottom())
                          .arg(band.first)
                          .arg(band.last)));
}

void RibbonLookTest::aLitButtonEndsAboveTheBand() {
  QFETCH(double, scale);
  FaixaRibbon ribbon;
  prepare(ribbon);
  const QImage before = shot(ribbon, scale);
  const Piece& button = ribbon.elements().at(Element::ButMouse, kFirst);
  const QRect frame = dotsOf(ribbon.elements().at(Element::Cat_Center_off, 0), scale);
  const int x = dotsOf(button, scale).center().x();
  const Rows band =
      bandRows(before, frame.left() + 2, frame.top() + frame.height() / 2, frame.bottom() - 2);
  test::moveTo(ribbon, Element::CatMouse, 0);
  const QImage lit = shot(ribbon, scale);
  test::moveTo(ribbon, Element::ButMouse, kFirst);
  const QImage over = shot(ribbon, scale);
  for (int y = int(band.first); y < frame.bottom(); ++y) {
    QCOMPARE(over.pixel(x, y), lit.pixel(x, y));
  }
  QVERIFY(over != lit);
}

QUARTELA_TEST_MAIN(RibbonLookTest)
#include "RibbonLook_test.moc"
