// The reading through the shared recordset, as every lookup, load and listing does it.
#pragma once

#include <QString>
#include <functional>

namespace quartela {

// Closes Tabela if it is open and opens it on `comando`, static and optimistic; the first row is
// current.
void Abre_consulta(const QString& comando);

// Opens Tabela on `comando`, calls `linha` with each row current, and closes Tabela, also when an
// error leaves. Raises what the opening and `linha` raise.
void Le_tabela(const QString& comando, const std::function<void()>& linha);

// A listing or a load under a trap: hourglass, `corpo`, pointer back and Tabela closed, whatever
// happens; an error goes to Erro_interno with `rotulo` once the pointer is back.
void Lista_sob_trava(const QString& rotulo, const std::function<void()>& corpo);

// Lets the window system draw what is waiting, once. Keys, clicks and timers wait, so that no event
// of a screen starts a second reading while Tabela is in use.
void Cede_vez();

}  // namespace quartela
