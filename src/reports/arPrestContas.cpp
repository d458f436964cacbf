#include "reports/arPrestContas.h"

#include <algorithm>
#include <array>

#include "foundation/Banco.h"
#include "foundation/Textos.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "records/Impressao.h"
#include "reports/Saida.h"

namespace quartela {
namespace {

using reporting::Report;
using reporting::SectionInstance;

// The rows after which a page is taken to be full. The list ends with the tenth page: the pages
// behind it begin with the balance of the tenth.
constexpr std::array<std::int16_t, 10> kUltimasDaPagina{41,  82,  123, 164, 205,
                                                        246, 287, 328, 369, 410};

// What the report keeps from row to row.
struct Andamento {
  std::int16_t linhas = 0;
  Money transporte;  // the balance at the last page change
};

void formata_cabecalho(SectionInstance& secao, const Andamento& andamento) {
  const Value saldo =
      andamento.linhas == 0 ? Value(secao.text(u"Field37")) : Value(andamento.transporte);
  secao.setText(u"Field39", Format(saldo, kAmountFormat));
}

void formata_linha(SectionInstance& secao, Andamento& andamento) {
  andamento.linhas = Convert::toI16(andamento.linhas + 1);
  const Money saldo =
      Convert::toMoney(secao.text(u"Field37")) - Convert::toMoney(secao.text(u"Field35"));
  secao.setText(u"Field36", Format(saldo, kAmountFormat));
  if (std::find(kUltimasDaPagina.begin(), kUltimasDaPagina.end(), andamento.linhas) !=
      kUltimasDaPagina.end()) {
    andamento.transporte = Convert::toMoney(secao.text(u"Field36"));
  }
}

void formata_rodape(SectionInstance& secao) {
  const QString nao_aplicado = secao.text(u"Field40");
  if (Convert::toMoney(nao_aplicado) > Money()) {
    secao.setText(u"Field48", QLatin1Char('(') + Extenso(nao_aplicado) + QLatin1Char(')'));
  }
}

}  // namespace

std::shared_ptr<Report> arPrestContas(const PedidoImpressao& pedido) {
  auto relatorio = std::make_shared<Report>(Desenho(QStringLiteral("arPrestContas")));
  relatorio->setSource(*Conexao, pedido.comando);
  for (auto campo = pedido.campos.begin(); campo != pedido.campos.end(); ++campo) {
    relatorio->setText(campo.key(), campo.value());
  }
  const auto andamento = std::make_shared<Andamento>();
  relatorio->onStart([andamento] { andamento->linhas = 0; });
  relatorio->onFormat(
      u"Cabecalho", [andamento](SectionInstance& secao) { formata_cabecalho(secao, *andamento); });
  relatorio->onFormat(u"Detail",
                      [andamento](SectionInstance& secao) { formata_linha(secao, *andamento); });
  relatorio->onFormat(u"PageFooter", formata_rodape);
  return relatorio;
}

void registra_arPrestContas() {
  registra_impressao(Relatorio::PrestContas, [](const PedidoImpressao& pedido) {
    Entrega(arPrestContas(pedido), pedido.exibe);
  });
}

}  // namespace quartela
