#include "tests/support/office/KnownStatements.h"

#include <QSet>
#include <QTest>

#include "platform/database/dialect/Lexer.h"
#include "tests/database/statements/StatementCase.h"

namespace quartela::test {
namespace {

using dialect::Token;
using dialect::TokenKind;

bool isNumber(const Token& token) {
  return token.kind == TokenKind::Integer || token.kind == TokenKind::Decimal;
}

bool isLiteral(const Token& token) {
  return isNumber(token) || token.kind == TokenKind::Text || token.kind == TokenKind::Date;
}

QSet<QString> knownShapes() {
  const Samples noRows;
  StatementCases selects;
  addCommonCases(selects, noRows);
  addRequisitionCases(selects, noRows);
  addAdvanceCases(selects, noRows);
  addNoteCases(selects, noRows);
  addListCases(selects, noRows);
  addMasterDataCases(selects, noRows);
  addSheetCases(selects, noRows);
  addRequestCases(selects, noRows);
  addReportCases(selects, noRows);
  DeletionCases deletions;
  addDeletionCases(deletions, noRows);
  QSet<QString> shapes{shapeOf(kNewKey)};
  for (const StatementCase& one : selects) {
    shapes << shapeOf(one.statement);
  }
  for (const DeletionCase& one : deletions) {
    shapes << shapeOf(one.statement);
  }
  return shapes;
}

QSet<QString>& ownShapes() {
  static QSet<QString> shapes;
  return shapes;
}

}  // namespace

QString shapeOf(const QString& statement) {
  dialect::Lexer lexer(statement);
  QStringList words;
  bool negated = false;
  for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
    if (negated && isNumber(token)) {
      words.removeLast();
    }
    negated = token.kind == TokenKind::Minus;
    if (token.kind != TokenKind::Semicolon) {
      words << (isLiteral(token) ? QStringLiteral("?") : token.text.toString().toUpper());
    }
  }
  return words.join(QLatin1Char(' '));
}

bool isKnownStatement(const QString& statement) {
  static const QSet<QString> kShapes = knownShapes();
  const QString shape = shapeOf(statement);
  return kShapes.contains(shape) || ownShapes().contains(shape);
}

OwnStatements::OwnStatements(const QStringList& statements) {
  for (const QString& statement : statements) {
    ownShapes().insert(shapeOf(statement));
  }
}

OwnStatements::~OwnStatements() {
  ownShapes().clear();
}

void requireKnown(const QString& statement) {
  if (!isKnownStatement(statement)) {
    QTest::qFail(
        qPrintable(QStringLiteral("in no table of tests/database/statements: ") + statement),
        __FILE__, __LINE__);
  }
}

}  // namespace quartela::test
