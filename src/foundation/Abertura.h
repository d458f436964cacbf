// The beginning and the end of the work with a database file.
#pragma once

namespace quartela {

// Reads the paths, opens Conexao and shows the splash. A path that leads to no database (errors
// 3024 and 3044) shows the settings screen instead; any other failure ends it with nothing shown,
// and is noted for the next login (Acessos.h).
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
