// Every DELETE of the program.
#include "tests/database/statements/StatementCase.h"

namespace quartela::test {

namespace {

constexpr int kDependantsExist = 3200;

void addLifecycle(DeletionCases& cases, const Samples& samples) {
  const QByteArray notes =
      "SELECT count(*) FROM PrestContas WHERE PROCESSO = " + plain(samples.commitment);
  cases << DeletionCase{
      .name = "requisition with advance and notes",
      .statement = "DELETE FROM Requisicao where SEQ = " + digits(samples.process),
      .losses = {{"Requisicao", "SELECT 1"}, {"Adiantamento", "SELECT 1"}, {"PrestContas", notes}}};
  cases << DeletionCase{
      .name = "requisition only",
      .statement = "DELETE FROM Requisicao where SEQ = " + digits(samples.requisitionOnly),
      .losses = {{"Requisicao", "SELECT 1"}}};
  cases << DeletionCase{.name = "requisition that does not exist",
                        .statement = "DELETE FROM Requisicao where SEQ = 0",
                        .losses = {{"Requisicao", "SELECT 0"}}};
  cases << DeletionCase{
      .name = "advance with notes",
      .statement = "DELETE FROM Adiantamento where EMPENHO = " + digits(samples.commitment),
      .losses = {{"Adiantamento", "SELECT 1"}, {"PrestContas", notes}}};
  cases << DeletionCase{.name = "note",
                        .statement = "DELETE FROM PrestContas where SEQ = " + digits(samples.note),
                        .losses = {{"PrestContas", "SELECT 1"}}};
  cases << DeletionCase{
      .name = "all notes of an empenho",
      .statement = "DELETE From PrestContas WHERE PROCESSO =" + digits(samples.commitment),
      .losses = {{"PrestContas", notes}}};
}

void addSheets(DeletionCases& cases, const Samples& samples) {
  cases << DeletionCase{.name = "travel sheet, its notes stay",
                        .statement = "DELETE FROM Viagem where ITEM = " + digits(samples.sheet),
                        .losses = {{"Viagem", "SELECT 1"}}};
  cases << DeletionCase{
      .name = "transport sheet, its documents stay",
      .statement = "DELETE FROM IdentificaTransp where ITEM = " + digits(samples.transport),
      .losses = {{"IdentificaTransp", "SELECT 1"}}};
  cases << DeletionCase{
      .name = "document",
      .statement = "DELETE FROM ItensTransp where IDENTIFICA = " + digits(samples.document),
      .losses = {{"ItensTransp", "SELECT 1"}}};
  cases << DeletionCase{.name = "request for goods",
                        .statement = "DELETE FROM Produtos where ITEM = 2",
                        .losses = {{"Produtos", "SELECT 1"}}};
  cases << DeletionCase{.name = "request for services",
                        .statement = "DELETE FROM Servicos where ITEM = 2",
                        .losses = {{"Servicos", "SELECT 1"}}};
}

// Rows of the reference tables that nothing refers to.
void addFreeMasters(DeletionCases& cases, const Samples& samples) {
  cases << DeletionCase{.name = "secretariat without dependants",
                        .statement = "DELETE FROM Orgao where IDORGAO = 900",
                        .losses = {{"Orgao", "SELECT 1"}},
                        .before = "INSERT INTO Orgao (IDORGAO) VALUES (900)"};
  cases << DeletionCase{.name = "orderer without dependants",
                        .statement = "DELETE FROM Executor where ORDEM = 900",
                        .losses = {{"Executor", "SELECT 1"}},
                        .before = "INSERT INTO Executor (ORDEM, IDORGAO) VALUES (900, 1)"};
  cases << DeletionCase{.name = "person without dependants",
                        .statement = "DELETE FROM Tomador where ID = 900",
                        .losses = {{"Tomador", "SELECT 1"}},
                        .before = "INSERT INTO Tomador (ID) VALUES (900)"};
  cases << DeletionCase{.name = "type without dependants",
                        .statement = "DELETE FROM Tipos where SEQUENCIA = 900",
                        .losses = {{"Tipos", "SELECT 1"}},
                        .before = "INSERT INTO Tipos (SEQUENCIA) VALUES (900)"};
  cases << DeletionCase{.name = "purpose",
                        .statement = "DELETE FROM Finalidade where ID = 3",
                        .losses = {{"Finalidade", "SELECT 1"}}};
  cases << DeletionCase{.name = "clause",
                        .statement = "DELETE FROM Inciso where ID = " + digits(samples.clause),
                        .losses = {{"Inciso", "SELECT 1"}}};
  cases << DeletionCase{
      .name = "allocation",
      .statement = "DELETE FROM Dotacao where ID = " + digits(samples.allocationKey),
      .losses = {{"Dotacao", "SELECT 1"}}};
}

void addRefused(DeletionCases& cases, const Samples& samples) {
  cases << DeletionCase{
      .name = "secretariat with dependants",
      .statement = "DELETE FROM Orgao where IDORGAO = " + digits(samples.secretariat),
      .losses = {},
      .error = kDependantsExist};
  cases << DeletionCase{
      .name = "orderer with dependants",
      .statement = "DELETE FROM Executor where ORDEM = " + digits(samples.orderer),
      .losses = {},
      .error = kDependantsExist};
  cases << DeletionCase{.name = "person with dependants",
                        .statement = "DELETE FROM Tomador where ID = " + digits(samples.person),
                        .losses = {},
                        .error = kDependantsExist};
  cases << DeletionCase{.name = "type with dependants",
                        .statement = "DELETE FROM Tipos where SEQUENCIA = " + digits(samples.type),
                        .losses = {},
                        .error = kDependantsExist};
}

}  // namespace

void addDeletionCases(DeletionCases& cases, const Samples& samples) {
  addLifecycle(cases, samples);
  addSheets(cases, samples);
  addFreeMasters(cases, samples);
  addRefused(cases, samples);
}

}  // namespace quartela::test
