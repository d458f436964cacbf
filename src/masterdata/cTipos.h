// The advance types of each secretariat, with budget element, law, materials and deadline: table
// "Tipos".
#pragma once

#include <QString>
#include <cstdint>

namespace quartela {

class ListView;

class cTipos {
 public:
  static cTipos& compartilhada();

  QString Secretaria;  // only what Lista_Tipos searches for in mode 1
  bool Ativo = false;
  QString Prazo;  // such as "30 dias"; its first two characters are days
  QString Materiais;
  QString Lei;
  QString Elemento;            // the whole text of the chosen entry
  std::int16_t Orgao = 0;      // IDORGAO: key of the secretariat
  std::int16_t Sequencia = 0;  // the key, given by the database
  QString Tipo;

  // `operacao` 1 adds, any other value alters the row of Sequencia. True when it was written.
  bool Save_tipos(std::int16_t operacao);
  // Deletes the row of Sequencia. The caller has asked the operator already.
  void Del_tipos();
  // Mode 0 lists all rows, mode 1 those whose secretariat's name contains Secretaria. Raises what
  // the reading raises.
  void Lista_Tipos(ListView& lista, std::int16_t modo);
  // Loads all properties of the row of that key but Ativo; without one they keep their values.
  // Raises what the reading raises.
  void Envia_dados(std::int16_t chave);

 private:
  void Grava_campos() const;
};

}  // namespace quartela
