#include "masterdata/frmTipos.h"

#include <QLineEdit>
#include <QPushButton>

#include "foundation/Evento.h"
#include "foundation/Rotinas.h"
#include "masterdata/ItemCadastro.h"
#include "masterdata/TelaCadastro.h"
#include "masterdata/cTipos.h"
#include "platform/values/Convert.h"
#include "ui_frmTipos.h"

namespace quartela {
namespace {

AparenciaCadastro aparencia() {
  return {.pesquisar_por = QStringLiteral("Pesquisar por Orgão:"),
          .colunas = {{QStringLiteral("ITEM"), 2540},
                      {QStringLiteral("SECRETARIA"), 5292},
                      {QStringLiteral("TIPO"), 2540},
                      {QStringLiteral("ELEMENTO"), 2540},
                      {QStringLiteral("PRAZO"), 2540}},
          .marcas = true,
          .incluir = {QStringLiteral("Command1_0"), QStringLiteral("&Incluir")},
          .alterar = {QStringLiteral("Command1_1"), QStringLiteral("&Alterar")},
          .cancelar = {QStringLiteral("Command1_2"), QStringLiteral("&Cancelar")},
          .gravar = {QStringLiteral("Command3"), QStringLiteral("&Gravar")},
          .sair = {QStringLiteral("Command2"), QStringLiteral("&Sair")},
          .obrigatorios = QStringLiteral("Todos os campos obrigatórios devem ser preenchidos !!")};
}

// The line shows the row's text as it stands; the list opens on its entry where it has one.
void mostra(ComboBox& caixa, const QString& texto) {
  caixa.setCurrentIndex(caixa.findText(texto));
  caixa.setText(texto);
}

}  // namespace

frmTipos::frmTipos(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmTipos>()) {
  ui_->setupUi(this);
  cTipos& registro = cTipos::compartilhada();
  tela_ = new TelaCadastro(
      *this, *ui_->Frame1, *ui_->txtId, aparencia(),
      {.lista = [&](ListView& lista, std::int16_t modo) { registro.Lista_Tipos(lista, modo); },
       .procura = [&](const QString& texto) { registro.Secretaria = texto; },
       .inclui = [this] { inclui(); },
       .altera = [this] { altera(); },
       .salva = [this](std::int16_t chave) { return salva(chave); },
       .exclui =
           [&](std::int16_t chave) {
             registro.Sequencia = chave;
             registro.Del_tipos();
           }});
  QPushButton& clonar =
      tela_->acrescenta_botao({QStringLiteral("Command1_3"), QStringLiteral("C&lonar")});
  liga(&clonar, &QPushButton::clicked, this, [this] { clona(); });
  for (ComboBox* lista : {ui_->txttipo, ui_->cmbElemento, ui_->cmbPrazo}) {
    lista->setTypingBlocked(true);
    lista->lineEdit()->setAccessibleName(lista->accessibleName());
  }
  tela_->carrega();
  Carrega_Controles(*ui_->txttipo, QStringLiteral("Finalidade"), QStringLiteral("FINALIDADE"),
                    QStringLiteral("ID"), kTodos);
}

frmTipos::~frmTipos() = default;

bool frmTipos::Salvar() {
  return tela_->Salvar();
}

void frmTipos::inclui() {
  Carrega_Controles(*ui_->cmbOrgao, QStringLiteral("Orgao"), QStringLiteral("Orgao"),
                    QStringLiteral("IDORGAO"), kTodos);
  ui_->cmbOrgao->setFocus();
}

void frmTipos::altera() {
  carrega_campos();
  ui_->cmbOrgao->setFocus();
}

// A new row with all values of the row clicked.
void frmTipos::clona() {
  if (tela_->item().tem_item()) {
    tela_->comeca_inclusao([this] { altera(); });
  }
}

// The tick is that of the list's row, which may have been set by hand: loading leaves it out.
void frmTipos::carrega_campos() {
  Carrega_Controles(*ui_->cmbOrgao, QStringLiteral("Orgao"), QStringLiteral("ORGAO"),
                    QStringLiteral("IDORGAO"), kTodos);
  cTipos& registro = cTipos::compartilhada();
  // A row that another program has deleted meanwhile must not show the values of the one before:
  // error 9 then, as for a secretariat that is gone.
  registro = cTipos();
  registro.Envia_dados(Convert::toI16(tela_->item().Tag()));
  mostra(*ui_->txttipo, registro.Tipo);
  ui_->cmbOrgao->selectByData(registro.Orgao);
  mostra(*ui_->cmbElemento, registro.Elemento);
  ui_->txtInciso->setPlainText(registro.Lei);
  ui_->txtMateriais->setPlainText(registro.Materiais);
  mostra(*ui_->cmbPrazo, registro.Prazo);
  ui_->chkAtivo->setChecked(tela_->item().marcada());
}

bool frmTipos::salva(std::int16_t chave) {
  cTipos& registro = cTipos::compartilhada();
  registro.Sequencia = chave;
  registro.Tipo = ui_->txttipo->text().trimmed();
  registro.Elemento = ui_->cmbElemento->text();
  registro.Materiais = ui_->txtMateriais->toPlainText().trimmed();
  registro.Lei = ui_->txtInciso->toPlainText().trimmed();
  registro.Prazo = ui_->cmbPrazo->text();
  registro.Orgao = Convert::toI16(ui_->cmbOrgao->itemDataAt(ui_->cmbOrgao->listIndex()));
  registro.Ativo = ui_->chkAtivo->isChecked();
  return registro.Save_tipos(Operacao);
}

}  // namespace quartela
