#include <QDir>

#include "platform/database/engines/sqlite/Session.h"
#include "tests/platform/database/PrivateMounts.h"
#include "tests/platform/database/SmallDatabase.h"
#include "tests/support/SqliteSession.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;

namespace {

bool privateMounts = false;

constexpr int kDiskBytes = 256 * 1024;
const QString kLong(20'000, QLatin1Char('x'));

// No page more than the file has now.
void stopGrowth(Connection& connection, bool stop) {
  sqlite3* const db = test::sqliteSession(connection).handle();
  const char* const sql = stop ? "PRAGMA max_page_count = 1" : "PRAGMA max_page_count = 1073741823";
  QCOMPARE(sqlite3_exec(db, sql, nullptr, nullptr, nullptr), SQLITE_OK);
}

// Writes until not one more byte fits; the count of bytes.
int fillDisk(const QString& folder) {
  QFile filler(folder + QStringLiteral("/cheio"));
  if (!filler.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
    return -1;
  }
  int written = 0;
  while (filler.write("x", 1) == 1) {
    ++written;
    if (written % 4096 == 1) {
      while (filler.write(QByteArray(4096, 'x')) == 4096) {
        written += 4096;
      }
    }
  }
  return written;
}

}  // namespace

class Disk : public QObject {
  Q_OBJECT

 private slots:
  void fullWhileWriting_data();
  void fullWhileWriting();
  void fullInATransaction();
  void fullDisk_data();
  void fullDisk();
  void protectedDisk_data();
  void protectedDisk();
};

void Disk::fullWhileWriting_data() {
  QTest::addColumn<int>("lock");
  QTest::newRow("pessimistic") << static_cast<int>(LockType::Pessimistic);
  QTest::newRow("optimistic") << static_cast<int>(LockType::Optimistic);
}

void Disk::fullWhileWriting() {
  QFETCH(int, lock);
  SmallDatabase database;
  Connection connection;
  database.open(connection);
  Recordset rows;
  rows.open(QStringLiteral("SELECT * FROM PrestContas"), connection, CursorType::Static,
            static_cast<LockType>(lock));
  rows.addNew();
  rows.setField(u"HISTORICO", kLong);
  stopGrowth(connection, true);
  QCOMPARE(errorOf([&] { rows.update(); }), 61);
  QCOMPARE(rows.recordCount(), 3);
  QCOMPARE(rows.field(u"HISTORICO"), Value(kLong));
  QCOMPARE(database.ask("PRAGMA integrity_check"), QStringLiteral("ok"));
  QCOMPARE(database.ask("SELECT count(*) FROM PrestContas"), QStringLiteral("3"));
  // Once there is room, the same row can be written.
  stopGrowth(connection, false);
  rows.update();
  QCOMPARE(rows.recordCount(), 4);
  QCOMPARE(database.ask("SELECT count(*) FROM PrestContas"), QStringLiteral("4"));
  QCOMPARE(database.ask("PRAGMA integrity_check"), QStringLiteral("ok"));
  connection.beginTransaction();
  connection.commit();
}

// The engine may give up the whole transaction; nothing of it may then be kept.
void Disk::fullInATransaction() {
  SmallDatabase database;
  Connection connection;
  database.open(connection);
  connection.beginTransaction();
  QCOMPARE(connection.execute(QStringLiteral("DELETE FROM Tarifa")), 3);
  Recordset rows;
  rows.open(QStringLiteral("PrestContas"), connection, CursorType::Static, LockType::Pessimistic);
  rows.addNew();
  rows.setField(u"HISTORICO", kLong);
  stopGrowth(connection, true);
  QCOMPARE(errorOf([&] { rows.update(); }), 61);
  rows.cancelUpdate();
  QVERIFY(connection.inTransaction());
  connection.rollback();
  QVERIFY(!connection.inTransaction());
  QCOMPARE(database.ask("SELECT count(*) FROM Tarifa"), QStringLiteral("3"));
  QCOMPARE(database.ask("PRAGMA integrity_check"), QStringLiteral("ok"));
  stopGrowth(connection, false);
  connection.beginTransaction();
  QCOMPARE(connection.execute(QStringLiteral("DELETE FROM Tarifa")), 3);
  connection.commit();
}

void Disk::fullDisk_data() {
  QTest::addColumn<bool>("transaction");
  QTest::newRow("row of its own") << false;
  QTest::newRow("transaction") << true;
}

void Disk::fullDisk() {
  QFETCH(bool, transaction);
  QTemporaryDir folder;
  if (!privateMounts || !mountSmallDisk(folder.path(), kDiskBytes)) {
    QSKIP("this machine does not let a test mount a disk of its own");
  }
  const QString path = folder.filePath(QStringLiteral("Banco.mdb"));
  PlainSql(path).run(kSmallSchema);
  {
    Connection connection;
    connection.open(SmallDatabase::textFor(path));
    Recordset rows;
    rows.open(QStringLiteral("PrestContas"), connection, CursorType::Static, LockType::Pessimistic);
    if (transaction) {
      connection.beginTransaction();
    }
    rows.addNew();
    rows.setField(u"HISTORICO", kLong);
    QVERIFY(fillDisk(folder.path()) > 0);
    if (transaction) {
      QCOMPARE(errorOf([&] {
                 rows.update();
                 connection.commit();
               }),
               61);
      QVERIFY(connection.inTransaction());
      connection.rollback();
    } else {
      QCOMPARE(errorOf([&] { rows.update(); }), 61);
      QCOMPARE(rows.recordCount(), 0);
      QCOMPARE(rows.field(u"HISTORICO"), Value(kLong));
    }
    QVERIFY(QFile::remove(folder.filePath(QStringLiteral("cheio"))));
    QCOMPARE(PlainSql(path).ask("PRAGMA integrity_check"), QStringLiteral("ok"));
    QCOMPARE(PlainSql(path).ask("SELECT count(*) FROM PrestContas"), QStringLiteral("3"));
    if (!transaction) {
      rows.update();
      QCOMPARE(PlainSql(path).ask("SELECT count(*) FROM PrestContas"), QStringLiteral("4"));
    }
  }
  QCOMPARE(PlainSql(path).ask("PRAGMA integrity_check"), QStringLiteral("ok"));
  QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("Banco.mdb")});
  QVERIFY(unmountDisk(folder.path()));
}

void Disk::protectedDisk_data() {
  QTest::addColumn<bool>("openedBefore");
  QTest::newRow("fresh file") << false;
  QTest::newRow("file that has been worked with") << true;
}

void Disk::protectedDisk() {
  QFETCH(bool, openedBefore);
  QTemporaryDir folder;
  if (!privateMounts || !mountSmallDisk(folder.path(), kDiskBytes)) {
    QSKIP("this machine does not let a test mount a disk of its own");
  }
  const QString path = folder.filePath(QStringLiteral("Banco.mdb"));
  PlainSql(path).run(kSmallSchema);
  Connection connection;
  if (openedBefore) {
    connection.open(SmallDatabase::textFor(path));
    connection.close();
  }
  QVERIFY(protectDisk(folder.path()));
  connection.open(SmallDatabase::textFor(path));
  Recordset rows;
  rows.open(QStringLiteral("SELECT * FROM PrestContas"), connection, CursorType::Static,
            LockType::Optimistic);
  QCOMPARE(rows.recordCount(), 3);
  rows.setField(u"HISTORICO", QStringLiteral("x"));
  QCOMPARE(errorOf([&] { rows.update(); }), 3051);
  rows.cancelUpdate();
  QCOMPARE(errorOf([&] { connection.beginTransaction(); }), 3051);
  QCOMPARE(errorOf([&] { connection.execute(QStringLiteral("DELETE FROM Tarifa")); }), 3051);
  connection.close();
  QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("Banco.mdb")});
  QVERIFY(unmountDisk(folder.path()));
}

int main(int argc, char** argv) {
  privateMounts = enterPrivateMounts();
  return run<Disk>(argc, argv);
}
#include "Disk_test.moc"
