#include "masterdata/cTipos.h"

#include "foundation/Banco.h"
#include "foundation/Escritorio.h"
#include "masterdata/ListaCadastro.h"
#include "platform/values/Convert.h"
#include "records/Consulta.h"
#include "records/Gravacao.h"

namespace quartela {
namespace {

LinhaCadastro linha_do_tipo() {
  return {.celulas = {Celula(0, u"0000"), Celula(1, u"00") + QStringLiteral(" - ") + Celula(2),
                      Celula(3), Celula(4), Celula(5)},
          .marcada = Convert::toBool(Tabela.field(6))};
}

}  // namespace

cTipos& cTipos::compartilhada() {
  static cTipos instancia;
  return instancia;
}

bool cTipos::Save_tipos(std::int16_t operacao) {
  const QString selecao =
      QStringLiteral("select * from Tipos WHERE SEQUENCIA =") + QString::number(Sequencia);
  return Salva_registro(operacao, {.tabela = QStringLiteral("Tipos"),
                                   .selecao = selecao,
                                   .grava_campos = [this] { Grava_campos(); }});
}

void cTipos::Grava_campos() const {
  Tabela.setField(u"IDORGAO", Orgao);
  Tabela.setField(u"TIPO", Tipo);
  Tabela.setField(u"ELEMENTO", Elemento);
  Tabela.setField(u"LEI", Lei);
  Tabela.setField(u"MATERIAIS", Materiais);
  Tabela.setField(u"PRAZO", Prazo);
  Tabela.setField(u"ATIVO", Ativo);
}

void cTipos::Del_tipos() {
  Exclui_registro({.tabela = QStringLiteral("Tipos"),
                   .apaga = QStringLiteral("DELETE FROM Tipos where "),
                   .condicao = QStringLiteral("SEQUENCIA = ") + QString::number(Sequencia)});
}

void cTipos::Lista_Tipos(ListView& lista, std::int16_t modo) {
  const QString selecao = QStringLiteral(
      "SELECT Tipos.SEQUENCIA, Orgao.IDORGAO, Orgao.ORGAO, Tipos.TIPO, Tipos.ELEMENTO, "
      "Tipos.PRAZO, "
      "Tipos.ATIVO FROM Orgao INNER JOIN Tipos ON Orgao.IDORGAO = Tipos.IDORGAO");
  QString comando;
  if (modo == 0) {
    comando = selecao + QStringLiteral("; ");
  } else if (modo == 1) {
    comando = selecao + QStringLiteral(" WHERE Orgao.ORGAO Like '%") + Texto_procurado(Secretaria) +
              QStringLiteral("%';");
  }
  Preenche_lista(lista, comando, linha_do_tipo);
}

void cTipos::Envia_dados(std::int16_t chave) {
  Carrega_registro(
      QStringLiteral("Select IDORGAO, TIPO, ELEMENTO, LEI, MATERIAIS, PRAZO, ATIVO From Tipos "
                     "WHERE SEQUENCIA =") +
          QString::number(chave),
      [this] {
        Orgao = Convert::toI16(Tabela.field(0));
        Tipo = Celula(1);
        Elemento = Celula(2);
        Lei = Celula(3);
        Materiais = Celula(4);
        Prazo = Celula(5);
      });
}

}  // namespace quartela
