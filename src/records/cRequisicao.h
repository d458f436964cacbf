// A requisition: the request for an advance that starts a process. Holds the fields of one row of
// "Requisicao" in memory, saves, deletes and loads it.
//
// One instance serves the whole program and outlives the screens. Its properties are not cleared
// between processes: a screen sets all of them before Save_req, or loads them with Envia_dados. Seq
// is the process number: yearly counter times 100 plus the two-digit year. Secretaria is filled by
// Envia_dados only.
#pragma once

#include <cstdint>

#include "records/CamposRequisicao.h"

namespace quartela {

class cRequisicao : public CamposRequisicao {
 public:
  static cRequisicao& compartilhada();

  // Saves the row of Seq; `codigo` 1 adds it, any other value alters it. True when it was written.
  bool Save_req(std::int16_t codigo);

  // Deletes the row of Seq with all that hangs on it. The caller has asked the operator already.
  void Del_req();

  // Whether the table holds a row of Seq, this one or another's. Raises what the reading raises.
  bool Numero_tomado() const;

  // Whether Tomador has a requisition of type Finalidade whose advance is not closed. One without
  // an advance counts as open. Raises what the reading raises.
  bool Verifica_registro();

  // Loads the row of that process number; without one the properties keep their values.
  // Raises what Le_numero raises, and what the reading and the conversion of an empty column (13)
  // raise, with the screen's pointer still an hourglass.
  void Envia_dados(std::int32_t numero);

 private:
  void Grava_campos() const;
  void Le_campos();
};

}  // namespace quartela
