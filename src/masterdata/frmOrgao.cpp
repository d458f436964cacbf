#include "masterdata/frmOrgao.h"

#include "masterdata/ItemCadastro.h"
#include "masterdata/TelaCadastro.h"
#include "masterdata/cOrgao.h"
#include "ui_frmOrgao.h"

namespace quartela {

frmOrgao::frmOrgao(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmOrgao>()) {
  ui_->setupUi(this);
  cOrgao& registro = cOrgao::compartilhada();
  tela_ = new TelaCadastro(
      *this, *ui_->Frame1, *ui_->txtordem,
      {.pesquisar_por = QStringLiteral("Pesquisar por Nome:"),
       .colunas = {{QStringLiteral("ORDEM"), 1764}, {QStringLiteral("SECRETARIA"), 7056}}},
      {.lista = [&](ListView& lista, std::int16_t modo) { registro.Lista_Orgao(lista, modo); },
       .procura = [&](const QString& texto) { registro.Orgao = texto; },
       .inclui = [this] { ui_->txtsecretaria->setFocus(); },
       .altera = [this] { altera(); },
       .salva = [this](std::int16_t chave) { return salva(chave); },
       .exclui =
           [&](std::int16_t chave) {
             registro.ID = chave;
             registro.Del_Orgao();
           }});
  tela_->carrega();
}

frmOrgao::~frmOrgao() = default;

bool frmOrgao::Salvar() {
  return tela_->Salvar();
}

void frmOrgao::altera() {
  ui_->txtsecretaria->setText(tela_->item().coluna(1));
  ui_->txtsecretaria->setFocus();
}

bool frmOrgao::salva(std::int16_t chave) {
  cOrgao& registro = cOrgao::compartilhada();
  registro.ID = chave;
  registro.Orgao = ui_->txtsecretaria->text().trimmed();
  return registro.Save_Orgao(Operacao);
}

}  // namespace quartela
