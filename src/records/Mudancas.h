// Who wants to know what changes in the tables: a journal of the office, say. Every write of the
// program goes through records/Gravacao, which tells of it here.
#pragma once

#include <QMap>
#include <QString>
#include <functional>

#include "platform/values/Value.h"

namespace quartela {

// One row that was added, altered or deleted.
struct Mudanca {
  enum class Especie { Inclusao, Alteracao, Exclusao };

  Especie especie;
  QString tabela;
  Value chave;
  // The columns that the write read, by name: none before an inclusion, none after an exclusion.
  QMap<QString, Value> antes;
  QMap<QString, Value> depois;
  // It went along with the row that it belonged to, of which was told just before.
  bool arrastada = false;
};

// Calls `observa` with each change for as long as it lives, once the row is written and before the
// transaction ends: what `observa` writes, through rows of its own, is kept or undone with it, and
// an error that it raises undoes the change.
class ObservaMudancas {
 public:
  using Observador = std::function<void(const Mudanca&)>;

  explicit ObservaMudancas(Observador observa);
  ~ObservaMudancas();
  ObservaMudancas(const ObservaMudancas&) = delete;
  ObservaMudancas& operator=(const ObservaMudancas&) = delete;

 private:
  friend void conta_mudanca(const Mudanca& mudanca);

  Observador observa_;
};

// Whether anybody observes.
bool ha_quem_observe();

// Tells all observers, the first one first.
void conta_mudanca(const Mudanca& mudanca);

}  // namespace quartela
