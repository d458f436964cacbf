// Files of every earlier version, brought forward by the program's own steps, against a fresh one.
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "database/Builder.h"
#include "database/EmbeddedFiles.h"
#include "foundation/Passos.h"
#include "platform/database/Connection.h"
#include "tests/database/PlainDatabase.h"
#include "tests/support/FirstDelivery.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;

namespace {

// Rows for every table of the first delivery, with the cells that a step may stumble over: null,
// empty, accents, apostrophes, the ends of ranges.
const QByteArray kRows = R"(
INSERT INTO Orgao VALUES (1, 'Saúde'), (7, NULL);
INSERT INTO Executor VALUES (3, 1, 'José D''Ávila', '12.345', '111.111.111-11', 'Diretor', 1);
INSERT INTO Tomador VALUES (2, 'Ana', '', NULL, '222.222.222-22', 0);
INSERT INTO Tipos VALUES (4, 1, 'Viagens', '3.3.90.14', 'Lei 1', '', '05 dias', 1);
INSERT INTO Inciso VALUES (5, 4, 'Inciso I', 'A', 30, 1);
INSERT INTO Dotacao VALUES (6, 4, 1, 123, 'Ficha', 2014);
INSERT INTO Finalidade VALUES (8, 'Um fim');
INSERT INTO Requisicao VALUES (2147483647, '2014-02-28 00:00:00', 3, 2, 123456, 4, 'x', '123'),
  (114, NULL, NULL, NULL, NULL, NULL, NULL, NULL);
INSERT INTO Adiantamento VALUES (1102, 114, '2014-03-01 00:00:00', '2014-03-01 00:00:00',
  '2014-03-31 00:00:00', NULL, -1, NULL, 1, 99999);
INSERT INTO PrestContas VALUES (40000, 1102, '2014-03-02 00:00:00', '0001', 'PAPELARIA', 10000, 0);
INSERT INTO ReqAvulso VALUES (1, '2014-02-28 00:00:00', 3, 2, 1, 4, '', '');
INSERT INTO Viagem (ITEM, PLANILHA, PROCESSO, DATA_SAIDA) VALUES (1, 0, 1102, '2014-03-02 00:00:00');
INSERT INTO IdentificaTransp (ITEM, PLANILHA, PROCESSO, DATA, HSAIDA)
  VALUES (9, 1, 1102, '2014-03-05 00:00:00', 1000), (10, 2, 1102, NULL, NULL);
INSERT INTO ItensTransp VALUES (1, 9, '2014-03-05 00:00:00', 'Posto', '77', 500000);
INSERT INTO Produtos (ITEM, PRODUTO1, QUANT10) VALUES (1, 'papel', '0012');
INSERT INTO Servicos VALUES (1, NULL, 'Ana', 'aqui', '', 'lavar');
INSERT INTO Cidades VALUES (1, 'Águas', 'SP', 12.5);
)";

// The file as the first delivery left it after a while, with rows in every table.
void makeVersion1(const QString& path) {
  makeFirstDelivery(path);
  PlainDatabase plain(path);
  QCOMPARE(plain.number("SELECT count(*) FROM Consultas"), 8);
  QCOMPARE(plain.run(kRows), 0);
}

SchemaSteps upTo(int version) {
  SchemaSteps steps;
  for (const SchemaStep& step : passos_do_banco()) {
    if (step.version <= version) {
      steps.push_back(step);
    }
  }
  return steps;
}

void bringTo(const QString& path, int version) {
  Connection connection;
  connection.open(QStringLiteral("Provider=q;Data Source=%1;").arg(path), upTo(version));
}

int lastVersion() {
  return passos_do_banco().back().version;
}

// One text for all that differs in nothing but blanks and the quotes that the engine puts round
// names.
QString plainWords(QString sql) {
  return sql.remove(QLatin1Char('"')).simplified();
}

QStringList schemaOf(const QString& path) {
  QStringList words;
  PlainDatabase plain(path);
  const PlainRows rows = plain.query(
      "SELECT type, name, tbl_name, sql FROM sqlite_schema WHERE name NOT LIKE 'sqlite\\_%' ESCAPE "
      "'\\' "
      "ORDER BY type, name");
  for (const QStringList& row : rows.rows) {
    words << plainWords(row.join(QLatin1Char(' ')));
  }
  return words;
}

QList<QStringList> queriesOf(const QString& path) {
  return PlainDatabase(path).query("SELECT NOME, TEXTO FROM Consultas ORDER BY NOME").rows;
}

QList<QStringList> rowsOf(const QString& path, const QString& table) {
  return PlainDatabase(path).query("SELECT * FROM " + table.toUtf8() + " ORDER BY 1").rows;
}

}  // namespace

class Steps : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void stepsAreNumberedWithoutGaps();
  void aFreshFileIsOfTheLastVersion();
  void everyVersionBecomesTheFreshOne_data();
  void everyVersionBecomesTheFreshOne();
  void rowsStay();
  void anotherKeyIsNeverGivenTwice();

 private:
  QString path(const char* name) const { return folder_->filePath(QLatin1String(name)); }
  std::unique_ptr<QTemporaryDir> folder_;
};

void Steps::init() {
  folder_ = std::make_unique<QTemporaryDir>();
  QVERIFY(folder_->isValid());
}

void Steps::stepsAreNumberedWithoutGaps() {
  int version = 1;
  for (const SchemaStep& step : passos_do_banco()) {
    QCOMPARE(step.version, ++version);
    QVERIFY2(!step.sql.isEmpty(), qPrintable(step.name));
  }
  QVERIFY(version > 1);
}

void Steps::aFreshFileIsOfTheLastVersion() {
  database::createEmptyDatabase(path("novo.mdb"));
  QCOMPARE(PlainDatabase(path("novo.mdb")).number("PRAGMA user_version"), lastVersion());
  bringTo(path("novo.mdb"), lastVersion());
  QCOMPARE(QDir(folder_->path()).entryList(QDir::Files), QStringList{"novo.mdb"});
}

void Steps::everyVersionBecomesTheFreshOne_data() {
  QTest::addColumn<int>("version");
  for (int version = 1; version <= lastVersion(); ++version) {
    QTest::newRow(qPrintable(QString::number(version))) << version;
  }
}

void Steps::everyVersionBecomesTheFreshOne() {
  QFETCH(int, version);
  makeVersion1(path("velho.mdb"));
  if (version > 1) {
    bringTo(path("velho.mdb"), version);
  }
  QCOMPARE(PlainDatabase(path("velho.mdb")).number("PRAGMA user_version"), version);
  bringTo(path("velho.mdb"), lastVersion());
  database::createEmptyDatabase(path("novo.mdb"));
  QCOMPARE(PlainDatabase(path("velho.mdb")).number("PRAGMA user_version"), lastVersion());
  QCOMPARE(schemaOf(path("velho.mdb")), schemaOf(path("novo.mdb")));
  QCOMPARE(queriesOf(path("velho.mdb")), queriesOf(path("novo.mdb")));
  QCOMPARE(PlainDatabase(path("velho.mdb")).text("PRAGMA integrity_check"), QStringLiteral("ok"));
}

void Steps::rowsStay() {
  makeVersion1(path("velho.mdb"));
  QVERIFY(QFile::copy(path("velho.mdb"), path("antes.mdb")));
  bringTo(path("velho.mdb"), lastVersion());
  const QStringList tables = PlainDatabase(path("antes.mdb")).tables();
  QCOMPARE(tables.size(), 18);
  for (const QString& table : tables) {
    if (table == QLatin1String("Consultas")) {
      continue;
    }
    QList<QStringList> expected = rowsOf(path("antes.mdb"), table);
    QVERIFY2(!expected.isEmpty(), qPrintable(table));
    if (table == QLatin1String("IdentificaTransp")) {
      // The date has become the text that the operator types.
      QCOMPARE(expected[0][3], QStringLiteral("2014-03-05 00:00:00"));
      expected[0][3] = QStringLiteral("05/03/2014");
    }
    QCOMPARE(rowsOf(path("velho.mdb"), table), expected);
  }
}

// The engine's own count of generated keys must survive a table that is made anew.
void Steps::anotherKeyIsNeverGivenTwice() {
  makeVersion1(path("velho.mdb"));
  PlainDatabase(path("velho.mdb")).run("DELETE FROM IdentificaTransp WHERE ITEM = 10");
  bringTo(path("velho.mdb"), lastVersion());
  PlainDatabase plain(path("velho.mdb"));
  QCOMPARE(plain.run("INSERT INTO IdentificaTransp (PLANILHA) VALUES (3)"), 0);
  QCOMPARE(plain.number("SELECT max(ITEM) FROM IdentificaTransp"), 11);
}

QUARTELA_TEST_MAIN(Steps)
#include "Steps_test.moc"
