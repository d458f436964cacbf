#include "platform/database/dialect/Joins.h"

#include <algorithm>
#include <iterator>

namespace quartela::dialect {

using bound::Join;
using bound::Joins;

namespace {

bool hasOuter(const Joins& joins) {
  return std::any_of(joins.begin(), joins.end(),
                     [](const Join& join) { return join.kind == Join::Kind::Left; });
}

Join grouped(Joins joins) {
  if (joins.size() == 1) {
    return std::move(joins.front());
  }
  Join group;
  group.group = std::make_unique<Joins>(std::move(joins));
  return group;
}

}  // namespace

Joins singleJoin(Index source) {
  Joins joins;
  joins.reserve(8);
  joins.emplace_back().source = source;
  return joins;
}

Joins innerJoin(Joins left, Joins right, Index on) {
  if (hasOuter(right)) {
    if (hasOuter(left)) {
      Joins group;
      group.push_back(grouped(std::move(right)));
      right = std::move(group);
    } else {
      std::swap(left, right);
    }
  }
  std::move(right.begin(), right.end(), std::back_inserter(left));
  if (on != kNone) {
    left.back().on.push_back(on);
  }
  return left;
}

Joins outerJoin(Joins kept, Joins optional, Index on) {
  Join join = grouped(std::move(optional));
  join.kind = Join::Kind::Left;
  join.on.push_back(on);
  kept.push_back(std::move(join));
  return kept;
}

}  // namespace quartela::dialect
