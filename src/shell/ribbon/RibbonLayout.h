// Puts the elements of a ribbon in their places. Knows no window: texts are measured through an
// interface, the outcome is the element table.
#pragma once

#include <QSizeF>
#include <span>
#include <vector>

#include "shell/ribbon/Elements.h"
#include "shell/ribbon/RibbonModel.h"

namespace quartela::ribbon {

enum class TextStyle : std::uint8_t { Caption, Button };  // Verdana 9.75 and 6.75 points

class TextMeasure {
 public:
  TextMeasure() = default;
  TextMeasure(const TextMeasure&) = delete;
  TextMeasure& operator=(const TextMeasure&) = delete;
  virtual ~TextMeasure() = default;
  // Size of `text` in twips, lines counted.
  virtual QSizeF size(const QString& text, TextStyle style) const = 0;
};

// The strip is higher than the control by what lies above its top.
inline constexpr double kStripTop = -390;
inline constexpr double kStripWidth = 30720;
double controlHeight(const ElementTable& elements);

class RibbonLayout {
 public:
  // All three must outlive the layout.
  RibbonLayout(const RibbonModel& model, const TextMeasure& measure, ElementTable& elements)
      : model_(model), measure_(measure), elements_(elements) {}

  // The background in its place, the overlays in front.
  void prepare();
  // Shows the first tab as the active one, whichever is.
  void buildTabs(std::uint32_t inactiveColour, std::uint32_t activeColour);
  // The categories of the active tab with their buttons.
  void buildCategories(bool buttonCenter);
  // Last step after buildCategories: buttons idle and in front of the frames.
  void stackButtons();

 private:
  void buildTab(int i);
  void placeTab(int i);
  void showTab(int i, std::uint32_t inactiveColour, std::uint32_t activeColour);
  std::vector<const Category*> categoriesOfActiveTab() const;
  void clearRow();
  void placeCategory(int i, const Category& category);
  void sizeCategory(int i, const Category& category, double buttonsWidth);
  void showCategory(int i);
  void placeLauncher(int i, bool shown);
  double buildButtons(const QString& category, double left, int categoryIndex);
  void createButton(int i, const Button& button, int categoryIndex);
  void placeButtonDown(int i, const Button& button);
  double iconTop(int i, bool hasGlyph) const;
  void placeButtonAcross(int i, double x);
  void showButton(int i, bool hasGlyph);
  void setText(Element kind, int i, const QString& text, TextStyle style);
  Piece& at(Element kind, int i) { return elements_.at(kind, i); }
  void toFront(std::span<const Element> kinds, int i);

  const RibbonModel& model_;
  const TextMeasure& measure_;
  ElementTable& elements_;
  bool buttonCenter_ = false;
};

}  // namespace quartela::ribbon
