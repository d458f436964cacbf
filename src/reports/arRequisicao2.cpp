#include "reports/arRequisicao2.h"

#include <utility>

#include "foundation/Banco.h"
#include "foundation/Ini.h"
#include "foundation/Textos.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Format.h"
#include "records/Impressao.h"
#include "reports/Saida.h"

namespace quartela {
namespace {

using reporting::Report;
using reporting::SectionInstance;

// The process number as Field18 shows it: four digits of the year's counter, two of the year.
constexpr qsizetype kDigitosContador = 4;
constexpr qsizetype kDigitosAno = 2;

bool pergunta_antes() {
  return Le_config(QStringLiteral("Requisicao"), QStringLiteral("valor")).trimmed() ==
         QLatin1String("1");
}

bool quer_numero_e_data() {
  return Dialogs::box(
             {.text = QStringLiteral("Deseja mostrar o número do processo e a data de abertura?"),
              .icon = BoxIcon::Exclamation,
              .buttons = {Button::Yes, Button::No},
              .defaultButton = Button::Yes}) == Button::Yes;
}

// These stand on the blanks of "Nº DO PROCESSO: ____/__" and of the dated line.
void mostra_numero_e_data(SectionInstance& rodape) {
  const QString numero = rodape.text(u"Field18");
  const QString data = rodape.text(u"Field1");
  rodape.setText(u"Field20", numero.left(kDigitosContador));
  rodape.setText(u"Field21", numero.right(kDigitosAno));
  rodape.setText(u"Field22", Format(data, u"dd"));
  rodape.setText(u"Field23", Format(data, u"MMMM"));
  rodape.setText(u"Field24", Format(data, u"yyyy"));
}

void deixa_em_branco(SectionInstance& rodape) {
  for (const QStringView campo : {u"Field20", u"Field21", u"Field22", u"Field23", u"Field24"}) {
    rodape.setText(campo, {});
  }
}

void formata_detalhe(SectionInstance& detalhe) {
  detalhe.setText(u"Field8", u'(' + Extenso(detalhe.text(u"Field7")) + u')');
}

void formata_rodape(SectionInstance& rodape) {
  if (pergunta_antes()) {
    if (quer_numero_e_data()) {
      mostra_numero_e_data(rodape);
    } else {
      deixa_em_branco(rodape);
    }
  }
  const QString financas = QStringLiteral("Financas");
  rodape.setText(u"Field29", Le_config(financas, QStringLiteral("nome")));
  rodape.setText(u"Field32", Le_config(financas, QStringLiteral("cargo")));
  rodape.setText(u"Field33", rodape.text(u"Field3"));
  rodape.setText(u"Field34", rodape.text(u"Field25"));
}

}  // namespace

std::shared_ptr<Report> arRequisicao2(const QString& comando) {
  auto relatorio = std::make_shared<Report>(Desenho(QStringLiteral("arRequisicao2")));
  relatorio->setSource(*Conexao, comando);
  relatorio->onFormat(u"Detail", formata_detalhe);
  relatorio->onFormat(u"PageFooter", formata_rodape);
  return relatorio;
}

void registra_arRequisicao2() {
  registra_impressao(Relatorio::Requisicao2, [](const PedidoImpressao& pedido) {
    Entrega(arRequisicao2(pedido.comando), pedido.exibe);
  });
}

}  // namespace quartela
