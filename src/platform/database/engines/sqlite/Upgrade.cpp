#include "platform/database/engines/sqlite/Upgrade.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <memory>

#include "platform/database/engines/sqlite/Statement.h"
#include "platform/values/RuntimeError.h"

namespace quartela::sqlite {
namespace {

struct CloseFile {
  void operator()(sqlite3* db) const { static_cast<void>(sqlite3_close_v2(db)); }
};

[[noreturn]] void refuse(const QString& words) {
  throw RuntimeError::withDescription(ErrorNumber::InvalidPath, words);
}

int versionOf(sqlite3* db) {
  Statement version(db, "PRAGMA user_version", Activity::Opening);
  version.step();
  return static_cast<int>(version.integer(0));
}

// Refuses what no step leads away from.
void checkVersion(int version, int known, const QString& path) {
  if (version > known) {
    refuse(
        QStringLiteral("O arquivo \"%1\" é da versão %2 do banco de dados; este programa conhece "
                       "até a versão %3. Instale a versão mais nova do Quartela.")
            .arg(path)
            .arg(version)
            .arg(known));
  }
  if (version < 1) {
    refuse(QStringLiteral("O arquivo \"%1\" não diz de que versão é (%2). Confira se é um banco de "
                          "dados do Quartela.")
               .arg(path)
               .arg(version));
  }
}

QString freeCopyName(const QString& path, int version) {
  const QString name = QStringLiteral("%1.versao-%2").arg(path).arg(version);
  QString free = name;
  for (int number = 2; QFileInfo::exists(free); ++number) {
    free = QStringLiteral("%1-%2").arg(name).arg(number);
  }
  return free;
}

// Makes the file for its owner and group alone; the rights of the one copied are not widened.
void createCopyFile(const QString& copy) {
  constexpr mode_t kOwnerAndGroup = 0660;
  const int handle = ::open(QFile::encodeName(copy).constData(),
                            O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kOwnerAndGroup);
  if (handle < 0) {
    throw RuntimeError(errno == ENOSPC ? ErrorNumber::DiskFull : ErrorNumber::PathFileAccess, copy);
  }
  ::close(handle);
}

using OwnHandle = std::unique_ptr<sqlite3, CloseFile>;

OwnHandle openPlain(const QString& path, int flags) {
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(path.toUtf8().constData(), &opened, flags, nullptr);
  OwnHandle handle(opened);
  check(opened, code, Activity::Writing);
  return handle;
}

// Reads through a handle of its own, since the engine copies from none that holds a write lock, and
// by the engine, since closing a file that we had opened ourselves would take its locks away.
void copyPages(const QString& path, const QString& copy) {
  const OwnHandle source = openPlain(path, SQLITE_OPEN_READONLY);
  const OwnHandle target = openPlain(copy, SQLITE_OPEN_READWRITE);
  run(target.get(), "PRAGMA synchronous = EXTRA", Activity::Writing);
  sqlite3_backup* backup = sqlite3_backup_init(target.get(), "main", source.get(), "main");
  if (backup == nullptr) {
    raise(target.get(), sqlite3_errcode(target.get()), Activity::Writing);
  }
  const int copied = sqlite3_backup_step(backup, -1);
  static_cast<void>(sqlite3_backup_finish(backup));
  check(target.get(), copied, Activity::Writing);
}

// The file as it stands, before any step; called with the write lock held, so that nobody changes
// it meanwhile. The engine copies it: closing a handle of our own would take the engine's lock
// away.
void copyBeside(const QString& path, int version) {
  const QString copy = freeCopyName(path, version);
  createCopyFile(copy);
  try {
    copyPages(path, copy);
  } catch (...) {
    QFile::remove(copy);
    throw;
  }
}

void checkWhole(sqlite3* db) {
  Statement integrity(db, "PRAGMA integrity_check(1)", Activity::Writing);
  if (!integrity.step() || integrity.text(0) != QLatin1String("ok")) {
    throw RuntimeError(ErrorNumber::DatabaseDamaged, integrity.text(0));
  }
  Statement relations(db, "PRAGMA foreign_key_check", Activity::Writing);
  if (relations.step()) {
    throw RuntimeError(ErrorNumber::ParentMissing, relations.text(0));
  }
}

void runStep(sqlite3* db, const SchemaStep& step) {
  check(db, sqlite3_exec(db, step.sql.constData(), nullptr, nullptr, nullptr), Activity::Writing);
  run(db, "PRAGMA user_version = " + std::to_string(step.version), Activity::Writing);
}

[[noreturn]] void refuseStep(const QString& path, const QString& step, const RuntimeError& cause) {
  refuse(QStringLiteral("O arquivo \"%1\" não pôde ser atualizado para esta versão do programa: a "
                        "etapa \"%2\" falhou. O arquivo ficou como estava. %3")
             .arg(path, step, cause.description()));
}

void runSteps(sqlite3* db, const QString& path, int version, const SchemaSteps& steps) {
  QString current;
  try {
    for (const SchemaStep& step : steps) {
      if (step.version > version) {
        current = step.name;
        runStep(db, step);
      }
    }
    checkWhole(db);
  } catch (const RuntimeError& error) {
    refuseStep(path, current, error);
  }
}

// One transaction, undone unless it is committed.
class Transaction {
 public:
  explicit Transaction(sqlite3* db) : db_(db) { run(db_, "BEGIN IMMEDIATE", Activity::Writing); }
  ~Transaction() {
    if (sqlite3_get_autocommit(db_) == 0) {
      sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
    }
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void commit() { run(db_, "COMMIT", Activity::Writing); }

 private:
  sqlite3* db_;
};

void upgrade(sqlite3* db, const QString& path, const SchemaSteps& steps) {
  // A table made anew is dropped on the way: relations must not take rows of others along. They are
  // checked as a whole before the end.
  run(db, "PRAGMA foreign_keys = OFF", Activity::Writing);
  Transaction transaction(db);
  // Another desk may have been quicker while this one waited for the lock.
  const int version = versionOf(db);
  if (version >= steps.back().version) {
    return;
  }
  copyBeside(path, version);
  runSteps(db, path, version, steps);
  transaction.commit();
}

}  // namespace

bool bringForward(sqlite3* db, const QString& path, const SchemaSteps& steps) {
  if (steps.empty()) {
    return false;
  }
  const int version = versionOf(db);
  checkVersion(version, steps.back().version, path);
  if (version == steps.back().version) {
    return false;
  }
  upgrade(db, path, steps);
  run(db, "PRAGMA foreign_keys = ON", Activity::Writing);
  return true;
}

void requireVersion(sqlite3* db, const QString& path, const SchemaSteps& steps) {
  if (steps.empty()) {
    return;
  }
  const int version = versionOf(db);
  checkVersion(version, steps.back().version, path);
  if (version != steps.back().version) {
    refuse(
        QStringLiteral("O arquivo \"%1\" é de uma versão anterior (%2) e precisa ser atualizado, "
                       "mas não pode ser gravado. Confira as permissões do arquivo e da pasta.")
            .arg(path)
            .arg(version));
  }
}

}  // namespace quartela::sqlite
