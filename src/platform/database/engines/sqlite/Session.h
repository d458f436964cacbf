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

#include "platform/database/SchemaSteps.h"
#include "platform/database/dialect/Catalogue.h"
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

}  // namespace sqlite

class SqliteSession : public std::enable_shared_from_this<SqliteSession> {
 public:
  // Opens the file; the errors are those of Connection::open. A file or folder that is protected
  // against writing is opened for reading. A file that an earlier program has left with a
  // write-ahead log is given a rollback journal, one of an older version is brought forward by
  // `steps`; 3218 while another program works with it so.
  explicit SqliteSession(const QString& path, const SchemaSteps& steps = {});
  // Rolls back what is open and leaves one file.
  ~SqliteSession();
  SqliteSession(const SqliteSession&) = delete;
  SqliteSession& operator=(const SqliteSession&) = delete;

  sqlite3* handle() const { return db_.get(); }
  const Catalogue& catalogue() const { return catalogue_; }
  const QString& path() const { return path_; }
  // What the opening has to tell an operator; empty as a rule.
  const QStringList& notices() const { return notices_; }

  // To be called before rows are read. Without the right to write, an interrupted save of another
  // program cannot be undone in the file; it is then read from a copy, which this brings up to
  // date.
  void prepareToRead();

  // The statement prepared for that text, made at its first use and kept for the next: preparing a
  // write with its checks takes longer than running it. To be used by one Statement at a time.
  sqlite::KeptStatement prepared(const std::string& sql);

  // The transaction of Connection, one at a time. Error 5 for a second one, and for a commit
  // without one or when the engine has given it up by itself. A rollback without one does nothing.
  // Beginning and committing raise 3043 when the path leads to another file, or to none, by now.
  void beginTransaction();
  void commit();
  void rollback();
  bool inTransaction() const { return transaction_; }

  // A row begun that keeps the write lock until the holder is removed; 3218 when another program
  // has it.
  void addLockHolder();
  void removeLockHolder();

 private:
  friend class sqlite::WriteScope;

  bool engineInTransaction() const { return sqlite3_get_autocommit(db_.get()) == 0; }
  void open();
  void openForReading();
  void clearBeside();
  void keepAside(const QString& name);
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
