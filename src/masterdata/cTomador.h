// The persons responsible for the money: table "Tomador".
#pragma once

#include <QString>
#include <cstdint>

namespace quartela {

class ListView;

class cTomador {
 public:
  static cTomador& compartilhada();

  std::int16_t Ordem = 0;  // column ID, given by the database
  std::int16_t Exec = 0;   // held for other windows; no operation reads or writes it
  QString Nome;            // also what Lista_Tomador searches for in mode 1
  QString RG;
  QString CPF;  // as the masked field shows it, prompts included
  QString Cargo;
  bool Ativo = false;  // an inactive person is not offered for new requisitions

  // Loads Nome, RG, CPF and Cargo of Ordem; without a row they keep what they held. A failure goes
  // to Erro_interno with the label "CarregaList".
  void CarregaList();
  // `operacao` 1 adds, any other value alters the row of Ordem. True when it was written.
  bool Save_Tomador(std::int16_t operacao);
  // Deletes the row of Ordem. The caller has asked the operator already.
  void Del_Tomador();
  // Mode 0 lists all rows, mode 1 those whose name contains Nome. Failures are told.
  void Lista_Tomador(ListView& lista, std::int16_t modo);

 private:
  void Grava_campos() const;
};

}  // namespace quartela
