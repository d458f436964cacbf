// The events of a screen that may end in an error.
#pragma once

#include <concepts>

#include "foundation/Aplicacao.h"

namespace quartela {

// `corpo` as the receiver of a signal: an error that nothing in it traps is told at once. It would
// be told by the application as well, but only after leaving through the toolkit, whose own
// routines then give up nothing of what they hold.
template <typename Corpo>
auto Evento(Corpo corpo) {
  return [corpo]<typename... Argumentos>(
      Argumentos... argumentos) requires std::invocable<const Corpo&, Argumentos...> {
    try {
      corpo(argumentos...);
    } catch (const RuntimeError& erro) {
      mostra_erro_sem_trava(erro);
    }
  };
}

// The same for a routine of `tela`.
template <typename Tela, typename... Argumentos>
auto Evento(Tela* tela, void (Tela::*rotina)(Argumentos...)) {
  return [tela, rotina](Argumentos... argumentos) {
    Evento([=] { (tela->*rotina)(argumentos...); })();
  };
}

}  // namespace quartela
