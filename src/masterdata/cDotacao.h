// The budget allocations of each year, tied to a secretariat and an advance type: table "Dotacao".
#pragma once

#include <QString>
#include <cstdint>

namespace quartela {

class ListView;

class cDotacao {
 public:
  static cDotacao& compartilhada();

  std::int16_t Dotacao =
      0;                  // the allocation's number; also what Lista_Dotacao searches for in mode 1
  std::int16_t Tipo = 0;  // IDTIPO: key of the advance type
  std::int16_t Orgao = 0;  // IDORGAO: key of the secretariat
  std::int16_t Ordem = 0;  // column ID, given by the database
  std::int16_t Ano = 0;
  QString Descricao;

  // `operacao` 1 adds, any other value alters the row of Ordem. True when it was written.
  bool Save_Dotacao(std::int16_t operacao);
  // Deletes the row of Ordem. The caller has asked the operator already.
  void Del_Dotacao();
  // Mode 0 lists all rows, mode 1 those of the number Dotacao. Failures are told.
  void Lista_Dotacao(ListView& lista, std::int16_t modo);

 private:
  void Grava_campos() const;
};

}  // namespace quartela
