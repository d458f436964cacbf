// The look of the whole program: colours, font, the marks that its windows share, and the measure
// that the windows' sizes are given in.
#pragma once

#include <QColor>
#include <QIcon>

class QApplication;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace quartela::Estilo {

inline constexpr QRgb kAzul = 0xFF16375B;      // bands, headings
inline constexpr QRgb kDestaque = 0xFF1F66A8;  // selection, focus, the primary button
inline constexpr QRgb kTinta = 0xFF1D2A38;     // text
inline constexpr QRgb kFundo = 0xFFF3F5F8;     // windows
inline constexpr QRgb kAmarelo = 0xFFFFFF00;   // the field that takes a password

// Sets style, palette, font and style sheet for every window.
void aplica(QApplication& aplicacao);

// Puts the program's mark on a label, as large as its least size.
void mostra_marca(QLabel& rotulo);

// Marks the button that a window is there for.
void destaca(QPushButton& botao);

// Shows "*" for each character of `campo`.
void esconde_senha(QLineEdit& campo);

// Escape presses `botao` from anywhere in its window.
void botao_de_escape(QPushButton& botao);

// The crest, in every size.
QIcon marca();

// Twips (1/1440 inch) as pixels of the screen that `janela` is on: 15 to the pixel on a usual one.
int pixels(int twips, const QWidget& janela);

}  // namespace quartela::Estilo
