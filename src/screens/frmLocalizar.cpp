#include "screens/frmLocalizar.h"

#include <optional>

#include "foundation/Escritorio.h"
#include "foundation/Estilo.h"
#include "foundation/Evento.h"
#include "platform/values/Convert.h"
#include "records/Principal.h"
#include "records/cTodos.h"
#include "ui_frmLocalizar.h"

namespace quartela {
namespace {

constexpr int kNome = 0;
constexpr std::int16_t kPorNumero = 6;

// The search by name keeps to what the filter in force shows. Requisitions without an empenho
// (filter 4) have no search of their own: the list then stays as it is.
std::optional<std::int16_t> codigo_por_nome() {
  switch (FiltroStatus) {
    case 0:
      return 5;
    case 1:
      return 7;
    case 2:
      return 8;
    case 3:
      return 9;
    default:
      return std::nullopt;
  }
}

void localiza_nome(const QString& nome) {
  cTodos::compartilhada().Nome = nome.trimmed();
  if (const auto codigo = codigo_por_nome()) {
    Lista_principal(*codigo);
  }
}

void localiza_processo(QString numero) {
  cTodos::compartilhada().Seq = Le_numero(numero.remove(QLatin1Char('/')));
  Lista_principal(kPorNumero);
}

}  // namespace

frmLocalizar::frmLocalizar(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmLocalizar>()) {
  ui_->setupUi(this);
  Estilo::destaca(*ui_->Command1);
  ui_->Combo1->setCurrentIndex(kNome);
  ui_->Text1->setFocus();
  liga(ui_->Command1, &QPushButton::clicked, this, &frmLocalizar::Command1_Click);
}

frmLocalizar::~frmLocalizar() = default;

void frmLocalizar::Command1_Click() {
  const QString texto = ui_->Text1->text();
  if (!texto.isEmpty()) {
    if (ui_->Combo1->currentIndex() == kNome) {
      localiza_nome(texto);
    } else {
      localiza_processo(texto);
    }
  }
  close();
}

}  // namespace quartela
