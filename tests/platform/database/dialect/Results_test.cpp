// What the engine counts with the rendered texts: amounts, dates, nulls and texts come out right.
#include "platform/database/dialect/Dialect.h"
#include "tests/platform/database/dialect/SampleEngine.h"
#include "tests/platform/database/dialect/Translated.h"
#include "tests/support/TestMain.h"

using namespace quartela;

class DialectResultsTest : public QObject {
  Q_OBJECT

 private:
  Catalogue catalogue_ = test::sampleCatalogue();
  test::SampleEngine engine_;

  QString rows(const QString& statement) {
    return engine_.rows(test::translate(statement, catalogue_).sql);
  }

 private slots:
  void initTestCase() {
    engine_.run(
        "INSERT INTO Requisicao (SEQ, DATA, VALOR, FICHA, ORGAO) VALUES "
        "(114, '2014-01-31 00:00:00', 12345678, 'a', 1), (214, '2014-02-28 12:00:00', 5, 'B', 2), "
        "(314, NULL, NULL, NULL, NULL);"
        "INSERT INTO Adiantamento (EMPENHO, PROCESSO, RETIRADA, FECHAMENTO, ANULADO) VALUES "
        "(1, 114, '2014-02-20 00:00:00', '2014-03-05 00:00:00', 1), "
        "(2, 214, '2014-02-20 00:00:00', NULL, 0);"
        "INSERT INTO Medidas (PARTE, NR, VALOR, LIMITE) VALUES (1, 1, 0.1, 1000), (1, 2, 2.5, "
        "-15000);"
        "INSERT INTO Cidades VALUES (1, 'Bauru', 'SP', 330.0), (2, 'BAURU', 'sp', 1.5), "
        "(3, 'Avaré', 'SP', NULL);");
  }

  void counts_data() {
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* statement, const char* expected) {
      QTest::newRow(statement) << QString::fromUtf8(statement) << QString::fromUtf8(expected);
    };
    // Amounts, in ten-thousandths.
    row("SELECT Sum(VALOR), Max(VALOR), Min(VALOR), Count(VALOR), Count(*) FROM Requisicao",
        "12345683|12345678|5|2|3");
    row("SELECT VALOR * 2 AS X FROM Requisicao WHERE SEQ = 114 GROUP BY VALOR", "24691356");
    row("SELECT Max(VALOR * 1.5) FROM Requisicao", "18518517");
    row("SELECT Max(VALOR / 3) FROM Requisicao", "4115226");
    row("SELECT Max(VALOR + 1.25) FROM Requisicao", "12358178");
    row("SELECT Max(VALOR - 0.00004), Max(VALOR - 0.00006) FROM Requisicao", "12345678|12345677");
    row("SELECT Max(LIMITE * LIMITE), Max(LIMITE / LIMITE) FROM Medidas", "22500|1.0");
    row("SELECT Count(*) FROM Medidas WHERE LIMITE = VALOR", "1");
    row("SELECT Count(*) FROM Medidas WHERE LIMITE = 0.1", "1");
    row("SELECT Count(*) FROM Medidas WHERE LIMITE < 0.10004 And LIMITE > -1.50001", "2");
    row("SELECT Count(*) FROM Requisicao WHERE VALOR > 1234.5677 And VALOR < 1234.5679", "1");
    row("SELECT Sum(LIMITE + VALOR) FROM Medidas", "12000");
    row("SELECT Max(1 / 2), Max(7 \\ 2), Max(7 Mod 4), Max(-7 Mod 4) FROM Medidas", "0.5|3|3|-3");
    // Whole division takes fractions as every other conversion does: half to even.
    row("SELECT 5 Mod 2.5, 7 Mod 3.5, -7 Mod 2.5, 9 \\ 2.5, 9 \\ 3.5, 0.5 \\ 1, 1.5 \\ 1",
        "1|3|-1|4|2|0|2");
    row("SELECT Max(LIMITE * 25 Mod 5) FROM Medidas WHERE LIMITE = 0.1", "2");
    // A division by zero is an error in whatever place; a null is none.
    row("SELECT 5 / 0", "division by zero");
    row("SELECT 5 \\ 0", "division by zero");
    row("SELECT 5 Mod 0.5", "division by zero");
    row("SELECT VALOR / 0 FROM Requisicao", "division by zero");
    row("SELECT Max(VALOR / (SEQ - SEQ)) FROM Requisicao", "division by zero");
    row("SELECT Count(*) FROM Requisicao WHERE SEQ / (ORGAO - ORGAO) > 1", "division by zero");
    row("SELECT 5 / Null, Null \\ 2", "null|null");
    row("SELECT 5 \\ 3000000000", "overflow");
    // The calendar has two ends.
    row("SELECT #9999/12/31 23:59:58# + 0.00001, #0100/01/01# - 0",
        "9999-12-31 23:59:59|0100-01-01 00:00:00");
    row("SELECT #9999/12/31# + 1", "overflow");
    row("SELECT #0100/01/01# - 0.00001", "overflow");
    row("SELECT Count(*) FROM Requisicao WHERE DATA + 3000000 > Now()", "overflow");
    row("SELECT Count(*) FROM Requisicao WHERE DATA - 700000 > Now()", "overflow");
    row("SELECT Now() + 1000000000000000000000000", "overflow");
    row("SELECT #1969/12/31 23:59:59# - 0.5, #1500/03/01# - 1",
        "1969-12-31 11:59:59|1500-02-28 00:00:00");
    // Dates.
    row("SELECT FECHAMENTO - RETIRADA AS X, Count(*) FROM Adiantamento GROUP BY FECHAMENTO - "
        "RETIRADA",
        "null|1;13.0|1");
    row("SELECT Max(DATA + 1), Max(DATA - 0.5), Max(1 + DATA) FROM Requisicao",
        "2014-03-01 12:00:00|2014-02-28 00:00:00|2014-03-01 12:00:00");
    row("SELECT Max(DATA) - Min(DATA) FROM Requisicao", "28.5");
    row("SELECT Max(DATA + LIMITE) FROM Requisicao, Medidas", "2014-02-28 14:24:00");
    row("SELECT Max(Year(DATA)) FROM Requisicao", "2014");
    row("SELECT Max(Now()), Max(Now() + 6) FROM Medidas",
        "2014-11-21 10:30:00|2014-11-27 10:30:00");
    row("SELECT Count(*) FROM Requisicao WHERE DATA Between #2014/01/31# And #2014/02/28#", "1");
    row("SELECT Count(*) FROM Requisicao WHERE DATA <= #2014/02/28 12:00#", "2");
    row("SELECT Count(*) FROM Requisicao WHERE Year(DATA) = Year(Now())", "2");
    // Bools: true is -1 where it is counted.
    row("SELECT Sum(ANULADO), Sum(ANULADO + 1) FROM Adiantamento", "-1|1");
    row("SELECT Count(*) FROM Adiantamento WHERE ANULADO", "1");
    row("SELECT Count(*) FROM Adiantamento WHERE ANULADO = No", "1");
    row("SELECT Count(*) FROM Adiantamento WHERE ANULADO <> 0", "1");
    row("SELECT Count(*) FROM Adiantamento WHERE ANULADO = -1 Or ANULADO = 1", "1");
    // Nulls.
    row("SELECT Count(*) FROM Requisicao WHERE VALOR = Null Or Not (VALOR <> 0)", "0");
    row("SELECT Max(FICHA + 'x'), Max('<' & FICHA & '>') FROM Requisicao WHERE SEQ = 314",
        "null|<>");
    // Values joined to texts look as on the screen.
    row("SELECT Max(VALOR & ''), Max(DATA & ''), Max(SEQ & '') FROM Requisicao WHERE SEQ = 114",
        "1234,5678|31/01/2014|114");
    row("SELECT Max(DATA & ''), Max(VALOR & '') FROM Requisicao WHERE SEQ = 214",
        "28/02/2014 12:00:00|0,0005");
    row("SELECT Max(2 & ''), Max(2.50 & ''), Max(Null & ''), Max(True & '') FROM Medidas",
        "2|2,5||Verdadeiro");
    // Texts without regard to case; amounts by the digits that are shown.
    row("SELECT Count(*) FROM Cidades WHERE nome = 'bauru'", "2");
    row("SELECT Count(*) FROM Cidades WHERE uf In ('Sp', 'MG')", "3");
    row("SELECT Count(*) FROM Cidades WHERE nome Between 'BARRA' And 'BEBEDOURO'", "2");
    row("SELECT uf, Count(*) FROM Cidades GROUP BY uf HAVING Count(*) > 1", "SP|3");
    row("SELECT DISTINCT uf FROM Cidades", "SP");
    row("SELECT Max(nome) FROM Cidades WHERE nome Like 'a%'", "Avaré");
    row("SELECT Count(*) FROM Requisicao WHERE VALOR Like '1234,%'", "1");
    row("SELECT Count(*) FROM Requisicao WHERE SEQ Like '%14'", "3");
  }
  void counts() {
    QFETCH(QString, statement);
    QFETCH(QString, expected);
    QCOMPARE(rows(statement), expected);
  }
};

QUARTELA_TEST_MAIN(DialectResultsTest)
#include "Results_test.moc"
