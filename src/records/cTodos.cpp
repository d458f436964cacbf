#include "records/cTodos.h"

#include <array>

#include "foundation/Banco.h"
#include "foundation/Escritorio.h"
#include "foundation/Leitura.h"
#include "platform/controls/ListView.h"
#include "platform/controls/StatusBar.h"
#include "platform/database/Recordset.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "records/Colunas.h"

namespace quartela {
namespace {

const QString kRotulo = QStringLiteral("Função Lista_Movimento");

// The row's icon tells its state: closed, open, or requisition only.
constexpr int kAberto = 1;
constexpr int kEncerrado = 2;
constexpr int kSoRequisicao = 3;

// What of the stored queries' rows tells a process's state.
constexpr int kCampoRetirada = 9;
constexpr int kCampoFechamento = 11;

constexpr const char16_t* kEmpenho = u"00000/00";
constexpr const char16_t* kProcesso = u"0000/00";

constexpr ColumnWidth centesimos(int largura) {
  return ColumnWidth::hundredthsOfMillimetre(largura);
}

constexpr std::array<ColunaLista, cTodos::kColunasMovimento> kMovimento{{
    {"N°.", centesimos(2293), Qt::AlignLeft, 0, kProcesso},
    {"EMPENHO", centesimos(2117), Qt::AlignLeft, 7, kEmpenho, true},
    {"DATA", centesimos(2646), Qt::AlignLeft, 1, kDateFormat},
    {"SECRETARIA", centesimos(4410), Qt::AlignLeft, 4},
    {"RESPONSAVEL", centesimos(4410), Qt::AlignLeft, 5},
    {"VALOR", centesimos(1940), Qt::AlignRight, 2, kAmountFormat},
    {"TIPO", centesimos(3528), Qt::AlignLeft, 6},
    {"ABERTURA", centesimos(2646), Qt::AlignLeft, 8, kDateFormat},
    {"RETIRADA", centesimos(2646), Qt::AlignLeft, kCampoRetirada, kDateFormat},
    {"FECHAR EM", centesimos(2646), Qt::AlignLeft, 10, kDateFormat},
    {"FECHAMENTO", centesimos(2646), Qt::AlignLeft, kCampoFechamento, kDateFormat},
    {"DIAS", centesimos(1411), Qt::AlignLeft, 12},
}};

constexpr std::array<ColunaLista, cTodos::kColunasProcura> kProcura{{
    {"EMPENHO", ColumnWidth::pixels(80), Qt::AlignLeft, 0, kEmpenho},
    {"NOME", ColumnWidth::pixels(206), Qt::AlignLeft, 1},
    {"TIPO", ColumnWidth::pixels(116), Qt::AlignLeft, 2},
    {"VALOR", ColumnWidth::pixels(90), Qt::AlignRight, 3, kAmountFormat},
    {"RETIRADA", ColumnWidth::pixels(84), Qt::AlignLeft, 4, kDateFormat},
    {"FECHAR EM", ColumnWidth::pixels(90), Qt::AlignLeft, 5, kDateFormat},
    {"ABERTURA", ColumnWidth::pixels(84), Qt::AlignLeft, 6, kDateFormat},
    {"FUNÇÃO", ColumnWidth::pixels(116), Qt::AlignLeft, 7},
    {"PROCESSO", ColumnWidth::pixels(84), Qt::AlignLeft, 8, kProcesso},
}};

int icone(const Recordset& linhas, int linha) {
  if (!linhas.cell(linha, kCampoFechamento).isNull()) {
    return kEncerrado;
  }
  return linhas.cell(linha, kCampoRetirada).isNull() ? kSoRequisicao : kAberto;
}

void adiciona_vencendo(ListView& lista) {
  lista.addRow({Format(Tabela.field(0), kProcesso), Convert::toText(Tabela.field(1)),
                Convert::toText(Tabela.field(2)), Format(Tabela.field(3), kDateFormat)});
}

void preenche(ListView& lista, const QString& comando, std::span<const ColunaLista> colunas,
              IconeDaLinha icone = nullptr) {
  Sql_atual = comando;
  lista.clear();
  Abre_consulta(Sql_atual);
  Cede_vez();
  entrega_linhas(lista, colunas, icone);
}

}  // namespace

cTodos& cTodos::compartilhada() {
  static cTodos instancia;
  return instancia;
}

void cTodos::Lista_Movimento(ListView& lista, std::int16_t codigo, StatusBar& barra) {
  Lista_sob_trava(kRotulo, [&] {
    preenche(lista, comando_movimento(codigo), kMovimento, icone);
    barra.setPanelText(1, QStringLiteral("Total: %1 Registros Localizados....").arg(lista.count()));
  });
}

void cTodos::Lista_Procura(ListView& lista, std::int16_t codigo) {
  Lista_sob_trava(kRotulo, [&] { preenche(lista, comando_procura(codigo), kProcura); });
}

void cTodos::prepara_movimento(ListView& lista) {
  prepara_colunas(lista, kMovimento);
}

void cTodos::prepara_procura(ListView& lista) {
  prepara_colunas(lista, kProcura);
}

int cTodos::Lista_Aviso(ListView& lista) {
  int quantos = -1;
  Lista_sob_trava(QStringLiteral("Função Form_Load"), [&] {
    lista.clear();
    Sql_atual = QStringLiteral(
        "SELECT Requisicao.SEQ, Executor.NOME, Tipos.TIPO, Adiantamento.FECHAR_EM FROM Tipos INNER "
        "JOIN ((Executor INNER JOIN Requisicao ON Executor.ORDEM = Requisicao.ORGAO) INNER JOIN "
        "Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO) ON Tipos.SEQUENCIA = "
        "Requisicao.FINALIDADE WHERE (((Adiantamento.FECHAR_EM)<Now()+6) AND "
        "((Adiantamento.FECHAMENTO) Is Null));");
    Abre_consulta(Sql_atual);
    quantos = Tabela.recordCount();
    for (; !Tabela.eof(); Tabela.moveNext()) {
      adiciona_vencendo(lista);
    }
  });
  return quantos;
}

QString cTodos::comando_movimento(std::int16_t codigo) const {
  const QString todos = QStringLiteral("SELECT * FROM Sel_Req_left ");
  const QString com_empenho = QStringLiteral("SELECT * FROM Sel_Req_inner ");
  switch (codigo) {
    case 0:
      return todos + QStringLiteral(" ORDER BY Adiantamento.ABERTURA DESC;");
    case 1:
      return todos + QStringLiteral(
                         " Where (((Adiantamento.Fechamento) Is Null) And "
                         "((Year([Requisicao].[Data])) = Year(Now()))) "
                         "ORDER BY Requisicao.SEQ DESC;");
    case 2:
      return com_empenho + QStringLiteral(" WHERE ((Adiantamento.FECHAMENTO) Is Null);");
    case 3:
      return todos + QStringLiteral(
                         " WHERE (((Adiantamento.FECHAMENTO) Is Not Null) And "
                         "((Year([Requisicao].[Data])) = Year(Now())));");
    case 4:
      return todos + QStringLiteral(
                         " Where (((Adiantamento.ABERTURA) Is Null) And "
                         "((Year([Requisicao].[Data])) = Year(Now()))) "
                         "ORDER BY Requisicao.SEQ DESC;");
    case 5:
      return todos + QStringLiteral(" WHERE Tomador.NOME1 LIKE '%") + Texto_procurado(Nome) +
             QStringLiteral("%';");
    case 6:
      return todos + QStringLiteral(" WHERE Requisicao.SEQ =") + QString::number(Seq);
    case 7:
      return todos + QStringLiteral(" WHERE (((Tomador.NOME1) Like '%") + Texto_procurado(Nome) +
             QStringLiteral(
                 "%') And ((Adiantamento.FECHAMENTO) Is Null) And "
                 "((Year(Requisicao.DATA))=Year(Now())));");
    case 8:
      return com_empenho + QStringLiteral(" WHERE (((Tomador.NOME1) Like '%") +
             Texto_procurado(Nome) +
             QStringLiteral("%') AND ((Adiantamento.FECHAMENTO) Is Null));");
    case 9:
      return todos + QStringLiteral(" WHERE (((Tomador.NOME1) Like '%") + Texto_procurado(Nome) +
             QStringLiteral("%') AND ((Adiantamento.FECHAMENTO) Is Not Null));");
    default:
      return {};
  }
}

QString cTodos::comando_procura(std::int16_t codigo) const {
  const QString empenhos = QStringLiteral(
      "SELECT Adiantamento.EMPENHO, Tomador.NOME1, Tipos.TIPO, Requisicao.VALOR, "
      "Adiantamento.RETIRADA, "
      "Adiantamento.FECHAR_EM , Adiantamento.ABERTURA, Tomador.CARGO, Adiantamento.PROCESSO "
      "FROM Tomador INNER JOIN (Tipos INNER JOIN (Requisicao INNER JOIN Adiantamento ON "
      "Requisicao.SEQ = Adiantamento.PROCESSO) ON Tipos.SEQUENCIA = Requisicao.FINALIDADE) ON "
      "Tomador.ID = Requisicao.TOMADOR ");
  switch (codigo) {
    case 1:
      return empenhos + QStringLiteral(
                            "WHERE (((Adiantamento.RETIRADA) Is Not Null) AND "
                            "((Adiantamento.FECHAMENTO) Is Null));");
    case 2:
      return empenhos + QStringLiteral("WHERE (((Tomador.NOME1) Like '%") + Texto_procurado(Nome) +
             QStringLiteral("%') AND ((Adiantamento.FECHAMENTO) Is Null));");
    case 3:
      return empenhos + QStringLiteral("WHERE (((Tipos.TIPO) Like '%") + Texto_procurado(Tipo) +
             QStringLiteral("%') AND ((Adiantamento.FECHAMENTO) Is Null));");
    case 4:
      return empenhos + QStringLiteral("WHERE (((Adiantamento.FECHAMENTO) Is Not Null));");
    default:
      return {};
  }
}

}  // namespace quartela
