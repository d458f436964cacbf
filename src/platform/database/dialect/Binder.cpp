#include "platform/database/dialect/Binder.h"

#include <algorithm>

#include "platform/database/dialect/Errors.h"
#include "platform/database/dialect/Names.h"

namespace quartela::dialect {

using bound::Node;
using bound::Op;
using bound::Select;

namespace {

bool isPlainStar(const Tree& tree) {
  return tree.items.size() == 1 && tree.items.front().expression == kNone &&
         tree.fromRoot != kNone && tree.source(tree.fromRoot).kind == FromNode::Kind::Name;
}

bool hasClauses(const Tree& tree) {
  return tree.where != kNone || tree.grouped() || !tree.orderBy.empty() || tree.distinct ||
         tree.top >= 0;
}

}  // namespace

bound::Statement bind(const Tree& tree, const Catalogue& catalogue) {
  return Binder(catalogue).bind(tree);
}

Binder::Binder(const Catalogue& catalogue) : catalogue_(catalogue), operations_(statement_) {
  statement_.nodes.reserve(64);
  statement_.operands.reserve(64);
  statement_.sources.reserve(8);
}

bound::Statement Binder::bind(const Tree& tree) && {
  statement_.kind = tree.kind;
  if (tree.kind == StatementKind::Delete) {
    deletion(tree);
  } else {
    statement_.select = select(tree);
    findUpdatable();
  }
  return std::move(statement_);
}

std::unique_ptr<Select> Binder::select(const Tree& tree) {
  if (const Tree* whole = wholeQuery(tree)) {
    openQuery();
    auto bound = select(*whole);
    --openQueries_;
    return bound;
  }
  auto bound = std::make_unique<Select>();
  Frame frame{tree, *bound};
  body(frame);
  return bound;
}

// A stored query that comes to itself again goes on without end, so the depth tells it.
void Binder::openQuery() {
  constexpr int kMostQueries = 8;
  if (++openQueries_ > kMostQueries) {
    syntaxError("consultas gravadas que se chamam em círculo");
  }
}

// The stored query that the statement shows as it stands; null when it does anything else.
const Tree* Binder::wholeQuery(const Tree& tree) const {
  if (!isPlainStar(tree) || hasClauses(tree) || !tree.items.front().qualifier.isEmpty()) {
    return nullptr;
  }
  const QStringView name = tree.source(tree.fromRoot).name;
  return catalogue_.table(name) != nullptr ? nullptr : catalogue_.storedTree(name);
}

void Binder::body(Frame& frame) {
  Select& select = frame.select;
  if (frame.tree.fromRoot != kNone) {
    select.from = source(frame, frame.tree.fromRoot, false);
  }
  where(frame);
  select.outputs = outputs(frame);
  select.distinct = select.distinct || frame.tree.distinct;
  select.top = frame.tree.top;
  grouping(frame);
  ordering(frame);
  checkGrouping(select);
}

void Binder::where(Frame& frame) {
  if (frame.tree.where != kNone) {
    frame.select.where.push_back(
        operations_.condition(expression(frame.tree, frame.exposures, frame.tree.where)));
  }
}

void Binder::grouping(Frame& frame) {
  frame.select.grouped = frame.tree.grouped();
  for (const Index term : frame.tree.groupBy) {
    const Index node = expression(frame.tree, frame.exposures, term);
    if (operations_.at(node).constant) {
      syntaxError(frame.tree.at(term).position, "GROUP BY sem campo");
    }
    frame.select.groupBy.push_back(node);
  }
  if (frame.tree.having != kNone) {
    if (!frame.tree.aggregates && frame.tree.groupBy.empty()) {
      syntaxError("HAVING sem GROUP BY");
    }
    frame.select.having =
        operations_.condition(expression(frame.tree, frame.exposures, frame.tree.having));
  }
}

// An order of the statement's own takes the place of one that a stored query brought along. What is
// the same in every row orders nothing.
void Binder::ordering(Frame& frame) {
  if (frame.tree.orderBy.empty()) {
    return;
  }
  frame.select.orderBy.clear();
  for (const OrderTerm& term : frame.tree.orderBy) {
    const bound::Order order = orderTerm(frame, term);
    if (!operations_.at(order.node).constant) {
      frame.select.orderBy.push_back(order);
    }
  }
}

bound::Order Binder::orderTerm(const Frame& frame, const OrderTerm& term) {
  const Expression& by = frame.tree.at(term.expression);
  bound::Order order;
  order.descending = term.descending;
  if (by.kind == ExpressionKind::Integer) {
    order.node = ordinal(frame, by);
  } else {
    order.node = aliased(frame, by);
  }
  if (order.node == kNone) {
    order.node = expression(frame.tree, frame.exposures, term.expression);
  }
  return order;
}

Index Binder::ordinal(const Frame& frame, const Expression& number) const {
  const qulonglong place = number.text.toULongLong();
  if (place < 1 || place > frame.select.outputs.size()) {
    syntaxError(number.position, "ORDER BY com um número que não é de coluna do resultado");
  }
  return frame.select.outputs[static_cast<std::size_t>(place - 1)].node;
}

// The output that bears an alias of that name; kNone when none does.
Index Binder::aliased(const Frame& frame, const Expression& name) const {
  if (name.kind != ExpressionKind::Column || !name.qualifier.isEmpty()) {
    return kNone;
  }
  for (const bound::Output& output : frame.select.outputs) {
    if (output.named && sameName(output.name, name.text)) {
      return output.node;
    }
  }
  return kNone;
}

void Binder::checkGrouping(const Select& select) const {
  if (!select.grouped) {
    return;
  }
  if (select.groupBy.empty() && !showsAggregate(select)) {
    syntaxError("função de agregação em HAVING ou ORDER BY sem GROUP BY e sem outra no resultado");
  }
  for (const bound::Output& output : select.outputs) {
    requireGrouped(select, output.node);
  }
  for (const bound::Order& order : select.orderBy) {
    requireGrouped(select, order.node);
  }
  if (select.having != kNone) {
    requireGrouped(select, select.having);
  }
}

bool Binder::showsAggregate(const Select& select) const {
  return std::any_of(
      select.outputs.begin(), select.outputs.end(),
      [this](const bound::Output& output) { return operations_.at(output.node).aggregate; });
}

void Binder::requireGrouped(const Select& select, Index index) const {
  const Node& node = operations_.at(index);
  if (node.constant || node.op >= Op::Sum) {
    return;
  }
  for (const Index group : select.groupBy) {
    if (bound::sameExpression(statement_, group, index)) {
      return;
    }
  }
  if (node.operandCount == 0) {
    syntaxError("campo fora do GROUP BY e fora de função de agregação");
  }
  for (int i = 0; i < node.operandCount; ++i) {
    requireGrouped(select, statement_.operand(node, i));
  }
}

void Binder::deletion(const Tree& tree) {
  const FromNode& node = tree.source(tree.fromRoot);
  const CatalogueTable* target = catalogue_.table(node.name);
  if (target == nullptr) {
    if (catalogue_.storedQuery(node.name) != nullptr) {
      invalidStatement(node.name);
    }
    unknownTable(node.name);
  }
  statement_.select = std::make_unique<Select>();
  Frame frame{tree, *statement_.select};
  frame.select.from = table(frame, node, *target);
  where(frame);
}

// Rows can be written through a SELECT that shows rows of one table, each once.
void Binder::findUpdatable() {
  const Select& select = *statement_.select;
  if (select.grouped || select.distinct || statement_.sources.size() != 1 ||
      statement_.sources.front().table == nullptr) {
    return;
  }
  const std::vector<CatalogueColumn>& columns = statement_.sources.front().table->columns;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].primaryKey) {
      statement_.keyNodes.push_back(
          operations_.column(Op::Column, 0, static_cast<Index>(i), columns[i].type));
    }
  }
  statement_.updatable = statement_.keyNodes.empty() ? kNone : 0;
}

}  // namespace quartela::dialect
