// A note that the responsible person presents against an empenho: one row of "PrestContas". Saves
// it with or without words, deletes one or all of an empenho, lists them with a running total,
// loads one.
//
// One instance serves the whole program and outlives the screens.
#pragma once

#include <QString>
#include <cstdint>

#include "platform/values/DateTime.h"
#include "platform/values/Money.h"

namespace quartela {

class ListView;

class cPrestContas {
 public:
  // The columns of its list, from the left.
  enum Coluna { kSeq, kData, kDocumento, kIdentificacao, kValor, kTotal, kColunas };

  static cPrestContas& compartilhada();
  // Gives a list the columns that Lista_Prest fills.
  static void prepara_lista(ListView& lista);

  std::int32_t Seq = 0;        // read by Le_numero wherever it is typed or shown
  std::int32_t ID_Viagem = 0;  // 0 or the key of a travel sheet
  std::int32_t processo = 0;   // the empenho number
  DateTime Data;
  QString Ordem;  // the fiscal document's number
  QString Historico;
  Money Despesas;

  // `codigo` 1 adds a note without a question, any other value asks and alters the row of Seq.
  // False only when the row could not be written, which the operator has been told.
  bool Save_prest(std::int16_t codigo);

  // Deletes the row of Seq. The caller has asked the operator already.
  void Del_prest();

  // Deletes all notes of `processo`, with the animation and no closing word.
  void Del_prest_todos();

  // Fills the list with the notes of `processo`, by date and key, with a running total; gives the
  // total in cents. After a failure the list holds the rows up to it.
  Money Lista_Prest(ListView& lista);

  // Adds a note with no question and no word; only a failure is told.
  void Save_import();

  // Whether `processo` has notes.
  bool Verifica_Prest();

  // Loads the note of that key; without one the properties keep their values. Raises what the
  // reading, Le_numero and the conversion of an empty column (13) raise.
  void Envia_dados(std::int32_t numero);

 private:
  void Grava_campos() const;
  void Le_campos();
};

}  // namespace quartela
