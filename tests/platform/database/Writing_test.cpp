#include "platform/values/Convert.h"
#include "tests/platform/database/SmallDatabase.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;

Q_DECLARE_METATYPE(quartela::LockType)

class Writing : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void addsARow_data();
  void addsARow();
  void changesARow_data();
  void changesARow();
  void storedForms();
  void generatedKey();
  void defaultsOfTheFile();
  void bareNameReadsNoRows();
  void whatIsSetIsShownBeforeTheUpdate();
  void cancelForgets();
  void closeForgets();
  void onlySetColumnsAreWritten();
  void changedKey();
  void keyOutsideTheResult();
  void keyOfTwoColumns();
  void aliasAndDoubleColumn();
  void computedColumn();
  void readOnlySources_data();
  void readOnlySources();
  void refusals_data();
  void refusals();
  void refusalKeepsTheRowBegun();
  void requiredColumnsAreNamed_data();
  void requiredColumnsAreNamed();
  void conversions_data();
  void conversions();
  void withoutCurrentRow();
  void nothingIsLostByMoving();
  void deletedMeanwhile_data();
  void deletedMeanwhile();
  void executeCountsDirectRows();
  void executeRefusals_data();
  void executeRefusals();
  void dependantsAreNamed();
  void transactions();
  void rowsInsideATransaction();
  void transactionMistakes();
  void accentsAreComposed();
  void hostileTexts();

 private:
  void open(const QString& source, LockType lock = LockType::Pessimistic) {
    rows_.close();
    rows_.open(source, *connection_, CursorType::Static, lock);
  }
  QString ask(const char* sql) const { return database_->ask(sql); }

  std::unique_ptr<SmallDatabase> database_;
  std::unique_ptr<Connection> connection_;
  Recordset rows_;
};

namespace {

void lockTypes() {
  QTest::addColumn<LockType>("lock");
  QTest::newRow("pessimistic") << LockType::Pessimistic;
  QTest::newRow("optimistic") << LockType::Optimistic;
}

const QString kByKey = QStringLiteral("SELECT * FROM Requisicao WHERE SEQ = 114");

}  // namespace

void Writing::init() {
  database_ = std::make_unique<SmallDatabase>();
  connection_ = std::make_unique<Connection>();
  database_->open(*connection_);
}

void Writing::cleanup() {
  rows_.close();
  connection_.reset();
  database_.reset();
}

void Writing::addsARow_data() {
  lockTypes();
}

void Writing::addsARow() {
  QFETCH(LockType, lock);
  open(QStringLiteral("SELECT * FROM Requisicao ORDER BY SEQ"), lock);
  rows_.addNew();
  rows_.setField(u"SEQ", 414);
  rows_.setField(u"VALOR", Money::fromReais(3));
  QCOMPARE(rows_.recordCount(), 3);
  rows_.update();
  QCOMPARE(rows_.recordCount(), 4);
  QVERIFY(!rows_.eof() && !rows_.bof());
  QCOMPARE(rows_.field(u"SEQ"), Value(414));
  QCOMPARE(rows_.field(u"VALOR"), Value(Money::fromReais(3)));
  QVERIFY(rows_.field(u"DATA").isNull());
  QCOMPARE(ask("SELECT VALOR FROM Requisicao WHERE SEQ = 414"), QStringLiteral("30000"));
  rows_.movePrevious();
  QCOMPARE(rows_.field(u"SEQ"), Value(314));
  // The new row can be changed like any other.
  rows_.moveLast();
  rows_.setField(u"VALOR", Money::fromReais(4));
  rows_.update();
  QCOMPARE(ask("SELECT VALOR FROM Requisicao WHERE SEQ = 414"), QStringLiteral("40000"));
  QCOMPARE(rows_.recordCount(), 4);
}

void Writing::changesARow_data() {
  lockTypes();
}

void Writing::changesARow() {
  QFETCH(LockType, lock);
  open(kByKey, lock);
  rows_.setField(4, QStringLiteral("Reforma da praça"));
  rows_.setField(u"valor", Value());
  rows_.update();
  QCOMPARE(rows_.recordCount(), 1);
  QCOMPARE(rows_.field(4), Value(QStringLiteral("Reforma da praça")));
  QVERIFY(rows_.field(u"VALOR").isNull());
  QCOMPARE(rows_.field(u"SEQ"), Value(114));
  QCOMPARE(ask("SELECT JUSTIFICATIVA || ifnull(VALOR, '-') FROM Requisicao WHERE SEQ = 114"),
           QStringLiteral("Reforma da praça-"));
  QCOMPARE(ask("SELECT count(*) FROM Requisicao WHERE JUSTIFICATIVA LIKE 'Reforma%'"),
           QStringLiteral("1"));
}

void Writing::storedForms() {
  open(kByKey);
  rows_.setField(u"DATA", DateTime::of(2015, 3, 9, 7, 5, 1));
  rows_.setField(u"VALOR", Money::fromUnits(12'345'678));
  rows_.setField(u"ORGAO", std::int16_t{3});
  rows_.setField(u"DISTANCIA", 0.1);
  rows_.update();
  QCOMPARE(ask("SELECT DATA || '|' || VALOR || '|' || typeof(VALOR) || '|' || ORGAO || '|' ||"
               " DISTANCIA FROM Requisicao WHERE SEQ = 114"),
           QStringLiteral("2015-03-09 07:05:01|12345678|integer|3|0.1"));
  open(QStringLiteral("SELECT * FROM Orgao WHERE IDORGAO = 1"));
  rows_.setField(u"ATIVO", false);
  rows_.update();
  QCOMPARE(ask("SELECT typeof(ATIVO) || ATIVO FROM Orgao WHERE IDORGAO = 1"),
           QStringLiteral("integer0"));
}

void Writing::generatedKey() {
  open(QStringLiteral("PrestContas"));
  rows_.addNew();
  rows_.setField(u"HISTORICO", QStringLiteral("Táxi"));
  rows_.update();
  QCOMPARE(rows_.field(u"SEQ"), Value(4));
  Recordset identity;
  identity.open(QStringLiteral("SELECT @@IDENTITY"), *connection_);
  QCOMPARE(identity.recordCount(), 1);
  QCOMPARE(Convert::toI32(identity.field(0)), 4);
  // Another connection's rows do not count.
  Connection other;
  database_->open(other);
  Recordset others;
  others.open(QStringLiteral("PrestContas"), other, CursorType::Static, LockType::Pessimistic);
  others.addNew();
  others.setField(u"SEQ", Value());
  others.update();
  QCOMPARE(others.field(u"SEQ"), Value(5));
  identity.close();
  identity.open(QStringLiteral("SELECT @@IDENTITY"), *connection_);
  QCOMPARE(Convert::toI32(identity.field(0)), 4);
}

void Writing::defaultsOfTheFile() {
  open(QStringLiteral("Orgao"));
  rows_.addNew();
  rows_.setField(u"ORGAO", QStringLiteral("Turismo"));
  rows_.update();
  QCOMPARE(rows_.field(u"ATIVO"), Value(false));
}

void Writing::bareNameReadsNoRows() {
  for (const char* name : {"Requisicao", " [requisicao] "}) {
    open(QLatin1String(name));
    QCOMPARE(rows_.recordCount(), 0);
    QVERIFY(rows_.eof() && rows_.bof());
    QCOMPARE(rows_.fieldCount(), 6);
  }
  rows_.addNew();
  rows_.setField(0, 999);
  rows_.update();
  QCOMPARE(rows_.recordCount(), 1);
  open(QStringLiteral("Requisicao"), LockType::Optimistic);
  QCOMPARE(rows_.recordCount(), 4);
  open(QStringLiteral("Sel_Req"));
  QCOMPARE(rows_.recordCount(), 3);
}

void Writing::whatIsSetIsShownBeforeTheUpdate() {
  open(kByKey);
  rows_.setField(u"VALOR", Money::fromReais(1));
  QCOMPARE(rows_.field(u"VALOR"), Value(Money::fromReais(1)));
  QCOMPARE(rows_.field(u"JUSTIFICATIVA"), Value(QStringLiteral("Café d'água")));
  rows_.cancelUpdate();
  rows_.addNew();
  QVERIFY(rows_.field(u"VALOR").isNull());
  QVERIFY(!rows_.eof() && !rows_.bof());
  rows_.setField(u"VALOR", Money::fromReais(2));
  QCOMPARE(rows_.field(u"VALOR"), Value(Money::fromReais(2)));
}

void Writing::cancelForgets() {
  open(kByKey);
  rows_.setField(u"JUSTIFICATIVA", QStringLiteral("x"));
  rows_.cancelUpdate();
  QCOMPARE(rows_.field(u"JUSTIFICATIVA"), Value(QStringLiteral("Café d'água")));
  rows_.update();
  rows_.cancelUpdate();
  rows_.addNew();
  rows_.setField(u"SEQ", 999);
  rows_.cancelUpdate();
  QCOMPARE(rows_.field(u"SEQ"), Value(114));
  QCOMPARE(ask("SELECT count(*) FROM Requisicao"), QStringLiteral("3"));
}

void Writing::closeForgets() {
  open(kByKey);
  rows_.setField(u"JUSTIFICATIVA", QStringLiteral("x"));
  rows_.close();
  QCOMPARE(rows_.state(), Recordset::Closed);
  QCOMPARE(ask("SELECT JUSTIFICATIVA FROM Requisicao WHERE SEQ = 114"),
           QStringLiteral("Café d'água"));
  database_->run("BEGIN IMMEDIATE; COMMIT");
}

// What another program has written into other columns meanwhile stays.
void Writing::onlySetColumnsAreWritten() {
  open(kByKey, LockType::Optimistic);
  database_->run("UPDATE Requisicao SET VALOR = 77 WHERE SEQ = 114");
  rows_.setField(u"JUSTIFICATIVA", QStringLiteral("x"));
  rows_.update();
  QCOMPARE(ask("SELECT VALOR FROM Requisicao WHERE SEQ = 114"), QStringLiteral("77"));
  QCOMPARE(rows_.field(u"VALOR"), Value(Money::fromUnits(77)));
}

void Writing::changedKey() {
  open(QStringLiteral("SELECT * FROM Requisicao WHERE SEQ = 314"));
  rows_.setField(u"SEQ", 514);
  rows_.update();
  QCOMPARE(rows_.field(u"SEQ"), Value(514));
  rows_.setField(u"JUSTIFICATIVA", QStringLiteral("depois"));
  rows_.update();
  QCOMPARE(ask("SELECT JUSTIFICATIVA FROM Requisicao WHERE SEQ = 514"), QStringLiteral("depois"));
  QCOMPARE(ask("SELECT count(*) FROM Requisicao"), QStringLiteral("3"));
}

void Writing::keyOutsideTheResult() {
  open(QStringLiteral("SELECT JUSTIFICATIVA FROM Requisicao WHERE SEQ = 214"));
  QCOMPARE(rows_.fieldCount(), 1);
  rows_.setField(0, QStringLiteral("sem chave"));
  rows_.update();
  QCOMPARE(ask("SELECT group_concat(SEQ) FROM Requisicao WHERE JUSTIFICATIVA = 'sem chave'"),
           QStringLiteral("214"));
}

void Writing::keyOfTwoColumns() {
  open(QStringLiteral("SELECT VALOR, UF FROM Tarifa WHERE ANO = 2013"));
  rows_.setField(0, Money::fromUnits(333));
  rows_.update();
  QCOMPARE(ask("SELECT group_concat(VALOR) FROM (SELECT VALOR FROM Tarifa ORDER BY VALOR)"),
           QStringLiteral("100,200,333"));
  rows_.addNew();
  rows_.setField(1, QStringLiteral("RJ"));
  QCOMPARE(errorOf([&] { rows_.update(); }), 3314);
}

void Writing::aliasAndDoubleColumn() {
  open(QStringLiteral("SELECT SEQ, VALOR AS A, VALOR AS B FROM Requisicao WHERE SEQ = 114"));
  rows_.setField(u"B", Money::fromReais(1));
  QCOMPARE(rows_.field(u"A"), Value(Money::fromReais(1)));
  rows_.setField(u"A", Money::fromReais(2));
  QCOMPARE(rows_.field(u"B"), Value(Money::fromReais(2)));
  rows_.update();
  QCOMPARE(rows_.field(u"B"), Value(Money::fromReais(2)));
  QCOMPARE(ask("SELECT VALOR FROM Requisicao WHERE SEQ = 114"), QStringLiteral("20000"));
}

void Writing::computedColumn() {
  open(QStringLiteral("SELECT SEQ, SEQ + 1 AS MAIS, VALOR FROM Requisicao WHERE SEQ = 114"));
  QCOMPARE(errorOf([&] { rows_.setField(u"MAIS", 1); }), 3027);
  const Value computed = rows_.field(u"MAIS");
  rows_.setField(u"VALOR", Money::fromReais(2));
  QCOMPARE(rows_.field(u"MAIS"), computed);
  rows_.update();
  QCOMPARE(rows_.field(u"MAIS"), computed);
  QCOMPARE(rows_.field(u"VALOR"), Value(Money::fromReais(2)));
}

void Writing::readOnlySources_data() {
  QTest::addColumn<QString>("source");
  QTest::addColumn<LockType>("lock");

  QTest::newRow("lock type") << "SELECT * FROM Requisicao" << LockType::ReadOnly;
  QTest::newRow("join") << "Sel_Req" << LockType::Pessimistic;
  QTest::newRow("group") << "SELECT ORGAO, Sum(VALOR) AS T FROM Requisicao GROUP BY ORGAO"
                         << LockType::Optimistic;
  QTest::newRow("distinct") << "SELECT DISTINCT ORGAO FROM Requisicao" << LockType::Pessimistic;
  QTest::newRow("identity") << "SELECT @@IDENTITY" << LockType::Pessimistic;
  QTest::newRow("table without key") << "SELECT TEXTO FROM Recado" << LockType::Pessimistic;
}

void Writing::readOnlySources() {
  QFETCH(QString, source);
  QFETCH(LockType, lock);
  database_->run("INSERT INTO Recado VALUES ('x')");
  open(source, lock);
  QCOMPARE(errorOf([&] { rows_.addNew(); }), 3027);
  QCOMPARE(errorOf([&] { rows_.setField(0, 1); }), 3027);
  rows_.update();
  database_->run("BEGIN IMMEDIATE; COMMIT");
}

void Writing::refusals_data() {
  QTest::addColumn<QString>("table");
  QTest::addColumn<QString>("column");
  QTest::addColumn<int>("value");
  QTest::addColumn<int>("key");
  QTest::addColumn<int>("number");
  QTest::addColumn<QString>("words");

  QTest::newRow("key exists") << "Requisicao"
                              << "VALOR" << 1 << 114 << 3022
                              << "Já existe um registro com este número. "
                                 "[campo SEQ da tabela Requisicao]";
  QTest::newRow("parent missing")
      << "Requisicao"
      << "ORGAO" << 99 << 999 << 3201
      << "O registro não pode ser gravado porque um cadastro a que ele se liga não existe. "
         "[campo ORGAO da tabela Requisicao, que não está na tabela Orgao]";
  QTest::newRow("refused value") << "Requisicao"
                                 << "VALOR" << -1 << 999 << 3317
                                 << "O valor não é aceito por este campo. "
                                    "[campo VALOR da tabela Requisicao]";
  QTest::newRow("key of two exists") << "Tarifa"
                                     << "UF" << 0 << 2014 << 3022
                                     << "Já existe um registro com este número. "
                                        "[campos ANO, UF da tabela Tarifa]";
}

void Writing::refusals() {
  QFETCH(QString, table);
  QFETCH(QString, column);
  QFETCH(int, value);
  QFETCH(int, key);
  QFETCH(int, number);
  QFETCH(QString, words);
  open(table);
  rows_.addNew();
  rows_.setField(0, key);
  rows_.setField(column,
                 column == QLatin1String("UF") ? Value(QStringLiteral("SP")) : Value(value));
  QCOMPARE(errorOf([&] { rows_.update(); }), number);
  QCOMPARE(wordsOf([&] { rows_.update(); }), words);
  rows_.cancelUpdate();
  QCOMPARE(rows_.recordCount(), 0);
}

void Writing::refusalKeepsTheRowBegun() {
  open(QStringLiteral("Requisicao"));
  rows_.addNew();
  rows_.setField(u"SEQ", 114);
  rows_.setField(u"JUSTIFICATIVA", QStringLiteral("guardado"));
  QCOMPARE(errorOf([&] { rows_.update(); }), 3022);
  QCOMPARE(rows_.field(u"JUSTIFICATIVA"), Value(QStringLiteral("guardado")));
  rows_.setField(u"SEQ", 115);
  rows_.update();
  QCOMPARE(rows_.recordCount(), 1);
  QCOMPARE(ask("SELECT JUSTIFICATIVA FROM Requisicao WHERE SEQ = 115"), QStringLiteral("guardado"));
}

void Writing::requiredColumnsAreNamed_data() {
  QTest::addColumn<QString>("source");
  QTest::addColumn<bool>("adding");
  QTest::addColumn<bool>("setNull");
  QTest::addColumn<QString>("column");

  QTest::newRow("key not set") << "Requisicao" << true << false << "SEQ";
  QTest::newRow("key set to null") << "Requisicao" << true << true << "SEQ";
  QTest::newRow("text not set") << "Orgao" << true << false << "ORGAO";
  QTest::newRow("text set to null") << "Orgao" << true << true << "ORGAO";
  QTest::newRow("change to null") << "SELECT * FROM Orgao" << false << true << "ORGAO";
  QTest::newRow("key changed to null") << "SELECT * FROM Requisicao" << false << true << "SEQ";
  QTest::newRow("generated key to null") << "SELECT * FROM Orgao" << false << true << "IDORGAO";
}

void Writing::requiredColumnsAreNamed() {
  QFETCH(QString, source);
  QFETCH(bool, adding);
  QFETCH(bool, setNull);
  QFETCH(QString, column);
  open(source);
  if (adding) {
    rows_.addNew();
  }
  if (setNull) {
    rows_.setField(column, Value());
  }
  const QString said = wordsOf([&] { rows_.update(); });
  const QString table = source.section(QLatin1Char(' '), -1);
  QCOMPARE(said, QStringLiteral("Um campo obrigatório não foi preenchido. [campo %1 da tabela %2]")
                     .arg(column, table));
  QCOMPARE(errorOf([&] { rows_.update(); }), 3314);
}

void Writing::conversions_data() {
  QTest::addColumn<QString>("column");
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("number");
  QTest::addColumn<QString>("stored");

  QTest::newRow("money") << "VALOR"
                         << "1.234,50" << 0 << "12345000";
  QTest::newRow("date") << "DATA"
                        << "09/03/2015" << 0 << "2015-03-09 00:00:00";
  QTest::newRow("number") << "DISTANCIA"
                          << "1,5" << 0 << "1.5";
  QTest::newRow("bad money") << "VALOR"
                             << "12.50" << 13 << "12345600";
  QTest::newRow("empty money") << "VALOR"
                               << "" << 13 << "12345600";
  QTest::newRow("bad date") << "DATA"
                            << "30/02/2015" << 13 << "2014-01-31 00:00:00";
  QTest::newRow("beyond 16 bits") << "ORGAO"
                                  << "32768" << 6 << "1";
  QTest::newRow("empty text") << "JUSTIFICATIVA"
                              << "" << 0 << "";
}

void Writing::conversions() {
  QFETCH(QString, column);
  QFETCH(QString, text);
  QFETCH(int, number);
  QFETCH(QString, stored);
  open(kByKey);
  QCOMPARE(errorOf([&] { rows_.setField(column, text); }), number);
  if (number != 0) {
    // Nothing is begun: another program can write.
    database_->run("BEGIN IMMEDIATE; COMMIT");
  }
  rows_.update();
  const QString sql = QStringLiteral("SELECT %1 FROM Requisicao WHERE SEQ = 114").arg(column);
  QCOMPARE(database_->ask(sql.toUtf8()), stored);
}

void Writing::withoutCurrentRow() {
  open(kByKey);
  rows_.moveNext();
  QCOMPARE(errorOf([&] { rows_.setField(u"VALOR", Money()); }), 3021);
  QCOMPARE(errorOf([&] { rows_.update(); }), 3021);
  QCOMPARE(errorOf([&] { rows_.setField(u"NADA", Money()); }), 3265);
  QCOMPARE(errorOf([&] { rows_.setField(17, Money()); }), 3265);
  rows_.cancelUpdate();
  rows_.moveFirst();
  rows_.update();
}

void Writing::nothingIsLostByMoving() {
  open(kByKey);
  rows_.setField(u"JUSTIFICATIVA", QStringLiteral("x"));
  QCOMPARE(errorOf([&] { rows_.moveFirst(); }), 5);
  QCOMPARE(errorOf([&] { rows_.moveLast(); }), 5);
  QCOMPARE(errorOf([&] { rows_.moveNext(); }), 5);
  QCOMPARE(errorOf([&] { rows_.movePrevious(); }), 5);
  QCOMPARE(errorOf([&] { rows_.addNew(); }), 5);
  rows_.update();
  QCOMPARE(ask("SELECT JUSTIFICATIVA FROM Requisicao WHERE SEQ = 114"), QStringLiteral("x"));
}

void Writing::deletedMeanwhile_data() {
  lockTypes();
}

void Writing::deletedMeanwhile() {
  QFETCH(LockType, lock);
  open(QStringLiteral("SELECT * FROM PrestContas WHERE SEQ = 1"), lock);
  database_->run("DELETE FROM PrestContas WHERE SEQ = 1");
  QCOMPARE(errorOf([&] { rows_.setField(u"HISTORICO", QStringLiteral("x")); }), 3167);
  // Nothing is begun and no lock is kept.
  database_->run("BEGIN IMMEDIATE; COMMIT");
  rows_.moveFirst();
  // Deleted between the beginning and the update.
  open(QStringLiteral("SELECT * FROM PrestContas WHERE SEQ = 2"), LockType::Optimistic);
  rows_.setField(u"HISTORICO", QStringLiteral("x"));
  database_->run("DELETE FROM PrestContas WHERE SEQ = 2");
  QCOMPARE(errorOf([&] { rows_.update(); }), 3167);
  QCOMPARE(rows_.recordCount(), 1);
  QCOMPARE(ask("SELECT count(*) FROM PrestContas"), QStringLiteral("1"));
}

void Writing::executeCountsDirectRows() {
  QCOMPARE(connection_->execute(QStringLiteral("DELETE FROM Requisicao WHERE SEQ = 114")), 1);
  QCOMPARE(ask("SELECT count(*) FROM PrestContas"), QStringLiteral("1"));
  QCOMPARE(connection_->execute(QStringLiteral("DELETE FROM Requisicao WHERE SEQ = 114")), 0);
  QCOMPARE(connection_->execute(QStringLiteral("DELETE * FROM Tarifa WHERE UF = 'sp';")), 2);
}

void Writing::executeRefusals_data() {
  QTest::addColumn<QString>("statement");
  QTest::addColumn<int>("number");

  QTest::newRow("dependants") << "DELETE FROM Orgao WHERE IDORGAO = 1" << 3200;
  QTest::newRow("select") << "SELECT * FROM Orgao" << 3065;
  QTest::newRow("table name") << "Orgao" << 3065;
  QTest::newRow("insert") << "INSERT INTO Orgao (ORGAO) VALUES ('x')" << 3065;
  QTest::newRow("drop") << "DROP TABLE Orgao" << 3065;
  QTest::newRow("two statements") << "DELETE FROM PrestContas; DELETE FROM Orgao" << 3075;
  QTest::newRow("unknown table") << "DELETE FROM Nada" << 3078;
  QTest::newRow("stored queries") << "DELETE FROM Consultas" << 3078;
}

void Writing::executeRefusals() {
  QFETCH(QString, statement);
  QFETCH(int, number);
  QCOMPARE(errorOf([&] { connection_->execute(statement); }), number);
  QCOMPARE(ask("SELECT (SELECT count(*) FROM Orgao) || (SELECT count(*) FROM PrestContas)"),
           QStringLiteral("33"));
  database_->run("BEGIN IMMEDIATE; COMMIT");
}

// The table whose rows stay is named, also when it depends on rows that would go along.
void Writing::dependantsAreNamed() {
  const auto words = [this](const char* statement) {
    return wordsOf([&] { connection_->execute(QLatin1String(statement)); });
  };
  const QString refused = QStringLiteral(
      "O registro não pode ser excluído porque outros cadastros dependem dele. "
      "[há registros na tabela %1]");
  QCOMPARE(words("DELETE FROM Orgao WHERE IDORGAO = 1"), refused.arg(QStringLiteral("Requisicao")));
  database_->run(
      "CREATE TABLE Anexo (NOTA INTEGER REFERENCES PrestContas);"
      "INSERT INTO Anexo VALUES (1);");
  QCOMPARE(words("DELETE FROM Requisicao WHERE SEQ = 114 And DATA < Now()"),
           refused.arg(QStringLiteral("Anexo")));
  QCOMPARE(words("DELETE FROM Requisicao WHERE SEQ = 214"), QString());
}

void Writing::transactions() {
  connection_->beginTransaction();
  QVERIFY(connection_->inTransaction());
  QCOMPARE(connection_->execute(QStringLiteral("DELETE FROM PrestContas")), 3);
  QCOMPARE(ask("SELECT count(*) FROM PrestContas"), QStringLiteral("3"));
  connection_->rollback();
  QVERIFY(!connection_->inTransaction());
  QCOMPARE(ask("SELECT count(*) FROM PrestContas"), QStringLiteral("3"));
  connection_->beginTransaction();
  connection_->execute(QStringLiteral("DELETE FROM PrestContas"));
  // A refused statement undoes nothing but itself.
  QCOMPARE(errorOf([&] { connection_->execute(QStringLiteral("DELETE FROM Orgao")); }), 3200);
  connection_->commit();
  QVERIFY(!connection_->inTransaction());
  QCOMPARE(ask("SELECT count(*) FROM PrestContas"), QStringLiteral("0"));
  QCOMPARE(ask("SELECT count(*) FROM Orgao"), QStringLiteral("3"));
}

void Writing::rowsInsideATransaction() {
  connection_->beginTransaction();
  open(QStringLiteral("Requisicao"));
  rows_.addNew();
  rows_.setField(u"SEQ", 114);
  QCOMPARE(errorOf([&] { rows_.update(); }), 3022);
  rows_.setField(u"SEQ", 915);
  rows_.update();
  rows_.addNew();
  rows_.cancelUpdate();
  QVERIFY(connection_->inTransaction());
  QCOMPARE(ask("SELECT count(*) FROM Requisicao"), QStringLiteral("3"));
  connection_->commit();
  QCOMPARE(ask("SELECT count(*) FROM Requisicao"), QStringLiteral("4"));

  connection_->beginTransaction();
  rows_.addNew();
  rows_.setField(u"SEQ", 916);
  rows_.update();
  connection_->rollback();
  QCOMPARE(ask("SELECT count(*) FROM Requisicao"), QStringLiteral("4"));
}

void Writing::transactionMistakes() {
  QCOMPARE(errorOf([&] { connection_->commit(); }), 5);
  connection_->rollback();
  connection_->beginTransaction();
  QCOMPARE(errorOf([&] { connection_->beginTransaction(); }), 5);
  QVERIFY(connection_->inTransaction());
  connection_->rollback();
}

// A letter with its accent typed behind it is kept, found and ordered as the composed letter.
void Writing::accentsAreComposed() {
  const QString apart = QStringLiteral("AC\u0327A\u0303O E\u0301 x\u0301");
  open(QStringLiteral("Orgao"));
  rows_.addNew();
  rows_.setField(u"ORGAO", apart);
  QCOMPARE(rows_.field(u"ORGAO"), Value(QStringLiteral("AÇÃO É x\u0301")));
  rows_.update();
  QCOMPARE(ask("SELECT ORGAO FROM Orgao WHERE IDORGAO = 4"), QStringLiteral("AÇÃO É x\u0301"));
  QCOMPARE(connection_->execute("DELETE FROM Orgao WHERE ORGAO = '" + apart.toLower() + "'"), 1);
  // Another program has written it.
  database_->run("INSERT INTO Orgao (ORGAO) VALUES ('" + apart.toUtf8() + "')");
  for (const char* condition :
       {"ORGAO = 'ação é x\u0301'", "ORGAO Like 'AÇÃO É%'",
        "ORGAO Like '%C\u0327a\u0303O e\u0301%'", "ORGAO In ('x', 'AÇÃO É x\u0301')"}) {
    rows_.close();
    rows_.open(QStringLiteral("SELECT ORGAO FROM Orgao WHERE ") + QString::fromUtf8(condition),
               *connection_);
    QVERIFY2(rows_.recordCount() == 1, condition);
  }
}

void Writing::hostileTexts() {
  const QString typed = QStringLiteral("Robert'); DROP TABLE Orgao;--\"%_?1");
  open(QStringLiteral("Orgao"));
  rows_.addNew();
  rows_.setField(u"ORGAO", typed);
  rows_.update();
  QCOMPARE(rows_.field(u"ORGAO"), Value(typed));
  QCOMPARE(ask("SELECT ORGAO FROM Orgao WHERE IDORGAO = 4"), typed);
}

QUARTELA_TEST_MAIN(Writing)
#include "Writing_test.moc"
