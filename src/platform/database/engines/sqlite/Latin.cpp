#include "platform/database/engines/sqlite/Latin.h"

#include <QChar>
#include <QList>
#include <QString>
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>

namespace quartela::sqlite {
namespace {

// Latin-1, Latin Extended-A and -B; what stands behind them is looked up one by one.
constexpr std::size_t kTableEnd = 0x250;
constexpr std::size_t kStackBytes = 512;
// A letter can grow by half when it is folded (two bytes to three).
constexpr std::size_t kFoldedGrowth = 2;
// Bytes that are no UTF-8 stand behind every character.
constexpr char32_t kInvalidByte = 0x110000;

struct Letter {
  char32_t folded;
  // The folded letter without its accents.
  char32_t base;
};

Letter lookUp(char32_t character) {
  if (character >= kInvalidByte) {
    return {character, character};
  }
  const char32_t folded = QChar::toCaseFolded(character);
  char32_t base = folded;
  for (;;) {
    if (QChar::decompositionTag(base) != QChar::Canonical) {
      return {folded, base};
    }
    base = QChar::decomposition(base).toUcs4().first();
  }
}

using LetterTable = std::array<Letter, kTableEnd>;

const LetterTable& letters() {
  static const LetterTable table = [] {
    LetterTable filled{};
    for (char32_t character = 0; character < kTableEnd; ++character) {
      filled[character] = lookUp(character);
    }
    return filled;
  }();
  return table;
}

inline Letter letterOf(char32_t character) {
  return character < kTableEnd ? letters()[character] : lookUp(character);
}

constexpr std::array<unsigned char, 128> kAsciiFold = [] {
  std::array<unsigned char, 128> table{};
  for (unsigned i = 0; i < table.size(); ++i) {
    table[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i + ('a' - 'A') : i);
  }
  return table;
}();

inline bool isContinuation(unsigned char byte) {
  return (byte & 0xC0) == 0x80;
}

// How many bytes the character that begins with `lead` takes; 0 for no lead byte.
int sequenceLength(unsigned char lead) {
  if (lead >= 0xC2 && lead < 0xE0) {
    return 2;
  }
  if ((lead & 0xF0) == 0xE0) {
    return 3;
  }
  return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

// The character at `at`, which is moved behind it.
char32_t decode(const unsigned char*& at, const unsigned char* end) {
  const unsigned char lead = *at++;
  if (lead < 0x80) {
    return lead;
  }
  const int length = sequenceLength(lead);
  if (length == 0 || end - at < length - 1) {
    return kInvalidByte + lead;
  }
  char32_t character = lead & (0xFFU >> (length + 1));
  for (int i = 0; i < length - 1; ++i) {
    if (!isContinuation(at[i])) {
      return kInvalidByte + lead;
    }
    character = (character << 6) | (at[i] & 0x3FU);
  }
  at += length - 1;
  return character;
}

inline char byteOf(char32_t bits) {
  return static_cast<char>(static_cast<unsigned char>(bits));
}

char* encode(char32_t character, char* out) {
  if (character >= kInvalidByte) {
    *out++ = byteOf(character - kInvalidByte);
  } else if (character < 0x80) {
    *out++ = byteOf(character);
  } else if (character < 0x800) {
    *out++ = byteOf(0xC0 | (character >> 6));
    *out++ = byteOf(0x80 | (character & 0x3F));
  } else {
    if (character < 0x10000) {
      *out++ = byteOf(0xE0 | (character >> 12));
    } else {
      *out++ = byteOf(0xF0 | (character >> 18));
      *out++ = byteOf(0x80 | ((character >> 12) & 0x3F));
    }
    *out++ = byteOf(0x80 | ((character >> 6) & 0x3F));
    *out++ = byteOf(0x80 | (character & 0x3F));
  }
  return out;
}

const unsigned char* bytesOf(std::string_view text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

inline bool isAccentLead(const unsigned char* at, const unsigned char* end) {
  return at < end && (*at == 0xCC || *at == 0xCD);
}

// The accents behind a letter composed with it, where there is such a letter; all else as it is.
std::string composed(std::string_view text) {
  std::string out;
  const unsigned char* at = bytesOf(text);
  const unsigned char* const end = at + text.size();
  const unsigned char* begin = at;
  while (at < end) {
    begin = at;
    QString letter;
    for (char32_t next = decode(at, end);; next = decode(at, end)) {
      if (next < kInvalidByte) {
        letter += QString::fromUcs4(&next, 1);
      }
      const unsigned char* ahead = at;
      if (at == end || next >= kInvalidByte || !isAccent(decode(ahead, end))) {
        break;
      }
    }
    out += letter.size() > 1 ? letter.normalized(QString::NormalizationForm_C).toStdString()
                             : std::string(begin, at);
  }
  return out;
}

// Writes the folded text to `out`, which has room for kFoldedGrowth times its bytes; `accents`
// tells of accents that have to be composed with their letters first.
std::size_t foldInto(std::string_view text, char* out, bool& accents) {
  const char* const begin = out;
  const unsigned char* at = bytesOf(text);
  const unsigned char* const end = at + text.size();
  while (at < end) {
    if (*at < 0x80) {
      *out++ = static_cast<char>(kAsciiFold[*at++]);
    } else {
      accents = accents || isAccentLead(at, end);
      out = encode(letterOf(decode(at, end)).folded, out);
    }
  }
  return static_cast<std::size_t>(out - begin);
}

std::string folded(std::string_view text, bool& accents) {
  std::string letters(text.size() * kFoldedGrowth, '\0');
  letters.resize(foldInto(text, letters.data(), accents));
  return letters;
}

template <typename T>
int order(T a, T b) {
  return a < b ? -1 : (a > b ? 1 : 0);
}

std::size_t firstCharacter(std::string_view text) {
  return firstLatinCharacter(text).bytes;
}

}  // namespace

LatinCharacter firstLatinCharacter(std::string_view text) {
  const unsigned char* at = bytesOf(text);
  const char32_t character = decode(at, at + text.size());
  const Letter letter = letterOf(character);
  return {.bytes = static_cast<std::size_t>(at - bytesOf(text)),
          .folded = letter.folded,
          .base = letter.base,
          .valid = character < kInvalidByte};
}

bool hasAccent(std::string_view text) {
  return text.find_first_of("\xCC\xCD") != std::string_view::npos;
}

namespace {

// Nothing when accents have to be composed with their letters first; what is decided before they
// are met is decided by letters that they cannot change.
template <bool Composed>
std::optional<int> compareTexts(std::string_view a, std::string_view b) {
  const unsigned char* left = bytesOf(a);
  const unsigned char* right = bytesOf(b);
  const unsigned char* const leftEnd = left + a.size();
  const unsigned char* const rightEnd = right + b.size();
  const auto atAccent = [&] {
    return !Composed && (isAccentLead(left, leftEnd) || isAccentLead(right, rightEnd));
  };
  int accents = 0;
  while (left < leftEnd && right < rightEnd) {
    if (*left < 0x80 && *right < 0x80) {
      const int difference = kAsciiFold[*left++] - kAsciiFold[*right++];
      if (difference != 0) {
        return difference;
      }
      continue;
    }
    if (atAccent()) {
      return std::nullopt;
    }
    const Letter one = letterOf(decode(left, leftEnd));
    const Letter other = letterOf(decode(right, rightEnd));
    if (one.base != other.base) {
      return order(one.base, other.base);
    }
    if (accents == 0) {
      accents = order(one.folded, other.folded);
    }
  }
  if (atAccent()) {
    return std::nullopt;
  }
  const int lengths = order(leftEnd - left, rightEnd - right);
  return lengths != 0 ? lengths : accents;
}

}  // namespace

int compareLatin(std::string_view a, std::string_view b) {
  const std::optional<int> result = compareTexts<false>(a, b);
  return result ? *result : *compareTexts<true>(composed(a), composed(b));
}

std::string foldLatin(std::string_view text) {
  bool accents = false;
  std::string letters = folded(text, accents);
  return accents ? folded(composed(text), accents) : letters;
}

LikePattern::LikePattern(std::string_view pattern) : folded_(foldLatin(pattern)) {
  const std::string_view view = folded_;
  if (view.size() >= 2 && view.front() == '%' && view.back() == '%') {
    literal_ = view.substr(1, view.size() - 2);
    contains_ = literal_.find_first_of("%_") == std::string_view::npos;
  }
}

bool LikePattern::matches(std::string_view text) const {
  if (text.size() * kFoldedGrowth > kStackBytes) {
    return matchesFolded(foldLatin(text));
  }
  std::array<char, kStackBytes> letters;
  bool accents = false;
  const std::size_t size = foldInto(text, letters.data(), accents);
  return accents ? matchesFolded(foldLatin(text)) : matchesFolded({letters.data(), size});
}

// Only the last % passed needs to be come back to: an earlier one cannot do better.
bool LikePattern::matchesFolded(std::string_view text) const {
  if (contains_) {
    return text.find(literal_) != std::string_view::npos;
  }
  const std::string_view pattern = folded_;
  std::size_t p = 0;
  std::size_t t = 0;
  std::size_t behindPercent = std::string_view::npos;
  std::size_t retry = 0;
  while (t < text.size()) {
    if (p < pattern.size() && pattern[p] == '%') {
      behindPercent = ++p;
      retry = t;
    } else if (p < pattern.size() && pattern[p] == '_') {
      ++p;
      t += firstCharacter(text.substr(t));
    } else if (p < pattern.size() && pattern[p] == text[t]) {
      ++p;
      ++t;
    } else if (behindPercent != std::string_view::npos) {
      p = behindPercent;
      retry += firstCharacter(text.substr(retry));
      t = retry;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('%', p) == std::string_view::npos;
}

namespace {

int collate(void*, int leftBytes, const void* left, int rightBytes, const void* right) {
  return compareLatin({static_cast<const char*>(left), static_cast<std::size_t>(leftBytes)},
                      {static_cast<const char*>(right), static_cast<std::size_t>(rightBytes)});
}

std::string_view textOf(sqlite3_value* value) {
  const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return {bytes, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

bool isNull(sqlite3_value* value) {
  return sqlite3_value_type(value) == SQLITE_NULL;
}

void deletePattern(void* pattern) {
  delete static_cast<LikePattern*>(pattern);
}

// The engine keeps the pattern while the argument stays the same, and deletes it.
void like(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (isNull(arguments[0]) || isNull(arguments[1])) {
    return;
  }
  if (const void* ready = sqlite3_get_auxdata(context, 0)) {
    const auto* pattern = static_cast<const LikePattern*>(ready);
    sqlite3_result_int(context, pattern->matches(textOf(arguments[1])) ? 1 : 0);
    return;
  }
  auto pattern = std::make_unique<LikePattern>(textOf(arguments[0]));
  sqlite3_result_int(context, pattern->matches(textOf(arguments[1])) ? 1 : 0);
  sqlite3_set_auxdata(context, 0, pattern.release(), deletePattern);
}

}  // namespace

int registerLatin(sqlite3* db) {
  const auto offer = [db](const char* name, int arguments, auto function) {
    return sqlite3_create_function_v2(db, name, arguments, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                      nullptr, function, nullptr, nullptr, nullptr);
  };
  const std::array codes{
      sqlite3_create_collation_v2(db, "LATIN_NOCASE", SQLITE_UTF8, nullptr, collate, nullptr),
      offer("latin_like", 2, like),
  };
  const auto* const failed =
      std::find_if(codes.begin(), codes.end(), [](int code) { return code != SQLITE_OK; });
  return failed == codes.end() ? SQLITE_OK : *failed;
}

}  // namespace quartela::sqlite
