// The goods form of a request to the store, and what an earlier accountability left behind it: that
// report bore the same name, with its notes in a sub-report.
#pragma once

#include <QString>
#include <memory>

#include "platform/reporting/Report.h"

namespace quartela {

// The form over the one row of Produtos that `comando` gives.
std::shared_ptr<reporting::Report> arPrestacao(const QString& comando);

// The notes of the earlier accountability: columns DATA, ORDEM, HISTORICO, DESPESAS and the
// advance's VALOR on each row.
std::shared_ptr<reporting::Report> srPrestacao(const QString& comando);

// The screens may ask for the goods form, which is printed on the default printer without a
// question, and for the earlier accountability. The latter's elements are no longer in the report,
// so that the first of them, "Data2", raises error 9.
void registra_arPrestacao();

}  // namespace quartela
