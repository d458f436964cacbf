// The common routines on texts: dates, accents, the bar code of a collection slip, amounts in
// words.
#pragma once

#include <QString>

#include "platform/values/Value.h"

namespace quartela {

// Whether `data` is "dd/MM/yyyy", exactly so, and a day that exists.
bool Valida_data(const QString& data);

// Plain letters in the place of the accented ones that the exports cannot carry. "ñ", "ÿ" and all
// other characters stay.
QString Remove_acentos(const QString& texto);

// The 44 digits of a collection bar code: bank, currency, the fixed digit 1 in the place of a check
// digit, the days from 7 October 1997 to `vencimento` (a date or its text), the amount in cents on
// 10 digits, the free fields on 8 and on 17. The days have four digits from 2000-07-03 to
// 2025-02-21; of a fifth the first is lost. An error is told in a box, and the text is empty then.
QString Monta_barras(const QString& banco, const QString& moeda, const QString& valor,
                     const Value& vencimento, const QString& livre1, const QString& livre2);

// An amount in words, such as "mil duzentos e trinta e quatro reais e cinquenta e seis centavos",
// as a cheque bears it. `valor` is a number in the Brazilian form, rounded to cents half away from
// zero; "menos" stands in front of a negative one, and nothing is "zero reais". The empty text for
// anything that is no number, and from a quadrillion on. Never longer than 512 characters.
QString Extenso(const QString& valor);

}  // namespace quartela
