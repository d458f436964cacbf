#include "platform/values/Decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

constexpr int kGroup = 3;

bool isDigit(QChar character) {
  return character >= u'0' && character <= u'9';
}

qsizetype countDigits(QStringView text, qsizetype from) {
  qsizetype end = from;
  while (end < text.size() && isDigit(text[end])) {
    ++end;
  }
  return end - from;
}

// The length of the part in front of the comma, -1 when its dots do not stand between whole groups.
qsizetype wholeLength(QStringView text) {
  const qsizetype first = countDigits(text, 0);
  if (first == text.size() || text[first] != u'.') {
    return first;
  }
  if (first == 0 || first > kGroup || text[0] == u'0') {
    return -1;
  }
  qsizetype end = first;
  while (end < text.size() && text[end] == u'.') {
    if (countDigits(text, end + 1) != kGroup) {
      return -1;
    }
    end += 1 + kGroup;
  }
  return end;
}

}  // namespace

std::optional<Decimal> Decimal::fromText(QStringView text) {
  QStringView rest = text.trimmed();
  Decimal number;
  if (!rest.isEmpty() && (rest[0] == u'-' || rest[0] == u'+')) {
    number.negative_ = rest[0] == u'-';
    rest = rest.sliced(1);
  }
  const qsizetype whole = wholeLength(rest);
  if (whole < 0) {
    return std::nullopt;
  }
  const bool hasComma = whole < rest.size() && rest[whole] == u',';
  const qsizetype decimals = hasComma ? countDigits(rest, whole + 1) : 0;
  const qsizetype length = whole + (hasComma ? 1 : 0) + decimals;
  if (length != rest.size() || whole + decimals == 0) {
    return std::nullopt;
  }
  for (qsizetype i = 0; i < whole; ++i) {
    const bool leadingZero = rest[i] == u'0' && number.digits_.isEmpty();
    if (rest[i] != u'.' && !leadingZero) {
      number.append(static_cast<char>(rest[i].unicode()));
    }
  }
  number.whole_ = number.digits_.size();
  for (qsizetype i = length - decimals; i < length; ++i) {
    number.append(static_cast<char>(rest[i].unicode()));
  }
  return number;
}

Decimal Decimal::fromUnits(std::int64_t units, int decimals) {
  Decimal number;
  number.negative_ = units < 0;
  const auto bits = static_cast<std::uint64_t>(units);
  std::uint64_t rest = number.negative_ ? 0 - bits : bits;
  std::array<char, 32> reversed{};
  int count = 0;
  while (rest != 0 || count < decimals) {
    reversed[static_cast<std::size_t>(count++)] = static_cast<char>('0' + rest % 10);
    rest /= 10;
  }
  number.digits_.resize(count);
  std::reverse_copy(reversed.begin(), reversed.begin() + count, number.digits_.begin());
  number.whole_ = count - decimals;
  return number;
}

Decimal Decimal::fromNumber(double value) {
  if (!std::isfinite(value)) {
    throw RuntimeError(ErrorNumber::Overflow);
  }
  // The smallest double has 324 zeros behind the comma and up to 17 digits.
  std::array<char, 400> text{};
  const auto written =
      std::to_chars(text.begin(), text.end(), std::abs(value), std::chars_format::fixed);
  Decimal number;
  number.negative_ = std::signbit(value);
  bool isWhole = true;
  for (const char* at = text.begin(); at != written.ptr; ++at) {
    if (*at == '.') {
      number.whole_ = number.digits_.size();
      isWhole = false;
    } else if (*at != '0' || !isWhole || !number.digits_.isEmpty()) {
      number.append(*at);
    }
  }
  if (isWhole) {
    number.whole_ = number.digits_.size();
  }
  return number;
}

void Decimal::round(int decimals, Rounding rounding) {
  const qsizetype kept = whole_ + decimals;
  if (kept >= digits_.size()) {
    return;
  }
  const char next = digits_[kept];
  const auto isZero = [](char digit) { return digit == '0'; };
  const bool isHalf = next == '5' && std::all_of(digits_.begin() + kept + 1, digits_.end(), isZero);
  const bool isOdd = kept > 0 && (digits_[kept - 1] - '0') % 2 != 0;
  const bool up = isHalf && rounding == Rounding::HalfEven ? isOdd : next >= '5';
  digits_.resize(kept);
  if (up) {
    carry();
  }
}

void Decimal::carry() {
  for (qsizetype i = digits_.size() - 1; i >= 0; --i) {
    if (digits_[i] != '9') {
      ++digits_[i];
      return;
    }
    digits_[i] = '0';
  }
  digits_.insert(digits_.begin(), '1');
  ++whole_;
}

bool Decimal::isNegative() const {
  return negative_ &&
         std::any_of(digits_.begin(), digits_.end(), [](char digit) { return digit != '0'; });
}

std::optional<std::int64_t> Decimal::units(int places) const {
  // Built up below zero, where there is one value more.
  std::int64_t sum = 0;
  for (qsizetype i = 0; i < whole_ + places; ++i) {
    const int digit = i < digits_.size() ? digits_[i] - '0' : 0;
    if (__builtin_mul_overflow(sum, std::int64_t{10}, &sum) ||
        __builtin_sub_overflow(sum, std::int64_t{digit}, &sum)) {
      return std::nullopt;
    }
  }
  if (negative_) {
    return sum;
  }
  return sum == std::numeric_limits<std::int64_t>::min() ? std::nullopt : std::optional(-sum);
}

double Decimal::toNumber() const {
  QVarLengthArray<char, 48> text;
  text.append('0');
  text.append(digits_.begin(), static_cast<int>(whole_));
  text.append('.');
  text.append(digits_.begin() + whole_, static_cast<int>(decimals()));
  text.append('0');
  double value = 0;
  const auto read = std::from_chars(text.begin(), text.end(), value, std::chars_format::fixed);
  if (read.ec == std::errc::result_out_of_range) {
    // Either too large, or so small that no double but zero is near it.
    if (whole_ > 0) {
      throw RuntimeError(ErrorNumber::Overflow);
    }
    value = 0;
  }
  return negative_ ? -value : value;
}

}  // namespace quartela
