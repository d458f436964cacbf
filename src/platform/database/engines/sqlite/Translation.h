// From an analysed statement to a statement of SQLite.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/database/dialect/Dialect.h"

namespace quartela::sqlite {

// Placeholders ?1, ?2 ... of the engine text stand for these, evaluated when the statement runs.
enum class Parameter : std::uint8_t {
  Now,  // the clock's moment as ISO text "YYYY-MM-DD HH:MM:SS"
};

// A SELECT TOP 1 of a table's text column that begins with some letters, in that column's order. No
// index is in that order, but one in another order can serve to find the text letter by letter;
// `sql` then gives its row, ?1 being the text, without sorting all that begin so.
struct LeastMatch {
  QString table;
  QString column;
  std::string prefix;  // UTF-8
  std::string sql;
};

struct EngineStatement {
  std::string sql;  // UTF-8; a SELECT has the key behind its columns
  std::vector<Parameter> parameters;
  std::optional<LeastMatch> leastMatch;  // when the statement is one
};

// Error 3075 for what SQLite's parser would find too deep.
EngineStatement translate(const dialect::AnalysedStatement& statement);

}  // namespace quartela::sqlite
