// A font with its measures in twips, the same on every screen and printer.
//
// The font is set up at one pixel a twip and without hinting and kerning, so that measures grow
// evenly with the size and a text's width is the sum of its letters'. To be painted with a painter
// whose unit is a twip.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QList>
#include <QPointF>
#include <QRawFont>
#include <QStringView>
#include <array>

#include "platform/reporting/Layout.h"

namespace quartela::reporting {

// Stands where a text was cut.
constexpr QChar kCutSign{u'\u2026'};

class Face {
 public:
  // The face of the style, made at the first call and kept as long as the program. For the thread
  // of the windows only.
  static const Face& of(const FontSpec& style);

  const QFont& font() const { return font_; }
  double lineHeight() const { return lineHeight_; }
  // From a line's top to the base that its letters stand on.
  double base() const { return base_; }
  double width(QStringView text) const;

  // The letters as the font numbers them, each at its place; `at` is the first one's.
  struct Glyphs {
    QList<quint32> numbers;
    QList<QPointF> places;
  };
  // Whether the text's letters are known one by one. If not, only drawing it tells: letters beyond
  // the table or that the font lacks, joined or underlined ones.
  bool hasGlyphs(QStringView text) const;
  // Adds the letters of such a text as they stand when it is drawn.
  void addGlyphs(QStringView text, QPointF at, Glyphs& glyphs) const;
  const QRawFont& rawFont() const { return rawFont_; }

 private:
  // Latin letters, their accents and the common signs have a table; the rest is measured as a
  // whole.
  static constexpr std::size_t kTable = 0x180;

  explicit Face(const FontSpec& style);
  void numberGlyphs();

  QFont font_;
  QFontMetricsF metrics_;
  double lineHeight_ = 0;
  double base_ = 0;
  std::array<float, kTable> advance_{};
  QRawFont rawFont_;
  std::array<quint32, kTable> glyph_{};  // 0: the font lacks it
  double cutSign_ = 0;
};

}  // namespace quartela::reporting
