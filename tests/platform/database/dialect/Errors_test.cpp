// Every way in which a statement is refused: number, and place or name in the words.
#include "platform/database/dialect/Dialect.h"
#include "platform/values/RuntimeError.h"
#include "tests/platform/database/dialect/SampleCatalogue.h"
#include "tests/platform/database/dialect/Translated.h"
#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

QString repeated(const char* text, int times) {
  return QString::fromUtf8(text).repeated(times);
}

void row(const char* name, const QString& statement, int number, const char* detail) {
  QTest::newRow(name) << statement << number << QString::fromUtf8(detail);
}

void row(const char* name, const char* statement, int number, const char* detail) {
  row(name, QString::fromUtf8(statement), number, detail);
}

}  // namespace

class DialectErrorsTest : public QObject {
  Q_OBJECT

 private:
  Catalogue catalogue_ = test::sampleCatalogue();

  static void columns() {
    QTest::addColumn<QString>("statement");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("detail");
  }

  void check() {
    QFETCH(QString, statement);
    QFETCH(int, number);
    QFETCH(QString, detail);
    try {
      const test::Translated engine = test::translate(statement, catalogue_);
      QFAIL(engine.sql.c_str());
    } catch (const RuntimeError& error) {
      QCOMPARE(error.number(), number);
      QVERIFY2(error.description().contains(detail), qPrintable(error.description()));
    }
  }

 private slots:
  void syntax_data() {
    columns();
    row("empty", "", 3075, "posição 1: falta o comando");
    row("blanks", "  ", 3075, "posição 3: falta o comando");
    row("a sign", "*", 3075, "posição 1: falta o comando");
    row("no columns", "SELECT FROM Cidades", 3075, "posição 8: falta um valor");
    row("no table", "SELECT * FROM", 3075, "posição 14: falta o nome da tabela");
    row("star without table", "SELECT *", 3075, "falta FROM");
    row("star in a sum", "SELECT Sum(Cidades.*) FROM Cidades", 3075, "posição 12: ");
    row("value missing", "Select * from Requisicao WHERE SEQ =", 3075,
        "posição 37: falta um valor");
    row("comma too many", "SELECT id, FROM Cidades", 3075, "posição 12: falta um valor");
    row("no BY", "SELECT id FROM Cidades ORDER nome", 3075, "posição 30: falta BY");
    row("no ON", "SELECT * FROM Tipos INNER JOIN Orgao WHERE 1 = 1", 3075, "posição 38: falta ON");
    row("no JOIN", "SELECT * FROM Tipos LEFT Orgao", 3075, "posição 26: falta JOIN");
    row("open parenthesis", "SELECT * FROM Tipos WHERE (1 = 1", 3075,
        "posição 33: falta fechar parêntese");
    row("closed too often", "SELECT * FROM Tipos WHERE 1 = 1)", 3075,
        "posição 32: o comando já tinha acabado");
    row("apostrophe in a name", "SELECT * FROM Tomador WHERE NOME1 Like '%D'ÁGUA%'", 3075,
        "posição 44: o comando já tinha acabado");
    row("one apostrophe", "SELECT * FROM Tomador WHERE NOME1 Like '%'%'", 3075, "posição 43: ");
    row("Not alone", "SELECT * FROM Tipos WHERE ATIVO Not", 3075, "falta LIKE, BETWEEN ou IN");
    row("Between without And", "SELECT * FROM Tipos WHERE SEQUENCIA Between 1", 3075, "falta AND");
    row("Is without Null", "SELECT * FROM Tipos WHERE TIPO Is 'x'", 3075, "falta NULL");
    row("empty list", "SELECT * FROM Tipos WHERE SEQUENCIA In ()", 3075, "falta um valor");
    row("a SELECT in a list", "SELECT * FROM Tipos WHERE SEQUENCIA In (SELECT 1)", 3075,
        "posição 41: falta um valor");
    row("UNION", "SELECT id FROM Cidades UNION SELECT 1", 3075, "já tinha acabado");
    row("unknown function", "SELECT Shell('x') FROM Cidades", 3075,
        "posição 8: função que não existe");
    row("too few arguments", "SELECT Year() FROM Cidades", 3075, "número de argumentos errado");
    row("too many arguments", "SELECT Year(1, 2) FROM Cidades", 3075,
        "número de argumentos errado");
    row("TOP without number", "SELECT TOP nome FROM Cidades", 3075, "posição 12: ");
    row("no such month", "SELECT #2014/13/01#", 3075, "posição 8: data que não existe");
    row("no such day", "SELECT * FROM Requisicao WHERE DATA = #2014/02/29#", 3075,
        "posição 39: data que não existe");
    row("no such hour", "SELECT #2014/01/01 24:00#", 3075, "data que não existe");
    row("day before month", "SELECT #31/01/2014#", 3075, "data que não existe");
    row("words for a date", "SELECT #hoje#", 3075, "data que não existe");
    row("HAVING alone", "SELECT nome FROM Cidades HAVING id > 1", 3075, "HAVING sem GROUP BY");
    row("sum in WHERE", "SELECT id FROM Cidades WHERE Sum(id) > 1", 3075, "função de agregação");
    row("sum in the condition of a DELETE", "DELETE FROM Cidades WHERE Max(id) = 3", 3075,
        "função de agregação");
    row("sum in ORDER BY alone", "SELECT 1 FROM Cidades ORDER BY Count(*)", 3075,
        "função de agregação");
    row("sum in HAVING alone", "SELECT 'x' FROM Cidades HAVING Max(id) > 1", 3075,
        "função de agregação");
    for (const char* gone :
         {"Month(DATA)", "Day(DATA)", "Date()", "Int(VALOR)", "Len(FICHA)", "UCase(FICHA)",
          "LCase(FICHA)", "Nz(VALOR)", "IIf(True, 1, 2)", "Avg(VALOR)", "First(FICHA)"}) {
      row(gone, QStringLiteral("SELECT %1 FROM Requisicao").arg(QLatin1String(gone)), 3075,
          "posição 8: função que não existe");
    }
    row("sum in ON", "SELECT * FROM Tipos INNER JOIN Orgao ON Max(TIPO) = ORGAO", 3075,
        "função de agregação");
    row("sum in GROUP BY", "SELECT 1 FROM Cidades GROUP BY Sum(id)", 3075, "função de agregação");
    row("sum of sums", "SELECT Sum(Max(id)) FROM Cidades", 3075, "função de agregação dentro");
    row("column beside a sum", "SELECT nome, Sum(id) FROM Cidades", 3075, "fora do GROUP BY");
    row("other column ordered", "SELECT Sum(id) FROM Cidades GROUP BY uf ORDER BY nome", 3075,
        "fora do GROUP BY");
    row("other column tested", "SELECT Sum(id) FROM Cidades GROUP BY uf HAVING nome = 'x'", 3075,
        "fora do GROUP BY");
    row("groups of nothing", "SELECT 1 FROM Cidades GROUP BY 'x'", 3075, "GROUP BY sem campo");
    row("ordinal 0", "SELECT id FROM Cidades ORDER BY 0", 3075, "posição 33: ORDER BY");
    row("ordinal too high", "SELECT id FROM Cidades ORDER BY 2", 3075, "posição 33: ORDER BY");
    row("a NUL",
        QStringLiteral("SELECT * FROM Cidades WHERE nome = 'a") + QChar(u'\0') +
            QStringLiteral("b'"),
        3075, "posição 38: ");
  }
  void syntax() { check(); }

  void secondStatements_data() {
    columns();
    row("a DELETE", "SELECT * FROM Cidades; DELETE FROM Cidades", 3075,
        "posição 24: o comando já tinha acabado");
    row("a second semicolon", "SELECT * FROM Cidades;;", 3075, "posição 23: ");
    row("behind a table", "Cidades; DELETE FROM Cidades", 3075, "posição 10: ");
    row("typed into a search",
        "SELECT * FROM Tomador WHERE NOME1 LIKE '%'; DELETE FROM Tomador; '%';", 3075,
        "posição 45: ");
    row("behind a DELETE", "DELETE FROM Cidades WHERE id = 1; DELETE FROM Cidades", 3075,
        "já tinha");
    row("a comment", "SELECT * FROM Cidades -- all", 3075, "posição 23: ");
  }
  void secondStatements() { check(); }

  void limits_data() {
    columns();
    row("parentheses", "SELECT " + repeated("(", 400) + "1" + repeated(")", 400), 3075,
        "complexa demais");
    row("open parentheses", "SELECT " + repeated("(", 60'000), 3075, "complexa demais");
    row("signs", "SELECT " + repeated("-", 5'000) + "1", 3075, "complexa demais");
    row("Nots", "SELECT " + repeated("Not ", 5'000) + "1", 3075, "complexa demais");
    row("sums", "SELECT 1" + repeated("+1", 5'000), 3075, "complexa demais");
    row("Ors", "SELECT 1" + repeated(" Or 1", 5'000), 3075, "complexa demais");
    row("comparisons", "SELECT 1" + repeated("=1", 5'000), 3075, "complexa demais");
    row("calls", "SELECT " + repeated("Sum(", 5'000), 3075, "complexa demais");
    row("joins in parentheses", "SELECT * FROM " + repeated("(", 5'000), 3075, "complexa demais");
    row("tables", "SELECT 1 FROM Cidades" + repeated(", Cidades", 60), 3075, "complexa demais");
    row("columns", "SELECT 1" + repeated(", 1", 300), 3075, "complexa demais");
    row("stars", "SELECT *" + repeated(", *", 100) + " FROM Requisicao", 3075, "complexa demais");
    row("orders", "SELECT id FROM Cidades ORDER BY 1" + repeated(", 1", 300), 3075,
        "complexa demais");
    row("length", "SELECT * FROM Cidades" + repeated(" ", 65'536), 3075, "complexa demais");
    row("circle of queries", "SELECT * FROM Sel_Circulo", 3075, "em círculo");
    row("circle by name", "Sel_Roda", 3075, "em círculo");
  }
  void limits() { check(); }

  void names_data() {
    columns();
    row("no column", "SELECT XIS FROM Cidades", 3061, "[XIS]");
    row("no column of the table", "Select * From Orgao WHERE ID =4", 3061, "[ID]");
    row("no column of that table", "SELECT Cidades.XIS FROM Cidades", 3061, "[Cidades.XIS]");
    row("table is not in FROM", "SELECT Orgao.ORGAO FROM Cidades", 3061, "[Orgao.ORGAO]");
    row("alias hides the name", "SELECT Cidades.id FROM Cidades AS C", 3061, "[Cidades.id]");
    row("accents count", "SELECT VEICULO FROM IdentificaTransp", 3061, "[VEICULO]");
    row("of two tables", "SELECT SEQ FROM Requisicao, PrestContas", 3061,
        "o nome SEQ pode ser de mais de uma tabela");
    row("one table twice", "SELECT Orgao.ORGAO FROM Orgao, Orgao", 3061, "Orgao.ORGAO pode ser");
    row("of two tables behind a query", "SELECT TIPO FROM Sel_Pares", 3061, "TIPO pode ser");
    row("alias in WHERE", "SELECT id AS CHAVE FROM Cidades WHERE CHAVE = 1", 3061, "[CHAVE]");
    row("star of no table", "SELECT Orgao.* FROM Cidades", 3061, "[Orgao.*]");
    row("ON before its table",
        "SELECT * FROM (Tipos INNER JOIN Orgao ON Orgao.IDORGAO = Executor.IDORGAO) INNER JOIN "
        "Executor ON Executor.IDORGAO = Orgao.IDORGAO",
        3061, "[Executor.IDORGAO]");
    row("behind a group", "SELECT * FROM Sel_Totais WHERE PrestContas.DATA = Now()", 3061,
        "[PrestContas.DATA]");
    row("no table", "SELECT * FROM Nada", 3078, "[Nada]");
    row("no table by name", "Nada", 3078, "[Nada]");
    row("no table to join", "SELECT * FROM Tipos INNER JOIN Nada ON 1 = 1", 3078, "[Nada]");
    row("no table to delete from", "DELETE FROM Nada", 3078, "[Nada]");
    row("table with a wrong accent", "SELECT * FROM Órgao", 3078, "[Órgao]");
  }
  void names() { check(); }

  void types_data() {
    columns();
    row("date and number", "SELECT * FROM Requisicao WHERE DATA = 5", 3464, "tipos diferentes");
    row("date and text", "SELECT * FROM Requisicao WHERE DATA = '2014-01-01'", 3464, "");
    row("number and text", "SELECT * FROM Requisicao WHERE SEQ = '514'", 3464, "");
    row("money and text", "SELECT * FROM Requisicao WHERE VALOR > 'a'", 3464, "");
    row("bool and text", "SELECT * FROM Tomador WHERE ATIVO = 'Sim'", 3464, "");
    row("text among numbers", "SELECT * FROM Cidades WHERE id In (1, 'a')", 3464, "");
    row("date between numbers", "SELECT * FROM Requisicao WHERE DATA Between 1 And 2", 3464, "");
    row("text as condition", "SELECT * FROM Cidades WHERE nome", 3464, "");
    row("date as condition", "SELECT * FROM Requisicao WHERE Not DATA", 3464, "");
    row("text with And", "SELECT * FROM Cidades WHERE nome And uf", 3464, "");
    row("text as HAVING", "SELECT uf FROM Cidades GROUP BY uf HAVING uf", 3464, "");
    row("text as ON", "SELECT * FROM Tipos INNER JOIN Orgao ON ORGAO", 3464, "");
    row("text times number", "SELECT nome * 2 FROM Cidades", 3464, "");
    row("text and number added", "SELECT nome + 2 FROM Cidades", 3464, "");
    row("minus text", "SELECT -nome FROM Cidades", 3464, "");
    row("dates added", "SELECT DATA + DATA FROM Requisicao", 3464, "");
    row("date from a number", "SELECT 5 - DATA FROM Requisicao", 3464, "");
    row("year of a number", "SELECT Year(SEQ) FROM Requisicao", 3464, "");
    row("sum of texts", "SELECT Sum(nome) FROM Cidades", 3464, "");
    row("sum of dates", "SELECT Sum(DATA) FROM Requisicao", 3464, "");
  }
  void types() { check(); }

  void statements_data() {
    columns();
    row("INSERT", "INSERT INTO Cidades (id) VALUES (1)", 3065, "[INSERT]");
    row("UPDATE", "update Cidades SET id = 1", 3065, "[update]");
    row("DROP", "DROP TABLE Cidades", 3065, "[DROP]");
    row("CREATE", "CREATE TABLE x (y)", 3065, "[CREATE]");
    row("PRAGMA", "PRAGMA journal_mode = OFF", 3065, "[PRAGMA]");
    row("ATTACH", "ATTACH 'x' AS y", 3065, "[ATTACH]");
    row("other words", "Apague tudo", 3075, "posição 8: o comando já tinha acabado");
    row("DELETE from a stored query", "DELETE FROM Sel_Uf", 3065, "[Sel_Uf]");
    row("stored DELETE", "SELECT * FROM Sel_Apaga", 3065, "[Sel_Apaga]");
    row("stored DELETE by name", "Sel_Apaga", 3065, "[Sel_Apaga]");
    row("stored nonsense", "SELECT * FROM Sel_Errada", 3075, "posição 8: falta um valor");
    row("DELETE of a column", "DELETE id FROM Cidades", 3075, "falta FROM");
    row("DELETE of two tables", "DELETE FROM Cidades, Orgao", 3075, "já tinha acabado");
  }
  void statements() { check(); }
};

QUARTELA_TEST_MAIN(DialectErrorsTest)
#include "Errors_test.moc"
