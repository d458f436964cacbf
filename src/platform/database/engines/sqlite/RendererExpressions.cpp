#include <algorithm>

#include "platform/database/dialect/DateLiteral.h"
#include "platform/database/dialect/Errors.h"
#include "platform/database/dialect/Names.h"
#include "platform/database/engines/sqlite/Renderer.h"

namespace quartela::sqlite {

using bound::Node;
using bound::Op;

namespace {

constexpr std::size_t kLongestText = 1'000'000;
constexpr qsizetype kMoneyDecimals = 4;
// More digits than a 64-bit integer surely holds.
constexpr qsizetype kTooManyDigits = 19;

// SQLite's parser refuses what takes more than 100 entries of its stack.
constexpr int kParserStack = 96;

int entriesOfTextFrom(ValueType type) {
  switch (type) {
    case ValueType::Money:
    case ValueType::Number:
      return 14;
    case ValueType::DateTime:
      return 9;
    default:
      return 4;
  }
}

// How many entries the text of a node holds, at most, while an operand of it is being read: each
// open parenthesis, function name, pending operand and sign is one.
int stackEntries(const bound::Statement& statement, const Node& node) {
  switch (node.op) {
    case Op::Convert:
      return node.type == ValueType::Text
                 ? entriesOfTextFrom(statement.at(statement.operand(node, 0)).type)
                 : 8;
    case Op::Multiply:
    case Op::Divide:
    case Op::IntegerDivide:
    case Op::Modulo:
    case Op::AddDays:
    case Op::SubtractDays:
    case Op::DaysBetween:
      return 9;
    case Op::Like:
      return 8;
    case Op::Between:
    case Op::In:
    case Op::Concat:
    case Op::Year:
      return 7;
    default:
      return node.op <= Op::Derived ? 0 : 4;
  }
}

const char* comparisonSign(Op op) {
  switch (op) {
    case Op::Equal:
      return " = ";
    case Op::NotEqual:
      return " <> ";
    case Op::Less:
      return " < ";
    case Op::LessEqual:
      return " <= ";
    case Op::Greater:
      return " > ";
    default:
      return " >= ";
  }
}

void appendDigits(std::string& out, QStringView digits) {
  for (const QChar digit : digits) {
    out += digit.toLatin1();
  }
}

// The digits of a decimal number, its dot `shift` places further to the right.
std::string shifted(QStringView text, qsizetype shift) {
  const qsizetype dot = text.indexOf(u'.');
  const QStringView whole = dot < 0 ? text : text.left(dot);
  const QStringView fraction = dot < 0 ? QStringView() : text.mid(dot + 1);
  std::string digits;
  appendDigits(digits, whole);
  appendDigits(digits, fraction.left(shift));
  digits.append(static_cast<std::size_t>(std::max<qsizetype>(0, shift - fraction.size())), '0');
  const std::size_t leading = digits.find_first_not_of('0');
  digits.erase(0, leading == std::string::npos ? digits.size() : leading);
  if (digits.empty()) {
    digits = "0";
  }
  QStringView rest = fraction.mid(std::min(shift, fraction.size()));
  while (!rest.isEmpty() && rest.back() == u'0') {
    rest.chop(1);
  }
  if (!rest.isEmpty()) {
    digits += '.';
    appendDigits(digits, rest);
  }
  return digits;
}

}  // namespace

void Renderer::expression(Index index) {
  const Node& node = at(index);
  const int entries = stackEntries(statement_, node);
  open_ += entries;
  if (out_.size() > kLongestText || open_ > kParserStack) {
    dialect::tooComplex();
  }
  operation(node);
  open_ -= entries;
}

void Renderer::operation(const Node& node) {
  if (node.op <= Op::Derived) {
    leaf(node);
  } else if (node.op <= Op::IsNull) {
    comparison(node);
  } else if (node.op <= Op::Convert) {
    arithmetic(node);
  } else if (node.op == Op::Year) {
    wrapped("CAST(substr(", statement_.operand(node, 0), ", 1, 4) AS INTEGER)");
  } else {
    aggregate(node);
  }
}

void Renderer::collated(Index index) {
  expression(index);
  if (typeOf(index) == ValueType::Text) {
    out_ += " COLLATE LATIN_NOCASE";
  }
}

void Renderer::leaf(const Node& node) {
  switch (node.op) {
    case Op::Bool:
      out_ += node.number == 0 ? '0' : '1';
      return;
    case Op::Number:
      number(node);
      return;
    case Op::Text:
      out_ += '\'';
      dialect::appendUtf8(out_, node.text, u'\'', node.quote);
      out_ += '\'';
      return;
    case Op::Date:
      date(node);
      return;
    case Op::Now:
      now();
      return;
    case Op::Identity:
      out_ += "last_insert_rowid()";
      return;
    case Op::Column: {
      const bound::Source& source = statement_.source(node.source);
      name(source.alias);
      out_ += '.';
      name(source.table->columns[static_cast<std::size_t>(node.number)].name);
      return;
    }
    case Op::Derived:
      name(statement_.source(node.source).alias);
      out_ += ".c";
      out_ += std::to_string(node.number);
      return;
    default:
      out_ += "NULL";
  }
}

void Renderer::now() {
  usesNow_ = true;
  out_ += "?1";
}

void Renderer::number(const Node& node) {
  const std::string digits = shifted(node.text, node.type == ValueType::Money ? kMoneyDecimals : 0);
  out_ += digits;
  const bool whole = digits.find('.') == std::string::npos;
  if (whole && (node.type == ValueType::Number || digits.size() >= kTooManyDigits)) {
    out_ += ".0";
  }
}

void Renderer::date(const Node& node) {
  if (const std::optional<DateTime> moment = dialect::readDate(node.text)) {
    out_ += '\'';
    dialect::appendUtf8(out_, moment->toIso());
    out_ += '\'';
  }
}

void Renderer::comparison(const Node& node) {
  switch (node.op) {
    case Op::Negate:
      wrapped("(-", statement_.operand(node, 0), ")");
      return;
    case Op::Not:
      wrapped("(NOT ", statement_.operand(node, 0), ")");
      return;
    case Op::And:
      infix(node, " AND ");
      return;
    case Op::Or:
      infix(node, " OR ");
      return;
    case Op::IsNull:
      wrapped("(", statement_.operand(node, 0), node.negated ? " IS NOT NULL)" : " IS NULL)");
      return;
    case Op::Like:
      wrapped(node.negated ? "(NOT latin_like(" : "latin_like(", statement_.operand(node, 1), ", ");
      wrapped("", statement_.operand(node, 0), node.negated ? "))" : ")");
      return;
    case Op::In:
    case Op::Between:
      list(node, 1);
      return;
    default:
      out_ += '(';
      collated(statement_.operand(node, 0));
      out_ += comparisonSign(node.op);
      operand(node, 1);
      out_ += ')';
  }
}

// IN and BETWEEN; the collation of the first operand counts for all.
void Renderer::list(const Node& node, int first) {
  const bool in = node.op == Op::In;
  out_ += '(';
  collated(statement_.operand(node, 0));
  out_ += node.negated ? " NOT" : "";
  out_ += in ? " IN (" : " BETWEEN ";
  for (int i = first; i < node.operandCount; ++i) {
    if (i > first) {
      out_ += in ? ", " : " AND ";
    }
    operand(node, i);
  }
  out_ += in ? "))" : ")";
}

void Renderer::operand(const Node& node, int position) {
  expression(statement_.operand(node, position));
}

void Renderer::infix(const Node& node, const char* sign) {
  out_ += '(';
  chain(node, sign);
  out_ += ')';
}

// A row of And, or of Or, needs no parentheses; the engine's parser stack thanks for it.
void Renderer::chain(const Node& node, const char* sign) {
  const Node& left = at(statement_.operand(node, 0));
  if (left.op == node.op && (node.op == Op::And || node.op == Op::Or)) {
    chain(left, sign);
  } else {
    operand(node, 0);
  }
  out_ += sign;
  operand(node, 1);
}

void Renderer::wrapped(const char* before, Index operand, const char* after) {
  out_ += before;
  expression(operand);
  out_ += after;
}

void Renderer::arithmetic(const Node& node) {
  switch (node.op) {
    case Op::Add:
      return infix(node, " + ");
    case Op::Subtract:
      return infix(node, " - ");
    case Op::Multiply:
      return multiply(node);
    case Op::Divide:
      return divide(node);
    case Op::IntegerDivide:
      return quotient(node, " / ");
    case Op::Modulo:
      return quotient(node, " % ");
    case Op::Concat:
      return concat(node);
    case Op::Convert:
      return convert(node);
    default:
      return days(node);
  }
}

// Amounts are ten-thousandths: the product of two has too many of them, and one by a real must be
// rounded to whole ones again.
void Renderer::multiply(const Node& node) {
  const ValueType left = typeOf(statement_.operand(node, 0));
  const ValueType right = typeOf(statement_.operand(node, 1));
  if (left == ValueType::Money && right == ValueType::Money) {
    wrapped("CAST(round(", statement_.operand(node, 0), " * (");
    wrapped("", statement_.operand(node, 1), " / 10000.0)) AS INTEGER)");
  } else if (node.type == ValueType::Money &&
             (left == ValueType::Number || right == ValueType::Number)) {
    wrapped("CAST(round(", statement_.operand(node, 0), " * ");
    wrapped("", statement_.operand(node, 1), ") AS INTEGER)");
  } else {
    infix(node, " * ");
  }
}

void Renderer::divide(const Node& node) {
  if (node.type == ValueType::Money) {
    wrapped("CAST(round(", statement_.operand(node, 0), " / ");
    divisor(node);
    out_ += ") AS INTEGER)";
  } else if (typeOf(statement_.operand(node, 0)) == ValueType::Money) {
    wrapped("(CAST(", statement_.operand(node, 0), " AS REAL) / ");
    divisor(node);
    out_ += ')';
  } else {
    quotient(node, " / ");
  }
}

void Renderer::quotient(const Node& node, const char* sign) {
  wrapped("(", statement_.operand(node, 0), sign);
  divisor(node);
  out_ += ')';
}

// SQLite's own answer to a division by zero is null.
void Renderer::divisor(const Node& node) {
  wrapped("divisor(", statement_.operand(node, 1), ")");
}

// Moments are counted in whole seconds, so that nothing is lost on the way.
void Renderer::days(const Node& node) {
  const Index moment = statement_.operand(node, 0);
  if (node.op == Op::DaysBetween) {
    wrapped("((unixepoch(", moment, ") - unixepoch(");
    wrapped("", statement_.operand(node, 1), ")) / 86400.0)");
    return;
  }
  wrapped("moment(unixepoch(", moment, node.op == Op::AddDays ? ") + " : ") - ");
  dayCount(statement_.operand(node, 1));
  out_ += ')';
}

void Renderer::dayCount(Index index) {
  switch (typeOf(index)) {
    case ValueType::Number:
      return rounded("", index, " * 86400");
    case ValueType::Money:
      return rounded("", index, " * 8.64");
    default:
      return wrapped("", index, " * 86400");
  }
}

void Renderer::rounded(const char* before, Index operand, const char* after) {
  out_ += "CAST(round(";
  wrapped(before, operand, after);
  out_ += ") AS INTEGER)";
}

}  // namespace quartela::sqlite
