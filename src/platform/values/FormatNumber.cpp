#include <algorithm>

#include "platform/values/FormatText.h"

namespace quartela {
namespace {

constexpr qsizetype kGroup = 3;

}  // namespace

NumberSection::NumberSection(QStringView format) {
  for (qsizetype i = 0; i < format.size(); ++i) {
    const bool isEscaped = format[i] == u'\\' && i + 1 < format.size();
    if (isEscaped) {
      ++i;
      (hasPoint_ ? behind_ : whole_).push_back({Kind::Literal, format[i].unicode()});
    } else {
      take(format[i].unicode(), i + 1 == format.size());
    }
  }
}

void NumberSection::take(char16_t character, bool isLast) {
  auto& part = hasPoint_ ? behind_ : whole_;
  if (character == u'0' || character == u'#') {
    part.push_back({character == u'0' ? Kind::Zero : Kind::Digit, 0});
    ++(hasPoint_ ? decimals_ : places_);
  } else if (character == u'.' && !hasPoint_) {
    hasPoint_ = true;
  } else if (character == u',' && !hasPoint_ && places_ > 0 && !isLast) {
    isGrouped_ = true;
  } else {
    part.push_back({Kind::Literal, character});
  }
}

void NumberSection::write(const Decimal& number, Characters& out) const {
  writeWhole(number, out);
  if (hasPoint_) {
    out.append(u',');
    writeDecimals(number, out);
  }
}

void NumberSection::writeDot(qsizetype left, Characters& out) const {
  if (isGrouped_ && left > 0 && left % kGroup == 0) {
    out.append(u'.');
  }
}

void NumberSection::writeDigits(const Decimal& number, qsizetype from, qsizetype to,
                                Characters& out) const {
  const qsizetype count = number.wholeDigits();
  for (qsizetype i = from; i < to; ++i) {
    out.append(static_cast<char16_t>(number.digit(i)));
    writeDot(count - i - 1, out);
  }
}

// Digits fill the places from the right; the ones that find no place go in front of the first.
void NumberSection::writeWhole(const Decimal& number, Characters& out) const {
  const qsizetype count = number.wholeDigits();
  qsizetype left = places_;
  qsizetype next = std::max<qsizetype>(count - places_, 0);
  bool padded = false;
  for (const Piece& piece : whole_) {
    if (piece.kind == Kind::Literal) {
      out.append(piece.literal);
      continue;
    }
    if (left == places_) {
      writeDigits(number, 0, next, out);
    }
    padded = padded || piece.kind == Kind::Zero;
    if (left <= count) {
      writeDigits(number, next, next + 1, out);
      ++next;
    } else if (padded) {
      out.append(u'0');
      writeDot(left - 1, out);
    }
    --left;
  }
  if (places_ == 0 && decimals_ > 0) {
    writeDigits(number, 0, count, out);
  }
}

void NumberSection::writeDecimals(const Decimal& number, Characters& out) const {
  qsizetype end = number.decimals();
  while (end > 0 && number.digit(number.wholeDigits() + end - 1) == '0') {
    --end;
  }
  qsizetype position = 0;
  for (const Piece& piece : behind_) {
    if (piece.kind == Kind::Literal) {
      out.append(piece.literal);
      continue;
    }
    if (position < end) {
      out.append(static_cast<char16_t>(number.digit(number.wholeDigits() + position)));
    } else if (piece.kind == Kind::Zero) {
      out.append(u'0');
    }
    ++position;
  }
}

}  // namespace quartela
