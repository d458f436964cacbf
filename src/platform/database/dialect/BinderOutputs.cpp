#include "platform/database/dialect/Binder.h"
#include "platform/database/dialect/Errors.h"
#include "platform/database/dialect/Names.h"

namespace quartela::dialect {

using bound::Output;

namespace {

constexpr int kFirstUnnamed = 1000;

// A name that the result bears twice gets the name of its table in front.
void tellApart(std::vector<Output>& outputs) {
  std::vector<bool> twice(outputs.size());
  for (std::size_t i = 0; i < outputs.size(); ++i) {
    for (std::size_t j = i + 1; j < outputs.size(); ++j) {
      if (sameName(outputs[i].name, outputs[j].name)) {
        twice[i] = true;
        twice[j] = true;
      }
    }
  }
  for (std::size_t i = 0; i < outputs.size(); ++i) {
    Output& output = outputs[i];
    if (twice[i] && !output.named && !output.table.isEmpty()) {
      output.name = output.table.toString() + QLatin1Char('.') + output.name;
    }
  }
}

}  // namespace

std::vector<Output> Binder::outputs(const Frame& frame) {
  std::vector<Output> shown;
  shown.reserve(frame.tree.items.size() + 8);
  int unnamed = kFirstUnnamed;
  for (const SelectItem& item : frame.tree.items) {
    if (item.expression == kNone) {
      addStar(frame, item, shown);
    } else {
      shown.push_back(output(frame, item, unnamed));
    }
    if (shown.size() > kMostColumns) {
      tooComplex();
    }
  }
  tellApart(shown);
  return shown;
}

void Binder::addStar(const Frame& frame, const SelectItem& item, std::vector<Output>& outputs) {
  if (frame.exposures.empty()) {
    syntaxError("falta FROM");
  }
  if (item.qualifier.isEmpty()) {
    for (const Exposure& exposure : frame.exposures) {
      addColumns(exposure, outputs);
    }
    return;
  }
  const Exposure* exposure = findExposure(frame.exposures, item.qualifier);
  if (exposure == nullptr) {
    unknownName(item.qualifier, u"*");
  }
  addColumns(*exposure, outputs);
}

void Binder::addColumns(const Exposure& exposure, std::vector<Output>& outputs) {
  const int columns = columnCount(statement_, exposure);
  for (int i = 0; i < columns; ++i) {
    outputs.push_back(columnOutput({&exposure, i}));
  }
}

Output Binder::columnOutput(const Found& found) {
  Output shown;
  shown.name = columnName(statement_, *found.exposure, found.position);
  shown.table = found.exposure->name;
  shown.node = columnNode(found);
  return shown;
}

Output Binder::output(const Frame& frame, const SelectItem& item, int& unnamed) {
  const Expression& read = frame.tree.at(item.expression);
  Output shown;
  if (read.kind == ExpressionKind::Column) {
    shown = columnOutput(findColumn(statement_, frame.exposures, read.qualifier, read.text));
  } else {
    shown.node = expression(frame.tree, frame.exposures, item.expression);
  }
  if (!item.alias.isEmpty()) {
    shown.name = item.alias.toString();
    shown.named = true;
  } else if (shown.name.isEmpty()) {
    shown.name = QStringLiteral("Expr%1").arg(unnamed++);
  }
  return shown;
}

}  // namespace quartela::dialect
