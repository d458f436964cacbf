// An amount of money in 64-bit fixed point with four decimals. Never a double; every operation that
// would leave the range raises error 6 (Overflow).
#pragma once

#include <QString>
#include <compare>
#include <cstdint>

namespace quartela {

class Money {
 public:
  static constexpr std::int64_t kUnitsPerReal = 10'000;
  static constexpr std::int64_t kUnitsPerCent = 100;

  constexpr Money() = default;
  // `units` are ten-thousandths of a real.
  static constexpr Money fromUnits(std::int64_t units) { return Money(units); }
  static Money fromCents(std::int64_t cents);
  static Money fromReais(std::int64_t reais);

  constexpr std::int64_t units() const { return units_; }
  // Whole cents, rounded half away from zero.
  std::int64_t cents() const;
  // The amount rounded half away from zero to two decimals.
  Money roundedToCents() const;

  constexpr bool isZero() const { return units_ == 0; }
  constexpr bool isNegative() const { return units_ < 0; }

  Money operator-() const;
  Money& operator+=(Money other);
  Money& operator-=(Money other);
  friend Money operator+(Money a, Money b) { return a += b; }
  friend Money operator-(Money a, Money b) { return a -= b; }
  friend Money operator*(Money a, std::int64_t factor);

  friend constexpr auto operator<=>(Money, Money) = default;

 private:
  constexpr explicit Money(std::int64_t units) : units_(units) {}
  std::int64_t units_ = 0;
};

}  // namespace quartela
