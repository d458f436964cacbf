// The syntax tree of one statement. Names and literals are views into its text; expressions lie in
// one list and refer to each other by index.
#pragma once

#include <QString>
#include <QStringView>
#include <cstdint>
#include <vector>

namespace quartela::dialect {

enum class StatementKind : std::uint8_t { Select, Delete };

using Index = std::int32_t;
inline constexpr Index kNone = -1;

// How deep expressions may lie inside each other; keeps every recursion short, and the engine's own
// limit (1000 of its nodes) out of reach.
inline constexpr int kDeepest = 150;
// How many tables and queries a FROM may name; the engine joins 64.
inline constexpr std::size_t kMostSources = 48;
// Columns of a result, and terms of a GROUP BY or ORDER BY.
inline constexpr std::size_t kMostColumns = 255;

enum class ExpressionKind : std::uint8_t {
  Null,
  True,
  False,
  Integer,
  Decimal,
  Text,
  Date,
  Identity,
  Column,
  Star,  // Table.*, only as an item of a result list
  Negate,
  Not,
  And,
  Or,
  Equal,
  NotEqual,
  Less,
  LessEqual,
  Greater,
  GreaterEqual,
  Like,
  Between,
  In,
  Add,
  Subtract,
  Multiply,
  Divide,
  IntegerDivide,
  Modulo,
  Concat,
  IsNull,
  Call,
};

enum class Function : std::uint8_t {
  Year,
  Now,
  Sum,
  Max,
  Min,
  Count,
};

inline bool isAggregate(Function function) {
  return function >= Function::Sum;
}

struct Expression {
  ExpressionKind kind = ExpressionKind::Null;
  Function function = Function::Year;  // of a Call
  bool negated = false;                // NOT LIKE, NOT IN, NOT BETWEEN, IS NOT NULL
  char16_t quote = 0;                  // of a Text: its quotes are doubled inside
  std::uint16_t depth = 1;             // of the expressions below, itself included
  QStringView qualifier;               // of a Column
  QStringView text;                    // name or literal
  qsizetype position = 0;              // in the statement
  Index first = kNone;                 // first operand; the others follow it by `next`
  Index next = kNone;
};

struct SelectItem {
  Index expression = kNone;  // kNone is a star
  QStringView qualifier;     // of a star
  QStringView alias;
};

struct FromNode {
  enum class Kind : std::uint8_t { Name, Inner, Left, Right };
  Kind kind = Kind::Name;
  QStringView name;
  QStringView alias;
  Index left = kNone;
  Index right = kNone;
  Index on = kNone;  // an Inner without a condition is a comma
};

struct OrderTerm {
  Index expression = kNone;
  bool descending = false;
};

struct Tree {
  StatementKind kind = StatementKind::Select;
  bool distinct = false;
  bool aggregates = false;  // the result list or HAVING calls Sum, Max and their like
  std::int64_t top = -1;
  std::vector<Expression> expressions;
  std::vector<SelectItem> items;
  std::vector<FromNode> from;
  Index fromRoot = kNone;
  Index where = kNone;
  std::vector<Index> groupBy;
  Index having = kNone;
  std::vector<OrderTerm> orderBy;
  // The text of a stored query, which the views look into.
  QString text;

  const Expression& at(Index index) const { return expressions[static_cast<std::size_t>(index)]; }
  const FromNode& source(Index index) const { return from[static_cast<std::size_t>(index)]; }
  bool grouped() const { return aggregates || !groupBy.empty() || having != kNone; }
};

}  // namespace quartela::dialect
