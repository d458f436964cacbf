// The taxpayer number of a person (Cadastro de Pessoas Físicas).
#pragma once

#include <QStringView>

class QLabel;

namespace quartela {

class MaskedBox;

// Whether the two check digits of a number of eleven digits fit: each is the remainder of the
// weighted sum of the digits before it, times ten, divided by eleven, with ten counted as zero
// (Receita Federal, Instrução Normativa RFB 1548/2015). Other characters are passed over; a number
// of one digit repeated, or of another length, does not fit.
bool Cpf_confere(QStringView texto);

// Says on `aviso`, beside the field, that a filled number's check digits do not fit; stops nobody.
void Avisa_cpf(MaskedBox& campo, QLabel& aviso);

}  // namespace quartela
