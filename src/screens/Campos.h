// What the screens of the advance lifecycle share about fields and typing.
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <functional>

#include "platform/values/RuntimeError.h"
#include "platform/values/Value.h"

class QLineEdit;
class QWidget;

namespace quartela {

class DatePicker;

// Selects the whole text whenever the field gets the focus, also by the mouse.
void Seleciona_ao_entrar(QLineEdit& campo);

// Enter goes on to the next field, as the Tab key does.
void Enter_avanca(QLineEdit& campo);

// The wheel scrolls the page; it changes no value, not even of a field with the focus.
void Ignora_roda(QWidget& campo);

// Makes the fields inside `parte` readable where they cannot be altered any more.
void Escurece_inativos(QWidget& parte);

// Each word with a capital at its head and small letters behind it.
QString Nome_proprio(const QString& texto);

// All that the operator can type or tick inside `tela`, as one text, to tell whether it has
// changed.
QString Conteudo_digitado(const QWidget& tela);

// Asks whether what was typed and not saved may be given up.
bool Confirma_abandono();

// Lets a window with something typed close only after asking, whether Escape, its frame, another
// window or the end of the program closes it. The window's own commands close it by fecha(), which
// asks nothing: their captions say what they do. Must not outlive the window.
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

// Dates are typed from 1997 to 2100; what the database holds is shown all the same.
void Mostra_data(DatePicker& data, const Value& valor);

// Runs one step of a routine that goes on with the next whatever happens.
template <typename Passo>
void Segue(Passo&& passo) {
  try {
    passo();
  } catch (const RuntimeError&) {
    return;
  }
}

// Dates that were typed and refused. Each is told on the spot beside its field, and once more, in a
// box, when the operator is about to save without having looked at it again.
class DatasRecusadas {
 public:
  // Both must outlive the picker's last signal.
  void observa(DatePicker& data);
  // True, after the box and with the focus on the field, when a date was refused since it was last
  // changed.
  bool avisa();

 private:
  DatePicker* recusada_ = nullptr;
};

}  // namespace quartela
