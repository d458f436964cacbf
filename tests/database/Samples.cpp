#include "tests/database/Samples.h"

#include "demonstration/DataMaker.h"

namespace quartela::test {

namespace {

constexpr auto kEdgeRows = R"sql(
INSERT INTO Requisicao (SEQ, DATA, VALOR) VALUES (990114, '2014-11-20 00:00:00', 1234500);
UPDATE Tomador SET NOME1 = 'JOÃO ÉLCIO D''ÁVILA' WHERE ID = 5;
UPDATE Tomador SET NOME1 = 'josé joão de sant''ana' WHERE ID = 9;
UPDATE Orgao SET ORGAO = 'SECRETARIA DE SAÚDE' WHERE ORGAO = 'Secretaria de Saúde';
INSERT INTO PrestContas (PROCESSO, DATA, ORDEM, HISTORICO, DESPESAS, ID_VIAGEM)
  SELECT EMPENHO, RETIRADA, 'Nf 1', NULL, 12345, 0 FROM Adiantamento;
)sql";

QByteArray where(const char* sql, int key) {
  return QByteArray(sql) + QByteArray::number(key);
}

}  // namespace

void makeSampleDatabase(const QString& path) {
  demonstration::Options options;
  options.today = DateTime::of(kYear, 11, 21);
  options.processes = 300;
  options.seed = 7;
  demonstration::makeDatabase(path, options);
  if (PlainDatabase(path).run(kEdgeRows) != 0) {
    qFatal("the sample rows were refused");
  }
}

Samples::Samples(PlainDatabase& plain) {
  commitment = plain.number(
      "SELECT a.EMPENHO FROM Adiantamento a JOIN PrestContas n ON n.PROCESSO = a.EMPENHO "
      "WHERE a.FECHAMENTO IS NOT NULL GROUP BY a.EMPENHO ORDER BY count(*) DESC, 1 LIMIT 1");
  process = plain.number(where("SELECT PROCESSO FROM Adiantamento WHERE EMPENHO = ", commitment));
  openProcess = plain.number(
      "SELECT max(PROCESSO) FROM Adiantamento WHERE FECHAMENTO IS NULL AND PROCESSO % 100 = 14");
  requisitionOnly = plain.number(
      "SELECT SEQ FROM Requisicao WHERE ORGAO IS NOT NULL AND SEQ NOT IN "
      "(SELECT PROCESSO FROM Adiantamento) ORDER BY DATA DESC, SEQ LIMIT 1");
  orphan = plain.number("SELECT SEQ FROM Requisicao WHERE ORGAO IS NULL");
  note = plain.number(where("SELECT max(SEQ) FROM PrestContas WHERE PROCESSO = ", commitment));
  person = plain.number(where("SELECT TOMADOR FROM Requisicao WHERE SEQ = ", openProcess));
  type = plain.number(where("SELECT FINALIDADE FROM Requisicao WHERE SEQ = ", openProcess));
  allocation = plain.number(where("SELECT max(DOTACAO) FROM Dotacao WHERE IDTIPO = ", type));
  orderer = plain.number(where("SELECT ORGAO FROM Requisicao WHERE SEQ = ", openProcess));
  secretariat = plain.number(where("SELECT IDORGAO FROM Executor WHERE ORDEM = ", orderer));
  standalone = plain.number("SELECT max(SEQ) FROM ReqAvulso");
  sheet = plain.number(
      "SELECT ID_VIAGEM FROM PrestContas WHERE ID_VIAGEM > 0 GROUP BY 1 "
      "ORDER BY count(*) DESC, 1 LIMIT 1");
  sheetCommitment = plain.number(where("SELECT PROCESSO FROM Viagem WHERE ITEM = ", sheet));
  transport = plain.number(
      "SELECT IDENT_TRANSP FROM ItensTransp GROUP BY 1 ORDER BY count(*) DESC, 1 LIMIT 1");
  transportCommitment =
      plain.number(where("SELECT PROCESSO FROM IdentificaTransp WHERE ITEM = ", transport));
  document = plain.number(
      where("SELECT max(IDENTIFICA) FROM ItensTransp WHERE IDENT_TRANSP = ", transport));
  clause = plain.number(where("SELECT max(ID) FROM Inciso WHERE TIPO = ", type));
  allocationKey = plain.number(where("SELECT max(ID) FROM Dotacao WHERE IDTIPO = ", type));
  city = plain.number("SELECT id FROM Cidades WHERE nome = 'Caratinga'");
}

}  // namespace quartela::test
