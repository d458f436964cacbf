// Rows that tests build on: one secretariat, orderer, person and type, and processes on demand.
#pragma once

#include "tests/support/office/Office.h"

namespace quartela::test {

// Secretariat 1 "Saúde" and 2 "Educação", orderer 1 (of 2), person 1, type 1 "Miúdas" (of 1).
inline void addMasterRows(const Office& office) {
  office.run(
      "INSERT INTO Orgao(IDORGAO, ORGAO) VALUES (1, 'Saúde'), (2, 'Educação');"
      "INSERT INTO Executor(ORDEM, IDORGAO, NOME, ATIVO) VALUES (1, 2, 'Ordenador', 1);"
      "INSERT INTO Tomador(ID, NOME1, CARGO, ATIVO) VALUES (1, 'Responsável', 'Motorista', 1);"
      "INSERT INTO Tipos(SEQUENCIA, IDORGAO, TIPO, PRAZO, ATIVO) VALUES (1, 1, 'Miúdas', '30 "
      "dias', 1);");
}

// Process 114 of 20/11/2014 over 1.000,00 with the open empenho 50014.
inline void addOpenProcess(const Office& office) {
  office.run(
      "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE, JUSTIFICATIVA, FICHA) "
      "VALUES (114, '2014-11-20 00:00:00', 1, 1, 10000000, 1, 'Despesas', '128');"
      "INSERT INTO Adiantamento(EMPENHO, PROCESSO, ABERTURA, RETIRADA, FECHAR_EM, DEVOLUCAO, OP) "
      "VALUES "
      "(50014, 114, '2014-11-01 00:00:00', '2014-11-03 00:00:00', '2014-12-03 00:00:00', 0, 77);");
}

}  // namespace quartela::test
