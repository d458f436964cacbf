#include "masterdata/cExecutor.h"

#include "foundation/Banco.h"
#include "foundation/Escritorio.h"
#include "masterdata/ListaCadastro.h"
#include "masterdata/Pessoa.h"
#include "platform/values/Convert.h"
#include "records/Gravacao.h"

namespace quartela {
namespace {

LinhaCadastro linha_do_ordenador() {
  return {.celulas = {Celula(0, u"0000"), Celula(1, u"000") + QStringLiteral(" - ") + Celula(7),
                      Celula(2), Celula(3), Celula(4), Celula(5)},
          .marcada = Convert::toBool(Tabela.field(6))};
}

}  // namespace

cExecutor& cExecutor::compartilhada() {
  static cExecutor instancia;
  return instancia;
}

void cExecutor::CarregaList() {
  Carrega_pessoa(QStringLiteral("Select NOME, RG, CPF, FUNCAO FROM Executor WHERE ORDEM =") +
                     QString::number(Ordem),
                 {&Nome, &RG, &CPF, &Funcao});
}

bool cExecutor::Save_executor(std::int16_t operacao) {
  return Salva_registro(
      operacao,
      {.tabela = QStringLiteral("Executor"),
       .selecao = QStringLiteral("Select * from Executor WHERE ORDEM =") + QString::number(Ordem),
       .grava_campos = [this] { Grava_campos(); }});
}

void cExecutor::Grava_campos() const {
  Tabela.setField(u"IDORGAO", Orgao);
  Tabela.setField(u"NOME", Nome);
  Tabela.setField(u"RG", RG);
  Tabela.setField(u"CPF", CPF);
  Tabela.setField(u"FUNCAO", Funcao);
  Tabela.setField(u"ATIVO", Ativo);
}

void cExecutor::Del_executor() {
  Exclui_registro({.tabela = QStringLiteral("Executor"),
                   .apaga = QStringLiteral("DELETE FROM Executor where "),
                   .condicao = QStringLiteral("ORDEM = ") + QString::number(Ordem)});
}

void cExecutor::Lista_Executor(ListView& lista, std::int16_t modo) {
  const QString selecao = QStringLiteral(
      "SELECT Executor.ORDEM, Executor.IDORGAO, Executor.NOME, Executor.RG, Executor.CPF, "
      "Executor.FUNCAO, Executor.ATIVO, Orgao.ORGAO "
      "FROM Executor, Orgao WHERE Executor.IDORGAO = Orgao.IDORGAO");
  QString comando;
  if (modo == 0) {
    comando = selecao + QStringLiteral(";");
  } else if (modo == 1) {
    comando = selecao + QStringLiteral(" AND Executor.NOME Like '%") + Texto_procurado(Nome) +
              QStringLiteral("%';");
  }
  Preenche_lista_sob_trava(lista, comando, linha_do_ordenador);
}

}  // namespace quartela
