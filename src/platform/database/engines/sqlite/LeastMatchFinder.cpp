#include "platform/database/engines/sqlite/LeastMatchFinder.h"

#include "platform/database/dialect/Names.h"
#include "platform/database/engines/sqlite/Renderer.h"

namespace quartela::sqlite {
namespace {

using bound::Node;
using bound::Op;
using bound::Select;

bool hasOneOwnTerm(const Select& select) {
  return !select.orderBy.empty() && !select.orderBy.front().implied &&
         (select.orderBy.size() == 1 || select.orderBy[1].implied);
}

// One row of one column of one table, in that column's order, under one condition.
bool hasTheShape(const bound::Statement& statement, const Select& select) {
  if (select.top != 1 || select.distinct || select.grouped || select.outputs.size() != 1 ||
      select.from.size() != 1 || select.where.size() != 1 || !hasOneOwnTerm(select)) {
    return false;
  }
  const bound::Join& from = select.from.front();
  const bound::Order& order = select.orderBy.front();
  const Index column = select.outputs.front().node;
  return from.group == nullptr && statement.source(from.source).table != nullptr &&
         statement.at(column).op == Op::Column && statement.at(column).type == ValueType::Text &&
         !order.descending && bound::sameExpression(statement, order.node, column);
}

// The letters in front of a closing %, when the pattern has no other sign; null otherwise.
std::optional<std::string> prefixOf(const bound::Statement& statement, const Node& like,
                                    Index column) {
  if (like.op != Op::Like || like.negated ||
      !bound::sameExpression(statement, statement.operand(like, 0), column)) {
    return std::nullopt;
  }
  const Node& pattern = statement.at(statement.operand(like, 1));
  if (pattern.op != Op::Text || !pattern.text.endsWith(QLatin1Char('%'))) {
    return std::nullopt;
  }
  const QStringView letters = pattern.text.chopped(1);
  if (letters.contains(QLatin1Char('%')) || letters.contains(QLatin1Char('_'))) {
    return std::nullopt;
  }
  std::string prefix;
  dialect::appendUtf8(prefix, letters, 0, pattern.quote);
  return prefix;
}

}  // namespace

std::optional<LeastMatch> findLeastMatch(const bound::Statement& statement) {
  const Select& select = *statement.select;
  if (!hasTheShape(statement, select)) {
    return std::nullopt;
  }
  const Index column = select.outputs.front().node;
  const std::optional<std::string> prefix =
      prefixOf(statement, statement.at(select.where.front()), column);
  if (!prefix) {
    return std::nullopt;
  }
  const bound::Origin origin = bound::originOf(statement, column);
  return LeastMatch{.table = origin.table->name,
                    .column = origin.column->name,
                    .prefix = *prefix,
                    .sql = Renderer(statement).renderExact(column)};
}

}  // namespace quartela::sqlite
