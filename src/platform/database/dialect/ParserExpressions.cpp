#include <algorithm>
#include <array>

#include "platform/database/dialect/DateLiteral.h"
#include "platform/database/dialect/Errors.h"
#include "platform/database/dialect/Names.h"
#include "platform/database/dialect/Parser.h"

namespace quartela::dialect {
namespace {

// Counts what is being read inside something else, and refuses what lies too deep.
class Deeper {
 public:
  explicit Deeper(int& open) : open_(open) {
    if (++open_ > kDeepest) {
      tooComplex();
    }
  }
  ~Deeper() { --open_; }
  Deeper(const Deeper&) = delete;
  Deeper& operator=(const Deeper&) = delete;

 private:
  int& open_;
};

struct BinarySign {
  ExpressionKind kind;
  int strength;
};

constexpr int kWeakest = 1;

// The operators that bind more strongly than a comparison; strength 0 for any other token.
BinarySign binarySign(const Token& token) {
  switch (token.kind) {
    case TokenKind::Ampersand:
      return {ExpressionKind::Concat, 1};
    case TokenKind::Plus:
      return {ExpressionKind::Add, 2};
    case TokenKind::Minus:
      return {ExpressionKind::Subtract, 2};
    case TokenKind::Backslash:
      return {ExpressionKind::IntegerDivide, 4};
    case TokenKind::Star:
      return {ExpressionKind::Multiply, 5};
    case TokenKind::Slash:
      return {ExpressionKind::Divide, 5};
    default:
      return token.keyword == Keyword::Mod ? BinarySign{ExpressionKind::Modulo, 3}
                                           : BinarySign{ExpressionKind::Null, 0};
  }
}

ExpressionKind comparisonKind(TokenKind kind) {
  switch (kind) {
    case TokenKind::Equal:
      return ExpressionKind::Equal;
    case TokenKind::NotEqual:
      return ExpressionKind::NotEqual;
    case TokenKind::Less:
      return ExpressionKind::Less;
    case TokenKind::LessEqual:
      return ExpressionKind::LessEqual;
    case TokenKind::Greater:
      return ExpressionKind::Greater;
    case TokenKind::GreaterEqual:
      return ExpressionKind::GreaterEqual;
    default:
      return ExpressionKind::Null;
  }
}

struct FunctionWord {
  QStringView name;
  Function function;
  int arguments;
};

constexpr std::array kFunctions{
    FunctionWord{u"YEAR", Function::Year, 1}, FunctionWord{u"NOW", Function::Now, 0},
    FunctionWord{u"SUM", Function::Sum, 1},   FunctionWord{u"MAX", Function::Max, 1},
    FunctionWord{u"MIN", Function::Min, 1},   FunctionWord{u"COUNT", Function::Count, 1},
};

const FunctionWord& functionNamed(const Token& name) {
  const auto* const found =
      std::find_if(kFunctions.begin(), kFunctions.end(),
                   [&](const FunctionWord& word) { return sameName(word.name, name.text); });
  if (found == kFunctions.end()) {
    syntaxError(name.position, "função que não existe");
  }
  return *found;
}

}  // namespace

Index Parser::expression() {
  const Deeper deeper(open_);
  return disjunction();
}

Index Parser::disjunction() {
  Index left = conjunction();
  while (is(Keyword::Or)) {
    const qsizetype position = take().position;
    left = add(ExpressionKind::Or, position, left, conjunction());
  }
  return left;
}

Index Parser::conjunction() {
  Index left = negation();
  while (is(Keyword::And)) {
    const qsizetype position = take().position;
    left = add(ExpressionKind::And, position, left, negation());
  }
  return left;
}

Index Parser::negation() {
  if (!is(Keyword::Not)) {
    return predicate();
  }
  const Deeper deeper(open_);
  const qsizetype position = take().position;
  return add(ExpressionKind::Not, position, negation());
}

Index Parser::predicate() {
  Index left = operation(kWeakest);
  for (;;) {
    const bool negated = accept(Keyword::Not);
    const Index whole = predicateTail(left, negated);
    if (whole == kNone) {
      return left;
    }
    left = whole;
  }
}

// kNone when no comparison follows `left`.
Index Parser::predicateTail(Index left, bool negated) {
  if (accept(Keyword::Like)) {
    const qsizetype position = token_.position;
    const Index like = add(ExpressionKind::Like, position, left, operation(kWeakest));
    at(like).negated = negated;
    return like;
  }
  if (accept(Keyword::Between)) {
    return between(left, negated);
  }
  if (accept(Keyword::In)) {
    return inList(left, negated);
  }
  if (negated) {
    syntaxError(token_.position, "falta LIKE, BETWEEN ou IN");
  }
  if (accept(Keyword::Is)) {
    return isNull(left);
  }
  const ExpressionKind kind = comparisonKind(token_.kind);
  if (kind == ExpressionKind::Null) {
    return kNone;
  }
  const qsizetype position = take().position;
  return add(kind, position, left, operation(kWeakest));
}

Index Parser::isNull(Index left) {
  const bool negated = accept(Keyword::Not);
  expect(Keyword::Null, "falta NULL");
  const Index test = add(ExpressionKind::IsNull, token_.position, left);
  at(test).negated = negated;
  return test;
}

Index Parser::between(Index left, bool negated) {
  const qsizetype position = token_.position;
  const Index low = operation(kWeakest);
  expect(Keyword::And, "falta AND");
  const Index high = operation(kWeakest);
  const Index test = add(ExpressionKind::Between, position, left, low, high);
  at(test).negated = negated;
  return test;
}

Index Parser::inList(Index left, bool negated) {
  const Index test = add(ExpressionKind::In, token_.position, left);
  at(test).negated = negated;
  expect(TokenKind::LeftParen, "falta abrir parêntese");
  Index last = left;
  do {
    append(test, last, expression());
  } while (accept(TokenKind::Comma));
  expect(TokenKind::RightParen, "falta fechar parêntese");
  return test;
}

Index Parser::operation(int weakest) {
  Index left = unary();
  for (;;) {
    const BinarySign sign = binarySign(token_);
    if (sign.strength < weakest) {
      return left;
    }
    const qsizetype position = take().position;
    left = add(sign.kind, position, left, operation(sign.strength + 1));
  }
}

Index Parser::unary() {
  if (is(TokenKind::Minus)) {
    const Deeper deeper(open_);
    const qsizetype position = take().position;
    return add(ExpressionKind::Negate, position, unary());
  }
  if (is(TokenKind::Plus)) {
    const Deeper deeper(open_);
    take();
    return unary();
  }
  return primary();
}

Index Parser::primary() {
  switch (token_.kind) {
    case TokenKind::Integer:
      return literal(ExpressionKind::Integer);
    case TokenKind::Decimal:
      return literal(ExpressionKind::Decimal);
    case TokenKind::Text:
      return literal(ExpressionKind::Text);
    case TokenKind::Date:
      return literal(ExpressionKind::Date);
    case TokenKind::Identity:
      return literal(ExpressionKind::Identity);
    case TokenKind::QuotedName:
      return column(take());
    case TokenKind::Name:
      return wordPrimary();
    case TokenKind::LeftParen: {
      take();
      const Index inner = expression();
      expect(TokenKind::RightParen, "falta fechar parêntese");
      return inner;
    }
    default:
      syntaxError(token_.position, "falta um valor");
  }
}

Index Parser::wordPrimary() {
  switch (token_.keyword) {
    case Keyword::True:
    case Keyword::Yes:
      return literal(ExpressionKind::True);
    case Keyword::False:
    case Keyword::No:
      return literal(ExpressionKind::False);
    case Keyword::Null:
      return literal(ExpressionKind::Null);
    case Keyword::None:
      break;
    default:
      syntaxError(token_.position, "falta um valor");
  }
  const Token name = take();
  return is(TokenKind::LeftParen) ? call(name) : column(name);
}

// A word behind a dot is a name, even if it is a keyword elsewhere.
Index Parser::column(const Token& name) {
  const Index index = add(ExpressionKind::Column, name.position, kNone);
  at(index).text = name.text;
  if (!accept(TokenKind::Dot)) {
    return index;
  }
  if (!is(TokenKind::Name) && !is(TokenKind::QuotedName) && !is(TokenKind::Star)) {
    syntaxError(token_.position, "falta o nome do campo");
  }
  if (is(TokenKind::Star)) {
    at(index).kind = ExpressionKind::Star;
  }
  at(index).qualifier = name.text;
  at(index).text = take().text;
  return index;
}

Index Parser::call(const Token& name) {
  const FunctionWord& word = functionNamed(name);
  sawAggregate_ = sawAggregate_ || isAggregate(word.function);
  take();
  const Index index = add(ExpressionKind::Call, name.position, kNone);
  at(index).function = word.function;
  if (word.function == Function::Count && accept(TokenKind::Star)) {
    expect(TokenKind::RightParen, "falta fechar parêntese");
    return index;
  }
  int count = 0;
  for (Index last = kNone; !is(TokenKind::RightParen); ++count) {
    if (count > 0) {
      expect(TokenKind::Comma, "falta fechar parêntese");
    }
    append(index, last, expression());
  }
  if (count != word.arguments) {
    syntaxError(name.position, "número de argumentos errado");
  }
  take();
  return index;
}

Index Parser::literal(ExpressionKind kind) {
  const Token token = take();
  if (kind == ExpressionKind::Date && !readDate(token.text)) {
    syntaxError(token.position, "data que não existe");
  }
  const Index index = add(kind, token.position, kNone);
  at(index).text = token.text;
  at(index).quote = token.quote;
  return index;
}

Index Parser::add(ExpressionKind kind, qsizetype position, Index first, Index second, Index third) {
  const auto index = static_cast<Index>(tree_.expressions.size());
  Expression& added = tree_.expressions.emplace_back();
  added.kind = kind;
  added.position = position;
  Index last = kNone;
  for (const Index operand : {first, second, third}) {
    if (operand != kNone) {
      append(index, last, operand);
    }
  }
  return index;
}

// Hangs `operand` behind `last`, the operand of `list` that came before.
void Parser::append(Index list, Index& last, Index operand) {
  if (last == kNone) {
    at(list).first = operand;
  } else {
    at(last).next = operand;
  }
  last = operand;
  deepen(list, operand);
}

void Parser::deepen(Index index, Index operand) {
  const int depth = std::max<int>(at(index).depth, at(operand).depth + 1);
  if (depth > kDeepest) {
    tooComplex();
  }
  at(index).depth = static_cast<std::uint16_t>(depth);
}

}  // namespace quartela::dialect
