// A decimal number digit by digit, so that nothing on the way between text, money and the screen is
// ever a double. Convert reads with it and Format writes with it.
#pragma once

#include <QStringView>
#include <QVarLengthArray>
#include <cstdint>
#include <optional>

namespace quartela {

class Decimal {
 public:
  enum class Rounding { HalfAway, HalfEven };

  // The number in the Brazilian form: an optional sign, digits with thousands dots in whole groups
  // of three or with none, an optional decimal comma and decimals; blanks around it. At least one
  // digit stands somewhere; a number with dots begins with 1 to 9, so that "0.500" is not read as
  // 500. Nothing when the text is anything else.
  static std::optional<Decimal> fromText(QStringView text);
  // `units` of ten to the power of minus `decimals`.
  static Decimal fromUnits(std::int64_t units, int decimals);
  // The shortest decimal that stands for the number; error 6 when it is not finite.
  static Decimal fromNumber(double number);

  // Cuts to at most `decimals` decimals.
  void round(int decimals, Rounding rounding);

  // False for zero, whatever its sign was.
  bool isNegative() const;
  // The digits in front of the comma without leading zeros (none below 1), then those behind it.
  qsizetype wholeDigits() const { return whole_; }
  qsizetype decimals() const { return digits_.size() - whole_; }
  // The digit at `position` of all of them, '0' to '9'.
  char digit(qsizetype position) const { return digits_[position]; }

  // The number as units of ten to the power of minus `places`; it has at most so many decimals.
  // Nothing when it does not fit.
  std::optional<std::int64_t> units(int places) const;
  // The nearest double; error 6 when it is out of range.
  double toNumber() const;

 private:
  void append(char digit) { digits_.append(digit); }
  // Adds one to the last digit that is left.
  void carry();

  QVarLengthArray<char, 40> digits_;
  qsizetype whole_ = 0;
  bool negative_ = false;
};

}  // namespace quartela
