#include "platform/values/Money.h"

#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

[[noreturn]] void overflow() {
  throw RuntimeError(ErrorNumber::Overflow);
}

std::int64_t multiply(std::int64_t a, std::int64_t b) {
  std::int64_t result = 0;
  if (__builtin_mul_overflow(a, b, &result)) {
    overflow();
  }
  return result;
}

}  // namespace

Money Money::fromCents(std::int64_t cents) {
  return Money(multiply(cents, kUnitsPerCent));
}

Money Money::fromReais(std::int64_t reais) {
  return Money(multiply(reais, kUnitsPerReal));
}

std::int64_t Money::cents() const {
  const std::int64_t whole = units_ / kUnitsPerCent;
  const std::int64_t rest = units_ % kUnitsPerCent;
  if (rest >= kUnitsPerCent / 2) {
    return whole + 1;
  }
  return rest <= -kUnitsPerCent / 2 ? whole - 1 : whole;
}

Money Money::roundedToCents() const {
  return fromCents(cents());
}

Money Money::operator-() const {
  return Money() - *this;
}

Money& Money::operator+=(Money other) {
  if (__builtin_add_overflow(units_, other.units_, &units_)) {
    overflow();
  }
  return *this;
}

Money& Money::operator-=(Money other) {
  if (__builtin_sub_overflow(units_, other.units_, &units_)) {
    overflow();
  }
  return *this;
}

Money operator*(Money a, std::int64_t factor) {
  return Money(multiply(a.units_, factor));
}

}  // namespace quartela
