#include "platform/database/dialect/Parser.h"

#include <array>

#include "platform/database/dialect/Errors.h"
#include "platform/database/dialect/Names.h"

namespace quartela::dialect {
namespace {

constexpr qsizetype kLongestStatement = 65'536;
constexpr qsizetype kLongestTop = 9;

// First words of statements that other programs send to databases; they are told apart from mere
// misspellings, because they mean something and are not allowed.
constexpr std::array kForeignStatements{
    QStringView(u"INSERT"),    QStringView(u"UPDATE"),    QStringView(u"DROP"),
    QStringView(u"CREATE"),    QStringView(u"ALTER"),     QStringView(u"PRAGMA"),
    QStringView(u"ATTACH"),    QStringView(u"EXEC"),      QStringView(u"WITH"),
    QStringView(u"VALUES"),    QStringView(u"REPLACE"),   QStringView(u"BEGIN"),
    QStringView(u"COMMIT"),    QStringView(u"VACUUM"),    QStringView(u"DETACH"),
    QStringView(u"REINDEX"),   QStringView(u"GRANT"),     QStringView(u"EXECUTE"),
    QStringView(u"TRANSFORM"), QStringView(u"PARAMETERS")};

bool isForeignStatement(const Token& token) {
  if (token.kind != TokenKind::Name) {
    return false;
  }
  for (const QStringView word : kForeignStatements) {
    if (sameName(token.text, word)) {
      return true;
    }
  }
  return false;
}

}  // namespace

Tree parse(QStringView statement) {
  if (statement.size() > kLongestStatement) {
    tooComplex();
  }
  if (const qsizetype nul = statement.indexOf(QChar(u'\0')); nul >= 0) {
    syntaxError(nul, "sinal que não se espera");
  }
  return Parser(statement).statement();
}

Parser::Parser(QStringView statement) : lexer_(statement) {
  tree_.expressions.reserve(static_cast<std::size_t>(statement.size() / 12 + 4));
  tree_.items.reserve(16);
  tree_.from.reserve(12);
  token_ = lexer_.next();
}

Tree Parser::statement() {
  if (is(Keyword::Select)) {
    select();
  } else if (is(Keyword::Delete)) {
    deletion();
  } else {
    bareName();
  }
  accept(TokenKind::Semicolon);
  if (!is(TokenKind::End)) {
    syntaxError(token_.position, "o comando já tinha acabado");
  }
  return std::move(tree_);
}

void Parser::bareName() {
  const Token first = token_;
  FromNode node;
  node.name = nameText("falta o comando");
  if (!is(TokenKind::End) && isForeignStatement(first)) {
    invalidStatement(first.text);
  }
  tree_.items.emplace_back();
  tree_.fromRoot = addSource(node);
}

void Parser::deletion() {
  take();
  tree_.kind = StatementKind::Delete;
  accept(TokenKind::Star);
  expect(Keyword::From, "falta FROM");
  FromNode node;
  node.name = nameText("falta o nome da tabela");
  tree_.fromRoot = addSource(node);
  whereClause();
  if (sawAggregate_) {
    syntaxError("função de agregação na condição de DELETE");
  }
}

void Parser::select() {
  take();
  selectOptions();
  selectItems();
  tree_.aggregates = sawAggregate_;
  sawAggregate_ = false;
  if (accept(Keyword::From)) {
    from();
  }
  whereClause();
  groupClause();
  orderClause();
  tree_.aggregates = tree_.aggregates || sawAggregate_;
}

// DISTINCTROW drops rows that come from the same rows of the tables; as the statements use it, with
// totals, there is nothing to drop.
void Parser::selectOptions() {
  if (accept(Keyword::Distinct)) {
    tree_.distinct = true;
  } else if (!accept(Keyword::DistinctRow)) {
    accept(Keyword::All);
  }
  if (!is(Keyword::Top)) {
    return;
  }
  take();
  if (!is(TokenKind::Integer) || token_.text.size() > kLongestTop) {
    syntaxError(token_.position, "falta o número de linhas de TOP");
  }
  tree_.top = take().text.toLongLong();
}

void Parser::selectItems() {
  do {
    tree_.items.push_back(selectItem());
  } while (accept(TokenKind::Comma));
  if (tree_.items.size() > kMostColumns) {
    tooComplex();
  }
}

SelectItem Parser::selectItem() {
  SelectItem item;
  if (accept(TokenKind::Star)) {
    return item;
  }
  item.expression = expression();
  if (const Expression& read = tree_.at(item.expression); read.kind == ExpressionKind::Star) {
    item.qualifier = read.qualifier;
    item.expression = kNone;
    return item;
  }
  item.alias = selectAlias();
  return item;
}

QStringView Parser::selectAlias() {
  if (accept(Keyword::As) || isName()) {
    return nameText("falta o nome da coluna");
  }
  return {};
}

void Parser::from() {
  tree_.fromRoot = joins();
  while (accept(TokenKind::Comma)) {
    FromNode both;
    both.kind = FromNode::Kind::Inner;
    both.left = tree_.fromRoot;
    both.right = joins();
    tree_.fromRoot = addSource(both);
  }
}

Index Parser::joins() {
  Index left = joinPrimary();
  while (is(Keyword::Inner) || is(Keyword::Left) || is(Keyword::Right) || is(Keyword::Join)) {
    FromNode both;
    both.kind = is(Keyword::Left)    ? FromNode::Kind::Left
                : is(Keyword::Right) ? FromNode::Kind::Right
                                     : FromNode::Kind::Inner;
    if (!is(Keyword::Join)) {
      take();
    }
    if (both.kind != FromNode::Kind::Inner) {
      accept(Keyword::Outer);
    }
    expect(Keyword::Join, "falta JOIN");
    both.left = left;
    both.right = joinPrimary();
    expect(Keyword::On, "falta ON");
    both.on = expression();
    left = addSource(both);
  }
  return left;
}

Index Parser::joinPrimary() {
  if (accept(TokenKind::LeftParen)) {
    if (++open_ > kDeepest) {
      tooComplex();
    }
    const Index inner = joins();
    expect(TokenKind::RightParen, "falta fechar parêntese");
    --open_;
    return inner;
  }
  FromNode node;
  node.name = nameText("falta o nome da tabela");
  if (accept(Keyword::As) || isName()) {
    node.alias = nameText("falta o segundo nome da tabela");
  }
  return addSource(node);
}

Index Parser::addSource(const FromNode& node) {
  tree_.from.push_back(node);
  if (tree_.from.size() > 2 * kMostSources) {
    tooComplex();
  }
  return static_cast<Index>(tree_.from.size() - 1);
}

void Parser::whereClause() {
  if (accept(Keyword::Where)) {
    tree_.where = expression();
  }
}

void Parser::groupClause() {
  if (accept(Keyword::Group)) {
    expect(Keyword::By, "falta BY");
    do {
      tree_.groupBy.push_back(expression());
    } while (accept(TokenKind::Comma));
  }
  if (sawAggregate_) {
    syntaxError("função de agregação em ON, WHERE ou GROUP BY");
  }
  if (accept(Keyword::Having)) {
    tree_.having = expression();
  }
  if (tree_.groupBy.size() > kMostColumns) {
    tooComplex();
  }
}

void Parser::orderClause() {
  if (!accept(Keyword::Order)) {
    return;
  }
  expect(Keyword::By, "falta BY");
  do {
    OrderTerm term;
    term.expression = expression();
    term.descending = accept(Keyword::Desc);
    if (!term.descending) {
      accept(Keyword::Asc);
    }
    tree_.orderBy.push_back(term);
  } while (accept(TokenKind::Comma));
  if (tree_.orderBy.size() > kMostColumns) {
    tooComplex();
  }
}

Token Parser::take() {
  const Token taken = token_;
  token_ = lexer_.next();
  return taken;
}

bool Parser::accept(TokenKind kind) {
  if (token_.kind != kind) {
    return false;
  }
  take();
  return true;
}

bool Parser::accept(Keyword keyword) {
  if (token_.keyword != keyword) {
    return false;
  }
  take();
  return true;
}

void Parser::expect(TokenKind kind, const char* missing) {
  if (!accept(kind)) {
    syntaxError(token_.position, missing);
  }
}

void Parser::expect(Keyword keyword, const char* missing) {
  if (!accept(keyword)) {
    syntaxError(token_.position, missing);
  }
}

bool Parser::isName() const {
  return token_.kind == TokenKind::QuotedName ||
         (token_.kind == TokenKind::Name && token_.keyword == Keyword::None);
}

QStringView Parser::nameText(const char* missing) {
  if (!isName()) {
    syntaxError(token_.position, missing);
  }
  return take().text;
}

}  // namespace quartela::dialect
