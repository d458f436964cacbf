#include "foundation/frmParametros.h"

#include <QLineEdit>

#include "foundation/Escape.h"
#include "foundation/Estilo.h"
#include "foundation/Evento.h"
#include "foundation/Ini.h"
#include "foundation/UmaJanela.h"
#include "foundation/ui_frmParametros.h"
#include "platform/dialogs/Dialogs.h"

namespace quartela {
namespace {

const QString kSecao = QStringLiteral("Diretorio");
const QString kFiltroBanco = QStringLiteral("Banco de dados Access (*.MDB)|*.MDB|");
const QString kFiltroIni = QStringLiteral("Banco de dados Access (*.ini)|*.ini|");

QString le(const QString& chave) {
  return Le_config(kSecao, chave);
}

void grava(const QString& chave, const QLineEdit& caixa) {
  Grava_config(kSecao, chave, caixa.text());
}

// A cancelled dialog empties the box: that is how a path is taken out.
void procura(QLineEdit& caixa, const QString& filtro) {
  FileRequest pedido;
  pedido.filter = filtro;
  caixa.setText(Dialogs::openFile(pedido));
}

}  // namespace

frmParametros::frmParametros()
    : ui_(std::make_unique<Ui::frmParametros>()),
      fechamento_(*this, [this] { return Conteudo_digitado(*this) != carregado_; }) {
  ui_->setupUi(this);
  Estilo::mostra_marca(*ui_->lblMarca);
  Estilo::destaca(*ui_->cmdGravar);
  ui_->Text1->setText(le(QStringLiteral("caminho")));
  ui_->Text2->setText(le(QStringLiteral("caminho2")));
  ui_->Text3->setText(le(QStringLiteral("number")));
  carregado_ = Conteudo_digitado(*this);
  liga(ui_->cmdCaminho, &QPushButton::clicked, this,
       [this] { procura(*ui_->Text1, kFiltroBanco); });
  liga(ui_->Command1, &QPushButton::clicked, this, [this] { procura(*ui_->Text2, kFiltroBanco); });
  liga(ui_->Command2, &QPushButton::clicked, this, [this] { procura(*ui_->Text3, kFiltroIni); });
  liga(ui_->cmdGravar, &QPushButton::clicked, this, &frmParametros::cmdGravar_click);
  liga(ui_->cmdCancelar, &QPushButton::clicked, &fechamento_, &Fechamento::fecha);
  Ao_escapar(*this, [this] { close(); });
}

frmParametros::~frmParametros() = default;

// The paths are not tested here; they take effect at the next login.
void frmParametros::cmdGravar_click() {
  grava(QStringLiteral("caminho"), *ui_->Text1);
  grava(QStringLiteral("caminho2"), *ui_->Text2);
  grava(QStringLiteral("number"), *ui_->Text3);
  fechamento_.fecha();
}

void mostra_frmParametros() {
  UmaJanela<frmParametros>::mostra();
}

}  // namespace quartela
