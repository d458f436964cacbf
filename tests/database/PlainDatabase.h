// A database file through the engine's C API alone, as any other tool would read it: the tests' own
// way to the rows, independent of the program's.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

struct sqlite3;

namespace quartela::test {

// A null cell; no text of the data is this character.
inline const QString kNull = QStringLiteral("\u2400");

struct PlainRows {
  QStringList names;
  // The declared types of the columns, empty for computed ones.
  QStringList types;
  // Numbers as their digits, texts as they are, kNull for null.
  QList<QStringList> rows;
};

class PlainDatabase {
 public:
  // Opens an existing file with relations enforced; the test fails loudly (qFatal) when it cannot.
  explicit PlainDatabase(const QString& path);
  ~PlainDatabase();
  PlainDatabase(const PlainDatabase&) = delete;
  PlainDatabase& operator=(const PlainDatabase&) = delete;

  // The primary result code of running the statements; 0 when all went well.
  int run(const QByteArray& sql);
  // The same, with the whole extended code.
  int runExtended(const QByteArray& sql);

  // qFatal for a statement with an error in it.
  PlainRows query(const QByteArray& sql);
  QString text(const QByteArray& sql);
  int number(const QByteArray& sql);

  // Every table's name, the engine's own left out.
  QStringList tables();
  // One hash over every cell of every table, in the order of the keys.
  QByteArray contentHash();

 private:
  sqlite3* database_ = nullptr;
};

}  // namespace quartela::test
