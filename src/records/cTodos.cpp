#include "records/cTodos.h"

#include "foundation/Banco.h"
#include "foundation/Escritorio.h"
#include "foundation/Leitura.h"
#include "platform/controls/ListView.h"
#include "platform/controls/StatusBar.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"

namespace quartela {
namespace {

constexpr QStringView kData = u"dd/MM/yyyy";
constexpr QStringView kEmpenho = u"00000/00";
constexpr QStringView kProcesso = u"0000/00";
constexpr QStringView kValor = u"#,##0.00";
const QString kRotulo = QStringLiteral("Função Lista_Movimento");

// The row's icon tells its state: closed, open, or requisition only.
constexpr int kAberto = 1;
constexpr int kEncerrado = 2;
constexpr int kSoRequisicao = 3;

// The columns of the stored queries of the processes, by position.
enum Coluna {
  kSeq,
  kDataRequisicao,
  kValorPedido,
  kSecretaria = 4,
  kResponsavel,
  kTipo,
  kNumeroEmpenho,
  kAbertura,
  kRetirada,
  kFecharEm,
  kFechamento,
  kDias,
};

QString formatado(int coluna, QStringView formato) {
  return Format(Tabela.field(coluna), formato);
}

QString texto(int coluna) {
  return Convert::toText(Tabela.field(coluna));
}

QString empenho() {
  const Value numero = Tabela.field(kNumeroEmpenho);
  return numero == Value(0) ? QString() : Format(numero, kEmpenho);
}

int icone() {
  if (!Tabela.field(kFechamento).isNull()) {
    return kEncerrado;
  }
  return Tabela.field(kRetirada).isNull() ? kSoRequisicao : kAberto;
}

void adiciona_processo(ListView& lista) {
  const int linha =
      lista.addRow({formatado(kSeq, kProcesso), empenho(), formatado(kDataRequisicao, kData),
                    texto(kSecretaria), texto(kResponsavel), formatado(kValorPedido, kValor),
                    texto(kTipo), formatado(kAbertura, kData), formatado(kRetirada, kData),
                    formatado(kFecharEm, kData), formatado(kFechamento, kData), texto(kDias)});
  lista.setIcon(linha, icone());
}

void adiciona_procurado(ListView& lista) {
  lista.addRow({formatado(0, kEmpenho), texto(1), texto(2), formatado(3, kValor),
                formatado(4, kData), formatado(5, kData), formatado(6, kData), texto(7),
                formatado(8, kProcesso)});
}

void preenche(ListView& lista, const QString& comando, void (*adiciona)(ListView&)) {
  Sql_atual = comando;
  lista.clear();
  Abre_consulta(Sql_atual);
  Cede_vez();
  for (; !Tabela.eof(); Tabela.moveNext()) {
    adiciona(lista);
  }
}

}  // namespace

cTodos& cTodos::compartilhada() {
  static cTodos instancia;
  return instancia;
}

void cTodos::Lista_Movimento(ListView& lista, std::int16_t codigo, StatusBar& barra) {
  Lista_sob_trava(kRotulo, [&] {
    preenche(lista, comando_movimento(codigo), adiciona_processo);
    barra.setPanelText(
        1, QStringLiteral("Total: %1 Registros Localizados....").arg(Tabela.recordCount()));
  });
}

void cTodos::Lista_Procura(ListView& lista, std::int16_t codigo) {
  Lista_sob_trava(kRotulo, [&] { preenche(lista, comando_procura(codigo), adiciona_procurado); });
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
