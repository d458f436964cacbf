#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include "foundation/Rotinas.h"

namespace quartela {
namespace {

constexpr int kBackspace = 8;
// Neither filter is ever asked about this code; the colon's test stands against it all the same.
constexpr int kSemDoisPontos = 5;

bool eh_digito(int tecla) {
  return tecla >= '0' && tecla <= '9';
}

void acrescenta(QLineEdit& caixa, QChar separador) {
  caixa.setText(caixa.text() + separador);
  caixa.setCursorPosition(static_cast<int>(caixa.text().size()));
}

class Filtro : public QObject {
 public:
  Filtro(QLineEdit& caixa, Filtro_tecla filtro)
      : QObject(&caixa), caixa_(caixa), filtro_(std::move(filtro)) {
    caixa.installEventFilter(this);
  }

  bool eventFilter(QObject* objeto, QEvent* evento) override {
    if (evento->type() == QEvent::KeyPress) {
      return filtra(*static_cast<QKeyEvent*>(evento));
    }
    return QObject::eventFilter(objeto, evento);
  }

 private:
  static int codigo(const QKeyEvent& evento) {
    const bool atalho = evento.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (evento.key() == Qt::Key_Backspace) {
      return kBackspace;
    }
    const QString texto = evento.text();
    return !atalho && !texto.isEmpty() && texto.at(0).isPrint() ? texto.at(0).unicode() : 0;
  }

  // True when the key goes no further.
  bool filtra(const QKeyEvent& evento) {
    const int antes = codigo(evento);
    if (antes == 0 || caixa_.isReadOnly()) {
      return false;
    }
    int tecla = antes;
    filtro_(caixa_, tecla);
    if (tecla != antes && tecla != 0) {
      caixa_.insert(QString(QChar(tecla)));
    }
    return tecla != antes;
  }

  QLineEdit& caixa_;
  Filtro_tecla filtro_;
};

}  // namespace

void Filtra_teclas(QLineEdit& caixa, Filtro_tecla filtro) {
  new Filtro(caixa, std::move(filtro));
}

void Mascara_data(QLineEdit& caixa, int& tecla) {
  if (tecla != kBackspace && !eh_digito(tecla)) {
    tecla = 0;
  }
  const auto tamanho = caixa.text().size();
  if (eh_digito(tecla) && (tamanho == 2 || tamanho == 5)) {
    acrescenta(caixa, QLatin1Char('/'));
  }
}

void Mascara_hora(QLineEdit& caixa, int& tecla) {
  if (tecla != kBackspace && !eh_digito(tecla)) {
    tecla = 0;
    return;
  }
  if (tecla != kSemDoisPontos && caixa.text().size() == 2) {
    acrescenta(caixa, QLatin1Char(':'));
  }
}

void Formata_data(QLineEdit& caixa) {
  const int cursor = caixa.cursorPosition();
  const QString digitos = caixa.text().trimmed().remove(QLatin1Char('/'));
  QString data = digitos;
  if (digitos.size() > 4) {
    data = digitos.left(2) + '/' + digitos.mid(2, 2) + '/' + digitos.mid(4, 4);
  } else if (digitos.size() > 2) {
    data = digitos.left(2) + '/' + digitos.mid(2);
  }
  if (data == caixa.text()) {
    // Also what ends the change that setText below causes.
    return;
  }
  caixa.setText(data);
  const bool depois_da_barra = cursor == 3 || cursor == 6;
  caixa.setCursorPosition(depois_da_barra ? cursor + 1 : cursor);
}

}  // namespace quartela
