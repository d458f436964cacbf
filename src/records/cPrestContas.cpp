#include "records/cPrestContas.h"

#include <array>

#include "foundation/Banco.h"
#include "foundation/Escritorio.h"
#include "foundation/Leitura.h"
#include "platform/controls/ListView.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "records/Colunas.h"
#include "records/Consulta.h"
#include "records/Gravacao.h"

namespace quartela {
namespace {

const QString kNotas = QStringLiteral(
    "SELECT PrestContas.SEQ, PrestContas.DATA, PrestContas.ORDEM, PrestContas.HISTORICO, "
    "PrestContas.DESPESAS From PrestContas Where PrestContas.Processo =");
const QString kPorData = QStringLiteral(" ORDER BY PrestContas.DATA, PrestContas.SEQ;");

constexpr std::array<ColunaLista, cPrestContas::kColunas> kLista{{
    {"SEQ", ColumnWidth::pixels(70)},
    {"DATA", ColumnWidth::pixels(96)},
    {" DOC.", ColumnWidth::pixels(110)},
    {"IDENTIFICAÇÃO DO DOCUMENTO", ColumnWidth::pixels(416)},
    {"VALOR", ColumnWidth::pixels(120), Qt::AlignRight},
    {"TOTAL", ColumnWidth::pixels(120), Qt::AlignRight},
}};

void adiciona_nota(ListView& lista, Money& total) {
  total += Convert::toMoney(Tabela.field(4));
  const int linha =
      lista.addRow({Format(Tabela.field(0), u"0000"), Format(Tabela.field(1), kDateFormat),
                    Convert::toText(Tabela.field(2)), Convert::toText(Tabela.field(3)),
                    Format(Tabela.field(4), kAmountFormat), Format(total, kAmountFormat)});
  lista.ensureVisible(linha);
}

}  // namespace

void cPrestContas::prepara_lista(ListView& lista) {
  prepara_colunas(lista, kLista);
}

cPrestContas& cPrestContas::compartilhada() {
  static cPrestContas instancia;
  return instancia;
}

bool cPrestContas::Save_prest(std::int16_t codigo) {
  const QString selecao =
      QStringLiteral("select * from PrestContas WHERE SEQ =") + QString::number(Seq);
  return Tenta_salvar(codigo, {.tabela = QStringLiteral("PrestContas"),
                               .selecao = selecao,
                               .grava_campos = [this] { Grava_campos(); },
                               .pergunta_inclusao = false}) != Desfecho::Falhou;
}

void cPrestContas::Save_import() {
  Salva_calado({.tabela = QStringLiteral("PrestContas"), .selecao = {}, .grava_campos = [this] {
                  Grava_campos();
                }});
}

void cPrestContas::Grava_campos() const {
  Tabela.setField(u"PROCESSO", processo);
  Tabela.setField(u"DATA", Data);
  Tabela.setField(u"ORDEM", Ordem);
  Tabela.setField(u"HISTORICO", Historico);
  Tabela.setField(u"DESPESAS", Despesas);
  Tabela.setField(u"ID_VIAGEM", ID_Viagem);
}

void cPrestContas::Del_prest() {
  Exclui_registro({.tabela = QStringLiteral("PrestContas"),
                   .apaga = QStringLiteral("DELETE FROM PrestContas where "),
                   .condicao = QStringLiteral("SEQ = ") + QString::number(Seq)});
}

void cPrestContas::Del_prest_todos() {
  const Exclusao todas{.tabela = QStringLiteral("PrestContas"),
                       .apaga = QStringLiteral("DELETE From PrestContas WHERE "),
                       .condicao = QStringLiteral("PROCESSO =") + QString::number(processo),
                       .aviso = AvisoExclusao::Nenhum};
  Sql_atual = todas.apaga + todas.condicao;
  Exclui_registro(todas);
}

Money cPrestContas::Lista_Prest(ListView& lista) {
  Money resultado;
  Lista_sob_trava(QStringLiteral("Função Lista_Adiantamento"), [&] {
    Sql_atual = kNotas + QString::number(processo) + kPorData;
    lista.clear();
    Money total;
    Abre_consulta(Sql_atual);
    Cede_vez();
    for (; !Tabela.eof(); Tabela.moveNext()) {
      adiciona_nota(lista, total);
    }
    resultado = Convert::toMoney(Format(total, kAmountFormat));
  });
  return resultado;
}

bool cPrestContas::Verifica_Prest() {
  bool tem = false;
  Lista_sob_trava(QStringLiteral("Função Verifica_Prest"), [&] {
    Sql_atual = kNotas + ' ' + QString::number(processo) + kPorData;
    Abre_consulta(Sql_atual);
    tem = Tabela.recordCount() >= 1;
  });
  return tem;
}

void cPrestContas::Envia_dados(std::int32_t numero) {
  Carrega_registro(
      QStringLiteral("Select * From PrestContas WHERE SEQ =") + QString::number(Le_numero(numero)),
      [this] { Le_campos(); });
}

void cPrestContas::Le_campos() {
  processo = Convert::toI32(Tabela.field(u"PROCESSO"));
  Data = Convert::toDateTime(Tabela.field(u"DATA"));
  Ordem = Convert::toText(Tabela.field(u"ORDEM"));
  Despesas = Convert::toMoney(Tabela.field(u"DESPESAS"));
  Historico = Convert::toText(Tabela.field(u"HISTORICO"));
  ID_Viagem = Le_numero(Tabela.field(u"ID_Viagem"));
}

}  // namespace quartela
