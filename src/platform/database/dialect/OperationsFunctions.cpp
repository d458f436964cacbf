#include "platform/database/dialect/Errors.h"
#include "platform/database/dialect/Operations.h"

namespace quartela::dialect {

using bound::Op;

Index Operations::call(Function function, std::span<Index> arguments) {
  switch (function) {
    case Function::Year:
      return year(arguments[0]);
    case Function::Now:
      return leaf(Op::Now, ValueType::DateTime);
    default:
      return aggregate(function, arguments);
  }
}

Index Operations::year(Index node) {
  if (typeOf(node) != ValueType::DateTime && typeOf(node) != ValueType::Null) {
    operandMismatch();
  }
  return make(Op::Year, ValueType::I16, {node});
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
    default:
      index =
          make(function == Function::Max ? Op::Max : Op::Min, typeOf(arguments[0]), {arguments[0]});
  }
  bound::Node& node = statement_.nodes[static_cast<std::size_t>(index)];
  node.aggregate = true;
  node.constant = false;
  return index;
}

}  // namespace quartela::dialect
