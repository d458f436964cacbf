// How a report leaves the program: shown in a window of its own, or printed.
#pragma once

#include <QString>
#include <memory>

#include "platform/reporting/Report.h"

namespace quartela {

// The layout of that name, as it is compiled in: "arPrestContas".
QString Desenho(const QString& relatorio);

// Shows the report above the main window, from where it can be printed and saved as PDF. What fails
// while its pages are built is told there. Errors: those of Report::start().
void Exibe(std::shared_ptr<reporting::Report> relatorio);

// Prints the whole report: with `pergunta` after the system's print dialog, where the operator may
// also give up; else on the default printer. Errors: those of building and of printDocument.
void Imprime_relatorio(reporting::Report& relatorio, bool pergunta);

// Shows the report first, or prints it after the print dialog.
void Entrega(std::shared_ptr<reporting::Report> relatorio, bool exibe);

}  // namespace quartela
