// Advances: the record class, the closing, the summary of the accountability.
#include "tests/database/statements/StatementCase.h"

namespace quartela::test {

namespace {

QString commitmentsOf(int process) {
  return "SELECT Adiantamento.EMPENHO, Adiantamento.ABERTURA, Adiantamento.RETIRADA, "
         "Adiantamento.FECHAR_EM, Adiantamento.FECHAMENTO, Adiantamento.DEVOLUCAO, "
         "Adiantamento.DATADEV, Adiantamento.OP, Adiantamento.ANULADO From Adiantamento "
         "WHERE Adiantamento.PROCESSO =" +
         digits(process);
}

QByteArray commitmentsOfPlain(int process) {
  return "SELECT EMPENHO, ABERTURA, RETIRADA, FECHAR_EM, FECHAMENTO, DEVOLUCAO, DATADEV, OP, "
         "ANULADO FROM Adiantamento WHERE PROCESSO = " +
         plain(process);
}

QString spent(int commitment) {
  return "SELECT DISTINCTROW Sum(PrestContas.DESPESAS) AS [Soma De DESPESAS] "
         "From PrestContas GROUP BY PrestContas.PROCESSO "
         "HAVING PrestContas.PROCESSO =" +
         digits(commitment);
}

QString summary(int process) {
  return "Select * From Sel_Planilha WHERE Requisicao.SEQ =" + digits(process);
}

QByteArray summaryPlain(int process) {
  return "SELECT r.SEQ, a.EMPENHO, a.ABERTURA, a.RETIRADA, e.NOME, p.NOME1, p.CARGO, o.ORGAO, "
         "r.VALOR FROM Requisicao r JOIN Adiantamento a ON a.PROCESSO = r.SEQ "
         "JOIN Executor e ON e.ORDEM = r.ORGAO JOIN Orgao o ON o.IDORGAO = e.IDORGAO "
         "JOIN Tomador p ON p.ID = r.TOMADOR WHERE r.SEQ = " +
         plain(process);
}

void addRecord(StatementCases& cases, const Samples& samples) {
  cases << StatementCase{.name = "advance: the table's bare name",
                         .statement = "Adiantamento",
                         .expected = "SELECT * FROM Adiantamento"};
  cases << StatementCase{
      .name = "advance: one to alter",
      .statement =
          "select * from Adiantamento WHERE Adiantamento.EMPENHO =" + digits(samples.commitment),
      .expected = "SELECT * FROM Adiantamento WHERE EMPENHO = " + plain(samples.commitment)};
  cases << StatementCase{
      .name = "advance: those that go along with a requisition",
      .statement = "SELECT * FROM Adiantamento WHERE PROCESSO = " + digits(samples.process),
      .expected = "SELECT * FROM Adiantamento WHERE PROCESSO = " + plain(samples.process)};
  cases << StatementCase{.name = "advance: of a closed process",
                         .statement = commitmentsOf(samples.process),
                         .expected = commitmentsOfPlain(samples.process)};
  cases << StatementCase{.name = "advance: of an open process",
                         .statement = commitmentsOf(samples.openProcess),
                         .expected = commitmentsOfPlain(samples.openProcess)};
  cases << StatementCase{.name = "advance: of a process without any",
                         .statement = commitmentsOf(samples.requisitionOnly),
                         .expected = commitmentsOfPlain(samples.requisitionOnly)};
  cases << StatementCase{.name = "advance: to close",
                         .statement =
                             "Select EMPENHO, FECHAMENTO, DEVOLUCAO, DATADEV From Adiantamento "
                             "WHERE EMPENHO =" +
                             digits(samples.commitment),
                         .expected =
                             "SELECT EMPENHO, FECHAMENTO, DEVOLUCAO, DATADEV FROM Adiantamento "
                             "WHERE EMPENHO = " +
                             plain(samples.commitment)};
}

void addSums(StatementCases& cases, const Samples& samples) {
  cases << StatementCase{.name = "advance: what was spent",
                         .statement = spent(samples.commitment),
                         .expected =
                             "SELECT sum(DESPESAS) AS \"Soma De DESPESAS\" "
                             "FROM PrestContas WHERE PROCESSO = " +
                             plain(samples.commitment)};
  cases << StatementCase{.name = "advance: what was spent, without notes",
                         .statement = spent(1),
                         .expected = "SELECT 0 AS \"Soma De DESPESAS\" WHERE 0"};
  cases << StatementCase{.name = "advance: summary",
                         .statement = summary(samples.process),
                         .expected = summaryPlain(samples.process)};
  cases << StatementCase{.name = "advance: summary of a process without empenho",
                         .statement = summary(samples.requisitionOnly),
                         .expected = summaryPlain(samples.requisitionOnly)};
}

}  // namespace

void addAdvanceCases(StatementCases& cases, const Samples& samples) {
  addRecord(cases, samples);
  addSums(cases, samples);
}

}  // namespace quartela::test
