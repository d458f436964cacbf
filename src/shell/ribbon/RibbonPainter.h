// Paints the elements of a ribbon, and measures its texts with the fonts it paints them in.
#pragma once

#include <QFont>
#include <QPainter>
#include <optional>

#include "shell/ribbon/RibbonLayout.h"
#include "shell/ribbon/RibbonTheme.h"

namespace quartela::ribbon {

// Verdana 9.75 or 6.75 points at 96 dots per inch, or its nearest relative.
QFont fontOf(TextStyle style);

// Measures in whole logical pixels, so that every width is a multiple of 15 twips.
class FontMeasure : public TextMeasure {
 public:
  QSizeF size(const QString& text, TextStyle style) const override;
};

class RibbonPainter {
 public:
  // `painter` draws in logical pixels; `pictures` keeps what it has read. Both must outlive it.
  RibbonPainter(QPainter& painter, ThemePictures& pictures, const QPalette& palette);

  // All shown elements that touch `region` (logical pixels), the rearmost first.
  void paint(const ElementTable& elements, const QRegion& region);
  // The frame around the element that the keyboard is on.
  void paintFocus(const Piece& piece);

 private:
  void paintPiece(Element kind, const Piece& piece);
  void paintPicture(Element kind, const Piece& piece);
  void paintIcon(const Piece& piece);
  void paintText(const Piece& piece, TextStyle style);
  // The whole dot of the screen that a place in twips falls on.
  QPoint dot(double xTwips, double yTwips) const;

  QPainter& painter_;
  ThemePictures& pictures_;
  QPalette palette_;
  QTransform toDots_;
  QTransform fromDots_;
};

}  // namespace quartela::ribbon
