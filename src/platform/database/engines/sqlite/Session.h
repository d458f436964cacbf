// One open database file of the embedded engine: its handle, its catalogue, and who writes when.
//
// The write lock of the file is taken by the transaction of Connection, by a row that a Recordset
// has begun with LockType::Pessimistic (a holder), or for the moment of one statement (WriteScope).
// A statement of its own is safe on the disk when it returns, whoever holds the lock; inside the
// transaction of Connection it waits for the commit. A transaction that has changed nothing and
// whose statement is refused lets others write, and takes the lock again with its next statement.
#pragma once

#include <sqlite3.h>

#include <QString>
#include <memory>
#include <string>
#include <unordered_map>

#include "platform/database/SchemaSteps.h"
#include "platform/database/dialect/Catalogue.h"
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
  // against writing is opened for reading. An older one is brought forward by `steps`.
  explicit SqliteSession(const QString& path, const SchemaSteps& steps = {});
  // Rolls back what is open and leaves one file.
  ~SqliteSession();
  SqliteSession(const SqliteSession&) = delete;
  SqliteSession& operator=(const SqliteSession&) = delete;

  sqlite3* handle() const { return db_.get(); }
  const Catalogue& catalogue() const { return catalogue_; }

  // The statement prepared for that text, made at its first use and kept for the next: preparing a
  // write with its checks takes longer than running it. To be used by one Statement at a time.
  sqlite::KeptStatement prepared(const std::string& sql);

  // The transaction of Connection, one at a time. Error 5 for a second one, and for a commit
  // without one or when the engine has given it up by itself. A rollback without one does nothing.
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
  void takeLock();
  void giveUpTransaction();
  bool changedNothing() const { return !changed_ && lockHolders_ == 0; }
  // After a commit or rollback: takes the lock again for rows that are still begun. When another
  // program was quicker, they take it with their update.
  void keepLock();

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
