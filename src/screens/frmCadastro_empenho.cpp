// The empenho of the process screen: its list and buttons, the way to the page of the notes,
// closing and reopening.
#include "foundation/Rotinas.h"
#include "platform/controls/OpenForms.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Clock.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "records/Principal.h"
#include "records/cAdiantamento.h"
#include "screens/frmAdiantamento.h"
#include "screens/frmCadastro.h"
#include "ui_QuadroRequisicao.h"
#include "ui_frmCadastro.h"

namespace quartela {
namespace {

const QString kReativar = QStringLiteral("&Reativar Empenho");
const QString kEncerrar = QStringLiteral("&Encerrar Empenho");
const QString kIda = QStringLiteral("Prestação de &Contas >>");
const QString kVolta = QStringLiteral("<< &Voltar a Requisição");
constexpr QRgb kVermelho = 0xFFFF0000;
constexpr QRgb kAmareloClaro = 0xFFFFFF80;

bool pergunta(const QString& texto) {
  return Dialogs::box({.text = texto,
                       .icon = BoxIcon::Information,
                       .buttons = {Button::Yes, Button::No},
                       .defaultButton = Button::Yes}) == Button::Yes;
}

QString sem_barra(QString numero) {
  return numero.remove(QLatin1Char('/'));
}

}  // namespace

void frmCadastro::lista_empenhos() {
  cAdiantamento& adiantamento = cAdiantamento::compartilhada();
  adiantamento.processo = processo();
  adiantamento.Lista_Adiantamento(*ui_->lstEmpenho);
}

void frmCadastro::copia_chave() {
  if (ui_->lstEmpenho->count() > 0) {
    ui_->txtkey->setText(Tag);
  }
}

QString frmCadastro::empenho_selecionado() const {
  return sem_barra(ui_->lstEmpenho->text(ui_->lstEmpenho->selectedRow()));
}

void frmCadastro::cmdnovo_Click() {
  mostra_empenho(false);
}

void frmCadastro::cmdalterar_Click() {
  if (!falta_selecao()) {
    mostra_empenho(true);
  }
}

bool frmCadastro::falta_selecao() {
  if (!ui_->txtkey->text().isEmpty()) {
    return false;
  }
  Dialogs::stop(QStringLiteral("Selecione um item da lista !!!"));
  ui_->lstEmpenho->setFocus();
  return true;
}

// What is given up is not asked for again.
bool frmCadastro::larga_requisicao() {
  QuadroRequisicao& quadro = *ui_->fracadastro;
  if (quadro.tem_digitacao() && !Confirma_abandono()) {
    return false;
  }
  quadro.marca_salvo();
  return true;
}

frmAdiantamento* frmCadastro::dialogo() const {
  auto* const aberto = findChild<frmAdiantamento*>(QString(), Qt::FindDirectChildrenOnly);
  return aberto != nullptr && OpenForms::all().contains(aberto) ? aberto : nullptr;
}

// The dialog leaves this window usable; one that is open already comes to the front as it is.
void frmCadastro::mostra_empenho(bool altera) {
  if (!larga_requisicao()) {
    return;
  }
  atualiza_ao_sair_ = true;
  AlteraEmpenho = altera ? -1 : 0;
  ui_->cmdAplicar->setEnabled(false);
  ui_->fracadastro->setEnabled(false);
  frmAdiantamento* janela = dialogo();
  if (janela == nullptr) {
    janela = new frmAdiantamento({.processo = numero_processo(),
                                  .chave = ui_->txtkey->text(),
                                  .mskvalor = campos().mskvalor,
                                  .cmbTipo = campos().cmbTipo,
                                  .lstEmpenho = ui_->lstEmpenho},
                                 this);
    janela->setAttribute(Qt::WA_DeleteOnClose);
    OpenForms::add(janela);
  }
  OpenForms::showInFront(*janela);
}

void frmCadastro::cmdexcluir_Click() {
  if (falta_selecao() || !larga_requisicao()) {
    return;
  }
  atualiza_ao_sair_ = true;
  cAdiantamento& adiantamento = cAdiantamento::compartilhada();
  adiantamento.Empenho = Convert::toI32(sem_barra(Tag));
  if (!Dialogs::confirm(QStringLiteral("Confirma exclusão do Adiantamento: ") + Tag +
                        QStringLiteral(" e seus relacionamentos."))) {
    return;
  }
  adiantamento.Del_ad();
  lista_empenhos();
  ui_->cmdAplicar->setEnabled(false);
  ui_->fracadastro->setEnabled(false);
}

// A note that is given up is not asked for again.
void frmCadastro::cmdPrestacao_Click() {
  if (!larga_nota()) {
    return;
  }
  if (nota_digitada()) {
    Cancelar();
  }
  ListView& lista = *ui_->lstEmpenho;
  if (lista.count() > 0) {
    lista.selectRow(0);
    marca_encerrado(!lista.subItem(0, cAdiantamento::kFechamento).isEmpty());
  }
  Tag = lista.text(lista.selectedRow());
  Troca_aba(*ui_->SSTab1);
  ui_->cmdPrestacao->setText(ui_->SSTab1->currentIndex() == 0 ? kIda : kVolta);
}

void frmCadastro::marca_encerrado(bool encerrado) {
  encerrado_ = encerrado;
  ui_->cmdEncerrar->setText(encerrado ? kReativar : kEncerrar);
  QPalette cores = ui_->cmdEncerrar->palette();
  cores.setColor(QPalette::Button, QColor(encerrado ? kVermelho : kAmareloClaro));
  ui_->cmdEncerrar->setPalette(cores);
}

void frmCadastro::cmdEncerrar_Click() {
  bool imprimiu = false;
  if (encerrado_) {
    reativa();
  } else {
    imprimiu = encerra();
  }
  Lista_principal(FiltroStatus);
  lista_empenhos();
  if (imprimiu) {
    close();
  }
}

bool frmCadastro::encerra() {
  if (!pergunta(QStringLiteral("Deseja Encerrar o Adiantamento agora?"))) {
    return false;
  }
  preenche_encerramento();
  if (!cAdiantamento::compartilhada().Encerra_adiantamento()) {
    return false;
  }
  Dialogs::information(QStringLiteral("Empenho Encerrado!!!"),
                       QStringLiteral("Finalizar Prestação de Contas"));
  const bool sobrou = Convert::toMoney(ui_->lblNao_aplicado->text()) > Money();
  const bool imprimiu = sobrou && imprime_guia();
  marca_encerrado(true);
  return imprimiu;
}

void frmCadastro::preenche_encerramento() {
  cAdiantamento& adiantamento = cAdiantamento::compartilhada();
  const QString hoje = Format(Clock::today(), kDateFormat);
  const Money sobra = campos().mskvalor->value() - Convert::toMoney(ui_->lblGasto->text());
  const bool tem_sobra = sobra > Money();
  adiantamento.Empenho = empenho_identificado();
  adiantamento.Fechamento = hoje;
  adiantamento.Datadev = tem_sobra ? hoje : QString();
  adiantamento.Devolucao = tem_sobra ? Convert::toMoney(Format(sobra, kAmountFormat)) : Money();
}

void frmCadastro::reativa() {
  if (!pergunta(QStringLiteral("Deseja Reativar o Adiantamento agora?"))) {
    return;
  }
  cAdiantamento& adiantamento = cAdiantamento::compartilhada();
  adiantamento.Empenho = empenho_identificado();
  adiantamento.Fechamento = Value();
  adiantamento.Datadev = QString();
  adiantamento.Devolucao = Money();
  if (adiantamento.Encerra_adiantamento()) {
    Dialogs::information(QStringLiteral("Empenho Reativado!!!"),
                         QStringLiteral("Reativar Prestação de Contas"));
    marca_encerrado(false);
  }
}

}  // namespace quartela
