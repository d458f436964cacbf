// Requisitions: the record classes, the registration screens and the standalone form.
#include "tests/database/statements/StatementCase.h"

namespace quartela::test {

namespace {

QString openAdvances(int person, int type) {
  return "SELECT Requisicao.TOMADOR, Requisicao.FINALIDADE, Adiantamento.FECHAMENTO "
         "FROM Requisicao LEFT JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO "
         " WHERE Requisicao.TOMADOR =" +
         digits(person) + " And Requisicao.Finalidade = " + digits(type) +
         " AND ((Adiantamento.FECHAMENTO) Is Null);";
}

QByteArray openAdvancesPlain(int person, int type) {
  return "SELECT r.TOMADOR, r.FINALIDADE, NULL AS FECHAMENTO FROM Requisicao r "
         "WHERE r.TOMADOR = " +
         plain(person) + " AND r.FINALIDADE = " + plain(type) +
         " AND NOT EXISTS (SELECT 1 FROM Adiantamento a WHERE a.PROCESSO = r.SEQ "
         "AND a.FECHAMENTO IS NOT NULL)";
}

QString withSecretariat(int process) {
  return "Select Requisicao.*, Executor.IDORGAO From Requisicao, Executor WHERE "
         "Requisicao.ORGAO = Executor.ORDEM AND SEQ =" +
         digits(process);
}

QByteArray withSecretariatPlain(int process) {
  return "SELECT r.*, e.IDORGAO FROM Requisicao r JOIN Executor e ON e.ORDEM = r.ORGAO "
         "WHERE r.SEQ = " +
         plain(process);
}

void addRecord(StatementCases& cases, const Samples& samples) {
  cases << StatementCase{.name = "requisition: the table's bare name",
                         .statement = "Requisicao",
                         .expected = "SELECT * FROM Requisicao"};
  cases << StatementCase{.name = "requisition: the numbers that are taken",
                         .statement = "SELECT SEQ FROM Requisicao",
                         .expected = "SELECT SEQ FROM Requisicao"};
  cases << StatementCase{
      .name = "requisition: whether a number is taken",
      .statement = "SELECT SEQ FROM Requisicao WHERE SEQ =" + digits(samples.process),
      .expected = "SELECT SEQ FROM Requisicao WHERE SEQ = " + plain(samples.process)};
  cases << StatementCase{
      .name = "requisition: one to alter",
      .statement = "Select * from Requisicao WHERE SEQ =" + digits(samples.process),
      .expected = "SELECT * FROM Requisicao WHERE SEQ = " + plain(samples.process)};
  cases << StatementCase{.name = "requisition: open advances of a person and type",
                         .statement = openAdvances(samples.person, samples.type),
                         .expected = openAdvancesPlain(samples.person, samples.type)};
  cases << StatementCase{.name = "requisition: open advances, position instead of key",
                         .statement = openAdvances(-1, 0),
                         .expected = openAdvancesPlain(-1, 0)};
  cases << StatementCase{.name = "requisition: with its secretariat",
                         .statement = withSecretariat(samples.process),
                         .expected = withSecretariatPlain(samples.process)};
  cases << StatementCase{.name = "requisition: without orderer it is not found",
                         .statement = withSecretariat(samples.orphan),
                         .expected = "SELECT *, 0 AS IDORGAO FROM Requisicao WHERE 0"};
  cases << StatementCase{.name = "standalone: the table's bare name",
                         .statement = "ReqAvulso",
                         .expected = "SELECT * FROM ReqAvulso"};
  cases << StatementCase{
      .name = "standalone: one to alter",
      .statement = "Select * from ReqAvulso WHERE SEQ =" + digits(samples.standalone),
      .expected = "SELECT * FROM ReqAvulso WHERE SEQ = " + plain(samples.standalone)};
}

void addOrdererLists(StatementCases& cases, const Samples& samples) {
  const QString head =
      "SELECT Executor.ORDEM, Executor.NOME, Orgao.IDORGAO FROM Orgao INNER JOIN Executor ON "
      "Orgao.IDORGAO = Executor.IDORGAO WHERE Orgao.IDORGAO = " +
      digits(samples.secretariat);
  const QByteArray plainHead =
      "SELECT e.ORDEM, e.NOME, o.IDORGAO FROM Executor e, Orgao o WHERE o.IDORGAO = e.IDORGAO "
      "AND e.IDORGAO = " +
      plain(samples.secretariat);
  cases << StatementCase{.name = "requisition: orderers of a secretariat in office",
                         .statement = head + " AND ATIVO = True;",
                         .expected = plainHead + " AND ATIVO = 1"};
  cases << StatementCase{.name = "requisition: all orderers of a secretariat",
                         .statement = head + " ;",
                         .expected = plainHead};
}

void addTypeLists(StatementCases& cases, const Samples& samples) {
  cases << StatementCase{
      .name = "requisition: types of a secretariat",
      .statement =
          "SELECT Tipos.SEQUENCIA, Tipos.TIPO, Orgao.IDORGAO FROM Tipos, Orgao WHERE "
          "Orgao.IDORGAO = Tipos.IDORGAO AND Orgao.IDORGAO = " +
          digits(samples.secretariat) + ";",
      .expected =
          "SELECT t.SEQUENCIA, t.TIPO, o.IDORGAO FROM Tipos t JOIN Orgao o ON "
          "o.IDORGAO = t.IDORGAO WHERE t.IDORGAO = " +
          plain(samples.secretariat)};
  cases << StatementCase{.name = "requisition: persons in office by name",
                         .statement = "Select * from Tomador Where ATIVO = True ORDER BY NOME1;",
                         .expected = "SELECT * FROM Tomador WHERE ATIVO = 1",
                         .order = {{1}}};
  cases << StatementCase{
      .name = "requisition: allocations of a type this year",
      .statement =
          "SELECT Dotacao.ID, Dotacao.DOTACAO, Tipos.IDORGAO, Dotacao.ANO, Tipos.SEQUENCIA FROM "
          "Tipos, Dotacao WHERE Tipos.SEQUENCIA = Dotacao.IDTIPO AND Tipos.SEQUENCIA = " +
          digits(samples.type) + " AND Dotacao.ANO =Year(Now()) ;",
      .expected =
          "SELECT d.ID, d.DOTACAO, t.IDORGAO, d.ANO, t.SEQUENCIA FROM Dotacao d "
          "JOIN Tipos t ON t.SEQUENCIA = d.IDTIPO WHERE d.ANO = 2014 AND d.IDTIPO = " +
          plain(samples.type)};
  cases << StatementCase{.name = "requisition: numbers of the allocations",
                         .statement = "SELECT DISTINCT DOTACAO FROM Dotacao WHERE IDTIPO = " +
                                      digits(samples.type) + " AND ANO = YEAR(Now());",
                         .expected = "SELECT DOTACAO FROM Dotacao WHERE ANO = 2014 AND IDTIPO = " +
                                     plain(samples.type) + " GROUP BY DOTACAO"};
}

}  // namespace

void addRequisitionCases(StatementCases& cases, const Samples& samples) {
  addRecord(cases, samples);
  addOrdererLists(cases, samples);
  addTypeLists(cases, samples);
}

}  // namespace quartela::test
