#include "masterdata/Cpf.h"

#include <QLabel>
#include <algorithm>
#include <array>

#include "foundation/Evento.h"
#include "platform/controls/MaskedBox.h"

namespace quartela {
namespace {

constexpr std::size_t kDigitos = 11;
using Digitos = std::array<int, kDigitos>;

// The check digit of the first `quantos` digits.
int digito_verificador(const Digitos& digitos, std::size_t quantos) {
  int soma = 0;
  for (std::size_t i = 0; i < quantos; ++i) {
    soma += digitos[i] * static_cast<int>(quantos + 1 - i);
  }
  return soma * 10 % 11 % 10;
}

}  // namespace

bool Cpf_confere(QStringView texto) {
  Digitos digitos{};
  std::size_t quantos = 0;
  for (const QChar letra : texto) {
    if (letra >= u'0' && letra <= u'9') {
      if (quantos == kDigitos) {
        return false;
      }
      digitos[quantos++] = letra.unicode() - u'0';
    }
  }
  const bool repetido = std::all_of(digitos.begin(), digitos.end(),
                                    [&](int digito) { return digito == digitos.front(); });
  return quantos == kDigitos && !repetido && digito_verificador(digitos, 9) == digitos[9] &&
         digito_verificador(digitos, 10) == digitos[10];
}

void Avisa_cpf(MaskedBox& campo, QLabel& aviso) {
  const auto confere = [&campo, &aviso] {
    const bool errado = campo.isComplete() && !Cpf_confere(campo.text());
    aviso.setText(errado ? QStringLiteral("Confira: os dígitos não fecham") : QString());
    campo.setAccessibleDescription(errado ? QStringLiteral("Os dígitos verificadores não fecham")
                                          : QString());
  };
  liga(&campo, &QLineEdit::textChanged, &aviso, confere);
  confere();
}

}  // namespace quartela
