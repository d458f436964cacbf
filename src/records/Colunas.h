// The columns of a list, told once beside the class that fills it: title, width and side, and what
// of a statement's row stands in each.
#pragma once

#include <QString>
#include <span>

#include "platform/controls/ListView.h"

namespace quartela {

class Recordset;

struct ColunaLista {
  const char* titulo;
  ColumnWidth largura;
  Qt::Alignment lado = Qt::AlignLeft;
  int campo = 0;                      // its position in the statement's row
  const char16_t* formato = nullptr;  // null: as stored
  bool zero_vazio = false;            // 0 shows as nothing
};

// Gives the list its columns.
void prepara_colunas(ListView& lista, std::span<const ColunaLista> colunas);

// Which icon a row has; counted as the list's icons are.
using IconeDaLinha = int (*)(const Recordset& linhas, int linha);

// Shows all rows of Tabela and leaves it closed: the list keeps them as they came and formats a
// cell when it is needed. `colunas` must outlive the list.
void entrega_linhas(ListView& lista, std::span<const ColunaLista> colunas,
                    IconeDaLinha icone = nullptr);

}  // namespace quartela
