// The database layer beside the engine's own C API.
#include <sqlite3.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <string>

#include "benchmarks/EngineText.h"
#include "benchmarks/Measure.h"
#include "database/Builder.h"
#include "demonstration/DataMaker.h"
#include "foundation/Abertura.h"
#include "foundation/Banco.h"
#include "foundation/Caminhos.h"
#include "foundation/Verificacao.h"
#include "platform/database/engines/sqlite/FileCheck.h"
#include "platform/dialogs/Dialogs.h"
#include "records/cRequisicao.h"

namespace quartela::bench {
namespace {

constexpr int kProcesses = 100'000;
constexpr int kNotes = 700'000;

void makeTown(const QString& path, int processes, int notes) {
  demonstration::makeDatabase(
      path, {.today = DateTime::of(2014, 11, 21), .processes = processes, .notes = notes});
}

// The engine's own connection to a database file, open for the life of the object.
class PlainEngine {
 public:
  explicit PlainEngine(const QString& path) {
    check(sqlite3_open_v2(path.toUtf8().constData(), &handle_, SQLITE_OPEN_READWRITE, nullptr));
    run("PRAGMA journal_mode = DELETE");
    run("PRAGMA synchronous = EXTRA");
    run("PRAGMA cache_spill = OFF");
    run("PRAGMA foreign_keys = ON");
  }
  ~PlainEngine() { sqlite3_close(handle_); }
  PlainEngine(const PlainEngine&) = delete;
  PlainEngine& operator=(const PlainEngine&) = delete;

  void run(const char* sql) { check(sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr)); }

  sqlite3_stmt* prepare(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr));
    return statement;
  }

 private:
  void check(int code) {
    if (code != SQLITE_OK) {
      qFatal("%s", sqlite3_errmsg(handle_));
    }
  }
  sqlite3* handle_ = nullptr;
};

void openConnection(const QString& path) {
  caminhos.geral = path;
  Abre_conexao();
}

// One cell as the peer keeps it.
struct Cell {
  std::int64_t number = 0;
  std::string text;
};

struct CellCopies {
  std::vector<Cell> cells;
  double bytes = 0;
};

CellCopies copyEachCell(sqlite3_stmt* statement) {
  CellCopies copies;
  const int columns = sqlite3_column_count(statement);
  while (sqlite3_step(statement) == SQLITE_ROW) {
    for (int column = 0; column < columns; ++column) {
      Cell& cell = copies.cells.emplace_back();
      if (sqlite3_column_type(statement, column) == SQLITE_TEXT) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        cell.text.assign(text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
        copies.bytes += static_cast<double>(cell.text.size());
      } else {
        cell.number = sqlite3_column_int64(statement, column);
        copies.bytes += sizeof(cell.number);
      }
    }
  }
  sqlite3_reset(statement);
  return copies;
}

const QString kAllProcesses = QStringLiteral("SELECT * FROM Sel_Req_left ");

int readEachCell(Recordset& rows) {
  int filled = 0;
  const int fields = rows.fieldCount();
  for (; !rows.eof(); rows.moveNext()) {
    for (int field = 0; field < fields; ++field) {
      filled += rows.field(field).isNull() ? 0 : 1;
    }
  }
  return filled;
}

void loadAndRead() {
  Recordset rows;
  rows.open(kAllProcesses, *Conexao, CursorType::Static, LockType::Optimistic);
  if (rows.recordCount() != kProcesses || readEachCell(rows) == 0) {
    qFatal("the benchmark's database is not whole");
  }
}

// The operator who always says yes.
class Yes : public DialogHost {
 public:
  Yes() { Dialogs::setHost(this); }
  ~Yes() override { Dialogs::setHost(nullptr); }
  Button box(const Box& box) override { return box.buttons.first(); }
  QString openFile(const FileRequest&) override { return {}; }
  QString saveFile(const FileRequest&) override { return {}; }
  QString pickFolder(const QString&) override { return {}; }
  QString input(const InputRequest&) override { return {}; }
  bool printer(QPrinter&) override { return false; }
};

const char* kInsert =
    "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE, JUSTIFICATIVA, FICHA) "
    "VALUES (?1, '2014-11-20 00:00:00', 1, 1, 12345600, 1, ?2, '128')";

void insertByEngine(sqlite3_stmt* insert, std::int32_t seq, const QByteArray& justification) {
  sqlite3_bind_int(insert, 1, seq);
  sqlite3_bind_text(insert, 2, justification.constData(), -1, SQLITE_STATIC);
  if (sqlite3_step(insert) != SQLITE_DONE) {
    qFatal("the peer's insert failed");
  }
  sqlite3_reset(insert);
}

}  // namespace

QString benchmarkDatabase() {
  const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/benchmark.mdb");
  if (!QFile::exists(path)) {
    const QString unfinished = path + QStringLiteral(".new");
    QFile::remove(unfinished);
    makeTown(unfinished, kProcesses, kNotes);
    QFile::rename(unfinished, path);
  }
  return path;
}

void benchRecordset() {
  openConnection(benchmarkDatabase());
  PlainEngine engine(benchmarkDatabase());
  const std::string sql = engineText(kAllProcesses, Conexao->catalogue());
  sqlite3_stmt* statement = engine.prepare(sql);
  const auto [ours, peer] = medians(
      9, [] { loadAndRead(); }, [&] { copyEachCell(statement); });
  print({.measure = QStringLiteral("100,000 x 13 into a Recordset, each cell read | C API, copied"),
         .ours = ours / 1000,
         .peer = peer / 1000,
         .target = 1.5,
         .unit = QStringLiteral("ms")});
  const double bytes = copyEachCell(statement).bytes;
  sqlite3_finalize(statement);
  const double growth = peakGrowth([] { loadAndRead(); });
  print({.measure = QStringLiteral("  its memory at the peak | bytes of the cells"),
         .ours = growth / 1e6,
         .peer = bytes / 1e6,
         .target = 3,
         .unit = QStringLiteral("MB")});
  Fecha_banco();
}

void benchDialect() {
  openConnection(benchmarkDatabase());
  const QString longest = QStringLiteral(
      "SELECT Requisicao.SEQ, Tomador.NOME1, Tipos.ELEMENTO, Adiantamento.ABERTURA, "
      "Adiantamento.EMPENHO, Adiantamento.RETIRADA, Adiantamento.FECHAR_EM, "
      "Adiantamento.FECHAMENTO, "
      "(Adiantamento.FECHAMENTO - Adiantamento.RETIRADA)AS DIAS "
      "FROM Tipos INNER JOIN ((Tomador INNER JOIN Requisicao ON Tomador.ID = Requisicao.TOMADOR) "
      "INNER JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO) ON Tipos.SEQUENCIA = "
      "Requisicao.FINALIDADE WHERE Adiantamento.ABERTURA Between #2014/01/01# AND #2014/12/31# "
      "ORDER BY Adiantamento.ABERTURA, Requisicao.SEQ;");
  const Catalogue& catalogue = Conexao->catalogue();
  print({.measure = QStringLiteral("the longest statement to engine text"),
         .ours = median(2'001, [&] { engineText(longest, catalogue); }),
         .target = 40,
         .unit = QStringLiteral("us")});
  Fecha_banco();
}

void benchSave() {
  QTemporaryDir folder;
  const QString oursPath = folder.filePath(QStringLiteral("ours.mdb"));
  const QString peerPath = folder.filePath(QStringLiteral("peer.mdb"));
  makeTown(oursPath, 100, 700);
  QFile::copy(oursPath, peerPath);
  openConnection(oursPath);
  PlainEngine engine(peerPath);
  sqlite3_stmt* insert = engine.prepare(kInsert);
  const QByteArray justification = QByteArray("Despesas miúdas de pronto pagamento. ").repeated(4);
  Yes yes;
  cRequisicao requisition;
  requisition.Data = DateTime::of(2014, 11, 20);
  requisition.Orgao = requisition.Tomador = requisition.Finalidade = 1;
  requisition.Valor = Money::fromCents(123'456);
  requisition.Justificativa = QString::fromUtf8(justification);
  requisition.Ficha = QStringLiteral("128");
  std::int32_t ourSeq = 90'000'000;
  std::int32_t peerSeq = ourSeq;
  const auto [ours, peer] = medians(
      1'001,
      [&] {
        requisition.Seq = ++ourSeq;
        requisition.Save_req(1);
      },
      [&] { insertByEngine(insert, ++peerSeq, justification); });
  sqlite3_finalize(insert);
  print({.measure = QStringLiteral("Save_req | the same insert by the C API"),
         .ours = ours,
         .peer = peer,
         .target = 1.2,
         .unit = QStringLiteral("us")});
  const QByteArray path = QFile::encodeName(oursPath);
  print({.measure = QStringLiteral("  of it: the open file is the one at the path, asked twice"),
         .ours = median(2'001,
                        [&] {
                          sqlite::identityOf(path.constData());
                          sqlite::identityOf(path.constData());
                        }),
         .target = 10,
         .unit = QStringLiteral("us")});
  Fecha_banco();
}

// The office's file opened and its list read, with the check for damage to come as at a login.
void benchDamageCheck() {
  const QString path = benchmarkDatabase();
  const auto [ours, peer] = medians(
      9,
      [&] {
        // Without a note of the last one a check is due at every opening.
        const QTemporaryDir noDates;
        qputenv("XDG_DATA_HOME", QFile::encodeName(noDates.path()));
        openConnection(path);
        Agenda_verificacao(path);
        loadAndRead();
        Encerra_verificacao();
      },
      [&] {
        openConnection(path);
        loadAndRead();
      });
  qunsetenv("XDG_DATA_HOME");
  Fecha_banco();
  print({.measure = QStringLiteral("opening and first list with the check for damage | without it"),
         .ours = ours / 1000,
         .peer = peer / 1000,
         .target = 1.2,
         .unit = QStringLiteral("ms")});
}

void benchLike() {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("names.mdb"));
  makeTown(path, 100, 700);
  PlainEngine engine(path);
  engine.run(
      "INSERT INTO Tomador(NOME1, ATIVO) WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL "
      "SELECT i + 1 FROM n WHERE i < 2000) SELECT NOME1, 1 FROM Tomador, n LIMIT 100000");
  openConnection(path);
  sqlite3_stmt* plain = engine.prepare("SELECT count(*) FROM Tomador WHERE NOME1 LIKE '%silva%'");
  const auto [ours, peer] = medians(
      15,
      [] {
        Recordset rows;
        rows.open(QStringLiteral("SELECT Count(*) FROM Tomador WHERE NOME1 Like '%silva%'"),
                  *Conexao);
      },
      [&] {
        sqlite3_step(plain);
        sqlite3_reset(plain);
      });
  sqlite3_finalize(plain);
  print({.measure = QStringLiteral("Like '%texto%' over 100,000 names | the engine's LIKE"),
         .ours = ours / 1000,
         .peer = peer / 1000,
         .target = 2.5,
         .unit = QStringLiteral("ms")});
  Fecha_banco();
}

}  // namespace quartela::bench
