#include "masterdata/frmTomador.h"

#include "masterdata/Cpf.h"
#include "masterdata/ItemCadastro.h"
#include "masterdata/TelaCadastro.h"
#include "masterdata/cTomador.h"
#include "ui_frmTomador.h"

namespace quartela {

frmTomador::frmTomador(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmTomador>()) {
  ui_->setupUi(this);
  cTomador& registro = cTomador::compartilhada();
  tela_ = new TelaCadastro(
      *this, *ui_->Frame3, *ui_->txtordem,
      {.pesquisar_por = QStringLiteral("Pesquisar por Nome:"),
       .colunas = {{QStringLiteral("ORDEM"), 1411},
                   {QStringLiteral("NOME"), 4410},
                   {QStringLiteral("CARGO"), 4410},
                   {QStringLiteral("RG"), 2646},
                   {QStringLiteral("CPF"), 3175}},
       .marcas = true,
       .excluir = QStringLiteral("Excluir Item"),
       .obrigatorios = QStringLiteral("Todos os campos obrigatórios devem ser preenchidos !!")},
      {.lista = [&](ListView& lista, std::int16_t modo) { registro.Lista_Tomador(lista, modo); },
       .procura = [&](const QString& texto) { registro.Nome = texto; },
       .inclui = [this] { ui_->txtnome->setFocus(); },
       .altera = [this] { altera(); },
       .salva = [this](std::int16_t chave) { return salva(chave); },
       .exclui =
           [&](std::int16_t chave) {
             registro.Ordem = chave;
             registro.Del_Tomador();
           }});
  Avisa_cpf(*ui_->txtcpf, *ui_->aviso_txtcpf);
  tela_->carrega();
}

frmTomador::~frmTomador() = default;

bool frmTomador::Salvar() {
  return tela_->Salvar();
}

void frmTomador::altera() {
  ui_->txtnome->setText(tela_->item().coluna(1));
  ui_->txtcargo->setText(tela_->item().coluna(2));
  ui_->txtrg->setText(tela_->item().coluna(3));
  ui_->txtcpf->setText(tela_->item().coluna(4));
  ui_->chkAtivo->setChecked(tela_->item().marcada());
  ui_->txtnome->setFocus();
}

bool frmTomador::salva(std::int16_t chave) {
  cTomador& registro = cTomador::compartilhada();
  registro.Ordem = chave;
  registro.Nome = ui_->txtnome->text().trimmed();
  registro.Cargo = ui_->txtcargo->text().trimmed();
  registro.RG = ui_->txtrg->text().trimmed();
  registro.CPF = ui_->txtcpf->text().trimmed();
  registro.Ativo = ui_->chkAtivo->isChecked();
  return registro.Save_Tomador(Operacao);
}

}  // namespace quartela
