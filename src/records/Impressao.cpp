#include "records/Impressao.h"

#include "foundation/Banco.h"
#include "foundation/Erros.h"
#include "foundation/Ini.h"

namespace quartela {
namespace {

QMap<Relatorio, Imprime>& registrados() {
  static QMap<Relatorio, Imprime> relatorios;
  return relatorios;
}

}  // namespace

void registra_impressao(Relatorio relatorio, Imprime imprime) {
  registrados().insert(relatorio, std::move(imprime));
}

void imprime(const PedidoImpressao& pedido) {
  const Imprime registrado = registrados().value(pedido.relatorio);
  if (!registrado) {
    throw RuntimeError::withDescription(
        ErrorNumber::InvalidProcedureCall,
        QStringLiteral("Este documento não está disponível nesta instalação."));
  }
  if (!pedido.comando.isEmpty()) {
    Sql_atual = pedido.comando;
  }
  registrado(pedido);
}

bool imprime_requisicao(const QString& comando) {
  bool entregue = false;
  Sob_trava(kFuncaoImprimir, [&] {
    imprime({.relatorio = Relatorio::Requisicao2, .comando = comando});
    entregue = true;
  });
  return entregue;
}

bool Exibe_antes() {
  return Le_config(QStringLiteral("Requisicao"), QStringLiteral("valor2")).trimmed() !=
         QStringLiteral("0");
}

}  // namespace quartela
