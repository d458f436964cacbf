#include "platform/database/dialect/Binder.h"
#include "platform/database/dialect/Errors.h"

namespace quartela::dialect {

using bound::Op;

namespace {

Op comparisonOp(ExpressionKind kind) {
  switch (kind) {
    case ExpressionKind::Equal:
      return Op::Equal;
    case ExpressionKind::NotEqual:
      return Op::NotEqual;
    case ExpressionKind::Less:
      return Op::Less;
    case ExpressionKind::LessEqual:
      return Op::LessEqual;
    case ExpressionKind::Greater:
      return Op::Greater;
    case ExpressionKind::GreaterEqual:
      return Op::GreaterEqual;
    case ExpressionKind::Between:
      return Op::Between;
    default:
      return Op::In;
  }
}

}  // namespace

Index Binder::expression(const Tree& tree, Exposures exposures, Index index) {
  const Expression& read = tree.at(index);
  switch (read.kind) {
    case ExpressionKind::Column:
      return column(exposures, read);
    case ExpressionKind::Star:
      syntaxError(read.position, "falta o nome do campo");
    case ExpressionKind::Negate:
      return operations_.negate(expression(tree, exposures, read.first));
    case ExpressionKind::Not:
      return operations_.invert(expression(tree, exposures, read.first));
    case ExpressionKind::IsNull:
      return operations_.isNull(expression(tree, exposures, read.first), read.negated);
    case ExpressionKind::Call:
      return call(tree, exposures, read);
    default:
      break;
  }
  if (read.first == kNone) {
    return literal(read);
  }
  return read.kind >= ExpressionKind::Add || read.kind <= ExpressionKind::Or
             ? binary(tree, exposures, read)
             : comparison(tree, exposures, read);
}

Index Binder::literal(const Expression& read) {
  switch (read.kind) {
    case ExpressionKind::True:
      return operations_.boolean(true);
    case ExpressionKind::False:
      return operations_.boolean(false);
    case ExpressionKind::Integer:
      return operations_.number(read.text, false);
    case ExpressionKind::Decimal:
      return operations_.number(read.text, true);
    case ExpressionKind::Text:
      return operations_.text(Op::Text, read.text, read.quote);
    case ExpressionKind::Date:
      return operations_.text(Op::Date, read.text, u'\0');
    case ExpressionKind::Identity:
      return operations_.leaf(Op::Identity, ValueType::I32);
    default:
      return operations_.leaf(Op::Null, ValueType::Null);
  }
}

Index Binder::column(Exposures exposures, const Expression& name) {
  return columnNode(findColumn(statement_, exposures, name.qualifier, name.text));
}

Index Binder::columnNode(const Found& found) {
  const auto position = static_cast<std::size_t>(found.position);
  const Index source = found.exposure->source;
  if (source == kNone) {
    return found.exposure->outputs[position].node;
  }
  if (const CatalogueTable* table = statement_.source(source).table) {
    return operations_.column(Op::Column, source, found.position, table->columns[position].type);
  }
  const Index shown = statement_.source(source).derived->outputs[position].node;
  return operations_.column(Op::Derived, source, found.position, operations_.at(shown).type);
}

Index Binder::comparison(const Tree& tree, Exposures exposures, const Expression& read) {
  std::vector<Index> compared = operands(tree, exposures, read);
  if (read.kind == ExpressionKind::Like) {
    return operations_.like(compared[0], compared[1], read.negated);
  }
  return operations_.compare(comparisonOp(read.kind), compared, read.negated);
}

Index Binder::binary(const Tree& tree, Exposures exposures, const Expression& read) {
  const Index left = expression(tree, exposures, read.first);
  const Index right = expression(tree, exposures, tree.at(read.first).next);
  switch (read.kind) {
    case ExpressionKind::And:
      return operations_.logical(Op::And, left, right);
    case ExpressionKind::Or:
      return operations_.logical(Op::Or, left, right);
    case ExpressionKind::Add:
      return operations_.add(left, right);
    case ExpressionKind::Subtract:
      return operations_.subtract(left, right);
    case ExpressionKind::Multiply:
      return operations_.multiply(left, right);
    case ExpressionKind::Divide:
      return operations_.divide(left, right);
    case ExpressionKind::IntegerDivide:
      return operations_.wholeDivision(Op::IntegerDivide, left, right);
    case ExpressionKind::Modulo:
      return operations_.wholeDivision(Op::Modulo, left, right);
    default:
      return operations_.concat(left, right);
  }
}

Index Binder::call(const Tree& tree, Exposures exposures, const Expression& read) {
  std::vector<Index> arguments = operands(tree, exposures, read);
  return operations_.call(read.function, arguments);
}

std::vector<Index> Binder::operands(const Tree& tree, Exposures exposures, const Expression& read) {
  std::vector<Index> bound;
  for (Index operand = read.first; operand != kNone; operand = tree.at(operand).next) {
    bound.push_back(expression(tree, exposures, operand));
  }
  return bound;
}

}  // namespace quartela::dialect
