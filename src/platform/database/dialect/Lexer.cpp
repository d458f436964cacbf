#include "platform/database/dialect/Lexer.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/database/dialect/Errors.h"
#include "platform/database/dialect/Names.h"

namespace quartela::dialect {
namespace {

struct Word {
  std::u16string_view text;
  Keyword keyword;
};

// Ordered by length, so that a name is held against the words of its own length only.
constexpr std::array kWords{
    Word{u"as", Keyword::As},
    Word{u"by", Keyword::By},
    Word{u"in", Keyword::In},
    Word{u"is", Keyword::Is},
    Word{u"no", Keyword::No},
    Word{u"on", Keyword::On},
    Word{u"or", Keyword::Or},
    Word{u"all", Keyword::All},
    Word{u"and", Keyword::And},
    Word{u"asc", Keyword::Asc},
    Word{u"mod", Keyword::Mod},
    Word{u"not", Keyword::Not},
    Word{u"top", Keyword::Top},
    Word{u"yes", Keyword::Yes},
    Word{u"desc", Keyword::Desc},
    Word{u"from", Keyword::From},
    Word{u"join", Keyword::Join},
    Word{u"left", Keyword::Left},
    Word{u"like", Keyword::Like},
    Word{u"null", Keyword::Null},
    Word{u"true", Keyword::True},
    Word{u"false", Keyword::False},
    Word{u"group", Keyword::Group},
    Word{u"inner", Keyword::Inner},
    Word{u"order", Keyword::Order},
    Word{u"outer", Keyword::Outer},
    Word{u"right", Keyword::Right},
    Word{u"where", Keyword::Where},
    Word{u"delete", Keyword::Delete},
    Word{u"having", Keyword::Having},
    Word{u"select", Keyword::Select},
    Word{u"between", Keyword::Between},
    Word{u"distinct", Keyword::Distinct},
    Word{u"distinctrow", Keyword::DistinctRow},
};

constexpr qsizetype kLongestWord = 11;

// For each length the place of its first word in kWords.
constexpr auto kFirstOfLength = [] {
  std::array<std::size_t, kLongestWord + 2> first{};
  for (std::size_t length = 0; length < first.size(); ++length) {
    while (first[length] < kWords.size() && kWords[first[length]].text.size() < length) {
      ++first[length];
    }
  }
  return first;
}();

Keyword keywordOf(QStringView name) {
  if (name.size() > kLongestWord) {
    return Keyword::None;
  }
  const auto length = static_cast<std::size_t>(name.size());
  for (std::size_t i = kFirstOfLength[length]; i < kFirstOfLength[length + 1]; ++i) {
    if (sameName(name, QStringView(kWords[i].text.data(), name.size()))) {
      return kWords[i].keyword;
    }
  }
  return Keyword::None;
}

bool isDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

bool startsName(char16_t unit) {
  return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || unit == u'_' ||
         (unit >= 0x80 && QChar::isLetter(char32_t{unit}));
}

bool continuesName(char16_t unit) {
  return startsName(unit) || isDigit(unit);
}

}  // namespace

Token Lexer::next() {
  skipBlanks();
  const char16_t unit = at(position_);
  if (position_ >= text_.size()) {
    return take(TokenKind::End, 0);
  }
  if (startsName(unit)) {
    return name();
  }
  if (isDigit(unit) || (unit == u'.' && isDigit(at(position_ + 1)))) {
    return number();
  }
  switch (unit) {
    case u'\'':
    case u'"':
      return text(unit);
    case u'[':
      return enclosed(TokenKind::QuotedName, u']', "falta o fim do nome entre colchetes");
    case u'#':
      return enclosed(TokenKind::Date, u'#', "falta o fim da data");
    case u'@':
      return identity();
    default:
      return sign();
  }
}

void Lexer::skipBlanks() {
  while (position_ < text_.size() && text_[position_].isSpace()) {
    ++position_;
  }
}

Token Lexer::take(TokenKind kind, qsizetype length) {
  Token token;
  token.kind = kind;
  token.text = text_.mid(position_, length);
  token.position = position_;
  position_ += length;
  return token;
}

Token Lexer::name() {
  qsizetype end = position_ + 1;
  while (continuesName(at(end))) {
    ++end;
  }
  Token token = take(TokenKind::Name, end - position_);
  token.keyword = keywordOf(token.text);
  return token;
}

Token Lexer::number() {
  TokenKind kind = TokenKind::Integer;
  qsizetype end = position_;
  while (isDigit(at(end))) {
    ++end;
  }
  if (at(end) == u'.') {
    kind = TokenKind::Decimal;
    do {
      ++end;
    } while (isDigit(at(end)));
  }
  if (startsName(at(end))) {
    syntaxError(end, "letra dentro de um número");
  }
  return take(kind, end - position_);
}

Token Lexer::text(char16_t quote) {
  qsizetype end = position_ + 1;
  while (end < text_.size() && (at(end) != quote || at(end + 1) == quote)) {
    end += at(end) == quote ? 2 : 1;
  }
  if (end >= text_.size()) {
    syntaxError(position_, "falta o fim do texto");
  }
  Token token = take(TokenKind::Text, end + 1 - position_);
  token.text = token.text.mid(1, token.text.size() - 2);
  token.quote = quote;
  return token;
}

Token Lexer::enclosed(TokenKind kind, char16_t closing, const char* unclosed) {
  const qsizetype end = text_.indexOf(QChar(closing), position_ + 1);
  if (end < 0) {
    syntaxError(position_, unclosed);
  }
  Token token = take(kind, end + 1 - position_);
  token.text = token.text.mid(1, token.text.size() - 2).trimmed();
  if (token.text.isEmpty()) {
    syntaxError(token.position, "nome ou data sem conteúdo");
  }
  return token;
}

Token Lexer::identity() {
  constexpr QStringView kIdentity = u"@@IDENTITY";
  const qsizetype length = kIdentity.size();
  if (!sameName(text_.mid(position_, length), kIdentity) || continuesName(at(position_ + length))) {
    syntaxError(position_, "sinal que não se espera");
  }
  return take(TokenKind::Identity, length);
}

Token Lexer::sign() {
  switch (at(position_)) {
    case u',':
      return take(TokenKind::Comma, 1);
    case u'.':
      return take(TokenKind::Dot, 1);
    case u'*':
      return take(TokenKind::Star, 1);
    case u'(':
      return take(TokenKind::LeftParen, 1);
    case u')':
      return take(TokenKind::RightParen, 1);
    case u'+':
      return take(TokenKind::Plus, 1);
    case u'-':
      return take(TokenKind::Minus, 1);
    case u'/':
      return take(TokenKind::Slash, 1);
    case u'\\':
      return take(TokenKind::Backslash, 1);
    case u'&':
      return take(TokenKind::Ampersand, 1);
    case u';':
      return take(TokenKind::Semicolon, 1);
    default:
      return comparison();
  }
}

Token Lexer::comparison() {
  const char16_t following = at(position_ + 1);
  switch (at(position_)) {
    case u'=':
      return take(TokenKind::Equal, 1);
    case u'<':
      if (following == u'>') {
        return take(TokenKind::NotEqual, 2);
      }
      return following == u'=' ? take(TokenKind::LessEqual, 2) : take(TokenKind::Less, 1);
    case u'>':
      return following == u'=' ? take(TokenKind::GreaterEqual, 2) : take(TokenKind::Greater, 1);
    default:
      syntaxError(position_, "sinal que não se espera");
  }
}

}  // namespace quartela::dialect
