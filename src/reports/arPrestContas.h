// The printed accountability of one empenho: its notes with a running balance, what was not spent,
// and the signatures.
#pragma once

#include <memory>

#include "platform/reporting/Report.h"

namespace quartela {

struct PedidoImpressao;

// The report over the notes that `comando` gives (columns DATA, ORDEM, HISTORICO, DESPESAS), with
// the texts of `campos`; "Field37" is the amount of the advance. The balances are worked out while
// it is built: error 13 when that amount is no number. Errors: 9 a text for an element that the
// report does not have.
std::shared_ptr<reporting::Report> arPrestContas(const PedidoImpressao& pedido);

// The screens' requests for an accountability are shown or printed from now on.
void registra_arPrestContas();

}  // namespace quartela
