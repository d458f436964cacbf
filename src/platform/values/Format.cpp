#include "platform/values/Format.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>

#include "platform/values/Convert.h"
#include "platform/values/DateText.h"
#include "platform/values/FormatText.h"

namespace quartela {
namespace {

// The sections for numbers from zero up and for negative ones; the second may be missing.
struct NumberFormat {
  NumberSection positive;
  std::optional<NumberSection> negative;
};

// A format without any place for a digit or a part of a date changes nothing.
using Formatter = std::variant<std::monostate, NumberFormat, DateFormat>;

struct Hash {
  using is_transparent = void;
  std::size_t operator()(std::u16string_view text) const {
    return std::hash<std::u16string_view>()(text);
  }
};
using Cache = std::unordered_map<std::u16string, Formatter, Hash, std::equal_to<>>;

// The format texts of the program are far fewer; this is for a run of made-up ones.
constexpr std::size_t kCacheLimit = 256;

// The position of the first character of `wanted` that no backslash stands in front of, or -1.
qsizetype find(QStringView format, QStringView wanted) {
  for (qsizetype i = 0; i < format.size(); ++i) {
    if (format[i] == u'\\') {
      ++i;
    } else if (wanted.contains(format[i])) {
      return i;
    }
  }
  return -1;
}

NumberFormat numberFormat(QStringView format) {
  const qsizetype border = find(format, u";");
  if (border < 0) {
    return {NumberSection(format), std::nullopt};
  }
  const QStringView second = format.sliced(border + 1);
  NumberFormat sections{NumberSection(format.first(border)), std::nullopt};
  if (!second.isEmpty()) {
    sections.negative.emplace(second);
  }
  return sections;
}

Formatter compile(QStringView format) {
  if (find(format, u"0#") >= 0) {
    return numberFormat(format);
  }
  if (find(format, u"dDmMyYhHsS") >= 0) {
    return DateFormat(format);
  }
  return {};
}

const Formatter& formatter(QStringView format) {
  thread_local Cache cache;
  const std::u16string_view key(format.utf16(), static_cast<std::size_t>(format.size()));
  const auto known = cache.find(key);
  if (known != cache.end()) {
    return known->second;
  }
  if (cache.size() >= kCacheLimit) {
    cache.clear();
  }
  return cache.emplace(std::u16string(key), compile(format)).first->second;
}

QString text(const Characters& characters) {
  return QStringView(characters).toString();
}

QString formatted(Decimal number, const NumberFormat& format) {
  const bool below = number.isNegative() && format.negative;
  const NumberSection& section = below ? *format.negative : format.positive;
  number.round(section.decimals(), Decimal::Rounding::HalfAway);
  Characters out;
  if (number.isNegative() && !below) {
    out.append(u'-');
  }
  // What has become zero is shown as zero is.
  (number.isNegative() ? section : format.positive).write(number, out);
  return text(out);
}

std::optional<Decimal> decimalOf(const Value& value) {
  switch (value.type()) {
    case ValueType::Text:
      return Decimal::fromText(value.text());
    case ValueType::I16:
      return Decimal::fromUnits(value.i16(), 0);
    case ValueType::I32:
      return Decimal::fromUnits(value.i32(), 0);
    case ValueType::Money:
      return Decimal::fromUnits(value.money().units(), 4);
    case ValueType::Bool:
      return std::nullopt;
    default:
      return Decimal::fromNumber(Convert::toNumber(value));
  }
}

std::optional<DateTime> dateOf(const Value& value) {
  switch (value.type()) {
    case ValueType::DateTime:
      return value.dateTime();
    case ValueType::Text:
      return dateFromText(value.text());
    case ValueType::Bool:
      return std::nullopt;
    default:
      return dateFromSerial(Convert::toNumber(value));
  }
}

}  // namespace

QString Format(const Value& value, QStringView format) {
  if (value.isNull()) {
    return {};
  }
  const Formatter& after = formatter(format);
  if (const auto* numbers = std::get_if<NumberFormat>(&after)) {
    if (auto number = decimalOf(value)) {
      return formatted(*std::move(number), *numbers);
    }
  } else if (const auto* dates = std::get_if<DateFormat>(&after)) {
    if (const auto date = dateOf(value)) {
      Characters out;
      dates->write(*date, out);
      return text(out);
    }
  }
  return Convert::toText(value);
}

}  // namespace quartela
