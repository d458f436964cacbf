#include "platform/controls/SortKey.h"

#include <QChar>
#include <QList>
#include <algorithm>
#include <cstring>
#include <iterator>

namespace quartela {
namespace {

constexpr std::size_t kHead = sizeof(std::uint64_t);

char asciiLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

bool isAscii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

// The letter without its accents.
char32_t bareLetter(char32_t letter) {
  while (QChar::decompositionTag(letter) == QChar::Canonical) {
    const QString parts = QChar::decomposition(letter);
    if (parts.isEmpty() || parts.at(0).isSurrogate()) {
      break;
    }
    letter = parts.at(0).unicode();
  }
  return letter;
}

void appendUtf8(const QString& text, std::string& out) {
  const QByteArray utf8 = text.toUtf8();
  out.append(utf8.constData(), static_cast<std::size_t>(utf8.size()));
}

void appendKeyBeyondAscii(std::string_view utf8, std::string& out) {
  const QString folded = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()))
                             .normalized(QString::NormalizationForm_C)
                             .toCaseFolded();
  QString bare;
  bare.reserve(folded.size());
  for (const char32_t letter : folded.toUcs4()) {
    bare += QChar::fromUcs4(bareLetter(letter));
  }
  appendUtf8(bare, out);
  if (bare != folded) {
    out.push_back('\0');
    appendUtf8(folded, out);
  }
}

struct Key {
  std::uint64_t head;  // the first bytes, so that most comparisons touch nothing else
  std::uint32_t at;
  std::uint32_t size;
  std::uint32_t row;
};

std::uint64_t headOf(std::string_view key) {
  char bytes[kHead] = {};
  std::memcpy(bytes, key.data(), std::min(key.size(), kHead));
  std::uint64_t head = 0;
  for (const char byte : bytes) {
    head = (head << 8) | static_cast<unsigned char>(byte);
  }
  return head;
}

class KeyOrder {
 public:
  KeyOrder(const std::string& arena, bool descending) : arena_(arena), descending_(descending) {}

  bool operator()(const Key& a, const Key& b) const {
    const int order = compare(a, b);
    if (order != 0) {
      return (order < 0) != descending_;
    }
    return a.row < b.row;
  }

 private:
  int compare(const Key& a, const Key& b) const {
    if (a.head != b.head) {
      return a.head < b.head ? -1 : 1;
    }
    return view(a).compare(view(b));
  }
  std::string_view view(const Key& key) const {
    return std::string_view(arena_).substr(key.at, key.size);
  }

  const std::string& arena_;
  bool descending_;
};

}  // namespace

void appendSortKey(std::string_view utf8, std::string& out) {
  if (!std::all_of(utf8.begin(), utf8.end(), isAscii)) {
    appendKeyBeyondAscii(utf8, out);
    return;
  }
  const std::size_t start = out.size();
  out.append(utf8);
  std::transform(out.begin() + static_cast<std::ptrdiff_t>(start), out.end(),
                 out.begin() + static_cast<std::ptrdiff_t>(start), asciiLower);
}

std::vector<std::uint32_t> sortedRows(int rowCount, const AppendRowKey& appendKey,
                                      bool descending) {
  const auto count = static_cast<std::uint32_t>(rowCount);
  std::string arena;
  std::vector<Key> keys;
  keys.reserve(count);
  for (std::uint32_t row = 0; row < count; ++row) {
    const std::size_t start = arena.size();
    appendKey(static_cast<int>(row), arena);
    const std::string_view key = std::string_view(arena).substr(start);
    keys.push_back({headOf(key), static_cast<std::uint32_t>(start),
                    static_cast<std::uint32_t>(key.size()), row});
  }
  std::sort(keys.begin(), keys.end(), KeyOrder(arena, descending));
  std::vector<std::uint32_t> rows;
  rows.reserve(count);
  std::transform(keys.begin(), keys.end(), std::back_inserter(rows),
                 [](const Key& key) { return key.row; });
  return rows;
}

}  // namespace quartela
