// The lists of the reference tables, 10,000 rows each, beside the toolkit's own table model.
#include <sqlite3.h>

#include <QFile>
#include <QSqlDatabase>
#include <QSqlTableModel>
#include <QTemporaryDir>
#include <functional>

#include "benchmarks/Measure.h"
#include "benchmarks/Toolkit.h"
#include "database/Builder.h"
#include "foundation/Abertura.h"
#include "foundation/Caminhos.h"
#include "masterdata/cDotacao.h"
#include "masterdata/cExecutor.h"
#include "masterdata/cInciso.h"
#include "masterdata/cOrgao.h"
#include "masterdata/cTipoDespesa.h"
#include "masterdata/cTipos.h"
#include "masterdata/cTomador.h"
#include "platform/controls/ListView.h"

namespace quartela::bench {
namespace {

const char* kRows = R"(
CREATE TEMP TABLE n AS WITH RECURSIVE c(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM c WHERE i < 10000)
  SELECT i FROM c;
INSERT INTO Orgao(ORGAO) SELECT 'Secretaria ' || i FROM n;
INSERT INTO Finalidade(FINALIDADE) SELECT 'Finalidade ' || i FROM n;
INSERT INTO Executor(IDORGAO, NOME, RG, CPF, FUNCAO, ATIVO)
  SELECT i, 'Ordenador ' || i, 'MG-' || i, '123.456.789-09', 'Secretário', i % 2 FROM n;
INSERT INTO Tomador(NOME1, CARGO, RG1, CPF1, ATIVO)
  SELECT 'Responsável ' || i, 'Motorista', 'MG-' || i, '123.456.789-09', i % 2 FROM n;
INSERT INTO Tipos(IDORGAO, TIPO, ELEMENTO, LEI, MATERIAIS, PRAZO, ATIVO)
  SELECT i, 'Tipo ' || i, '339030', 'Lei', 'Materiais', '30 dias', i % 2 FROM n;
INSERT INTO Inciso(TIPO, DESCRICAO, CATEGORIA, PRAZO, ATIVO)
  SELECT i, 'Inciso ' || i, 'Categoria', 30, i % 2 FROM n;
INSERT INTO Dotacao(IDTIPO, IDORGAO, DOTACAO, DESCRICAO, ANO)
  SELECT i, i, i % 9999, 'Ficha ' || i, 2014 FROM n;
)";

struct Case {
  const char* table;
  int columns;
  bool checks;
  std::function<void(ListView&)> fill;
};

const Case kCases[] = {
    {"Orgao", 2, false, [](ListView& list) { cOrgao::compartilhada().Lista_Orgao(list, 0); }},
    {"Finalidade", 2, false,
     [](ListView& list) { cTipoDespesa::compartilhada().Lista_Finalidade(list, 0); }},
    {"Executor", 6, true,
     [](ListView& list) { cExecutor::compartilhada().Lista_Executor(list, 0); }},
    {"Tomador", 5, true, [](ListView& list) { cTomador::compartilhada().Lista_Tomador(list, 0); }},
    {"Tipos", 5, true, [](ListView& list) { cTipos::compartilhada().Lista_Tipos(list, 0); }},
    {"Inciso", 5, true, [](ListView& list) { cInciso::compartilhada().Lista_Inciso(list); }},
    {"Dotacao", 6, false, [](ListView& list) { cDotacao::compartilhada().Lista_Dotacao(list, 0); }},
};

void benchCase(const Case& each, const QSqlDatabase& database) {
  ListView list;
  list.resize(1000, 500);
  list.setCheckBoxes(each.checks);
  for (int column = 0; column < each.columns; ++column) {
    list.addColumn(QString::number(column), ColumnWidth::pixels(150));
  }
  const auto [ours, peer] = medians(
      9,
      [&] {
        each.fill(list);
        list.flush();
        paint(list);
      },
      [&] {
        QSqlTableModel model(nullptr, database);
        model.setTable(QString::fromLatin1(each.table));
        model.select();
        QTableView view;
        view.resize(list.size());
        showAllRows(model, view);
      });
  print({.measure = QStringLiteral("list of %1, painted | QSqlTableModel, QTableView")
                        .arg(QLatin1String(each.table)),
         .ours = ours / 1000,
         .peer = peer / 1000,
         .target = 1,
         .unit = QStringLiteral("ms")});
}

}  // namespace

void benchMasterData() {
  QTemporaryDir folder;
  caminhos.geral = folder.filePath(QStringLiteral("tables.mdb"));
  {
    database::NewDatabase fresh(caminhos.geral);
    fresh.addStoredQueries();
    if (sqlite3_exec(fresh.handle(), kRows, nullptr, nullptr, nullptr) != SQLITE_OK) {
      qFatal("%s", sqlite3_errmsg(fresh.handle()));
    }
    fresh.finish();
  }
  Abre_conexao();
  QSqlDatabase database =
      QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("tables"));
  database.setDatabaseName(caminhos.geral);
  database.open();
  for (const Case& each : kCases) {
    benchCase(each, database);
  }
  database.close();
  Fecha_banco();
}

}  // namespace quartela::bench
