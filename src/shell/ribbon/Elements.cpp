#include "shell/ribbon/Elements.h"

#include <algorithm>

namespace quartela::ribbon {
namespace {

struct Design {
  Element kind;
  int left;
  int top;
  int width;
  int height;
  bool stretches;
};

using enum Element;

// The ends of the background do not stretch: they have their picture's width.
constexpr std::array<Design, kElementKinds> kDesign{{
    {Barra2, 0, 0, 405, 2130, true},
    {BarraLeft, 0, 0, 165, 2130, false},
    {BarraRight, 480, 0, 165, 2130, false},
    {Tab_left, 1680, 120, 150, 360, false},
    {Tab_center, 1920, 120, 270, 360, true},
    {Tab_right, 2280, 120, 150, 360, false},
    {Tab_left_over, 1680, 600, 150, 360, false},
    {Tab_center_over, 1920, 600, 270, 360, true},
    {Tab_right_over, 2280, 600, 150, 360, false},
    {Tab_caption, 840, 180, 690, 240, false},
    {TabMouse, 2520, 120, 735, 360, false},
    {Cat_Left_off, 5040, 150, 60, 1335, false},
    {Cat_Center_off, 5160, 150, 75, 1335, true},
    {Cat_Right_off, 5400, 150, 75, 1335, false},
    {Cat_Left_on, 5760, 150, 60, 1335, false},
    {Cat_Center_on, 5880, 150, 60, 1335, true},
    {Cat_Right_on, 6120, 150, 75, 1335, false},
    {Cat_Caption, 5040, 1200, 630, 240, false},
    {CatMouse, 4560, 150, 375, 1350, false},
    {Cat_Dlg, 3600, 1320, 225, 210, false},
    {Cat_Dlg_on, 3840, 1320, 225, 210, false},
    {Cat_Dlg_over, 4080, 1320, 225, 210, false},
    {Button_left, 960, 1800, 45, 990, false},
    {Button_center, 1080, 1800, 735, 990, true},
    {Button_right, 1920, 1800, 45, 990, false},
    {Button_left_over, 2520, 1800, 45, 990, false},
    {Button_center_over, 2640, 1800, 735, 990, true},
    {Button_right_over, 3480, 1800, 45, 990, false},
    {Button_Icon, 1320, 1920, 615, 495, false},
    {Button_Caption, 1440, 2520, 510, 180, false},
    {Glip_off, 2160, 1560, 75, 60, false},
    {Glip_on, 2280, 1560, 75, 60, false},
    {ButMouse, 2040, 1800, 375, 990, false},
}};

constexpr bool inOrderOfKinds() {
  for (std::size_t n = 0; n < kDesign.size(); ++n) {
    if (static_cast<std::size_t>(kDesign[n].kind) != n) {
      return false;
    }
  }
  return true;
}
static_assert(inOrderOfKinds());

}  // namespace

bool stretches(Element kind) {
  return kDesign[static_cast<std::size_t>(kind)].stretches;
}

ElementTable::ElementTable() {
  for (const Design& design : kDesign) {
    Piece piece;
    piece.left = design.left;
    piece.top = design.top;
    piece.width = design.width;
    piece.height = design.height;
    piece.visible = design.kind <= BarraRight;
    piece.stacking = ++front_;
    row(design.kind).push_back(piece);
  }
}

void ElementTable::create(Element kind, int index) {
  Q_ASSERT(index == count(kind));
  Piece piece = at(kind, 0);
  piece.visible = false;
  piece.stacking = ++front_;
  row(kind).push_back(std::move(piece));
  stackingKnown_ = false;
}

void ElementTable::trim(Element kind) {
  row(kind).resize(1);
  stackingKnown_ = false;
}

void ElementTable::bringToFront(Element kind, int index) {
  at(kind, index).stacking = ++front_;
  stackingKnown_ = false;
}

void ElementTable::setVisible(Element kind, int index, bool visible) {
  Piece& piece = at(kind, index);
  if (piece.visible == visible) {
    return;
  }
  piece.visible = visible;
  markChanged(piece);
}

void ElementTable::setVisible(const Look& look, int index, bool visible) {
  for (const Element kind : look) {
    setVisible(kind, index, visible);
  }
}

void ElementTable::setColour(Element kind, int index, std::uint32_t colour) {
  Piece& piece = at(kind, index);
  if (piece.colour == colour) {
    return;
  }
  piece.colour = colour;
  if (piece.visible) {
    markChanged(piece);
  }
}

void ElementTable::setPicture(Element kind, int theme, int number, QSize pixels) {
  Piece& piece = at(kind, 0);
  piece.theme = theme;
  piece.picture = number;
  if (!stretches(kind)) {
    piece.width = pixels.width() * kTwipsPerPixel;
    piece.height = pixels.height() * kTwipsPerPixel;
  }
}

void ElementTable::markChanged(const Piece& piece) {
  changed_ += pixelRect(piece.rect());
}

QRegion ElementTable::takeChanged() {
  return std::exchange(changed_, QRegion());
}

const std::vector<Ref>& ElementTable::stacking() const {
  if (!stackingKnown_) {
    stacking_.clear();
    for (const Design& design : kDesign) {
      for (int index = 0; index < count(design.kind); ++index) {
        stacking_.push_back({design.kind, index});
      }
    }
    std::ranges::sort(stacking_, {}, [this](Ref ref) { return at(ref).stacking; });
    stackingKnown_ = true;
  }
  return stacking_;
}

std::optional<Ref> ElementTable::hit(double x, double y) const {
  const std::vector<Ref>& order = stacking();
  const auto found = std::find_if(order.rbegin(), order.rend(), [&](Ref ref) {
    const Piece& piece = at(ref);
    return piece.visible && x >= piece.left && x < piece.right() && y >= piece.top &&
           y < piece.bottom();
  });
  return found == order.rend() ? std::nullopt : std::optional(*found);
}

QRect pixelRect(const QRectF& twips) {
  const double scale = 1.0 / kTwipsPerPixel;
  return QRectF(twips.topLeft() * scale, twips.size() * scale).toAlignedRect();
}

}  // namespace quartela::ribbon
