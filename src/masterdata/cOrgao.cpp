#include "masterdata/cOrgao.h"

#include "foundation/Banco.h"
#include "foundation/Escritorio.h"
#include "masterdata/ListaCadastro.h"
#include "platform/values/Convert.h"
#include "records/Consulta.h"
#include "records/Gravacao.h"

namespace quartela {

cOrgao& cOrgao::compartilhada() {
  static cOrgao instancia;
  return instancia;
}

bool cOrgao::Save_Orgao(std::int16_t operacao) {
  return Salva_registro(
      operacao,
      {.tabela = QStringLiteral("Orgao"),
       .selecao = QStringLiteral("select * from Orgao WHERE IDORGAO =") + QString::number(ID),
       .grava_campos = [this] { Tabela.setField(u"Orgao", Orgao); }});
}

void cOrgao::Del_Orgao() {
  Exclui_registro({.tabela = QStringLiteral("Orgao"),
                   .apaga = QStringLiteral("DELETE FROM Orgao where "),
                   .condicao = QStringLiteral("IDORGAO = ") + QString::number(ID)});
}

void cOrgao::Lista_Orgao(ListView& lista, std::int16_t modo) {
  QString comando;
  if (modo == 0) {
    comando = QStringLiteral("SELECT Orgao.IDORGAO, Orgao.Orgao FROM Orgao; ");
  } else if (modo == 1) {
    comando =
        QStringLiteral("SELECT Orgao.IDORGAO, Orgao.Orgao FROM Orgao WHERE Orgao.ORGAO Like '%") +
        Texto_procurado(Orgao) + QStringLiteral("%';");
  }
  Preenche_lista(lista, comando, [] {
    return LinhaCadastro{.celulas = {Celula(0, u"0000"), Celula(1)}};
  });
}

void cOrgao::Envia_dados(std::int16_t chave) {
  Carrega_registro(QStringLiteral("Select * From Orgao WHERE ID =") + QString::number(chave),
                   [this] {
                     ID = Convert::toI16(Tabela.field(u"IDORGAO"));
                     Orgao = Convert::toText(Tabela.field(u"ORGAO"));
                   });
}

}  // namespace quartela
