// The reference tables: lists, searches, rows to alter and to load.
#include "tests/database/statements/StatementCase.h"

namespace quartela::test {

namespace {

// "Open for alteration", as each record class writes it, and the bare name for an inclusion.
void addRows(StatementCases& cases, const Samples& samples) {
  struct Row {
    const char* statement;
    const char* table;
    const char* key;
    int value;
  };
  const QList<Row> rows = {
      {"select * from Orgao WHERE IDORGAO =", "Orgao", "IDORGAO", samples.secretariat},
      {"select * from Finalidade WHERE ID =", "Finalidade", "ID", 2},
      {"Select * from Executor WHERE ORDEM =", "Executor", "ORDEM", samples.orderer},
      {"Select * from Tomador WHERE ID =", "Tomador", "ID", samples.person},
      {"select * from Tipos WHERE SEQUENCIA =", "Tipos", "SEQUENCIA", samples.type},
      {"Select * from Inciso WHERE ID =", "Inciso", "ID", samples.clause},
      {"Select * from Dotacao WHERE ID =", "Dotacao", "ID", samples.allocationKey}};
  for (const Row& row : rows) {
    cases << StatementCase{.name = row.table,
                           .statement = row.table,
                           .expected = QByteArray("SELECT * FROM ") + row.table};
    cases << StatementCase{.name = row.statement,
                           .statement = row.statement + digits(row.value),
                           .expected = QByteArray("SELECT * FROM ") + row.table + " WHERE " +
                                       row.key + " = " + plain(row.value)};
  }
}

void addLoads(StatementCases& cases, const Samples& samples) {
  cases << StatementCase{
      .name = "orderer: load",
      .statement =
          "Select NOME, RG, CPF, FUNCAO FROM Executor WHERE ORDEM =" + digits(samples.orderer),
      .expected =
          "SELECT NOME, RG, CPF, FUNCAO FROM Executor e WHERE e.ORDEM = " + plain(samples.orderer)};
  cases << StatementCase{.name = "person: load",
                         .statement = "Select NOME1, RG1, CPF1, CARGO FROM Tomador WHERE ID =" +
                                      digits(samples.person),
                         .expected = "SELECT NOME1, RG1, CPF1, CARGO FROM Tomador p WHERE p.ID = " +
                                     plain(samples.person)};
  cases << StatementCase{
      .name = "type: load",
      .statement =
          "Select IDORGAO, TIPO, ELEMENTO, LEI, MATERIAIS, PRAZO, ATIVO From Tipos "
          "WHERE SEQUENCIA =" +
          digits(samples.type),
      .expected =
          "SELECT IDORGAO, TIPO, ELEMENTO, LEI, MATERIAIS, PRAZO, ATIVO FROM Tipos t "
          "WHERE t.SEQUENCIA = " +
          plain(samples.type)};
  cases << StatementCase{
      .name = "clause: load",
      .statement = "Select CATEGORIA, PRAZO FROM Inciso WHERE ID =" + digits(samples.clause),
      .expected = "SELECT CATEGORIA, PRAZO FROM Inciso i WHERE i.ID = " + plain(samples.clause)};
}

void addSmallLists(StatementCases& cases) {
  const QString secretariats = "SELECT Orgao.IDORGAO, Orgao.Orgao ";
  cases << StatementCase{.name = "secretariats: all",
                         .statement = secretariats + "FROM Orgao; ",
                         .expected = "SELECT IDORGAO, ORGAO FROM Orgao"};
  for (const char* text : {"", "secretaria D", "saúde", "ção"}) {
    cases << StatementCase{
        .name = "secretariats: search",
        .statement = secretariats + "FROM Orgao WHERE Orgao.ORGAO Like '%" + text + "%';",
        .expected = "SELECT IDORGAO, ORGAO FROM Orgao",
        .filter = TextFilter{1, text}};
  }
  const QString purposes = "SELECT Finalidade.ID, Finalidade.FINALIDADE ";
  cases << StatementCase{.name = "purposes: all",
                         .statement = purposes + "FROM Finalidade; ",
                         .expected = "SELECT ID, FINALIDADE FROM Finalidade"};
  cases << StatementCase{
      .name = "purposes: search",
      .statement = purposes + "FROM Finalidade WHERE FINALIDADE Like '%via%';",
      .expected = "SELECT ID, FINALIDADE FROM Finalidade WHERE FINALIDADE LIKE '%VIA%'"};
}

void addPeopleLists(StatementCases& cases) {
  const QString orderers =
      "SELECT Executor.ORDEM, Executor.IDORGAO, Executor.NOME, Executor.RG, Executor.CPF, "
      "Executor.FUNCAO, Executor.ATIVO, Orgao.ORGAO FROM Executor, Orgao WHERE "
      "Executor.IDORGAO = Orgao.IDORGAO";
  const QByteArray orderersPlain =
      "SELECT e.ORDEM, e.IDORGAO, e.NOME, e.RG, e.CPF, e.FUNCAO, e.ATIVO, o.ORGAO "
      "FROM Executor e JOIN Orgao o ON o.IDORGAO = e.IDORGAO";
  cases << StatementCase{
      .name = "orderers: all", .statement = orderers + ";", .expected = orderersPlain};
  const QString persons =
      "SELECT Tomador.ID, Tomador.NOME1, Tomador.CARGO, Tomador.RG1, Tomador.CPF1, "
      "Tomador.ATIVO FROM Tomador";
  const QByteArray personsPlain = "SELECT ID, NOME1, CARGO, RG1, CPF1, ATIVO FROM Tomador";
  cases << StatementCase{
      .name = "persons: all", .statement = persons + ";", .expected = personsPlain};
  for (const char* text : {"A", "érica", "GUIMARÃES", "nobody at all"}) {
    cases << StatementCase{.name = "orderers: search",
                           .statement = orderers + " AND Executor.NOME Like '%" + text + "%';",
                           .expected = orderersPlain,
                           .filter = TextFilter{2, text}};
    cases << StatementCase{.name = "persons: search",
                           .statement = persons + " Where Tomador.NOME1 Like '%" + text + "%';",
                           .expected = personsPlain,
                           .filter = TextFilter{1, text}};
  }
}

void addTypeLists(StatementCases& cases, const Samples& samples) {
  const QString types =
      "SELECT Tipos.SEQUENCIA, Orgao.IDORGAO, Orgao.ORGAO, Tipos.TIPO, Tipos.ELEMENTO, "
      "Tipos.PRAZO, Tipos.ATIVO FROM Orgao INNER JOIN Tipos ON Orgao.IDORGAO = Tipos.IDORGAO";
  const QByteArray typesPlain =
      "SELECT t.SEQUENCIA, o.IDORGAO, o.ORGAO, t.TIPO, t.ELEMENTO, t.PRAZO, t.ATIVO "
      "FROM Tipos t, Orgao o WHERE o.IDORGAO = t.IDORGAO";
  cases << StatementCase{.name = "types: all", .statement = types + "; ", .expected = typesPlain};
  cases << StatementCase{.name = "types: search",
                         .statement = types + " WHERE Orgao.ORGAO Like '%educação%';",
                         .expected = typesPlain,
                         .filter = TextFilter{2, "Educação"}};
  cases << StatementCase{
      .name = "clauses: all",
      .statement =
          "SELECT Inciso.ID, Inciso.TIPO, Tipos.TIPO, Inciso.DESCRICAO, "
          "Inciso.CATEGORIA, Inciso.PRAZO, Inciso.ATIVO FROM Tipos INNER JOIN Inciso ON "
          "Tipos.SEQUENCIA = Inciso.TIPO;",
      .expected =
          "SELECT i.ID, i.TIPO, t.TIPO, i.DESCRICAO, i.CATEGORIA, i.PRAZO, i.ATIVO "
          "FROM Inciso i JOIN Tipos t ON t.SEQUENCIA = i.TIPO"};
  cases << StatementCase{
      .name = "allocation screen: types of a secretariat in use",
      .statement = "Select SEQUENCIA, TIPO From Tipos Where ATIVO = True AND IDORGAO =" +
                   digits(samples.secretariat),
      .expected = "SELECT SEQUENCIA, TIPO FROM Tipos WHERE ATIVO = 1 AND IDORGAO = " +
                  plain(samples.secretariat)};
}

void addAllocations(StatementCases& cases, const Samples& samples) {
  const QByteArray allocationsPlain =
      "SELECT d.ID, d.IDTIPO, d.DOTACAO, d.ANO, d.DESCRICAO, t.TIPO, d.IDORGAO, o.ORGAO "
      "FROM Dotacao d JOIN Tipos t ON t.SEQUENCIA = d.IDTIPO JOIN Orgao o ON "
      "o.IDORGAO = d.IDORGAO ";
  cases << StatementCase{.name = "allocations: all",
                         .statement = "SELECT * From Sel_Dotacao;",
                         .expected = allocationsPlain};
  for (const int number : {samples.allocation, 0, -5}) {
    cases << StatementCase{
        .name = "allocations: by number",
        .statement = "SELECT * From Sel_Dotacao WHERE Dotacao.DOTACAO =" + digits(number),
        .expected = allocationsPlain + "WHERE d.DOTACAO = " + plain(number)};
  }
}

}  // namespace

void addMasterDataCases(StatementCases& cases, const Samples& samples) {
  addRows(cases, samples);
  addLoads(cases, samples);
  addSmallLists(cases);
  addPeopleLists(cases);
  addTypeLists(cases, samples);
  addAllocations(cases, samples);
}

}  // namespace quartela::test
