// A standalone requisition: a printed request for money that starts no process. Holds the fields
// of one row of "ReqAvulso" in memory and saves it; nothing reads a row back or deletes it.
//
// One instance serves the whole program and outlives the screens. Its properties are not cleared
// between requisitions: a screen sets them before Save_req.
#pragma once

#include <cstdint>

#include "records/CamposRequisicao.h"

namespace quartela {

class cReqAvulso : public CamposRequisicao {
 public:
  static cReqAvulso& compartilhada();

  // Saves the row; `codigo` 1 adds it and puts the number that the table gives it into Seq, any
  // other value alters the row of Seq. True when it was written.
  bool Save_req(std::int16_t codigo);
};

}  // namespace quartela
