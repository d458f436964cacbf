// The three themes of the ribbon: their colours and their pictures.
#pragma once

#include <QColor>
#include <QHash>
#include <QPalette>
#include <QPixmap>
#include <QString>
#include <array>
#include <cstdint>
#include <span>

#include "shell/ribbon/Elements.h"

namespace quartela::ribbon {

// A colour as a 32-bit value, red in the low byte; or a system colour.
using ColourValue = std::uint32_t;
inline constexpr ColourValue kSystemWindowText = 0x80000008;

QColor toColor(ColourValue value, const QPalette& palette);
ColourValue toColourValue(const QColor& colour);

struct ThemeColours {
  const char* group;  // name of the theme's group of pictures
  ColourValue categoryCaption;
  ColourValue inactiveTab;
  ColourValue activeTab;
  ColourValue buttonCaption;
  ColourValue back;
  ColourValue fore;
};

inline constexpr std::int16_t kThemes = 3;
inline constexpr std::int16_t kBlack = 0;
inline constexpr std::int16_t kBlue = 1;
inline constexpr std::int16_t kSilver = 2;

// `theme` is 0, 1 or 2.
const ThemeColours& themeColours(int theme);

// The number of a piece in every group of pictures.
struct NumberedPiece {
  int number;
  Element kind;
};
// In the order in which a theme is applied.
std::span<const NumberedPiece> numberedPieces();
inline constexpr int kBackgroundPicture = 141;

// A picture in the version for one density of screen.
struct DensePicture {
  QPixmap pixmap;    // in dots, its own device pixel ratio left at 1
  double scale = 1;  // dots per logical pixel that it was drawn for
};

// The pictures of all groups, read when first asked for.
class ThemePictures {
 public:
  // Picture `number` of the theme's group, in the version for a screen of `ratio` dots per logical
  // pixel or the next finer one. Error 53 when the group has no such picture, 481 when it cannot be
  // read, both with the source "Quartela.cLoadResPicture".
  const DensePicture& picture(int theme, int number, double ratio);

 private:
  QHash<int, DensePicture> pictures_;
};

// The look that a theme gives to windows as a whole. Nothing in the program applies one.
struct Skin {
  QString name;
  QPalette palette;
};
Skin makeSkin(int theme);

}  // namespace quartela::ribbon
