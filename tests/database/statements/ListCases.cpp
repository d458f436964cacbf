// The main window's lists, the search windows and the deadline alert.
#include "tests/database/statements/StatementCase.h"

namespace quartela::test {

namespace {

const QByteArray kColumnsPlain =
    "SELECT r.SEQ, r.DATA, r.VALOR, r.FINALIDADE, o.ORGAO, p.NOME1, t.TIPO, a.EMPENHO, "
    "a.ABERTURA, a.RETIRADA, a.FECHAR_EM, a.FECHAMENTO, "
    "CAST(julianday(a.FECHAMENTO) - julianday(a.RETIRADA) AS INTEGER) AS DIAS ";
const QByteArray kMastersPlain =
    "LEFT JOIN Executor e ON e.ORDEM = r.ORGAO LEFT JOIN Orgao o ON o.IDORGAO = e.IDORGAO "
    "LEFT JOIN Tomador p ON p.ID = r.TOMADOR LEFT JOIN Tipos t ON t.SEQUENCIA = r.FINALIDADE ";
const QByteArray kAllPlain = kColumnsPlain +
                             "FROM Requisicao r LEFT JOIN Adiantamento a ON a.PROCESSO = r.SEQ " +
                             kMastersPlain;
const QByteArray kCommittedPlain =
    kColumnsPlain + "FROM Requisicao r JOIN Adiantamento a ON a.PROCESSO = r.SEQ " + kMastersPlain;
const QByteArray kThisYearPlain = "r.DATA >= '2014-01-01' AND r.DATA < '2015-01-01'";

constexpr int kNameColumn = 5;
// What sorts nothing itself comes by process number, then by empenho.
const QList<SortKey> kByNumbers = {{0}, {7}};

void addFilters(StatementCases& cases) {
  cases << StatementCase{
      .name = "list 0: all",
      .statement = "SELECT * FROM Sel_Req_left  ORDER BY Adiantamento.ABERTURA DESC;",
      .expected = kAllPlain,
      .order = {{8, true}}};
  cases << StatementCase{
      .name = "list 1: open, this year",
      .statement =
          "SELECT * FROM Sel_Req_left  Where (((Adiantamento.Fechamento) Is Null) And "
          "((Year([Requisicao].[Data])) = Year(Now()))) ORDER BY Requisicao.SEQ DESC;",
      .expected = kAllPlain + "WHERE a.FECHAMENTO IS NULL AND " + kThisYearPlain,
      .order = {{0, true}}};
  cases << StatementCase{
      .name = "list 2: open with empenho",
      .statement = "SELECT * FROM Sel_Req_inner  WHERE ((Adiantamento.FECHAMENTO) Is Null);",
      .expected = kCommittedPlain + "WHERE a.FECHAMENTO IS NULL",
      .order = kByNumbers};
  cases << StatementCase{
      .name = "list 3: closed, this year",
      .statement =
          "SELECT * FROM Sel_Req_left  WHERE (((Adiantamento.FECHAMENTO) Is Not Null) "
          "And ((Year([Requisicao].[Data])) = Year(Now())));",
      .expected = kAllPlain + "WHERE a.FECHAMENTO IS NOT NULL AND " + kThisYearPlain,
      .order = kByNumbers};
  cases << StatementCase{
      .name = "list 4: requisition only, this year",
      .statement =
          "SELECT * FROM Sel_Req_left  Where (((Adiantamento.ABERTURA) Is Null) And "
          "((Year([Requisicao].[Data])) = Year(Now()))) ORDER BY Requisicao.SEQ DESC;",
      .expected = kAllPlain + "WHERE a.ABERTURA IS NULL AND " + kThisYearPlain,
      .order = {{0, true}}};
}

void addByNumber(StatementCases& cases, const Samples& samples) {
  for (const int process : {samples.process, samples.requisitionOnly, samples.orphan, 0}) {
    cases << StatementCase{
        .name = "list 6: by number",
        .statement = "SELECT * FROM Sel_Req_left  WHERE Requisicao.SEQ =" + digits(process),
        .expected = kAllPlain + "WHERE r.SEQ = " + plain(process)};
  }
}

// The searches by name: with `condition` for the engine when the text is plain, else with a filter.
void addByName(StatementCases& cases, const QString& name) {
  const std::optional<TextFilter> filter = TextFilter{kNameColumn, name};
  const QString like = "Like '%" + name + "%'";
  cases << StatementCase{
      .name = "list 5: by name",
      .statement = "SELECT * FROM Sel_Req_left  WHERE Tomador.NOME1 LIKE '%" + name + "%';",
      .expected = kAllPlain,
      .order = kByNumbers,
      .filter = filter};
  cases << StatementCase{.name = "list 7: open by name, this year",
                         .statement = "SELECT * FROM Sel_Req_left  WHERE (((Tomador.NOME1) " +
                                      like +
                                      ") And ((Adiantamento.FECHAMENTO) Is Null) And "
                                      "((Year(Requisicao.DATA))=Year(Now())));",
                         .expected = kAllPlain + "WHERE a.FECHAMENTO IS NULL AND " + kThisYearPlain,
                         .order = kByNumbers,
                         .filter = filter};
  cases << StatementCase{.name = "list 8: open with empenho, by name",
                         .statement = "SELECT * FROM Sel_Req_inner  WHERE (((Tomador.NOME1) " +
                                      like + ") AND ((Adiantamento.FECHAMENTO) Is Null));",
                         .expected = kCommittedPlain + "WHERE a.FECHAMENTO IS NULL",
                         .order = kByNumbers,
                         .filter = filter};
  cases << StatementCase{.name = "list 9: closed, by name",
                         .statement = "SELECT * FROM Sel_Req_left  WHERE (((Tomador.NOME1) " +
                                      like + ") AND ((Adiantamento.FECHAMENTO) Is Not Null));",
                         .expected = kAllPlain + "WHERE a.FECHAMENTO IS NOT NULL",
                         .order = kByNumbers,
                         .filter = filter};
}

void addPlainByName(StatementCases& cases) {
  cases << StatementCase{
      .name = "list 5: by name, found by the engine's own Like",
      .statement = "SELECT * FROM Sel_Req_left  WHERE Tomador.NOME1 LIKE '%MAR%';",
      .expected = kAllPlain + "WHERE p.NOME1 LIKE '%mar%'",
      .order = kByNumbers};
  cases << StatementCase{
      .name = "list 5: a name with a per cent sign inside",
      .statement = "SELECT * FROM Sel_Req_left  WHERE Tomador.NOME1 LIKE '%ar%es%';",
      .expected = kAllPlain + "WHERE p.NOME1 LIKE '%ar%es%'",
      .order = kByNumbers};
}

const QString kChooser =
    "SELECT Adiantamento.EMPENHO, Tomador.NOME1, Tipos.TIPO, Requisicao.VALOR, "
    "Adiantamento.RETIRADA, Adiantamento.FECHAR_EM , Adiantamento.ABERTURA, Tomador.CARGO, "
    "Adiantamento.PROCESSO FROM Tomador INNER JOIN (Tipos INNER JOIN (Requisicao INNER JOIN "
    "Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO) ON Tipos.SEQUENCIA = "
    "Requisicao.FINALIDADE) ON Tomador.ID = Requisicao.TOMADOR ";
const QByteArray kChooserPlain =
    "SELECT a.EMPENHO, p.NOME1, t.TIPO, r.VALOR, a.RETIRADA, a.FECHAR_EM, a.ABERTURA, p.CARGO, "
    "a.PROCESSO FROM Adiantamento a, Requisicao r, Tipos t, Tomador p WHERE r.SEQ = a.PROCESSO "
    "AND t.SEQUENCIA = r.FINALIDADE AND p.ID = r.TOMADOR ";

void addChooser(StatementCases& cases) {
  cases << StatementCase{
      .name = "chooser 1: open",
      .statement = kChooser +
                   "WHERE (((Adiantamento.RETIRADA) Is Not Null) AND "
                   "((Adiantamento.FECHAMENTO) Is Null));",
      .expected = kChooserPlain + "AND a.RETIRADA IS NOT NULL AND a.FECHAMENTO IS NULL",
      .order = {{0}}};
  for (const char* name : {"joão", "D''ávila", "es"}) {
    cases << StatementCase{.name = "chooser 2: open by name",
                           .statement = kChooser + "WHERE (((Tomador.NOME1) Like '%" + name +
                                        "%') AND ((Adiantamento.FECHAMENTO) Is Null));",
                           .expected = kChooserPlain + "AND a.FECHAMENTO IS NULL",
                           .filter = TextFilter{1, QString(name).replace("''", "'")}};
  }
  for (const char* type : {"MIÚDAS", "cur", "O"}) {
    cases << StatementCase{.name = "chooser 3: open by type",
                           .statement = kChooser + "WHERE (((Tipos.TIPO) Like '%" + type +
                                        "%') AND ((Adiantamento.FECHAMENTO) Is Null));",
                           .expected = kChooserPlain + "AND a.FECHAMENTO IS NULL",
                           .filter = TextFilter{2, type}};
  }
  cases << StatementCase{.name = "chooser 4: closed",
                         .statement = kChooser + "WHERE (((Adiantamento.FECHAMENTO) Is Not Null));",
                         .expected = kChooserPlain + "AND a.FECHAMENTO IS NOT NULL"};
}

// The clock stands at 10:30 of 21/11/2014.
void addAlert(StatementCases& cases) {
  cases << StatementCase{
      .name = "deadline alert",
      .statement =
          "SELECT Requisicao.SEQ, Executor.NOME, Tipos.TIPO, Adiantamento.FECHAR_EM FROM Tipos "
          "INNER JOIN ((Executor INNER JOIN Requisicao ON Executor.ORDEM = Requisicao.ORGAO) "
          "INNER JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO) ON "
          "Tipos.SEQUENCIA = Requisicao.FINALIDADE WHERE (((Adiantamento.FECHAR_EM)<Now()+6) AND "
          "((Adiantamento.FECHAMENTO) Is Null));",
      .expected =
          "SELECT r.SEQ, e.NOME, t.TIPO, a.FECHAR_EM FROM Adiantamento a "
          "JOIN Requisicao r ON r.SEQ = a.PROCESSO JOIN Executor e ON e.ORDEM = r.ORGAO "
          "JOIN Tipos t ON t.SEQUENCIA = r.FINALIDADE "
          "WHERE a.FECHAR_EM < '2014-11-27 10:30:00' AND a.FECHAMENTO IS NULL"};
}

}  // namespace

void addListCases(StatementCases& cases, const Samples& samples) {
  addFilters(cases);
  addByNumber(cases, samples);
  addPlainByName(cases);
  for (const char* name : {"joão", "ÉRICA", "sil", "mar", "conceição"}) {
    addByName(cases, name);
  }
  addChooser(cases);
  addAlert(cases);
}

}  // namespace quartela::test
