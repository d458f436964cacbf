#include "platform/database/dialect/Operations.h"

#include <algorithm>
#include <array>

#include "platform/database/dialect/Errors.h"

namespace quartela::dialect {

using bound::Node;
using bound::Op;

namespace {

constexpr int kMoneyDecimals = 4;

bool isNumeric(ValueType type) {
  return type >= ValueType::Bool && type <= ValueType::Number;
}

bool isWhole(ValueType type) {
  return type == ValueType::I16 || type == ValueType::I32;
}

// The type in which two values can stand side by side; Null goes with everything.
ValueType joinedType(ValueType a, ValueType b) {
  if (a == b || b == ValueType::Null) {
    return a;
  }
  if (a == ValueType::Null) {
    return b;
  }
  if (!isNumeric(a) || !isNumeric(b)) {
    operandMismatch();
  }
  if (a == ValueType::Money || b == ValueType::Money) {
    return ValueType::Money;
  }
  if (a == ValueType::Number || b == ValueType::Number) {
    return ValueType::Number;
  }
  return ValueType::I32;
}

bool hasFinerDecimals(QStringView digits) {
  const qsizetype dot = digits.indexOf(u'.');
  if (dot < 0) {
    return false;
  }
  const QStringView finer = digits.mid(dot + 1).mid(kMoneyDecimals);
  return std::any_of(finer.begin(), finer.end(), [](QChar digit) { return digit != u'0'; });
}

bool fitsI32(QStringView digits) {
  constexpr QStringView kLargest = u"2147483647";
  while (digits.size() > 1 && digits.front() == u'0') {
    digits = digits.mid(1);
  }
  return digits.size() < kLargest.size() ||
         (digits.size() == kLargest.size() && digits.compare(kLargest) <= 0);
}

}  // namespace

Index Operations::make(Op op, ValueType type, std::span<const Index> operands) {
  Node node;
  node.op = op;
  node.type = type;
  node.firstOperand = static_cast<std::uint32_t>(statement_.operands.size());
  node.operandCount = static_cast<std::uint16_t>(operands.size());
  for (const Index operand : operands) {
    const Node& below = at(operand);
    node.constant = node.constant && below.constant;
    node.aggregate = node.aggregate || below.aggregate;
    node.depth = std::max(node.depth, static_cast<std::uint16_t>(below.depth + 1));
    statement_.operands.push_back(operand);
  }
  if (node.depth > kDeepest) {
    tooComplex();
  }
  statement_.nodes.push_back(node);
  return static_cast<Index>(statement_.nodes.size() - 1);
}

Index Operations::leaf(Op op, ValueType type) {
  return make(op, type, {});
}

Index Operations::boolean(bool value) {
  const Index index = leaf(Op::Bool, ValueType::Bool);
  statement_.nodes.back().number = value ? 1 : 0;
  return index;
}

Index Operations::number(QStringView digits, bool decimal) {
  const bool whole = !decimal && fitsI32(digits);
  const Index index = leaf(Op::Number, whole ? ValueType::I32 : ValueType::Number);
  statement_.nodes.back().text = digits;
  return index;
}

Index Operations::text(Op op, QStringView text, char16_t quote) {
  const Index index = leaf(op, op == Op::Date ? ValueType::DateTime : ValueType::Text);
  statement_.nodes.back().text = text;
  statement_.nodes.back().quote = quote;
  return index;
}

Index Operations::column(Op op, Index source, Index number, ValueType type) {
  const Index index = leaf(op, type);
  Node& node = statement_.nodes.back();
  node.source = source;
  node.number = number;
  node.constant = false;
  return index;
}

Index Operations::condition(Index node) {
  if (typeOf(node) == ValueType::Text || typeOf(node) == ValueType::DateTime) {
    operandMismatch();
  }
  return node;
}

Index Operations::countable(Index node) {
  condition(node);
  return typeOf(node) == ValueType::Bool ? convert(node, ValueType::I32) : node;
}

Index Operations::negate(Index node) {
  const Index operand = countable(node);
  const ValueType type = typeOf(operand) == ValueType::I16 ? ValueType::I32 : typeOf(operand);
  return make(Op::Negate, type, {operand});
}

Index Operations::invert(Index node) {
  return make(Op::Not, ValueType::Bool, {condition(node)});
}

Index Operations::logical(Op op, Index left, Index right) {
  return make(op, ValueType::Bool, {condition(left), condition(right)});
}

Index Operations::compare(Op op, std::span<Index> operands, bool negated) {
  const ValueType type = comparedType(operands);
  for (Index& operand : operands) {
    operand = convertForComparison(operand, type);
  }
  const Index index = make(op, ValueType::Bool, operands);
  statement_.nodes.back().negated = negated;
  return index;
}

Index Operations::like(Index node, Index pattern, bool negated) {
  const Index index = make(Op::Like, ValueType::Bool,
                           {convert(node, ValueType::Text), convert(pattern, ValueType::Text)});
  statement_.nodes.back().negated = negated;
  return index;
}

Index Operations::isNull(Index node, bool negated) {
  const Index index = make(Op::IsNull, ValueType::Bool, {node});
  statement_.nodes.back().negated = negated;
  return index;
}

Index Operations::sameTyped(Op op, Index left, Index right) {
  const Index a = countable(left);
  const Index b = countable(right);
  ValueType type = joinedType(typeOf(a), typeOf(b));
  if (type == ValueType::I16 || type == ValueType::Null) {
    type = ValueType::I32;
  }
  return make(op, type, {convert(a, type), convert(b, type)});
}

Index Operations::add(Index left, Index right) {
  if (typeOf(right) == ValueType::DateTime && typeOf(left) != ValueType::DateTime) {
    std::swap(left, right);
  }
  if (typeOf(left) == ValueType::DateTime) {
    return make(Op::AddDays, ValueType::DateTime, {left, countable(right)});
  }
  if (joinedType(typeOf(left), typeOf(right)) == ValueType::Text) {
    return make(Op::Concat, ValueType::Text, {left, right});
  }
  return sameTyped(Op::Add, left, right);
}

Index Operations::subtract(Index left, Index right) {
  if (typeOf(right) == ValueType::DateTime) {
    joinedType(typeOf(left), ValueType::DateTime);
    return make(Op::DaysBetween, ValueType::Number, {left, right});
  }
  if (typeOf(left) == ValueType::DateTime) {
    return make(Op::SubtractDays, ValueType::DateTime, {left, countable(right)});
  }
  return sameTyped(Op::Subtract, left, right);
}

Index Operations::multiply(Index left, Index right) {
  const Index a = countable(left);
  const Index b = countable(right);
  if (typeOf(a) == ValueType::Money || typeOf(b) == ValueType::Money) {
    return make(Op::Multiply, ValueType::Money, {a, b});
  }
  return sameTyped(Op::Multiply, a, b);
}

Index Operations::divide(Index left, Index right) {
  const Index a = countable(left);
  const Index b = countable(right);
  if (typeOf(a) != ValueType::Money) {
    return make(Op::Divide, ValueType::Number,
                {convert(a, ValueType::Number), convert(b, ValueType::Number)});
  }
  if (typeOf(b) == ValueType::Money) {
    return make(Op::Divide, ValueType::Number, {a, b});
  }
  return make(Op::Divide, ValueType::Money, {a, convert(b, ValueType::Number)});
}

Index Operations::wholeDivision(Op op, Index left, Index right) {
  return make(
      op, ValueType::I32,
      {convert(countable(left), ValueType::I32), convert(countable(right), ValueType::I32)});
}

Index Operations::concat(Index left, Index right) {
  const Index index = make(Op::Concat, ValueType::Text,
                           {convert(left, ValueType::Text), convert(right, ValueType::Text)});
  statement_.nodes.back().negated = true;
  return index;
}

bool Operations::isLiteral(Index index) const {
  const Node& node = at(index);
  return node.op == Op::Number || (node.op == Op::Negate && isLiteral(statement_.operand(node, 0)));
}

// A literal, or one with its sign, as it stands in another type.
Index Operations::retype(Index literal, ValueType type) {
  const Node node = at(literal);
  if (node.op == Op::Negate) {
    const Index operand = retype(statement_.operand(node, 0), type);
    return make(Op::Negate, type, {operand});
  }
  const Index index = leaf(Op::Number, type);
  statement_.nodes.back().text = node.text;
  return index;
}

Index Operations::convert(Index node, ValueType type) {
  const ValueType from = typeOf(node);
  if (from == type || from == ValueType::Null || (isWhole(from) && isWhole(type))) {
    return node;
  }
  if (from == ValueType::Bool && type != ValueType::Text) {
    const Index whole = make(Op::Convert, ValueType::I32, {node});
    return convert(whole, type);
  }
  if (isLiteral(node) && type == ValueType::Number) {
    return retype(node, type);
  }
  if (at(node).op == Op::Number && type == ValueType::Money && !hasFinerDecimals(at(node).text)) {
    return retype(node, type);
  }
  return make(Op::Convert, type, {node});
}

// As convert(), but a literal that is finer than amounts are keeps all its decimals, and whole
// numbers are held against Numbers as they stand, so that an index on them still serves.
Index Operations::convertForComparison(Index node, ValueType type) {
  if (type == ValueType::Money && isLiteral(node) && typeOf(node) != ValueType::Money) {
    return retype(node, type);
  }
  return type == ValueType::Number && isWhole(typeOf(node)) ? node : convert(node, type);
}

ValueType Operations::commonType(std::span<const Index> operands) const {
  ValueType type = ValueType::Null;
  for (const Index operand : operands) {
    type = joinedType(type, typeOf(operand));
  }
  return type;
}

// Amounts are held against amounts, except where a Number would have to be rounded for it.
ValueType Operations::comparedType(std::span<const Index> operands) const {
  const ValueType type = commonType(operands);
  if (type != ValueType::Money) {
    return type;
  }
  const bool rounded = std::any_of(operands.begin(), operands.end(), [this](Index operand) {
    return typeOf(operand) == ValueType::Number && !isLiteral(operand);
  });
  return rounded ? ValueType::Number : type;
}

}  // namespace quartela::dialect
