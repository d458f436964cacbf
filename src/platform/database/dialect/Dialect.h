// From a statement as the program writes it to one with every name resolved and every operation
// typed, for an engine to render: lexer, parser, tree, binder. Stored queries are merged with the
// statement that uses them.
//
// Errors: 3075 syntax (an unclosed text, anything behind the first statement), 3061 a name that is
// no column, 3078 an unknown table or query, 3464 operands of types that cannot be compared,
// 3065 a statement of a kind that is not allowed.
#pragma once

#include <QString>
#include <QStringView>
#include <vector>

#include "platform/database/dialect/Bound.h"
#include "platform/database/dialect/Catalogue.h"
#include "platform/values/Value.h"

namespace quartela::dialect {

struct ResultColumn {
  // The name the program finds it by: the column's, its alias, or "Table.COLUMN" where the result
  // bears the plain name twice.
  QString name;
  ValueType type = ValueType::Text;
  // The table and column it comes from; empty for a computed column.
  QString table;
  QString column;
};

// What a SELECT gives.
struct Result {
  std::vector<ResultColumn> columns;

  // A SELECT on exactly one table, without grouping, DISTINCT or joins, can be written through.
  // Then `updatableTable` names the table, and behind `columns` an engine selects `keyColumns`, the
  // columns of its primary key.
  QString updatableTable;
  std::vector<QString> keyColumns;
};

struct AnalysedStatement {
  QString text;  // what the views of `bound` look into
  bound::Statement bound;
  Result result;

  StatementKind kind() const { return bound.kind; }
  // The table that a DELETE removes rows from.
  const QString& target() const { return bound.sources.front().table->name; }
};

// Analyses one statement, of at most 65,536 characters and limited nesting (3075 beyond). A letter
// and an accent behind it are taken for the composed letter. DISTINCTROW is ALL. TOP n gives n
// rows, without the ties of the last. An alias of the result can be said in ORDER BY only, where it
// stands before a column of the same name. A bare table or stored-query name is a SELECT of all its
// columns. The result looks into the catalogue.
AnalysedStatement analyse(QStringView statement, const Catalogue& catalogue);

}  // namespace quartela::dialect
