#include "platform/database/engines/sqlite/Session.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <QtEndian>

#include "platform/database/engines/sqlite/Arithmetic.h"
#include "platform/database/engines/sqlite/CatalogueReader.h"
#include "platform/database/engines/sqlite/FileCheck.h"
#include "platform/database/engines/sqlite/GuardedFiles.h"
#include "platform/database/engines/sqlite/Journal.h"
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

Handle openHandle(const QString& path, int flags) {
  sqlite3* db = nullptr;
  const int code =
      sqlite3_open_v2(uriOf(path).constData(), &db, flags | kCommonFlags, guardedFiles());
  Handle handle(db);
  check(db, code, Activity::Opening);
  check(db, sqlite3_busy_timeout(db, kBusyMilliseconds), Activity::Opening);
  check(db, registerLatin(db), Activity::Opening);
  check(db, registerArithmetic(db), Activity::Opening);
  return handle;
}

bool hasLog(sqlite3* db) {
  return readHead(db).mid(kModeOffset, 1) == QByteArray(1, kLogMode);
}

JournalKind kindOfJournal(sqlite3* db, const QString& journal) {
  const auto counter = qFromBigEndian<quint32>(readHead(db).constData() + kCounterOffset);
  return judgeJournal(QFile::encodeName(journal).constData(), counter);
}

// What was reported as saved survives a power cut: the journal's removal is on the disk too. Pages
// stay in memory until the commit, so that the journal has the first page before the file has any.
void prepareForWriting(sqlite3* db) {
  run(db, "PRAGMA foreign_keys = ON", Activity::Opening);
  run(db, "PRAGMA synchronous = EXTRA", Activity::Opening);
  run(db, "PRAGMA cache_spill = OFF", Activity::Opening);
  run(db, "PRAGMA journal_mode = DELETE", Activity::Opening);
}

// Whether rows can be read as things stand.
bool canRead(sqlite3* db) {
  const int code = sqlite3_exec(db, "SELECT 1 FROM sqlite_schema", nullptr, nullptr, nullptr);
  if (code != SQLITE_READONLY_ROLLBACK) {
    check(db, code, Activity::Reading);
  }
  return code == SQLITE_OK;
}

[[noreturn]] void refuse(const QString& path, const RuntimeError& cause) {
  const QString words = errorDescription(cause.code());
  if (!cause.description().startsWith(words)) {
    throw cause;
  }
  // The engine's own words stand in brackets behind those of the number.
  throw RuntimeError::withDescription(
      ErrorNumber::InvalidPath,
      QStringLiteral(
          "O arquivo \"%1\" não pode ser aberto: está danificado ou incompleto, ou falta "
          "permissão na pasta.%2")
          .arg(path, cause.description().mid(words.size())));
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
  if (nested_) {
    run(session_.handle(), "RELEASE linha", Activity::Writing);
  } else {
    session_.engineCommit();
  }
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

SqliteSession::SqliteSession(const QString& path, const SchemaSteps& steps)
    : path_(path), pathBytes_(QFile::encodeName(path)), steps_(steps) {
  sqlite::checkPlace(path);
  writable_ = sqlite::canBeWritten(path);
  try {
    open();
  } catch (const RuntimeError& error) {
    if (error.code() != ErrorNumber::InvalidPath || error.description().contains(path)) {
      throw;
    }
    sqlite::refuse(path, error);
  }
}

void SqliteSession::open() {
  if (!writable_) {
    openForReading();
    return;
  }
  const auto before = sqlite::identityOf(pathBytes_.constData());
  db_ = sqlite::openHandle(path_, SQLITE_OPEN_READWRITE);
  sqlite::checkHead(path_, sqlite::readHead(handle()));
  if (!before || before != sqlite::identityOf(pathBytes_.constData())) {
    throw RuntimeError(ErrorNumber::DatabaseMoved, path_);
  }
  identity_ = *before;
  // The log's index is kept in memory then, and nobody else can be at work with it.
  const bool log = sqlite::hasLog(handle());
  if (log) {
    run(handle(), "PRAGMA locking_mode = EXCLUSIVE", Activity::Opening);
  }
  catalogue_ = sqlite::readCatalogue(handle());
  sqlite::prepareForWriting(handle());
  if (log) {
    run(handle(), "PRAGMA locking_mode = NORMAL", Activity::Opening);
    // The lock is given up at the end of the next reading.
    sqlite::canRead(handle());
  }
  clearBeside();
  if (sqlite::bringForward(handle(), path_, steps_)) {
    catalogue_ = sqlite::readCatalogue(handle());
  }
}

void SqliteSession::openForReading() {
  prepared_.clear();
  copySource_.reset();
  db_ = sqlite::openHandle(path_, SQLITE_OPEN_READONLY);
  sqlite::checkHead(path_, sqlite::readHead(handle()));
  if (sqlite::hasLog(handle()) || !sqlite::canRead(handle())) {
    db_.reset();
    const sqlite::PrivateCopy copy(path_);
    db_ = sqlite::openHandle(copy.path(), SQLITE_OPEN_READWRITE);
    // Read from now on, it needs no name any more.
    run(handle(), "PRAGMA journal_mode = DELETE", Activity::Opening);
    sqlite::canRead(handle());
    copySource_ = copy.source();
  }
  sqlite::requireVersion(handle(), path_, steps_);
  catalogue_ = sqlite::readCatalogue(handle());
}

void SqliteSession::prepareToRead() {
  if (writable_) {
    return;
  }
  const bool outdated = copySource_
                            ? sqlite::CopySource(path_) != *copySource_
                            : QFile::exists(sqlite::journalOf(path_)) && !sqlite::canRead(handle());
  if (outdated) {
    openForReading();
  }
}

// What the engine does not see beside the file must not come to be seen later: another tool, or a
// later state of the file, could take it for the file's own. Where another program is saving, what
// stands there is that program's.
void SqliteSession::clearBeside() {
  const QString journal = sqlite::journalOf(path_);
  const QString log = sqlite::logOf(path_);
  QFile::remove(journal + QLatin1String(sqlite::kEndedSuffix));
  if (!QFile::exists(journal) && !QFile::exists(log)) {
    return;
  }
  sqlite3_busy_timeout(handle(), 0);
  if (sqlite3_exec(handle(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) == SQLITE_OK) {
    const sqlite::JournalKind kind = sqlite::kindOfJournal(handle(), journal);
    if (kind == sqlite::JournalKind::Foreign) {
      keepAside(journal);
    } else if (kind == sqlite::JournalKind::Idle) {
      QFile::remove(journal);
    }
    if (QFileInfo(log).size() > 0) {
      keepAside(log);
    }
    QFile::remove(log);
    giveUpTransaction();
  }
  sqlite3_busy_timeout(handle(), sqlite::kBusyMilliseconds);
}

void SqliteSession::keepAside(const QString& name) {
  const QString kept = sqlite::setAside(name);
  notices_ << QStringLiteral(
                  "O banco de dados \"%1\" foi trocado depois de uma gravação interrompida. O que "
                  "essa gravação deixou não pertence a ele e não foi aplicado; está guardado em "
                  "\"%2\".")
                  .arg(path_, kept);
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
    engineCommit();
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

void SqliteSession::holdRow(const CatalogueTable&, const CellsToWrite&) {
  takeLock();
  ++lockHolders_;
}

void SqliteSession::releaseRow() {
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
  if (!writable_ || sqlite3_db_readonly(handle(), "main") == 1) {
    throw RuntimeError(ErrorNumber::ReadOnlyDatabase);
  }
  requireSameFile();
  run(handle(), "BEGIN IMMEDIATE", Activity::Writing);
  yielded_ = false;
}

void SqliteSession::requireSameFile() const {
  if (sqlite::identityOf(pathBytes_.constData()) != identity_) {
    throw RuntimeError(ErrorNumber::DatabaseMoved, path_);
  }
}

void SqliteSession::engineCommit() {
  requireSameFile();
  run(handle(), "COMMIT", Activity::Writing);
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
