// The words and signs that a statement is cut into.
#include "platform/database/dialect/Lexer.h"

#include "platform/values/RuntimeError.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::dialect;

namespace {

const char* nameOf(TokenKind kind) {
  switch (kind) {
    case TokenKind::End:
      return "end";
    case TokenKind::Name:
      return "name";
    case TokenKind::QuotedName:
      return "quoted";
    case TokenKind::Integer:
      return "integer";
    case TokenKind::Decimal:
      return "decimal";
    case TokenKind::Text:
      return "text";
    case TokenKind::Date:
      return "date";
    case TokenKind::Identity:
      return "identity";
    default:
      return "sign";
  }
}

QString described(const Token& token) {
  return QStringLiteral("%1:%2@%3")
      .arg(QLatin1String(nameOf(token.kind)), token.text)
      .arg(token.position);
}

QStringList tokensOf(const QString& statement) {
  Lexer lexer(statement);
  QStringList tokens;
  for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
    tokens.append(described(token));
  }
  return tokens;
}

}  // namespace

class LexerTest : public QObject {
  Q_OBJECT

 private slots:
  void cutsIntoTokens_data() {
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QStringList>("tokens");
    const auto row = [](const char* name, const char* statement, const QStringList& tokens) {
      QTest::newRow(name) << QString::fromUtf8(statement) << tokens;
    };
    row("nothing", " \t\r\n ", {});
    row("names and a dot", "Requisicao.SEQ", {"name:Requisicao@0", "sign:.@10", "name:SEQ@11"});
    row("accents", "VEÍCULO ação_1", {"name:VEÍCULO@0", "name:ação_1@8"});
    row("brackets", "[Soma De DESPESAS] [ x ]", {"quoted:Soma De DESPESAS@0", "quoted:x@19"});
    row("whole numbers", "0 007 514)",
        {"integer:0@0", "integer:007@2", "integer:514@6", "sign:)@9"});
    row("decimals", "100.5 .25 3.", {"decimal:100.5@0", "decimal:.25@6", "decimal:3.@10"});
    row("text", "'a' \"b c\"", {"text:a@0", "text:b c@4"});
    row("empty text", "''", {"text:@0"});
    row("doubled quotes stay", "'D''ÁGUA' \"a\"\"b\"", {"text:D''ÁGUA@0", "text:a\"\"b@10"});
    row("other quote inside", "'a\"b'", {"text:a\"b@0"});
    row("date", "#2014/01/31#", {"date:2014/01/31@0"});
    row("identity", "@@Identity", {"identity:@@Identity@0"});
    row("comparisons",
        "<><=>=<>=", {"sign:<>@0", "sign:<=@2", "sign:>=@4", "sign:<>@6", "sign:=@8"});
    row("no blanks", ")AS DIAS", {"sign:)@0", "name:AS@1", "name:DIAS@4"});
    row("two signs are no comment", "5--3", {"integer:5@0", "sign:-@1", "sign:-@2", "integer:3@3"});
    row("all others", ",*+/\\&;",
        {"sign:,@0", "sign:*@1", "sign:+@2", "sign:/@3", "sign:\\@4", "sign:&@5", "sign:;@6"});
  }

  void cutsIntoTokens() {
    QFETCH(QString, statement);
    QFETCH(QStringList, tokens);
    QCOMPARE(tokensOf(statement), tokens);
  }

  void knowsKeywords_data() {
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("keyword");
    const auto row = [](const char* word, Keyword keyword) {
      QTest::newRow(word) << QString::fromUtf8(word) << static_cast<int>(keyword);
    };
    row("SELECT", Keyword::Select);
    row("Select", Keyword::Select);
    row("dIsTiNcTrOw", Keyword::DistinctRow);
    row("as", Keyword::As);
    row("Yes", Keyword::Yes);
    row("between", Keyword::Between);
    row("DATA", Keyword::None);
    row("SELECTS", Keyword::None);
    row("ÁS", Keyword::None);
    row("[FROM]", Keyword::None);
    row("'FROM'", Keyword::None);
  }

  void knowsKeywords() {
    QFETCH(QString, word);
    QFETCH(int, keyword);
    Lexer lexer(word);
    QCOMPARE(static_cast<int>(lexer.next().keyword), keyword);
  }

  void staysAtTheEnd() {
    Lexer lexer(u"a");
    lexer.next();
    QCOMPARE(lexer.next().kind, TokenKind::End);
    QCOMPARE(lexer.next().kind, TokenKind::End);
  }

  void refuses_data() {
    QTest::addColumn<QString>("statement");
    QTest::addColumn<int>("position");
    const auto row = [](const char* name, const char* statement, int position) {
      QTest::newRow(name) << QString::fromUtf8(statement) << position;
    };
    row("text without end", "a 'b", 3);
    row("text that ends in a doubled quote", "'b''", 1);
    row("brackets without end", "a [b", 3);
    row("brackets without name", "[ ]", 1);
    row("date without end", "a = #2014/01/01", 5);
    row("letter in a number", "12a", 3);
    row("letter behind a decimal", "12.5x", 5);
    row("one at sign", "@IDENTITY", 1);
    row("identity goes on", "@@IDENTITYX", 1);
    row("exclamation mark", "a!b", 2);
    row("percent", "a % b", 3);
    row("symbol", "€", 1);
    row("accent alone", "\u0301", 1);
  }

  void refuses() {
    QFETCH(QString, statement);
    QFETCH(int, position);
    try {
      tokensOf(statement);
      QFAIL("no error");
    } catch (const RuntimeError& error) {
      QCOMPARE(error.number(), 3075);
      QVERIFY2(error.description().contains(QStringLiteral("[posição %1: ").arg(position)),
               qPrintable(error.description()));
    }
  }
};

QUARTELA_TEST_MAIN(LexerTest)
#include "Lexer_test.moc"
