#include "records/Impressao.h"

#include "foundation/Ini.h"
#include "platform/files/ProgramFolder.h"

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
  if (const Imprime registrado = registrados().value(pedido.relatorio)) {
    registrado(pedido);
  }
}

bool Exibe_antes() {
  return Le_ini(QStringLiteral("Requisicao"), QStringLiteral("valor2"),
                programFile(QStringLiteral("Config.ini")))
             .trimmed() != QStringLiteral("0");
}

}  // namespace quartela
