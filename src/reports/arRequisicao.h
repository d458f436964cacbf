// The collection slip with which the money that was not spent is paid back: one page of three
// copies to be cut apart, the last one with a bar code.
#pragma once

#include <QMap>
#include <QString>
#include <memory>

#include "platform/reporting/Report.h"

namespace quartela {

// `campos` are the texts of the first copy (Field56 to Field62) and the digits of Barcode1; the
// other copies repeat them. Errors: 9 when the slip has no element of a name.
std::shared_ptr<reporting::Report> arRequisicao(const QMap<QString, QString>& campos);

// Lets the screens ask for the slip.
void registra_arRequisicao();

}  // namespace quartela
