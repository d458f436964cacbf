// Type-ahead, pick lists and sheet numbers: what the common routines assemble.
#include "tests/database/statements/StatementCase.h"

namespace quartela::test {

namespace {

// The first value of `column` that begins with what was typed.
QString typeAhead(const QString& column, const QString& table, const QString& typed) {
  return "SELECT TOP 1 " + column + " FROM " + table + " WHERE " + column + " Like '" + typed +
         "%' ORDER BY " + column + "  Asc;";
}

QString sortedList(const QString& table, const QString& column) {
  return "SELECT * FROM " + table + " ORDER BY " + column + ";";
}

void addTypeAhead(StatementCases& cases) {
  cases << StatementCase{.name = "type-ahead: supplier",
                         .statement = typeAhead("HISTORICO", "PrestContas", "pa"),
                         .expected =
                             "SELECT min(HISTORICO) AS HISTORICO FROM PrestContas "
                             "WHERE HISTORICO LIKE 'pa%'",
                         .firstRowOnly = true};
  cases << StatementCase{.name = "type-ahead: supplier, nothing found",
                         .statement = typeAhead("HISTORICO", "PrestContas", "zzzz"),
                         .expected = "SELECT HISTORICO FROM PrestContas WHERE 0"};
  cases << StatementCase{.name = "type-ahead: city, plain letters",
                         .statement = typeAhead("Nome", "Cidades", "car"),
                         .expected =
                             "SELECT nome FROM Cidades WHERE nome LIKE 'car%' "
                             "ORDER BY nome",
                         .order = {{0}},
                         .firstRowOnly = true};
  cases << StatementCase{.name = "type-ahead: city, accent typed in capitals",
                         .statement = typeAhead("Nome", "Cidades", "SÃO J"),
                         .expected = "SELECT nome FROM Cidades",
                         .order = {{0}},
                         .filter = TextFilter{0, "são j", true},
                         .firstRowOnly = true};
  cases << StatementCase{.name = "type-ahead: city, accents are told apart",
                         .statement = typeAhead("Nome", "Cidades", "vitori"),
                         .expected = "SELECT nome FROM Cidades WHERE 0"};
}

void addPickLists(StatementCases& cases) {
  for (const char* table : {"Tipos", "Executor", "Tomador", "Inciso"}) {
    cases << StatementCase{.name = table,
                           .statement = QString("SELECT * FROM ") + table + " WHERE ATIVO = Yes;",
                           .expected = QByteArray("SELECT * FROM ") + table + " WHERE ATIVO = 1"};
  }
  cases << StatementCase{.name = "list: secretariats",
                         .statement = sortedList("Orgao", "ORGAO"),
                         .expected = "SELECT * FROM Orgao",
                         .order = {{1}}};
  cases << StatementCase{.name = "list: secretariats, column named as the table",
                         .statement = sortedList("Orgao", "Orgao"),
                         .expected = "SELECT * FROM Orgao",
                         .order = {{1}}};
  cases << StatementCase{.name = "list: persons",
                         .statement = sortedList("Tomador", "NOME1"),
                         .expected = "SELECT * FROM Tomador",
                         .order = {{1}}};
  cases << StatementCase{.name = "list: types",
                         .statement = sortedList("Tipos", "TIPO"),
                         .expected = "SELECT * FROM Tipos",
                         .order = {{2}}};
  cases << StatementCase{.name = "list: orderers",
                         .statement = sortedList("Executor", "NOME"),
                         .expected = "SELECT * FROM Executor",
                         .order = {{2}}};
  cases << StatementCase{.name = "list: purposes",
                         .statement = sortedList("Finalidade", "FINALIDADE"),
                         .expected = "SELECT * FROM Finalidade",
                         .order = {{1}}};
  cases << StatementCase{.name = "list: states, by the stored query's bare name",
                         .statement = "Sel_Uf",
                         .expected = "SELECT DISTINCT uf FROM Cidades ORDER BY uf",
                         .order = {{0}}};
}

void addSheetNumbers(StatementCases& cases, const Samples& samples) {
  const QString highest =
      "SELECT Max(IdentificaTransp.PLANILHA) AS Id FROM IdentificaTransp WHERE "
      "IdentificaTransp.PROCESSO = ";
  cases << StatementCase{.name = "next sheet: of a process",
                         .statement = highest + digits(samples.transportCommitment),
                         .expected =
                             "SELECT max(PLANILHA) AS Id FROM IdentificaTransp "
                             "WHERE PROCESSO = " +
                             plain(samples.transportCommitment)};
  cases << StatementCase{.name = "next sheet: of a process without sheets",
                         .statement = highest + "1",
                         .expected = "SELECT NULL AS Id"};
  cases << StatementCase{
      .name = "next sheet: of all",
      .statement = "SELECT Max(IdentificaTransp.ITEM) AS Id FROM IdentificaTransp;",
      .expected = "SELECT max(ITEM) AS Id FROM IdentificaTransp"};
}

}  // namespace

void addCommonCases(StatementCases& cases, const Samples& samples) {
  addTypeAhead(cases);
  addPickLists(cases);
  addSheetNumbers(cases, samples);
}

}  // namespace quartela::test
