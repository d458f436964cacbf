#include <array>

#include "platform/database/dialect/Errors.h"
#include "platform/database/dialect/Operations.h"

namespace quartela::dialect {

using bound::Op;

Index Operations::call(Function function, std::span<Index> arguments) {
  switch (function) {
    case Function::Year:
      return datePart(Op::Year, arguments[0]);
    case Function::Month:
      return datePart(Op::Month, arguments[0]);
    case Function::Day:
      return datePart(Op::Day, arguments[0]);
    case Function::Now:
      return leaf(Op::Now, ValueType::DateTime);
    case Function::Date:
      return leaf(Op::Today, ValueType::DateTime);
    case Function::Int:
      return floor(arguments[0]);
    case Function::Len:
      return make(Op::Length, ValueType::I32, {convert(arguments[0], ValueType::Text)});
    case Function::UCase:
      return make(Op::Upper, ValueType::Text, {convert(arguments[0], ValueType::Text)});
    case Function::LCase:
      return make(Op::Lower, ValueType::Text, {convert(arguments[0], ValueType::Text)});
    case Function::Nz:
      return coalesce(arguments);
    case Function::IIf:
      return either(arguments);
    default:
      return aggregate(function, arguments);
  }
}

Index Operations::datePart(Op op, Index node) {
  if (typeOf(node) != ValueType::DateTime && typeOf(node) != ValueType::Null) {
    operandMismatch();
  }
  return make(op, ValueType::I16, {node});
}

Index Operations::floor(Index node) {
  const Index operand = countable(node);
  const ValueType type = typeOf(operand);
  return type == ValueType::Money || type == ValueType::Number ? make(Op::Floor, type, {operand})
                                                               : operand;
}

// With one argument a null becomes the empty text, or 0.
Index Operations::coalesce(std::span<Index> arguments) {
  const ValueType first = typeOf(arguments[0]);
  const bool textual = first == ValueType::Text || first == ValueType::Null;
  const Index otherwise = arguments.size() > 1 ? arguments[1]
                          : textual            ? text(Op::Text, u"", u'\'')
                                               : number(u"0", false);
  const std::array both{arguments[0], otherwise};
  const ValueType type = commonType(both);
  return make(Op::Coalesce, type, {convert(both[0], type), convert(both[1], type)});
}

Index Operations::either(std::span<Index> arguments) {
  const ValueType type = commonType(arguments.subspan(1));
  return make(Op::If, type,
              {condition(arguments[0]), convert(arguments[1], type), convert(arguments[2], type)});
}

Index Operations::aggregate(Function function, std::span<Index> arguments) {
  for (const Index argument : arguments) {
    if (at(argument).aggregate) {
      syntaxError("função de agregação dentro de outra");
    }
  }
  Index index = kNone;
  switch (function) {
    case Function::Count:
      index = make(Op::Count, ValueType::I32, arguments);
      break;
    case Function::Sum: {
      const Index operand = countable(arguments[0]);
      const ValueType type = typeOf(operand) == ValueType::I16 ? ValueType::I32 : typeOf(operand);
      index = make(Op::Sum, type, {operand});
      break;
    }
    case Function::Avg: {
      const Index operand = countable(arguments[0]);
      const bool amount = typeOf(operand) == ValueType::Money;
      index = make(Op::Average, amount ? ValueType::Money : ValueType::Number, {operand});
      break;
    }
    default: {
      const Op op = function == Function::Max   ? Op::Max
                    : function == Function::Min ? Op::Min
                                                : Op::First;
      index = make(op, typeOf(arguments[0]), {arguments[0]});
    }
  }
  bound::Node& node = statement_.nodes[static_cast<std::size_t>(index)];
  node.aggregate = true;
  node.constant = false;
  return index;
}

}  // namespace quartela::dialect
