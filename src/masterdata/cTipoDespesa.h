// The expense purposes: table "Finalidade".
#pragma once

#include <QString>
#include <cstdint>

namespace quartela {

class ListView;

class cTipoDespesa {
 public:
  static cTipoDespesa& compartilhada();

  std::int16_t ID = 0;  // given by the database
  QString Finalidade;   // also what Lista_Finalidade searches for in mode 1

  // `operacao` 1 adds, any other value alters the row of ID. True when it was written.
  bool Save_Finalidade(std::int16_t operacao);
  // Deletes the row of ID. The caller has asked the operator already.
  void Del_Finalidade();
  // Mode 0 lists all rows, mode 1 those that contain Finalidade. Raises what the reading raises.
  void Lista_Finalidade(ListView& lista, std::int16_t modo);
};

}  // namespace quartela
