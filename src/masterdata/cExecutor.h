// The expense orderers, each of one secretariat: table "Executor".
#pragma once

#include <QString>
#include <cstdint>

namespace quartela {

class ListView;

class cExecutor {
 public:
  static cExecutor& compartilhada();

  std::int16_t Ordem = 0;  // the key, given by the database
  std::int16_t Orgao = 0;  // IDORGAO: key of the secretariat
  QString Nome;            // also what Lista_Executor searches for in mode 1
  QString RG;
  QString CPF;  // as the masked field shows it, prompts included
  QString Funcao;
  // Held for other windows; no operation reads or writes them.
  QString Ordenador;
  QString RG2;
  QString CPF2;
  QString Cargo;
  bool Ativo = false;  // an inactive orderer is not offered for new requisitions

  // Loads Nome, RG, CPF and Funcao of Ordem; without a row they keep what they held. A failure goes
  // to Erro_interno with the label "CarregaList".
  void CarregaList();
  // `operacao` 1 adds, any other value alters the row of Ordem. True when it was written.
  bool Save_executor(std::int16_t operacao);
  // Deletes the row of Ordem. The caller has asked the operator already.
  void Del_executor();
  // Mode 0 lists all rows, mode 1 those whose name contains Nome. Failures are told.
  void Lista_Executor(ListView& lista, std::int16_t modo);

 private:
  void Grava_campos() const;
};

}  // namespace quartela
