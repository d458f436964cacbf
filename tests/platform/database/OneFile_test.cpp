// Between two saves the one file is whole: copied, put back, read by those who may not write it.
#include <sys/stat.h>

#include <QDir>
#include <QRandomGenerator>

#include "platform/database/engines/sqlite/Session.h"
#include "tests/platform/database/AnotherUser.h"
#include "tests/platform/database/SmallDatabase.h"
#include "tests/support/SqliteSession.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;

namespace {

constexpr const char* kCount = "SELECT count(*) FROM PrestContas";
constexpr int kRowsAtFirst = 3;

void save(Connection& connection, const QString& text) {
  Recordset rows;
  rows.open(QStringLiteral("PrestContas"), connection, CursorType::Static, LockType::Pessimistic);
  rows.addNew();
  rows.setField(u"HISTORICO", text);
  rows.update();
}

int rowsSeen(Connection& connection) {
  Recordset rows;
  rows.open(QStringLiteral("SELECT * FROM PrestContas"), connection, CursorType::Static,
            LockType::ReadOnly);
  return rows.recordCount();
}

// Puts the bytes into the file that is there, as a plain copying over it does.
void copyOver(const QString& from, const QString& to) {
  const QByteArray bytes = contentOf(from);
  QFile file(to);
  QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  QCOMPARE(file.write(bytes), bytes.size());
}

void copy(const QString& from, const QString& to) {
  QFile::remove(to);
  copyOver(from, to);
}

enum class FirstPage { Changed, Untouched };

// What a program leaves that is killed while it changes every note: the file half written, its
// journal beside it. `target` then holds both.
void interruptSave(const QString& path, const QString& target, FirstPage first) {
  PlainSql writer(path);
  writer.run("PRAGMA synchronous = NORMAL; PRAGMA cache_size = 1; BEGIN IMMEDIATE");
  if (first == FirstPage::Changed) {
    writer.run("PRAGMA user_version = 77");
  }
  writer.run("UPDATE PrestContas SET HISTORICO = 'meia gravação ' || HISTORICO");
  copy(path, target);
  copy(path + QStringLiteral("-journal"), target + QStringLiteral("-journal"));
  writer.run("ROLLBACK");
}

constexpr const char* kHalf = "SELECT count(*) FROM PrestContas WHERE HISTORICO LIKE 'meia%'";

}  // namespace

class OneFile : public QObject {
  Q_OBJECT

 private slots:
  void copiesHoldEverySavedRow();
  void interruptedSaveIsUndone();
  void journalOfAnotherStateIsKeptAside();
  void journalOfAnotherStateIsNotTakenWhileOpen();
  void journalThatTellsNothingStopsTheOpening();
  void journalOfASaveThatDidNotBegin();
  void takesOverALog_data();
  void takesOverALog();
  void logInUseIsNotTakenOver();
  void logOfAnotherStateIsKeptAside();
  void readersSeeWhatIsThere();
  void readersSeeAnInterruptedSaveUndone();
  void readersOfALog();
  void savingWaitsForReaders();

 private:
  // A database of several hundred pages, so that a save reaches the file before its end.
  static void fill(const SmallDatabase& database) {
    database.run(
        "INSERT INTO PrestContas (HISTORICO) WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT "
        "i + 1 FROM n WHERE i < 2000) SELECT 'Nota ' || i || hex(zeroblob(200)) FROM n");
  }
  static constexpr int kFilled = 2000 + kRowsAtFirst;
};

void OneFile::copiesHoldEverySavedRow() {
  SmallDatabase database;
  Connection connection;
  database.open(connection);
  // What a copy holds does not depend on what is on the disk already.
  sqlite3_exec(test::sqliteSession(connection).handle(), "PRAGMA synchronous = OFF", nullptr,
               nullptr, nullptr);
  const QString copied = database.folder() + QStringLiteral("/copia.mdb");
  QRandomGenerator random(20141121);
  int saved = 0;
  for (int i = 0; i < 500; ++i) {
    const int saves = random.bounded(4);
    for (int j = 0; j < saves; ++j) {
      save(connection, QString::number(++saved).repeated(random.bounded(1, 2000)));
    }
    copy(database.path(), copied);
    PlainSql plain(copied);
    QCOMPARE(plain.ask(kCount).toInt(), kRowsAtFirst + saved);
    if (i % 50 == 0) {
      QCOMPARE(plain.ask("PRAGMA integrity_check"), QStringLiteral("ok"));
    }
  }
  QCOMPARE(QDir(database.folder()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void OneFile::interruptedSaveIsUndone() {
  SmallDatabase database;
  fill(database);
  const QString left = database.folder() + QStringLiteral("/morto.mdb");
  interruptSave(database.path(), left, FirstPage::Changed);
  QVERIFY(contentOf(left) != contentOf(database.path()));
  Connection connection;
  connection.open(SmallDatabase::textFor(left));
  QCOMPARE(rowsSeen(connection), kFilled);
  QVERIFY(connection.engine().notices().isEmpty());
  connection.close();
  QCOMPARE(PlainSql(left).ask(kHalf), QStringLiteral("0"));
  QVERIFY(!QFile::exists(left + QStringLiteral("-journal")));
}

// The office puts its backup of last week back after a program was killed.
void OneFile::journalOfAnotherStateIsKeptAside() {
  SmallDatabase database;
  fill(database);
  const QString backup = database.folder() + QStringLiteral("/backup.mdb");
  copy(database.path(), backup);
  {
    Connection connection;
    database.open(connection);
    save(connection, QStringLiteral("a"));
    save(connection, QStringLiteral("b"));
  }
  const QString left = database.folder() + QStringLiteral("/morto.mdb");
  const QString journal = left + QStringLiteral("-journal");
  interruptSave(database.path(), left, FirstPage::Changed);
  const QByteArray journalBytes = contentOf(journal);
  copyOver(backup, left);
  Connection connection;
  connection.open(SmallDatabase::textFor(left));
  QCOMPARE(rowsSeen(connection), kFilled);
  const QString kept = journal + QStringLiteral(".nao-aplicado");
  QCOMPARE(connection.engine().notices().size(), 1);
  const QString said = connection.engine().notices().first();
  QVERIFY2(said.contains(left) && said.contains(kept), qPrintable(said));
  save(connection, QStringLiteral("c"));
  connection.close();
  PlainSql plain(left);
  QCOMPARE(plain.ask("PRAGMA integrity_check"), QStringLiteral("ok"));
  QCOMPARE(plain.ask(kCount).toInt(), kFilled + 1);
  QVERIFY(contentOf(kept) == journalBytes);
  QVERIFY(!QFile::exists(journal));
}

// The same while the program has the file open.
void OneFile::journalOfAnotherStateIsNotTakenWhileOpen() {
  SmallDatabase database;
  fill(database);
  const QString backup = database.folder() + QStringLiteral("/backup.mdb");
  copy(database.path(), backup);
  Connection connection;
  database.open(connection);
  QCOMPARE(connection.execute(QStringLiteral("DELETE FROM PrestContas WHERE SEQ > 1000")), 1003);
  save(connection, QStringLiteral("b"));
  const QString left = database.folder() + QStringLiteral("/morto.mdb");
  interruptSave(database.path(), left, FirstPage::Changed);
  copyOver(backup, database.path());
  copy(left + QStringLiteral("-journal"), database.path() + QStringLiteral("-journal"));
  QCOMPARE(rowsSeen(connection), kFilled);
  save(connection, QStringLiteral("c"));
  QCOMPARE(rowsSeen(connection), kFilled + 1);
  connection.close();
  QCOMPARE(database.ask("PRAGMA integrity_check"), QStringLiteral("ok"));
  QCOMPARE(database.ask(kCount).toInt(), kFilled + 1);
}

void OneFile::journalThatTellsNothingStopsTheOpening() {
  SmallDatabase database;
  fill(database);
  const QString left = database.folder() + QStringLiteral("/morto.mdb");
  const QString journal = left + QStringLiteral("-journal");
  interruptSave(database.path(), left, FirstPage::Untouched);
  const QByteArray before = contentOf(left);
  const QByteArray journalBefore = contentOf(journal);
  Connection connection;
  const auto opening = [&] { connection.open(SmallDatabase::textFor(left)); };
  QCOMPARE(errorOf(opening), 3044);
  QVERIFY(wordsOf(opening).contains(QStringLiteral("diário de gravação")));
  QVERIFY(contentOf(left) == before);
  QVERIFY(contentOf(journal) == journalBefore);
}

// Killed before the journal was on the disk: the file is untouched.
void OneFile::journalOfASaveThatDidNotBegin() {
  SmallDatabase database;
  fill(database);
  const QString left = database.folder() + QStringLiteral("/morto.mdb");
  const QString journal = left + QStringLiteral("-journal");
  interruptSave(database.path(), left, FirstPage::Changed);
  // Longer than the journal's head says: the engine would cut it.
  database.run("INSERT INTO PrestContas (HISTORICO) VALUES (hex(zeroblob(50000)))");
  copyOver(database.path(), left);
  QFile file(journal);
  QVERIFY(file.open(QIODevice::ReadWrite));
  QVERIFY(file.seek(8));
  QCOMPARE(file.write(QByteArray(4, '\0')), 4);  // no records yet
  file.close();
  const QByteArray longer = contentOf(left);
  Connection connection;
  connection.open(SmallDatabase::textFor(left));
  QCOMPARE(rowsSeen(connection), kFilled + 1);
  QVERIFY(connection.engine().notices().isEmpty());
  QVERIFY(!QFile::exists(journal));
  connection.close();
  QVERIFY(contentOf(left) == longer);
}

void OneFile::takesOverALog_data() {
  QTest::addColumn<QByteArray>("index");
  QTest::newRow("killed program") << QByteArray();
  QTest::newRow("index cut short") << QByteArray(10, 'x');
  QTest::newRow("index of zeros") << QByteArray(32768, '\0');
}

void OneFile::takesOverALog() {
  QFETCH(QByteArray, index);
  SmallDatabase database;
  const QString left = database.folder() + QStringLiteral("/morto.mdb");
  {
    PlainSql earlier(database.path());
    earlier.run("PRAGMA journal_mode = WAL; INSERT INTO PrestContas (HISTORICO) VALUES ('no log')");
    copy(database.path(), left);
    copy(database.path() + QStringLiteral("-wal"), left + QStringLiteral("-wal"));
  }
  if (!index.isEmpty()) {
    QFile file(left + QStringLiteral("-shm"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(index), index.size());
  }
  Connection connection;
  connection.open(SmallDatabase::textFor(left));
  QCOMPARE(rowsSeen(connection), kRowsAtFirst + 1);
  QCOMPARE(contentOf(left).mid(18, 2), QByteArray("\1\1", 2));
  QVERIFY(!QFile::exists(left + QStringLiteral("-wal")));
  save(connection, QStringLiteral("a"));
  // Nothing of the taking over keeps other programs out.
  QCOMPARE(PlainSql(left).ask(kCount).toInt(), kRowsAtFirst + 2);
  PlainSql(left).run("INSERT INTO PrestContas (HISTORICO) VALUES ('outra estação')");
  QCOMPARE(rowsSeen(connection), kRowsAtFirst + 3);
}

void OneFile::logInUseIsNotTakenOver() {
  SmallDatabase database;
  PlainSql earlier(database.path());
  earlier.run("PRAGMA journal_mode = WAL; INSERT INTO PrestContas (HISTORICO) VALUES ('no log')");
  Connection connection;
  QCOMPARE(errorOf([&] { database.open(connection); }), 3218);
  QCOMPARE(earlier.ask(kCount).toInt(), kRowsAtFirst + 1);
}

// A log beside a file whose head knows of none was another file's.
void OneFile::logOfAnotherStateIsKeptAside() {
  SmallDatabase database;
  const QString backup = database.folder() + QStringLiteral("/backup.mdb");
  copy(database.path(), backup);
  const QString left = database.folder() + QStringLiteral("/morto.mdb");
  const QString log = left + QStringLiteral("-wal");
  {
    PlainSql earlier(database.path());
    earlier.run("PRAGMA journal_mode = WAL; DELETE FROM PrestContas");
    copy(database.path() + QStringLiteral("-wal"), log);
  }
  copy(backup, left);
  Connection connection;
  connection.open(SmallDatabase::textFor(left));
  QCOMPARE(rowsSeen(connection), kRowsAtFirst);
  QCOMPARE(connection.engine().notices().size(), 1);
  QVERIFY(QFile::exists(log + QStringLiteral(".nao-aplicado")));
  QVERIFY(!QFile::exists(log));
}

namespace {

// Everybody may read the folder and its files; only their owner may write.
void letOthersRead(const QString& folder) {
  QCOMPARE(::chmod(QFile::encodeName(folder).constData(), 0755), 0);
  const QStringList names = QDir(folder).entryList(QDir::Files);
  for (const QString& name : names) {
    const QString path = folder + QLatin1Char('/') + name;
    QCOMPARE(::chmod(QFile::encodeName(path).constData(), 0644), 0);
  }
}

}  // namespace

void OneFile::readersSeeWhatIsThere() {
  SmallDatabase database;
  letOthersRead(database.folder());
  Connection desk;
  database.open(desk);
  Connection reader;
  {
    const AnotherUser user;
    if (!AnotherUser::bound()) {
      QSKIP("this user is not bound by file permissions");
    }
    database.open(reader);
    QCOMPARE(rowsSeen(reader), kRowsAtFirst);
  }
  for (int i = 1; i <= 20; ++i) {
    save(desk, QString(5000, QLatin1Char('x')));
    // Also while a row is begun.
    Recordset begun;
    begun.open(QStringLiteral("SELECT * FROM PrestContas WHERE SEQ = 1"), desk, CursorType::Static,
               LockType::Pessimistic);
    begun.setField(u"HISTORICO", QStringLiteral("x"));
    const AnotherUser user;
    QCOMPARE(rowsSeen(reader), kRowsAtFirst + i);
    Connection fresh;
    database.open(fresh);
    QCOMPARE(rowsSeen(fresh), kRowsAtFirst + i);
    QCOMPARE(errorOf([&] { save(fresh, QStringLiteral("x")); }), 3051);
  }
}

void OneFile::readersSeeAnInterruptedSaveUndone() {
  SmallDatabase database;
  fill(database);
  const QString backup = database.folder() + QStringLiteral("/backup.mdb");
  const QString left = database.folder() + QStringLiteral("/morto.mdb");
  copy(database.path(), backup);
  interruptSave(database.path(), left, FirstPage::Changed);
  const QByteArray half = contentOf(left);
  letOthersRead(database.folder());
  const QString halfRows = QStringLiteral("SELECT * FROM PrestContas WHERE HISTORICO Like 'meia%'");
  const auto countHalf = [&](Connection& connection) {
    Recordset rows;
    rows.open(halfRows, connection, CursorType::Static, LockType::ReadOnly);
    return rows.recordCount();
  };
  Connection before;
  Connection after;
  {
    const AnotherUser user;
    if (!AnotherUser::bound()) {
      QSKIP("this user is not bound by file permissions");
    }
    database.open(before);
    QCOMPARE(rowsSeen(before), kFilled);
    after.open(SmallDatabase::textFor(left));
    QCOMPARE(rowsSeen(after), kFilled);
    QCOMPARE(countHalf(after), 0);
    QCOMPARE(errorOf([&] { save(after, QStringLiteral("x")); }), 3051);
  }
  QVERIFY(contentOf(left) == half);
  // The save is interrupted under a reader who has the file open already.
  copyOver(left, database.path());
  copy(left + QStringLiteral("-journal"), database.path() + QStringLiteral("-journal"));
  {
    const AnotherUser user;
    QCOMPARE(rowsSeen(before), kFilled);
    QCOMPARE(countHalf(before), 0);
  }
  // A desk with rights undoes it and saves: the readers see that.
  for (Connection* reader : {&before, &after}) {
    const QString path = reader == &before ? database.path() : left;
    {
      Connection desk;
      desk.open(SmallDatabase::textFor(path));
      save(desk, QStringLiteral("novo"));
    }
    const AnotherUser user;
    QCOMPARE(rowsSeen(*reader), kFilled + 1);
  }
}

void OneFile::readersOfALog() {
  SmallDatabase database;
  const QString left = database.folder() + QStringLiteral("/morto.mdb");
  {
    PlainSql earlier(database.path());
    earlier.run("PRAGMA journal_mode = WAL; INSERT INTO PrestContas (HISTORICO) VALUES ('no log')");
    copy(database.path(), left);
    copy(database.path() + QStringLiteral("-wal"), left + QStringLiteral("-wal"));
  }
  letOthersRead(database.folder());
  const QByteArray before = contentOf(left);
  Connection reader;
  {
    const AnotherUser user;
    if (!AnotherUser::bound()) {
      QSKIP("this user is not bound by file permissions");
    }
    reader.open(SmallDatabase::textFor(left));
    QCOMPARE(rowsSeen(reader), kRowsAtFirst + 1);
  }
  QVERIFY(contentOf(left) == before);
  {
    Connection desk;
    desk.open(SmallDatabase::textFor(left));
    save(desk, QStringLiteral("a"));
  }
  const AnotherUser user;
  QCOMPARE(rowsSeen(reader), kRowsAtFirst + 2);
}

void OneFile::savingWaitsForReaders() {
  SmallDatabase database;
  Connection connection;
  database.open(connection);
  QCOMPARE(sqlite3_busy_timeout(test::sqliteSession(connection).handle(), 20), SQLITE_OK);
  PlainSql reader(database.path());
  reader.run("BEGIN");
  QCOMPARE(reader.ask(kCount).toInt(), kRowsAtFirst);
  Recordset rows;
  rows.open(QStringLiteral("PrestContas"), connection, CursorType::Static, LockType::Pessimistic);
  rows.addNew();
  rows.setField(u"HISTORICO", QStringLiteral("novo"));
  QCOMPARE(errorOf([&] { rows.update(); }), 3218);
  QCOMPARE(rows.field(u"HISTORICO"), Value(QStringLiteral("novo")));
  // The one who waits keeps nobody from reading.
  QCOMPARE(database.ask(kCount).toInt(), kRowsAtFirst);
  reader.run("COMMIT");
  rows.update();
  QCOMPARE(database.ask(kCount).toInt(), kRowsAtFirst + 1);
}

QUARTELA_TEST_MAIN(OneFile)
#include "OneFile_test.moc"
