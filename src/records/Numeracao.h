// The yearly numbers of the processes, kept in the counter file: section "Contador", keys "ano"
// (the year of the last number given) and "number" (the running number of the last saved record).
#pragma once

#include <QString>

class QLineEdit;

namespace quartela {

// Puts the next number of this year into `destino`, as the running number in "0000" and the year's
// two digits. In a new year the counter starts again. With a counter of a later year than the
// clock's no number is given and the operator is told. Nothing is counted until the record is
// saved. Failures go to Erro_interno with the label "Função Novo_item".
void Novo_item(QLineEdit& destino, const QString& arquivo);

// Writes both keys. Raises what Grava_ini raises.
void Grava_contador(const QString& ano, const QString& numero, const QString& arquivo);

}  // namespace quartela
