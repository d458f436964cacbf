// The small pieces that a ribbon is put together from, and the table that holds them.
//
// Every kind of piece is a row of elements numbered from 0. Element 0 is always there; the others
// are made as copies of it, hidden, and thrown away at the next rebuilding. Tabs and categories use
// element 0, buttons begin at 1. All measures are twips, 15 to a logical pixel.
#pragma once

#include <QIcon>
#include <QRectF>
#include <QRegion>
#include <QString>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace quartela::ribbon {

inline constexpr int kTwipsPerPixel = 15;

enum class Element : std::uint8_t {
  Barra2,  // background strip and its two ends
  BarraLeft,
  BarraRight,
  Tab_left,  // the active tab
  Tab_center,
  Tab_right,
  Tab_left_over,  // a tab under the mouse
  Tab_center_over,
  Tab_right_over,
  Tab_caption,
  TabMouse,      // senses the mouse over a tab
  Cat_Left_off,  // frame of a category
  Cat_Center_off,
  Cat_Right_off,
  Cat_Left_on,  // frame under the mouse
  Cat_Center_on,
  Cat_Right_on,
  Cat_Caption,
  CatMouse,  // senses the mouse over a category
  Cat_Dlg,   // corner that opens a dialog: idle, category under the mouse, itself under the mouse
  Cat_Dlg_on,
  Cat_Dlg_over,
  Button_left,  // a button under the mouse
  Button_center,
  Button_right,
  Button_left_over,  // a button pressed
  Button_center_over,
  Button_right_over,
  Button_Icon,
  Button_Caption,
  Glip_off,  // drop-down glyph: idle, button under the mouse
  Glip_on,
  ButMouse,  // senses the mouse over a button
};
inline constexpr std::size_t kElementKinds = 33;

inline constexpr std::array kTabKinds{
    Element::Tab_caption,   Element::Tab_left,        Element::Tab_center,     Element::Tab_right,
    Element::Tab_left_over, Element::Tab_center_over, Element::Tab_right_over, Element::TabMouse,
};
inline constexpr std::array kCategoryKinds{
    Element::Cat_Left_off,  Element::Cat_Center_off, Element::Cat_Right_off, Element::Cat_Left_on,
    Element::Cat_Center_on, Element::Cat_Right_on,   Element::Cat_Caption,   Element::CatMouse,
    Element::Cat_Dlg,       Element::Cat_Dlg_on,     Element::Cat_Dlg_over,
};
// In the order in which they are stacked.
inline constexpr std::array kButtonKinds{
    Element::Button_left,      Element::Button_right,      Element::Button_center,
    Element::Button_left_over, Element::Button_right_over, Element::Button_center_over,
    Element::Button_Icon,      Element::Button_Caption,    Element::Glip_off,
    Element::Glip_on,          Element::ButMouse,
};

// The three pieces of a look: left cap, centre, right cap.
using Look = std::array<Element, 3>;
inline constexpr Look kTabLook{Element::Tab_left, Element::Tab_center, Element::Tab_right};
inline constexpr Look kTabOverLook{Element::Tab_left_over, Element::Tab_center_over,
                                   Element::Tab_right_over};
inline constexpr Look kCategoryLook{Element::Cat_Left_off, Element::Cat_Center_off,
                                    Element::Cat_Right_off};
inline constexpr Look kCategoryOnLook{Element::Cat_Left_on, Element::Cat_Center_on,
                                      Element::Cat_Right_on};
inline constexpr Look kButtonLook{Element::Button_left, Element::Button_center,
                                  Element::Button_right};
inline constexpr Look kButtonOverLook{Element::Button_left_over, Element::Button_center_over,
                                      Element::Button_right_over};

// One element named by kind and number.
struct Ref {
  Element kind = Element::Barra2;
  int index = 0;
  bool operator==(const Ref&) const = default;
};

struct Piece {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
  bool visible = false;
  QString text;
  QString tag;  // key of a button or category, number of a button's category
  QString toolTip;
  std::uint32_t colour = 0;  // of a caption, see ThemeColours
  int picture = 0;           // number in the theme's group, 0 for none
  int theme = 0;             // whose picture it is
  QIcon icon;
  std::int64_t stacking = 0;  // the highest lies in front

  double right() const { return left + width; }
  double bottom() const { return top + height; }
  QRectF rect() const { return {left, top, width, height}; }
};

// True when the picture is stretched to the width of its element.
bool stretches(Element kind);

class ElementTable {
 public:
  // Every kind with its element 0 in its first place; only the background shows.
  ElementTable();

  int count(Element kind) const { return static_cast<int>(row(kind).size()); }
  bool has(Ref ref) const { return ref.index >= 0 && ref.index < count(ref.kind); }
  Piece& at(Element kind, int index) { return row(kind).at(static_cast<std::size_t>(index)); }
  const Piece& at(Element kind, int index) const {
    return row(kind).at(static_cast<std::size_t>(index));
  }
  const Piece& at(Ref ref) const { return at(ref.kind, ref.index); }

  // Makes element `index`, the next of its row, as a hidden copy of element 0.
  void create(Element kind, int index);
  // Throws away all elements above 0.
  void trim(Element kind);
  void bringToFront(Element kind, int index);

  bool visible(Element kind, int index) const { return at(kind, index).visible; }
  // Shows or hides an element; one that changes has its place added to the changed region.
  void setVisible(Element kind, int index, bool visible);
  void setVisible(const Look& look, int index, bool visible);
  // Gives a caption its colour; a shown one that changes has its place added as well.
  void setColour(Element kind, int index, std::uint32_t colour);
  // Gives element 0 its picture; one that does not stretch takes the picture's size.
  void setPicture(Element kind, int theme, int number, QSize pixels);

  // What has changed since the last call, in logical pixels.
  QRegion takeChanged();

  // All elements from the rearmost to the foremost.
  const std::vector<Ref>& stacking() const;
  // The foremost shown element at a place in twips.
  std::optional<Ref> hit(double x, double y) const;

 private:
  using Row = std::vector<Piece>;
  Row& row(Element kind) { return rows_[static_cast<std::size_t>(kind)]; }
  const Row& row(Element kind) const { return rows_[static_cast<std::size_t>(kind)]; }
  void markChanged(const Piece& piece);

  std::array<Row, kElementKinds> rows_;
  std::int64_t front_ = 0;
  QRegion changed_;
  mutable std::vector<Ref> stacking_;
  mutable bool stackingKnown_ = false;
};

// The rectangle of whole logical pixels that covers a rectangle in twips.
QRect pixelRect(const QRectF& twips);

}  // namespace quartela::ribbon
