// The yearly numbers of the processes, kept in the counter file: section "Contador", keys "ano"
// (the year of the last number given) and "number" (the running number of the last saved record).
#pragma once

#include <QString>

class QLineEdit;

namespace quartela {

// Puts the next number of this year into `destino`, as the running number in "0000" and the year's
// two digits. In a new year the counter starts again. With a counter of a later year than the
// clock's no number is given and the operator is told; but a year that was only begun, with nothing
// saved in it, gives way to the one before. Nothing is counted until the record is saved. Failures
// go to Erro_interno with the label "Função Novo_item"; a counter file that is there and holds no
// number is one.
void Novo_item(QLineEdit& destino, const QString& arquivo);

// Writes both keys at once. Raises what Grava_ini raises.
void Grava_contador(const QString& ano, const QString& numero, const QString& arquivo);

// For a save that failed since its number is taken: puts the counter behind the highest number of
// this year in Requisicao, if it is not there yet. Novo_item then proposes a free one. Raises what
// the reading of the table and of the file and the writing raise.
void Avanca_contador(const QString& arquivo);

}  // namespace quartela
