// Travel sheets, transport sheets and the cities.
#include "tests/database/statements/StatementCase.h"

namespace quartela::test {

namespace {

void addTravel(StatementCases& cases, const Samples& samples) {
  cases << StatementCase{.name = "travel: the table's bare name",
                         .statement = "Viagem",
                         .expected = "SELECT * FROM Viagem"};
  cases << StatementCase{.name = "travel: sheets of a process",
                         .statement =
                             "SELECT Viagem.Item, Viagem.Data_saida, Viagem.Destino "
                             "FROM Viagem where Viagem.processo=" +
                             digits(samples.sheetCommitment),
                         .expected =
                             "SELECT ITEM, DATA_SAIDA, DESTINO FROM Viagem "
                             "WHERE PROCESSO = " +
                             plain(samples.sheetCommitment)};
  for (const char* head :
       {"Select * from Viagem WHERE ITEM =", "Select * From Viagem WHERE ITEM ="}) {
    cases << StatementCase{.name = "travel: one sheet",
                           .statement = head + digits(samples.sheet),
                           .expected = "SELECT * FROM Viagem WHERE ITEM = " + plain(samples.sheet)};
  }
  cases << StatementCase{.name = "travel: notes of a sheet",
                         .statement =
                             "SELECT PrestContas.SEQ, PrestContas.DATA, PrestContas.ORDEM, "
                             "PrestContas.HISTORICO, PrestContas.DESPESAS From PrestContas Where "
                             "PrestContas.Processo =" +
                             digits(samples.sheetCommitment) + " AND PrestContas.ID_VIAGEM = " +
                             digits(samples.sheet) + " ORDER BY PrestContas.DATA, PrestContas.SEQ;",
                         .expected =
                             "SELECT SEQ, DATA, ORDEM, HISTORICO, DESPESAS FROM PrestContas "
                             "WHERE ID_VIAGEM = " +
                             plain(samples.sheet) +
                             " AND PROCESSO = " + plain(samples.sheetCommitment),
                         .order = {{1}, {0}}};
  cases << StatementCase{
      .name = "travel: printed sheet",
      .statement =
          "SELECT Sel_Viagem.*, PrestContas.DATA, PrestContas.ORDEM, "
          "PrestContas.HISTORICO, PrestContas.DESPESAS FROM Sel_Viagem INNER JOIN "
          "PrestContas ON Sel_Viagem.ITEM = PrestContas.ID_VIAGEM "
          "WHERE (((Sel_Viagem.ITEM)=" +
          digits(samples.sheet) + ")) Order By PrestContas.DATA;",
      .expected =
          "SELECT v.ITEM, v.ORGAO, v.VEICULO, v.MOTIVO, v.LOCALIDADE, v.DISTANCIA, "
          "v.PLACA, v.DATA_SAIDA, v.DATA_CHEGADA, v.HSAIDA, v.HCHEGADA, v.DESTINO, v.UF, "
          "v.PARTICIPANTES, v.OBS, v.MOTORISTA, n.DATA, n.ORDEM, n.HISTORICO, n.DESPESAS "
          "FROM PrestContas n, Viagem v WHERE v.ITEM = n.ID_VIAGEM AND n.ID_VIAGEM = " +
          plain(samples.sheet),
      .order = {{16}}};
}

void addCities(StatementCases& cases, const Samples& samples) {
  cases << StatementCase{.name = "cities of a state",
                         .statement = "Select DISTINCT * from Cidades where uf = 'MG'",
                         .expected = "SELECT * FROM Cidades WHERE uf = 'MG'"};
  cases << StatementCase{.name = "cities of a state, typed small",
                         .statement = "Select DISTINCT * from Cidades where uf = 'es'",
                         .expected = "SELECT * FROM Cidades WHERE uf = 'ES'"};
  cases << StatementCase{
      .name = "distance of a city",
      .statement = "Select distancia from Cidades where id = " + digits(samples.city),
      .expected = "SELECT distancia FROM Cidades WHERE id = " + plain(samples.city)};
}

void addTransport(StatementCases& cases, const Samples& samples) {
  cases << StatementCase{.name = "transport: the table's bare name",
                         .statement = "IdentificaTransp",
                         .expected = "SELECT * FROM IdentificaTransp"};
  cases << StatementCase{.name = "transport: sheets of a process, the newest first",
                         .statement = "Select * From IdentificaTransp Where PROCESSO = " +
                                      digits(samples.transportCommitment) + " ORDER BY ITEM DESC;",
                         .expected = "SELECT * FROM IdentificaTransp WHERE PROCESSO = " +
                                     plain(samples.transportCommitment),
                         .order = {{0, true}}};
  cases << StatementCase{
      .name = "transport: one sheet",
      .statement = "select * from IdentificaTransp where ITEM = " + digits(samples.transport),
      .expected = "SELECT * FROM IdentificaTransp WHERE ITEM = " + plain(samples.transport)};
  cases << StatementCase{
      .name = "transport: printed sheet",
      .statement =
          "SELECT IdentificaTransp.DATA, IdentificaTransp.DESTINO, IdentificaTransp.LOCALIDADE, "
          "IdentificaTransp.VEÍCULO, IdentificaTransp.PLACA, IdentificaTransp.HSAIDA, "
          "IdentificaTransp.HCHEGADA, IdentificaTransp.MOTORISTA, IdentificaTransp.ACOMPANHANTE, "
          "IdentificaTransp.OBS, IdentificaTransp.MOTIVO, ItensTransp.DATADOC, "
          "ItensTransp.RAZAO, ItensTransp.DOCUMENTO, ItensTransp.VALOR FROM IdentificaTransp "
          "INNER JOIN ItensTransp ON IdentificaTransp.ITEM = ItensTransp.IDENT_TRANSP "
          "WHERE IdentificaTransp.ITEM = " +
          digits(samples.transport),
      .expected =
          "SELECT s.DATA, s.DESTINO, s.LOCALIDADE, s.\"VEÍCULO\", s.PLACA, s.HSAIDA, "
          "s.HCHEGADA, s.MOTORISTA, s.ACOMPANHANTE, s.OBS, s.MOTIVO, d.DATADOC, d.RAZAO, "
          "d.DOCUMENTO, d.VALOR FROM ItensTransp d, IdentificaTransp s "
          "WHERE s.ITEM = d.IDENT_TRANSP AND d.IDENT_TRANSP = " +
          plain(samples.transport)};
}

void addDocuments(StatementCases& cases, const Samples& samples) {
  const QString head =
      "SELECT ItensTransp.IDENTIFICA, ItensTransp.DATADOC, ItensTransp.RAZAO, "
      "ItensTransp.DOCUMENTO, ItensTransp.VALOR ";
  const QByteArray plainHead =
      "SELECT d.IDENTIFICA, d.DATADOC, d.RAZAO, d.DOCUMENTO, d.VALOR FROM ItensTransp d ";
  cases << StatementCase{.name = "document: the table's bare name",
                         .statement = "ItensTransp",
                         .expected = "SELECT * FROM ItensTransp"};
  cases << StatementCase{
      .name = "document: one to alter",
      .statement = "Select * from ItensTransp where IDENTIFICA = " + digits(samples.document),
      .expected = "SELECT * FROM ItensTransp WHERE IDENTIFICA = " + plain(samples.document)};
  cases << StatementCase{
      .name = "documents of a sheet",
      .statement =
          head + "From ItensTransp WHERE ItensTransp.IDENT_TRANSP =" + digits(samples.transport),
      .expected = plainHead + "WHERE d.IDENT_TRANSP = " + plain(samples.transport)};
  cases << StatementCase{
      .name = "documents of a process",
      .statement = head +
                   "FROM IdentificaTransp INNER JOIN ItensTransp ON "
                   "IdentificaTransp.ITEM=ItensTransp.IDENT_TRANSP WHERE "
                   "IdentificaTransp.Processo =" +
                   digits(samples.transportCommitment) +
                   " ORDER BY ItensTransp.DATADOC, ItensTransp.IDENTIFICA;",
      .expected = plainHead +
                  "WHERE d.IDENT_TRANSP IN (SELECT ITEM FROM IdentificaTransp WHERE PROCESSO = " +
                  plain(samples.transportCommitment) + ")",
      .order = {{1}, {0}}};
}

}  // namespace

void addSheetCases(StatementCases& cases, const Samples& samples) {
  addTravel(cases, samples);
  addCities(cases, samples);
  addTransport(cases, samples);
  addDocuments(cases, samples);
}

}  // namespace quartela::test
