// The program-wide database objects: the one connection, the one shared recordset, the statement
// being assembled. Only the record classes, the common routines and the routines below name them.
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

// The paths of section "Diretorio" of Config.ini, as Abre_banco read them last.
struct Caminhos {
  QString geral;
  QString number;
  QString produtos;
  QString servicos;
  QString transporte;
};
extern Caminhos caminhos;

// Reads the paths, opens Conexao and shows the splash. A path that leads to no database (errors
// 3024 and 3044) shows the settings screen instead; any other failure ends it with nothing shown.
void Abre_banco();

// Puts a fresh, open connection on the file in force into Conexao. Raises what Connection::open
// does.
void Abre_conexao();

// For a file that was moved, replaced or deleted under the program: asks the operator whether to
// open the one at the path anew, and does so. Where that fails it is told and all stays as it was.
void Oferece_reabrir();

// Closes Tabela and Conexao and gives them up.
void Fecha_banco();

}  // namespace quartela
