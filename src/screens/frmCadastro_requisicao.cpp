// The requisition side of the process screen: loading, saving, printing.
#include "foundation/Caminhos.h"
#include "foundation/Escritorio.h"
#include "foundation/Evento.h"
#include "foundation/Ini.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "records/Gravacao.h"
#include "records/Impressao.h"
#include "records/Numeracao.h"
#include "records/Principal.h"
#include "records/cRequisicao.h"
#include "records/cTodos.h"
#include "screens/frmCadastro.h"
#include "ui_QuadroRequisicao.h"
#include "ui_frmCadastro.h"

namespace quartela {
void frmCadastro::Carrega_dados() {
  cRequisicao& requisicao = cRequisicao::compartilhada();
  requisicao.Envia_dados(Le_numero(QString(Tag_principal).remove(QLatin1Char('/'))));
  campos().mskprocesso->setText(Format(requisicao.Seq, u"0000/00"));
  ui_->fracadastro->mostra(requisicao);
  if (!Subitem_principal(cTodos::kAbertura).isEmpty()) {
    ui_->fracadastro->setEnabled(false);
    // A text longer than its place could not be scrolled any more.
    campos().txtjustificativa->setToolTip(requisicao.Justificativa);
  }
  campos().mskprocesso->setEnabled(false);
  for (QPushButton* const botao : {ui_->cmdnovo, ui_->cmdalterar, ui_->cmdexcluir}) {
    botao->setEnabled(true);
  }
}

void frmCadastro::cmdAplicar_Click() {
  if (!ui_->fracadastro->completo() || !aceita_outro_aberto()) {
    return;
  }
  cRequisicao& requisicao = cRequisicao::compartilhada();
  requisicao.Seq = Convert::toI32(numero_processo());
  ui_->fracadastro->preenche(requisicao);
  const bool inclui = ModoAlteracao == 0;
  if (!requisicao.Save_req(inclui ? kInclusao : kAlteracao)) {
    if (inclui && requisicao.Numero_tomado()) {
      oferece_outro_numero();
    }
    return;
  }
  if (inclui) {
    avanca_contador();
  }
  ui_->fracadastro->marca_salvo();
  Lista_principal(FiltroStatus);
  ui_->cmdAplicar->setEnabled(false);
  ui_->cmdOk->setEnabled(true);
  ui_->cmdImprimir->setEnabled(true);
  ui_->cmdOk->setFocus();
}

// Another desk was quicker, or the counter fell behind its table. What was typed stays.
void frmCadastro::oferece_outro_numero() {
  Avanca_contador(caminhos.number);
  Novo_item(*campos().mskprocesso, caminhos.number);
}

// A counter that cannot be written is told, and leaves no screen that offers to save once more.
void frmCadastro::avanca_contador() {
  Evento([this] {
    Grava_ini(QStringLiteral("Contador"), QStringLiteral("number"),
              campos().mskprocesso->text().left(4), caminhos.number);
  })();
}

// The warning goes by the places of person and type in their lists, not by their keys. It only
// warns, and only for a new requisition.
bool frmCadastro::aceita_outro_aberto() {
  cRequisicao& requisicao = cRequisicao::compartilhada();
  ui_->fracadastro->preenche_lugares(requisicao);
  const bool aberto = requisicao.Verifica_registro();
  if (!campos().mskprocesso->isEnabled() || !aberto) {
    return true;
  }
  return Dialogs::box({.text = QStringLiteral("Há um adiantamento nesta finalidade já aberto !!!"),
                       .icon = BoxIcon::Exclamation,
                       .buttons = {Button::Ok, Button::Cancel},
                       .defaultButton = Button::Cancel}) == Button::Ok;
}

void frmCadastro::cmdOk_Click() {
  if (fechamento_.permite()) {
    atualiza_ao_sair_ = true;
    fechamento_.fecha();
  }
}

void frmCadastro::cmdImprimir_Click() {
  if (!fechamento_.permite()) {
    return;
  }
  if (imprime_requisicao(QStringLiteral("Select * from Sel_Print_req WHERE Requisicao.SEQ = ") +
                         numero_processo())) {
    fechamento_.fecha();
  }
}

}  // namespace quartela
