#include "foundation/frmLogin.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QPalette>
#include <QTextDocument>
#include <algorithm>

#include "foundation/Abertura.h"
#include "foundation/Acessos.h"
#include "foundation/Erros.h"
#include "foundation/Estilo.h"
#include "foundation/Evento.h"
#include "foundation/Ini.h"
#include "foundation/UmaJanela.h"
#include "foundation/frmParametros.h"
#include "foundation/ui_frmLogin.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/AtomicFile.h"
#include "platform/files/ProgramFolder.h"
#include "platform/values/Format.h"

namespace quartela {
namespace {

constexpr int kAlturaFechada = 3255;  // twips
constexpr int kAlturaAberta = 4335;   // twips
constexpr int kMargem = 20;           // pixels beside the fields

// All three are compared; an absent key reads as the empty text and so lets an empty password in.
bool senha_confere(const QString& senha) {
  const QString arquivo = programFile(QStringLiteral("Set.dat"));
  const QString secao = QStringLiteral("Number");
  const QString valor1 = Le_ini(secao, QStringLiteral("valor1"), arquivo);
  const QString valor2 = Le_ini(secao, QStringLiteral("valor2"), arquivo);
  const QString valor3 = Le_ini(secao, QStringLiteral("valor3"), arquivo);
  return senha == valor1 || senha == valor2 || senha == valor3;
}

}  // namespace

frmLogin::frmLogin() : ui_(std::make_unique<Ui::frmLogin>()) {
  ui_->setupUi(this);
  Estilo::mostra_marca(*ui_->lblMarca);
  Estilo::destaca(*ui_->cmdOk);
  Estilo::botao_de_escape(*ui_->cmdCancel);
  Estilo::esconde_senha(*ui_->txtPassword);
  ui_->Combo->setCurrentIndex(0);
  setFixedWidth(std::max(width(), minimumSizeHint().width()));
  // The lower band takes up just what the window grows by, so that nothing above it moves.
  const int faixa = Estilo::pixels(kAlturaAberta - kAlturaFechada, *this);
  ui_->inferior->setFixedHeight(faixa - ui_->lay_corpo->spacing());
  ajusta_altura(false);
  mostra_ultimo_acesso();
  ui_->txtPassword->installEventFilter(this);
  ui_->txtPassword->setFocus();
  liga(ui_->cmdOk, &QPushButton::clicked, this, &frmLogin::cmdOk_click);
  liga(ui_->cmdUp, &QPushButton::clicked, this, &frmLogin::cmdUp_click);
  liga(ui_->cmdCancel, &QPushButton::clicked, this, &frmLogin::cmdCancel_click);
  liga(ui_->cmdParam, &QPushButton::clicked, this, [] { mostra_frmParametros(); });
}

frmLogin::~frmLogin() = default;

bool frmLogin::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::FocusIn || evento->type() == QEvent::FocusOut) {
    QPalette cores = ui_->txtPassword->palette();
    const bool com_foco = evento->type() == QEvent::FocusIn;
    cores.setColor(QPalette::Base,
                   com_foco ? QColor(Estilo::kAmarelo) : palette().color(QPalette::Base));
    ui_->txtPassword->setPalette(cores);
  }
  return QDialog::eventFilter(objeto, evento);
}

// Two short lines; the reason whole in the tip.
void frmLogin::mostra_ultimo_acesso() {
  const auto acesso = Ultimo_acesso_falho();
  if (!acesso) {
    return;
  }
  QLabel& linha = *ui_->lblUltimoAcesso;
  const QString quando = QStringLiteral("O acesso de %1 não abriu o banco:")
                             .arg(Format(acesso->quando, u"dd/MM/yyyy hh:mm"));
  const int largura = ui_->lay_corpo->minimumSize().width() - 2 * kMargem;
  const QString motivo = linha.fontMetrics().elidedText(acesso->motivo, Qt::ElideRight, largura);
  linha.setText(quando + QLatin1Char('\n') + motivo);
  linha.setToolTip(Qt::convertFromPlainText(acesso->motivo));
  linha.setAccessibleName(quando + QLatin1Char(' ') + acesso->motivo);
  linha.show();
}

void frmLogin::ajusta_altura(bool aberta) {
  ui_->inferior->setVisible(aberta);
  ui_->cmdUp->setText(aberta ? QStringLiteral("<<") : QStringLiteral(">>"));
  setFixedHeight(Estilo::pixels(aberta ? kAlturaAberta : kAlturaFechada, *this));
}

void frmLogin::cmdUp_click() {
  ajusta_altura(height() != Estilo::pixels(kAlturaAberta, *this));
}

void frmLogin::cmdOk_click() {
  Sob_trava(QStringLiteral("Função cmdOk_click"), [this] {
    if (!senha_confere(ui_->txtPassword->text())) {
      recusa_senha();
      return;
    }
    grava_caminhogeral();
    Abre_banco();
    close();
  });
}

// What was typed in the settings is asked for before the program ends over it.
void frmLogin::cmdCancel_click() {
  frmParametros* const parametros = UmaJanela<frmParametros>::aberta();
  if (parametros == nullptr || parametros->close()) {
    QCoreApplication::exit();
  }
}

void frmLogin::recusa_senha() {
  Dialogs::box({QStringLiteral("Invalid Password, try again!"), QStringLiteral("Login")});
  ui_->txtPassword->setFocus();
  ui_->txtPassword->selectAll();
}

// How the chosen database reaches Abre_banco; written at each login, changed or not.
void frmLogin::grava_caminhogeral() {
  const QString secao = QStringLiteral("Diretorio");
  const bool local = ui_->Combo->currentIndex() == 0;
  const QString chave = local ? QStringLiteral("caminho") : QStringLiteral("caminho2");
  Grava_config(secao, QStringLiteral("caminhogeral"), Le_config(secao, chave));
}

void mostra_frmLogin() {
  clearLeftovers(programFolder());
  UmaJanela<frmLogin>::mostra();
}

}  // namespace quartela
