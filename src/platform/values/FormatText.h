// A format text taken apart once, for Format to apply many times.
#pragma once

#include <QStringView>
#include <QVarLengthArray>
#include <vector>

#include "platform/values/DateTime.h"
#include "platform/values/Decimal.h"

namespace quartela {

// The characters of a formatted cell on their way into a text.
using Characters = QVarLengthArray<char16_t, 64>;

// One section of a number format: the part in front of the decimal comma and the part behind it.
class NumberSection {
 public:
  explicit NumberSection(QStringView format);

  // How many decimals it shows at most.
  int decimals() const { return decimals_; }
  // Writes the digits of `number`, which has at most decimals() decimals, without its sign.
  void write(const Decimal& number, Characters& out) const;

 private:
  enum class Kind : std::uint8_t { Zero, Digit, Literal };
  struct Piece {
    Kind kind;
    char16_t literal;
  };

  void take(char16_t character, bool isLast);
  void writeWhole(const Decimal& number, Characters& out) const;
  void writeDecimals(const Decimal& number, Characters& out) const;
  // The digits of the whole part from `from` to before `to`, with the dots of thousands behind
  // them.
  void writeDigits(const Decimal& number, qsizetype from, qsizetype to, Characters& out) const;
  // The dot behind a digit that `left` digits follow.
  void writeDot(qsizetype left, Characters& out) const;

  std::vector<Piece> whole_;
  std::vector<Piece> behind_;
  int places_ = 0;
  int decimals_ = 0;
  bool hasPoint_ = false;
  bool isGrouped_ = false;
};

class DateFormat {
 public:
  explicit DateFormat(QStringView format);
  void write(DateTime date, Characters& out) const;

 private:
  enum class Kind : std::uint8_t { Day, Month, MonthName, Year, Hour, Minute, Second, Literal };
  struct Piece {
    Kind kind;
    // Digits at least; for a year exactly. The character of a literal.
    char16_t detail;
  };

  void takeRun(char16_t letter, int length);
  bool isBehindHour() const;

  std::vector<Piece> pieces_;
};

}  // namespace quartela
