#include "masterdata/frmExecutor.h"

#include "foundation/Rotinas.h"
#include "masterdata/Cpf.h"
#include "masterdata/ItemCadastro.h"
#include "masterdata/TelaCadastro.h"
#include "masterdata/cExecutor.h"
#include "platform/values/Convert.h"
#include "ui_frmExecutor.h"

namespace quartela {
frmExecutor::frmExecutor(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmExecutor>()) {
  ui_->setupUi(this);
  cExecutor& registro = cExecutor::compartilhada();
  tela_ = new TelaCadastro(
      *this, *ui_->Frame1, *ui_->txtordem,
      {.pesquisar_por = QStringLiteral("Pesquisar por Nome:"),
       .colunas = {{QStringLiteral("ORDEM"), 1411},
                   {QStringLiteral("ORGÃO"), 3175},
                   {QStringLiteral("NOME"), 3528},
                   {QStringLiteral("RG"), 2646},
                   {QStringLiteral("CPF"), 2646},
                   {QStringLiteral("FUNÇÃO"), 3528}},
       .marcas = true},
      {.lista = [&](ListView& lista, std::int16_t modo) { registro.Lista_Executor(lista, modo); },
       .procura = [&](const QString& texto) { registro.Nome = texto; },
       .inclui = [this] { inclui(); },
       .altera = [this] { altera(); },
       .salva = [this](std::int16_t chave) { return salva(chave); },
       .exclui =
           [&](std::int16_t chave) {
             registro.Ordem = chave;
             registro.Del_executor();
           }});
  Avisa_cpf(*ui_->txtcpf, *ui_->aviso_txtcpf);
  tela_->carrega();
}

frmExecutor::~frmExecutor() = default;

bool frmExecutor::Salvar() {
  return tela_->Salvar();
}

void frmExecutor::carrega_secretarias() {
  Carrega_Controles(*ui_->cmbOrgao, QStringLiteral("Orgao"), QStringLiteral("ORGAO"),
                    QStringLiteral("IDORGAO"), kTodos);
}

void frmExecutor::inclui() {
  carrega_secretarias();
  ui_->cmbOrgao->setFocus();
}

// A secretariat's key of four digits is not found by its first three: error 9, as is one that is
// gone.
void frmExecutor::altera() {
  carrega_secretarias();
  ui_->cmbOrgao->selectByData(Convert::toI32(tela_->item().chave_na_coluna(1)));
  ui_->txtnome->setText(tela_->item().coluna(2));
  ui_->txtrg->setText(tela_->item().coluna(3));
  ui_->txtcpf->setText(tela_->item().coluna(4));
  ui_->txtfuncao->setText(tela_->item().coluna(5));
  ui_->chkAtivo->setChecked(tela_->item().marcada());
  ui_->txtnome->setFocus();
}

bool frmExecutor::salva(std::int16_t chave) {
  cExecutor& registro = cExecutor::compartilhada();
  registro.Ordem = chave;
  registro.Orgao = Convert::toI16(ui_->cmbOrgao->itemDataAt(ui_->cmbOrgao->listIndex()));
  registro.Nome = ui_->txtnome->text().trimmed();
  registro.RG = ui_->txtrg->text().trimmed();
  registro.CPF = ui_->txtcpf->text().trimmed();
  registro.Funcao = ui_->txtfuncao->text().trimmed();
  registro.Ativo = ui_->chkAtivo->isChecked();
  return registro.Save_executor(Operacao);
}

}  // namespace quartela
