// The filling of the list of a reference table: key and columns of each row, as its class gives
// them.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace quartela {

class ListView;

// One row of the shared recordset as the list shows it.
struct LinhaCadastro {
  QStringList celulas;   // the text and the sub-items
  bool marcada = false;  // the check box, where the list has them
};

using LeLinha = std::function<LinhaCadastro()>;

// Hourglass, list emptied, one row for each row of `comando`, pointer back, Tabela closed. No trap:
// a failure leaves at once, with the hourglass still on.
void Preenche_lista(ListView& lista, const QString& comando, const LeLinha& le_linha);

// The same under a trap: a failure is told with the label that all these lists share, and the
// pointer stays the hourglass.
void Preenche_lista_sob_trava(ListView& lista, const QString& comando, const LeLinha& le_linha);

// A cell of the current row: a null shows as empty.
QString Celula(int coluna);
// The same through a format.
QString Celula(int coluna, QStringView formato);

}  // namespace quartela
