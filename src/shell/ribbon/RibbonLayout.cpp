#include "shell/ribbon/RibbonLayout.h"

#include <cmath>
#include <limits>

namespace quartela::ribbon {
namespace {

using enum Element;

constexpr double kTabsLeft = 90;
constexpr double kTabsTop = 0;
constexpr double kTabCaptionTop = 60;
constexpr double kRowLeft = 120;
constexpr double kRowTop = 360;
constexpr double kCategoryCaptionTop = 1400;
constexpr double kLauncherOverlap = 15;
constexpr double kLauncherBottom = 60;
constexpr double kButtonMargin = 60;  // above a button
constexpr double kButtonGap = 30;
constexpr double kIconMargin = 90;  // above an icon that is not centred

bool fitsI16(double value) {
  const double rounded = std::nearbyint(value);
  return rounded >= std::numeric_limits<std::int16_t>::min() &&
         rounded <= std::numeric_limits<std::int16_t>::max();
}

}  // namespace

double controlHeight(const ElementTable& elements) {
  return elements.at(Barra2, 0).height + kStripTop;
}

void RibbonLayout::prepare() {
  for (const Element kind : {Barra2, BarraLeft, BarraRight}) {
    at(kind, 0).top = kStripTop;
  }
  at(Barra2, 0).width = kStripWidth;
  toFront(std::array{TabMouse, CatMouse, ButMouse}, 0);
}

void RibbonLayout::buildTabs(std::uint32_t inactiveColour, std::uint32_t activeColour) {
  for (const Element kind : kTabKinds) {
    elements_.trim(kind);
  }
  for (int i = 0; i < model_.tabCount(); ++i) {
    buildTab(i);
    placeTab(i);
    showTab(i, inactiveColour, activeColour);
  }
}

void RibbonLayout::buildTab(int i) {
  if (i == 0) {
    at(Tab_left, 0).left = kTabsLeft;
  } else {
    for (const Element kind : kTabKinds) {
      elements_.create(kind, i);
    }
    at(Tab_left, i).left = at(Tab_right, i - 1).right();
  }
  // A tab that found no room in the table has no caption of its own and keeps the copied one.
  if (RibbonModel::holdsTab(i)) {
    setText(Tab_caption, i, model_.tab(i).caption, TextStyle::Caption);
  }
}

void RibbonLayout::placeTab(int i) {
  at(Tab_caption, i).top = kTabCaptionTop;
  for (const Element kind : kTabKinds) {
    if (kind != Tab_caption) {
      at(kind, i).top = kTabsTop;
    }
  }
  const Piece& left = at(Tab_left, i);
  Piece& center = at(Tab_center, i);
  center.left = left.right();
  center.width = at(Tab_caption, i).width;
  at(Tab_caption, i).left = center.left;
  Piece& right = at(Tab_right, i);
  right.left = center.right();
  at(Tab_center_over, i).width = center.width;
  at(Tab_center_over, i).left = center.left;
  at(Tab_left_over, i).left = left.left;
  at(Tab_right_over, i).left = right.left;
  at(TabMouse, i).left = left.left;
  at(TabMouse, i).width = left.width + center.width + right.width;
}

void RibbonLayout::showTab(int i, std::uint32_t inactiveColour, std::uint32_t activeColour) {
  elements_.setVisible(Tab_caption, i, true);
  if (i == 0) {
    elements_.setVisible(kTabLook, i, true);
  }
  elements_.setColour(Tab_caption, i, i == 0 ? activeColour : inactiveColour);
  elements_.setVisible(TabMouse, i, true);
  toFront(std::array{Tab_center, Tab_left, Tab_right, Tab_center_over, Tab_left_over,
                     Tab_right_over, Tab_caption, TabMouse},
          i);
}

void RibbonLayout::buildCategories(bool buttonCenter) {
  buttonCenter_ = buttonCenter;
  for (const Element kind : kCategoryKinds) {
    if (kind != Cat_Dlg && kind != Cat_Dlg_on && kind != Cat_Dlg_over) {
      at(kind, 0).top = kRowTop;
    }
  }
  at(Cat_Caption, 0).top = kCategoryCaptionTop;
  clearRow();
  int i = 0;
  double buttonsWidth = 0;
  for (const Category* category : categoriesOfActiveTab()) {
    placeCategory(i, *category);
    // A row that has run beyond what a 16-bit place can tell gets no more buttons.
    const double left = at(Cat_Center_off, i).left;
    if (fitsI16(left)) {
      buttonsWidth = buildButtons(category->key, std::nearbyint(left), i);
    }
    sizeCategory(i, *category, buttonsWidth);
    showCategory(i);
    placeLauncher(i, category->hasLauncher);
    ++i;
  }
}

std::vector<const Category*> RibbonLayout::categoriesOfActiveTab() const {
  std::vector<const Category*> kept;
  for (int n = 0; n < model_.categoryCount() && RibbonModel::holdsCategory(n); ++n) {
    const Category& category = model_.category(n);
    if (!category.tab.isEmpty() && category.tab == model_.activeTab()) {
      kept.push_back(&category);
    }
  }
  return kept;
}

void RibbonLayout::clearRow() {
  const auto clear = [this](Element kind) {
    elements_.trim(kind);
    elements_.setVisible(kind, 0, false);
  };
  for (const Element kind : kCategoryKinds) {
    clear(kind);
  }
  for (const Element kind : kButtonKinds) {
    clear(kind);
  }
}

void RibbonLayout::placeCategory(int i, const Category& category) {
  if (i == 0) {
    at(Cat_Left_off, 0).left = kRowLeft;
  } else {
    for (const Element kind : kCategoryKinds) {
      elements_.create(kind, i);
    }
    at(Cat_Left_off, i).left = at(Cat_Right_off, i - 1).right();
  }
  at(CatMouse, i).left = at(Cat_Left_off, i).left;
  setText(Cat_Caption, i, category.caption, TextStyle::Caption);
  at(Cat_Caption, i).tag = category.key;
  at(Cat_Center_off, i).left = at(Cat_Left_off, i).right();
}

void RibbonLayout::sizeCategory(int i, const Category& category, double buttonsWidth) {
  const Piece& left = at(Cat_Left_off, i);
  Piece& center = at(Cat_Center_off, i);
  Piece& caption = at(Cat_Caption, i);
  center.width = caption.width + (category.hasLauncher ? at(Cat_Dlg, i).width : 0);
  caption.left = center.left;
  if (center.width < buttonsWidth) {
    center.width = buttonsWidth;
    caption.left = center.left + (center.width - caption.width) / 2;
  }
  Piece& right = at(Cat_Right_off, i);
  right.left = center.right();
  at(Cat_Center_on, i).width = center.width;
  at(Cat_Center_on, i).left = center.left;
  at(Cat_Left_on, i).left = left.left;
  at(Cat_Right_on, i).left = right.left;
  at(CatMouse, i).width = left.width + center.width + right.width;
}

void RibbonLayout::showCategory(int i) {
  for (const Element kind : {Cat_Caption, Cat_Center_off, Cat_Left_off, Cat_Right_off, CatMouse}) {
    elements_.setVisible(kind, i, true);
  }
  toFront(std::array{Cat_Center_off, Cat_Left_off, Cat_Right_off, Cat_Center_on, Cat_Left_on,
                     Cat_Right_on, Cat_Caption, CatMouse},
          i);
}

void RibbonLayout::placeLauncher(int i, bool shown) {
  const Piece& right = at(Cat_Right_off, i);
  Piece& launcher = at(Cat_Dlg, i);
  launcher.left = right.left - launcher.width + kLauncherOverlap;
  launcher.top = right.bottom() - (launcher.height + kLauncherBottom);
  for (const Element kind : {Cat_Dlg_on, Cat_Dlg_over}) {
    at(kind, i).left = launcher.left;
    at(kind, i).top = launcher.top;
    elements_.setVisible(kind, i, false);
  }
  elements_.setVisible(Cat_Dlg, i, shown);
  toFront(std::array{Cat_Dlg, Cat_Dlg_on, Cat_Dlg_over}, i);
}

double RibbonLayout::buildButtons(const QString& category, double left, int categoryIndex) {
  elements_.setVisible(kButtonLook, 0, false);
  const int first = elements_.count(ButMouse);
  double total = 0;
  for (int n = 0; n < model_.buttonCount() && RibbonModel::holdsButton(n); ++n) {
    const Button& button = model_.button(n);
    if (button.category != category) {
      continue;
    }
    const int i = elements_.count(ButMouse);
    const double x = i == first ? left : at(ButMouse, i - 1).right() + kButtonGap;
    createButton(i, button, categoryIndex);
    placeButtonDown(i, button);
    placeButtonAcross(i, x);
    showButton(i, button.hasGlyph);
    total += at(ButMouse, i).width + kButtonGap;
  }
  return total - kButtonGap;
}

void RibbonLayout::createButton(int i, const Button& button, int categoryIndex) {
  for (const Element kind : kButtonKinds) {
    elements_.create(kind, i);
  }
  at(ButMouse, i).tag = button.key;
  at(ButMouse, i).toolTip = button.toolTip;
  at(Button_center, i).tag = QString::number(categoryIndex);
  setText(Button_Caption, i, button.caption, TextStyle::Button);
  Piece& icon = at(Button_Icon, i);
  icon.icon = button.picture.icon;
  // Without a picture to follow, the icon's place keeps its size.
  if (!button.picture.size.isEmpty()) {
    icon.width = button.picture.size.width() * kTwipsPerPixel;
    icon.height = button.picture.size.height() * kTwipsPerPixel;
  }
}

void RibbonLayout::placeButtonDown(int i, const Button& button) {
  const double top = at(Cat_Left_off, 0).top + kButtonMargin;
  at(ButMouse, i).top = top;
  for (const Look& look : {kButtonLook, kButtonOverLook}) {
    for (const Element kind : look) {
      at(kind, i).top = top;
    }
  }
  Piece& icon = at(Button_Icon, i);
  icon.top = iconTop(i, button.hasGlyph);
  Piece& caption = at(Button_Caption, i);
  caption.top = icon.bottom();
  Piece& glyph = at(Glip_off, i);
  glyph.top = caption.bottom() + (caption.height - glyph.height) / 2;
  at(Glip_on, i).top = glyph.top;
}

double RibbonLayout::iconTop(int i, bool hasGlyph) const {
  const Piece& center = elements_.at(Button_center, i);
  if (!buttonCenter_) {
    return center.top + kIconMargin;
  }
  const double captionHeight = elements_.at(Button_Caption, i).height;
  const double free = center.height - (elements_.at(Button_Icon, i).height + captionHeight);
  return center.top + (hasGlyph ? (free - captionHeight / 2) / 2 : free / 2);
}

void RibbonLayout::placeButtonAcross(int i, double x) {
  const Piece& left = at(Button_left, i);
  Piece& center = at(Button_center, i);
  Piece& icon = at(Button_Icon, i);
  Piece& caption = at(Button_Caption, i);
  at(ButMouse, i).left = at(Button_left, i).left = at(Button_left_over, i).left = x;
  center.left = x + left.width;
  center.width = std::max(caption.width, icon.width);
  caption.left = center.left + std::max(0.0, (icon.width - caption.width) / 2);
  icon.left = center.left + std::max(0.0, (caption.width - icon.width) / 2);
  for (const Element kind : {Glip_off, Glip_on}) {
    at(kind, i).left = caption.left + (caption.width - at(Glip_off, i).width) / 2;
  }
  at(Button_center_over, i).left = center.left;
  at(Button_center_over, i).width = center.width;
  at(Button_right, i).left = at(Button_right_over, i).left = center.right();
  at(ButMouse, i).width = left.width + center.width + at(Button_right, i).width;
}

void RibbonLayout::showButton(int i, bool hasGlyph) {
  for (const Element kind : {Button_Icon, Button_Caption, ButMouse}) {
    elements_.setVisible(kind, i, true);
  }
  if (hasGlyph) {
    elements_.setVisible(Glip_off, i, true);
  }
  toFront(std::array{Glip_off, Glip_on}, i);
}

void RibbonLayout::stackButtons() {
  for (int i = 0; i < elements_.count(ButMouse); ++i) {
    elements_.setVisible(kButtonLook, i, false);
    elements_.setVisible(kButtonOverLook, i, false);
    toFront(kButtonKinds, i);
  }
}

void RibbonLayout::setText(Element kind, int i, const QString& text, TextStyle style) {
  const QSizeF size = measure_.size(text, style);
  Piece& piece = at(kind, i);
  piece.text = text;
  piece.width = size.width();
  piece.height = size.height();
}

void RibbonLayout::toFront(std::span<const Element> kinds, int i) {
  for (const Element kind : kinds) {
    elements_.bringToFront(kind, i);
  }
}

}  // namespace quartela::ribbon
