#include "platform/values/Convert.h"

#include <limits>

#include "platform/values/DateText.h"
#include "platform/values/Decimal.h"
#include "platform/values/Format.h"
#include "platform/values/RuntimeError.h"

namespace quartela::Convert {
namespace {

constexpr int kMoneyDecimals = 4;

[[noreturn]] void typeMismatch() {
  throw RuntimeError(ErrorNumber::TypeMismatch);
}

[[noreturn]] void overflow() {
  throw RuntimeError(ErrorNumber::Overflow);
}

double serialOf(DateTime date) {
  return date.days() + double(date.secondsOfDay()) / DateTime::kSecondsPerDay;
}

Decimal decimalOf(const Value& value) {
  switch (value.type()) {
    case ValueType::Bool:
      return Decimal::fromUnits(value.boolean() ? -1 : 0, 0);
    case ValueType::I16:
      return Decimal::fromUnits(value.i16(), 0);
    case ValueType::I32:
      return Decimal::fromUnits(value.i32(), 0);
    case ValueType::Money:
      return Decimal::fromUnits(value.money().units(), kMoneyDecimals);
    case ValueType::Number:
      return Decimal::fromNumber(value.number());
    case ValueType::DateTime:
      return Decimal::fromNumber(serialOf(value.dateTime()));
    case ValueType::Text:
      if (auto number = Decimal::fromText(value.text())) {
        return *std::move(number);
      }
      break;
    case ValueType::Null:
      break;
  }
  typeMismatch();
}

std::int64_t unitsOf(const Value& value, int decimals) {
  Decimal number = decimalOf(value);
  number.round(decimals, Decimal::Rounding::HalfEven);
  const auto units = number.units(decimals);
  if (!units) {
    overflow();
  }
  return *units;
}

template <typename Integer>
Integer integerOf(const Value& value) {
  const std::int64_t whole = unitsOf(value, 0);
  if (whole < std::numeric_limits<Integer>::min() || whole > std::numeric_limits<Integer>::max()) {
    overflow();
  }
  return static_cast<Integer>(whole);
}

bool isWord(QStringView text, QLatin1String portuguese, QLatin1String english) {
  return text.compare(portuguese, Qt::CaseInsensitive) == 0 ||
         text.compare(english, Qt::CaseInsensitive) == 0;
}

QString textOf(const Decimal& number) {
  QString text;
  text.reserve(number.wholeDigits() + number.decimals() + 3);
  if (number.isNegative()) {
    text += u'-';
  }
  if (number.wholeDigits() == 0) {
    text += u'0';
  }
  qsizetype end = number.wholeDigits() + number.decimals();
  while (end > number.wholeDigits() && number.digit(end - 1) == '0') {
    --end;
  }
  for (qsizetype i = 0; i < end; ++i) {
    if (i == number.wholeDigits()) {
      text += u',';
    }
    text += QLatin1Char(number.digit(i));
  }
  return text;
}

}  // namespace

std::int16_t toI16(const Value& value) {
  return value.type() == ValueType::I16 ? value.i16() : integerOf<std::int16_t>(value);
}

std::int32_t toI32(const Value& value) {
  return value.type() == ValueType::I32 ? value.i32() : integerOf<std::int32_t>(value);
}

Money toMoney(const Value& value) {
  return value.type() == ValueType::Money ? value.money()
                                          : Money::fromUnits(unitsOf(value, kMoneyDecimals));
}

double toNumber(const Value& value) {
  switch (value.type()) {
    case ValueType::Number:
      return value.number();
    case ValueType::DateTime:
      return serialOf(value.dateTime());
    default:
      return decimalOf(value).toNumber();
  }
}

DateTime toDateTime(const Value& value) {
  if (value.type() == ValueType::DateTime) {
    return value.dateTime();
  }
  if (value.type() == ValueType::Text) {
    if (const auto date = dateFromText(value.text())) {
      return *date;
    }
    typeMismatch();
  }
  const auto date = dateFromSerial(toNumber(value));
  if (!date) {
    overflow();
  }
  return *date;
}

bool toBool(const Value& value) {
  if (value.type() == ValueType::Bool) {
    return value.boolean();
  }
  if (value.type() == ValueType::Text) {
    const QStringView text = QStringView(value.text()).trimmed();
    if (isWord(text, QLatin1String("Verdadeiro"), QLatin1String("True"))) {
      return true;
    }
    if (isWord(text, QLatin1String("Falso"), QLatin1String("False"))) {
      return false;
    }
  }
  return toNumber(value) != 0;
}

QString toText(const Value& value) {
  switch (value.type()) {
    case ValueType::Null:
      return {};
    case ValueType::Text:
      return value.text();
    case ValueType::Bool:
      return value.boolean() ? QStringLiteral("Verdadeiro") : QStringLiteral("Falso");
    case ValueType::I16:
      return QString::number(value.i16());
    case ValueType::I32:
      return QString::number(value.i32());
    case ValueType::DateTime:
      return Format(value, value.dateTime().hasTime() ? u"dd/MM/yyyy hh:mm:ss" : kDateFormat);
    default:
      return textOf(decimalOf(value));
  }
}

Value toType(const Value& value, ValueType type) {
  if (value.isNull() || value.type() == type) {
    return value;
  }
  switch (type) {
    case ValueType::Bool:
      return toBool(value);
    case ValueType::I16:
      return toI16(value);
    case ValueType::I32:
      return toI32(value);
    case ValueType::Money:
      return toMoney(value);
    case ValueType::Number:
      return toNumber(value);
    case ValueType::DateTime:
      return toDateTime(value);
    case ValueType::Text:
      return toText(value);
    case ValueType::Null:
      break;
  }
  return value;
}

bool isNumeric(QStringView text) {
  return Decimal::fromText(text).has_value();
}

bool isDate(QStringView text) {
  return dateFromText(text).has_value();
}

}  // namespace quartela::Convert
