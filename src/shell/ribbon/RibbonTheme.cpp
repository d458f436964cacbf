#include "shell/ribbon/RibbonTheme.h"

#include <QFile>

#include "platform/values/RuntimeError.h"

// The resources lie in a static library: without this call the linker leaves them out.
static void initResources() {
  Q_INIT_RESOURCE(ribbon_art);
}

namespace quartela::ribbon {
namespace {

constexpr std::array<ThemeColours, kThemes> kColours{{
    {"BLACK", 0xFFFFFF, 0xFFFFFF, 0x000000, kSystemWindowText, 0x464646, 0xFFFFFF},
    {"BLUE", 0xB86A3E, 0x8B4215, 0x8B4215, 0x8B4215, 0xDAB08E, 0x8B4215},
    {"SILVER", 0x6A625C, 0x6A625C, 0x6A625C, 0x6A625C, 0xDDD4D0, 0x6A625C},
}};

constexpr std::array kPieces{
    NumberedPiece{101, Element::Barra2},
    NumberedPiece{102, Element::BarraLeft},
    NumberedPiece{103, Element::BarraRight},
    NumberedPiece{118, Element::Cat_Dlg},
    NumberedPiece{119, Element::Cat_Dlg_on},
    NumberedPiece{120, Element::Cat_Dlg_over},
    NumberedPiece{121, Element::Cat_Left_off},
    NumberedPiece{122, Element::Cat_Center_off},
    NumberedPiece{123, Element::Cat_Right_off},
    NumberedPiece{124, Element::Cat_Left_on},
    NumberedPiece{125, Element::Cat_Center_on},
    NumberedPiece{126, Element::Cat_Right_on},
    NumberedPiece{127, Element::Tab_left},
    NumberedPiece{128, Element::Tab_center},
    NumberedPiece{129, Element::Tab_right},
    NumberedPiece{130, Element::Tab_left_over},
    NumberedPiece{131, Element::Tab_center_over},
    NumberedPiece{132, Element::Tab_right_over},
    NumberedPiece{133, Element::Glip_off},
    NumberedPiece{134, Element::Glip_on},
    NumberedPiece{135, Element::Button_left_over},
    NumberedPiece{136, Element::Button_center_over},
    NumberedPiece{137, Element::Button_right_over},
    NumberedPiece{138, Element::Button_left},
    NumberedPiece{139, Element::Button_center},
    NumberedPiece{140, Element::Button_right},
};

// Densities that the pictures are drawn for, in percent.
constexpr std::array kPercents{100, 125, 150, 175, 200, 300};

int percentFor(double ratio) {
  for (const int percent : kPercents) {
    if (percent >= ratio * 100 - 0.5) {
      return percent;
    }
  }
  return kPercents.back();
}

QString resourcePath(int theme, int number, int percent) {
  return QStringLiteral(":/quartela/ribbon/%1/%2/%3.png")
      .arg(QString::fromLatin1(themeColours(theme).group).toLower())
      .arg(percent)
      .arg(number);
}

// Resources are read where they lie, without a temporary file on the way: so no failure to name
// one can arise, and cLoadResPicture is the only source of errors here.
QPixmap loadPicture(const QString& path, const QString& name) {
  const QString source = QStringLiteral("Quartela.cLoadResPicture");
  if (!QFile::exists(path)) {
    throw RuntimeError(ErrorNumber::FileNotFound, name, source);
  }
  QPixmap pixmap(path);
  if (pixmap.isNull()) {
    throw RuntimeError(ErrorNumber::InvalidPicture, name, source);
  }
  return pixmap;
}

}  // namespace

QColor toColor(ColourValue value, const QPalette& palette) {
  if (value == kSystemWindowText) {
    return palette.color(QPalette::WindowText);
  }
  return QColor(static_cast<int>(value & 0xFF), static_cast<int>((value >> 8) & 0xFF),
                static_cast<int>((value >> 16) & 0xFF));
}

ColourValue toColourValue(const QColor& colour) {
  return static_cast<ColourValue>(colour.red() | (colour.green() << 8) | (colour.blue() << 16));
}

const ThemeColours& themeColours(int theme) {
  return kColours.at(static_cast<std::size_t>(theme));
}

std::span<const NumberedPiece> numberedPieces() {
  return kPieces;
}

const DensePicture& ThemePictures::picture(int theme, int number, double ratio) {
  const int percent = percentFor(ratio);
  const int key = (theme * 1000 + number) * 1000 + percent;
  auto found = pictures_.find(key);
  if (found == pictures_.end()) {
    initResources();
    const QString name =
        QStringLiteral("%1 %2").arg(QString::fromLatin1(themeColours(theme).group)).arg(number);
    const QPixmap pixmap = loadPicture(resourcePath(theme, number, percent), name);
    found = pictures_.insert(key, {pixmap, percent / 100.0});
  }
  return *found;
}

Skin makeSkin(int theme) {
  const ThemeColours& colours = themeColours(theme);
  const QPalette usual;
  QPalette palette(toColor(colours.back, usual));
  palette.setColor(QPalette::WindowText, toColor(colours.fore, usual));
  return {QStringLiteral("Skin%1").arg(theme + 1), palette};
}

}  // namespace quartela::ribbon
