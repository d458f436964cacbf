#include "masterdata/cTomador.h"

#include "foundation/Banco.h"
#include "foundation/Escritorio.h"
#include "masterdata/ListaCadastro.h"
#include "masterdata/Pessoa.h"
#include "platform/values/Convert.h"
#include "records/Gravacao.h"

namespace quartela {
namespace {

// A name made only of digits is padded to three places; any other stays as it is.
LinhaCadastro linha_do_responsavel() {
  return {.celulas = {Celula(0, u"0000"), Celula(1, u"000"), Celula(2), Celula(3), Celula(4)},
          .marcada = Convert::toBool(Tabela.field(5))};
}

}  // namespace

cTomador& cTomador::compartilhada() {
  static cTomador instancia;
  return instancia;
}

void cTomador::CarregaList() {
  Carrega_pessoa(QStringLiteral("Select NOME1, RG1, CPF1, CARGO FROM Tomador WHERE ID =") +
                     QString::number(Ordem),
                 {&Nome, &RG, &CPF, &Cargo});
}

bool cTomador::Save_Tomador(std::int16_t operacao) {
  return Salva_registro(operacao, {.tabela = QStringLiteral("Tomador"),
                                   .selecao = QStringLiteral("Select * from Tomador WHERE ID =") +
                                              QString::number(Ordem),
                                   .grava_campos = [this] { Grava_campos(); }});
}

void cTomador::Grava_campos() const {
  Tabela.setField(u"NOME1", Nome);
  Tabela.setField(u"CARGO", Cargo);
  Tabela.setField(u"RG1", RG);
  Tabela.setField(u"CPF1", CPF);
  Tabela.setField(u"ATIVO", Ativo);
}

void cTomador::Del_Tomador() {
  Exclui_registro({.tabela = QStringLiteral("Tomador"),
                   .apaga = QStringLiteral("DELETE FROM Tomador where "),
                   .condicao = QStringLiteral("ID = ") + QString::number(Ordem)});
}

void cTomador::Lista_Tomador(ListView& lista, std::int16_t modo) {
  const QString selecao = QStringLiteral(
      "SELECT Tomador.ID, Tomador.NOME1, Tomador.CARGO, Tomador.RG1, Tomador.CPF1, Tomador.ATIVO "
      "FROM Tomador");
  QString comando;
  if (modo == 0) {
    comando = selecao + QStringLiteral(";");
  } else if (modo == 1) {
    comando = selecao + QStringLiteral(" Where Tomador.NOME1 Like '%") + Texto_procurado(Nome) +
              QStringLiteral("%';");
  }
  Preenche_lista_sob_trava(lista, comando, linha_do_responsavel);
}

}  // namespace quartela
