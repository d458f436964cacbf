// The events of a screen that may end in an error: the one way to connect a signal in the windows.
#pragma once

#include <QObject>
#include <concepts>
#include <exception>

#include "foundation/Aplicacao.h"

namespace quartela {

// `corpo` under the trap of the event loop: an error that nothing in it traps is told at once. It
// would be told by the application as well, but only after leaving through the toolkit, whose own
// routines then give up nothing of what they hold.
template <typename Corpo>
auto Evento(Corpo corpo) {
  return [corpo]<typename... Argumentos>(
      Argumentos... argumentos) requires std::invocable<const Corpo&, Argumentos...> {
    try {
      corpo(argumentos...);
    } catch (const std::exception& erro) {
      mostra_erro_sem_trava(erro);
    }
  };
}

// The same for a routine of `tela`.
template <typename Tela, typename Classe, typename Resultado, typename... Argumentos>
auto Evento(Tela* tela, Resultado (Classe::*rotina)(Argumentos...)) {
  return [tela, rotina](Argumentos... argumentos) {
    Evento([=] { (tela->*rotina)(argumentos...); })();
  };
}

// Connects a signal to `corpo` for as long as `receptor` lives, under the trap. A check refuses any
// other connection in the windows, but that of ComboBox::picked, whose errors reach the routine
// that chose the entry.
template <typename Emissor, typename Sinal, typename Corpo>
QMetaObject::Connection liga(Emissor* emissor, Sinal sinal, const QObject* receptor, Corpo corpo) {
  return QObject::connect(emissor, sinal, receptor, Evento(std::move(corpo)));
}

// The same for a routine of `receptor`.
template <typename Emissor, typename Sinal, typename Receptor, typename Classe, typename Resultado,
          typename... Argumentos>
QMetaObject::Connection liga(Emissor* emissor, Sinal sinal, Receptor* receptor,
                             Resultado (Classe::*rotina)(Argumentos...)) {
  return QObject::connect(emissor, sinal, receptor, Evento(receptor, rotina));
}

}  // namespace quartela
