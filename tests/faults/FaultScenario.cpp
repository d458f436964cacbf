#include "tests/faults/FaultScenario.h"

#include <QFile>
#include <QSize>

#include "foundation/Abertura.h"
#include "foundation/Banco.h"
#include "foundation/Caminhos.h"
#include "foundation/Ini.h"
#include "masterdata/cOrgao.h"
#include "platform/files/AtomicFile.h"
#include "platform/reporting/Document.h"
#include "platform/reporting/Output.h"
#include "records/Numeracao.h"
#include "records/cAdiantamento.h"
#include "records/cPrestContas.h"
#include "records/cRequisicao.h"
#include "tests/support/office/Samples.h"

namespace quartela::test::faults {
namespace {

const QByteArray kConfig("[Diretorio]\ncaminhogeral=Banco.mdb\n[Financas]\nnome=antes\n");
const QByteArray kNewConfig("[Diretorio]\ncaminhogeral=Banco.mdb\n[Financas]\nnome=depois\n");
const QByteArray kCounter("[Contador]\nano=2013\nnumber=327\n");
const QByteArray kNewCounter("[Contador]\nano=2014\nnumber=101\n");
const QString kLong = QStringLiteral("Despesas miúdas de pronto pagamento. ").repeated(150);

bool savesRequisition(std::int32_t seq) {
  cRequisicao row;
  row.Seq = seq;
  row.Data = DateTime::of(2014, 11, 20);
  row.Orgao = row.Tomador = row.Finalidade = 1;
  row.Valor = Money::fromUnits(seq);
  row.Justificativa = kLong;
  return row.Save_req(1);
}

Step requisition(const char* name, std::int32_t seq) {
  const QByteArray key = QByteArray::number(seq);
  const QByteArray length = QByteArray::number(kLong.size());
  return {name,
          [seq] { return savesRequisition(seq); },
          "SELECT count(*) * (1 + sum(VALOR <> " + key + " OR length(JUSTIFICATIVA) <> " + length +
              ")) FROM Requisicao WHERE SEQ = " + key,
          {},
          {},
          {}};
}

bool savesAdvance() {
  cAdiantamento row;
  row.processo = 114;
  row.Empenho = 70014;
  row.Abertura = row.Retirada = row.Fechar = Value(DateTime::of(2014, 11, 20));
  row.OP = 9;
  // It does not tell whether it was written; the boxes do.
  row.Save_ad(1);
  return true;
}

bool savesNote(const QString& order, bool imported) {
  cPrestContas row;
  row.processo = 50014;
  row.Data = DateTime::of(2014, 11, 21);
  row.Ordem = order;
  row.Historico = kLong;
  row.Despesas = Money::fromCents(4200);
  if (imported) {
    row.Save_import();
    return true;
  }
  return row.Save_prest(1);
}

Step note(const char* name, const QString& order, bool imported) {
  return {name,
          [order, imported] { return savesNote(order, imported); },
          "SELECT count(*) * (1 + sum(DESPESAS <> 420000)) FROM PrestContas WHERE ORDEM = '" +
              order.toUtf8() + '\'',
          {},
          {},
          {}};
}

bool savesSecretariat() {
  cOrgao row;
  row.Orgao = QStringLiteral("Obras");
  return row.Save_Orgao(1);
}

bool deletes(const QString& command) {
  try {
    Conexao->beginTransaction();
    Conexao->execute(command);
    Conexao->commit();
    return true;
  } catch (const RuntimeError&) {
    if (Conexao->inTransaction()) {
      Conexao->rollback();
    }
    return false;
  }
}

// `rows` counts what the deletion takes; all of it stands there before.
Step deletion(const char* name, const char* command, const char* rows, int all) {
  return {name,
          [command] { return deletes(QString::fromLatin1(command)); },
          QByteArray("SELECT CASE (") + rows + ") WHEN 0 THEN 1 WHEN " + QByteArray::number(all) +
              " THEN 0 ELSE -1 END",
          {},
          {},
          {}};
}

Step onFile(const char* name, std::function<bool()> act, const char* file, const QByteArray& before,
            const QByteArray& after) {
  return {name, std::move(act), {}, file, before, after};
}

bool writesPdf(const QString& path) {
  reporting::Document document(QStringLiteral("Prestação"), QSize(11906, 16838));
  document.addPage({});
  document.addPage({});
  document.complete();
  reporting::exportPdf(document, path);
  return true;
}

void write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
    qFatal("%s cannot be written", qPrintable(path));
  }
}

}  // namespace

std::vector<Step> stepsOf(const QString& folder) {
  const QByteArray lines = QByteArray("1;2;3\r\n").repeated(2000);
  const QString text = folder + QStringLiteral("/notas.txt");
  const QString pdf = folder + QStringLiteral("/notas.pdf");
  const auto opens = [] {
    Abre_conexao();
    return true;
  };
  const auto sets = [] {
    Grava_ini(QStringLiteral("Financas"), QStringLiteral("nome"), QStringLiteral("depois"),
              QStringLiteral("Config.ini"));
    return true;
  };
  const auto counts = [] {
    Grava_contador(QStringLiteral("2014"), QStringLiteral("101"), QStringLiteral("Number.Ini"));
    return true;
  };
  return {
      {"opening", opens, {}, {}, {}, {}},
      requisition("save 1", 10114),
      onFile("counter", counts, "Number.Ini", kCounter, kNewCounter),
      requisition("save 2", 10214),
      requisition("save 3", 10314),
      {"save 4",
       savesAdvance,
       "SELECT count(*) * (1 + sum(PROCESSO <> 114 OR OP <> 9)) FROM Adiantamento WHERE EMPENHO = "
       "70014",
       {},
       {},
       {}},
      note("save 5", QStringLiteral("N5"), true),
      note("save 6", QStringLiteral("N6"), false),
      {"save 7", savesSecretariat, "SELECT count(*) FROM Orgao WHERE ORGAO = 'Obras'", {}, {}, {}},
      deletion("delete 1", "DELETE FROM Requisicao WHERE SEQ = 214",
               "SELECT (SELECT count(*) FROM Requisicao WHERE SEQ = 214) + (SELECT count(*) FROM "
               "Adiantamento WHERE EMPENHO = 60014) + (SELECT count(*) FROM PrestContas WHERE "
               "PROCESSO = 60014)",
               42),
      deletion("delete 2", "DELETE FROM PrestContas WHERE PROCESSO = 50014 AND ORDEM = 'velha'",
               "SELECT count(*) FROM PrestContas WHERE ORDEM = 'velha'", 1),
      deletion("delete 3", "DELETE FROM Orgao WHERE IDORGAO = 9",
               "SELECT count(*) FROM Orgao WHERE IDORGAO = 9", 1),
      deletion("delete 4", "DELETE FROM Finalidade WHERE ID = 1",
               "SELECT count(*) FROM Finalidade WHERE ID = 1", 1),
      onFile("configuration", sets, "Config.ini", kConfig, kNewConfig),
      onFile(
          "text file",
          [text, lines] {
            replaceFile(text, lines);
            return true;
          },
          "notas.txt", {}, lines),
      onFile(
          "PDF", [pdf] { return writesPdf(pdf); }, "notas.pdf", {}, "%%EOF\n"),
      {"closing",
       [] {
         Fecha_banco();
         return true;
       },
       {},
       {},
       {},
       {}},
  };
}

OfficeFiles::OfficeFiles() {
  const Office office;
  addMasterRows(office);
  addOpenProcess(office);
  office.run(
      "INSERT INTO Requisicao (SEQ, ORGAO, TOMADOR, FINALIDADE) VALUES (214, 1, 1, 1);"
      "INSERT INTO Adiantamento (EMPENHO, PROCESSO) VALUES (60014, 214);"
      "INSERT INTO PrestContas (PROCESSO, HISTORICO) WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL "
      "SELECT i + 1 FROM n WHERE i < 40) SELECT 60014, hex(zeroblob(500)) FROM n;"
      "INSERT INTO PrestContas (PROCESSO, ORDEM) VALUES (50014, 'velha');"
      "INSERT INTO Orgao (IDORGAO, ORGAO) VALUES (9, 'Extinta')");
  Fecha_banco();
  QFile file(office.database());
  if (!file.open(QIODevice::ReadOnly)) {
    qFatal("the database cannot be read");
  }
  database_ = file.readAll();
}

void OfficeFiles::layOut(const QString& folder) const {
  write(folder + QStringLiteral("/Banco.mdb"), database_);
  write(folder + QStringLiteral("/Config.ini"), kConfig);
  write(folder + QStringLiteral("/Number.Ini"), kCounter);
}

}  // namespace quartela::test::faults
