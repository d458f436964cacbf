// What the main window shares with the screens below it: its list of processes, the flags that it
// and they read, and the row last clicked.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>

namespace quartela {

class ListView;
class StatusBar;

// How frmCadastro loads: 0 includes a new process, -1 alters the one that Tag_principal names.
extern std::int16_t ModoAlteracao;

// Which processes the main list shows: 0 all, 1 begun and open, 2 open with an empenho, 3 closed,
// 4 requisition only.
extern std::int16_t FiltroStatus;

// The number of the row last clicked in the main list, as shown ("0012/14"); empty until one was.
// It is not cleared when the list is refilled, nor when that process is deleted.
extern QString Tag_principal;

// The main window lends its list and status bar; null takes them back. Not owned. `listada` is told
// the code of each listing.
void registra_lista_principal(ListView* lista, StatusBar* barra,
                              std::function<void(std::int16_t codigo)> listada = {});

// Refills the main list under a code of cTodos::Lista_Movimento; without a main window it does
// nothing.
void Lista_principal(std::int16_t codigo);

// Sub-item `n` of the row selected in the main list, which need not be the one last clicked; ""
// without a main window. Error 9 when its list is empty.
QString Subitem_principal(int n);

}  // namespace quartela
