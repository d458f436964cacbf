// The table of the statements that the program runs: each as the program assembles it, and a plain
// statement of the engine that must give the same rows.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

#include "tests/database/Samples.h"

namespace quartela::test {

// A column by which the result is sorted.
struct SortKey {
  int column = 0;
  bool descending = false;
};

// Rows that stay: those whose column holds (or begins with) the text, whatever the letter case.
struct TextFilter {
  int column = 0;
  QString text;
  bool begins = false;
};

struct StatementCase {
  const char* name;
  QString statement;
  // Without the program's functions and collations; its columns are those of the statement.
  QByteArray expected;
  // Empty when the statement sorts nothing.
  QList<SortKey> order = {};
  // For searches with accents, which the engine alone cannot do.
  std::optional<TextFilter> filter = {};
  // Of TOP 1: only the first row is compared.
  bool firstRowOnly = false;
};

using StatementCases = QList<StatementCase>;

// The key of the row added last, which has a test of its own: no table has it.
inline const QString kNewKey = QStringLiteral("SELECT @@IDENTITY");

// A DELETE, and for each table that loses rows a count of those that must go.
struct DeletionCase {
  struct Loss {
    const char* table;
    QByteArray count;
  };

  const char* name;
  QString statement;
  QList<Loss> losses;
  // Rows put in before, for tables of which every row has dependants.
  QByteArray before = {};
  // The number of the error that refuses it; 0 when it goes through.
  int error = 0;
};

using DeletionCases = QList<DeletionCase>;

// The statements by what they are about.
void addCommonCases(StatementCases& cases, const Samples& samples);
void addRequisitionCases(StatementCases& cases, const Samples& samples);
void addAdvanceCases(StatementCases& cases, const Samples& samples);
void addNoteCases(StatementCases& cases, const Samples& samples);
void addListCases(StatementCases& cases, const Samples& samples);
void addMasterDataCases(StatementCases& cases, const Samples& samples);
void addSheetCases(StatementCases& cases, const Samples& samples);
void addRequestCases(StatementCases& cases, const Samples& samples);
void addReportCases(StatementCases& cases, const Samples& samples);
void addDeletionCases(DeletionCases& cases, const Samples& samples);

// The digits of a number in a statement, and in a plain one.
inline QString digits(int number) {
  return QString::number(number);
}
inline QByteArray plain(int number) {
  return QByteArray::number(number);
}

}  // namespace quartela::test
