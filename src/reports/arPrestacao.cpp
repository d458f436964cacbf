#include "reports/arPrestacao.h"

#include "foundation/Banco.h"
#include "records/Impressao.h"
#include "reports/Saida.h"

namespace quartela {

using reporting::Report;

namespace {

void exibe_prestacao_anterior(const PedidoImpressao& pedido) {
  const auto relatorio = std::make_shared<Report>(Desenho(QStringLiteral("arPrestacao")));
  const auto notas = srPrestacao(pedido.comando);
  for (auto texto = pedido.campos.begin(); texto != pedido.campos.end(); ++texto) {
    relatorio->setText(texto.key(), texto.value());
  }
  relatorio->setSubReport(u"srPrestacao", notas);
  Exibe(relatorio);
}

}  // namespace

std::shared_ptr<Report> arPrestacao(const QString& comando) {
  auto relatorio = std::make_shared<Report>(Desenho(QStringLiteral("arPrestacao")));
  relatorio->setSource(*Conexao, comando);
  return relatorio;
}

std::shared_ptr<Report> srPrestacao(const QString& comando) {
  auto relatorio = std::make_shared<Report>(Desenho(QStringLiteral("srPrestacao")));
  relatorio->setSource(*Conexao, comando);
  return relatorio;
}

void registra_arPrestacao() {
  registra_impressao(Relatorio::Mercadorias, [](const PedidoImpressao& pedido) {
    Imprime_relatorio(*arPrestacao(pedido.comando), false);
  });
  registra_impressao(Relatorio::PrestacaoAnterior, exibe_prestacao_anterior);
}

}  // namespace quartela
