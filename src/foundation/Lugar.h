// Where the operator left a window: a place, size or maximised state that was changed by hand comes
// back when the window is opened again, also in a later run, as long as the same screens are there.
// It is kept in "Janelas.ini" in the program's folder, a section for each arrangement of screens.
#pragma once

class QWidget;

namespace quartela::Lugar {

// While a window is being shown. Boxes, and windows of a fixed size, have no place of their own.
void devolve(QWidget& janela);

// While it is being hidden. A folder that cannot be written keeps nothing; nobody is told.
void guarda(QWidget& janela);

}  // namespace quartela::Lugar
