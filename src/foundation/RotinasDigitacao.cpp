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

// What is selected gives way to what is typed. False where the text then goes on behind the caret:
// it has its separators already.
bool segue_ao_fim(QLineEdit& caixa) {
  if (!caixa.hasSelectedText()) {
    return true;
  }
  caixa.del();
  return caixa.cursorPosition() == caixa.text().size();
}

}  // namespace

void Filtra_data(QLineEdit& caixa) {
  Filtra_teclas(caixa, Mascara_data, QStringLiteral("/-. "));
}

void Filtra_hora(QLineEdit& caixa) {
  Filtra_teclas(caixa, Mascara_hora, QStringLiteral(":"));
}

void Filtra_digitos(QLineEdit& caixa) {
  Filtra_teclas(caixa, [](QLineEdit&, int& tecla) {
    if (tecla != kBackspace && !eh_digito(tecla)) {
      tecla = 0;
    }
  });
}

void Mascara_data(QLineEdit& caixa, int& tecla) {
  if (tecla != kBackspace && !eh_digito(tecla)) {
    tecla = 0;
  }
  if (!eh_digito(tecla) || !segue_ao_fim(caixa)) {
    return;
  }
  const auto tamanho = caixa.text().size();
  if (tamanho == 2 || tamanho == 5) {
    acrescenta(caixa, QLatin1Char('/'));
  }
}

void Mascara_hora(QLineEdit& caixa, int& tecla) {
  if (tecla != kBackspace && !eh_digito(tecla)) {
    tecla = 0;
    return;
  }
  const bool apaga_selecao = tecla == kBackspace && caixa.hasSelectedText();
  if (tecla == kSemDoisPontos || apaga_selecao || !segue_ao_fim(caixa)) {
    return;
  }
  if (caixa.text().size() == 2) {
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
  // The same text is not written again, which also ends the change that this causes.
  if (data != caixa.text()) {
    caixa.setText(data);
  }
  const bool depois_da_barra = cursor == 3 || cursor == 6;
  caixa.setCursorPosition(depois_da_barra ? cursor + 1 : cursor);
}

}  // namespace quartela
