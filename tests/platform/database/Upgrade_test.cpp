// Files of an older version at their opening: brought forward whole or not at all.
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>

#include "tests/platform/database/SmallDatabase.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;

namespace {

const SchemaSteps kSteps{
    {2, QStringLiteral("0002-telefone"), "ALTER TABLE Orgao ADD COLUMN FONE TEXT;"},
    {3, QStringLiteral("0003-preenche"),
     "UPDATE Orgao SET FONE = 'sem';"
     "INSERT INTO Consultas VALUES ('Sel_Fone', 'SELECT Orgao.FONE FROM Orgao');"},
};

SchemaSteps withLast(const QByteArray& sql) {
  SchemaSteps steps = kSteps;
  steps.push_back({4, QStringLiteral("0004-falha"), sql});
  return steps;
}

}  // namespace

class Upgrade : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void anOlderFileIsBroughtForward();
  void theFileAsItWasIsCopiedBeside();
  void anOlderCopyIsKept();
  void aFileOfThisVersionIsLeftAlone();
  void onlyTheMissingStepsRun();
  void aNewerFileIsRefused();
  void aFileWithoutVersionIsRefused();
  void aFailingStepLeavesTheFileAsItWas_data();
  void aFailingStepLeavesTheFileAsItWas();
  void aCopyThatCannotBeMadeStopsBeforeTheFirstStep();
  void aFileAtWorkElsewhereIsNotTouched();
  void aFileThatCannotBeWrittenIsRefused();
  void withoutStepsAnyVersionIsTaken();

 private:
  int open(const SchemaSteps& steps = kSteps) const;
  QString words(const SchemaSteps& steps = kSteps) const;
  QString copy() const { return town_->path() + QStringLiteral(".versao-1"); }
  void setVersion(int version) const {
    town_->run("PRAGMA user_version = " + QByteArray::number(version));
  }

  std::unique_ptr<SmallDatabase> town_;
};

void Upgrade::init() {
  town_ = std::make_unique<SmallDatabase>();
  setVersion(1);
}

int Upgrade::open(const SchemaSteps& steps) const {
  return errorOf([&] {
    Connection connection;
    connection.open(SmallDatabase::textFor(town_->path()), steps);
  });
}

QString Upgrade::words(const SchemaSteps& steps) const {
  return wordsOf([&] {
    Connection connection;
    connection.open(SmallDatabase::textFor(town_->path()), steps);
  });
}

void Upgrade::anOlderFileIsBroughtForward() {
  Connection connection;
  connection.open(SmallDatabase::textFor(town_->path()), kSteps);
  Recordset rows;
  rows.open(QStringLiteral("SELECT * FROM Sel_Fone"), connection);
  QCOMPARE(rows.recordCount(), 3);
  QCOMPARE(rows.field(0).text(), QStringLiteral("sem"));
  rows.close();
  connection.close();
  QCOMPARE(town_->ask("PRAGMA user_version"), QStringLiteral("3"));
  QCOMPARE(town_->ask("PRAGMA integrity_check"), QStringLiteral("ok"));
}

void Upgrade::theFileAsItWasIsCopiedBeside() {
  const QString before = town_->ask("SELECT group_concat(ORGAO) FROM Orgao");
  QCOMPARE(open(), 0);
  PlainSql old(copy());
  QCOMPARE(old.ask("PRAGMA user_version"), QStringLiteral("1"));
  QCOMPARE(old.ask("SELECT group_concat(ORGAO) FROM Orgao"), before);
  QCOMPARE(old.ask("PRAGMA integrity_check"), QStringLiteral("ok"));
  QCOMPARE(old.ask("SELECT count(*) FROM pragma_table_info('Orgao')"), QStringLiteral("3"));
  struct stat rights {};
  QCOMPARE(::stat(QFile::encodeName(copy()).constData(), &rights), 0);
  QCOMPARE(rights.st_mode & 0007, 0U);
}

void Upgrade::anOlderCopyIsKept() {
  QFile earlier(copy());
  QVERIFY(earlier.open(QIODevice::WriteOnly));
  earlier.write("de antes");
  earlier.close();
  QCOMPARE(open(), 0);
  QCOMPARE(contentOf(copy()), QByteArray("de antes"));
  QCOMPARE(PlainSql(copy() + QStringLiteral("-2")).ask("PRAGMA user_version"), QStringLiteral("1"));
}

void Upgrade::aFileOfThisVersionIsLeftAlone() {
  setVersion(3);
  const QByteArray before = contentOf(town_->path());
  QCOMPARE(open(), 0);
  QCOMPARE(contentOf(town_->path()).mid(100), before.mid(100));
  QCOMPARE(town_->ask("SELECT count(*) FROM pragma_table_info('Orgao')"), QStringLiteral("3"));
  QVERIFY(!QFile::exists(town_->path() + QStringLiteral(".versao-3")));
}

void Upgrade::onlyTheMissingStepsRun() {
  town_->run(kSteps[0].sql);
  setVersion(2);
  QCOMPARE(open(), 0);
  QCOMPARE(town_->ask("SELECT FONE FROM Orgao"), QStringLiteral("sem"));
}

void Upgrade::aNewerFileIsRefused() {
  setVersion(7);
  const QByteArray before = contentOf(town_->path());
  QCOMPARE(open(), 3044);
  const QString told = words();
  QVERIFY2(told.contains(QStringLiteral("versão 7")), qPrintable(told));
  QVERIFY2(told.contains(QStringLiteral("versão 3")), qPrintable(told));
  QVERIFY2(told.contains(town_->path()), qPrintable(told));
  QCOMPARE(contentOf(town_->path()), before);
}

void Upgrade::aFileWithoutVersionIsRefused() {
  setVersion(0);
  QCOMPARE(open(), 3044);
  QVERIFY(words().contains(QStringLiteral("não diz de que versão é")));
}

void Upgrade::aFailingStepLeavesTheFileAsItWas_data() {
  QTest::addColumn<QByteArray>("sql");
  QTest::newRow("a statement that fails") << QByteArray("UPDATE Orgao SET ATIVO = 5;");
  QTest::newRow("no statement at all") << QByteArray("nada disso;");
  QTest::newRow("a relation broken") << QByteArray("DELETE FROM Orgao WHERE IDORGAO = 1;");
}

void Upgrade::aFailingStepLeavesTheFileAsItWas() {
  QFETCH(QByteArray, sql);
  const QByteArray before = contentOf(town_->path());
  QCOMPARE(open(withLast(sql)), 3044);
  const QString told = words(withLast(sql));
  QVERIFY2(told.contains(QStringLiteral("\"0004-falha\"")), qPrintable(told));
  QVERIFY2(told.contains(QStringLiteral("ficou como estava")), qPrintable(told));
  QCOMPARE(contentOf(town_->path()), before);
  QVERIFY(!QFile::exists(town_->path() + QStringLiteral("-journal")));
}

void Upgrade::aCopyThatCannotBeMadeStopsBeforeTheFirstStep() {
  // A name of 255 letters is the longest that a folder takes: the copy's own is longer.
  const QString longName = QDir(town_->folder()).filePath(QString(250, QLatin1Char('b')));
  QVERIFY(QFile::copy(town_->path(), longName));
  const QByteArray before = contentOf(longName);
  QCOMPARE(errorOf([&] {
             Connection connection;
             connection.open(SmallDatabase::textFor(longName), kSteps);
           }),
           75);
  QCOMPARE(contentOf(longName), before);
}

void Upgrade::aFileAtWorkElsewhereIsNotTouched() {
  PlainSql other(town_->path());
  other.run("BEGIN IMMEDIATE");
  QCOMPARE(open(), 3218);
  other.run("COMMIT");
  QCOMPARE(town_->ask("PRAGMA user_version"), QStringLiteral("1"));
  QVERIFY(!QFile::exists(copy()));
}

void Upgrade::aFileThatCannotBeWrittenIsRefused() {
  if (::geteuid() == 0) {
    // Rights do not bind the superuser.
    constexpr uid_t kNobody = 65534;
    QCOMPARE(::chmod(QFile::encodeName(town_->folder()).constData(), 0755), 0);
    QCOMPARE(::chmod(QFile::encodeName(town_->path()).constData(), 0644), 0);
    QCOMPARE(::seteuid(kNobody), 0);
  } else {
    QVERIFY(QFile::setPermissions(town_->path(), QFile::ReadOwner));
  }
  const QString told = words();
  if (::getuid() == 0) {
    QCOMPARE(::seteuid(0), 0);
  }
  QVERIFY2(told.contains(QStringLiteral("não pode ser gravado")), qPrintable(told));
  QCOMPARE(town_->ask("PRAGMA user_version"), QStringLiteral("1"));
}

void Upgrade::withoutStepsAnyVersionIsTaken() {
  setVersion(9);
  QCOMPARE(open({}), 0);
}

QUARTELA_TEST_MAIN(Upgrade)
#include "Upgrade_test.moc"
