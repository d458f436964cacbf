// Comparing names and writing them to the engine's UTF-8.
#pragma once

#include <QChar>
#include <QStringView>
#include <string>

namespace quartela::dialect {

inline char16_t foldedUnit(char16_t unit) {
  if (unit < 0x80) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
  }
  return static_cast<char16_t>(QChar::toCaseFolded(char32_t{unit}));
}

// Equal without regard to letter case; accents are kept apart.
inline bool sameName(QStringView a, QStringView b) {
  if (a.size() != b.size()) {
    return false;
  }
  const char16_t* left = a.utf16();
  const char16_t* right = b.utf16();
  for (qsizetype i = 0; i < a.size(); ++i) {
    if (left[i] != right[i] && foldedUnit(left[i]) != foldedUnit(right[i])) {
      return false;
    }
  }
  return true;
}

// Appends `text` as UTF-8; half a surrogate pair becomes U+FFFD. A unit equal to `doubled` is
// written twice, and a pair of `halved` in the text is written once.
void appendUtf8(std::string& out, QStringView text, char16_t doubled = 0, char16_t halved = 0);

}  // namespace quartela::dialect
