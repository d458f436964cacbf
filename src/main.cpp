#include <QLibraryInfo>

#include "foundation/Aplicacao.h"
#include "foundation/Splash.h"
#include "foundation/UmaJanela.h"
#include "foundation/frmLogin.h"
#include "shell/frmOficce.h"

int main(int argc, char** argv) {
  // Never from the program's folder, where the data is.
  QCoreApplication::setLibraryPaths({QLibraryInfo::path(QLibraryInfo::PluginsPath)});
  quartela::Aplicacao aplicacao(argc, argv);
  quartela::Splash::registra_principal([] { quartela::UmaJanela<quartela::frmOficce>::mostra(); });
  quartela::mostra_frmLogin();
  return quartela::Aplicacao::exec();
}
