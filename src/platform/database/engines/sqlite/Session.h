// One open database file of the embedded engine: its handle, its catalogue, and who writes when.
//
// The write lock of the file is taken by the transaction of Connection, by a row that a Recordset
// has begun with LockType::Pessimistic (a holder), or for the moment of one statement (WriteScope).
// A statement of its own is safe on the disk when it returns, whoever holds the lock; inside the
// transaction of Connection it waits for the commit. A transaction that has changed nothing and
// whose statement is refused lets others write, and takes the lock again with its next statement.
//
// Between two saves the one file is whole and holds everything: its journal stands beside it during
// a save only. Before each write the open file is known to be the one at the path.
#pragma once

#include <sqlite3.h>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

#include "platform/database/engines/Engine.h"
#include "platform/database/engines/sqlite/FileCheck.h"
#include "platform/database/engines/sqlite/PrivateCopy.h"
#include "platform/database/engines/sqlite/Statement.h"

namespace quartela {

namespace sqlite {

struct CloseHandle {
  void operator()(sqlite3* db) const;
};
using Handle = std::unique_ptr<sqlite3, CloseHandle>;

class WriteScope;
struct LeastMatch;

}  // namespace sqlite

class SqliteSession : public Engine {
 public:
  // Opens the file; the errors are those of Connection::open. A file or folder that is protected
  // against writing is opened for reading. A file that an earlier program has left with a
  // write-ahead log is given a rollback journal, one of an older version is brought forward by
  // `steps`; 3218 while another program works with it so.
  explicit SqliteSession(const QString& path, const SchemaSteps& steps = {});
  // Rolls back what is open and leaves one file.
  ~SqliteSession() override;

  sqlite3* handle() const { return db_.get(); }
  const QString& path() const { return path_; }

  // To be called before rows are read. Without the right to write, an interrupted save of another
  // program cannot be undone in the file; it is then read from a copy, which this brings up to
  // date.
  void prepareToRead();

  // The statement prepared for that text, made at its first use and kept for the next: preparing a
  // write with its checks takes longer than running it. To be used by one Statement at a time.
  sqlite::KeptStatement prepared(const std::string& sql);

  const Catalogue& catalogue() const override { return catalogue_; }
  const QStringList& notices() const override { return notices_; }
  void select(const dialect::AnalysedStatement& statement, const LoadedColumns& columns,
              ResultRows& rows) override;
  int remove(const dialect::AnalysedStatement& statement) override;

  // Beginning and committing raise 3043 when the path leads to another file, or to none, by now.
  void beginTransaction() override;
  void commit() override;
  void rollback() override;
  bool inTransaction() const override { return transaction_; }

  // The lock is the file's, whatever the row.
  void holdRow(const CatalogueTable& table, const CellsToWrite& key) override;
  void releaseRow() override;
  bool hasRow(const CatalogueTable& table, const CellsToWrite& key) override;
  void insertRow(const CatalogueTable& table, const CellsToWrite& cells,
                 const LoadedColumns& returned, ResultRows& rows) override;
  void changeRow(const CatalogueTable& table, const CellsToWrite& key, const CellsToWrite& cells,
                 const LoadedColumns& returned, ResultRows& rows) override;

 private:
  friend class sqlite::WriteScope;

  bool engineInTransaction() const { return sqlite3_get_autocommit(db_.get()) == 0; }
  void open();
  void openForReading();
  void clearBeside();
  void keepAside(const QString& name);
  bool selectLeastMatch(const sqlite::LeastMatch& wanted, const LoadedColumns& columns,
                        ResultRows& rows);
  template <typename Write>
  void writeRow(ResultRows& rows, Write write);
  void takeLock();
  void requireSameFile() const;
  void engineCommit();
  void giveUpTransaction();
  bool changedNothing() const { return !changed_ && lockHolders_ == 0; }
  // After a commit or rollback: takes the lock again for rows that are still begun. When another
  // program was quicker, they take it with their update.
  void keepLock();

  QString path_;
  QByteArray pathBytes_;
  SchemaSteps steps_;
  bool writable_ = false;
  sqlite::FileIdentity identity_;
  QStringList notices_;
  // What the rows are read from instead of the file, where they are.
  std::optional<sqlite::CopySource> copySource_;
  sqlite::Handle db_;
  // Finalised before the handle is closed.
  std::unordered_map<std::string, sqlite::KeptStatement> prepared_;
  Catalogue catalogue_;
  bool transaction_ = false;
  bool changed_ = false;  // by the transaction
  bool yielded_ = false;  // its lock, until its next statement
  int lockHolders_ = 0;
};

namespace sqlite {

// The write lock for one statement: undoes what was written unless commit() has been called.
class WriteScope {
 public:
  explicit WriteScope(SqliteSession& session);
  ~WriteScope();
  WriteScope(const WriteScope&) = delete;
  WriteScope& operator=(const WriteScope&) = delete;

  // What was written is then on the disk, or part of the transaction of Connection.
  void commit();

 private:
  void undoStatement();

  SqliteSession& session_;
  bool nested_;
  bool done_ = false;
};

}  // namespace sqlite
}  // namespace quartela
