// The commands of the main window, each told once: the ribbon, the menu beside the list, the
// shortcuts and the filters are made from this table.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <span>

namespace quartela {

class frmOficce;

struct GuiaRibbon {
  const char* chave;
  const char* titulo;
};

struct CategoriaRibbon {
  const char* chave;
  const char* guia;
  const char* titulo;
};

struct Comando {
  const char* chave;
  const char* categoria = nullptr;       // of the ribbon; null where it has no button there
  const char* titulo = nullptr;          // the button's two lines
  int imagem = 0;                        // the button's, counted from 1
  void (*acao)(frmOficce&) = nullptr;    // null for a filter, and for a window still to come
  std::optional<std::int16_t> filtro{};  // the value of FiltroStatus that it sets
  const char* menu = nullptr;            // its line in the menu of the list; null where it has none
  const char* tecla = nullptr;           // what the menu tells of a key that the list itself takes
  const char* atalho = nullptr;          // a key for the whole window
  bool da_linha = false;                 // the menu offers it on a row only
};

// In the order in which they stand on the screen. Keys are not in numeric order, and the images
// follow neither.
std::span<const GuiaRibbon> guias();
std::span<const CategoriaRibbon> categorias();
std::span<const Comando> comandos();

// The command of that key; null where there is none.
const Comando* comando(const QString& chave);

// Does what the command is there for; nothing for a window still to come.
void executa(const Comando& comando, frmOficce& janela);

// What the list shows under a code of cTodos::Lista_Movimento, in the words of the filter's button
// or of the search.
QString nome_do_filtro(std::int16_t codigo);

}  // namespace quartela
