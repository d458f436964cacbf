#include "platform/database/dialect/Names.h"

namespace quartela::dialect {
namespace {

void appendContinuation(std::string& out, char32_t point, int shift) {
  out.push_back(static_cast<char>(0x80 | ((point >> shift) & 0x3F)));
}

void appendPoint(std::string& out, char32_t point) {
  if (point < 0x80) {
    out.push_back(static_cast<char>(point));
  } else if (point < 0x800) {
    out.push_back(static_cast<char>(0xC0 | (point >> 6)));
    appendContinuation(out, point, 0);
  } else if (point < 0x10000) {
    out.push_back(static_cast<char>(0xE0 | (point >> 12)));
    appendContinuation(out, point, 6);
    appendContinuation(out, point, 0);
  } else {
    out.push_back(static_cast<char>(0xF0 | (point >> 18)));
    appendContinuation(out, point, 12);
    appendContinuation(out, point, 6);
    appendContinuation(out, point, 0);
  }
}

// The code point at `at`, which moves on to its last unit.
char32_t pointAt(QStringView text, qsizetype& at) {
  const char16_t unit = text[at].unicode();
  if (!QChar::isSurrogate(unit)) {
    return unit;
  }
  if (QChar::isHighSurrogate(unit) && at + 1 < text.size() && text[at + 1].isLowSurrogate()) {
    ++at;
    return QChar::surrogateToUcs4(unit, text[at].unicode());
  }
  return QChar::ReplacementCharacter;
}

}  // namespace

void appendUtf8(std::string& out, QStringView text, char16_t doubled, char16_t halved) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    const char32_t point = pointAt(text, i);
    appendPoint(out, point);
    if (halved != 0 && point == halved) {
      ++i;
    }
    if (doubled != 0 && point == doubled) {
      appendPoint(out, point);
    }
  }
}

}  // namespace quartela::dialect
