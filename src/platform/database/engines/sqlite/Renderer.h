// From a bound statement to SQLite's text.
//
// The text names, besides what SQLite has itself: the collation LATIN_NOCASE, and the functions
// latin_like(pattern, text), divisor(number), whole(number) and moment(seconds).
//
// Cells in the file: Bool 0 and 1, I16 and I32 integers, Money integer ten-thousandths, Number
// reals, DateTime texts "YYYY-MM-DD HH:MM:SS". Every expression of a type keeps to its form.
#pragma once

#include <string>
#include <vector>

#include "platform/database/dialect/Bound.h"
#include "platform/database/engines/sqlite/Translation.h"

namespace quartela::sqlite {

namespace bound = dialect::bound;
using dialect::Index;
using dialect::kNone;

class Renderer {
 public:
  explicit Renderer(const bound::Statement& statement);

  // `parameters` gets what the placeholders stand for. Error 3075 when the text grows beyond all
  // measure.
  std::string render(std::vector<Parameter>& parameters);

  // The SELECT without its conditions and order, of the one row whose `column` is the text ?1 or
  // differs from it in the case of ASCII letters only.
  std::string renderExact(Index column);

 private:
  // Statements (Renderer.cpp).
  void select(const bound::Select& select, bool derived);
  void outputs(const bound::Select& select, bool derived);
  void from(const bound::Joins& joins);
  void join(const bound::Join& join, bool first);
  void source(const bound::Source& source);
  void conditions(const char* keyword, const std::vector<Index>& nodes);
  void grouping(const bound::Select& select);
  void ordering(const bound::Select& select);
  void deletion();

  // Expressions (RendererExpressions.cpp).
  void expression(Index index);
  void operation(const bound::Node& node);
  // With the collation, when it is a text.
  void collated(Index index);
  void leaf(const bound::Node& node);
  void number(const bound::Node& node);
  void date(const bound::Node& node);
  void comparison(const bound::Node& node);
  void list(const bound::Node& node, int first);
  void arithmetic(const bound::Node& node);
  void multiply(const bound::Node& node);
  void divide(const bound::Node& node);
  void quotient(const bound::Node& node, const char* sign);
  void divisor(const bound::Node& node);
  void days(const bound::Node& node);
  void dayCount(Index index);

  // Conversions and functions (RendererFunctions.cpp).
  void concat(const bound::Node& node);
  void convert(const bound::Node& node);
  void convertToText(Index operand, ValueType from);
  void decimalText(Index operand, const char* scale);
  void aggregate(const bound::Node& node);

  // What all of them write with.
  void rounded(const char* before, Index operand, const char* after);
  void infix(const bound::Node& node, const char* sign);
  void chain(const bound::Node& node, const char* sign);
  void wrapped(const char* before, Index operand, const char* after);
  void operand(const bound::Node& node, int position);
  void now();
  void name(QStringView text);

  const bound::Node& at(Index index) const { return statement_.at(index); }
  ValueType typeOf(Index index) const { return at(index).type; }

  const bound::Statement& statement_;
  std::string out_;
  bool usesNow_ = false;
  int open_;  // entries of the engine's parser stack that what is being written takes
};

}  // namespace quartela::sqlite
