// From the text of a statement to its syntax tree.
#pragma once

#include <QStringView>

#include "platform/database/dialect/Lexer.h"
#include "platform/database/dialect/Tree.h"

namespace quartela::dialect {

// The tree looks into `statement`, which must outlive it. Errors: 3075, 3065.
Tree parse(QStringView statement);

class Parser {
 public:
  explicit Parser(QStringView statement);
  Tree statement();

 private:
  // Statements (Parser.cpp).
  void select();
  void selectOptions();
  void selectItems();
  SelectItem selectItem();
  QStringView selectAlias();
  void from();
  Index joins();
  Index joinPrimary();
  Index addSource(const FromNode& node);
  void whereClause();
  void groupClause();
  void orderClause();
  void deletion();
  void bareName();

  // Expressions (ParserExpressions.cpp).
  Index expression();
  Index disjunction();
  Index conjunction();
  Index negation();
  Index predicate();
  Index predicateTail(Index left, bool negated);
  Index isNull(Index left);
  Index between(Index left, bool negated);
  Index inList(Index left, bool negated);
  Index operation(int weakest);
  Index unary();
  Index primary();
  Index wordPrimary();
  Index column(const Token& name);
  Index call(const Token& name);
  Index literal(ExpressionKind kind);
  Index add(ExpressionKind kind, qsizetype position, Index first, Index second = kNone,
            Index third = kNone);
  void arguments(Index call);
  void append(Index list, Index& last, Index operand);
  void deepen(Index index, Index operand);

  // Tokens.
  bool is(TokenKind kind) const { return token_.kind == kind; }
  bool is(Keyword keyword) const { return token_.keyword == keyword; }
  Token take();
  bool accept(TokenKind kind);
  bool accept(Keyword keyword);
  void expect(TokenKind kind, const char* missing);
  void expect(Keyword keyword, const char* missing);
  bool isName() const;
  QStringView nameText(const char* missing);
  Expression& at(Index index) { return tree_.expressions[static_cast<std::size_t>(index)]; }

  Lexer lexer_;
  Token token_;
  Tree tree_;
  int open_ = 0;  // parentheses and signs that are being read inside each other
  bool sawAggregate_ = false;
};

}  // namespace quartela::dialect
