// Windows on small screens: no window opens larger than the screen that it is on, and what does not
// fit is reached with scroll bars.
#pragma once

#include <QSize>

class QScrollArea;
class QWidget;

namespace quartela::Tamanho {

// What a window system puts around a window at most: borders at the sides, title bar and border.
inline constexpr QSize kMoldura{10, 40};

// The largest inside that a window on the screen of `janela` may have.
QSize maximo(const QWidget& janela);

// Makes `janela` large enough for what it may scroll; the application calls it for each window that
// is shown, before the next.
void mostra_inteira(QWidget& janela);

// Makes `janela` no larger than maximo(); the application calls it for each window that is shown.
void cabe_na_tela(QWidget& janela);

// Gives `miolo`, which stands in a layout, scroll bars that come where its window is too small for
// it. What stands beside it in the layout, such as the buttons, stays in view. A field that gets
// the focus is scrolled into view.
QScrollArea& rola(QWidget& miolo);

}  // namespace quartela::Tamanho
