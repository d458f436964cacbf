#include "masterdata/frmDotacao.h"

#include "foundation/Rotinas.h"
#include "masterdata/ItemCadastro.h"
#include "masterdata/TelaCadastro.h"
#include "masterdata/cDotacao.h"
#include "platform/values/Clock.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "ui_frmDotacao.h"

namespace quartela {
namespace {

AparenciaCadastro aparencia() {
  return {.pesquisar_por = QStringLiteral("Pesquisar por Dotação:"),
          .colunas = {{QStringLiteral("ORDEM"), 1411},
                      {QStringLiteral("ADIANTAMENTO"), 5292},
                      {QStringLiteral("Orgão"), 3528},
                      {QStringLiteral("DOTAÇÃO"), 2646},
                      {QStringLiteral("ANO"), 2646},
                      {QStringLiteral("DESCRIÇÃO"), 5292}}};
}

}  // namespace

frmDotacao::frmDotacao(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmDotacao>()) {
  ui_->setupUi(this);
  cDotacao& registro = cDotacao::compartilhada();
  tela_ = new TelaCadastro(
      *this, *ui_->Frame1, *ui_->txtordem, aparencia(),
      {.lista = [&](ListView& lista, std::int16_t modo) { registro.Lista_Dotacao(lista, modo); },
       .procura = [&](const QString& texto) { registro.Dotacao = Convert::toI16(texto); },
       .inclui = [this] { inclui(); },
       .altera = [this] { altera(); },
       .salva = [this](std::int16_t chave) { return salva(chave); },
       .exclui =
           [&](std::int16_t chave) {
             registro.Ordem = chave;
             registro.Del_Dotacao();
           }});
  connect(ui_->cmbSetor, &ComboBox::picked, this, &frmDotacao::cmbSetor_Click);
  Filtra_digitos(*ui_->txtdotacao);
  tela_->carrega();
}

frmDotacao::~frmDotacao() = default;

bool frmDotacao::Salvar() {
  return tela_->Salvar();
}

void frmDotacao::carrega_secretarias() {
  Carrega_Controles(*ui_->cmbSetor, QStringLiteral("Orgao"), QStringLiteral("Orgao"),
                    QStringLiteral("IDORGAO"), kTodos);
}

// Only the active types of the secretariat can be picked.
void frmDotacao::cmbSetor_Click() {
  const std::int32_t chave = ui_->cmbSetor->itemDataAt(ui_->cmbSetor->listIndex());
  Carrega_Controles(
      *ui_->cmbTipo,
      QStringLiteral("Select SEQUENCIA, TIPO From Tipos Where ATIVO = True AND IDORGAO =") +
          QString::number(chave),
      QStringLiteral("TIPO"), QStringLiteral("SEQUENCIA"), kComando);
}

void frmDotacao::inclui() {
  carrega_secretarias();
  ui_->txtano->setText(Format(Clock::now(), u"yyyy"));
  ui_->cmbSetor->setFocus();
}

// Picking the secretariat replaces the types by its active ones: a type that has become inactive,
// or whose key has four digits, is not found any more (error 9).
void frmDotacao::altera() {
  Carrega_Controles(*ui_->cmbTipo, QStringLiteral("Tipos"), QStringLiteral("TIPO"),
                    QStringLiteral("SEQUENCIA"), kTodos);
  carrega_secretarias();
  ui_->cmbSetor->selectByData(Convert::toI32(tela_->item().chave_na_coluna(2)));
  ui_->cmbTipo->selectByData(Convert::toI32(tela_->item().chave_na_coluna(1)));
  ui_->txtdotacao->setText(tela_->item().coluna(3));
  ui_->txtano->setText(tela_->item().coluna(4));
  ui_->txtdescricao->setText(tela_->item().coluna(5));
  ui_->cmbSetor->setFocus();
}

bool frmDotacao::salva(std::int16_t chave) {
  cDotacao& registro = cDotacao::compartilhada();
  registro.Ordem = chave;
  registro.Tipo = Convert::toI16(ui_->cmbTipo->itemDataAt(ui_->cmbTipo->listIndex()));
  registro.Dotacao = Convert::toI16(ui_->txtdotacao->text());
  registro.Ano = Convert::toI16(ui_->txtano->text());
  registro.Descricao = ui_->txtdescricao->text().trimmed();
  registro.Orgao = Convert::toI16(ui_->cmbSetor->itemDataAt(ui_->cmbSetor->listIndex()));
  return registro.Save_Dotacao(Operacao);
}

}  // namespace quartela
