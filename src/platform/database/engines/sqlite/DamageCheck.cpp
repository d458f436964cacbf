#include "platform/database/engines/sqlite/DamageCheck.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>
#include <memory>

#include "platform/database/engines/sqlite/GuardedFiles.h"
#include "platform/database/engines/sqlite/Session.h"
#include "platform/database/engines/sqlite/Statement.h"
#include "platform/values/RuntimeError.h"

namespace quartela::sqlite {
namespace {

constexpr int kPagesAStep = 256;
constexpr unsigned long kPauseMilliseconds = 2;
constexpr int kMostLines = 20;
constexpr int kMostBusySteps = 500;

Handle openPlain(const QString& path, int flags) {
  sqlite3* db = nullptr;
  const int code =
      sqlite3_open_v2(path.toUtf8().constData(), &db,
                      flags | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, guardedFiles());
  Handle handle(db);
  check(db, code, Activity::Reading);
  return handle;
}

struct FinishBackup {
  void operator()(sqlite3_backup* backup) const { sqlite3_backup_finish(backup); }
};

// False when it was given up. Between two steps others can save; the copy then begins anew by
// itself.
bool copyInSteps(sqlite3* from, sqlite3* to, const std::atomic_bool& cancelled) {
  const std::unique_ptr<sqlite3_backup, FinishBackup> backup(
      sqlite3_backup_init(to, "main", from, "main"));
  if (!backup) {
    raise(to, sqlite3_extended_errcode(to), Activity::Reading);
  }
  for (int busy = 0; busy < kMostBusySteps && !cancelled;) {
    const int code = sqlite3_backup_step(backup.get(), kPagesAStep);
    if (code == SQLITE_DONE) {
      return true;
    }
    const int primary = code & 0xFF;
    if (primary == SQLITE_BUSY || primary == SQLITE_LOCKED) {
      ++busy;
    } else {
      check(from, code, Activity::Reading);
    }
    QThread::msleep(kPauseMilliseconds);
  }
  return false;
}

int stop(void* cancelled) {
  return *static_cast<const std::atomic_bool*>(cancelled) ? 1 : 0;
}

// The table that the engine means by the root page of a tree, or by the name of an index.
QString tableOf(sqlite3* db, const QString& finding) {
  static const QRegularExpression tree(QStringLiteral("[Tt]ree (?:page )?(\\d+)"));
  static const QRegularExpression index(QStringLiteral("index (\\S+)"));
  static const QRegularExpression named(QStringLiteral("(?:failed in|value in) ([^.\\s]+)"));
  const QRegularExpressionMatch byName = named.match(finding);
  if (byName.hasMatch()) {
    return byName.captured(1);
  }
  const QRegularExpressionMatch byTree = tree.match(finding);
  const QRegularExpressionMatch byIndex = index.match(finding);
  Statement table(db, "SELECT tbl_name FROM sqlite_schema WHERE rootpage = ?1 OR name = ?2",
                  Activity::Reading);
  table.bind(1, Value(byTree.captured(1).toInt()));
  table.bind(2, Value(byIndex.captured(1)));
  return table.step() ? table.text(0) : QString();
}

QString inWords(sqlite3* db, const QString& finding) {
  static const QRegularExpression row(QStringLiteral("(?:row|Rowid) (\\d+)"));
  const QString table = tableOf(db, finding);
  const QRegularExpressionMatch key = row.match(finding);
  QString words = table.isEmpty() ? QStringLiteral("Estrutura do arquivo")
                                  : QStringLiteral("Tabela \"%1\"").arg(table);
  if (key.hasMatch()) {
    words += QStringLiteral(", registro %1").arg(key.captured(1));
  }
  return words + QStringLiteral(": ") + finding;
}

void addFindings(sqlite3* db, const char* pragma, QStringList& damage) {
  Statement findings(db, pragma, Activity::Reading);
  while (damage.size() < kMostLines && findings.step()) {
    // A finding of the pages begins with a line of its own.
    const QStringList lines = findings.text(0).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
      if (line != QLatin1String("ok") && !line.startsWith(QLatin1String("***"))) {
        damage << inWords(db, line);
      }
    }
  }
}

void addLostRelations(sqlite3* db, QStringList& damage) {
  Statement rows(db, "PRAGMA foreign_key_check", Activity::Reading);
  while (damage.size() < kMostLines && rows.step()) {
    damage << QStringLiteral(
                  "Tabela \"%1\", registro %2: o registro de \"%3\" a que se liga não existe")
                  .arg(rows.text(0), rows.text(1), rows.text(2));
  }
}

QStringList lookAt(sqlite3* db, CheckDepth depth) {
  QStringList damage;
  addFindings(db,
              depth == CheckDepth::Quick ? "PRAGMA quick_check(20)" : "PRAGMA integrity_check(20)",
              damage);
  if (depth == CheckDepth::Full) {
    addLostRelations(db, damage);
  }
  return damage;
}

}  // namespace

QStringList findDamage(const QString& path, CheckDepth depth, const std::atomic_bool& cancelled) {
  const QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/quartela-exame-XXXXXX"));
  const Handle copy = openPlain(folder.filePath(QStringLiteral("copia.mdb")),
                                SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  run(copy.get(), "PRAGMA journal_mode = OFF", Activity::Writing);
  run(copy.get(), "PRAGMA synchronous = OFF", Activity::Writing);
  {
    const Handle file = openPlain(path, SQLITE_OPEN_READONLY);
    if (!copyInSteps(file.get(), copy.get(), cancelled)) {
      return {};
    }
  }
  sqlite3_progress_handler(copy.get(), 10'000, stop, const_cast<std::atomic_bool*>(&cancelled));
  try {
    return lookAt(copy.get(), depth);
  } catch (const RuntimeError& error) {
    if (cancelled) {
      return {};
    }
    // So damaged that the engine cannot say where.
    return {QStringLiteral("Estrutura do arquivo: ") + error.description()};
  }
}

}  // namespace quartela::sqlite
