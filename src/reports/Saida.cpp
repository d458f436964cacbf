#include "reports/Saida.h"

#include <QPrinter>
#include <utility>

#include "foundation/Erros.h"
#include "platform/controls/OpenForms.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/reporting/Output.h"
#include "platform/reporting/ReportPreview.h"
#include "records/Impressao.h"

namespace quartela {
namespace {

using reporting::Document;
using reporting::Report;
using reporting::ReportPreview;

void imprime_documento(const Document& documento, bool pergunta) {
  QPrinter impressora(QPrinter::HighResolution);
  // The dialog proposes it where pages go into a file.
  impressora.setDocName(documento.title());
  if (!pergunta || Dialogs::printer(impressora)) {
    reporting::printDocument(documento, impressora);
  }
}

void salva_pdf(const Document& documento) {
  const QString arquivo = Dialogs::saveFile({.title = QStringLiteral("Salvar como PDF"),
                                             .filter = QStringLiteral("Arquivos PDF|*.pdf|"),
                                             .folder = {},
                                             .fileName = documento.title()});
  if (!arquivo.isEmpty()) {
    reporting::exportPdf(documento, arquivo);
  }
}

reporting::PreviewCommands comandos() {
  return {.print =
              [](ReportPreview& janela) {
                Sob_trava(kFuncaoImprimir, [&] { imprime_documento(*janela.document(), true); });
              },
          .save =
              [](ReportPreview& janela) {
                Sob_trava(kFuncaoImprimir, [&] { salva_pdf(*janela.document()); });
              },
          .failed = [](const RuntimeError& erro) { Erro_interno(erro, kFuncaoImprimir); }};
}

}  // namespace

QString Desenho(const QString& relatorio) {
  return QStringLiteral(":/quartela/reports/%1.json").arg(relatorio);
}

void Exibe(std::shared_ptr<Report> relatorio) {
  auto janela = std::make_unique<ReportPreview>(std::move(relatorio), comandos());
  janela->setAttribute(Qt::WA_DeleteOnClose);
  OpenForms::add(janela.get());
  OpenForms::showInFront(*janela.release());
}

void Imprime_relatorio(Report& relatorio, bool pergunta) {
  relatorio.build();
  imprime_documento(*relatorio.document(), pergunta);
}

void Entrega(std::shared_ptr<Report> relatorio, bool exibe) {
  if (exibe) {
    Exibe(std::move(relatorio));
  } else {
    Imprime_relatorio(*relatorio, true);
  }
}

}  // namespace quartela
