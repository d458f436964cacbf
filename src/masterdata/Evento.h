// The events of a screen that may end in an error.
#pragma once

#include "foundation/Aplicacao.h"

namespace quartela {

// `corpo` as the receiver of a signal: an error that nothing in it traps is told at once. It would
// be told by the application as well, but only after leaving through the toolkit, whose own
// routines then give up nothing of what they hold.
template <typename Corpo>
auto Evento(Corpo corpo) {
  return [corpo] {
    try {
      corpo();
    } catch (const RuntimeError& erro) {
      mostra_erro_sem_trava(erro);
    }
  };
}

}  // namespace quartela
