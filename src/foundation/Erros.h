// How failures reach the operator. Where the database file has been taken away under the program,
// the box is followed by the offer to open anew what stands at its path.
#pragma once

#include <QString>

#include "platform/values/RuntimeError.h"

namespace quartela {

// The common error box. `rotulo` names the routine, such as "Função Lista_Adiantamento".
void Erro_interno(const RuntimeError& erro, const QString& rotulo);

// The stop box of a failed save or delete: "Erro n°: " number " Descrição: " description.
void Erro_gravacao(const RuntimeError& erro);

// Runs `corpo` under an error trap: a run-time error goes to Erro_interno with `rotulo`.
template <typename Corpo>
void Sob_trava(const QString& rotulo, Corpo&& corpo) {
  try {
    corpo();
  } catch (const RuntimeError& erro) {
    Erro_interno(erro, rotulo);
  }
}

}  // namespace quartela
