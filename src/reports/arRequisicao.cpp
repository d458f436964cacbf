#include "reports/arRequisicao.h"

#include <array>

#include "platform/values/Format.h"
#include "records/Impressao.h"
#include "reports/Saida.h"

namespace quartela {
namespace {

using reporting::Report;
using reporting::SectionInstance;

// A field of the first copy and the fields of the second and the third that repeat it.
struct Repetido {
  QStringView primeira;
  QStringView segunda;
  QStringView terceira;
};

constexpr std::array kRepetidos{
    Repetido{u"Field56", u"Field34", u"Field45"}, Repetido{u"Field57", u"Field35", u"Field46"},
    Repetido{u"Field58", u"Field36", u"Field47"}, Repetido{u"Field59", u"Field37", u"Field48"},
    Repetido{u"Field60", u"Field38", u"Field49"}, Repetido{u"Field61", u"Field39", u"Field50"}};

// Subtotals and totals: interest and fine take no part.
constexpr std::array<QStringView, 6> kValores{u"Field62", u"Field40", u"Field51",
                                              u"Field29", u"Field42", u"Field53"};

void formata_detalhe(SectionInstance& detalhe) {
  for (const Repetido& campo : kRepetidos) {
    const QString texto = detalhe.text(campo.primeira);
    detalhe.setText(campo.segunda, texto);
    detalhe.setText(campo.terceira, texto);
  }
  const QString valor = Format(detalhe.text(u"Field62"), kAmountFormat);
  for (const QStringView campo : kValores) {
    detalhe.setText(campo, valor);
  }
}

}  // namespace

std::shared_ptr<Report> arRequisicao(const QMap<QString, QString>& campos) {
  auto relatorio = std::make_shared<Report>(Desenho(QStringLiteral("arRequisicao")));
  for (auto campo = campos.begin(); campo != campos.end(); ++campo) {
    relatorio->setText(campo.key(), campo.value());
  }
  relatorio->onFormat(u"Detail", formata_detalhe);
  return relatorio;
}

void registra_arRequisicao() {
  registra_impressao(Relatorio::Guia, [](const PedidoImpressao& pedido) {
    Entrega(arRequisicao(pedido.campos), pedido.exibe);
  });
}

}  // namespace quartela
