#include "reports/Relatorios.h"

#include "reports/arPrestContas.h"
#include "reports/arPrestacao.h"
#include "reports/arRequisicao.h"
#include "reports/arRequisicao2.h"

namespace quartela {

void registra_relatorios() {
  registra_arRequisicao2();
  registra_arRequisicao();
  registra_arPrestContas();
  registra_arPrestacao();
}

}  // namespace quartela
