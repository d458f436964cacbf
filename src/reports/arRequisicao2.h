// The requisition form with the block that authorises the advance.
#pragma once

#include <QString>
#include <memory>

#include "platform/reporting/Report.h"

namespace quartela {

// The form of the one row that `comando` gives, read from Conexao. Where the settings say so (key
// "valor" of section "Requisicao" is 1), each page asks whether the number and the date of the
// process are to be filled in. Errors: those of Report.
std::shared_ptr<reporting::Report> arRequisicao2(const QString& comando);

// Lets the screens ask for the form.
void registra_arRequisicao2();

}  // namespace quartela
