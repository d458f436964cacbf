// What was typed and not saved is asked for before a window closes over it.
#pragma once

#include <QObject>
#include <QString>
#include <functional>

class QWidget;

namespace quartela {

// What the operator can type or tick in that field, as a text to compare; an amount is the same
// with and without its thousands dots.
QString Conteudo_campo(const QWidget& campo);

// All that the operator can type or tick inside `tela`, as one text, to tell whether it has
// changed.
QString Conteudo_digitado(const QWidget& tela);

// Asks whether what was typed and not saved may be given up.
bool Confirma_abandono();

// Lets a window with something typed close only after asking, whether a button, Escape, its frame,
// another window or the end of the program closes it. A command that asks permite() first, or whose
// caption says that it gives up what was typed, closes by fecha(), which asks nothing. Must not
// outlive the window.
class Fechamento : public QObject {
 public:
  Fechamento(QWidget& janela, std::function<bool()> tem_digitacao);

  // Whether nothing is typed, or the operator gives it up.
  bool permite() const { return !tem_digitacao_() || Confirma_abandono(); }
  void fecha();

  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  QWidget& janela_;
  std::function<bool()> tem_digitacao_;
  bool decidido_ = false;
};

}  // namespace quartela
