#include "platform/database/ResultRows.h"
#include "platform/values/Clock.h"
#include "tests/platform/database/SmallDatabase.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using namespace quartela::test;

class Reading : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void everyType();
  void sources_data();
  void sources();
  void refusedSources_data();
  void refusedSources();
  void searchTextsChangeNothing_data();
  void searchTextsChangeNothing();
  void movesOverRows();
  void movesOverNone();
  void fieldsByNameAndPosition();
  void cellsOfAnyRow();
  void columnOfTheSameName();
  void closedRecordset();
  void openTwice();
  void staysReadableWithoutItsConnection();
  void movedRecordset();
  void foreignCells_data();
  void foreignCells();
  void computedOverflow();
  void whatCannotBeComputed_data();
  void whatCannotBeComputed();
  void nowIsTheClock();
  void manyRows();
  void wideRows();

 private:
  void select(const QString& source) {
    rows_.close();
    rows_.open(source, *connection_);
  }

  std::unique_ptr<SmallDatabase> database_;
  std::unique_ptr<Connection> connection_;
  Recordset rows_;
};

void Reading::init() {
  database_ = std::make_unique<SmallDatabase>();
  connection_ = std::make_unique<Connection>();
  database_->open(*connection_);
}

void Reading::cleanup() {
  rows_.close();
  connection_.reset();
  database_.reset();
}

void Reading::everyType() {
  select(QStringLiteral("SELECT * FROM Requisicao ORDER BY SEQ"));
  QCOMPARE(rows_.recordCount(), 3);
  QCOMPARE(rows_.field(0), Value(114));
  QCOMPARE(rows_.field(1), Value(DateTime::of(2014, 1, 31)));
  QCOMPARE(rows_.field(2), Value(std::int16_t{1}));
  QCOMPARE(rows_.field(3), Value(Money::fromUnits(12'345'600)));
  QCOMPARE(rows_.field(4), Value(QStringLiteral("Café d'água")));
  QCOMPARE(rows_.field(5), Value(12.5));
  rows_.moveNext();
  QCOMPARE(rows_.field(1), Value(DateTime::of(2014, 2, 28, 13, 45, 10)));
  QCOMPARE(rows_.field(3), Value(Money()));
  QVERIFY(rows_.field(4).isNull());
  QVERIFY(rows_.field(5).isNull());
  rows_.moveNext();
  QVERIFY(rows_.field(1).isNull());
  QVERIFY(rows_.field(3).isNull());
  QCOMPARE(rows_.field(4), Value(QString()));
  QCOMPARE(rows_.field(5), Value(0.0));
  const ValueType types[] = {ValueType::I32,   ValueType::DateTime, ValueType::I16,
                             ValueType::Money, ValueType::Text,     ValueType::Number};
  QCOMPARE(rows_.fieldCount(), 6);
  for (int i = 0; i < 6; ++i) {
    QCOMPARE(rows_.fieldType(i), types[i]);
  }
  select(QStringLiteral("SELECT ATIVO FROM Orgao ORDER BY IDORGAO"));
  QCOMPARE(rows_.field(0), Value(true));
  rows_.moveNext();
  QCOMPARE(rows_.field(0), Value(false));
}

void Reading::sources_data() {
  QTest::addColumn<QString>("source");
  QTest::addColumn<int>("rows");
  QTest::addColumn<int>("fields");

  QTest::newRow("select") << "SELECT SEQ FROM Requisicao WHERE SEQ > 200;" << 2 << 1;
  QTest::newRow("bare table") << "Requisicao" << 3 << 6;
  QTest::newRow("bare table, other case") << " requisicao " << 3 << 6;
  QTest::newRow("bracketed table") << "[Requisicao]" << 3 << 6;
  QTest::newRow("stored query") << "Sel_Req" << 3 << 3;
  QTest::newRow("on a stored query")
      << "SELECT * FROM Sel_Req WHERE Requisicao.SEQ = 114" << 1 << 3;
  QTest::newRow("identity") << "SELECT @@IDENTITY" << 1 << 1;
}

void Reading::sources() {
  QFETCH(QString, source);
  QFETCH(int, rows);
  QFETCH(int, fields);
  select(source);
  QCOMPARE(rows_.recordCount(), rows);
  QCOMPARE(rows_.fieldCount(), fields);
  QVERIFY(!rows_.eof());
}

void Reading::refusedSources_data() {
  QTest::addColumn<QString>("source");
  QTest::addColumn<int>("number");

  QTest::newRow("deletion") << "DELETE FROM Requisicao" << 3065;
  QTest::newRow("insertion") << "INSERT INTO Orgao (ORGAO) VALUES ('x')" << 3065;
  QTest::newRow("change") << "UPDATE Orgao SET ORGAO = 'x'" << 3065;
  QTest::newRow("unknown name") << "SELECT NADA FROM Orgao" << 3061;
  QTest::newRow("unknown table") << "SELECT * FROM Nada" << 3078;
  QTest::newRow("stored queries are no table") << "SELECT * FROM Consultas" << 3078;
  QTest::newRow("the engine's own table") << "SELECT * FROM sqlite_master" << 3078;
  QTest::newRow("apostrophe") << "SELECT * FROM Orgao WHERE ORGAO = 'd'água'" << 3075;
  QTest::newRow("open text") << "SELECT * FROM Orgao WHERE ORGAO Like '%'%'" << 3075;
}

void Reading::refusedSources() {
  QFETCH(QString, source);
  QFETCH(int, number);
  QCOMPARE(errorOf([&] { rows_.open(source, *connection_); }), number);
  QCOMPARE(rows_.state(), Recordset::Closed);
  QCOMPARE(database_->ask("SELECT count(*) FROM Requisicao"), QStringLiteral("3"));
}

void Reading::searchTextsChangeNothing_data() {
  QTest::addColumn<QString>("typed");

  QTest::newRow("drop") << "Robert'); DROP TABLE Orgao;--";
  QTest::newRow("second statement") << "x'; DELETE FROM PrestContas; --";
  QTest::newRow("attached file") << "x'; ATTACH DATABASE 'y.mdb' AS y; SELECT '";
  QTest::newRow("pragma") << "x'; PRAGMA foreign_keys = OFF; --";
}

void Reading::searchTextsChangeNothing() {
  QFETCH(QString, typed);
  const QByteArray dump =
      "SELECT (SELECT count(*) FROM sqlite_schema) || '/' || (SELECT count(*) FROM PrestContas)";
  const QString before = database_->ask(dump);
  const QString condition = QStringLiteral(" WHERE ORGAO Like '%") + typed + QStringLiteral("%'");
  QCOMPARE(errorOf([&] { select(QStringLiteral("SELECT * FROM Orgao") + condition); }), 3075);
  QCOMPARE(errorOf([&] { connection_->execute(QStringLiteral("DELETE FROM Orgao") + condition); }),
           3075);
  QCOMPARE(database_->ask(dump), before);
}

void Reading::movesOverRows() {
  select(QStringLiteral("SELECT SEQ FROM Requisicao ORDER BY SEQ"));
  QVERIFY(!rows_.eof() && !rows_.bof());
  QCOMPARE(rows_.field(0), Value(114));
  rows_.moveLast();
  QCOMPARE(rows_.field(0), Value(314));
  rows_.moveNext();
  QVERIFY(rows_.eof() && !rows_.bof());
  QCOMPARE(errorOf([&] { rows_.field(0); }), 3021);
  QCOMPARE(errorOf([&] { rows_.moveNext(); }), 3021);
  rows_.movePrevious();
  QCOMPARE(rows_.field(0), Value(314));
  rows_.moveFirst();
  rows_.movePrevious();
  QVERIFY(rows_.bof() && !rows_.eof());
  QCOMPARE(errorOf([&] { rows_.field(0); }), 3021);
  QCOMPARE(errorOf([&] { rows_.movePrevious(); }), 3021);
  rows_.moveNext();
  QCOMPARE(rows_.field(0), Value(114));
}

void Reading::movesOverNone() {
  select(QStringLiteral("SELECT SEQ FROM Requisicao WHERE SEQ = 0"));
  QCOMPARE(rows_.recordCount(), 0);
  QVERIFY(rows_.eof() && rows_.bof());
  QCOMPARE(errorOf([&] { rows_.moveFirst(); }), 3021);
  QCOMPARE(errorOf([&] { rows_.moveLast(); }), 3021);
  QCOMPARE(errorOf([&] { rows_.moveNext(); }), 3021);
  QCOMPARE(errorOf([&] { rows_.movePrevious(); }), 3021);
  QCOMPARE(errorOf([&] { rows_.field(0); }), 3021);
  QCOMPARE(errorOf([&] { rows_.update(); }), 3021);
  QCOMPARE(rows_.fieldName(0), QStringLiteral("SEQ"));
}

void Reading::fieldsByNameAndPosition() {
  select(QStringLiteral("SELECT SEQ, JUSTIFICATIVA AS [Texto do ofício] FROM Requisicao"));
  QCOMPARE(rows_.fieldPosition(u"seq"), 0);
  QCOMPARE(rows_.fieldPosition(u"TEXTO DO OFÍCIO"), 1);
  QCOMPARE(rows_.field(u"Seq"), Value(114));
  QCOMPARE(rows_.fieldName(1), QStringLiteral("Texto do ofício"));
  QCOMPARE(errorOf([&] { rows_.field(u"JUSTIFICATIVA"); }), 3265);
  QCOMPARE(errorOf([&] { rows_.fieldPosition(u""); }), 3265);
  QCOMPARE(errorOf([&] { rows_.field(2); }), 3265);
  QCOMPARE(errorOf([&] { rows_.field(-1); }), 3265);
  QCOMPARE(errorOf([&] { rows_.fieldName(2); }), 3265);
  QCOMPARE(errorOf([&] { rows_.fieldType(-1); }), 3265);
}

void Reading::cellsOfAnyRow() {
  select(QStringLiteral("SELECT SEQ, DATA FROM Requisicao ORDER BY SEQ"));
  QCOMPARE(rows_.cell(2, 0), Value(314));
  QCOMPARE(rows_.cell(1, 1), Value(DateTime::of(2014, 2, 28, 13, 45, 10)));
  QVERIFY(rows_.cell(2, 1).isNull());
  QCOMPARE(rows_.field(0), Value(114));
  rows_.moveLast();
  QCOMPARE(rows_.cell(0, 0), Value(114));
  QCOMPARE(errorOf([&] { rows_.cell(3, 0); }), 3021);
  QCOMPARE(errorOf([&] { rows_.cell(-1, 0); }), 3021);
  QCOMPARE(errorOf([&] { rows_.cell(0, 2); }), 3265);
  QCOMPARE(errorOf([] { Recordset().cell(0, 0); }), 3704);
}

void Reading::columnOfTheSameName() {
  select(
      QStringLiteral("SELECT Requisicao.VALOR, Tarifa.VALOR FROM Requisicao INNER JOIN Tarifa "
                     "ON Requisicao.SEQ > Tarifa.ANO - 1900 WHERE Tarifa.UF = 'MG' "
                     "AND Requisicao.SEQ = 214"));
  QCOMPARE(rows_.recordCount(), 1);
  QCOMPARE(rows_.field(u"Requisicao.VALOR"), Value(Money()));
  QCOMPARE(rows_.field(u"tarifa.valor"), Value(Money::fromUnits(200)));
}

void Reading::closedRecordset() {
  Recordset closed;
  QCOMPARE(closed.state(), Recordset::Closed);
  QCOMPARE(errorOf([&] { closed.recordCount(); }), 3704);
  QCOMPARE(errorOf([&] { closed.eof(); }), 3704);
  QCOMPARE(errorOf([&] { closed.bof(); }), 3704);
  QCOMPARE(errorOf([&] { closed.moveFirst(); }), 3704);
  QCOMPARE(errorOf([&] { closed.moveLast(); }), 3704);
  QCOMPARE(errorOf([&] { closed.moveNext(); }), 3704);
  QCOMPARE(errorOf([&] { closed.movePrevious(); }), 3704);
  QCOMPARE(errorOf([&] { closed.fieldCount(); }), 3704);
  QCOMPARE(errorOf([&] { closed.field(0); }), 3704);
  QCOMPARE(errorOf([&] { closed.field(u"SEQ"); }), 3704);
  QCOMPARE(errorOf([&] { closed.addNew(); }), 3704);
  QCOMPARE(errorOf([&] { closed.setField(0, 1); }), 3704);
  QCOMPARE(errorOf([&] { closed.update(); }), 3704);
  QCOMPARE(errorOf([&] { closed.cancelUpdate(); }), 0);
  closed.close();
  QCOMPARE(closed.state(), Recordset::Closed);
}

void Reading::openTwice() {
  select(QStringLiteral("Orgao"));
  QCOMPARE(errorOf([&] { rows_.open(QStringLiteral("Orgao"), *connection_); }), 3705);
  QCOMPARE(rows_.state(), Recordset::Open);
  QCOMPARE(rows_.recordCount(), 3);
}

void Reading::staysReadableWithoutItsConnection() {
  rows_.open(QStringLiteral("SELECT * FROM Orgao"), *connection_, CursorType::Static,
             LockType::Pessimistic);
  rows_.setField(u"ORGAO", QStringLiteral("x"));
  connection_.reset();
  QCOMPARE(errorOf([&] { rows_.update(); }), 3704);
  rows_.cancelUpdate();
  QCOMPARE(rows_.field(u"ORGAO"), Value(QStringLiteral("Saúde")));
  QCOMPARE(errorOf([&] { rows_.setField(u"ORGAO", QStringLiteral("x")); }), 3704);
  rows_.moveLast();
  QCOMPARE(rows_.field(u"ORGAO"), Value(QStringLiteral("Obras")));
  QCOMPARE(database_->ask("SELECT ORGAO FROM Orgao WHERE IDORGAO = 1"), QStringLiteral("Saúde"));
}

void Reading::movedRecordset() {
  select(QStringLiteral("Orgao"));
  Recordset other(std::move(rows_));
  QCOMPARE(other.recordCount(), 3);
  rows_ = std::move(other);
  QCOMPARE(rows_.recordCount(), 3);
}

void Reading::foreignCells_data() {
  QTest::addColumn<QByteArray>("change");
  QTest::addColumn<QString>("column");

  QTest::newRow("text for a date")
      << QByteArray("UPDATE Requisicao SET DATA = 'ontem, de tarde 123'") << "DATA";
  QTest::newRow("no day") << QByteArray("UPDATE Requisicao SET DATA = '2014-02-30 00:00:00'")
                          << "DATA";
  QTest::newRow("number for a date") << QByteArray("UPDATE Requisicao SET DATA = 41670") << "DATA";
  QTest::newRow("beyond 16 bits") << QByteArray("UPDATE Requisicao SET ORGAO = 32768") << "ORGAO";
  QTest::newRow("fraction for money") << QByteArray("UPDATE Requisicao SET VALOR = 1.5") << "VALOR";
  QTest::newRow("text for money") << QByteArray("UPDATE Requisicao SET VALOR = '12,50'") << "VALOR";
  QTest::newRow("bytes for text") << QByteArray("UPDATE Requisicao SET JUSTIFICATIVA = x'00FF'")
                                  << "JUSTIFICATIVA";
  QTest::newRow("text for a number")
      << QByteArray("UPDATE Requisicao SET DISTANCIA = 'longe'") << "DISTANCIA";
  QTest::newRow("beyond 32 bits") << QByteArray("UPDATE PrestContas SET PROCESSO = 3000000000")
                                  << "PROCESSO";
  QTest::newRow("two for a bool") << QByteArray("UPDATE Orgao SET ATIVO = 2") << "ATIVO";
}

void Reading::foreignCells() {
  QFETCH(QByteArray, change);
  QFETCH(QString, column);
  database_->run("PRAGMA ignore_check_constraints = ON; PRAGMA foreign_keys = OFF; " + change);
  const QString table = QString::fromUtf8(change).section(QLatin1Char(' '), 1, 1);
  const auto opening = [&] { rows_.open(table, *connection_); };
  QCOMPARE(errorOf(opening), 13);
  const QString said = wordsOf(opening);
  QVERIFY2(said.contains(QLatin1Char('"') + column + QLatin1Char('"')), qPrintable(said));
  QCOMPARE(rows_.state(), Recordset::Closed);
}

void Reading::computedOverflow() {
  database_->run("UPDATE Requisicao SET VALOR = 9000000000000000000");
  QCOMPARE(errorOf([&] { select(QStringLiteral("SELECT Sum(VALOR) AS S FROM Requisicao")); }), 6);
  database_->run("UPDATE Requisicao SET SEQ = 2147483000 + SEQ / 100");
  const QString sum = QStringLiteral("SELECT SEQ + SEQ AS DOBRO FROM Requisicao");
  QVERIFY2(wordsOf([&] { select(sum); }).contains(QStringLiteral("DOBRO")), "names the column");
  QCOMPARE(errorOf([&] { select(sum); }), 6);
}

void Reading::whatCannotBeComputed_data() {
  QTest::addColumn<QString>("expression");
  QTest::addColumn<int>("number");
  QTest::addColumn<QString>("words");
  const QString zero = QStringLiteral("Divisão por zero.");
  const QString large = QStringLiteral("O número é grande demais para este campo.");
  QTest::newRow("by zero") << "SEQ / 0" << 11 << zero;
  QTest::newRow("whole division by zero") << "SEQ \\ (SEQ - SEQ)" << 11 << zero;
  QTest::newRow("rest of zero") << "SEQ Mod 0.4" << 11 << zero;
  QTest::newRow("amount by zero") << "VALOR / 0" << 11 << zero;
  QTest::newRow("behind the calendar") << "DATA + 3000000" << 6 << large;
  QTest::newRow("before the calendar") << "DATA - 700000" << 6 << large;
}

void Reading::whatCannotBeComputed() {
  QFETCH(QString, expression);
  QFETCH(int, number);
  QFETCH(QString, words);
  for (const char* statement : {"SELECT %1 AS X FROM Requisicao WHERE SEQ = 114",
                                "SELECT SEQ FROM Requisicao WHERE %1 Is Null",
                                "SELECT SEQ FROM Requisicao WHERE SEQ < 300 ORDER BY %1"}) {
    const auto read = [&] { select(QString::fromLatin1(statement).arg(expression)); };
    QCOMPARE(errorOf(read), number);
    QCOMPARE(wordsOf(read), words);
  }
}

void Reading::nowIsTheClock() {
  select(QStringLiteral("SELECT SEQ FROM Requisicao WHERE DATA < Now()"));
  QCOMPARE(rows_.recordCount(), 2);
  Clock::stopAt(DateTime::of(2014, 2, 28, 13, 45, 10));
  select(QStringLiteral("SELECT SEQ FROM Requisicao WHERE DATA < Now()"));
  QCOMPARE(rows_.recordCount(), 1);
  Clock::stopAt(DateTime::of(2014, 11, 21, 10, 30));
}

// Texts on both sides of every length that is stored in another way.
void Reading::manyRows() {
  database_->run(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000)"
      " INSERT INTO Recado SELECT substr(t, 1, i * i % 4001) FROM n,"
      " (SELECT replace(hex(zeroblob(2000)), '0', 'é') AS t)");
  select(QStringLiteral("SELECT TEXTO FROM Recado"));
  QCOMPARE(rows_.recordCount(), 3000);
  for (int i = 1; i <= 3000; ++i, rows_.moveNext()) {
    if (rows_.field(0).text() != QString(i * i % 4001, QChar(u'é'))) {
      QFAIL(qPrintable(QString::number(i)));
    }
  }
  QVERIFY(rows_.eof());
}

// More cells than one mask word, and rows over several chunks.
void Reading::wideRows() {
  constexpr int kColumns = 130;
  constexpr int kRows = 300;
  ResultRows rows(std::vector<ValueType>(kColumns, ValueType::I32));
  for (int row = 0; row < kRows; ++row) {
    rows.addRow();
    for (int column = row % 3; column < kColumns; column += 3) {
      rows.putInteger(column, row * 1000 + column);
    }
  }
  for (int row = 0; row < kRows; ++row) {
    for (int column = 0; column < kColumns; ++column) {
      const Value expected = column % 3 == row % 3 ? Value(row * 1000 + column) : Value();
      QVERIFY(rows.value(row, column) == expected);
    }
  }
  rows.moveLastCell(kColumns - 1, 0);
  QCOMPARE(rows.value(0, kColumns - 1), rows.value(kRows - 1, kColumns - 1));
}

QUARTELA_TEST_MAIN(Reading)
#include "Reading_test.moc"
