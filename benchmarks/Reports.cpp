// A long accountability as document model, as PDF and in its preview, beside a bare loop that
// paints the same texts.
#include <sqlite3.h>

#include <QElapsedTimer>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <memory>
#include <vector>

#include "benchmarks/Measure.h"
#include "benchmarks/Toolkit.h"
#include "database/Builder.h"
#include "foundation/Abertura.h"
#include "foundation/Banco.h"
#include "foundation/Caminhos.h"
#include "platform/reporting/Output.h"
#include "platform/reporting/ReportPreview.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "reports/Saida.h"

namespace quartela::bench {
namespace {

using reporting::Document;
using reporting::Report;
using reporting::ReportPreview;

constexpr int kRowsPerPage = 41;
constexpr double kMegabyte = 1e6;

// A database of one empenho with so many notes that they fill `pages`.
void makeNotes(const QString& path, int pages) {
  database::NewDatabase fresh(path);
  fresh.addStoredQueries();
  const QByteArray sql =
      "INSERT INTO Orgao (ORGAO) VALUES ('Saúde');"
      "INSERT INTO Executor (IDORGAO, NOME, ATIVO) VALUES (1, 'Ordenador', 1);"
      "INSERT INTO Tomador (NOME1, ATIVO) VALUES ('Responsável', 1);"
      "INSERT INTO Tipos (IDORGAO, TIPO, ATIVO) VALUES (1, 'Viagens', 1);"
      "INSERT INTO Requisicao (SEQ, DATA, ORGAO, TOMADOR, FINALIDADE, VALOR) VALUES "
      "(114, '2014-01-02 00:00:00', 1, 1, 1, 10000000000);"
      "INSERT INTO Adiantamento (EMPENHO, PROCESSO, ABERTURA) VALUES (114, 114, "
      "'2014-01-02 00:00:00');"
      "WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n WHERE i < " +
      QByteArray::number(pages * kRowsPerPage) +
      ") INSERT INTO PrestContas (PROCESSO, DATA, ORDEM, HISTORICO, DESPESAS) SELECT 114, "
      "'2014-03-04 00:00:00', 'NF ' || i, 'PAPELARIA E LIVRARIA SÃO JOSÉ ' || i % 977, "
      "i % 90000 + 100 FROM n;";
  if (sqlite3_exec(fresh.handle(), sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    qFatal("%s", sqlite3_errmsg(fresh.handle()));
  }
  fresh.finish();
}

// The accountability without its counter of rows, which ends at 32,767.
std::shared_ptr<Report> accountability() {
  auto report = std::make_shared<Report>(Desenho(QStringLiteral("arPrestContas")));
  report->setSource(*Conexao, QStringLiteral("Select * from PrestContas Where PROCESSO = 114 "
                                             "Order by DATA, SEQ;"));
  report->setText(u"Field37", QStringLiteral("100.000.000,00"));
  report->onFormat(u"Detail", [](reporting::SectionInstance& section) {
    const Money balance =
        Convert::toMoney(section.text(u"Field37")) - Convert::toMoney(section.text(u"Field35"));
    section.setText(u"Field36", Format(balance, u"#,##0.00"));
  });
  return report;
}

struct PaintedText {
  QRect place;
  Qt::Alignment align;
  QString text;
  int font;
};

// The texts of a document, without anything else.
struct Texts {
  explicit Texts(const Document& document) {
    for (const reporting::Page& page : document.pages()) {
      pages.emplace_back();
      for (const reporting::PlacedItem& item : page.items()) {
        if (!item.text.isEmpty()) {
          pages.back().push_back({item.rect, alignment(item.align), item.text, fontOf(item.font)});
        }
      }
    }
  }

  static Qt::Alignment alignment(reporting::Alignment align) {
    return align == reporting::Alignment::Right    ? Qt::AlignRight
           : align == reporting::Alignment::Center ? Qt::AlignHCenter
                                                   : Qt::AlignLeft;
  }

  int fontOf(const QFont& font) {
    if (!fonts.contains(font)) {
      fonts << font;
    }
    return static_cast<int>(fonts.indexOf(font));
  }

  std::vector<std::vector<PaintedText>> pages;
  QList<QFont> fonts;
};

void paintBare(const Texts& texts, const QString& path) {
  QPdfWriter writer(path);
  writer.setResolution(reporting::kTwipsPerInch);
  QPainter painter(&writer);
  bool first = true;
  for (const auto& page : texts.pages) {
    if (!first) {
      writer.newPage();
    }
    first = false;
    for (const PaintedText& text : page) {
      painter.setFont(texts.fonts[text.font]);
      painter.drawText(text.place, static_cast<int>(text.align), text.text);
    }
  }
}

std::shared_ptr<const Document> writeWhole(const QString& path) {
  const auto report = accountability();
  report->build();
  reporting::exportPdf(*report->document(), path);
  return report->document();
}

void benchTime(int pages, const QString& path) {
  std::shared_ptr<const Document> document = writeWhole(path);
  if (document->pageCount() != pages) {
    qFatal("%d pages instead of %d", document->pageCount(), pages);
  }
  const Texts texts(*document);
  document.reset();
  const auto [ours, peer] = medians(
      pages > 1'000 ? 3 : 5, [&] { writeWhole(path); }, [&] { paintBare(texts, path); });
  print({.measure = QStringLiteral("%1 pages, model and PDF | a bare QPainter loop").arg(pages),
         .ours = ours / 1000,
         .peer = peer / 1000,
         .target = 1.0,
         .unit = QStringLiteral("ms")});
  writeWhole(path);
  const auto oursSize = static_cast<double>(QFileInfo(path).size());
  paintBare(texts, path);
  print({.measure = QStringLiteral("  size of that PDF | the bare loop's, without any rule"),
         .ours = oursSize / kMegabyte,
         .peer = static_cast<double>(QFileInfo(path).size()) / kMegabyte,
         .target = 1.0,
         .unit = QStringLiteral("MB")});
}

void benchMemory(int pages, const QString& path) {
  double texts = 0;
  const double peak =
      peakGrowth([&] { texts = static_cast<double>(writeWhole(path)->textBytes()); });
  print({.measure = QStringLiteral("  memory of %1 pages | 1.5 of the texts and 40 MB").arg(pages),
         .ours = peak / kMegabyte,
         .peer = 1.5 * texts / kMegabyte + 40,
         .target = 0.7,
         .unit = QStringLiteral("MB")});
}

// Milliseconds from the opening to the first page on the screen, and to the last one built.
std::pair<double, double> previewTimes() {
  QElapsedTimer timer;
  timer.start();
  ReportPreview preview(accountability(), {});
  preview.show();
  while (preview.document()->pageCount() == 0) {
    QApplication::processEvents();
  }
  paint(preview);
  const double first = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  while (!preview.document()->isComplete()) {
    QApplication::processEvents();
  }
  return {first, static_cast<double>(timer.nsecsElapsed()) / 1e6};
}

void benchPreview(int pages) {
  previewTimes();
  double first = 0;
  double whole = 0;
  for (int run = 0; run < 5; ++run) {
    const auto [one, all] = previewTimes();
    first += one;
    whole += all;
  }
  print({.measure = QStringLiteral("first page of %1 on the screen | all of them").arg(pages),
         .ours = first / 5,
         .peer = whole / 5,
         .target = 0.1,
         .unit = QStringLiteral("ms")});
}

}  // namespace

void benchReports() {
  for (const int pages : {100, 1'000, 5'000}) {
    const QTemporaryDir folder;
    caminhos.geral = folder.filePath(QStringLiteral("notes.mdb"));
    makeNotes(caminhos.geral, pages);
    Abre_conexao();
    const QString pdf = folder.filePath(QStringLiteral("notes.pdf"));
    benchMemory(pages, pdf);
    benchTime(pages, pdf);
    if (pages == 1'000) {
      benchPreview(pages);
    }
    Fecha_banco();
  }
}

}  // namespace quartela::bench
