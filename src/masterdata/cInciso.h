// The legal clauses of an advance type, each with a category and a term in days: table "Inciso".
#pragma once

#include <QString>
#include <cstdint>

namespace quartela {

class ListView;

class cInciso {
 public:
  static cInciso& compartilhada();

  std::int16_t ID = 0;    // given by the database
  std::int16_t Tipo = 0;  // key of the advance type
  QString Descricao;
  std::int16_t Prazo = 0;  // days
  QString Categoria;
  bool Ativo = false;

  // `operacao` 1 adds, any other value alters the row of ID. True when it was written.
  bool Save_inciso(std::int16_t operacao);
  // Deletes the row of ID. The caller has asked the operator already.
  void Del_inciso();
  // Lists all rows. Failures are told.
  void Lista_Inciso(ListView& lista);
  // Loads Categoria and Prazo of the row of ID; without one they keep their values.
  void Carrega_lista();

 private:
  void Grava_campos() const;
};

}  // namespace quartela
