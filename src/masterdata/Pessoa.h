// What the two tables of people share: the lookup of a person's four texts by the key.
#pragma once

#include <QString>
#include <array>

namespace quartela {

// Reads columns 0 to 3 of the first row of `comando` into `textos`; without a row they keep what
// they held. A failure goes to Erro_interno with the label "CarregaList".
void Carrega_pessoa(const QString& comando, const std::array<QString*, 4>& textos);

}  // namespace quartela
