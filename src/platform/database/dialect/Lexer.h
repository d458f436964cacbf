// The words and signs of a statement, one after the other, as views into its text.
#pragma once

#include <QStringView>
#include <cstdint>

namespace quartela::dialect {

enum class TokenKind : std::uint8_t {
  End,
  Name,        // a word: a keyword or a name
  QuotedName,  // [a name], never a keyword
  Integer,
  Decimal,  // with the dot
  Text,
  Date,
  Identity,  // @@IDENTITY
  Comma,
  Dot,
  Star,
  LeftParen,
  RightParen,
  Plus,
  Minus,
  Slash,
  Backslash,
  Ampersand,
  Equal,
  NotEqual,
  Less,
  LessEqual,
  Greater,
  GreaterEqual,
  Semicolon,
};

enum class Keyword : std::uint8_t {
  None,
  All,
  And,
  As,
  Asc,
  Between,
  By,
  Delete,
  Desc,
  Distinct,
  DistinctRow,
  False,
  From,
  Group,
  Having,
  In,
  Inner,
  Is,
  Join,
  Left,
  Like,
  Mod,
  No,
  Not,
  Null,
  On,
  Or,
  Order,
  Outer,
  Right,
  Select,
  Top,
  True,
  Where,
  Yes,
};

struct Token {
  TokenKind kind = TokenKind::End;
  Keyword keyword = Keyword::None;  // of a Name
  // What stands between the brackets, quotes or number signs, quotes still doubled; else the token
  // itself.
  QStringView text;
  char16_t quote = 0;      // of a Text: ' or "
  qsizetype position = 0;  // of its first character
};

class Lexer {
 public:
  explicit Lexer(QStringView statement) : text_(statement) {}

  // The next token, End again and again behind the last. Error 3075 for a character that has no
  // meaning, and for a text, name or date without its end.
  Token next();

 private:
  char16_t at(qsizetype position) const {
    return position < text_.size() ? text_[position].unicode() : u'\0';
  }
  Token take(TokenKind kind, qsizetype length);
  Token name();
  Token number();
  Token text(char16_t quote);
  Token enclosed(TokenKind kind, char16_t closing, const char* unclosed);
  Token identity();
  Token sign();
  Token comparison();
  void skipBlanks();

  QStringView text_;
  qsizetype position_ = 0;
};

}  // namespace quartela::dialect
