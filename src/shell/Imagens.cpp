#include "shell/Imagens.h"

#include "shell/ribbon/ImageList.h"

// The pictures that are compiled in; a static library's are taken up only when asked for. It stands
// in no namespace, where the resource compiler's function is declared.
static void traz_imagens() {
  Q_INIT_RESOURCE(icons);
}

namespace quartela {
namespace {

constexpr int kIconesRibbon = 30;
constexpr int kIconesLinha = 3;

}  // namespace

std::unique_ptr<ImageList> imagens_do_ribbon() {
  traz_imagens();
  auto imagens = std::make_unique<ImageList>(kTamanhoIconeRibbon);
  for (int numero = 1; numero <= kIconesRibbon; ++numero) {
    imagens->addFile(QStringLiteral(":/icons/ribbon/%1.svg").arg(numero, 2, 10, QLatin1Char('0')));
  }
  return imagens;
}

QList<QIcon> icones_das_linhas() {
  traz_imagens();
  QList<QIcon> icones;
  for (int numero = 1; numero <= kIconesLinha; ++numero) {
    icones << QIcon(QStringLiteral(":/icons/rows/%1.svg").arg(numero));
  }
  return icones;
}

}  // namespace quartela
