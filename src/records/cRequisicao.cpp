#include "records/cRequisicao.h"

#include "foundation/Banco.h"
#include "foundation/Escritorio.h"
#include "foundation/Leitura.h"
#include "platform/values/Convert.h"
#include "records/Consulta.h"
#include "records/Gravacao.h"

namespace quartela {

cRequisicao& cRequisicao::compartilhada() {
  static cRequisicao instancia;
  return instancia;
}

bool cRequisicao::Save_req(std::int16_t codigo) {
  const QString selecao =
      QStringLiteral("Select * from Requisicao WHERE SEQ =") + QString::number(Seq);
  return Salva_registro(codigo, {.tabela = QStringLiteral("Requisicao"),
                                 .selecao = selecao,
                                 .grava_campos = [this] { Grava_campos(); }});
}

void cRequisicao::Grava_campos() const {
  Tabela.setField(u"SEQ", Seq);
  Grava_colunas();
}

void cRequisicao::Del_req() {
  Exclui_registro({.tabela = QStringLiteral("Requisicao"),
                   .apaga = QStringLiteral("DELETE FROM Requisicao where "),
                   .condicao = QStringLiteral("SEQ = ") + QString::number(Seq)});
}

bool cRequisicao::Numero_tomado() const {
  Abre_consulta(QStringLiteral("SELECT SEQ FROM Requisicao WHERE SEQ =") + QString::number(Seq));
  const bool tomado = Tabela.recordCount() >= 1;
  Tabela.close();
  return tomado;
}

bool cRequisicao::Verifica_registro() {
  Sql_atual =
      QStringLiteral(
          "SELECT Requisicao.TOMADOR, Requisicao.FINALIDADE, Adiantamento.FECHAMENTO "
          "FROM Requisicao LEFT JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO "
          " WHERE Requisicao.TOMADOR =") +
      QString::number(Tomador) + QStringLiteral(" And Requisicao.Finalidade = ") +
      QString::number(Finalidade) + QStringLiteral(" AND ((Adiantamento.FECHAMENTO) Is Null);");
  Abre_consulta(Sql_atual);
  const bool aberto = Tabela.recordCount() >= 1;
  Tabela.close();
  return aberto;
}

void cRequisicao::Envia_dados(std::int32_t numero) {
  Carrega_registro(
      QStringLiteral("Select Requisicao.*, Executor.IDORGAO From Requisicao, Executor WHERE "
                     "Requisicao.ORGAO = Executor.ORDEM AND SEQ =") +
          QString::number(Le_numero(numero)),
      [this] { Le_campos(); });
}

void cRequisicao::Le_campos() {
  Seq = Convert::toI32(Tabela.field(u"SEQ"));
  Data = Convert::toDateTime(Tabela.field(u"DATA"));
  Orgao = Convert::toI16(Tabela.field(u"ORGAO"));
  Tomador = Convert::toI16(Tabela.field(u"TOMADOR"));
  Valor = Convert::toMoney(Tabela.field(u"VALOR"));
  Finalidade = Convert::toI16(Tabela.field(u"FINALIDADE"));
  Justificativa = Convert::toText(Tabela.field(u"JUSTIFICATIVA"));
  Ficha = Convert::toText(Tabela.field(u"FICHA"));
  Secretaria = Convert::toI16(Tabela.field(u"IDORGAO"));
}

}  // namespace quartela
