// The process screen with 700,000 notes in the file, beside the toolkit's own; and whether its cost
// grows with the file.
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTabWidget>
#include <QTreeView>
#include <memory>

#include "benchmarks/EngineText.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Toolkit.h"
#include "demonstration/DataMaker.h"
#include "foundation/Abertura.h"
#include "foundation/Banco.h"
#include "foundation/Caminhos.h"
#include "foundation/Rotinas.h"
#include "platform/controls/ListView.h"
#include "platform/values/Clock.h"
#include "platform/values/Convert.h"
#include "records/Principal.h"
#include "records/cPrestContas.h"
#include "screens/frmCadastro.h"

namespace quartela::bench {
namespace {

const QString kRows = QStringLiteral("bench");
constexpr int kNotes = 500;

// The first cell of the first row, read beside the program's own connection.
QString ask(const QString& sql) {
  QSqlQuery query(sql, QSqlDatabase::database(kRows));
  return query.next() ? query.value(0).toString() : QString();
}

void openDatabase(const QString& path) {
  caminhos.geral = path;
  Abre_conexao();
  QSqlDatabase peer = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), kRows);
  peer.setDatabaseName(path);
  peer.open();
}

void closeDatabase() {
  QSqlDatabase::removeDatabase(kRows);
  Fecha_banco();
}

// A process with an empenho and notes, of those that the main list can open.
QString anyProcess() {
  return ask(
      QStringLiteral("SELECT PROCESSO FROM Adiantamento WHERE PROCESSO <= 32767 AND EMPENHO "
                     "IN (SELECT PROCESSO FROM PrestContas) LIMIT 1 OFFSET 100"));
}

void openProcess() {
  frmCadastro window;
  window.show();
  paint(window);
}

template <typename Control>
int countOf(const QWidget& window) {
  return static_cast<int>(window.findChildren<Control*>().size());
}

struct Counts {
  int labels;
  int lines;
  int buttons;
  int combos;
  int texts;
  int checks;
  int lists;
  int groups;
  int tabs;
};

Counts controlsOf(const QWidget& window) {
  return {countOf<QLabel>(window),    countOf<QLineEdit>(window),      countOf<QPushButton>(window),
          countOf<QComboBox>(window), countOf<QPlainTextEdit>(window), countOf<QCheckBox>(window),
          countOf<ListView>(window),  countOf<QGroupBox>(window),      countOf<QTabWidget>(window)};
}

template <typename Control>
void place(QGridLayout& grid, int count) {
  constexpr int kColumns = 8;
  const int row = grid.rowCount();
  for (int i = 0; i < count; ++i) {
    grid.addWidget(new Control, row + i / kColumns, i % kColumns);
  }
}

// As many controls of the toolkit as the screen has, laid out in a grid, with nothing in them.
void openEmptyWindow(const Counts& counts, const QSize& size) {
  QWidget window;
  QGridLayout grid(&window);
  place<QLabel>(grid, counts.labels);
  place<QLineEdit>(grid, counts.lines);
  place<QPushButton>(grid, counts.buttons);
  place<QComboBox>(grid, counts.combos);
  place<QPlainTextEdit>(grid, counts.texts);
  place<QCheckBox>(grid, counts.checks);
  place<QTreeView>(grid, counts.lists);
  place<QGroupBox>(grid, counts.groups);
  place<QTabWidget>(grid, counts.tabs);
  window.resize(size);
  window.show();
  paint(window);
}

void benchOpening() {
  Counts counts{};
  QSize size;
  {
    const frmCadastro window;
    counts = controlsOf(window);
    size = window.size();
  }
  const auto [ours, peer] = medians(15, openProcess, [&] { openEmptyWindow(counts, size); });
  print({.measure = QStringLiteral("frmCadastro on a process, painted | as many controls"),
         .ours = ours / 1000,
         .peer = peer / 1000,
         .target = 3,
         .unit = QStringLiteral("ms")});
}

// The note entry of an open process, with its search enabled.
class NoteEntry {
 public:
  NoteEntry() {
    window_.show();
    window_.findChild<QPushButton*>(QStringLiteral("cmdPrestacao"))->click();
    window_.findChild<QCheckBox*>(QStringLiteral("Check1"))->setChecked(true);
    supplier_ = window_.findChild<QLineEdit*>(QStringLiteral("txtrazao_social"));
  }

  // One more letter at the end of what is typed.
  void type(const QString& letters) { supplier_->setText(letters); }

  QString text() const { return supplier_->text(); }

 private:
  frmCadastro window_;
  QLineEdit* supplier_ = nullptr;
};

void benchKeystroke() {
  NoteEntry entry;
  double worst = 0;
  for (const char* letters : {"P", "PA", "PAP", "A", "SU", "H", "RESTAURANTE", "XYZ"}) {
    worst = std::max(worst, median(21, [&] { entry.type(QString::fromLatin1(letters)); }));
  }
  if (entry.text() == QStringLiteral("P")) {
    qFatal("the search proposes nothing");
  }
  print({.measure = QStringLiteral("a keystroke in the search for a history, the slowest of 8"),
         .ours = worst / 1000,
         .target = 2,
         .unit = QStringLiteral("ms")});
}

// An empenho with that many notes, made of one that is there.
std::int32_t crowdedEmpenho() {
  const QString number = ask(QStringLiteral("SELECT PROCESSO FROM PrestContas LIMIT 1"));
  const int missing =
      kNotes - ask("SELECT count(*) FROM PrestContas WHERE PROCESSO = " + number).toInt();
  QSqlQuery fill(QSqlDatabase::database(kRows));
  fill.exec(QStringLiteral("WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n WHERE "
                           "i < %1) INSERT INTO PrestContas (PROCESSO, DATA, ORDEM, HISTORICO, "
                           "DESPESAS) SELECT %2, '2014-03-04 00:00:00', 'NF ' || i, 'PAPELARIA ' "
                           "|| i, i * 1000 FROM n")
                .arg(missing)
                .arg(number));
  return number.toInt();
}

void benchNotes(std::int32_t empenho) {
  ListView list;
  list.resize(1000, 400);
  for (int column = 0; column < 6; ++column) {
    list.addColumn(QString::number(column), ColumnWidth::pixels(150));
  }
  const QString sql = QString::fromStdString(
      engineText("Select * from PrestContas Where PROCESSO = " + QString::number(empenho) +
                     " Order by DATA, SEQ;",
                 Conexao->catalogue()));
  cPrestContas& notes = cPrestContas::compartilhada();
  notes.processo = empenho;
  const auto [ours, peer] = medians(
      15,
      [&] {
        notes.Lista_Prest(list);
        list.flush();
        paint(list);
      },
      [&] {
        QSqlQueryModel model;
        QTableView view;
        view.resize(list.size());
        model.setQuery(sql, QSqlDatabase::database(kRows));
        showAllRows(model, view);
      });
  if (list.count() != kNotes) {
    qFatal("%d notes instead of %d", list.count(), kNotes);
  }
  print(
      {.measure = QStringLiteral("Lista_Prest of 500 notes, painted | QSqlQueryModel, QTableView"),
       .ours = ours / 1000,
       .peer = peer / 1000,
       .target = 1,
       .unit = QStringLiteral("ms")});
}

QString databaseOf(int processes) {
  const QString path =
      QDir::temp().filePath(QStringLiteral("quartela-bench-%1.mdb").arg(processes));
  QFile::remove(path);
  demonstration::makeDatabase(path, {.today = DateTime::of(2014, 11, 21, 0, 0),
                                     .processes = processes,
                                     .notes = std::nullopt,
                                     .seed = 1});
  return path;
}

struct Costs {
  double opening = 0;
  double keystroke = 0;
};

Costs costsIn(const QString& path) {
  openDatabase(path);
  Tag_principal = anyProcess();
  Costs costs;
  costs.opening = median(15, openProcess);
  {
    NoteEntry entry;
    costs.keystroke = median(101, [&] { entry.type(QStringLiteral("PA")); });
  }
  closeDatabase();
  return costs;
}

void printGrowth(const QString& measure, double ours, double peer, const QString& unit) {
  print({.measure = measure, .ours = ours, .peer = peer, .target = 1.3, .unit = unit});
}

// The cost must not grow with the number of processes.
void benchGrowth(const Costs& large) {
  for (const int processes : {1'000, 10'000}) {
    const QString path = databaseOf(processes);
    const Costs small = costsIn(path);
    QFile::remove(path);
    const QString sizes = QStringLiteral("100,000 processes | %1").arg(processes);
    printGrowth("frmCadastro, " + sizes, large.opening / 1000, small.opening / 1000,
                QStringLiteral("ms"));
    printGrowth("a keystroke in the search, " + sizes, large.keystroke, small.keystroke,
                QStringLiteral("us"));
  }
}

}  // namespace

void benchProcess() {
  Clock::stopAt(DateTime::of(2014, 11, 21, 10, 30));
  ModoAlteracao = -1;
  // A copy, since it gets notes of its own.
  const QString path = QDir::temp().filePath(QStringLiteral("quartela-bench-process.mdb"));
  QFile::remove(path);
  QFile::copy(benchmarkDatabase(), path);
  openDatabase(path);
  Tag_principal = anyProcess();
  benchOpening();
  benchKeystroke();
  benchNotes(crowdedEmpenho());
  closeDatabase();
  QFile::remove(path);
  benchGrowth(costsIn(benchmarkDatabase()));
}

}  // namespace quartela::bench
