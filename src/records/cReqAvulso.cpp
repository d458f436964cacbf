#include "records/cReqAvulso.h"

#include "records/Gravacao.h"

namespace quartela {

cReqAvulso& cReqAvulso::compartilhada() {
  static cReqAvulso instancia;
  return instancia;
}

bool cReqAvulso::Save_req(std::int16_t codigo) {
  const QString selecao =
      QStringLiteral("Select * from ReqAvulso WHERE SEQ =") + QString::number(Seq);
  return Salva_registro(codigo, {.tabela = QStringLiteral("ReqAvulso"),
                                 .selecao = selecao,
                                 .grava_campos = [this] { Grava_colunas(); },
                                 .numero = &Seq});
}

}  // namespace quartela
