// Running sums and counts over rows.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/reporting/Layout.h"
#include "platform/values/Value.h"

namespace quartela::reporting {

// One sum or count. Nulls add nothing to a sum; a count counts rows. Amounts of money are summed
// exactly (error 6 when they leave their range), other numbers as numbers; a text raises error 13.
class Accumulator {
 public:
  // `group` is the group that it starts anew with, -1 for the whole report.
  Accumulator(Summary kind, int group, int column, ValueType type);

  int group() const { return group_; }
  int column() const { return column_; }
  void reset();
  void add(const Value& value);
  // The sum without the row added last, where that row has not found its place yet.
  Value value(bool withLastRow) const;

 private:
  struct Sum {
    Money money;
    double number = 0;
    std::int32_t count = 0;
  };

  Summary kind_;
  int group_;
  int column_;
  ValueType type_;
  Sum now_;
  Sum before_;
};

}  // namespace quartela::reporting
