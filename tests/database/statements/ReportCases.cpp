// The printed requisition, the accountability wizard and the listing.
#include "tests/database/statements/StatementCase.h"

namespace quartela::test {

namespace {

QByteArray printedPlain(const QByteArray& table, int key) {
  return "SELECT r.SEQ, r.DATA, r.VALOR, r.JUSTIFICATIVA, r.FICHA, o.ORGAO, p.NOME1, p.RG1, "
         "p.CPF1, p.CARGO, e.NOME, e.RG, e.CPF, e.FUNCAO, t.TIPO, t.ELEMENTO, t.LEI, "
         "t.MATERIAIS, t.PRAZO FROM " +
         table +
         " r LEFT JOIN Executor e ON e.ORDEM = r.ORGAO LEFT JOIN Orgao o ON "
         "o.IDORGAO = e.IDORGAO LEFT JOIN Tomador p ON p.ID = r.TOMADOR LEFT JOIN Tipos t ON "
         "t.SEQUENCIA = r.FINALIDADE WHERE r.SEQ = " +
         plain(key);
}

void addRequisition(StatementCases& cases, const Samples& samples) {
  for (const int process : {samples.process, samples.requisitionOnly, samples.orphan}) {
    cases << StatementCase{
        .name = "print: requisition",
        .statement = "Select * from Sel_Print_req WHERE Requisicao.SEQ = " + digits(process),
        .expected = printedPlain("Requisicao", process)};
  }
  cases << StatementCase{.name = "print: standalone requisition",
                         .statement = "Select * from Sel_Print_reqavulso WHERE ReqAvulso.SEQ = " +
                                      digits(samples.standalone),
                         .expected = printedPlain("ReqAvulso", samples.standalone)};
}

void addAccountability(StatementCases& cases, const Samples& samples) {
  cases << StatementCase{
      .name = "accountability wizard: head",
      .statement =
          "SELECT Requisicao.VALOR, Requisicao.SEQ, Adiantamento.EMPENHO, "
          "Adiantamento.ABERTURA, Adiantamento.RETIRADA, Adiantamento.DATADEV, "
          "Adiantamento.DEVOLUCAO, Executor.NOME, Executor.FUNCAO FROM (Executor INNER JOIN "
          "Requisicao ON Executor.ORDEM = Requisicao.ORGAO) INNER JOIN Adiantamento ON "
          "Requisicao.SEQ = Adiantamento.PROCESSO Where Adiantamento.EMPENHO = " +
          digits(samples.commitment),
      .expected =
          "SELECT r.VALOR, r.SEQ, a.EMPENHO, a.ABERTURA, a.RETIRADA, a.DATADEV, "
          "a.DEVOLUCAO, e.NOME, e.FUNCAO FROM Adiantamento a JOIN Requisicao r ON "
          "r.SEQ = a.PROCESSO JOIN Executor e ON e.ORDEM = r.ORGAO WHERE a.EMPENHO = " +
          plain(samples.commitment)};
  cases << StatementCase{
      .name = "accountability wizard: notes",
      .statement =
          "SELECT PrestContas.DATA, PrestContas.ORDEM, PrestContas.HISTORICO, "
          "PrestContas.DESPESAS, Requisicao.VALOR FROM Requisicao INNER JOIN (Adiantamento INNER "
          "JOIN PrestContas ON Adiantamento.EMPENHO = PrestContas.PROCESSO) ON "
          "Requisicao.SEQ = Adiantamento.PROCESSO Where PrestContas.Processo = " +
          digits(samples.commitment) + " ORDER BY PrestContas.DATA;",
      .expected =
          "SELECT n.DATA, n.ORDEM, n.HISTORICO, n.DESPESAS, r.VALOR FROM PrestContas n "
          "JOIN Adiantamento a ON a.EMPENHO = n.PROCESSO JOIN Requisicao r ON "
          "r.SEQ = a.PROCESSO WHERE n.PROCESSO = " +
          plain(samples.commitment),
      .order = {{0}}};
}

QString listing(const QString& from, const QString& to, const QString& order) {
  return "SELECT Requisicao.SEQ, Tomador.NOME1, Tipos.ELEMENTO, Adiantamento.ABERTURA, "
         "Adiantamento.EMPENHO, Adiantamento.RETIRADA, Adiantamento.FECHAR_EM, "
         "Adiantamento.FECHAMENTO, (Adiantamento.FECHAMENTO - Adiantamento.RETIRADA)AS DIAS "
         "FROM Tipos INNER JOIN ((Tomador INNER JOIN Requisicao ON Tomador.ID = "
         "Requisicao.TOMADOR) INNER JOIN Adiantamento ON Requisicao.SEQ = "
         "Adiantamento.PROCESSO) ON Tipos.SEQUENCIA = Requisicao.FINALIDADE WHERE "
         "Adiantamento.ABERTURA Between #" +
         from + "# AND #" + to + "# ORDER BY" + order;
}

QByteArray listingPlain(const QByteArray& from, const QByteArray& to) {
  return "SELECT r.SEQ, p.NOME1, t.ELEMENTO, a.ABERTURA, a.EMPENHO, a.RETIRADA, a.FECHAR_EM, "
         "a.FECHAMENTO, CAST(julianday(a.FECHAMENTO) - julianday(a.RETIRADA) AS INTEGER) AS DIAS "
         "FROM Adiantamento a JOIN Requisicao r ON r.SEQ = a.PROCESSO JOIN Tomador p ON "
         "p.ID = r.TOMADOR JOIN Tipos t ON t.SEQUENCIA = r.FINALIDADE WHERE a.ABERTURA >= '" +
         from + " 00:00:00' AND a.ABERTURA <= '" + to + " 00:00:00'";
}

void addListing(StatementCases& cases) {
  cases << StatementCase{
      .name = "listing: by name",
      .statement = listing("2014/01/01", "2014/11/21", " Tomador.NOME1, Adiantamento.ABERTURA;"),
      .expected = listingPlain("2014-01-01", "2014-11-21"),
      .order = {{1}, {3}}};
  cases << StatementCase{
      .name = "listing: by number",
      .statement = listing("2013/06/15", "2014/06/14", " Requisicao.SEQ, Tomador.NOME1;"),
      .expected = listingPlain("2013-06-15", "2014-06-14"),
      .order = {{0}, {1}}};
  cases << StatementCase{
      .name = "listing: by opening date",
      .statement = listing("2010/01/01", "2014/12/31", " Adiantamento.ABERTURA;"),
      .expected = listingPlain("2010-01-01", "2014-12-31"),
      .order = {{3}}};
  cases << StatementCase{
      .name = "listing: a period with nothing in it",
      .statement = listing("1999/01/01", "1999/12/31", " Adiantamento.ABERTURA;"),
      .expected = listingPlain("1999-01-01", "1999-12-31")};
}

}  // namespace

void addReportCases(StatementCases& cases, const Samples& samples) {
  addRequisition(cases, samples);
  addAccountability(cases, samples);
  addListing(cases);
}

}  // namespace quartela::test
