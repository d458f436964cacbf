// The statements that the program is known to send: those of tests/database/statements, where each
// is run against rows found another way.
#pragma once

#include <QString>
#include <QStringList>

namespace quartela::test {

// A statement with a "?" in the place of each number, text and date, in capitals and with single
// blanks. Statements of one shape differ by what they ask for alone.
QString shapeOf(const QString& statement);

// Whether the tables of statements have one of that shape.
bool isKnownStatement(const QString& statement);

// Statements that a test of a common routine hands over itself: known as long as the object lives.
class OwnStatements {
 public:
  explicit OwnStatements(const QStringList& statements);
  ~OwnStatements();
  OwnStatements(const OwnStatements&) = delete;
  OwnStatements& operator=(const OwnStatements&) = delete;
};

// Fails the running test when the statement is in no table.
void requireKnown(const QString& statement);

}  // namespace quartela::test
