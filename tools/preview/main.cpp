// quartela_preview LAYOUT.json [PDF]: shows a layout with rows that are made up for it, or writes
// it as PDF where there is no display.
#include <QFileInfo>
#include <cstdio>

#include "foundation/Aplicacao.h"
#include "platform/reporting/Output.h"
#include "platform/reporting/ReportPreview.h"
#include "platform/values/RuntimeError.h"
#include "tools/preview/LayoutSamples.h"

namespace {

using quartela::preview::LayoutSamples;
using namespace quartela::reporting;

int show(const LayoutSamples& samples) {
  ReportPreview preview(samples.report(), {});
  preview.show();
  return quartela::Aplicacao::exec();
}

int write(const LayoutSamples& samples, const QString& pdf) {
  samples.report()->build();
  exportPdf(*samples.report()->document(), pdf);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const quartela::Aplicacao application(argc, argv);
  const QStringList arguments = quartela::Aplicacao::arguments();
  if (arguments.size() < 2 || arguments.size() > 3) {
    std::fputs("usage: quartela_preview LAYOUT.json [PDF]\n", stderr);
    return 2;
  }
  try {
    const LayoutSamples samples(arguments[1]);
    return arguments.size() == 3 ? write(samples, arguments[2]) : show(samples);
  } catch (const quartela::RuntimeError& error) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(error.description()));
    return 1;
  }
}
