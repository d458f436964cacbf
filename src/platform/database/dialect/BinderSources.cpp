#include <algorithm>

#include "platform/database/dialect/Binder.h"
#include "platform/database/dialect/Errors.h"
#include "platform/database/dialect/Joins.h"
#include "platform/database/dialect/Names.h"

namespace quartela::dialect {

using bound::Joins;

namespace {

// Whether every item is a column or a star: null wherever its table's row is missing.
bool showsColumnsOnly(const Tree& query) {
  return std::all_of(query.items.begin(), query.items.end(), [&](const SelectItem& item) {
    return item.expression == kNone || query.at(item.expression).kind == ExpressionKind::Column;
  });
}

bool isOnlySource(const Tree& tree) {
  return tree.source(tree.fromRoot).kind == FromNode::Kind::Name;
}

bool showsAllOnly(const Tree& tree) {
  return isOnlySource(tree) && tree.items.size() == 1 && tree.items.front().expression == kNone &&
         !tree.grouped();
}

}  // namespace

// `nullable`: an outer join further up may leave out the rows of this node.
Joins Binder::source(Frame& frame, Index index, bool nullable) {
  const FromNode& node = frame.tree.source(index);
  if (node.kind == FromNode::Kind::Name) {
    return named(frame, node, nullable);
  }
  const std::size_t first = frame.exposures.size();
  Joins left = source(frame, node.left, nullable || node.kind == FromNode::Kind::Right);
  Joins right = source(frame, node.right, nullable || node.kind == FromNode::Kind::Left);
  if (node.on == kNone) {
    return innerJoin(std::move(left), std::move(right), kNone);
  }
  const Exposures joined = Exposures(frame.exposures).subspan(first);
  const Index on = operations_.condition(expression(frame.tree, joined, node.on));
  switch (node.kind) {
    case FromNode::Kind::Left:
      return outerJoin(std::move(left), std::move(right), on);
    case FromNode::Kind::Right:
      return outerJoin(std::move(right), std::move(left), on);
    default:
      return innerJoin(std::move(left), std::move(right), on);
  }
}

Joins Binder::named(Frame& frame, const FromNode& node, bool nullable) {
  if (const CatalogueTable* found = catalogue_.table(node.name)) {
    return table(frame, node, *found);
  }
  if (const Tree* stored = catalogue_.storedTree(node.name)) {
    return query(frame, node, *stored, nullable);
  }
  unknownTable(node.name);
}

Joins Binder::table(Frame& frame, const FromNode& node, const CatalogueTable& table) {
  bound::Source source;
  source.table = &table;
  Exposure& exposure = frame.exposures.emplace_back();
  exposure.name = node.alias.isEmpty() ? QStringView(table.name) : node.alias;
  exposure.source = addSource(std::move(source), exposure.name);
  return singleJoin(exposure.source);
}

Joins Binder::query(Frame& frame, const FromNode& node, const Tree& query, bool nullable) {
  openQuery();
  Joins joins = merges(frame, query, nullable) ? merge(frame, node, query, nullable)
                                               : nest(frame, node, query);
  --openQueries_;
  return joins;
}

// A query is merged when its rows are still the same with the statement's conditions among its own:
// groups and TOP must come about first; DISTINCT must be the last thing done; and beneath an outer
// join the query's conditions would also strike out the rows that have no partner, and what it
// computes would not be null for them.
bool Binder::merges(const Frame& frame, const Tree& query, bool nullable) const {
  if (query.grouped() || query.top >= 0 || query.fromRoot == kNone) {
    return false;
  }
  if (query.distinct && !(frame.distinguishable && showsAllOnly(frame.tree))) {
    return false;
  }
  return !nullable || (query.where == kNone && showsColumnsOnly(query));
}

Joins Binder::merge(Frame& frame, const FromNode& node, const Tree& query, bool nullable) {
  Frame inner{query, frame.select};
  inner.ordered =
      frame.ordered && isOnlySource(frame.tree) && !frame.tree.grouped() && !frame.tree.distinct;
  inner.distinguishable = frame.distinguishable && showsAllOnly(frame.tree);
  Joins joins = source(inner, query.fromRoot, nullable);
  where(inner);
  // The aliases of ORDER BY are looked for among the outputs of the SELECT.
  frame.select.outputs = outputs(inner);
  frame.select.distinct = frame.select.distinct || query.distinct;
  if (inner.ordered) {
    ordering(inner);
  }
  Exposure exposure;
  exposure.name = node.alias.isEmpty() ? node.name : node.alias;
  exposure.outputs = std::move(frame.select.outputs);
  exposure.inner = std::move(inner.exposures);
  frame.exposures.push_back(std::move(exposure));
  return joins;
}

Joins Binder::nest(Frame& frame, const FromNode& node, const Tree& query) {
  bound::Source source;
  source.derived = select(query);
  Exposure exposure;
  exposure.name = node.alias.isEmpty() ? node.name : node.alias;
  exposure.source = addSource(std::move(source), exposure.name);
  const Index added = exposure.source;
  frame.exposures.push_back(std::move(exposure));
  return singleJoin(added);
}

Index Binder::addSource(bound::Source source, QStringView wanted) {
  if (statement_.sources.size() >= kMostSources) {
    tooComplex();
  }
  source.alias = uniqueAlias(wanted);
  statement_.sources.push_back(std::move(source));
  return static_cast<Index>(statement_.sources.size() - 1);
}

QStringView Binder::uniqueAlias(QStringView wanted) {
  const auto taken = [this](QStringView alias) {
    return std::any_of(statement_.sources.begin(), statement_.sources.end(),
                       [&](const bound::Source& source) { return sameName(source.alias, alias); });
  };
  if (!taken(wanted)) {
    return wanted;
  }
  QString made;
  for (int number = 2; made.isEmpty() || taken(made); ++number) {
    made = QStringLiteral("%1_%2").arg(wanted).arg(number);
  }
  return statement_.madeNames.emplace_back(std::move(made));
}

}  // namespace quartela::dialect
