#include "masterdata/cTipoDespesa.h"

#include "foundation/Banco.h"
#include "foundation/Escritorio.h"
#include "masterdata/ListaCadastro.h"
#include "records/Gravacao.h"

namespace quartela {

cTipoDespesa& cTipoDespesa::compartilhada() {
  static cTipoDespesa instancia;
  return instancia;
}

bool cTipoDespesa::Save_Finalidade(std::int16_t operacao) {
  return Salva_registro(
      operacao,
      {.tabela = QStringLiteral("Finalidade"),
       .selecao = QStringLiteral("select * from Finalidade WHERE ID =") + QString::number(ID),
       .grava_campos = [this] { Tabela.setField(u"FINALIDADE", Finalidade); }});
}

void cTipoDespesa::Del_Finalidade() {
  Exclui_registro({.tabela = QStringLiteral("Finalidade"),
                   .apaga = QStringLiteral("DELETE FROM Finalidade where "),
                   .condicao = QStringLiteral("ID = ") + QString::number(ID)});
}

void cTipoDespesa::Lista_Finalidade(ListView& lista, std::int16_t modo) {
  QString comando;
  if (modo == 0) {
    comando = QStringLiteral("SELECT Finalidade.ID, Finalidade.FINALIDADE FROM Finalidade; ");
  } else if (modo == 1) {
    comando = QStringLiteral(
                  "SELECT Finalidade.ID, Finalidade.FINALIDADE FROM Finalidade WHERE FINALIDADE "
                  "Like '%") +
              Texto_procurado(Finalidade) + QStringLiteral("%';");
  }
  Preenche_lista(lista, comando, [] {
    return LinhaCadastro{.celulas = {Celula(0, u"0000"), Celula(1)}};
  });
}

}  // namespace quartela
