#include "platform/database/dialect/Bound.h"

namespace quartela::dialect::bound {

Origin originOf(const Statement& statement, Index node) {
  const Node& shown = statement.at(node);
  if (shown.op == Op::Derived) {
    const Select& derived = *statement.source(shown.source).derived;
    return originOf(statement, derived.outputs[static_cast<std::size_t>(shown.number)].node);
  }
  if (shown.op != Op::Column) {
    return {};
  }
  const CatalogueTable* table = statement.source(shown.source).table;
  return {table, &table->columns[static_cast<std::size_t>(shown.number)]};
}

bool sameExpression(const Statement& statement, Index a, Index b) {
  if (a == b) {
    return true;
  }
  const Node& left = statement.at(a);
  const Node& right = statement.at(b);
  if (left.op != right.op || left.type != right.type || left.negated != right.negated ||
      left.source != right.source || left.number != right.number || left.text != right.text ||
      left.operandCount != right.operandCount) {
    return false;
  }
  for (int i = 0; i < left.operandCount; ++i) {
    if (!sameExpression(statement, statement.operand(left, i), statement.operand(right, i))) {
      return false;
    }
  }
  return true;
}

}  // namespace quartela::dialect::bound
