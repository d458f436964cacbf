// What each feature of the dialect becomes for the engine, and the names and types of the results.
// Every text must be one that the engine takes.
#include "platform/database/dialect/Dialect.h"

#include "platform/values/RuntimeError.h"
#include "tests/platform/database/dialect/SampleEngine.h"
#include "tests/platform/database/dialect/SampleStatements.h"
#include "tests/platform/database/dialect/Translated.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using EngineStatement = test::Translated;

namespace {

const char* nameOf(ValueType type) {
  static constexpr std::array kNames{"null",  "bool",   "i16",  "i32",
                                     "money", "number", "date", "text"};
  return kNames[static_cast<std::size_t>(type)];
}

QString described(const EngineStatement& statement) {
  QStringList columns;
  for (const dialect::ResultColumn& column : statement.columns) {
    columns.append(column.name + QLatin1Char(' ') + QLatin1String(nameOf(column.type)));
  }
  return columns.join(QStringLiteral(", "));
}

int engineColumns(const EngineStatement& statement) {
  return static_cast<int>(statement.columns.size() + statement.keyColumns.size());
}

void row(const char* name, const char* statement, const char* expected) {
  QTest::newRow(name) << QString::fromUtf8(statement) << QString::fromUtf8(expected);
}

}  // namespace

class DialectTest : public QObject {
  Q_OBJECT

 private:
  Catalogue catalogue_ = test::sampleCatalogue();
  test::SampleEngine engine_;

  static void columns() {
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("expected");
  }

  EngineStatement translated(const QString& statement) {
    EngineStatement engine = test::translate(statement, catalogue_);
    const QString refused = engine_.refusal(engine.sql, engineColumns(engine));
    if (!refused.isEmpty()) {
      qWarning("%s: %s", engine.sql.c_str(), qPrintable(refused));
      engine.sql.clear();
    }
    return engine;
  }

  void checkText() {
    QFETCH(QString, statement);
    QFETCH(QString, expected);
    QCOMPARE(QString::fromStdString(translated(statement).sql), expected);
  }

 private slots:
  void programStatements_data() {
    QTest::addColumn<QString>("statement");
    for (const char* statement : test::kSampleStatements) {
      QTest::newRow(statement) << QString::fromUtf8(statement);
    }
  }
  void programStatements() {
    QFETCH(QString, statement);
    const EngineStatement engine = translated(statement);
    const bool deletes = statement.startsWith(QLatin1String("DELETE"));
    QVERIFY(engine.sql.starts_with(deletes ? "DELETE " : "SELECT "));
    QCOMPARE(engine.kind == dialect::StatementKind::Delete, deletes);
    QCOMPARE(engine.columns.empty(), deletes);
    QCOMPARE(engine.parameters.size(), statement.contains(QLatin1String("Now()")) ? 1U : 0U);
  }

  void conditions_data() {
    columns();
    const auto where = [](const char* name, const char* condition, const char* expected) {
      QTest::newRow(name)
          << QStringLiteral("DELETE FROM Medidas WHERE ") + QString::fromUtf8(condition)
          << QStringLiteral("DELETE FROM \"Medidas\" WHERE ") +
                 QString::fromUtf8(expected)
                     .replace(QLatin1String("NR"), QLatin1String(R"("Medidas"."NR")"))
                     .replace(QLatin1String("LIMITE"), QLatin1String(R"("Medidas"."LIMITE")"))
                     .replace(QLatin1String("VALOR"), QLatin1String(R"("Medidas"."VALOR")"))
                     .replace(QLatin1String("ASPAS"),
                              QLatin1String(R"("Medidas"."com ""aspas""")"));
    };
    where("equal", "NR =5", "(NR = 5)");
    where("other names for it", "medidas.nr=5", "(NR = 5)");
    where("brackets", "[Medidas].[nr] = 5", "(NR = 5)");
    where("six comparisons", "NR<1 Or NR<=2 Or NR>3 Or NR>=4 Or NR<>5",
          "((NR < 1) OR (NR <= 2) OR (NR > 3) OR (NR >= 4) OR (NR <> 5))");
    where("And before Or", "NR=1 Or NR=2 And NR=3", "((NR = 1) OR ((NR = 2) AND (NR = 3)))");
    where("Not before And", "Not NR=1 And NR=2", "((NOT (NR = 1)) AND (NR = 2))");
    where("parentheses", "((NR=1 Or NR=2)) And NR=3", "(((NR = 1) OR (NR = 2)) AND (NR = 3))");
    where("null", "NR Is Null And LIMITE IS NOT NULL", "((NR IS NULL) AND (LIMITE IS NOT NULL))");
    where("null in parentheses", "((NR) Is Null)", "(NR IS NULL)");
    where("equal null", "NR = Null", "(NR = NULL)");
    where("between", "NR Between 1 And 2 And NR = 3", "((NR BETWEEN 1 AND 2) AND (NR = 3))");
    where("not between", "NR Not Between 1 And 2", "(NR NOT BETWEEN 1 AND 2)");
    where("list", "NR In (1, 2+3)", "(NR IN (1, (2 + 3)))");
    where("not in list", "NR not in(1)", "(NR NOT IN (1))");
    where("negative number", "NR = -5", "(NR = (-5))");
    where("no comment comes about", "NR = - -5", "(NR = (-(-5)))");
    where("plus sign", "NR = +5", "(NR = 5)");
    where("zeros in front", "NR = 000514", "(NR = 514)");
    where("zero", "NR = 000", "(NR = 0)");
    where("beyond 32 bits", "NR = 2147483648", "(NR = 2147483648.0)");
    where("far beyond", "NR < 99999999999999999999", "(NR < 99999999999999999999.0)");
    where("strength of signs", "NR = 1+2*3-4/2",
          "(NR = (CAST((1 + (2 * 3)) AS REAL) - (4.0 / divisor(2.0))))");
    where("left to right", "NR = 9-3-2", "(NR = ((9 - 3) - 2))");
    where("whole division and rest", "NR = 7\\2 Or NR = 7 Mod 2",
          "((NR = (7 / divisor(2))) OR (NR = (7 % divisor(2))))");
    where("fractions rounded for it", "NR \\ 2.5 = 1", "((NR / divisor(whole(2.5))) = 1)");
    where("amount and decimal", "LIMITE > 100.5", "(LIMITE > 1005000)");
    where("amount and whole", "LIMITE = 3 Or LIMITE = -3.25",
          "((LIMITE = 30000) OR (LIMITE = (-32500)))");
    where("amount and zero", "LIMITE <> 0", "(LIMITE <> 0)");
    where("amount and fine decimal", "LIMITE < 7.12345", "(LIMITE < 71234.5)");
    where("amount and useless zeros", "LIMITE = 7.100000", "(LIMITE = 71000)");
    where("amount and fraction", "LIMITE = .5", "(LIMITE = 5000)");
    where("amounts between", "LIMITE Between 1 And 2.5", "(LIMITE BETWEEN 10000 AND 25000)");
    where("amounts in list", "LIMITE In (1, 2.5)", "(LIMITE IN (10000, 25000))");
    where("amount and sum", "LIMITE = NR + 1", "(LIMITE = ((NR + 1) * 10000))");
    where("amount and real", "LIMITE = VALOR", "((LIMITE / 10000.0) = VALOR)");
    where("real and whole", "VALOR = 5", "(VALOR = 5)");
    where("real and column", "VALOR = NR", "(VALOR = NR)");
    where("text", "[com \"aspas\"] = 'x'", "(ASPAS COLLATE LATIN_NOCASE = 'x')");
    where("text between", "[com \"aspas\"] Between 'a' And 'b'",
          "(ASPAS COLLATE LATIN_NOCASE BETWEEN 'a' AND 'b')");
    where("texts in list", "[com \"aspas\"] In ('a', 'b')",
          "(ASPAS COLLATE LATIN_NOCASE IN ('a', 'b'))");
    where("quotes in text", "[com \"aspas\"] = 'D''água'",
          "(ASPAS COLLATE LATIN_NOCASE = 'D''água')");
    where("other quotes", "[com \"aspas\"] = \"D'água \"\"x\"\"\"",
          "(ASPAS COLLATE LATIN_NOCASE = 'D''água \"x\"')");
    where("Like", "[com \"aspas\"] Like '%d_s%'", "latin_like('%d_s%', ASPAS)");
    where("Not Like", "[com \"aspas\"] Not Like 'x'", "(NOT latin_like('x', ASPAS))");
    where("Like on digits", "NR Like '5%'", "latin_like('5%', CAST(NR AS TEXT))");
    where("Like a number", "[com \"aspas\"] Like 5", "latin_like(CAST(5 AS TEXT), ASPAS)");
    where("number as condition", "NR And True", "(NR AND 1)");
  }
  void conditions() { checkText(); }

  void boolsAndDates_data() {
    columns();
    row("Yes", "DELETE FROM Tomador WHERE ATIVO = Yes",
        R"(DELETE FROM "Tomador" WHERE ("Tomador"."ATIVO" = 1))");
    row("False", "DELETE FROM Tomador WHERE ATIVO <> false",
        R"(DELETE FROM "Tomador" WHERE ("Tomador"."ATIVO" <> 0))");
    row("alone", "DELETE FROM Tomador WHERE Not ATIVO",
        R"(DELETE FROM "Tomador" WHERE (NOT "Tomador"."ATIVO"))");
    row("True is -1", "DELETE FROM Tomador WHERE ATIVO = -1",
        R"(DELETE FROM "Tomador" WHERE ((-"Tomador"."ATIVO") = (-1)))");
    row("date", "DELETE FROM Requisicao WHERE DATA >= #2014/1/31#",
        R"(DELETE FROM "Requisicao" WHERE ("Requisicao"."DATA" >= '2014-01-31 00:00:00'))");
    row("date and time", "DELETE FROM Requisicao WHERE DATA = #2014-01-31 8:05#",
        R"(DELETE FROM "Requisicao" WHERE ("Requisicao"."DATA" = '2014-01-31 08:05:00'))");
    row("dates between", "DELETE FROM Requisicao WHERE DATA Between #2014/01/01# AND #2014/12/31#",
        R"(DELETE FROM "Requisicao" WHERE ("Requisicao"."DATA" BETWEEN '2014-01-01 00:00:00')"
        R"( AND '2014-12-31 00:00:00'))");
    row("now", "DELETE FROM Requisicao WHERE DATA < Now() + 6",
        R"(DELETE FROM "Requisicao" WHERE ("Requisicao"."DATA" < )"
        "moment(unixepoch(?1) + 6 * 86400))");
    row("year", "DELETE FROM Requisicao WHERE Year(DATA) = Year(Now())",
        R"(DELETE FROM "Requisicao" WHERE (CAST(substr("Requisicao"."DATA", 1, 4) AS INTEGER) = )"
        "CAST(substr(?1, 1, 4) AS INTEGER))");
    row("DELETE with a star", "DELETE * FROM Cidades", R"(DELETE FROM "Cidades")");
  }
  void boolsAndDates() { checkText(); }

  void clauses_data() {
    columns();
    row("ordered", "SELECT DISTINCT id, nome FROM Cidades ORDER BY nome DESC, id asc, uf",
        R"(SELECT DISTINCT "Cidades"."id", "Cidades"."nome" COLLATE LATIN_NOCASE FROM "Cidades")"
        R"( ORDER BY "Cidades"."nome" COLLATE LATIN_NOCASE DESC, "Cidades"."id", )"
        R"("Cidades"."uf" COLLATE LATIN_NOCASE)");
    row("by ordinals",
        "SELECT ALL DISTANCIA, Max(id) FROM Cidades GROUP BY distancia ORDER BY 2, 1",
        R"(SELECT "Cidades"."distancia", max("Cidades"."id") FROM "Cidades" GROUP BY )"
        R"("Cidades"."distancia" ORDER BY max("Cidades"."id"), "Cidades"."distancia")");
    row("by alias", "SELECT Max(id) AS uf FROM Cidades ORDER BY UF",
        R"(SELECT max("Cidades"."id") FROM "Cidades" ORDER BY max("Cidades"."id"))");
    row("by what is always the same", "SELECT Max(id) FROM Cidades ORDER BY True, -1, 'x', Now()",
        R"(SELECT max("Cidades"."id") FROM "Cidades")");
    row("top", "SELECT TOP 5 Max(id) FROM Cidades",
        R"(SELECT max("Cidades"."id") FROM "Cidades" LIMIT 5)");
    row("grouped by text", "SELECT uf, Count(*) FROM Cidades GROUP BY uf HAVING Count(*) > 1",
        R"(SELECT "Cidades"."uf", count(*) FROM "Cidades" GROUP BY "Cidades"."uf" )"
        R"(COLLATE LATIN_NOCASE HAVING (count(*) > 1))");
    row("grouped by an expression",
        "SELECT Year(DATA) + 1, Sum(VALOR) FROM Requisicao GROUP BY Year(DATA)",
        R"(SELECT (CAST(substr("Requisicao"."DATA", 1, 4) AS INTEGER) + 1), )"
        R"(sum("Requisicao"."VALOR") FROM "Requisicao" GROUP BY )"
        R"(CAST(substr("Requisicao"."DATA", 1, 4) AS INTEGER))");
    row("without table", "SELECT 1 + 1, 'x'", "SELECT (1 + 1), 'x'");
    row("identity", "SELECT @@IDENTITY;", "SELECT last_insert_rowid()");
  }
  void clauses() { checkText(); }

  void joins_data() {
    columns();
    row("comma", "SELECT Max(id) FROM Cidades, Orgao",
        R"(SELECT max("Cidades"."id") FROM "Cidades" JOIN "Orgao")");
    row("inner joins in any nesting",
        "SELECT 1 FROM Tomador INNER JOIN (Tipos INNER JOIN Requisicao ON Tipos.SEQUENCIA = "
        "Requisicao.FINALIDADE) ON Tomador.ID = Requisicao.TOMADOR",
        R"(SELECT 1 FROM "Tomador" JOIN "Tipos" JOIN "Requisicao" ON ("Tipos"."SEQUENCIA" = )"
        R"("Requisicao"."FINALIDADE") AND ("Tomador"."ID" = "Requisicao"."TOMADOR"))");
    row("left", "SELECT 1 FROM Requisicao LEFT OUTER JOIN Adiantamento ON SEQ = PROCESSO",
        R"(SELECT 1 FROM "Requisicao" LEFT JOIN "Adiantamento" ON ("Requisicao"."SEQ" = )"
        R"("Adiantamento"."PROCESSO"))");
    row("right", "SELECT 1 FROM Requisicao RIGHT JOIN Adiantamento ON SEQ = PROCESSO",
        R"(SELECT 1 FROM "Adiantamento" LEFT JOIN "Requisicao" ON ("Requisicao"."SEQ" = )"
        R"("Adiantamento"."PROCESSO"))");
    row("outer inside inner",
        "SELECT 1 FROM Tipos INNER JOIN (Requisicao LEFT JOIN Adiantamento ON SEQ = PROCESSO) ON "
        "SEQUENCIA = FINALIDADE",
        R"(SELECT 1 FROM "Requisicao" LEFT JOIN "Adiantamento" ON ("Requisicao"."SEQ" = )"
        R"("Adiantamento"."PROCESSO") JOIN "Tipos" ON ("Tipos"."SEQUENCIA" = )"
        R"("Requisicao"."FINALIDADE"))");
    row("inner inside outer",
        "SELECT 1 FROM Tipos LEFT JOIN (Requisicao INNER JOIN Adiantamento ON SEQ = PROCESSO) ON "
        "SEQUENCIA = FINALIDADE",
        R"(SELECT 1 FROM "Tipos" LEFT JOIN ("Requisicao" JOIN "Adiantamento" ON )"
        R"(("Requisicao"."SEQ" = "Adiantamento"."PROCESSO")) ON ("Tipos"."SEQUENCIA" = )"
        R"("Requisicao"."FINALIDADE"))");
    row("two outer ones joined",
        "SELECT 1 FROM (Tipos LEFT JOIN Inciso ON SEQUENCIA = Inciso.TIPO) INNER JOIN (Requisicao "
        "LEFT JOIN Adiantamento ON SEQ = PROCESSO) ON SEQUENCIA = FINALIDADE",
        R"(SELECT 1 FROM "Tipos" LEFT JOIN "Inciso" ON ("Tipos"."SEQUENCIA" = "Inciso"."TIPO") )"
        R"(JOIN ("Requisicao" LEFT JOIN "Adiantamento" ON ("Requisicao"."SEQ" = )"
        R"("Adiantamento"."PROCESSO")) ON ("Tipos"."SEQUENCIA" = "Requisicao"."FINALIDADE"))");
    row("aliases", "SELECT A.ID + B.ID FROM Tomador AS A, Tomador B",
        R"(SELECT ("A"."ID" + "B"."ID") FROM "Tomador" AS "A" JOIN "Tomador" AS "B")");
    row("quotes in an alias", "SELECT Max([a\"b].ID) FROM Tomador AS [a\"b]",
        R"(SELECT max("a""b"."ID") FROM "Tomador" AS "a""b")");
  }
  void joins() { checkText(); }

  void results_data() {
    columns();
    row("all columns", "SELECT * FROM Orgao", "IDORGAO i32, ORGAO text");
    row("bare name", " [orgao] ;", "IDORGAO i32, ORGAO text");
    row("every type", "Adiantamento",
        "EMPENHO i32, PROCESSO i32, ABERTURA date, RETIRADA date, FECHAR_EM date, FECHAMENTO date, "
        "DEVOLUCAO money, DATADEV date, ANULADO bool, OP i32");
    row("as the table writes it", "select orgao.Orgao from ORGAO", "ORGAO text");
    row("alias", "SELECT id AS CHAVE, nome [A B], (id - 1)AS DIAS FROM Cidades",
        "CHAVE i32, A B text, DIAS i32");
    row("alias that is a column", "SELECT Sum(DESPESAS) AS DESPESAS FROM PrestContas",
        "DESPESAS money");
    row("no name", "SELECT id + 1, nome, 2 FROM Cidades", "Expr1000 i32, nome text, Expr1001 i32");
    row("twice", "SELECT Inciso.TIPO, Tipos.TIPO, CATEGORIA FROM Inciso, Tipos",
        "Inciso.TIPO i16, Tipos.TIPO text, CATEGORIA text");
    row("twice under aliases", "SELECT A.ID, B.ID FROM Tomador A, Tomador B", "A.ID i32, B.ID i32");
    row("twice with an alias", "SELECT nome AS id, id FROM Cidades", "id text, Cidades.id i32");
    row("two stars", "SELECT Orgao.*, Finalidade.* FROM Orgao, Finalidade",
        "IDORGAO i32, ORGAO text, ID i32, FINALIDADE text");
    row("accents", "SELECT [veículo] FROM IdentificaTransp", "VEÍCULO text");
    row("identity", "SELECT @@IDENTITY", "Expr1000 i32");
    row("whole numbers",
        "SELECT IDORGAO + 1, IDORGAO * 2, -IDORGAO, 7 / 2, 7 \\ 2, 1.5, 3000000000 "
        "FROM Tipos",
        "Expr1000 i32, Expr1001 i32, Expr1002 i32, Expr1003 number, Expr1004 i32, Expr1005 number, "
        "Expr1006 number");
    row("amounts",
        "SELECT VALOR * 2 AS A, VALOR * 1.5 AS B, VALOR / 3 AS C, VALOR / VALOR AS D, "
        "VALOR + 1 AS E, 1 - VALOR AS F, 1 / VALOR AS G FROM Requisicao",
        "A money, B money, C money, D number, E money, F money, G number");
    row("dates",
        "SELECT DATA + 1 AS A, 1 + DATA AS B, DATA - 0.5 AS C, DATA - DATA AS D, "
        "Year(DATA) AS E, Now() AS F FROM Requisicao",
        "A date, B date, C date, D number, E i16, F date");
    row("texts", "SELECT 'a' & 1 AS A, nome + uf AS B FROM Cidades", "A text, B text");
    row("conditions", "SELECT id = 1 AS A, nome Like 'x' AS B, Not True AS C FROM Cidades",
        "A bool, B bool, C bool");
    row("sums of amounts",
        "SELECT Sum(VALOR) AS A, Max(VALOR) AS B, Min(VALOR) AS C, "
        "Count(VALOR) AS D FROM Requisicao",
        "A money, B money, C money, D i32");
    row("sums of others",
        "SELECT Sum(ORGAO) AS A, Max(ORGAO) AS B, Max(DATA) AS C, Min(FICHA) AS D, "
        "Count(*) AS E FROM Requisicao",
        "A i32, B i16, C date, D text, E i32");
    row("null", "SELECT Null", "Expr1000 null");
  }
  void results() {
    QFETCH(QString, statement);
    QFETCH(QString, expected);
    const EngineStatement engine = translated(statement);
    QCOMPARE(described(engine), expected);
    QVERIFY(!engine.sql.empty());
  }

  void tellsWhereColumnsComeFrom() {
    const EngineStatement engine =
        translated(QStringLiteral("SELECT T.nome AS CIDADE, id + 1, T.uf FROM cidades AS T"));
    QCOMPARE(engine.columns[0].table, QStringLiteral("Cidades"));
    QCOMPARE(engine.columns[0].column, QStringLiteral("nome"));
    QVERIFY(engine.columns[1].table.isEmpty());
    QVERIFY(engine.columns[1].column.isEmpty());
    QCOMPARE(engine.columns[2].column, QStringLiteral("uf"));
  }

  void writableTable_data() {
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("keys");
    const auto row = [](const char* statement, const char* table, const char* keys) {
      QTest::newRow(statement) << QString::fromUtf8(statement) << QString::fromUtf8(table)
                               << QString::fromUtf8(keys);
    };
    row("Requisicao", "Requisicao", "SEQ");
    row("Select * from Viagem WHERE ITEM =3", "Viagem", "ITEM");
    row("SELECT TOP 1 nome FROM Cidades ORDER BY nome", "Cidades", "id");
    row("SELECT DISTINCTROW VALOR FROM Medidas", "Medidas", "PARTE,NR");
    row("Sel_Viagem", "Viagem", "ITEM");
    row("SELECT * FROM Sel_Ativos", "Executor", "ORDEM");
    row("SELECT DISTINCT nome FROM Cidades", "", "");
    row("SELECT Max(id) FROM Cidades", "", "");
    row("SELECT uf FROM Cidades GROUP BY uf", "", "");
    row("SELECT * FROM Tipos, Orgao", "", "");
    row("Sel_Uf", "", "");
    row("SELECT nome FROM Sel_Primeiras", "", "");
    row("SELECT 1", "", "");
    row("DELETE FROM Cidades", "", "");
  }
  void writableTable() {
    QFETCH(QString, statement);
    QFETCH(QString, table);
    QFETCH(QString, keys);
    const EngineStatement engine = translated(statement);
    QVERIFY(!engine.sql.empty());
    QCOMPARE(engine.updatableTable, table);
    QCOMPARE(QStringList(engine.keyColumns.begin(), engine.keyColumns.end()).join(QLatin1Char(',')),
             keys);
  }

  void keysStandBehindTheColumns() {
    QCOMPARE(QString::fromStdString(
                 translated(QStringLiteral("SELECT VALOR FROM Medidas WHERE NR = 1")).sql),
             QStringLiteral(R"(SELECT "Medidas"."VALOR", "Medidas"."PARTE", "Medidas"."NR" )"
                            R"(FROM "Medidas" WHERE ("Medidas"."NR" = 1))"));
  }

  void oneParameterHowOftenItIsNamed() {
    const EngineStatement engine =
        translated(QStringLiteral("SELECT Now(), Now() + 1, Year(Now()) FROM Cidades"));
    QCOMPARE(engine.parameters.size(), 1U);
    QCOMPARE(engine.parameters.front(), sqlite::Parameter::Now);
  }

  // Nesting is refused before the engine would choke on it, and not before it is of use.
  void nesting_data() {
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("useful");
    for (const char* pattern : {"(X)",
                                "-X",
                                "(X + 1)",
                                "(1 + X)",
                                "(X * VALOR)",
                                "(LIMITE * X)",
                                "(LIMITE / X)",
                                "(2 \\ X)",
                                "(X Mod 2)",
                                "(('a' & X) = '')",
                                "((X & 'a') = '')",
                                "(1 = X)",
                                "(X = 1)",
                                "(X And 1)",
                                "(1 Or X)",
                                "(Not X)",
                                "(X Is Null)",
                                "(X In (1))",
                                "(1 In (1, X))",
                                "(X Between 1 And 2)",
                                "(1 Between 2 And X)",
                                "(X Like '1')",
                                "('1' Not Like X)",
                                "(#2014/01/01# - (Now() + X))",
                                "(Now() - X - Now())",
                                "Year(Now() + X)"}) {
      QTest::newRow(pattern) << QString::fromUtf8(pattern) << 3;
    }
    // Several operations a time.
    for (const char* pattern : {"((LIMITE + X) \\ 2)", "((Now() + X) & '' = '')"}) {
      QTest::newRow(pattern) << QString::fromUtf8(pattern) << 2;
    }
    QTest::newRow("text of a product") << QStringLiteral("(LIMITE * X Like '5')") << 1;
  }
  void nesting() {
    QFETCH(QString, pattern);
    QFETCH(int, useful);
    constexpr int kBeyond = 160;
    QString nested = QStringLiteral("NR");
    for (int depth = 1; depth <= kBeyond; ++depth) {
      nested = QString(pattern).replace(QLatin1Char('X'), nested);
      const QString statement =
          QStringLiteral(
              "SELECT O.ORGAO, %1 FROM Orgao AS O LEFT JOIN (Sel_Siglas INNER "
              "JOIN Medidas ON CHAVE = %1) ON O.IDORGAO = CHAVE WHERE NR = 1")
              .arg(nested);
      try {
        QVERIFY2(!translated(statement).sql.empty(), qPrintable(nested));
      } catch (const RuntimeError& error) {
        QCOMPARE(error.number(), 3075);
        QVERIFY2(depth > useful, qPrintable(nested));
        return;
      }
    }
    QCOMPARE(pattern, QStringLiteral("(X)"));
  }

  // What an operator types is put between the quotes as it stands.
  void searchTextChangesNoData_data() {
    QTest::addColumn<QString>("typed");
    for (const char* typed : {"'; DELETE FROM Tomador; --", "' Or '1' = '1", "%' Or NOME1 Like '%",
                              "'", "''", "\"", "\\'", "x';", "' UNION SELECT 1 --", "[x]", "#",
                              "' And (SELECT 1) = '1", "%';DELETE FROM Tomador WHERE '1'='1"}) {
      QTest::newRow(typed) << QString::fromUtf8(typed);
    }
  }
  void searchTextChangesNoData() {
    QFETCH(QString, typed);
    const QString statement =
        QStringLiteral("SELECT * FROM Sel_Req_left  WHERE Tomador.NOME1 LIKE '%") + typed +
        QStringLiteral("%';");
    try {
      const EngineStatement engine = translated(statement);
      QCOMPARE(engine.kind, dialect::StatementKind::Select);
      QVERIFY(engine.sql.starts_with("SELECT "));
    } catch (const RuntimeError& error) {
      QCOMPARE(error.number(), 3075);
    }
  }
};

QUARTELA_TEST_MAIN(DialectTest)
#include "Dialect_test.moc"
