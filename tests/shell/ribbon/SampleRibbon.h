// A ribbon filled with the commands of the main window, and a mouse for it.
#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QPixmap>

#include "shell/ribbon/FaixaRibbon.h"
#include "tests/shell/ribbon/ToldRibbon.h"

namespace quartela::test {

inline QString utf8(const char* text) {
  return QString::fromUtf8(text);
}

// Squares of 24 pixels, each of a colour of its own.
inline ImageList squares(int count = 30) {
  ImageList images({24, 24});
  for (int i = 0; i < count; ++i) {
    QPixmap pixmap(24, 24);
    pixmap.fill(QColor::fromHsv(i * 12 % 360, 200, 200));
    images.add(QIcon(pixmap));
  }
  return images;
}

struct Extras {
  bool launchers = false;  // on every second category, from the first
  bool glyphs = false;     // on every second button, from the first
};

inline bool isEven(std::size_t n) {
  return n % 2 == 0;
}

// All tabs, categories and buttons of the main window; the pictures are taken from a list that is
// gone afterwards.
inline void fill(FaixaRibbon& ribbon, Extras extras = {}) {
  const ImageList images = squares();
  ribbon.setImageList(&images);
  for (const ToldTab& tab : kTabs) {
    ribbon.AddTab(utf8(tab.key), utf8(tab.caption));
  }
  for (std::size_t n = 0; n < kCategories.size(); ++n) {
    const ToldCategory& category = kCategories[n];
    ribbon.AddCat(utf8(category.key), utf8(category.tab), utf8(category.caption),
                  extras.launchers && isEven(n));
  }
  for (std::size_t n = 0; n < kButtons.size(); ++n) {
    const ToldButton& button = kButtons[n];
    ribbon.AddButton(utf8(button.key), utf8(button.category), utf8(button.caption),
                     static_cast<std::int16_t>(button.image), extras.glyphs && isEven(n));
  }
  ribbon.setImageList(nullptr);
}

inline QPointF middle(const FaixaRibbon& ribbon, ribbon::Element kind, int index) {
  return ribbon.elements().at(kind, index).rect().center() / ribbon::kTwipsPerPixel;
}

inline void sendMouse(QWidget& widget, QEvent::Type type, QPointF place,
                      Qt::MouseButton button = Qt::NoButton) {
  QMouseEvent event(type, place, widget.mapToGlobal(place), button, button, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

inline void moveTo(FaixaRibbon& ribbon, ribbon::Element kind, int index) {
  sendMouse(ribbon, QEvent::MouseMove, middle(ribbon, kind, index));
}

inline void pressAt(FaixaRibbon& ribbon, ribbon::Element kind, int index) {
  sendMouse(ribbon, QEvent::MouseButtonPress, middle(ribbon, kind, index), Qt::LeftButton);
}

inline void releaseAt(FaixaRibbon& ribbon, ribbon::Element kind, int index) {
  sendMouse(ribbon, QEvent::MouseButtonRelease, middle(ribbon, kind, index), Qt::LeftButton);
}

inline void clickOn(FaixaRibbon& ribbon, ribbon::Element kind, int index) {
  pressAt(ribbon, kind, index);
  releaseAt(ribbon, kind, index);
}

}  // namespace quartela::test
