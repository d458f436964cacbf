// The themes' colours and pictures: sizes, densities, and that captions can be read on them.
#include "shell/ribbon/RibbonTheme.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <cmath>

#include "platform/values/RuntimeError.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::ribbon;

namespace {

struct Size {
  int number;
  int width;
  int height;
};

constexpr std::array kSizes{
    Size{101, 11, 142}, Size{102, 7, 142}, Size{103, 7, 142}, Size{118, 15, 14}, Size{119, 15, 14},
    Size{120, 15, 14},  Size{121, 4, 89},  Size{122, 5, 89},  Size{123, 5, 89},  Size{124, 4, 89},
    Size{125, 4, 89},   Size{126, 5, 89},  Size{127, 10, 24}, Size{128, 18, 24}, Size{129, 10, 24},
    Size{130, 10, 24},  Size{131, 37, 24}, Size{132, 10, 24}, Size{133, 5, 4},   Size{134, 5, 4},
    Size{135, 3, 66},   Size{136, 49, 66}, Size{137, 3, 66},  Size{138, 3, 66},  Size{139, 49, 66},
    Size{140, 3, 66},
};
constexpr QSize kBackground{499, 157};

double luminance(QRgb colour) {
  const auto channel = [](int value) {
    const double part = value / 255.0;
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * channel(qRed(colour)) + 0.7152 * channel(qGreen(colour)) +
         0.0722 * channel(qBlue(colour));
}

double contrast(QRgb one, QRgb other) {
  const double a = luminance(one);
  const double b = luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

bool isDrawn(const QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qAlpha(image.pixel(x, y)) == 255) {
        return true;
      }
    }
  }
  return false;
}

// Rows that a caption covers, and what lies under it.
struct Ground {
  QString caption;
  ColourValue colour;
  QList<int> pictures;  // one above the other, on the strip
  int stripRow;         // the row of the strip that the pictures begin at
  int firstRow;         // rows of the pictures that the text covers
  int lastRow;
};

QList<Ground> grounds(const ThemeColours& colours) {
  return {
      {"tab", colours.inactiveTab, {}, 26, 4, 20},
      {"tab under the mouse", colours.inactiveTab, {131}, 26, 4, 20},
      {"active tab", colours.activeTab, {128}, 26, 4, 20},
      {"category", colours.categoryCaption, {122}, 50, 71, 85},
      {"category under the mouse", colours.categoryCaption, {122, 125}, 50, 71, 85},
      {"button", colours.buttonCaption, {122}, 50, 33, 60},
      {"button in a lit category", colours.buttonCaption, {122, 125}, 50, 33, 60},
  };
}

}  // namespace

class RibbonThemeTest : public QObject {
  Q_OBJECT
 private slots:
  void coloursOfTheThemes();
  void colourValuesHaveRedLow();
  void everyPieceHasItsNumber();
  void picturesHaveTheirSizes_data();
  void picturesHaveTheirSizes();
  void backgrounds();
  void betweenDensitiesTheFinerVersionServes();
  void missingPicture_data();
  void missingPicture();
  void themesDiffer();
  void captionsCanBeRead_data();
  void captionsCanBeRead();
  void buttonCaptionsCanBeReadOnTheButtonsLooks_data() { captionsCanBeRead_data(); }
  void buttonCaptionsCanBeReadOnTheButtonsLooks();
  void centresAreEvenAcross_data() { captionsCanBeRead_data(); }
  void centresAreEvenAcross();

 private:
  QImage image(int theme, int number) {
    return pictures_.picture(theme, number, 1)
        .pixmap.toImage()
        .convertToFormat(QImage::Format_ARGB32);
  }
  QImage ground(int theme, const QList<int>& pieces, int stripRow);
  ThemePictures pictures_;
};

void RibbonThemeTest::coloursOfTheThemes() {
  QCOMPARE(QString(themeColours(kBlack).group), QString("BLACK"));
  QCOMPARE(QString(themeColours(kBlue).group), QString("BLUE"));
  QCOMPARE(QString(themeColours(kSilver).group), QString("SILVER"));
  QPalette palette;
  palette.setColor(QPalette::WindowText, QColor(1, 2, 3));
  QCOMPARE(toColor(themeColours(kBlack).buttonCaption, palette), QColor(1, 2, 3));
  QCOMPARE(toColor(themeColours(kBlue).back, palette), QColor(0x8E, 0xB0, 0xDA));
  QCOMPARE(toColor(themeColours(kBlue).categoryCaption, palette), QColor(0x3E, 0x6A, 0xB8));
  QCOMPARE(toColor(themeColours(kBlue).activeTab, palette), QColor(0x15, 0x42, 0x8B));
  QCOMPARE(toColor(themeColours(kSilver).back, palette), QColor(0xD0, 0xD4, 0xDD));
  QCOMPARE(toColor(themeColours(kSilver).fore, palette), QColor(0x5C, 0x62, 0x6A));
  QCOMPARE(toColor(themeColours(kBlack).activeTab, palette), QColor(Qt::black));
  QCOMPARE(toColor(themeColours(kBlack).inactiveTab, palette), QColor(Qt::white));
}

void RibbonThemeTest::colourValuesHaveRedLow() {
  QCOMPARE(toColourValue(QColor(0x11, 0x22, 0x33)), 0x332211U);
  QCOMPARE(toColor(0x332211U, QPalette()), QColor(0x11, 0x22, 0x33));
}

void RibbonThemeTest::everyPieceHasItsNumber() {
  QCOMPARE(numberedPieces().size(), kSizes.size());
  for (std::size_t n = 0; n < kSizes.size(); ++n) {
    QCOMPARE(numberedPieces()[n].number, kSizes[n].number);
  }
}

void RibbonThemeTest::picturesHaveTheirSizes_data() {
  QTest::addColumn<int>("theme");
  QTest::addColumn<double>("ratio");
  for (int theme = 0; theme < kThemes; ++theme) {
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
      QTest::addRow("%s at %g", themeColours(theme).group, ratio) << theme << ratio;
    }
  }
}

void RibbonThemeTest::picturesHaveTheirSizes() {
  QFETCH(int, theme);
  QFETCH(double, ratio);
  for (const Size& size : kSizes) {
    const DensePicture& picture = pictures_.picture(theme, size.number, ratio);
    QCOMPARE(picture.scale, ratio);
    QCOMPARE(picture.pixmap.size(), QSize(static_cast<int>(size.width * ratio + 0.5),
                                          static_cast<int>(size.height * ratio + 0.5)));
    QVERIFY2(isDrawn(picture.pixmap.toImage()), qPrintable(QString::number(size.number)));
  }
}

void RibbonThemeTest::backgrounds() {
  for (const int theme : {int{kBlack}, int{kBlue}}) {
    QCOMPARE(pictures_.picture(theme, kBackgroundPicture, 1).pixmap.size(), kBackground);
    QCOMPARE(pictures_.picture(theme, kBackgroundPicture, 2).pixmap.size(), kBackground * 2);
    // It ends in the colour that the window goes on with.
    const QColor last = image(theme, kBackgroundPicture).pixelColor(498, 156);
    QCOMPARE(last, toColor(themeColours(theme).back, QPalette()));
  }
  const QImage silver = image(kSilver, kBackgroundPicture);
  QCOMPARE(silver.size(), QSize(1, 1));
  QCOMPARE(pictures_.picture(kSilver, kBackgroundPicture, 2).pixmap.size(), QSize(1, 1));
  QCOMPARE(silver.pixelColor(0, 0), toColor(themeColours(kSilver).back, QPalette()));
}

void RibbonThemeTest::betweenDensitiesTheFinerVersionServes() {
  QCOMPARE(pictures_.picture(kBlue, 101, 1.1).scale, 1.25);
  QCOMPARE(pictures_.picture(kBlue, 101, 1.6).scale, 1.75);
  QCOMPARE(pictures_.picture(kBlue, 101, 2.5).scale, 3.0);
  QCOMPARE(pictures_.picture(kBlue, 101, 4).scale, 3.0);
}

void RibbonThemeTest::missingPicture_data() {
  QTest::addColumn<int>("number");
  QTest::newRow("without a piece") << 104;
  QTest::newRow("the last without a piece") << 117;
  QTest::newRow("below all") << 100;
  QTest::newRow("above all") << 142;
}

void RibbonThemeTest::missingPicture() {
  QFETCH(int, number);
  for (int theme = 0; theme < kThemes; ++theme) {
    try {
      pictures_.picture(theme, number, 1);
      QFAIL("no error");
    } catch (const RuntimeError& error) {
      QCOMPARE(error.number(), 53);
      QCOMPARE(error.source(), QString("Quartela.cLoadResPicture"));
    }
  }
}

void RibbonThemeTest::themesDiffer() {
  for (const int number : {101, 122, 125, 128, 131, 136, 139, 119}) {
    QVERIFY(image(kBlack, number) != image(kBlue, number));
    QVERIFY(image(kBlack, number) != image(kSilver, number));
    QVERIFY(image(kBlue, number) != image(kSilver, number));
  }
}

// The strip with pieces laid over it, one dot wide.
QImage RibbonThemeTest::ground(int theme, const QList<int>& pieces, int stripRow) {
  QImage seen = image(theme, 101).copy(2, stripRow, 1, 142 - stripRow);
  QPainter painter(&seen);
  for (const int number : pieces) {
    painter.drawImage(0, 0, image(theme, number).copy(2, 0, 1, 89));
  }
  painter.end();
  return seen;
}

void RibbonThemeTest::captionsCanBeRead_data() {
  QTest::addColumn<int>("theme");
  for (int theme = 0; theme < kThemes; ++theme) {
    QTest::newRow(themeColours(theme).group) << theme;
  }
}

void RibbonThemeTest::captionsCanBeRead() {
  QFETCH(int, theme);
  QPalette palette;
  palette.setColor(QPalette::WindowText, Qt::black);
  for (const Ground& place : grounds(themeColours(theme))) {
    const QImage seen = ground(theme, place.pictures, place.stripRow);
    const QRgb text = toColor(place.colour, palette).rgb();
    for (int y = place.firstRow; y <= place.lastRow; ++y) {
      const double ratio = contrast(text, seen.pixel(0, y));
      QVERIFY2(ratio >= 4.5,
               qPrintable(QString("%1, row %2: %3").arg(place.caption).arg(y).arg(ratio)));
    }
  }
}

void RibbonThemeTest::buttonCaptionsCanBeReadOnTheButtonsLooks() {
  QFETCH(int, theme);
  const QRgb text = toColor(themeColours(theme).buttonCaption, QPalette(Qt::white)).rgb();
  for (const int number : {136, 139}) {
    const QImage seen = image(theme, number);
    for (int y = 29; y < 60; ++y) {
      const double ratio = contrast(text, seen.pixel(20, y));
      QVERIFY2(ratio >= 4.5, qPrintable(QString("%1, row %2: %3").arg(number).arg(y).arg(ratio)));
    }
  }
}

// What is stretched across must be the same in every column, or it would show bands.
void RibbonThemeTest::centresAreEvenAcross() {
  QFETCH(int, theme);
  for (const int number : {101, 122, 125, 128, 131, 136, 139}) {
    for (const double ratio : {1.0, 1.25, 2.0}) {
      const QImage seen = pictures_.picture(theme, number, ratio).pixmap.toImage();
      for (int x = 1; x < seen.width(); ++x) {
        QVERIFY2(seen.copy(x, 0, 1, seen.height()) == seen.copy(0, 0, 1, seen.height()),
                 qPrintable(QString::number(number)));
      }
    }
  }
}

QUARTELA_TEST_MAIN(RibbonThemeTest)
#include "RibbonTheme_test.moc"
