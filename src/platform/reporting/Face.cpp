#include "platform/reporting/Face.h"

#include <cmath>
#include <memory>
#include <vector>

namespace quartela::reporting {
namespace {

QFont fontOf(const FontSpec& style) {
  QFont font(style.family);
  font.setPixelSize(static_cast<int>(std::lround(style.points * kTwipsPerPoint)));
  font.setBold(style.bold);
  font.setItalic(style.italic);
  font.setUnderline(style.underline);
  font.setKerning(false);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

// Where letters stand in their line: at the same share of its height for every family, near what
// each of them has. So a label and a value of one size share a base line whatever their families.
constexpr double kBase = 0.78;

// Pairs that a face may draw as one letter of another width.
bool joinsLetters(QChar first, QChar second) {
  return first == QLatin1Char('f') &&
         (second == QLatin1Char('f') || second == QLatin1Char('i') || second == QLatin1Char('l'));
}

}  // namespace

const Face& Face::of(const FontSpec& style) {
  struct Entry {
    FontSpec style;
    std::unique_ptr<const Face> face;
  };
  static std::vector<Entry> faces;
  for (const Entry& entry : faces) {
    if (entry.style == style) {
      return *entry.face;
    }
  }
  faces.push_back({style, std::unique_ptr<const Face>(new Face(style))});
  return *faces.back().face;
}

Face::Face(const FontSpec& style)
    : font_(fontOf(style)),
      metrics_(font_),
      lineHeight_(metrics_.ascent() + metrics_.descent()),
      base_(kBase * lineHeight_) {
  for (std::size_t code = 0; code < advance_.size(); ++code) {
    advance_[code] =
        static_cast<float>(metrics_.horizontalAdvance(QChar(static_cast<char16_t>(code))));
  }
  cutSign_ = metrics_.horizontalAdvance(kCutSign);
  if (!style.underline) {
    numberGlyphs();
  }
}

// Signs that are no letters of their own (controls, the soft hyphen) are left to drawing.
void Face::numberGlyphs() {
  rawFont_ = QRawFont::fromFont(font_);
  for (std::size_t code = 0; code < glyph_.size(); ++code) {
    const QChar letter(static_cast<char16_t>(code));
    if (letter.isPrint() && letter != QChar::SoftHyphen) {
      const QList<quint32> numbers = rawFont_.glyphIndexesForString(QString(letter));
      glyph_[code] = numbers.size() == 1 ? numbers.front() : 0;
    }
  }
}

bool Face::hasGlyphs(QStringView text) const {
  QChar before;
  for (const QChar letter : text) {
    if (letter.unicode() >= kTable || glyph_[letter.unicode()] == 0 ||
        joinsLetters(before, letter)) {
      return false;
    }
    before = letter;
  }
  return true;
}

void Face::addGlyphs(QStringView text, QPointF at, Glyphs& glyphs) const {
  for (const QChar letter : text) {
    glyphs.numbers.append(glyph_[letter.unicode()]);
    glyphs.places.append(at);
    at.rx() += static_cast<double>(advance_[letter.unicode()]);
  }
}

double Face::width(QStringView text) const {
  double width = 0;
  QChar before;
  for (const QChar letter : text) {
    const bool cutSign = letter == kCutSign;
    if ((letter.unicode() >= kTable && !cutSign) || joinsLetters(before, letter)) {
      return metrics_.horizontalAdvance(text.toString());
    }
    width += cutSign ? cutSign_ : static_cast<double>(advance_[letter.unicode()]);
    before = letter;
  }
  return width;
}

}  // namespace quartela::reporting
