#include "reports/arPrestacao.h"

#include "foundation/Banco.h"
#include "reports/Saida.h"

namespace quartela {

using reporting::Report;

std::shared_ptr<Report> arPrestacao(const QString& comando) {
  auto relatorio = std::make_shared<Report>(Desenho(QStringLiteral("arPrestacao")));
  relatorio->setSource(*Conexao, comando);
  return relatorio;
}

void Imprime_arPrestacao(const QString& comando) {
  Imprime_relatorio(*arPrestacao(comando), false);
}

std::shared_ptr<Report> srPrestacao(const QString& comando) {
  auto relatorio = std::make_shared<Report>(Desenho(QStringLiteral("srPrestacao")));
  relatorio->setSource(*Conexao, comando);
  return relatorio;
}

QString Comando_cabeca(const QString& empenho) {
  return QStringLiteral(
             "SELECT Requisicao.VALOR, Requisicao.SEQ, Adiantamento.EMPENHO, "
             "Adiantamento.ABERTURA, Adiantamento.RETIRADA, "
             "Adiantamento.DATADEV, Adiantamento.DEVOLUCAO, Executor.NOME, Executor.FUNCAO "
             "FROM (Executor INNER JOIN Requisicao ON Executor.ORDEM = Requisicao.ORGAO) "
             "INNER JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO "
             "Where Adiantamento.EMPENHO = ") +
         empenho;
}

QString Comando_notas(const QString& empenho) {
  return QStringLiteral(
             "SELECT PrestContas.DATA, PrestContas.ORDEM, PrestContas.HISTORICO, "
             "PrestContas.DESPESAS, Requisicao.VALOR "
             "FROM Requisicao INNER JOIN (Adiantamento INNER JOIN PrestContas "
             "ON Adiantamento.EMPENHO = PrestContas.PROCESSO) "
             "ON Requisicao.SEQ = Adiantamento.PROCESSO Where PrestContas.Processo = ") +
         empenho + QStringLiteral(" ORDER BY PrestContas.DATA;");
}

void Exibe_prestacao_anterior(const PrestacaoAnterior& prestacao) {
  const auto relatorio = std::make_shared<Report>(Desenho(QStringLiteral("arPrestacao")));
  const auto notas = srPrestacao(prestacao.notas);
  for (auto texto = prestacao.textos.begin(); texto != prestacao.textos.end(); ++texto) {
    relatorio->setText(texto.key(), texto.value());
  }
  relatorio->setSubReport(u"srPrestacao", notas);
  Exibe(relatorio);
}

}  // namespace quartela
