#include "platform/database/dialect/Scope.h"

#include "platform/database/dialect/Errors.h"
#include "platform/database/dialect/Names.h"

namespace quartela::dialect {
namespace {

// Stored queries lie inside each other no deeper than the binder goes.
constexpr int kDeepestQuery = 10;

class ColumnSearch {
 public:
  ColumnSearch(const bound::Statement& statement, QStringView qualifier, QStringView name)
      : statement_(statement), qualifier_(qualifier), name_(name) {}

  void at(Exposures exposures, int depth) {
    for (const Exposure& exposure : exposures) {
      if (depth > 0) {
        at(exposure.inner, depth - 1);
      }
      if (depth == 0 && (qualifier_.isEmpty() || sameName(exposure.name, qualifier_))) {
        shown(exposure);
      }
      if (depth == 1 && exposure.source != kNone) {
        behind(exposure);
      }
    }
  }

  int count() const { return count_; }
  const Found& found() const { return found_; }

 private:
  void shown(const Exposure& exposure) {
    const int columns = columnCount(statement_, exposure);
    for (int i = 0; i < columns; ++i) {
      if (sameName(columnName(statement_, exposure, i), name_)) {
        take(exposure, i);
      }
    }
  }

  // What a derived table shows keeps the name of the table behind it.
  void behind(const Exposure& exposure) {
    const bound::Select* derived = statement_.source(exposure.source).derived.get();
    if (derived == nullptr) {
      return;
    }
    for (std::size_t i = 0; i < derived->outputs.size(); ++i) {
      const bound::Output& output = derived->outputs[i];
      const bound::Origin origin = bound::originOf(statement_, output.node);
      if (origin.column != nullptr && sameName(origin.column->name, name_) &&
          (qualifier_.isEmpty() || sameName(output.table, qualifier_))) {
        take(exposure, static_cast<int>(i));
        return;
      }
    }
  }

  void take(const Exposure& exposure, int position) {
    ++count_;
    found_ = {&exposure, position};
  }

  const bound::Statement& statement_;
  QStringView qualifier_;
  QStringView name_;
  Found found_;
  int count_ = 0;
};

const Exposure* exposureAt(Exposures exposures, QStringView name, int depth) {
  for (const Exposure& exposure : exposures) {
    if (depth == 0 && sameName(exposure.name, name)) {
      return &exposure;
    }
    if (depth > 0) {
      if (const Exposure* inner = exposureAt(exposure.inner, name, depth - 1)) {
        return inner;
      }
    }
  }
  return nullptr;
}

}  // namespace

Found findColumn(const bound::Statement& statement, Exposures exposures, QStringView qualifier,
                 QStringView name) {
  for (int depth = 0; depth < kDeepestQuery; ++depth) {
    ColumnSearch search(statement, qualifier, name);
    search.at(exposures, depth);
    if (search.count() > 1) {
      ambiguousName(qualifier, name);
    }
    if (search.count() == 1) {
      return search.found();
    }
  }
  unknownName(qualifier, name);
}

const Exposure* findExposure(Exposures exposures, QStringView name) {
  for (int depth = 0; depth < kDeepestQuery; ++depth) {
    if (const Exposure* found = exposureAt(exposures, name, depth)) {
      return found;
    }
  }
  return nullptr;
}

int columnCount(const bound::Statement& statement, const Exposure& exposure) {
  if (exposure.source == kNone) {
    return static_cast<int>(exposure.outputs.size());
  }
  const bound::Source& source = statement.source(exposure.source);
  return static_cast<int>(source.table != nullptr ? source.table->columns.size()
                                                  : source.derived->outputs.size());
}

const QString& columnName(const bound::Statement& statement, const Exposure& exposure,
                          int position) {
  const auto at = static_cast<std::size_t>(position);
  if (exposure.source == kNone) {
    return exposure.outputs[at].name;
  }
  const bound::Source& source = statement.source(exposure.source);
  return source.table != nullptr ? source.table->columns[at].name
                                 : source.derived->outputs[at].name;
}

}  // namespace quartela::dialect
