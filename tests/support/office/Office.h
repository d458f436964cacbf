// A town hall's office for one test: a fresh program folder with its settings, counter, passwords
// and a database of its own, open as Conexao. A statement sent meanwhile that is in no table of
// tests/database/statements fails the test.
#pragma once

#include <QString>
#include <QTemporaryDir>

#include "platform/database/StatementListener.h"

namespace quartela::test {

enum class Data {
  Empty,          // reference data only
  Demonstration,  // a small town with 60 processes, as of 21/11/2014
};

class Office {
 public:
  explicit Office(Data data = Data::Empty);
  // Closes the database and gives the real program folder back.
  ~Office();
  Office(const Office&) = delete;
  Office& operator=(const Office&) = delete;

  QString file(const QString& name) const { return folder_.filePath(name); }
  QString database() const { return file(QStringLiteral("Banco.mdb")); }
  QString counter() const { return file(QStringLiteral("Number.Ini")); }
  QString config() const { return file(QStringLiteral("Config.ini")); }

  // The first cell of the first row of plain SQL, as text, read beside the program's own
  // connection;
  // "" for null and for no row.
  QString ask(const char* sql) const;
  // Runs plain SQL (several statements, foreign keys enforced) beside the program's own connection.
  void run(const char* sql) const;

 private:
  QTemporaryDir folder_;
  StatementListener statements_;
};

}  // namespace quartela::test
