#include "platform/database/dialect/Dialect.h"

#include "platform/database/dialect/Binder.h"
#include "platform/database/dialect/LeastMatchFinder.h"
#include "platform/database/dialect/Parser.h"
#include "platform/database/dialect/Renderer.h"

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

void describeResult(const bound::Statement& statement, EngineStatement& engine) {
  engine.columns.reserve(statement.select->outputs.size());
  for (const bound::Output& output : statement.select->outputs) {
    engine.columns.push_back(resultColumn(statement, output));
  }
  if (statement.updatable == kNone) {
    return;
  }
  engine.updatableTable = statement.source(statement.updatable).table->name;
  for (const Index key : statement.keyNodes) {
    engine.keyColumns.push_back(bound::originOf(statement, key).column->name);
  }
}

}  // namespace

EngineStatement translate(QStringView statement, const Catalogue& catalogue) {
  // A letter and an accent behind it are the composed letter, however they were typed.
  const QString composed = statement.toString().normalized(QString::NormalizationForm_C);
  const Tree tree = parse(composed);
  const bound::Statement bound = bind(tree, catalogue);
  EngineStatement engine;
  engine.kind = bound.kind;
  engine.sql = Renderer(bound).render(engine.parameters);
  if (bound.kind == StatementKind::Select) {
    describeResult(bound, engine);
    engine.leastMatch = findLeastMatch(bound);
  } else {
    engine.target = bound.sources.front().table->name;
  }
  return engine;
}

}  // namespace quartela::dialect
