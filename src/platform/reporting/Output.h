// A complete document as a PDF file and on a printer.
#pragma once

#include <QList>
#include <QString>

#include "platform/reporting/Document.h"

class QIODevice;
class QPrinter;

namespace quartela::reporting {

// Writes the file whole or not at all: what stood there before stays when something fails.
// Errors: 5 the document has no pages or is not complete, 76 the folder does not exist, 70 it may
// not be written, 61 the disk is full, 75 anything else.
void exportPdf(const Document& document, const QString& path);

// As exportPdf, to a device that is open. What the device's writing reports is the caller's to look
// at.
void writePdf(const Document& document, QIODevice& device);

// Prints the pages and copies that the printer is set to, all pages when it is set to none. The
// paper is the document's. Errors: 5 as above, and when no page of the document is among those
// asked for; 482 there is no printer, or it does not take the job.
void printDocument(const Document& document, QPrinter& printer);

// The pages to print with such settings, 0 the first, each as often as the printer does not by
// itself.
QList<int> pagesToPrint(const Document& document, const QPrinter& printer);

}  // namespace quartela::reporting
