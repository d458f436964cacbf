#include "foundation/Aplicacao.h"
#include "foundation/Splash.h"
#include "foundation/UmaJanela.h"
#include "foundation/frmLogin.h"
#include "shell/frmOficce.h"

int main(int argc, char** argv) {
  quartela::Afasta_partes_da_pasta();
  quartela::Aplicacao aplicacao(argc, argv);
  quartela::Splash::registra_principal([] { quartela::UmaJanela<quartela::frmOficce>::mostra(); });
  quartela::mostra_frmLogin();
  return quartela::Aplicacao::exec();
}
