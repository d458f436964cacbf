#include "records/Mudancas.h"

#include <QList>

namespace quartela {
namespace {

QList<ObservaMudancas*>& observadores() {
  static QList<ObservaMudancas*> todos;
  return todos;
}

}  // namespace

ObservaMudancas::ObservaMudancas(Observador observa) : observa_(std::move(observa)) {
  observadores().append(this);
}

ObservaMudancas::~ObservaMudancas() {
  observadores().removeAll(this);
}

bool ha_quem_observe() {
  return !observadores().isEmpty();
}

void conta_mudanca(const Mudanca& mudanca) {
  const QList<ObservaMudancas*> todos = observadores();
  for (const ObservaMudancas* observador : todos) {
    observador->observa_(mudanca);
  }
}

}  // namespace quartela
