// The program as the window system sees it: its name, language and look, and the one place where an
// error arrives that no routine has trapped.
#pragma once

#include <QApplication>
#include <QTranslator>
#include <QVersionNumber>
#include <exception>

#include "platform/values/RuntimeError.h"

namespace quartela {

class Aplicacao : public QApplication {
  Q_OBJECT

 public:
  // Sets locale and words (pt_BR, whatever the machine's), name, icon and look.
  Aplicacao(int& argc, char** argv);

  // An error that leaves an event handler is told by mostra_erro_sem_trava, and the program
  // goes on with the next event.
  bool notify(QObject* receiver, QEvent* event) override;

 protected:
  // Windows come back where they were left, and none opens larger than its screen. The wheel
  // scrolls the page over a field that does not have the focus; it does not change it. A button's
  // key presses it at once, where the toolkit waits a tenth of a second in which what is typed on
  // would be lost, and takes the focus as the mouse does, so that the field that is being typed
  // into is finished first; the key of a button that is not enabled types no letter. Enter on a
  // button presses that button. A memo pastes nothing from an empty selection.
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  QTranslator tradutor_;
};

// The stop box of an error that no trap took: "Erro em tempo de execução " number ":", an empty
// line, the description; for any error but a RuntimeError the number 5 and its own words. An error
// that comes while one is shown waits for it to be closed; the same one once more is not repeated.
void mostra_erro_sem_trava(const std::exception& erro);

// To be called before the application is made: the toolkit then never looks for its plugins in the
// program's folder, where the data is and whoever may write that could leave one.
void Afasta_partes_da_pasta();

// The program's version: major, minor, revision.
QVersionNumber versao();

}  // namespace quartela
