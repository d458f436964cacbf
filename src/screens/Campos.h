// What the screens of the advance lifecycle share about fields and typing.
#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "platform/values/RuntimeError.h"
#include "platform/values/Value.h"

class QLineEdit;
class QWidget;

namespace quartela {

class DatePicker;
class MaskedBox;
class MoneyEdit;

// Selects the whole text whenever the field gets the focus, also by the mouse.
void Seleciona_ao_entrar(QLineEdit& campo);

// Enter goes on to the next field, as the Tab key does.
void Enter_avanca(QLineEdit& campo);

// Completes a number and its year ("#####/##") when the field is left with fewer digits than its
// template has, where the operator sees it: zeros in front of the number, the year of the day where
// none is typed. "1102" becomes 01102/14 in 2014. An empty field stays empty.
void Completa_ao_sair(MaskedBox& campo);

// The wheel scrolls the page; it changes no value, not even of a field with the focus.
void Ignora_roda(QWidget& campo);

// Makes the fields inside `parte` readable where they cannot be altered any more.
void Escurece_inativos(QWidget& parte);

// Each word with a capital at its head and small letters behind it.
QString Nome_proprio(const QString& texto);

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

// An amount in a field that shows fewer decimals than the amount may have: as long as the field
// shows what it was given, that is the amount.
class ValorMostrado {
 public:
  // `texto` is the amount as the field shows it.
  void mostra(MoneyEdit& campo, Money valor, const QString& texto);
  // Nothing was given to the field.
  void esquece() { valor_.reset(); }
  // Errors: those of MoneyEdit::value().
  Money valor(const MoneyEdit& campo) const;

 private:
  std::optional<Money> valor_;
  QString mostrado_;
};

// The day on the screen with the time of day that the same day had when it was loaded.
DateTime Com_hora_carregada(const DateTime& dia, const DateTime& carregada);

// Tells of an amount that is none, or is too large to be kept, with the focus on its field. An
// empty field is not told of. True when it was told.
bool Avisa_valor_recusado(MoneyEdit& campo);

// Dates that were typed and refused. Each is told on the spot beside its field, and once more, in a
// box of its own, when the operator is about to save without having looked at it again.
class DatasRecusadas {
 public:
  // Both must outlive the picker's last signal.
  void observa(DatePicker& data);
  // True, after the box and with the focus on the field, when a date was refused since it was last
  // changed. Of several the one refused first is told; the next call tells the next.
  bool avisa();

 private:
  QList<DatePicker*> recusadas_;
};

}  // namespace quartela
