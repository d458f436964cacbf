// The one way from a screen to a printed document. Each report registers what shows or prints it,
// and a screen hands over a request with all that the report cannot read for itself. So the goods
// and services, which stand below the reports, print as the screens above them do, and screens are
// tested without paper. Only the shell, which has the reports registered, includes them.
#pragma once

#include <QMap>
#include <QString>
#include <functional>

namespace quartela {

// The label under which every failure of a document is told.
inline const QString kFuncaoImprimir = QStringLiteral("Função imprimir");

enum class Relatorio {
  Requisicao2,        // the requisition form; `comando` gives its one row
  Guia,               // the collection slip; it has fields only
  PrestContas,        // the accountability; `comando` gives its notes
  PrestacaoAnterior,  // the earlier accountability; `comando` gives its notes, "Data2" its head
  Mercadorias,        // the goods form, printed without a question; `comando` gives its one row
};

struct PedidoImpressao {
  Relatorio relatorio;
  QString comando;                  // the statement of the report's data; empty for none
  bool exibe = true;                // show it first; else print, after the system's print dialog
  QMap<QString, QString> campos{};  // the texts of the report's elements, by their names ("Field1")
};

using Imprime = std::function<void(const PedidoImpressao&)>;

// `imprime` serves that report from now on; an empty function takes it back.
void registra_impressao(Relatorio relatorio, Imprime imprime);

// Hands the request over. Errors: 5 when that report is not registered, and what the report raises.
void imprime(const PedidoImpressao& pedido);

// Shows the requisition form over the one row of `comando`. False when that failed, which the
// operator has been told with the label "Função imprimir".
bool imprime_requisicao(const QString& comando);

// Whether the settings (key "valor2" of section "Requisicao") let a report be shown before it is
// printed; only "0" sends it to the printer at once.
bool Exibe_antes();

}  // namespace quartela
