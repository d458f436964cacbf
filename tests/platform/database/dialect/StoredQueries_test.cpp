// Statements on stored queries: merged with the query where that means the same, nested where not.
#include "platform/database/dialect/Dialect.h"
#include "platform/values/RuntimeError.h"
#include "tests/platform/database/dialect/SampleEngine.h"
#include "tests/platform/database/dialect/Translated.h"
#include "tests/support/TestMain.h"

using namespace quartela;
using EngineStatement = test::Translated;

namespace {

void row(const char* name, const char* statement, const char* expected) {
  QTest::newRow(name) << QString::fromUtf8(statement) << QString::fromUtf8(expected);
}

}  // namespace

class StoredQueriesTest : public QObject {
  Q_OBJECT

 private:
  Catalogue catalogue_ = test::sampleCatalogue();
  test::SampleEngine engine_;

  EngineStatement translated(const QString& statement) {
    EngineStatement engine = test::translate(statement, catalogue_);
    const QString refused = engine_.refusal(
        engine.sql, static_cast<int>(engine.columns.size() + engine.keyColumns.size()));
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

  void checkEnd() {
    QFETCH(QString, statement);
    QFETCH(QString, expected);
    const QString sql = QString::fromStdString(translated(statement).sql);
    QCOMPARE(sql.mid(qMax(sql.indexOf(QLatin1String("\"SEQUENCIA\")")), 0)),
             QStringLiteral("\"SEQUENCIA\")") + expected);
  }

 private slots:
  // The process lists: the statement's conditions stand among the query's own joins.
  void processLists_data() {
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("expected");
    const char* const year =
        R"((CAST(substr("Requisicao"."DATA", 1, 4) AS INTEGER) = CAST(substr(?1, 1, 4) AS INTEGER)))";
    const auto row = [](const char* name, const char* statement, const QString& expected) {
      QTest::newRow(name) << QString::fromUtf8(statement) << expected;
    };
    row("all", "SELECT * FROM Sel_Req_left  ORDER BY Adiantamento.ABERTURA DESC;",
        R"( ORDER BY "Adiantamento"."ABERTURA" DESC)");
    row("open of the year",
        "SELECT * FROM Sel_Req_left  Where (((Adiantamento.Fechamento) Is Null) And "
        "((Year([Requisicao].[Data])) = Year(Now()))) ORDER BY Requisicao.SEQ DESC;",
        QStringLiteral(R"( WHERE (("Adiantamento"."FECHAMENTO" IS NULL) AND %1) )"
                       R"(ORDER BY "Requisicao"."SEQ" DESC)")
            .arg(QLatin1String(year)));
    row("closed of the year",
        "SELECT * FROM Sel_Req_left  WHERE (((Adiantamento.FECHAMENTO) Is Not Null) And "
        "((Year([Requisicao].[Data])) = Year(Now())));",
        QStringLiteral(R"( WHERE (("Adiantamento"."FECHAMENTO" IS NOT NULL) AND %1))")
            .arg(QLatin1String(year)));
    row("by name", "SELECT * FROM Sel_Req_left  WHERE Tomador.NOME1 LIKE '%joão%';",
        R"( WHERE latin_like('%joão%', "Tomador"."NOME1"))");
    row("by process", "SELECT * FROM Sel_Req_left  WHERE Requisicao.SEQ =514",
        R"( WHERE ("Requisicao"."SEQ" = 514))");
    row("by output name", "SELECT * FROM Sel_Req_left WHERE Sel_Req_left.SEQ = 514 And DIAS > 5",
        R"( WHERE (("Requisicao"."SEQ" = 514) AND (((unixepoch("Adiantamento"."FECHAMENTO") - )"
        R"(unixepoch("Adiantamento"."RETIRADA")) / 86400.0) > 5)))");
    row("by a column that it does not show",
        "SELECT * FROM Sel_Req_left WHERE JUSTIFICATIVA Is Null",
        R"( WHERE ("Requisicao"."JUSTIFICATIVA" IS NULL))");
    row("under an alias", "SELECT * FROM Sel_Req_left AS L WHERE L.SEQ = Requisicao.SEQ",
        R"( WHERE ("Requisicao"."SEQ" = "Requisicao"."SEQ"))");
  }
  void processLists() { checkEnd(); }

  void processListColumns() {
    const EngineStatement engine = translated(
        QStringLiteral("SELECT * FROM Sel_Req_inner  WHERE ((Adiantamento.FECHAMENTO) Is "
                       "Null);"));
    const QStringList names{"SEQ",       "DATA",       "VALOR",   "FINALIDADE", "ORGAO",
                            "NOME1",     "TIPO",       "EMPENHO", "ABERTURA",   "RETIRADA",
                            "FECHAR_EM", "FECHAMENTO", "DIAS"};
    QStringList found;
    for (const dialect::ResultColumn& column : engine.columns) {
      found.append(column.name);
    }
    QCOMPARE(found, names);
    QCOMPARE(engine.columns[2].type, ValueType::Money);
    QCOMPARE(engine.columns[4].table, QStringLiteral("Orgao"));
    QCOMPARE(engine.columns[12].type, ValueType::Number);
    QVERIFY(engine.columns[12].table.isEmpty());
    QVERIFY(engine.updatableTable.isEmpty());
  }

  void merged_data() {
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("expected");
    row("travel sheet with its notes",
        "SELECT Sel_Viagem.*, PrestContas.DATA, PrestContas.ORDEM, PrestContas.HISTORICO, "
        "PrestContas.DESPESAS FROM Sel_Viagem INNER JOIN PrestContas ON Sel_Viagem.ITEM = "
        "PrestContas.ID_VIAGEM WHERE (((Sel_Viagem.ITEM)=3)) Order By PrestContas.DATA;",
        R"(SELECT "Viagem"."ITEM", "Viagem"."ORGAO", "Viagem"."VEICULO", "Viagem"."DATA_SAIDA", )"
        R"("PrestContas"."DATA", "PrestContas"."ORDEM", "PrestContas"."HISTORICO", )"
        R"("PrestContas"."DESPESAS" FROM "Viagem" JOIN "PrestContas" ON ("Viagem"."ITEM" = )"
        R"("PrestContas"."ID_VIAGEM") WHERE ("Viagem"."ITEM" = 3) ORDER BY "PrestContas"."DATA")");
    row("standalone requisition", "Select * from Sel_Print_reqavulso WHERE ReqAvulso.SEQ = 31",
        R"(SELECT "ReqAvulso"."SEQ", "ReqAvulso"."DATA", "Tomador"."NOME1" FROM "ReqAvulso" )"
        R"(LEFT JOIN "Tomador" ON ("ReqAvulso"."TOMADOR" = "Tomador"."ID") WHERE )"
        R"(("ReqAvulso"."SEQ" = 31))");
    row("its order and condition stay", "SELECT NOME FROM Sel_Ativos WHERE IDORGAO = 4",
        R"(SELECT "Executor"."NOME", "Executor"."ORDEM" FROM "Executor" WHERE ("Executor"."ATIVO" = )"
        R"(1) AND ("Executor"."IDORGAO" = 4) ORDER BY "Executor"."NOME" COLLATE LATIN_NOCASE)");
    row("an order of the statement's own", "SELECT Max(ORDEM) FROM Sel_Ativos",
        R"(SELECT max("Executor"."ORDEM") FROM "Executor" WHERE ("Executor"."ATIVO" = 1))");
    row("DISTINCT of the statement's own", "SELECT DISTINCT NOME FROM Sel_Ativos",
        R"(SELECT DISTINCT "Executor"."NOME" COLLATE LATIN_NOCASE FROM "Executor" WHERE )"
        R"(("Executor"."ATIVO" = 1))");
    row("a query on a query", "SELECT NOME FROM Sel_Sobre_ativos ORDER BY ORDEM",
        R"(SELECT "Executor"."NOME", "Executor"."ORDEM" FROM "Executor" WHERE ("Executor"."ATIVO" = )"
        R"(1) AND latin_like('A%', "Executor"."NOME") ORDER BY "Executor"."ORDEM")");
    row("DISTINCT as it stands", "Sel_Uf",
        R"(SELECT DISTINCT "Cidades"."uf" COLLATE LATIN_NOCASE FROM "Cidades" ORDER BY )"
        R"("Cidades"."uf" COLLATE LATIN_NOCASE)");
    row("DISTINCT with a condition",
        "SELECT * FROM Sel_Uf WHERE Cidades.nome = 'x' ORDER BY uf DESC",
        R"(SELECT DISTINCT "Cidades"."uf" COLLATE LATIN_NOCASE FROM "Cidades" WHERE )"
        R"(("Cidades"."nome" COLLATE LATIN_NOCASE = 'x') ORDER BY "Cidades"."uf" COLLATE )"
        R"(LATIN_NOCASE DESC)");
    row("its table beside it", "SELECT Max(O.IDORGAO) FROM Orgao, Sel_Orgaos AS O",
        R"(SELECT max("Orgao_2"."IDORGAO") FROM "Orgao" JOIN "Orgao" AS "Orgao_2")");
    row("on the side that may be missing",
        "SELECT Sel_Orgaos.ORGAO + 'x' FROM Executor LEFT JOIN Sel_Orgaos ON Executor.IDORGAO = "
        "Sel_Orgaos.IDORGAO",
        R"(SELECT ("Orgao"."ORGAO" || 'x') FROM "Executor" LEFT JOIN "Orgao" ON )"
        R"(("Executor"."IDORGAO" = "Orgao"."IDORGAO"))");
    row("names borne twice inside", "SELECT [Tipos.TIPO] & Inciso.TIPO FROM Sel_Pares",
        R"(SELECT (coalesce("Tipos"."TIPO", '') || coalesce(CAST("Inciso"."TIPO" AS TEXT), '')) )"
        R"(FROM "Tomador" JOIN "Tipos" JOIN "Inciso" ON ("Tipos"."SEQUENCIA" = "Inciso"."TIPO"))");
    row("the star of a table inside", "SELECT Orgao.* FROM Sel_Orgaos, Finalidade",
        R"(SELECT "Orgao"."IDORGAO", "Orgao"."ORGAO" FROM "Orgao" JOIN "Finalidade")");
  }
  void merged() { checkText(); }

  void nested_data() {
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("expected");
    row("groups", "SELECT * FROM Sel_Totais WHERE TOTAL > 100.5 And PrestContas.PROCESSO = 5",
        R"(SELECT "Sel_Totais".c0, "Sel_Totais".c1 FROM (SELECT "PrestContas"."PROCESSO" AS c0, )"
        R"(sum("PrestContas"."DESPESAS") AS c1 FROM "PrestContas" GROUP BY )"
        R"("PrestContas"."PROCESSO") AS "Sel_Totais" WHERE (("Sel_Totais".c1 > 1005000) AND )"
        R"(("Sel_Totais".c0 = 5)))");
    row("groups as they stand", "SELECT * FROM Sel_Totais",
        R"(SELECT "PrestContas"."PROCESSO", sum("PrestContas"."DESPESAS") FROM "PrestContas" )"
        R"(GROUP BY "PrestContas"."PROCESSO")");
    row("TOP", "SELECT uf FROM Sel_Primeiras WHERE id > 5",
        R"(SELECT "Sel_Primeiras".c2 FROM (SELECT "Cidades"."id" AS c0, "Cidades"."nome" AS c1, )"
        R"("Cidades"."uf" AS c2, "Cidades"."distancia" AS c3 FROM "Cidades" ORDER BY )"
        R"("Cidades"."nome" COLLATE LATIN_NOCASE LIMIT 3) AS "Sel_Primeiras" WHERE )"
        R"(("Sel_Primeiras".c0 > 5))");
    row("DISTINCT counted", "SELECT Count(*) FROM Sel_Uf",
        R"(SELECT count(*) FROM (SELECT DISTINCT "Cidades"."uf" COLLATE LATIN_NOCASE AS c0 FROM )"
        R"("Cidades" ORDER BY "Cidades"."uf" COLLATE LATIN_NOCASE) AS "Sel_Uf")");
    row("DISTINCT joined", "SELECT U.uf FROM Sel_Uf AS U, Orgao",
        R"(SELECT "U".c0 FROM (SELECT DISTINCT "Cidades"."uf" COLLATE LATIN_NOCASE AS c0 FROM )"
        R"("Cidades" ORDER BY "Cidades"."uf" COLLATE LATIN_NOCASE) AS "U" JOIN "Orgao")");
    row("condition on the side that may be missing",
        "SELECT Sel_Ativos.NOME FROM Orgao LEFT JOIN Sel_Ativos ON Orgao.IDORGAO = "
        "Sel_Ativos.ORDEM",
        R"(SELECT "Sel_Ativos".c1 FROM "Orgao" LEFT JOIN (SELECT "Executor"."ORDEM" AS c0, )"
        R"("Executor"."NOME" AS c1 FROM "Executor" WHERE ("Executor"."ATIVO" = 1) ORDER BY )"
        R"("Executor"."NOME" COLLATE LATIN_NOCASE) AS "Sel_Ativos" ON ("Orgao"."IDORGAO" = )"
        R"("Sel_Ativos".c0))");
    row("the same to the left", "SELECT 1 FROM Sel_Ativos RIGHT JOIN Orgao ON IDORGAO = ORDEM",
        R"(SELECT 1 FROM "Orgao" LEFT JOIN (SELECT "Executor"."ORDEM" AS c0, "Executor"."NOME" AS )"
        R"(c1 FROM "Executor" WHERE ("Executor"."ATIVO" = 1) ORDER BY "Executor"."NOME" COLLATE )"
        R"(LATIN_NOCASE) AS "Sel_Ativos" ON ("Orgao"."IDORGAO" = "Sel_Ativos".c0))");
    row("computed on the side that may be missing",
        "SELECT NOME FROM Tipos LEFT JOIN Sel_Siglas ON IDORGAO = CHAVE",
        R"(SELECT "Sel_Siglas".c1 FROM "Tipos" LEFT JOIN (SELECT "Orgao"."IDORGAO" AS c0, )"
        R"((coalesce("Orgao"."ORGAO", '') || coalesce(' -', '')) AS c1 FROM "Orgao") AS "Sel_Siglas" ON )"
        R"(("Tipos"."IDORGAO" = "Sel_Siglas".c0))");
  }
  void nested() { checkText(); }

  // The engine's rows, not its text: a nested query must not lose the rows without partner.
  void rowsWithoutPartnerStay() {
    test::SampleEngine engine;
    engine.run(
        "INSERT INTO Orgao VALUES (1, 'OBRAS'), (2, 'SAUDE');"
        "INSERT INTO Executor (ORDEM, IDORGAO, NOME, ATIVO) VALUES (1, 1, 'ANA', 1), "
        "(2, 2, 'RUI', 0);");
    const EngineStatement statement = translated(QStringLiteral(
        "SELECT Orgao.ORGAO & '-' & Sel_Ativos.NOME FROM Orgao LEFT JOIN Sel_Ativos ON "
        "Orgao.IDORGAO = Sel_Ativos.ORDEM ORDER BY 1"));
    QCOMPARE(engine.rows(statement.sql), QStringLiteral("OBRAS-ANA;SAUDE-"));
  }

  void aTableStandsBeforeAQueryOfItsName() {
    Catalogue catalogue = test::sampleCatalogue();
    catalogue.addStoredQuery(QStringLiteral("Orgao"), QStringLiteral("SELECT * FROM Cidades"));
    QCOMPARE(test::translate(u"Orgao", catalogue).columns.front().name, QStringLiteral("IDORGAO"));
  }

  void aQueryThatChangesIsReadAgain() {
    Catalogue catalogue = test::sampleCatalogue();
    QCOMPARE(test::translate(u"sel_uf", catalogue).columns.size(), 1U);
    catalogue.addStoredQuery(QStringLiteral("SEL_UF"),
                             QStringLiteral("SELECT id, uf FROM Cidades"));
    QCOMPARE(test::translate(u"sel_uf", catalogue).columns.size(), 2U);
  }

  void aCopyOutlivesItsCatalogue() {
    Catalogue copy;
    {
      const Catalogue first = test::sampleCatalogue();
      test::translate(u"Sel_Uf", first);
      copy = first;
    }
    QCOMPARE(test::translate(u"Sel_Uf", copy).columns.front().name, QStringLiteral("uf"));
  }

  void theCatalogueFindsNames() {
    QCOMPARE(catalogue_.table(u"REQUISICAO")->name, QStringLiteral("Requisicao"));
    QVERIFY(catalogue_.table(u"Requisição") == nullptr);
    QVERIFY(catalogue_.table(u"Sel_Uf") == nullptr);
    QVERIFY(catalogue_.storedQuery(u"sel_uf")->startsWith(QLatin1String("SELECT DISTINCT")));
    QVERIFY(catalogue_.storedQuery(u"Requisicao") == nullptr);
    QVERIFY(catalogue_.storedTree(u"Requisicao") == nullptr);
    QCOMPARE(catalogue_.storedTree(u"Sel_Uf"), catalogue_.storedTree(u"SEL_UF"));
  }
};

QUARTELA_TEST_MAIN(StoredQueriesTest)
#include "StoredQueries_test.moc"
