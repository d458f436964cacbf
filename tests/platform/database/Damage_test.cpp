// Damage in a file: found in the background and named, and an error when it is read.
#include <QThread>
#include <atomic>

#include "platform/database/Damage.h"
#include "tests/platform/database/SmallDatabase.h"
#include "tests/support/SqliteSession.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;

namespace {

constexpr std::atomic_bool kGoOn = false;

void overwrite(const QString& path, qint64 at, const QByteArray& bytes) {
  QFile file(path);
  QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(at));
  QCOMPARE(file.write(bytes), bytes.size());
}

}  // namespace

class Damage : public QObject {
  Q_OBJECT

 private slots:
  void nothingInAWholeFile();
  void namesTableAndKey_data();
  void namesTableAndKey();
  void namesTheTableOfADamagedPage();
  void letsOthersSave();
  void isGivenUp();
  void impossibleValuesAreErrors_data();
  void impossibleValuesAreErrors();
};

void Damage::nothingInAWholeFile() {
  SmallDatabase database;
  const QByteArray before = contentOf(database.path());
  QCOMPARE(findDamage(database.path(), CheckDepth::Quick, kGoOn), QStringList());
  QCOMPARE(findDamage(database.path(), CheckDepth::Full, kGoOn), QStringList());
  QVERIFY(contentOf(database.path()) == before);
}

void Damage::namesTableAndKey_data() {
  QTest::addColumn<QByteArray>("sql");
  QTest::addColumn<CheckDepth>("depth");
  QTest::addColumn<QString>("words");
  QTest::newRow("relation lost")
      << QByteArray("UPDATE PrestContas SET PROCESSO = 999 WHERE SEQ = 2") << CheckDepth::Full
      << QStringLiteral(
             "Tabela \"PrestContas\", registro 2: o registro de \"Requisicao\" a que se liga não "
             "existe");
  QTest::newRow("value refused by its column")
      << QByteArray("PRAGMA ignore_check_constraints = ON; UPDATE Orgao SET ATIVO = 7")
      << CheckDepth::Quick << QStringLiteral("Tabela \"Orgao\": CHECK constraint failed in Orgao");
  QTest::newRow("row without its index")
      << QByteArray(
             "CREATE INDEX Nome ON Recado (TEXTO); INSERT INTO Recado VALUES ('a'), ('b');"
             "PRAGMA writable_schema = ON;"
             "UPDATE sqlite_schema SET sql = 'CREATE INDEX Nome ON Recado (TEXTO) WHERE 0' WHERE "
             "name = 'Nome'; PRAGMA writable_schema = RESET; DELETE FROM Recado WHERE rowid = 1;"
             "INSERT INTO Recado VALUES ('c'); PRAGMA writable_schema = ON;"
             "UPDATE sqlite_schema SET sql = 'CREATE INDEX Nome ON Recado (TEXTO)' WHERE name = "
             "'Nome'; PRAGMA writable_schema = RESET")
      << CheckDepth::Full << QStringLiteral("Tabela \"Recado\", registro ");
}

void Damage::namesTableAndKey() {
  QFETCH(QByteArray, sql);
  QFETCH(CheckDepth, depth);
  QFETCH(QString, words);
  SmallDatabase database;
  database.run(sql);
  const QStringList damage = findDamage(database.path(), depth, kGoOn);
  QVERIFY2(!damage.isEmpty() && damage.first().startsWith(words),
           qPrintable(damage.join(QLatin1Char('\n'))));
}

void Damage::namesTheTableOfADamagedPage() {
  SmallDatabase database;
  const int page =
      database.ask("SELECT rootpage FROM sqlite_schema WHERE name = 'PrestContas'").toInt();
  const int size = database.ask("PRAGMA page_size").toInt();
  // The count of the page's rows.
  overwrite(database.path(), qint64{page - 1} * size + 3, QByteArray("\xff\xff", 2));
  const QStringList damage = findDamage(database.path(), CheckDepth::Quick, kGoOn);
  QVERIFY2(damage.join(QLatin1Char('\n')).contains(QStringLiteral("Tabela \"PrestContas\"")) ||
               damage.join(QLatin1Char('\n')).contains(QStringLiteral("Estrutura do arquivo")),
           qPrintable(damage.join(QLatin1Char('\n'))));
}

void Damage::letsOthersSave() {
  SmallDatabase database;
  database.run(
      "INSERT INTO PrestContas (HISTORICO) WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT "
      "i + 1 FROM n WHERE i < 20000) SELECT hex(zeroblob(200)) FROM n");
  Connection connection;
  database.open(connection);
  QCOMPARE(sqlite3_busy_timeout(sqliteSession(connection).handle(), 100), SQLITE_OK);
  std::atomic_bool done = false;
  QStringList damage;
  const std::unique_ptr<QThread> checker(QThread::create([&] {
    for (int i = 0; i < 5; ++i) {
      damage += findDamage(database.path(), CheckDepth::Full, kGoOn);
    }
    done = true;
  }));
  checker->start();
  int saved = 0;
  while (!done || saved == 0) {
    Recordset rows;
    rows.open(QStringLiteral("PrestContas"), connection, CursorType::Static, LockType::Pessimistic);
    rows.addNew();
    rows.setField(u"HISTORICO", QStringLiteral("novo"));
    rows.update();
    ++saved;
    QThread::msleep(20);
  }
  QVERIFY(checker->wait());
  QCOMPARE(damage, QStringList());
  QCOMPARE(database.ask("SELECT count(*) FROM PrestContas").toInt(), 20'003 + saved);
}

void Damage::isGivenUp() {
  SmallDatabase database;
  database.run("UPDATE PrestContas SET PROCESSO = 999");
  constexpr std::atomic_bool kStop = true;
  QCOMPARE(findDamage(database.path(), CheckDepth::Full, kStop), QStringList());
}

void Damage::impossibleValuesAreErrors_data() {
  QTest::addColumn<QByteArray>("change");
  QTest::addColumn<QString>("select");
  QTest::addColumn<QString>("column");
  const auto row = [](const char* name, const char* change, const char* select,
                      const char* column) {
    QTest::newRow(name) << QByteArray(change) << QString::fromLatin1(select)
                        << QString::fromLatin1(column);
  };
  row("no characters", "UPDATE PrestContas SET HISTORICO = CAST(x'50e36f' AS TEXT)",
      "SELECT * FROM PrestContas", "HISTORICO");
  row("a zero within", "UPDATE PrestContas SET HISTORICO = 'a' || char(0) || 'b'",
      "SELECT * FROM PrestContas", "HISTORICO");
  row("bytes for a text", "UPDATE Recado SET TEXTO = x'00'; INSERT INTO Recado VALUES (x'41')",
      "SELECT * FROM Recado", "TEXTO");
  row("no day",
      "PRAGMA ignore_check_constraints = ON; UPDATE Requisicao SET DATA = "
      "'2014-02-30 00:00:00'",
      "SELECT * FROM Requisicao", "DATA");
  row("too large a key", "UPDATE Requisicao SET ORGAO = 70000 WHERE SEQ = 114",
      "SELECT * FROM Requisicao", "ORGAO");
  row("endless", "UPDATE Requisicao SET DISTANCIA = 9e999", "SELECT * FROM Requisicao",
      "DISTANCIA");
  row("neither yes nor no", "PRAGMA ignore_check_constraints = ON; UPDATE Orgao SET ATIVO = 2",
      "SELECT * FROM Orgao", "ATIVO");
  row("text for an amount",
      "PRAGMA ignore_check_constraints = ON; UPDATE Requisicao SET VALOR = "
      "'1,00'",
      "SELECT * FROM Requisicao", "VALOR");
}

void Damage::impossibleValuesAreErrors() {
  QFETCH(QByteArray, change);
  QFETCH(QString, select);
  QFETCH(QString, column);
  SmallDatabase database;
  database.run(change);
  Connection connection;
  database.open(connection);
  Recordset rows;
  const QString words = wordsOf([&] { rows.open(select, connection); });
  QVERIFY2(words.contains(QLatin1Char('"') + column + QLatin1Char('"')), qPrintable(words));
  QCOMPARE(rows.state(), Recordset::Closed);
}

Q_DECLARE_METATYPE(CheckDepth)

QUARTELA_TEST_MAIN(Damage)
#include "Damage_test.moc"
