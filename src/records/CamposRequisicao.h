// What a requisition asks for, whether it starts a process (cRequisicao) or stands alone
// (cReqAvulso): the properties that both records bear, and their columns.
#pragma once

#include <QString>
#include <cstdint>

#include "platform/values/DateTime.h"
#include "platform/values/Money.h"

namespace quartela {

struct CamposRequisicao {
  std::int32_t Seq = 0;
  DateTime Data;
  std::int16_t Orgao = 0;       // key of the expense orderer, Executor.ORDEM
  std::int16_t Secretaria = 0;  // Executor.IDORGAO; never saved
  std::int16_t Tomador = 0;
  Money Valor;
  std::int16_t Finalidade = 0;  // key of the advance type
  QString Justificativa;
  QString Ficha;
  std::int16_t Encerrado = 0;  // a mark kept for the screens, not saved

  // Copies Data, Orgao, Tomador, Valor, Finalidade, Justificativa and Ficha into Tabela's current
  // row. Raises what Recordset::setField raises.
  void Grava_colunas() const;
};

}  // namespace quartela
