#include "foundation/Estilo.h"

#include <QApplication>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QWidget>
#include <cmath>

#include "foundation/Desenho.h"
#include "foundation/Escape.h"

// The pictures that are compiled in; a static library's are taken up only when asked for, and that
// from outside of every namespace.
static void traz_imagens() {
  Q_INIT_RESOURCE(foundation);
}

namespace quartela::Estilo {
namespace {

constexpr int kTwipsPorPolegada = 1440;
constexpr QRgb kBorda = 0xFFC3CCD6;
// The style draws a button lighter than its colour; this one leaves white words well readable.
constexpr QRgb kBotaoPrincipal = 0xFF10406F;
constexpr QRgb kApagado = 0xFF8592A0;
constexpr QRgb kCampoInativo = 0xFFE6EAEF;

// Yes stands before No and OK before Cancel on every desktop, and words stand alone on buttons.
constexpr const char* kFolha = R"(
QDialogButtonBox, QMessageBox { button-layout: 0; dialogbuttonbox-buttons-have-icons: 0; }
QFrame#faixa { background: #16375b; border: none; }
QFrame#faixa QLabel { color: #ffffff; background: transparent; }
QFrame#faixa QLabel#lblFaixa { font-size: 12pt; font-weight: 600; }
QFrame#faixa QLabel#lblSistema { font-size: 10pt; font-weight: 600; }
QFrame#faixa QLabel#lblNome { font-size: 24pt; font-weight: 600; }
QFrame#faixa QLabel#lblProposito { font-size: 10pt; color: #c9d8e8; }
QFrame#faixa QLabel#lblVersion { color: #f0bd4f; }
QFrame#cena { background: #ffffff; border: none; }
QLabel#lblTitulo { font-size: 14pt; font-weight: 600; color: #16375b; }
QLabel#lblUltimoAcesso { font-size: 8pt; color: #5a6675; }
QFrame#linha { background: #c3ccd6; border: none; max-height: 1px; }
QToolTip { background: #ffffff; color: #1d2a38; border: 1px solid #c3ccd6; padding: 3px; }
)";

// The character of hidden text can be set by nothing but a style.
class Asteriscos : public Desenho {
 public:
  int styleHint(StyleHint dica, const QStyleOption* opcao, const QWidget* campo,
                QStyleHintReturn* resposta) const override {
    return dica == SH_LineEdit_PasswordCharacter ? int{'*'}
                                                 : Desenho::styleHint(dica, opcao, campo, resposta);
  }
};

QPalette paleta() {
  QPalette cores;
  cores.setColor(QPalette::Window, QColor(kFundo));
  cores.setColor(QPalette::WindowText, QColor(kTinta));
  cores.setColor(QPalette::Base, Qt::white);
  cores.setColor(QPalette::AlternateBase, QColor(0xEE, 0xF2, 0xF7));
  cores.setColor(QPalette::Text, QColor(kTinta));
  cores.setColor(QPalette::PlaceholderText, QColor(kApagado));
  cores.setColor(QPalette::Button, QColor(0xE8, 0xEC, 0xF1));
  cores.setColor(QPalette::ButtonText, QColor(kTinta));
  cores.setColor(QPalette::BrightText, Qt::white);
  cores.setColor(QPalette::Highlight, QColor(kDestaque));
  cores.setColor(QPalette::HighlightedText, Qt::white);
  cores.setColor(QPalette::ToolTipBase, Qt::white);
  cores.setColor(QPalette::ToolTipText, QColor(kTinta));
  cores.setColor(QPalette::Link, QColor(kDestaque));
  cores.setColor(QPalette::Mid, QColor(kBorda));
  for (const QPalette::ColorRole papel :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    cores.setColor(QPalette::Disabled, papel, QColor(kApagado));
  }
  cores.setColor(QPalette::Disabled, QPalette::Base, QColor(kCampoInativo));
  return cores;
}

}  // namespace

void aplica(QApplication& aplicacao) {
  QApplication::setStyle(new Desenho);
  QApplication::setPalette(paleta());
  QFont fonte(QStringList{QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")});
  fonte.setPointSize(9);
  QApplication::setFont(fonte);
  aplicacao.setStyleSheet(QString::fromLatin1(kFolha));
}

void mostra_marca(QLabel& rotulo) {
  rotulo.setPixmap(
      QApplication::windowIcon().pixmap(rotulo.minimumSize(), rotulo.devicePixelRatioF()));
}

void destaca(QPushButton& botao) {
  QPalette cores = botao.palette();
  for (const QPalette::ColorGroup grupo : {QPalette::Active, QPalette::Inactive}) {
    cores.setColor(grupo, QPalette::Button, QColor(kBotaoPrincipal));
    cores.setColor(grupo, QPalette::ButtonText, Qt::white);
  }
  botao.setPalette(cores);
}

void esconde_senha(QLineEdit& campo) {
  campo.setEchoMode(QLineEdit::Password);
  auto* const asteriscos = new Asteriscos;
  asteriscos->setParent(&campo);
  campo.setStyle(asteriscos);
}

void botao_de_escape(QPushButton& botao) {
  Ao_escapar(*botao.window(), [&botao] { botao.click(); });
}

QIcon marca() {
  traz_imagens();
  QIcon icone;
  for (const int lado : {16, 24, 32, 48, 64, 128, 256}) {
    icone.addFile(QStringLiteral(":/quartela/icons/quartela-%1.png").arg(lado));
  }
  return icone;
}

int pixels(int twips, const QWidget& janela) {
  return static_cast<int>(std::lround(double(twips) * janela.logicalDpiY() / kTwipsPorPolegada));
}

}  // namespace quartela::Estilo
