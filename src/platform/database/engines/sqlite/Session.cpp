#include "platform/database/engines/sqlite/Session.h"

#include <QFile>
#include <QUrl>

#include "platform/database/engines/sqlite/CatalogueReader.h"
#include "platform/database/engines/sqlite/FileCheck.h"
#include "platform/database/engines/sqlite/Latin.h"
#include "platform/database/engines/sqlite/Statement.h"
#include "platform/database/engines/sqlite/Upgrade.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace sqlite {
namespace {

constexpr int kBusyMilliseconds = 1500;

// The connection serves one thread, so it needs no mutex; the engine must never make a file.
constexpr int kCommonFlags = SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_URI | SQLITE_OPEN_EXRESCODE;

QByteArray uriOf(const QString& path) {
  return "file:" + QUrl::toPercentEncoding(path, "/");
}

Handle openHandle(const QByteArray& uri, int flags) {
  sqlite3* db = nullptr;
  const int code = sqlite3_open_v2(uri.constData(), &db, flags | kCommonFlags, nullptr);
  Handle handle(db);
  check(db, code, Activity::Opening);
  check(db, sqlite3_busy_timeout(db, kBusyMilliseconds), Activity::Opening);
  check(db, registerLatin(db), Activity::Opening);
  return handle;
}

// Without writing rights the engine cannot make its files beside the database. Where they are
// there, somebody is at work with the file and the engine needs them; otherwise the file stands
// still.
Handle openForReading(const QString& path) {
  const bool inUse = QFile::exists(path + QLatin1String("-wal"));
  const QByteArray uri = inUse ? uriOf(path) : uriOf(path) + "?immutable=1";
  return openHandle(uri, SQLITE_OPEN_READONLY);
}

// What was reported as saved survives a power cut: the log is synchronised at every commit.
void prepareForWriting(sqlite3* db) {
  run(db, "PRAGMA foreign_keys = ON", Activity::Opening);
  run(db, "PRAGMA journal_mode = WAL", Activity::Opening);
  run(db, "PRAGMA synchronous = FULL", Activity::Opening);
}

[[noreturn]] void refuse(const QString& path, const RuntimeError& cause) {
  // The engine's own words, which stand in brackets behind those of the number.
  const QString detail = cause.description().mid(errorDescription(cause.code()).size());
  throw RuntimeError::withDescription(
      ErrorNumber::InvalidPath,
      QStringLiteral(
          "O arquivo \"%1\" não pode ser aberto: está danificado ou incompleto, ou falta "
          "permissão na pasta.%2")
          .arg(path, detail));
}

}  // namespace

void CloseHandle::operator()(sqlite3* db) const {
  // Nothing can be mended here: what was committed is safe in the file or in its log.
  static_cast<void>(sqlite3_close_v2(db));
}

WriteScope::WriteScope(SqliteSession& session) : session_(session), nested_(session.transaction_) {
  session.takeLock();
  if (nested_) {
    run(session.handle(), "SAVEPOINT linha", Activity::Writing);
  }
}

void WriteScope::commit() {
  run(session_.handle(), nested_ ? "RELEASE linha" : "COMMIT", Activity::Writing);
  done_ = true;
  session_.changed_ = nested_;
}

WriteScope::~WriteScope() {
  if (!done_) {
    nested_ ? undoStatement() : session_.giveUpTransaction();
  }
  session_.keepLock();
}

void WriteScope::undoStatement() {
  if (!session_.engineInTransaction()) {
    return;
  }
  // A failure here means that the engine has given up the whole transaction; commit() tells.
  sqlite3_exec(session_.handle(), "ROLLBACK TO linha; RELEASE linha", nullptr, nullptr, nullptr);
  if (session_.changedNothing()) {
    session_.giveUpTransaction();
    session_.yielded_ = true;
  }
}

}  // namespace sqlite

using sqlite::Activity;
using sqlite::run;

SqliteSession::SqliteSession(const QString& path, const SchemaSteps& steps) {
  sqlite::checkFile(path);
  const bool writable = sqlite::canBeWritten(path);
  try {
    db_ = writable ? sqlite::openHandle(sqlite::uriOf(path), SQLITE_OPEN_READWRITE)
                   : sqlite::openForReading(path);
    sqlite::bringForward(handle(), path, writable, steps);
    catalogue_ = sqlite::readCatalogue(handle());
  } catch (const RuntimeError& error) {
    if (error.code() != ErrorNumber::InvalidPath || error.description().contains(path)) {
      throw;
    }
    sqlite::refuse(path, error);
  }
  if (writable) {
    sqlite::prepareForWriting(handle());
  }
}

SqliteSession::~SqliteSession() {
  giveUpTransaction();
}

sqlite::KeptStatement SqliteSession::prepared(const std::string& sql) {
  // The program writes through a few dozen texts; more than these would be a leak in disguise.
  constexpr std::size_t kMostKept = 64;
  const auto kept = prepared_.find(sql);
  if (kept != prepared_.end()) {
    return kept->second;
  }
  if (prepared_.size() == kMostKept) {
    prepared_.clear();
  }
  sqlite3_stmt* statement = nullptr;
  sqlite::check(handle(),
                sqlite3_prepare_v3(handle(), sql.data(), static_cast<int>(sql.size()),
                                   SQLITE_PREPARE_PERSISTENT, &statement, nullptr),
                sqlite::Activity::Preparing);
  return prepared_.emplace(sql, sqlite::KeptStatement(statement, sqlite3_finalize)).first->second;
}

void SqliteSession::beginTransaction() {
  if (transaction_) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                       QStringLiteral("já há uma transação iniciada"));
  }
  takeLock();
  transaction_ = true;
  changed_ = false;
  yielded_ = false;
}

void SqliteSession::commit() {
  if (!transaction_ || !(engineInTransaction() || yielded_)) {
    transaction_ = false;
    throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                       QStringLiteral("não há transação a confirmar"));
  }
  if (!yielded_) {
    run(handle(), "COMMIT", Activity::Writing);
  }
  transaction_ = false;
  keepLock();
}

void SqliteSession::rollback() {
  if (!transaction_) {
    return;
  }
  giveUpTransaction();
  transaction_ = false;
  keepLock();
}

void SqliteSession::addLockHolder() {
  takeLock();
  ++lockHolders_;
}

void SqliteSession::removeLockHolder() {
  --lockHolders_;
  if (lockHolders_ == 0 && !transaction_) {
    giveUpTransaction();
  }
}

void SqliteSession::takeLock() {
  if (engineInTransaction()) {
    return;
  }
  if (transaction_ && !yielded_) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                       QStringLiteral("a transação foi desfeita por um erro anterior"));
  }
  // The engine itself would only refuse the first change.
  if (sqlite3_db_readonly(handle(), "main") == 1) {
    throw RuntimeError(ErrorNumber::ReadOnlyDatabase);
  }
  run(handle(), "BEGIN IMMEDIATE", Activity::Writing);
  yielded_ = false;
}

void SqliteSession::giveUpTransaction() {
  // The engine may have rolled back by itself, after a full disk for instance.
  if (engineInTransaction()) {
    sqlite3_exec(handle(), "ROLLBACK", nullptr, nullptr, nullptr);
  }
}

void SqliteSession::keepLock() {
  if (lockHolders_ > 0 && !engineInTransaction() && !transaction_) {
    sqlite3_exec(handle(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
  }
}

}  // namespace quartela
