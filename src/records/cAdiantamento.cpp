#include "records/cAdiantamento.h"

#include <array>

#include "foundation/Banco.h"
#include "foundation/Erros.h"
#include "foundation/Leitura.h"
#include "platform/controls/ListView.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "records/Colunas.h"
#include "records/Consulta.h"
#include "records/Gravacao.h"

namespace quartela {
namespace {

constexpr std::array<ColunaLista, cAdiantamento::kColunas> kLista{{
    {"Empenho", ColumnWidth::pixels(78)},
    {"Abertura", ColumnWidth::pixels(82)},
    {"Retirada", ColumnWidth::pixels(82)},
    {"Fechar em", ColumnWidth::pixels(82)},
    {"Fechamento", ColumnWidth::pixels(86)},
    {"Valor devolvido", ColumnWidth::pixels(110), Qt::AlignRight},
    {"Data devolução", ColumnWidth::pixels(110)},
    {"O.P.", ColumnWidth::pixels(52)},
    {"Anulado?", ColumnWidth::pixels(68)},
}};

void adiciona_empenho(ListView& lista) {
  const auto campo = [](int posicao, QStringView formato) {
    return Format(Tabela.field(posicao), formato);
  };
  lista.addRow({campo(0, u"00000/00"), campo(1, kDateFormat), campo(2, kDateFormat),
                campo(3, kDateFormat), campo(4, kDateFormat), campo(5, kAmountFormat),
                campo(6, kDateFormat), Convert::toText(Tabela.field(7)),
                Convert::toBool(Tabela.field(8)) ? QStringLiteral("SIM") : QStringLiteral("NÃO")});
}

}  // namespace

cAdiantamento& cAdiantamento::compartilhada() {
  static cAdiantamento instancia;
  return instancia;
}

void cAdiantamento::prepara_lista(ListView& lista) {
  prepara_colunas(lista, kLista);
}

void cAdiantamento::Del_ad() {
  Exclui_registro({.tabela = QStringLiteral("Adiantamento"),
                   .apaga = QStringLiteral("DELETE FROM Adiantamento where "),
                   .condicao = QStringLiteral("EMPENHO = ") + QString::number(Empenho),
                   .ordem = OrdemDesfaz::DepoisDaCaixa});
}

void cAdiantamento::Save_ad(std::int16_t codigo) {
  const QString selecao =
      QStringLiteral("select * from Adiantamento WHERE Adiantamento.EMPENHO =") +
      QString::number(Empenho);
  Salva_registro(codigo, {.tabela = QStringLiteral("Adiantamento"),
                          .selecao = selecao,
                          .grava_campos = [this] { Grava_campos(); }});
  Intocadas.clear();
}

void cAdiantamento::Grava_campos() const {
  const auto grava = [this](QStringView coluna, const Value& valor) {
    if (!Intocadas.contains(coluna)) {
      Tabela.setField(coluna, valor);
    }
  };
  grava(u"EMPENHO", Empenho);
  grava(u"PROCESSO", processo);
  grava(u"ABERTURA", Abertura);
  grava(u"RETIRADA", Retirada);
  grava(u"FECHAR_EM", Fechar);
  grava(u"FECHAMENTO", Fechamento);
  grava(u"DEVOLUCAO", Devolucao);
  grava(u"DATADEV", Datadev);
  grava(u"ANULADO", Nulo != 0);
  grava(u"OP", OP);
}

void cAdiantamento::Lista_Adiantamento(ListView& lista) {
  Lista_sob_trava(QStringLiteral("Função Lista_Adiantamento"), [&] {
    Sql_atual = QStringLiteral(
                    "SELECT Adiantamento.EMPENHO, Adiantamento.ABERTURA, Adiantamento.RETIRADA, "
                    "Adiantamento.FECHAR_EM, Adiantamento.FECHAMENTO, Adiantamento.DEVOLUCAO, "
                    "Adiantamento.DATADEV, Adiantamento.OP, Adiantamento.ANULADO From Adiantamento "
                    "WHERE Adiantamento.PROCESSO =") +
                QString::number(processo);
    lista.clear();
    Abre_consulta(Sql_atual);
    Cede_vez();
    for (; !Tabela.eof(); Tabela.moveNext()) {
      adiciona_empenho(lista);
    }
  });
}

Money cAdiantamento::Soma_despesas() {
  Money soma;
  Lista_sob_trava(QStringLiteral("Função Soma_despesas"), [&] {
    Sql_atual = QStringLiteral(
                    "SELECT DISTINCTROW Sum(PrestContas.DESPESAS) AS [Soma De DESPESAS] "
                    "From PrestContas GROUP BY PrestContas.PROCESSO "
                    "HAVING PrestContas.PROCESSO =") +
                QString::number(processo);
    Abre_consulta(Sql_atual);
    if (Tabela.recordCount() > 0) {
      soma = Convert::toMoney(Format(Tabela.field(0), kAmountFormat));
    }
  });
  return soma;
}

bool cAdiantamento::Encerra_adiantamento() {
  bool gravado = false;
  Sob_trava(QStringLiteral("Encerra_adiantamento"), [&] {
    Sql_atual = QStringLiteral(
                    "Select EMPENHO, FECHAMENTO, DEVOLUCAO, DATADEV From Adiantamento "
                    "WHERE EMPENHO =") +
                QString::number(Empenho);
    if (Datadev == Value("")) {
      Datadev = Value();
    }
    Grava_linha(kAlteracao, {.tabela = QStringLiteral("Adiantamento"),
                             .selecao = Sql_atual,
                             .grava_campos = [this] { Grava_encerramento(); }});
    gravado = true;
  });
  return gravado;
}

void cAdiantamento::Grava_encerramento() const {
  Tabela.setField(u"FECHAMENTO", Fechamento);
  Tabela.setField(u"DEVOLUCAO", Devolucao);
  Tabela.setField(u"DATADEV", Datadev);
}

void cAdiantamento::Dados_Planilha() {
  Carrega_registro(QStringLiteral("Select * From Sel_Planilha WHERE Requisicao.SEQ =") +
                       QString::number(processo),
                   [this] { Le_planilha(); });
}

void cAdiantamento::Le_planilha() {
  Empenho = Convert::toI32(Tabela.field(u"EMPENHO"));
  Abertura = Convert::toText(Tabela.field(u"ABERTURA"));
  Retirada = Convert::toText(Tabela.field(u"RETIRADA"));
  executor_ = Convert::toText(Tabela.field(u"NOME"));
  tomador_ = Convert::toText(Tabela.field(u"NOME1"));
  cargo_ = Convert::toText(Tabela.field(u"CARGO"));
  orgao_ = Convert::toText(Tabela.field(u"ORGAO"));
  valor_ = Convert::toMoney(Tabela.field(u"VALOR"));
}

}  // namespace quartela
