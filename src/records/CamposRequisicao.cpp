#include "records/CamposRequisicao.h"

#include "foundation/Banco.h"

namespace quartela {

void CamposRequisicao::Grava_colunas() const {
  Tabela.setField(u"DATA", Data);
  Tabela.setField(u"ORGAO", Orgao);
  Tabela.setField(u"TOMADOR", Tomador);
  Tabela.setField(u"VALOR", Valor);
  Tabela.setField(u"FINALIDADE", Finalidade);
  Tabela.setField(u"JUSTIFICATIVA", Justificativa);
  Tabela.setField(u"FICHA", Ficha);
}

}  // namespace quartela
