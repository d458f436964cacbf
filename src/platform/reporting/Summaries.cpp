#include "platform/reporting/Summaries.h"

#include "platform/values/Convert.h"

namespace quartela::reporting {

Accumulator::Accumulator(Summary kind, int group, int column, ValueType type)
    : kind_(kind), group_(group), column_(column), type_(type) {}

void Accumulator::reset() {
  now_ = {};
  before_ = {};
}

void Accumulator::add(const Value& value) {
  before_ = now_;
  ++now_.count;
  if (kind_ == Summary::Count || value.isNull()) {
    return;
  }
  if (type_ == ValueType::Money) {
    now_.money += value.money();
  } else {
    now_.number += Convert::toNumber(value);
  }
}

Value Accumulator::value(bool withLastRow) const {
  const Sum& sum = withLastRow ? now_ : before_;
  if (kind_ == Summary::Count) {
    return sum.count;
  }
  return type_ == ValueType::Money ? Value(sum.money) : Value(sum.number);
}

}  // namespace quartela::reporting
