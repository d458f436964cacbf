#include <QSemaphore>
#include <QThread>

#include "platform/database/engines/sqlite/Session.h"
#include "tests/platform/database/SmallDatabase.h"
#include "tests/support/SqliteSession.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;

// Two programs at one file. Where only the answer counts, not the waiting for it, the second one's
// patience is cut short.
class Locks : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void rowBegunKeepsOthersOut_data();
  void rowBegunKeepsOthersOut();
  void waitsAShortWhile();
  void optimisticTakesTheLockAtTheUpdate();
  void readersSeeTheLastCommit();
  void refusedUpdateKeepsTheLock();
  void twoRowsBegunOnOneConnection();
  void executeWhileARowIsBegun();
  void transactionKeepsOthersOut();
  void transactionWithoutAChangeLetsOthersWrite();
  void transactionTakenOverFromARow();
  void rowOutlivesTheTransaction();
  void closingReleases();

 private:
  static void open(Recordset& rows, Connection& connection, const char* source,
                   LockType lock = LockType::Pessimistic) {
    rows.close();
    rows.open(QLatin1String(source), connection, CursorType::Static, lock);
  }
  QString ask(const char* sql) const { return database_->ask(sql); }
  // Whether the second program can write.
  bool locked() {
    const int number = errorOf([&] { second_->beginTransaction(); });
    second_->rollback();
    return number == 3218;
  }

  std::unique_ptr<SmallDatabase> database_;
  std::unique_ptr<Connection> first_;
  std::unique_ptr<Connection> second_;
};

namespace {

constexpr const char* kRow = "SELECT * FROM Requisicao WHERE SEQ = 114";
constexpr const char* kText = "SELECT JUSTIFICATIVA FROM Requisicao WHERE SEQ = 114";
const QString kNew = QStringLiteral("novo");

}  // namespace

void Locks::init() {
  database_ = std::make_unique<SmallDatabase>();
  first_ = std::make_unique<Connection>();
  second_ = std::make_unique<Connection>();
  database_->open(*first_);
  database_->open(*second_);
  QCOMPARE(sqlite3_busy_timeout(test::sqliteSession(*second_).handle(), 20), SQLITE_OK);
}

void Locks::cleanup() {
  first_.reset();
  second_.reset();
  database_.reset();
}

void Locks::rowBegunKeepsOthersOut_data() {
  QTest::addColumn<bool>("adding");
  QTest::newRow("added") << true;
  QTest::newRow("changed") << false;
}

void Locks::rowBegunKeepsOthersOut() {
  QFETCH(bool, adding);
  Recordset mine;
  open(mine, *first_, kRow);
  QVERIFY(!locked());
  if (adding) {
    mine.addNew();
  } else {
    mine.setField(u"JUSTIFICATIVA", kNew);
  }
  QVERIFY(locked());

  Recordset theirs;
  open(theirs, *second_, kRow);
  QCOMPARE(errorOf([&] { theirs.addNew(); }), 3218);
  QCOMPARE(errorOf([&] { theirs.setField(u"VALOR", Money()); }), 3218);
  QCOMPARE(errorOf([&] { second_->execute(QStringLiteral("DELETE FROM PrestContas")); }), 3218);
  QCOMPARE(errorOf([&] { second_->beginTransaction(); }), 3218);
  QVERIFY(!second_->inTransaction());

  if (adding) {
    mine.setField(u"SEQ", 915);
  }
  mine.update();
  QVERIFY(!locked());
  QCOMPARE(ask("SELECT count(*) FROM PrestContas"), QStringLiteral("3"));
  theirs.setField(u"VALOR", Money::fromReais(1));
  theirs.update();
  QCOMPARE(ask("SELECT VALOR FROM Requisicao WHERE SEQ = 114"), QStringLiteral("10000"));
  QCOMPARE(ask(kText), adding ? QStringLiteral("Café d'água") : kNew);
}

// The lock comes free while the second program is waiting for it.
void Locks::waitsAShortWhile() {
  Connection patient;
  database_->open(patient);
  QSemaphore taken;
  const std::unique_ptr<QThread> other(QThread::create([&] {
    PlainSql holder(database_->path());
    holder.run("BEGIN IMMEDIATE");
    taken.release();
    QThread::msleep(200);
    holder.run("COMMIT");
  }));
  other->start();
  taken.acquire();
  QVERIFY(locked());
  patient.beginTransaction();
  patient.commit();
  QVERIFY(other->wait());
}

void Locks::optimisticTakesTheLockAtTheUpdate() {
  Recordset mine;
  open(mine, *first_, kRow);
  Recordset theirs;
  open(theirs, *second_, kRow, LockType::Optimistic);
  mine.setField(u"VALOR", Money::fromReais(5));
  theirs.setField(u"JUSTIFICATIVA", kNew);
  QCOMPARE(errorOf([&] { theirs.update(); }), 3218);
  QCOMPARE(theirs.field(u"JUSTIFICATIVA"), Value(kNew));
  mine.update();
  theirs.update();
  QCOMPARE(ask(kText), kNew);
  QCOMPARE(ask("SELECT VALOR FROM Requisicao WHERE SEQ = 114"), QStringLiteral("50000"));
  QVERIFY(!locked());
}

void Locks::readersSeeTheLastCommit() {
  Recordset mine;
  open(mine, *first_, kRow);
  mine.setField(u"JUSTIFICATIVA", kNew);
  Recordset theirs;
  open(theirs, *second_, kRow);
  QCOMPARE(theirs.field(u"JUSTIFICATIVA"), Value(QStringLiteral("Café d'água")));
  first_->beginTransaction();
  mine.update();
  open(theirs, *second_, kRow);
  QCOMPARE(theirs.field(u"JUSTIFICATIVA"), Value(QStringLiteral("Café d'água")));
  first_->commit();
  open(theirs, *second_, kRow);
  QCOMPARE(theirs.field(u"JUSTIFICATIVA"), Value(kNew));
}

void Locks::refusedUpdateKeepsTheLock() {
  Recordset mine;
  open(mine, *first_, "Requisicao");
  mine.addNew();
  mine.setField(u"SEQ", 114);
  QCOMPARE(errorOf([&] { mine.update(); }), 3022);
  QVERIFY(locked());
  mine.cancelUpdate();
  QVERIFY(!locked());

  open(mine, *first_, "Requisicao", LockType::Optimistic);
  mine.addNew();
  mine.setField(u"SEQ", 114);
  QCOMPARE(errorOf([&] { mine.update(); }), 3022);
  QVERIFY(!locked());
}

void Locks::twoRowsBegunOnOneConnection() {
  Recordset one;
  Recordset other;
  open(one, *first_, kRow);
  open(other, *first_, "PrestContas");
  one.setField(u"JUSTIFICATIVA", kNew);
  other.addNew();
  other.setField(u"HISTORICO", kNew);
  one.update();
  QCOMPARE(ask(kText), kNew);
  QVERIFY(locked());
  one.setField(u"JUSTIFICATIVA", QStringLiteral("x"));
  one.cancelUpdate();
  QVERIFY(locked());
  other.update();
  QVERIFY(!locked());
  QCOMPARE(ask("SELECT count(*) FROM PrestContas"), QStringLiteral("4"));
}

void Locks::executeWhileARowIsBegun() {
  Recordset mine;
  open(mine, *first_, kRow);
  mine.setField(u"JUSTIFICATIVA", kNew);
  QCOMPARE(first_->execute(QStringLiteral("DELETE FROM PrestContas")), 3);
  QCOMPARE(ask("SELECT count(*) FROM PrestContas"), QStringLiteral("0"));
  QVERIFY(locked());
  mine.cancelUpdate();
  QVERIFY(!locked());
  QCOMPARE(ask("SELECT count(*) FROM PrestContas"), QStringLiteral("0"));
  QCOMPARE(ask(kText), QStringLiteral("Café d'água"));
}

void Locks::transactionKeepsOthersOut() {
  first_->beginTransaction();
  QVERIFY(locked());
  Recordset mine;
  open(mine, *first_, kRow);
  mine.setField(u"JUSTIFICATIVA", kNew);
  mine.update();
  QVERIFY(locked());
  mine.setField(u"JUSTIFICATIVA", QStringLiteral("x"));
  mine.cancelUpdate();
  QVERIFY(locked());
  first_->commit();
  QVERIFY(!locked());
  QCOMPARE(ask(kText), kNew);
}

// A refused statement has changed nothing: while the operator reads of it, others can go on.
void Locks::transactionWithoutAChangeLetsOthersWrite() {
  const auto remove = [this](const char* table) {
    return errorOf([&] { first_->execute(QStringLiteral("DELETE FROM ") + table); });
  };
  first_->beginTransaction();
  QVERIFY(locked());
  QCOMPARE(remove("Orgao"), 3200);
  QVERIFY(first_->inTransaction());
  QVERIFY(!locked());
  database_->run("UPDATE Requisicao SET JUSTIFICATIVA = 'outro' WHERE SEQ = 114");
  QCOMPARE(remove("PrestContas"), 0);
  QVERIFY(locked());
  QCOMPARE(remove("Orgao"), 3200);
  QVERIFY(locked());
  first_->commit();
  QCOMPARE(ask("SELECT count(*) FROM PrestContas"), QStringLiteral("0"));
  QCOMPARE(ask(kText), QStringLiteral("outro"));

  first_->beginTransaction();
  QCOMPARE(remove("Orgao"), 3200);
  first_->commit();
  QVERIFY(!first_->inTransaction());
  first_->beginTransaction();
  QCOMPARE(remove("Orgao"), 3200);
  first_->rollback();
  QVERIFY(!first_->inTransaction());
}

void Locks::transactionTakenOverFromARow() {
  Recordset mine;
  open(mine, *first_, kRow);
  mine.setField(u"JUSTIFICATIVA", kNew);
  first_->beginTransaction();
  mine.update();
  QVERIFY(first_->inTransaction());
  first_->rollback();
  QCOMPARE(ask(kText), QStringLiteral("Café d'água"));
  QVERIFY(!locked());
}

void Locks::rowOutlivesTheTransaction() {
  Recordset mine;
  open(mine, *first_, kRow);
  first_->beginTransaction();
  mine.setField(u"JUSTIFICATIVA", kNew);
  first_->commit();
  QVERIFY(locked());
  mine.update();
  QCOMPARE(ask(kText), kNew);
  QVERIFY(!locked());
}

void Locks::closingReleases() {
  Recordset mine;
  open(mine, *first_, kRow);
  mine.setField(u"JUSTIFICATIVA", kNew);
  mine.close();
  QVERIFY(!locked());
  open(mine, *first_, kRow);
  mine.setField(u"JUSTIFICATIVA", kNew);
  first_->close();
  QVERIFY(!locked());
  {
    database_->open(*first_);
    Recordset dropped;
    open(dropped, *first_, kRow);
    dropped.addNew();
    QVERIFY(locked());
  }
  QVERIFY(!locked());
  QCOMPARE(ask(kText), QStringLiteral("Café d'água"));
}

QUARTELA_TEST_MAIN(Locks)
#include "Locks_test.moc"
