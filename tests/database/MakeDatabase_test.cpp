// The program that makes database files, from its command line.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <memory>

#include "tests/database/PlainDatabase.h"
#include "tests/support/Files.h"
#include "tests/support/Folders.h"
#include "tests/support/TestMain.h"

namespace quartela::test {

class MakeDatabaseTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void empty();
  void demonstration();
  void sameArgumentsSameRows();
  void freshDeliveryCountsFromZero();
  void existingFileNeedsReplace();
  void wrongArguments_data();
  void wrongArguments();

 private:
  QString file(const QString& name) const { return folder_->filePath(name); }
  int run(const QStringList& arguments);

  std::unique_ptr<QTemporaryDir> folder_;
  QString printed_;
  QString errors_;
};

void MakeDatabaseTest::init() {
  folder_ = std::make_unique<QTemporaryDir>();
  QVERIFY(folder_->isValid());
}

int MakeDatabaseTest::run(const QStringList& arguments) {
  QProcess process;
  process.start(quartela::test::inBuild(QStringLiteral("bin/make_database")), arguments);
  process.waitForFinished();
  printed_ = QString::fromUtf8(process.readAllStandardOutput());
  errors_ = QString::fromUtf8(process.readAllStandardError());
  return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

void MakeDatabaseTest::empty() {
  QCOMPARE(run({"--empty", file("a.mdb")}), 0);
  PlainDatabase plain(file("a.mdb"));
  QCOMPARE(plain.number("SELECT count(*) FROM Consultas"), 8);
  QCOMPARE(plain.number("SELECT count(*) FROM Requisicao"), 0);
}

void MakeDatabaseTest::demonstration() {
  QCOMPARE(run({"--demonstration", file("a.mdb"), "--processes", "50", "--notes", "123", "--today",
                "2014-11-21"}),
           0);
  PlainDatabase plain(file("a.mdb"));
  QCOMPARE(plain.number("SELECT count(*) FROM Requisicao"), 50);
  QCOMPARE(plain.number("SELECT count(*) FROM PrestContas"), 123);
  QVERIFY(plain.text("SELECT max(DATA) FROM Requisicao") <= QString("2014-11-21 00:00:00"));
}

void MakeDatabaseTest::sameArgumentsSameRows() {
  const QStringList rest = {"--processes", "40", "--seed", "9", "--today", "2014-11-21"};
  QCOMPARE(run(QStringList{"--demonstration", file("a.mdb")} + rest), 0);
  QCOMPARE(run(QStringList{"--demonstration", file("b.mdb")} + rest), 0);
  QCOMPARE(PlainDatabase(file("a.mdb")).contentHash(), PlainDatabase(file("b.mdb")).contentHash());
}

// One counter file for both databases of a fresh delivery: the numbers that it gives first are free
// in the demonstration.
void MakeDatabaseTest::freshDeliveryCountsFromZero() {
  const QDir build(folder_->filePath("build"));
  QVERIFY(build.mkpath("bin"));
  QFile program(build.filePath("bin/quartela"));
  QVERIFY(program.open(QIODevice::WriteOnly));
  program.close();
  QVERIFY(QFile::link(inBuild(QStringLiteral("bin/make_database")),
                      build.filePath("bin/make_database")));
  QCOMPARE(QProcess::execute(inSource(QStringLiteral("packaging/lay-out")),
                             {build.path(), file("delivery")}),
           0);
  const int year = QDate::currentDate().year();
  QCOMPARE(contentOf(file("delivery/Number.Ini")),
           "[Contador]\r\nano=" + QByteArray::number(year) + "\r\nnumber=0\r\n");
  PlainDatabase demonstration(file("delivery/Demonstracao.mdb"));
  const QByteArray thisYear =
      "SELECT count(*) FROM Requisicao WHERE SEQ % 100 = " + QByteArray::number(year % 100);
  QCOMPARE(demonstration.number(thisYear + " AND SEQ / 100 <= 200"), 0);
  QCOMPARE(demonstration.number(thisYear + " AND SEQ / 100 > 327"), 0);
  QCOMPARE(PlainDatabase(file("delivery/Banco.mdb")).number("SELECT count(*) FROM Requisicao"), 0);
}

void MakeDatabaseTest::existingFileNeedsReplace() {
  QCOMPARE(run({"--demonstration", file("a.mdb"), "--processes", "5"}), 0);
  QCOMPARE(run({"--empty", file("a.mdb")}), 1);
  QVERIFY(errors_.startsWith("make_database: 75"));
  QCOMPARE(PlainDatabase(file("a.mdb")).number("SELECT count(*) FROM Requisicao"), 5);
  QCOMPARE(run({"--empty", file("a.mdb"), "--replace"}), 0);
  QCOMPARE(PlainDatabase(file("a.mdb")).number("SELECT count(*) FROM Requisicao"), 0);
  QCOMPARE(QDir(folder_->path()).entryList(QDir::Files), QStringList{"a.mdb"});
}

void MakeDatabaseTest::wrongArguments_data() {
  QTest::addColumn<QStringList>("arguments");
  QTest::newRow("none") << QStringList{};
  QTest::newRow("both kinds") << QStringList{"--empty", "x.mdb", "--demonstration", "y.mdb"};
  QTest::newRow("a count that is none")
      << QStringList{"--demonstration", "x.mdb", "--processes", "many"};
  QTest::newRow("a count below zero") << QStringList{"--demonstration", "x.mdb", "--notes", "-3"};
  QTest::newRow("a count too large")
      << QStringList{"--demonstration", "x.mdb", "--notes", "99999999999"};
  QTest::newRow("a day that does not exist")
      << QStringList{"--demonstration", "x.mdb", "--today", "2014-02-30"};
  QTest::newRow("an unknown word") << QStringList{"--full", "x.mdb"};
  QTest::newRow("a folder that does not exist") << QStringList{"--empty", "nowhere/none.mdb"};
}

void MakeDatabaseTest::wrongArguments() {
  QFETCH(QStringList, arguments);
  arguments.replaceInStrings("x.mdb", file("x.mdb"));
  QCOMPARE(run(arguments), 1);
  QVERIFY(QDir(folder_->path()).isEmpty());
}

}  // namespace quartela::test

using quartela::test::MakeDatabaseTest;
QUARTELA_TEST_MAIN(MakeDatabaseTest)
#include "MakeDatabase_test.moc"
