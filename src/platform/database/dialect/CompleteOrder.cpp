#include "platform/database/dialect/CompleteOrder.h"

#include <algorithm>
#include <map>

#include "platform/database/dialect/Operations.h"

namespace quartela::dialect {

using bound::Join;
using bound::Joins;
using bound::Node;
using bound::Op;
using bound::Select;
using bound::Source;
using bound::Statement;

namespace {

void collect(const Joins& joins, std::vector<Index>& sources) {
  for (const Join& join : joins) {
    if (join.group) {
      collect(*join.group, sources);
    } else {
      sources.push_back(join.source);
    }
  }
}

// Which tables have their row told by that of another, through the conditions of the joins.
class Lookups {
 public:
  explicit Lookups(const Statement& statement) : statement_(statement) {
    const Select& select = *statement.select;
    std::vector<Index> all;
    collect(select.from, all);
    add(select.from, all);
    for (const Index condition : select.where) {
      add(condition, all);
    }
  }

  bool isLookedUp(Index source) const { return teller_.contains(source); }

 private:
  // A row that may be missing tells nothing of one that is always there.
  void add(const Joins& joins, const std::vector<Index>& all) {
    for (const Join& join : joins) {
      std::vector<Index> optional;
      if (join.group) {
        add(*join.group, all);
        collect(*join.group, optional);
      } else {
        optional.push_back(join.source);
      }
      for (const Index condition : join.on) {
        add(condition, join.kind == Join::Kind::Left ? optional : all);
      }
    }
  }

  void add(Index condition, const std::vector<Index>& candidates) {
    const Node& node = statement_.at(condition);
    if (node.op == Op::And) {
      add(statement_.operand(node, 0), candidates);
      add(statement_.operand(node, 1), candidates);
    } else if (node.op == Op::Equal) {
      const Node& left = statement_.at(statement_.operand(node, 0));
      const Node& right = statement_.at(statement_.operand(node, 1));
      if (!add(left, right, candidates)) {
        add(right, left, candidates);
      }
    }
  }

  bool add(const Node& key, const Node& teller, const std::vector<Index>& candidates) {
    const bool isTold =
        key.op == Op::Column && teller.op == Op::Column && key.source != teller.source &&
        isWholeKey(key) &&
        std::find(candidates.begin(), candidates.end(), key.source) != candidates.end() &&
        !leadsTo(teller.source, key.source);
    if (isTold) {
      teller_.emplace(key.source, teller.source);
    }
    return isTold;
  }

  bool isWholeKey(const Node& node) const {
    const std::vector<CatalogueColumn>& columns = statement_.source(node.source).table->columns;
    return columns[static_cast<std::size_t>(node.number)].primaryKey &&
           std::count_if(columns.begin(), columns.end(),
                         [](const CatalogueColumn& column) { return column.primaryKey; }) == 1;
  }

  bool leadsTo(Index from, Index to) const {
    for (auto next = teller_.find(from); next != teller_.end(); next = teller_.find(from)) {
      from = next->second;
      if (from == to) {
        return true;
      }
    }
    return false;
  }

  const Statement& statement_;
  std::map<Index, Index> teller_;
};

class Completion {
 public:
  explicit Completion(Statement& statement)
      : statement_(statement), select_(*statement.select), operations_(statement) {}

  void complete() {
    if (select_.grouped) {
      for (const Index group : select_.groupBy) {
        add(group);
      }
    } else if (select_.distinct) {
      for (const bound::Output& output : select_.outputs) {
        add(output.node);
      }
    } else {
      addKeys();
    }
  }

 private:
  void add(Index node) {
    const bool given =
        operations_.at(node).constant ||
        std::any_of(select_.orderBy.begin(), select_.orderBy.end(), [&](const bound::Order& order) {
          return bound::sameExpression(statement_, order.node, node);
        });
    if (!given) {
      select_.orderBy.push_back({.node = node, .implied = true});
    }
  }

  void addKeys() {
    const Lookups lookups(statement_);
    std::vector<Index> sources;
    collect(select_.from, sources);
    for (const Index index : sources) {
      if (!lookups.isLookedUp(index)) {
        addSource(index);
      }
    }
  }

  // A derived table has no key: all of its columns tell its rows apart.
  void addSource(Index index) {
    const Source& source = statement_.source(index);
    if (source.table == nullptr) {
      const auto count = static_cast<Index>(source.derived->outputs.size());
      for (Index i = 0; i < count; ++i) {
        const Index shown =
            statement_.source(index).derived->outputs[static_cast<std::size_t>(i)].node;
        add(operations_.column(Op::Derived, index, i, operations_.at(shown).type));
      }
      return;
    }
    const std::vector<CatalogueColumn>& columns = source.table->columns;
    for (std::size_t i = 0; i < columns.size(); ++i) {
      if (columns[i].primaryKey) {
        add(operations_.column(Op::Column, index, static_cast<Index>(i), columns[i].type));
      }
    }
  }

  Statement& statement_;
  Select& select_;
  Operations operations_;
};

}  // namespace

void completeOrder(Statement& statement) {
  Completion(statement).complete();
}

}  // namespace quartela::dialect
