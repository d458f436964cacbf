#include "masterdata/frmTipoDespesa.h"

#include "masterdata/ItemCadastro.h"
#include "masterdata/TelaCadastro.h"
#include "masterdata/cTipoDespesa.h"
#include "ui_frmTipoDespesa.h"

namespace quartela {

frmTipoDespesa::frmTipoDespesa(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmTipoDespesa>()) {
  ui_->setupUi(this);
  cTipoDespesa& registro = cTipoDespesa::compartilhada();
  tela_ = new TelaCadastro(
      *this, *ui_->Frame1, *ui_->txtordem,
      {.pesquisar_por = QStringLiteral("Pesquisar por Finalidade:"),
       .colunas = {{QStringLiteral("ORDEM"), 1411}, {QStringLiteral("FINALIDADE"), 8819}}},
      {.lista = [&](ListView& lista, std::int16_t modo) { registro.Lista_Finalidade(lista, modo); },
       .procura = [&](const QString& texto) { registro.Finalidade = texto; },
       .inclui = [this] { ui_->txtFinalidade->setFocus(); },
       .altera = [this] { altera(); },
       .salva = [this](std::int16_t chave) { return salva(chave); },
       .exclui =
           [&](std::int16_t chave) {
             registro.ID = chave;
             registro.Del_Finalidade();
           }});
  tela_->carrega();
}

frmTipoDespesa::~frmTipoDespesa() = default;

bool frmTipoDespesa::Salvar() {
  return tela_->Salvar();
}

void frmTipoDespesa::altera() {
  ui_->txtFinalidade->setText(tela_->item().coluna(1));
  ui_->txtFinalidade->setFocus();
}

// The purpose is kept as typed, blanks included.
bool frmTipoDespesa::salva(std::int16_t chave) {
  cTipoDespesa& registro = cTipoDespesa::compartilhada();
  registro.ID = chave;
  registro.Finalidade = ui_->txtFinalidade->text();
  return registro.Save_Finalidade(Operacao);
}

}  // namespace quartela
