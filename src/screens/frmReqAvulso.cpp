#include "screens/frmReqAvulso.h"

#include "foundation/Escape.h"
#include "foundation/Estilo.h"
#include "foundation/Evento.h"
#include "foundation/Tamanho.h"
#include "records/Gravacao.h"
#include "records/Impressao.h"
#include "records/Principal.h"
#include "records/cReqAvulso.h"
#include "ui_QuadroRequisicao.h"
#include "ui_frmReqAvulso.h"

namespace quartela {

frmReqAvulso::frmReqAvulso(QWidget* parent)
    : QWidget(parent),
      ui_(std::make_unique<Ui::frmReqAvulso>()),
      fechamento_(*this, [this] { return ui_->fracadastro->tem_digitacao(); }) {
  ui_->setupUi(this);
  Tamanho::rola(*ui_->fracadastro);
  Estilo::destaca(*ui_->cmdAplicar);
  ui_->fracadastro->prepara_numero(QStringLiteral("Código"), {});
  liga(ui_->cmdAplicar, &QPushButton::clicked, this, &frmReqAvulso::cmdAplicar_Click);
  liga(ui_->cmdImprimir, &QPushButton::clicked, this, &frmReqAvulso::cmdImprimir_Click);
  liga(ui_->cmdOk, &QPushButton::clicked, this, [this] { close(); });
  liga(ui_->Command1_0, &QPushButton::clicked, this, [this] { close(); });
  Ao_escapar(*this, [this] { close(); });
  Form_Load();
}

frmReqAvulso::~frmReqAvulso() = default;

void frmReqAvulso::Form_Load() {
  // An alteration must not find the row that was saved last: it is not the one on the screen.
  cReqAvulso::compartilhada().Seq = 0;
  ui_->fracadastro->campos().dtpdata->setToday();
  ui_->fracadastro->marca_salvo();
}

// The mode is the one in which the process screen was opened last.
void frmReqAvulso::cmdAplicar_Click() {
  QuadroRequisicao& quadro = *ui_->fracadastro;
  if (!quadro.completo()) {
    return;
  }
  cReqAvulso& requisicao = cReqAvulso::compartilhada();
  quadro.preenche_lugares(requisicao);
  quadro.preenche(requisicao);
  const bool inclui = ModoAlteracao == 0;
  if (!requisicao.Save_req(inclui ? kInclusao : kAlteracao)) {
    return;
  }
  if (inclui) {
    quadro.campos().mskprocesso->setText(QString::number(requisicao.Seq));
  }
  quadro.marca_salvo();
  ui_->cmdAplicar->setEnabled(false);
  ui_->cmdOk->setEnabled(true);
  ui_->cmdImprimir->setEnabled(true);
  ui_->cmdOk->setFocus();
}

void frmReqAvulso::cmdImprimir_Click() {
  if (!fechamento_.permite()) {
    return;
  }
  if (imprime_requisicao(
          QStringLiteral("Select * from Sel_Print_reqavulso WHERE ReqAvulso.SEQ = ") +
          ui_->fracadastro->campos().mskprocesso->text())) {
    fechamento_.fecha();
  }
}

}  // namespace quartela
