// The Escape key of a window.
#pragma once

#include <functional>

class QWidget;

namespace quartela {

// Calls `acao` when Escape reaches `janela`, in the place of closing it. An open list or menu has
// the key to itself.
void Ao_escapar(QWidget& janela, std::function<void()> acao);

}  // namespace quartela
