// The file's own rules, seen through the engine's C API: columns, checks of values, relations.
#include <sqlite3.h>

#include <QFile>
#include <QTemporaryDir>
#include <memory>

#include "database/Builder.h"
#include "tests/database/PlainDatabase.h"
#include "tests/support/TestMain.h"

namespace quartela::test {

namespace {

// One row in every table that takes part in a relation, all with the key 1.
constexpr auto kFamily = R"sql(
INSERT INTO Orgao (IDORGAO, ORGAO) VALUES (1, 'Secretaria');
INSERT INTO Executor (ORDEM, IDORGAO) VALUES (1, NULL);
INSERT INTO Tomador (ID) VALUES (1);
INSERT INTO Tipos (SEQUENCIA, IDORGAO) VALUES (1, NULL);
INSERT INTO Requisicao (SEQ) VALUES (1);
INSERT INTO Adiantamento (EMPENHO, PROCESSO) VALUES (1, 1);
INSERT INTO PrestContas (SEQ, PROCESSO, ID_VIAGEM) VALUES (1, 1, 1);
INSERT INTO Viagem (ITEM, PROCESSO) VALUES (1, 1);
INSERT INTO IdentificaTransp (ITEM, PROCESSO) VALUES (1, 1);
INSERT INTO ItensTransp (IDENTIFICA, IDENT_TRANSP) VALUES (1, 1);
)sql";

QStringList goodValues(const QString& type) {
  static const QHash<QString, QStringList> kGood = {
      {"SMALLINT", {"-32768", "0", "32767", "NULL"}},
      {"INTEGER", {"-2147483648", "0", "2147483647", "NULL"}},
      {"MONEY", {"-9223372036854775808", "0", "12345", "9223372036854775807", "NULL"}},
      {"DOUBLE", {"0.5", "12", "-3", "1.7976931348623157e308", "NULL"}},
      {"DATETIME",
       {"'2014-11-21 00:00:00'", "'2016-02-29 23:59:59'", "'0100-01-01 00:00:00'",
        "'9999-12-31 12:34:56'", "NULL"}},
      {"BOOLEAN", {"0", "1"}},
      {"TEXT", {"''", "'é'", "42", "NULL"}}};
  return kGood.value(type);
}

QStringList badValues(const QString& type) {
  static const QHash<QString, QStringList> kBad = {
      {"SMALLINT", {"-32769", "32768", "1.5", "'abc'", "x'31'"}},
      {"INTEGER", {"-2147483649", "2147483648", "1.5", "'abc'", "x'31'"}},
      {"MONEY", {"1.5", "9223372036854775808", "'1,50'", "x'31'"}},
      {"DOUBLE", {"'abc'", "x'31'", "9e999", "-9e999"}},
      {"DATETIME",
       {"'2014-11-21'", "'21/11/2014'", "'2014-11-21T00:00:00'", "'2014-02-29 00:00:00'",
        "'2014-13-01 00:00:00'", "'2014-11-31 00:00:00'", "'2014-11-21 24:00:00'",
        "'2014-11-21 10:60:00'", "'2014-11-21 10:00:60'", "'2014-11-21 00:00:0x'",
        "'0099-12-31 00:00:00'", "''", "20141121", "2456982.5", "x'31'"}},
      {"BOOLEAN", {"2", "-1", "0.5", "'sim'", "x'31'", "NULL"}},
      {"TEXT", {"x'31'"}}};
  return kBad.value(type);
}

struct Table {
  const char* name;
  // NAME TYPE pairs in the order of the columns; the key first.
  const char* columns;
};

constexpr Table kTables[] = {
    {"Orgao", "IDORGAO INTEGER, ORGAO TEXT"},
    {"Executor",
     "ORDEM INTEGER, IDORGAO SMALLINT, NOME TEXT, RG TEXT, CPF TEXT, FUNCAO TEXT, ATIVO BOOLEAN"},
    {"Tomador", "ID INTEGER, NOME1 TEXT, CARGO TEXT, RG1 TEXT, CPF1 TEXT, ATIVO BOOLEAN"},
    {"Tipos",
     "SEQUENCIA INTEGER, IDORGAO SMALLINT, TIPO TEXT, ELEMENTO TEXT, LEI TEXT, MATERIAIS TEXT, "
     "PRAZO TEXT, ATIVO BOOLEAN"},
    {"Inciso",
     "ID INTEGER, TIPO SMALLINT, DESCRICAO TEXT, CATEGORIA TEXT, PRAZO SMALLINT, ATIVO BOOLEAN"},
    {"Dotacao",
     "ID INTEGER, IDTIPO SMALLINT, IDORGAO SMALLINT, DOTACAO SMALLINT, DESCRICAO TEXT, "
     "ANO SMALLINT"},
    {"Finalidade", "ID INTEGER, FINALIDADE TEXT"},
    {"Requisicao",
     "SEQ INTEGER, DATA DATETIME, ORGAO SMALLINT, TOMADOR SMALLINT, VALOR MONEY, "
     "FINALIDADE SMALLINT, JUSTIFICATIVA TEXT, FICHA TEXT"},
    {"ReqAvulso",
     "SEQ INTEGER, DATA DATETIME, ORGAO SMALLINT, TOMADOR SMALLINT, VALOR MONEY, "
     "FINALIDADE SMALLINT, JUSTIFICATIVA TEXT, FICHA TEXT"},
    {"Adiantamento",
     "EMPENHO INTEGER, PROCESSO INTEGER, ABERTURA DATETIME, RETIRADA DATETIME, "
     "FECHAR_EM DATETIME, FECHAMENTO DATETIME, DEVOLUCAO MONEY, DATADEV DATETIME, "
     "ANULADO BOOLEAN, OP INTEGER"},
    {"PrestContas",
     "SEQ INTEGER, PROCESSO INTEGER, DATA DATETIME, ORDEM TEXT, HISTORICO TEXT, DESPESAS MONEY, "
     "ID_VIAGEM SMALLINT"},
    {"Viagem",
     "ITEM INTEGER, PLANILHA SMALLINT, PROCESSO INTEGER, DATA_SAIDA DATETIME, "
     "DATA_CHEGADA DATETIME, HSAIDA TEXT, HCHEGADA TEXT, UF TEXT, DESTINO TEXT, "
     "LOCALIDADE TEXT, VEICULO TEXT, PLACA TEXT, DISTANCIA SMALLINT, MOTORISTA TEXT, "
     "PARTICIPANTES TEXT, OBS TEXT, MOTIVO TEXT, ORGAO TEXT"},
    {"IdentificaTransp",
     "ITEM INTEGER, PLANILHA SMALLINT, PROCESSO INTEGER, DATA TEXT, DESTINO TEXT, "
     "LOCALIDADE TEXT, VEÍCULO TEXT, PLACA TEXT, HSAIDA INTEGER, HCHEGADA INTEGER, "
     "MOTORISTA TEXT, ACOMPANHANTE TEXT, OBS TEXT, MOTIVO TEXT"},
    {"ItensTransp",
     "IDENTIFICA INTEGER, IDENT_TRANSP INTEGER, DATADOC DATETIME, RAZAO TEXT, DOCUMENTO TEXT, "
     "VALOR MONEY"},
    {"Produtos",
     "ITEM INTEGER, DATA DATETIME, REQUISITANTE TEXT, LOCAL TEXT, JUSTIFICATIVA TEXT, "
     "PRODUTO1 TEXT, QUANT1 TEXT, PRODUTO2 TEXT, QUANT2 TEXT, PRODUTO3 TEXT, QUANT3 TEXT, "
     "PRODUTO4 TEXT, QUANT4 TEXT, PRODUTO5 TEXT, QUANT5 TEXT, PRODUTO6 TEXT, QUANT6 TEXT, "
     "PRODUTO7 TEXT, QUANT7 TEXT, PRODUTO8 TEXT, QUANT8 TEXT, PRODUTO9 TEXT, QUANT9 TEXT, "
     "PRODUTO10 TEXT, QUANT10 TEXT"},
    {"Servicos",
     "ITEM INTEGER, DATA DATETIME, REQUISITANTE TEXT, LOCAL TEXT, JUSTIFICATIVA TEXT, "
     "SERVICOS TEXT"},
    {"Cidades", "id INTEGER, nome TEXT, uf TEXT, distancia DOUBLE"},
};

// The keys that the program writes itself; the engine gives all others.
bool keyIsWritten(const QString& table) {
  return QStringList{"Requisicao", "Adiantamento", "Cidades"}.contains(table);
}

QString keyOf(const QString& table) {
  for (const Table& one : kTables) {
    if (table == one.name) {
      return QString(one.columns).section(' ', 0, 0);
    }
  }
  return {};
}

}  // namespace

class SchemaTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void init();
  void cleanup();
  void columns_data();
  void columns();
  void values_data();
  void values();
  void keys_data();
  void keys();
  void generatedKeysAreNeverUsedAgain();
  void booleansAreFalseAtFirst();
  void relations_data();
  void relations();
  void missingParents_data();
  void missingParents();
  void lookups_data();
  void lookups();

 private:
  QTemporaryDir folder_;
  std::unique_ptr<PlainDatabase> plain_;
};

void SchemaTest::initTestCase() {
  QVERIFY(folder_.isValid());
  database::createEmptyDatabase(folder_.filePath("vazio.mdb"));
}

void SchemaTest::init() {
  const QString path = folder_.filePath("teste.mdb");
  QVERIFY(QFile::copy(folder_.filePath("vazio.mdb"), path));
  plain_ = std::make_unique<PlainDatabase>(path);
}

void SchemaTest::cleanup() {
  plain_.reset();
  QVERIFY(QFile::remove(folder_.filePath("teste.mdb")));
}

void SchemaTest::columns_data() {
  QTest::addColumn<QString>("table");
  QTest::addColumn<QString>("columns");
  for (const Table& table : kTables) {
    QTest::newRow(table.name) << QString(table.name) << QString(table.columns);
  }
}

void SchemaTest::columns() {
  QFETCH(const QString, table);
  QFETCH(const QString, columns);
  const PlainRows info = plain_->query("PRAGMA table_info(" + table.toUtf8() + ")");
  QStringList found;
  for (const QStringList& row : info.rows) {
    found << row[1] + " " + row[2];
  }
  QCOMPARE(found.join(", "), columns);
  QCOMPARE(info.rows.first()[5], QString("1"));
}

// Every column of every table takes the good values of its type and refuses the bad ones, by its
// CHECK alone: relations are switched off.
void SchemaTest::values_data() {
  QTest::addColumn<QString>("table");
  QTest::addColumn<QString>("column");
  QTest::addColumn<QString>("type");
  for (const Table& table : kTables) {
    const QStringList columns = QString(table.columns).split(", ");
    for (const QString& column : columns.mid(1)) {
      const QStringList parts = column.split(' ');
      QTest::addRow("%s.%s", table.name, qPrintable(parts[0]))
          << QString(table.name) << parts[0] << parts[1];
    }
  }
}

void SchemaTest::values() {
  QFETCH(const QString, table);
  QFETCH(const QString, column);
  QFETCH(const QString, type);
  const QString key = keyOf(table);
  QCOMPARE(plain_->run("PRAGMA foreign_keys = OFF"), SQLITE_OK);
  QVERIFY(!goodValues(type).isEmpty());
  int number = 1'000'000;
  const auto insert = [&](const QString& value) {
    const QString sql = QString("INSERT INTO %1 (%2, %3) VALUES (%4, %5)")
                            .arg(table, key, column, QString::number(++number), value);
    return plain_->runExtended(sql.toUtf8());
  };
  for (const QString& value : goodValues(type)) {
    QVERIFY2(insert(value) == SQLITE_OK, qPrintable(value));
  }
  for (const QString& value : badValues(type)) {
    const int expected = value == "NULL" ? SQLITE_CONSTRAINT_NOTNULL : SQLITE_CONSTRAINT_CHECK;
    QVERIFY2(insert(value) == expected, qPrintable(value));
  }
}

void SchemaTest::keys_data() {
  QTest::addColumn<QString>("table");
  QTest::addColumn<QString>("value");
  QTest::addColumn<bool>("good");
  for (const Table& table : kTables) {
    const QString name = table.name;
    const bool written = keyIsWritten(name);
    QTest::addRow("%s: largest", table.name) << name << "2147483647" << true;
    QTest::addRow("%s: too large", table.name) << name << "2147483648" << false;
    QTest::addRow("%s: a text", table.name) << name << "'abc'" << false;
    QTest::addRow("%s: a fraction", table.name) << name << "1.5" << false;
    QTest::addRow("%s: negative", table.name) << name << "-5" << written;
    QTest::addRow("%s: too small", table.name) << name << "-2147483649" << false;
    QTest::addRow("%s: none", table.name) << name << "NULL" << true;
  }
}

void SchemaTest::keys() {
  QFETCH(const QString, table);
  QFETCH(const QString, value);
  QFETCH(const bool, good);
  const QByteArray key = keyOf(table).toUtf8();
  const int code = plain_->run("INSERT INTO " + table.toUtf8() + " (" + key + ") VALUES (" +
                               value.toUtf8() + ")");
  QCOMPARE(code == SQLITE_OK, good);
  if (good) {
    QCOMPARE(plain_->run("INSERT INTO " + table.toUtf8() + " (" + key + ") SELECT max(" + key +
                         ") FROM " + table.toUtf8()),
             SQLITE_CONSTRAINT);
  }
}

void SchemaTest::generatedKeysAreNeverUsedAgain() {
  QCOMPARE(plain_->run("INSERT INTO PrestContas (ORDEM) VALUES ('a'), ('b');"
                       "DELETE FROM PrestContas WHERE SEQ = 2;"
                       "INSERT INTO PrestContas (ORDEM) VALUES ('c')"),
           SQLITE_OK);
  QCOMPARE(plain_->number("SELECT SEQ FROM PrestContas WHERE ORDEM = 'c'"), 3);
}

void SchemaTest::booleansAreFalseAtFirst() {
  QCOMPARE(plain_->run(kFamily), SQLITE_OK);
  QCOMPARE(plain_->number("SELECT ATIVO FROM Executor"), 0);
  QCOMPARE(plain_->number("SELECT ATIVO FROM Tomador"), 0);
  QCOMPARE(plain_->number("SELECT ATIVO FROM Tipos"), 0);
  QCOMPARE(plain_->number("SELECT ANULADO FROM Adiantamento"), 0);
}

// Which statement goes through or is refused, and how many rows the table behind the relation has
// then.
void SchemaTest::relations_data() {
  QTest::addColumn<QByteArray>("before");
  QTest::addColumn<QByteArray>("statement");
  QTest::addColumn<int>("code");
  QTest::addColumn<QByteArray>("count");
  QTest::addColumn<int>("rows");
  const auto refused = [](const char* name, const char* parent, const char* before,
                          const char* child) {
    QTest::newRow(name) << QByteArray(before) << QByteArray("DELETE FROM ") + parent
                        << SQLITE_CONSTRAINT << QByteArray("SELECT count(*) FROM ") + child << 1;
  };
  refused("orderer of a secretariat", "Orgao", "UPDATE Executor SET IDORGAO = 1", "Orgao");
  refused("type of a secretariat", "Orgao", "UPDATE Tipos SET IDORGAO = 1", "Orgao");
  refused("allocation of a secretariat", "Orgao", "INSERT INTO Dotacao (IDORGAO) VALUES (1)",
          "Orgao");
  refused("requisition of an orderer", "Executor", "UPDATE Requisicao SET ORGAO = 1", "Executor");
  refused("standalone of an orderer", "Executor", "INSERT INTO ReqAvulso (ORGAO) VALUES (1)",
          "Executor");
  refused("requisition of a person", "Tomador", "UPDATE Requisicao SET TOMADOR = 1", "Tomador");
  refused("standalone of a person", "Tomador", "INSERT INTO ReqAvulso (TOMADOR) VALUES (1)",
          "Tomador");
  refused("requisition of a type", "Tipos", "UPDATE Requisicao SET FINALIDADE = 1", "Tipos");
  refused("standalone of a type", "Tipos", "INSERT INTO ReqAvulso (FINALIDADE) VALUES (1)",
          "Tipos");
  refused("clause of a type", "Tipos", "INSERT INTO Inciso (TIPO) VALUES (1)", "Tipos");
  refused("allocation of a type", "Tipos", "INSERT INTO Dotacao (IDTIPO) VALUES (1)", "Tipos");

  const auto passes = [](const char* name, const char* statement, const char* count, int rows) {
    QTest::newRow(name) << QByteArray() << QByteArray(statement) << SQLITE_OK << QByteArray(count)
                        << rows;
  };
  passes("secretariat without dependants", "DELETE FROM Orgao", "SELECT count(*) FROM Orgao", 0);
  passes("orderer without dependants", "DELETE FROM Executor", "SELECT count(*) FROM Executor", 0);
  passes("person without dependants", "DELETE FROM Tomador", "SELECT count(*) FROM Tomador", 0);
  passes("type without dependants", "DELETE FROM Tipos", "SELECT count(*) FROM Tipos", 0);
  passes("requisition takes its advance", "DELETE FROM Requisicao",
         "SELECT count(*) FROM Adiantamento", 0);
  passes("requisition takes its notes", "DELETE FROM Requisicao",
         "SELECT count(*) FROM PrestContas", 0);
  passes("advance takes its notes", "DELETE FROM Adiantamento", "SELECT count(*) FROM PrestContas",
         0);
  passes("advance leaves its requisition", "DELETE FROM Adiantamento",
         "SELECT count(*) FROM Requisicao", 1);
  passes("advance leaves its travel sheets", "DELETE FROM Adiantamento",
         "SELECT count(*) FROM Viagem", 1);
  passes("advance leaves its transport sheets", "DELETE FROM Adiantamento",
         "SELECT count(*) FROM IdentificaTransp", 1);
  passes("note leaves its advance", "DELETE FROM PrestContas", "SELECT count(*) FROM Adiantamento",
         1);
  passes("travel sheet leaves its notes", "DELETE FROM Viagem", "SELECT count(*) FROM PrestContas",
         1);
  passes("transport sheet leaves its documents", "DELETE FROM IdentificaTransp",
         "SELECT count(*) FROM ItensTransp", 1);
  passes("process gets another number", "UPDATE Requisicao SET SEQ = 77",
         "SELECT count(*) FROM Adiantamento WHERE PROCESSO = 77", 1);
  passes("empenho gets another number", "UPDATE Adiantamento SET EMPENHO = 77",
         "SELECT count(*) FROM PrestContas WHERE PROCESSO = 77", 1);
}

void SchemaTest::relations() {
  QFETCH(const QByteArray, before);
  QFETCH(const QByteArray, statement);
  QFETCH(const int, code);
  QFETCH(const QByteArray, count);
  QFETCH(const int, rows);
  QCOMPARE(plain_->run(kFamily), SQLITE_OK);
  QCOMPARE(plain_->run(before), SQLITE_OK);
  QCOMPARE(plain_->run(statement), code);
  QCOMPARE(plain_->number(count), rows);
  QVERIFY(plain_->query("PRAGMA foreign_key_check").rows.isEmpty());
}

void SchemaTest::missingParents_data() {
  QTest::addColumn<QByteArray>("table");
  QTest::addColumn<QByteArray>("column");
  const QList<std::pair<const char*, const char*>> columns = {
      {"Executor", "IDORGAO"},    {"Tipos", "IDORGAO"},         {"Inciso", "TIPO"},
      {"Dotacao", "IDTIPO"},      {"Dotacao", "IDORGAO"},       {"Requisicao", "ORGAO"},
      {"Requisicao", "TOMADOR"},  {"Requisicao", "FINALIDADE"}, {"ReqAvulso", "ORGAO"},
      {"ReqAvulso", "TOMADOR"},   {"ReqAvulso", "FINALIDADE"},  {"Adiantamento", "PROCESSO"},
      {"PrestContas", "PROCESSO"}};
  for (const auto& [table, column] : columns) {
    QTest::addRow("%s.%s", table, column) << QByteArray(table) << QByteArray(column);
  }
}

void SchemaTest::missingParents() {
  QFETCH(const QByteArray, table);
  QFETCH(const QByteArray, column);
  const QByteArray head = "INSERT INTO " + table + " (" + column + ") VALUES (";
  QCOMPARE(plain_->runExtended(head + "4711)"), SQLITE_CONSTRAINT_FOREIGNKEY);
  QCOMPARE(plain_->run(head + "NULL)"), SQLITE_OK);
}

// What grows with the years is found by an index, not by reading a table from end to end.
void SchemaTest::lookups_data() {
  QTest::addColumn<QByteArray>("statement");
  const auto add = [](const char* name, const char* statement) {
    QTest::newRow(name) << QByteArray(statement);
  };
  add("notes of an empenho, in order",
      "SELECT * FROM PrestContas WHERE PROCESSO = 1 ORDER BY DATA, SEQ");
  add("notes of a sheet, in order", "SELECT * FROM PrestContas WHERE ID_VIAGEM = 1 ORDER BY DATA");
  add("advance of a process", "SELECT * FROM Adiantamento WHERE PROCESSO = 1");
  add("advances opened in a period",
      "SELECT * FROM Adiantamento WHERE ABERTURA BETWEEN '2014-01-01' AND '2014-12-31'");
  add("advances about to fall due",
      "SELECT * FROM Adiantamento WHERE FECHAMENTO IS NULL AND FECHAR_EM < '2014-12-31'");
  add("requisitions of a person and type",
      "SELECT * FROM Requisicao WHERE TOMADOR = 1 AND FINALIDADE = 1");
  add("requisitions of an orderer", "SELECT * FROM Requisicao WHERE ORGAO = 1");
  add("requisitions of a type", "SELECT * FROM Requisicao WHERE FINALIDADE = 1");
  add("travel sheets of a process", "SELECT * FROM Viagem WHERE PROCESSO = 1");
  add("last transport sheet of a process",
      "SELECT max(PLANILHA) FROM IdentificaTransp WHERE PROCESSO = 1");
  add("documents of a transport sheet, in order",
      "SELECT * FROM ItensTransp WHERE IDENT_TRANSP = 1 ORDER BY DATADOC, IDENTIFICA");
  add("allocations of a type", "SELECT * FROM Dotacao WHERE IDTIPO = 1 AND ANO = 2014");
  add("allocations by number", "SELECT * FROM Dotacao WHERE DOTACAO = 1");
  add("cities that begin with some letters",
      "SELECT * FROM Cidades WHERE nome >= 'ca' COLLATE NOCASE AND nome < 'cb' COLLATE NOCASE");
}

void SchemaTest::lookups() {
  QFETCH(const QByteArray, statement);
  const PlainRows plan = plain_->query("EXPLAIN QUERY PLAN " + statement);
  QVERIFY(!plan.rows.isEmpty());
  for (const QStringList& row : plan.rows) {
    QVERIFY2(row.last().startsWith("SEARCH"), qPrintable(row.last()));
  }
}

}  // namespace quartela::test

using quartela::test::SchemaTest;
QUARTELA_TEST_MAIN(SchemaTest)
#include "Schema_test.moc"
