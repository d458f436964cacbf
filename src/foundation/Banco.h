// The program-wide database objects: the one connection, the one shared recordset, the statement
// being assembled. Only the record classes and the common routines name them; a check holds every
// other file to that.
#pragma once

#include <QString>
#include <memory>

#include "platform/database/Connection.h"
#include "platform/database/Recordset.h"

namespace quartela {

// Never null: before Abre_banco and after Fecha_banco it is a closed connection (error 3704 at any
// use).
extern std::unique_ptr<Connection> Conexao;
extern Recordset Tabela;
extern QString Sql_atual;

}  // namespace quartela
