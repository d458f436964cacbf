#include "masterdata/cInciso.h"

#include "foundation/Banco.h"
#include "masterdata/ListaCadastro.h"
#include "platform/values/Convert.h"
#include "records/Consulta.h"
#include "records/Gravacao.h"

namespace quartela {
namespace {

LinhaCadastro linha_do_inciso() {
  return {.celulas = {Celula(0, u"0000"), Celula(1, u"000") + QStringLiteral(" - ") + Celula(2),
                      Celula(3), Celula(4), Celula(5)},
          .marcada = Convert::toBool(Tabela.field(6))};
}

}  // namespace

cInciso& cInciso::compartilhada() {
  static cInciso instancia;
  return instancia;
}

bool cInciso::Save_inciso(std::int16_t operacao) {
  return Salva_registro(
      operacao, {.tabela = QStringLiteral("Inciso"),
                 .selecao = QStringLiteral("Select * from Inciso WHERE ID =") + QString::number(ID),
                 .grava_campos = [this] { Grava_campos(); }});
}

void cInciso::Grava_campos() const {
  Tabela.setField(u"TIPO", Tipo);
  Tabela.setField(u"DESCRICAO", Descricao);
  Tabela.setField(u"CATEGORIA", Categoria);
  Tabela.setField(u"PRAZO", Prazo);
  Tabela.setField(u"ATIVO", Ativo);
}

void cInciso::Del_inciso() {
  Exclui_registro({.tabela = QStringLiteral("Inciso"),
                   .apaga = QStringLiteral("DELETE FROM Inciso where "),
                   .condicao = QStringLiteral("ID = ") + QString::number(ID)});
}

void cInciso::Lista_Inciso(ListView& lista) {
  Preenche_lista_sob_trava(
      lista,
      QStringLiteral(
          "SELECT Inciso.ID, Inciso.TIPO, Tipos.TIPO, Inciso.DESCRICAO, Inciso.CATEGORIA, "
          "Inciso.PRAZO, Inciso.ATIVO FROM Tipos INNER JOIN Inciso ON "
          "Tipos.SEQUENCIA = Inciso.TIPO;"),
      linha_do_inciso);
}

void cInciso::Carrega_lista() {
  Carrega_registro(
      QStringLiteral("Select CATEGORIA, PRAZO FROM Inciso WHERE ID =") + QString::number(ID),
      [this] {
        Categoria = Celula(0);
        Prazo = Convert::toI16(Tabela.field(1));
      });
}

}  // namespace quartela
