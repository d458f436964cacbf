#include "platform/database/dialect/Dialect.h"

#include "platform/database/dialect/Binder.h"
#include "platform/database/dialect/Parser.h"

namespace quartela::dialect {
namespace {

ResultColumn resultColumn(const bound::Statement& statement, const bound::Output& output) {
  ResultColumn column;
  column.name = output.name;
  column.type = statement.at(output.node).type;
  const bound::Origin origin = bound::originOf(statement, output.node);
  if (origin.table != nullptr) {
    column.table = origin.table->name;
    column.column = origin.column->name;
  }
  return column;
}

Result resultOf(const bound::Statement& statement) {
  Result result;
  result.columns.reserve(statement.select->outputs.size());
  for (const bound::Output& output : statement.select->outputs) {
    result.columns.push_back(resultColumn(statement, output));
  }
  if (statement.updatable == kNone) {
    return result;
  }
  result.updatableTable = statement.source(statement.updatable).table->name;
  for (const Index key : statement.keyNodes) {
    result.keyColumns.push_back(bound::originOf(statement, key).column->name);
  }
  return result;
}

}  // namespace

AnalysedStatement analyse(QStringView statement, const Catalogue& catalogue) {
  AnalysedStatement analysed;
  analysed.text = statement.toString().normalized(QString::NormalizationForm_C);
  const Tree tree = parse(analysed.text);
  analysed.bound = bind(tree, catalogue);
  if (analysed.kind() == StatementKind::Select) {
    analysed.result = resultOf(analysed.bound);
  }
  return analysed;
}

}  // namespace quartela::dialect
