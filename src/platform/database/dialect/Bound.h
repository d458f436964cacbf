// A statement with every name resolved and every operation typed, for the renderer of an engine.
// Nodes lie in one list and may be shared: the output expression of a stored query stands wherever
// the statement names it.
#pragma once

#include <QString>
#include <QStringView>
#include <deque>
#include <memory>
#include <vector>

#include "platform/database/dialect/Catalogue.h"
#include "platform/database/dialect/Tree.h"

namespace quartela::dialect::bound {

enum class Op : std::uint8_t {
  Null,
  Bool,    // `number` is 0 or 1
  Number,  // `text` are the digits as written; the type says how the engine keeps them
  Text,    // `text` with its quotes doubled as written
  Date,    // `text`
  Now,
  Identity,
  Column,   // of the table `source`, position `number`
  Derived,  // of the derived table `source`, position `number`
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
  Between,
  In,
  Like,
  IsNull,
  Add,  // both operands have the node's type
  Subtract,
  Multiply,  // Money by a number, a number by Money, or both of the node's type
  Divide,    // as Multiply; of two amounts it is a Number
  IntegerDivide,
  Modulo,
  AddDays,       // DateTime, days
  SubtractDays,  // DateTime, days
  DaysBetween,   // DateTime, DateTime: days from the second to the first
  Concat,        // texts; `negated` lets a null stand for the empty text
  Convert,       // to the node's type
  Year,
  Sum,
  Max,
  Min,
  Count,  // without operand: of rows
};

struct Node {
  Op op = Op::Null;
  ValueType type = ValueType::Null;
  bool negated = false;
  bool constant = true;    // no column and no aggregate below
  bool aggregate = false;  // an aggregate below, or itself one
  char16_t quote = 0;
  std::uint16_t depth = 1;
  std::uint16_t operandCount = 0;
  std::uint32_t firstOperand = 0;  // in Statement::operands
  Index source = kNone;
  Index number = 0;
  QStringView text;
};

struct Select;

struct Source {
  const CatalogueTable* table = nullptr;  // or
  std::unique_ptr<Select> derived;
  QStringView alias;  // told apart from every other of the statement
};

struct Join;
using Joins = std::vector<Join>;

// One step of a FROM, in the order in which the engine reads it.
struct Join {
  enum class Kind : std::uint8_t { Inner, Left };  // of the first it does not matter
  Kind kind = Kind::Inner;
  Index source = kNone;          // or
  std::unique_ptr<Joins> group;  // joins that must come about first
  std::vector<Index> on;         // all of them hold
};

struct Output {
  QString name;
  bool named = false;  // an alias, which nothing renames
  Index node = kNone;
  QStringView table;  // the name of its table in the statement, of a column
};

struct Order {
  Index node = kNone;
  bool descending = false;
  bool implied = false;  // not said by the statement, see completeOrder()
};

struct Select {
  bool distinct = false;
  bool grouped = false;
  std::int64_t top = -1;
  std::vector<Output> outputs;
  Joins from;
  std::vector<Index> where;  // all of them hold
  std::vector<Index> groupBy;
  Index having = kNone;
  std::vector<Order> orderBy;
};

struct Statement {
  StatementKind kind = StatementKind::Select;
  std::vector<Node> nodes;
  std::vector<Index> operands;
  std::vector<Source> sources;
  std::deque<QString> madeNames;   // aliases that no text holds
  std::unique_ptr<Select> select;  // a Delete has one source and `where`
  // When rows can be written through the statement: the table's source.
  Index updatable = kNone;
  std::vector<Index> keyNodes;

  const Node& at(Index index) const { return nodes[static_cast<std::size_t>(index)]; }
  const Source& source(Index index) const { return sources[static_cast<std::size_t>(index)]; }
  Index operand(const Node& node, int position) const {
    return operands[node.firstOperand + static_cast<std::size_t>(position)];
  }
};

// The table and column that `node` shows unchanged, through derived tables too; nulls for others.
struct Origin {
  const CatalogueTable* table = nullptr;
  const CatalogueColumn* column = nullptr;
};
Origin originOf(const Statement& statement, Index node);

// Whether two nodes are the same expression.
bool sameExpression(const Statement& statement, Index a, Index b);

}  // namespace quartela::dialect::bound
