// New database files: what they hold, and what becomes of attempts that fail.
#include "database/Builder.h"

#include <sqlite3.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "database/RowWriter.h"
#include "platform/values/RuntimeError.h"
#include "tests/database/PlainDatabase.h"
#include "tests/support/Errors.h"
#include "tests/support/Files.h"
#include "tests/support/Folders.h"
#include "tests/support/TestMain.h"

namespace quartela::test {

namespace {

const QString kFolder = quartela::test::inSource(QStringLiteral("database/"));

}  // namespace

class BuilderTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void oneFileRemains();
  void fileIsMarked();
  void tablesOfAnEmptyDatabase();
  void storedQueriesAreTheFiles();
  void everyStateHasItsCapital();
  void citiesHaveDistances();
  void schemaLoadsByItself();
  void existingFileIsLeftAlone();
  void folderThatDoesNotExist();
  void unfinishedFileIsTakenAway();
  void refusedRowRaises();

 private:
  QString path() const { return folder_->filePath("novo.mdb"); }
  std::unique_ptr<QTemporaryDir> folder_;
};

void BuilderTest::init() {
  folder_ = std::make_unique<QTemporaryDir>();
  QVERIFY(folder_->isValid());
}

void BuilderTest::oneFileRemains() {
  database::createEmptyDatabase(path());
  QCOMPARE(QDir(folder_->path()).entryList(QDir::Files), QStringList{"novo.mdb"});
  PlainDatabase plain(path());
  QCOMPARE(plain.text("PRAGMA journal_mode"), QString("delete"));
  QCOMPARE(plain.text("PRAGMA integrity_check"), QString("ok"));
}

void BuilderTest::fileIsMarked() {
  database::createEmptyDatabase(path());
  PlainDatabase plain(path());
  QCOMPARE(plain.number("PRAGMA application_id"), 0x51544C41);
  QCOMPARE(plain.number("PRAGMA user_version"), 3);
  QCOMPARE(plain.text("PRAGMA encoding"), QString("UTF-8"));
}

void BuilderTest::tablesOfAnEmptyDatabase() {
  database::createEmptyDatabase(path());
  PlainDatabase plain(path());
  const QStringList filled = {"Cidades", "Consultas", "Finalidade"};
  QCOMPARE(plain.tables().size(), 18);
  for (const QString& table : plain.tables()) {
    const int rows = plain.number("SELECT count(*) FROM " + table.toUtf8());
    QVERIFY2((rows > 0) == filled.contains(table), qPrintable(table));
  }
}

void BuilderTest::storedQueriesAreTheFiles() {
  database::createEmptyDatabase(path());
  PlainDatabase plain(path());
  const QStringList files =
      QDir(kFolder + "stored-queries").entryList({"*.sql"}, QDir::Files, QDir::Name);
  const PlainRows queries = plain.query("SELECT NOME, TEXTO FROM Consultas ORDER BY NOME");
  QCOMPARE(queries.rows.size(), 8);
  QCOMPARE(files.size(), 8);
  for (const QStringList& query : queries.rows) {
    const QByteArray text = contentOf(kFolder + "stored-queries/" + query[0] + ".sql");
    QCOMPARE(query[1].toUtf8(), text);
  }
}

void BuilderTest::everyStateHasItsCapital() {
  database::createEmptyDatabase(path());
  PlainDatabase plain(path());
  const QStringList capitals = {
      "Rio Branco/AC",  "Maceió/AL",    "Manaus/AM",         "Macapá/AP",
      "Salvador/BA",    "Fortaleza/CE", "Brasília/DF",       "Vitória/ES",
      "Goiânia/GO",     "São Luís/MA",  "Belo Horizonte/MG", "Campo Grande/MS",
      "Cuiabá/MT",      "Belém/PA",     "João Pessoa/PB",    "Recife/PE",
      "Teresina/PI",    "Curitiba/PR",  "Rio de Janeiro/RJ", "Natal/RN",
      "Porto Velho/RO", "Boa Vista/RR", "Porto Alegre/RS",   "Florianópolis/SC",
      "Aracaju/SE",     "São Paulo/SP", "Palmas/TO"};
  QCOMPARE(plain.number("SELECT count(DISTINCT uf) FROM Cidades"), 27);
  for (const QString& capital : capitals) {
    QCOMPARE(plain.number("SELECT count(*) FROM Cidades WHERE nome || '/' || uf = '" +
                          capital.toUtf8() + "'"),
             1);
  }
}

void BuilderTest::citiesHaveDistances() {
  database::createEmptyDatabase(path());
  PlainDatabase plain(path());
  QVERIFY(plain.number("SELECT count(*) FROM Cidades") > 400);
  QCOMPARE(plain.number("SELECT count(*) FROM Cidades WHERE distancia BETWEEN 1 AND 6000"),
           plain.number("SELECT count(*) FROM Cidades"));
  QCOMPARE(plain.number("SELECT count(DISTINCT nome || '/' || uf) FROM Cidades"),
           plain.number("SELECT count(*) FROM Cidades"));
  QCOMPARE(plain.text("SELECT distancia FROM Cidades WHERE nome = 'Caratinga'"), QString("27"));
}

// Any tool can make the same file from schema.sql alone.
void BuilderTest::schemaLoadsByItself() {
  database::createEmptyDatabase(path());
  const QString other = folder_->filePath("outro.mdb");
  QVERIFY(QFile(other).open(QIODevice::WriteOnly));
  PlainDatabase loaded(other);
  QCOMPARE(loaded.run(contentOf(kFolder + "schema.sql")), SQLITE_OK);
  PlainDatabase built(path());
  const QByteArray schema = "SELECT type, name, sql FROM sqlite_schema ORDER BY type, name";
  QCOMPARE(built.query(schema).rows, loaded.query(schema).rows);
  QCOMPARE(loaded.number("PRAGMA application_id"), 0x51544C41);
}

void BuilderTest::existingFileIsLeftAlone() {
  QFile file(path());
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write("mine");
  file.close();
  QCOMPARE(errorOf([this] { database::createEmptyDatabase(path()); }), 75);
  QCOMPARE(contentOf(path()), QByteArray("mine"));
}

void BuilderTest::folderThatDoesNotExist() {
  const QString nowhere = folder_->filePath("nowhere/novo.mdb");
  QCOMPARE(errorOf([&nowhere] { database::createEmptyDatabase(nowhere); }), 3044);
}

void BuilderTest::unfinishedFileIsTakenAway() {
  {
    database::NewDatabase database(path());
    database.addReferenceData();
    QVERIFY(QFile::exists(path()));
  }
  QVERIFY(QDir(folder_->path()).isEmpty());
}

void BuilderTest::refusedRowRaises() {
  database::NewDatabase database(path());
  database::RowWriter writer(database.handle(), "Executor", "IDORGAO, NOME");
  QCOMPARE(errorOf([&writer] { writer.add(std::int32_t{5}, "Ninguém"); }), 3317);
}

}  // namespace quartela::test

using quartela::test::BuilderTest;
QUARTELA_TEST_MAIN(BuilderTest)
#include "Builder_test.moc"
