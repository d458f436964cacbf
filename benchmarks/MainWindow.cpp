// The main window's list and ribbon beside the toolkit's own.
#include <sqlite3.h>

#include <QEventLoop>
#include <QMouseEvent>
#include <QSortFilterProxyModel>
#include <QSqlDatabase>
#include <QTimer>
#include <vector>

#include "benchmarks/EngineText.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Toolkit.h"
#include "foundation/Abertura.h"
#include "foundation/Banco.h"
#include "foundation/Caminhos.h"
#include "platform/controls/ListView.h"
#include "platform/controls/OpenForms.h"
#include "platform/values/Clock.h"
#include "records/Principal.h"
#include "records/cTodos.h"
#include "shell/frmOficce.h"
#include "shell/ribbon/FaixaRibbon.h"

namespace quartela::bench {
namespace {

const QString kStatements[] = {
    QStringLiteral("SELECT * FROM Sel_Req_left  ORDER BY Adiantamento.ABERTURA DESC;"),
    QStringLiteral("SELECT * FROM Sel_Req_left  Where (((Adiantamento.Fechamento) Is Null) And "
                   "((Year([Requisicao].[Data])) = Year(Now()))) ORDER BY Requisicao.SEQ DESC;"),
    QStringLiteral("SELECT * FROM Sel_Req_inner  WHERE ((Adiantamento.FECHAMENTO) Is Null);"),
    QStringLiteral("SELECT * FROM Sel_Req_left  WHERE (((Adiantamento.FECHAMENTO) Is Not Null) And "
                   "((Year([Requisicao].[Data])) = Year(Now())));"),
    QStringLiteral("SELECT * FROM Sel_Req_left  Where (((Adiantamento.ABERTURA) Is Null) And "
                   "((Year([Requisicao].[Data])) = Year(Now()))) ORDER BY Requisicao.SEQ DESC;"),
};

// The engine's text with the clock's moment in its place and without what only our connection
// knows.
QString plainText(const QString& statement) {
  QString sql = QString::fromStdString(engineText(statement, Conexao->catalogue()));
  sql.replace(QStringLiteral("?1"), '\'' + Clock::now().toIso() + '\'');
  return sql.remove(QStringLiteral(" COLLATE LATIN_NOCASE"));
}

void fillPeer(QSqlQueryModel& model, QTableView& view, const QString& sql) {
  model.setQuery(sql, QSqlDatabase::database());
  showAllRows(model, view);
}

void fillOurs(frmOficce& window, std::int16_t filter) {
  Lista_principal(filter);
  window.ListView1().flush();
  paint(window.ListView1());
}

void benchFilter(frmOficce& window, int filter) {
  const QString sql = plainText(kStatements[filter]);
  const auto [ours, peer] = medians(
      5, [&] { fillOurs(window, static_cast<std::int16_t>(filter)); },
      [&] {
        QSqlQueryModel model;
        QTableView view;
        view.resize(window.ListView1().size());
        fillPeer(model, view, sql);
      });
  print(
      {.measure = QStringLiteral("Lista_Movimento, filter %1, painted | QSqlQueryModel, QTableView")
                      .arg(filter),
       .ours = ours / 1000,
       .peer = peer / 1000,
       .target = 1,
       .unit = QStringLiteral("ms")});
}

void benchListMemory(frmOficce& window) {
  window.ListView1().clear();
  const double ours = peakGrowth([&] { fillOurs(window, 0); });
  const QString sql = plainText(kStatements[0]);
  const double peer = peakGrowth([&] {
    QSqlQueryModel model;
    QTableView view;
    fillPeer(model, view, sql);
  });
  print({.measure = QStringLiteral("  memory of filter 0 at the peak | the same"),
         .ours = ours / 1e6,
         .peer = peer / 1e6,
         .target = 1,
         .unit = QStringLiteral("MB")});
}

void benchSort(frmOficce& window) {
  fillOurs(window, 0);
  QSqlQueryModel model;
  QTableView view;
  fillPeer(model, view, plainText(kStatements[0]));
  QSortFilterProxyModel proxy;
  proxy.setSourceModel(&model);
  view.setModel(&proxy);
  bool ascending = false;
  const auto [ours, peer] = medians(
      5,
      [&] {
        emit window.ListView1().columnClicked(5);
        window.ListView1().flush();
        paint(window.ListView1());
      },
      [&] {
        ascending = !ascending;
        proxy.sort(5, ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
        paint(view);
      });
  print({.measure = QStringLiteral("a click on a column header | QSortFilterProxyModel"),
         .ours = ours / 1000,
         .peer = peer / 1000,
         .target = 0.5,
         .unit = QStringLiteral("ms")});
}

void benchNameSearch() {
  cTodos::compartilhada().Nome = QStringLiteral("silva");
  const QString sql =
      plainText(QStringLiteral("SELECT * FROM Sel_Req_left  WHERE Tomador.NOME1 = 'x'"))
          .replace(QStringLiteral("= 'x'"), QStringLiteral("LIKE '%silva%'"));
  sqlite3* handle = nullptr;
  sqlite3_open(benchmarkDatabase().toUtf8().constData(), &handle);
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(handle, sql.toUtf8().constData(), -1, &statement, nullptr);
  const auto [ours, peer] = medians(
      9, [&] { Lista_principal(5); },
      [&] {
        std::vector<std::string> cells;
        while (sqlite3_step(statement) == SQLITE_ROW) {
          for (int column = 0; column < sqlite3_column_count(statement); ++column) {
            const auto* text =
                reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
            cells.emplace_back(text == nullptr ? "" : text);
          }
        }
        sqlite3_reset(statement);
      });
  sqlite3_finalize(statement);
  sqlite3_close(handle);
  print({.measure = QStringLiteral("a name search (code 5) | the same SQL by the C API"),
         .ours = ours / 1000,
         .peer = peer / 1000,
         .target = 1.3,
         .unit = QStringLiteral("ms")});
}

void benchRibbon(frmOficce& window) {
  FaixaRibbon& ribbon = window.Ribbon();
  int step = 0;
  const double move = median(2'001, [&] {
    const QPointF place(20 + step++ % 800, 50);
    QMouseEvent event(QEvent::MouseMove, place, ribbon.mapToGlobal(place), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&ribbon, &event);
  });
  print({.measure = QStringLiteral("a mouse move over the ribbon"),
         .ours = move,
         .target = 50,
         .unit = QStringLiteral("us")});
  const double refresh = median(101, [&] { ribbon.Refresh(); });
  print({.measure = QStringLiteral("Refresh of the ribbon"),
         .ours = refresh / 1000,
         .target = 5,
         .unit = QStringLiteral("ms")});
}

// Waits for the alert that comes up a second after the window, and closes it.
void dismissAlert() {
  QEventLoop waiting;
  QTimer operatorAtWork;
  QObject::connect(&operatorAtWork, &QTimer::timeout, &waiting, [&waiting] {
    if (QWidget* alert = OpenForms::find(QStringLiteral("frmAviso"))) {
      alert->close();
      waiting.quit();
    }
  });
  operatorAtWork.start(50);
  waiting.exec();
}

}  // namespace

void benchMainWindow() {
  caminhos.geral = benchmarkDatabase();
  Abre_conexao();
  QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
  database.setDatabaseName(benchmarkDatabase());
  database.open();
  Clock::stopAt(DateTime::of(2014, 11, 21, 10, 30));
  {
    frmOficce window;
    window.show();
    dismissAlert();
    for (int filter = 0; filter < 5; ++filter) {
      benchFilter(window, filter);
    }
    benchListMemory(window);
    benchSort(window);
    benchNameSearch();
    benchRibbon(window);
  }
  database.close();
  Fecha_banco();
}

}  // namespace quartela::bench
