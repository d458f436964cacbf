#include "platform/reporting/Output.h"

#include <QFileInfo>
#include <QPageLayout>
#include <QPageRanges>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <algorithm>

#include "platform/reporting/PagePainter.h"
#include "platform/values/RuntimeError.h"

namespace quartela::reporting {
namespace {

void requirePages(const Document& document) {
  if (document.pageCount() == 0 || !document.isComplete()) {
    throw RuntimeError::withDescription(ErrorNumber::InvalidProcedureCall,
                                        document.pageCount() == 0
                                            ? QStringLiteral("O relatório não tem páginas.")
                                            : QStringLiteral("O relatório não está completo."));
  }
}

QPageLayout paperOf(const Document& document) {
  const QSizeF points = QSizeF(document.paper()) / kTwipsPerPoint;
  const bool landscape = points.width() > points.height();
  const QPageSize size(landscape ? points.transposed() : points, QPageSize::Point, {},
                       QPageSize::FuzzyMatch);
  QPageLayout layout(size, landscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);
  return layout;
}

[[noreturn]] void failPrinting(const QString& words) {
  throw RuntimeError::withDescription(ErrorNumber::PrinterFailure, words);
}

ErrorNumber errorOf(const QFileDevice& file) {
  return file.error() == QFileDevice::ResourceError ? ErrorNumber::DiskFull
                                                    : ErrorNumber::PathFileAccess;
}

// Why a file could not be begun at the path.
ErrorNumber openingError(const QFileDevice& file, const QString& path) {
  const QFileInfo target(path);
  const QFileInfo folder(target.path());
  if (!folder.exists()) {
    return ErrorNumber::PathNotFound;
  }
  const bool refused = folder.isDir() && !target.isDir() &&
                       (!folder.isWritable() || (target.exists() && !target.isWritable()));
  return refused ? ErrorNumber::PermissionDenied : errorOf(file);
}

[[noreturn]] void failWriting(const QIODevice& device) {
  const auto* const file = qobject_cast<const QFileDevice*>(&device);
  if (file == nullptr) {
    throw RuntimeError(ErrorNumber::PathFileAccess);
  }
  throw RuntimeError(errorOf(*file), file->fileName());
}

// The device's own account of the writing, where it keeps one; the engine passes over it.
void checkWritten(QIODevice& device) {
  auto* const file = qobject_cast<QFileDevice*>(&device);
  if (file != nullptr && (file->error() != QFileDevice::NoError || !file->flush())) {
    failWriting(device);
  }
}

void addPages(QList<int>& pages, const Document& document, int first, int last) {
  for (int page = std::max(first, 1); page <= std::min(last, document.pageCount()); ++page) {
    pages << page - 1;
  }
}

QList<int> askedPages(const Document& document, const QPrinter& printer) {
  QList<int> pages;
  const QPageRanges ranges = printer.pageRanges();
  if (ranges.isEmpty() || printer.printRange() == QPrinter::AllPages) {
    addPages(pages, document, 1, document.pageCount());
  } else {
    for (const QPageRanges::Range& range : ranges.toRangeList()) {
      addPages(pages, document, range.from, range.to);
    }
  }
  if (printer.pageOrder() == QPrinter::LastPageFirst) {
    std::reverse(pages.begin(), pages.end());
  }
  return pages;
}

void paintAll(const Document& document, const QList<int>& pages, QPrinter& printer,
              QPainter& painter) {
  const double unit = double(printer.resolution()) / kTwipsPerInch;
  bool first = true;
  for (const int page : pages) {
    if (!first && !printer.newPage()) {
      failPrinting(QStringLiteral("A impressora interrompeu a impressão."));
    }
    first = false;
    painter.save();
    painter.scale(unit, unit);
    paintPage(painter, document.page(page));
    painter.restore();
  }
}

}  // namespace

void writePdf(const Document& document, QIODevice& device) {
  requirePages(document);
  QPdfWriter writer(&device);
  writer.setTitle(document.title());
  writer.setCreator(QStringLiteral("Quartela"));
  // One unit a twip.
  writer.setResolution(kTwipsPerInch);
  writer.setPageLayout(paperOf(document));
  QPainter painter;
  if (!painter.begin(&writer)) {
    failWriting(device);
  }
  for (int page = 0; page < document.pageCount(); ++page) {
    if (page > 0 && !writer.newPage()) {
      failWriting(device);
    }
    paintPage(painter, document.page(page));
  }
  if (!painter.end()) {
    failWriting(device);
  }
  checkWritten(device);
}

void exportPdf(const Document& document, const QString& path) {
  requirePages(document);
  // Only a file may be replaced by one: never a device or a pipe, nor what a link makes of them.
  const QFileInfo target(path);
  if (target.exists() && !target.isFile()) {
    throw RuntimeError(ErrorNumber::PathFileAccess, path);
  }
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) {
    throw RuntimeError(openingError(file, path), path);
  }
  writePdf(document, file);
  if (!file.commit()) {
    throw RuntimeError(errorOf(file), path);
  }
}

QList<int> pagesToPrint(const Document& document, const QPrinter& printer) {
  const QList<int> asked = askedPages(document, printer);
  const int copies = printer.supportsMultipleCopies() ? 1 : std::max(1, printer.copyCount());
  QList<int> pages;
  if (printer.collateCopies()) {
    for (int copy = 0; copy < copies; ++copy) {
      pages << asked;
    }
    return pages;
  }
  for (const int page : asked) {
    pages << QList<int>(copies, page);
  }
  return pages;
}

void printDocument(const Document& document, QPrinter& printer) {
  requirePages(document);
  // A printer without a name says that it is valid, or stands for a file that has no name either;
  // only the list tells.
  const bool toFile =
      printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty();
  if (!toFile && QPrinterInfo::availablePrinterNames().isEmpty()) {
    failPrinting(QStringLiteral("Nenhuma impressora está instalada neste computador."));
  }
  const QList<int> pages = pagesToPrint(document, printer);
  if (pages.isEmpty()) {
    throw RuntimeError::withDescription(ErrorNumber::InvalidProcedureCall,
                                        QStringLiteral("O relatório não tem as páginas pedidas."));
  }
  printer.setDocName(document.title());
  printer.setCreator(QStringLiteral("Quartela"));
  printer.setPageLayout(paperOf(document));
  printer.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&printer)) {
    failPrinting(QStringLiteral("A impressora não aceitou a impressão."));
  }
  paintAll(document, pages, printer, painter);
  if (!painter.end() || printer.printerState() == QPrinter::Error) {
    failPrinting(QStringLiteral("A impressora não concluiu a impressão."));
  }
}

}  // namespace quartela::reporting
