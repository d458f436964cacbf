// The secretariats: table "Orgao".
#pragma once

#include <QString>
#include <cstdint>

namespace quartela {

class ListView;

class cOrgao {
 public:
  static cOrgao& compartilhada();

  std::int16_t ID = 0;  // IDORGAO, given by the database
  QString Orgao;        // the name; also what Lista_Orgao searches for in mode 1

  // `operacao` 1 adds, any other value alters the row of ID. True when it was written.
  bool Save_Orgao(std::int16_t operacao);
  // Deletes the row of ID. The caller has asked the operator already.
  void Del_Orgao();
  // Mode 0 lists all rows, mode 1 those whose name contains Orgao. Raises what the reading raises.
  void Lista_Orgao(ListView& lista, std::int16_t modo);
  // Asks for a column that the table does not have: raises error 3061.
  void Envia_dados(std::int16_t chave);
};

}  // namespace quartela
