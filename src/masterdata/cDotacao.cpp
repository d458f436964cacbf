#include "masterdata/cDotacao.h"

#include "foundation/Banco.h"
#include "masterdata/ListaCadastro.h"
#include "records/Gravacao.h"

namespace quartela {
namespace {

LinhaCadastro linha_da_dotacao() {
  return {.celulas = {Celula(0, u"0000"), Celula(1, u"000") + QStringLiteral(" - ") + Celula(5),
                      Celula(6, u"000") + QStringLiteral(" - ") + Celula(7), Celula(2), Celula(3),
                      Celula(4)}};
}

}  // namespace

cDotacao& cDotacao::compartilhada() {
  static cDotacao instancia;
  return instancia;
}

bool cDotacao::Save_Dotacao(std::int16_t operacao) {
  return Salva_registro(operacao, {.tabela = QStringLiteral("Dotacao"),
                                   .selecao = QStringLiteral("Select * from Dotacao WHERE ID =") +
                                              QString::number(Ordem),
                                   .grava_campos = [this] { Grava_campos(); }});
}

void cDotacao::Grava_campos() const {
  Tabela.setField(u"IDTIPO", Tipo);
  Tabela.setField(u"DESCRICAO", Descricao);
  Tabela.setField(u"DOTACAO", Dotacao);
  Tabela.setField(u"ANO", Ano);
  Tabela.setField(u"IDORGAO", Orgao);
}

void cDotacao::Del_Dotacao() {
  Exclui_registro({.tabela = QStringLiteral("Dotacao"),
                   .apaga = QStringLiteral("DELETE FROM Dotacao where "),
                   .condicao = QStringLiteral("ID = ") + QString::number(Ordem)});
}

void cDotacao::Lista_Dotacao(ListView& lista, std::int16_t modo) {
  QString comando;
  if (modo == 0) {
    comando = QStringLiteral("SELECT * From Sel_Dotacao;");
  } else if (modo == 1) {
    comando = QStringLiteral("SELECT * From Sel_Dotacao WHERE Dotacao.DOTACAO =") +
              QString::number(Dotacao);
  }
  Preenche_lista_sob_trava(lista, comando, linha_da_dotacao);
}

}  // namespace quartela
