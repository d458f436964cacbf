// From a statement as the program writes it to a statement of the engine: lexer, parser, tree,
// binder with types, renderer. Stored queries are merged with the statement that uses them.
//
// Errors: 3075 syntax (an unclosed text, anything behind the first statement), 3061 a name that is
// no column, 3078 an unknown table or query, 3464 operands of types that cannot be compared,
// 3065 a statement of a kind that is not allowed.
#pragma once

#include <QString>
#include <QStringView>
#include <optional>
#include <string>
#include <vector>

#include "platform/database/dialect/Catalogue.h"
#include "platform/values/Value.h"

namespace quartela::dialect {

enum class StatementKind : std::uint8_t { Select, Delete };

struct ResultColumn {
  // The name the program finds it by: the column's, its alias, or "Table.COLUMN" where the result
  // bears the plain name twice.
  QString name;
  ValueType type = ValueType::Text;
  // The table and column it comes from; empty for a computed column.
  QString table;
  QString column;
};

// Placeholders ?1, ?2 ... of the engine text stand for these, evaluated when the statement runs.
enum class Parameter : std::uint8_t {
  Now,  // the clock's moment as ISO text "YYYY-MM-DD HH:MM:SS"
};

// A SELECT TOP 1 of a table's text column that begins with some letters, in that column's order. An
// engine whose index on the column is in another order can find the text letter by letter and then
// run `sql`, where ?1 is the text, instead of sorting all that begin so.
struct LeastMatch {
  QString table;
  QString column;
  std::string prefix;  // UTF-8
  std::string sql;
};

struct EngineStatement {
  StatementKind kind = StatementKind::Select;
  std::string sql;                    // UTF-8, SQLite's dialect
  std::vector<ResultColumn> columns;  // of a SELECT
  std::vector<Parameter> parameters;  // ?1 is the first

  QString target;  // the table that a DELETE removes rows from

  // A SELECT on exactly one table, without grouping, DISTINCT or joins, can be written through.
  // Then `updatableTable` names the table, and behind `columns` the engine text selects
  // `keyColumns`, the columns of its primary key.
  QString updatableTable;
  std::vector<QString> keyColumns;

  std::optional<LeastMatch> leastMatch;  // when the statement is one
};

// Translates one statement, of at most 65,536 characters and limited nesting (3075 beyond).
// DISTINCTROW is ALL. TOP n gives n rows, without the ties of the last. An alias of the result can
// be said in ORDER BY only, where it stands before a column of the same name. A bare table or
// stored-query name is a SELECT of all its columns.
EngineStatement translate(QStringView statement, const Catalogue& catalogue);

}  // namespace quartela::dialect
