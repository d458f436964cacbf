// Builds the typed nodes of a bound statement: checks what may be compared and counted together,
// and puts in the conversions that an engine must carry out.
//
// Numbers: Bool counts as -1 and 0; whole numbers among themselves give I32; a Number makes the
// other a Number; an amount makes the other an amount, rounded half away from zero to the fourth
// decimal. Amount times or by a number is an amount, amount by amount a Number, whole by whole a
// Number. DateTime plus or minus days is a DateTime, DateTime minus DateTime a Number of days.
#pragma once

#include <span>
#include <vector>

#include "platform/database/dialect/Bound.h"

namespace quartela::dialect {

class Operations {
 public:
  explicit Operations(bound::Statement& statement) : statement_(statement) {}

  Index leaf(bound::Op op, ValueType type);
  Index boolean(bool value);
  Index number(QStringView digits, bool decimal);
  Index text(bound::Op op, QStringView text, char16_t quote);
  Index column(bound::Op op, Index source, Index number, ValueType type);

  // `node` where a condition is asked for; error 3464 for texts and dates.
  Index condition(Index node);
  Index negate(Index node);
  Index invert(Index node);
  Index logical(bound::Op op, Index left, Index right);

  // Between, In and the six comparisons; all operands become one type (whole numbers may stand
  // among Numbers), else error 3464.
  Index compare(bound::Op op, std::span<Index> operands, bool negated = false);
  Index like(Index node, Index pattern, bool negated);
  Index isNull(Index node, bool negated);

  Index add(Index left, Index right);
  Index subtract(Index left, Index right);
  Index multiply(Index left, Index right);
  Index divide(Index left, Index right);
  Index wholeDivision(bound::Op op, Index left, Index right);
  Index concat(Index left, Index right);

  Index call(Function function, std::span<Index> arguments);

  const bound::Node& at(Index index) const { return statement_.at(index); }

 private:
  Index make(bound::Op op, ValueType type, std::span<const Index> operands);
  Index make(bound::Op op, ValueType type, std::initializer_list<Index> operands) {
    return make(op, type, std::span<const Index>(operands.begin(), operands.size()));
  }
  ValueType typeOf(Index index) const { return at(index).type; }
  bool isLiteral(Index index) const;

  Index convert(Index node, ValueType type);
  Index convertForComparison(Index node, ValueType type);
  Index retype(Index literal, ValueType type);
  ValueType commonType(std::span<const Index> operands) const;
  ValueType comparedType(std::span<const Index> operands) const;
  // The operand as a number that can be counted with; error 3464 for texts and dates.
  Index countable(Index node);
  Index sameTyped(bound::Op op, Index left, Index right);
  Index year(Index node);
  Index aggregate(Function function, std::span<Index> arguments);

  bound::Statement& statement_;
};

}  // namespace quartela::dialect
