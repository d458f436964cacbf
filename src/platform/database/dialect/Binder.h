// From the syntax tree of a statement to its bound form: resolves names against the catalogue,
// merges stored queries with the statement, and gives every expression its type.
#pragma once

#include <memory>
#include <vector>

#include "platform/database/dialect/Bound.h"
#include "platform/database/dialect/Catalogue.h"
#include "platform/database/dialect/Operations.h"
#include "platform/database/dialect/Scope.h"
#include "platform/database/dialect/Tree.h"

namespace quartela::dialect {

// The result looks into the tree's text and into the catalogue. Errors: 3061, 3078, 3464, 3065,
// 3075.
bound::Statement bind(const Tree& tree, const Catalogue& catalogue);

class Binder {
 public:
  explicit Binder(const Catalogue& catalogue);
  bound::Statement bind(const Tree& tree) &&;

 private:
  // One SELECT while it is bound. That of a merged stored query shares `select` with the
  // statement's.
  struct Frame {
    const Tree& tree;
    bound::Select& select;
    std::vector<Exposure> exposures = {};
    // Whether the query's own order and DISTINCT would also be those of the whole.
    bool ordered = true;
    bool distinguishable = true;
  };

  // SELECTs (Binder.cpp).
  std::unique_ptr<bound::Select> select(const Tree& tree);
  void openQuery();
  const Tree* wholeQuery(const Tree& tree) const;
  void body(Frame& frame);
  void where(Frame& frame);
  void grouping(Frame& frame);
  void ordering(Frame& frame);
  bound::Order orderTerm(const Frame& frame, const OrderTerm& term);
  Index ordinal(const Frame& frame, const Expression& number) const;
  Index aliased(const Frame& frame, const Expression& name) const;
  void checkGrouping(const bound::Select& select) const;
  bool showsAggregate(const bound::Select& select) const;
  void requireGrouped(const bound::Select& select, Index node) const;
  void deletion(const Tree& tree);
  void findUpdatable();

  // What a SELECT shows (BinderOutputs.cpp).
  std::vector<bound::Output> outputs(const Frame& frame);
  void addStar(const Frame& frame, const SelectItem& item, std::vector<bound::Output>& outputs);
  void addColumns(const Exposure& exposure, std::vector<bound::Output>& outputs);
  bound::Output output(const Frame& frame, const SelectItem& item, int& unnamed);
  bound::Output columnOutput(const Found& found);

  // FROM (BinderSources.cpp).
  bound::Joins source(Frame& frame, Index node, bool nullable);
  bound::Joins named(Frame& frame, const FromNode& node, bool nullable);
  bound::Joins table(Frame& frame, const FromNode& node, const CatalogueTable& table);
  bound::Joins query(Frame& frame, const FromNode& node, const Tree& query, bool nullable);
  bool merges(const Frame& frame, const Tree& query, bool nullable) const;
  bound::Joins merge(Frame& frame, const FromNode& node, const Tree& query, bool nullable);
  bound::Joins nest(Frame& frame, const FromNode& node, const Tree& query);
  Index addSource(bound::Source source, QStringView wanted);
  QStringView uniqueAlias(QStringView wanted);

  // Expressions (BinderExpressions.cpp).
  Index expression(const Tree& tree, Exposures exposures, Index index);
  Index literal(const Expression& expression);
  Index column(Exposures exposures, const Expression& name);
  Index columnNode(const Found& found);
  Index comparison(const Tree& tree, Exposures exposures, const Expression& expression);
  Index binary(const Tree& tree, Exposures exposures, const Expression& expression);
  Index call(const Tree& tree, Exposures exposures, const Expression& expression);
  std::vector<Index> operands(const Tree& tree, Exposures exposures, const Expression& expression);

  const Catalogue& catalogue_;
  bound::Statement statement_;
  Operations operations_;
  int openQueries_ = 0;
};

}  // namespace quartela::dialect
