// Comparing texts as an operator does: without regard to letter case in the whole of Latin script,
// accents kept apart. Offered to the engine as
//   LATIN_NOCASE                  a collation. É equals é and differs from E, but stands beside it:
//                                 accents only decide between texts that are alike without them.
//   latin_like(pattern, text)     1 or 0, null when either is null; % is any run, _ any character.
// Invalid UTF-8 compares byte by byte. A letter with its accent behind it as a character of its own
// is the same as the composed letter, everywhere.
#pragma once

#include <sqlite3.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace quartela::sqlite {

// Below 0, 0 or above 0. A total order; 0 exactly for texts that differ in letter case only.
int compareLatin(std::string_view a, std::string_view b);

// The UTF-8 text with its letters folded, so that texts which compare as equal are the same bytes.
std::string foldLatin(std::string_view text);

// Whether the character is an accent that stands behind its letter.
constexpr bool isAccent(char32_t character) {
  return character >= 0x300 && character <= 0x36F;
}
// Whether such an accent stands in the text.
bool hasAccent(std::string_view text);

// The first character of a text that is not empty, without accents that stand behind it.
struct LatinCharacter {
  std::size_t bytes = 0;
  char32_t folded = 0;  // as foldLatin changes it
  char32_t base = 0;    // folded, without its accents
  bool valid = false;   // false: a byte that is no UTF-8
};
LatinCharacter firstLatinCharacter(std::string_view text);

// A pattern of Like, made ready once and matched with many texts.
class LikePattern {
 public:
  explicit LikePattern(std::string_view pattern);
  LikePattern(const LikePattern&) = delete;
  LikePattern& operator=(const LikePattern&) = delete;
  bool matches(std::string_view text) const;

 private:
  bool matchesFolded(std::string_view folded) const;

  std::string folded_;
  // The text between the two signs of "%text%", when the pattern is of that form.
  std::string_view literal_;
  bool contains_ = false;
};

// Gives them to a connection; the result code of the engine.
int registerLatin(sqlite3* db);

}  // namespace quartela::sqlite
