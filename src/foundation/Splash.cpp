#include "foundation/Splash.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <utility>

#include "foundation/Aplicacao.h"
#include "foundation/Erros.h"
#include "foundation/Estilo.h"
#include "foundation/Evento.h"
#include "foundation/UmaJanela.h"
#include "foundation/ui_Splash.h"
#include "platform/controls/ScreenPointer.h"
#include "platform/files/ProgramFolder.h"

namespace quartela {
namespace {

constexpr int kPosicaoInicial = -10150;  // twips
constexpr int kPasso = 200;              // twips

std::function<void()>& principal() {
  static std::function<void()> mostra;
  return mostra;
}

QTimer* relogio(QObject* dono, const QString& nome, int milissegundos) {
  auto* const timer = new QTimer(dono);
  timer->setObjectName(nome);
  timer->setTimerType(Qt::PreciseTimer);
  timer->setInterval(milissegundos);
  return timer;
}

}  // namespace

Splash::Splash()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      ui_(std::make_unique<Ui::Splash>()),
      Timer1(relogio(this, QStringLiteral("Timer1"), 100)),
      Timer2(relogio(this, QStringLiteral("Timer2"), 4000)),
      Timer3(relogio(this, QStringLiteral("Timer3"), 3000)) {
  ui_->setupUi(this);
  Estilo::mostra_marca(*ui_->lblMarca);
  setFixedSize(size().expandedTo(minimumSizeHint()));
  // The login window closes while only the splash is open; that must not end the program.
  setAttribute(Qt::WA_QuitOnClose);
  if (const QScreen* const tela = QGuiApplication::primaryScreen()) {
    move(tela->availableGeometry().center() - rect().center());
  }
  liga(Timer1, &QTimer::timeout, this, &Splash::Timer1_timer);
  liga(Timer2, &QTimer::timeout, this, &Splash::Timer2_timer);
  liga(Timer3, &QTimer::timeout, this, &Splash::Timer3_timer);
  Sob_trava(QStringLiteral("Função Load"), [this] { carrega(); });
  Timer1->start();
  Timer2->start();
}

Splash::~Splash() = default;

void Splash::registra_principal(std::function<void()> mostra) {
  principal() = std::move(mostra);
}

void Splash::carrega() {
  move_imagem(kPosicaoInicial);
  carrega_imagem();
  const QVersionNumber numero = versao();
  ui_->lblVersion->setText(QStringLiteral("Version %1.%2.%3")
                               .arg(numero.majorVersion())
                               .arg(numero.minorVersion())
                               .arg(numero.microVersion()));
  setScreenPointer(PointerShape::Hourglass);
}

void Splash::carrega_imagem() {
  const QString arquivo = programFile(QStringLiteral("progress.gif"));
  if (!QFileInfo::exists(arquivo)) {
    throw RuntimeError(ErrorNumber::FileNotFound, arquivo, QStringLiteral("Splash"));
  }
  imagem_.setFileName(arquivo);
  imagem_.jumpToFrame(0);
  if (imagem_.currentPixmap().isNull()) {
    throw RuntimeError(ErrorNumber::InvalidPicture, arquivo, QStringLiteral("Splash"));
  }
  ui_->Image1->setMovie(&imagem_);
  ui_->Image1->resize(imagem_.currentPixmap().size());
  imagem_.start();
}

void Splash::move_imagem(int twips) {
  posicao_ = twips;
  ui_->Image1->move(Estilo::pixels(twips, *this), 0);
}

void Splash::Timer1_timer() {
  move_imagem(posicao_ + kPasso);
  if (!principal_chamada_ && !Timer3->isActive()) {
    Timer3->start();
  }
}

void Splash::Timer2_timer() {
  Timer1->stop();
  Timer2->stop();
  setScreenPointer(PointerShape::Normal);
  close();
}

// The main window's loading may take long, and may show boxes while which Timer2 ends this window:
// nothing of it is touched behind the call.
void Splash::Timer3_timer() {
  Timer3->stop();
  principal_chamada_ = true;
  ui_->lblStatus->setText(QStringLiteral("Finalizando o Processo..."));
  if (principal()) {
    principal()();
  }
}

void mostra_Splash() {
  UmaJanela<Splash>::mostra();
}

}  // namespace quartela
