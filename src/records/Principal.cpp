#include "records/Principal.h"

#include <utility>

#include "platform/controls/ListView.h"
#include "records/cTodos.h"

namespace quartela {

std::int16_t ModoAlteracao = 0;
std::int16_t FiltroStatus = 1;
QString Tag_principal;

namespace {

ListView* lista_registrada = nullptr;
StatusBar* barra_registrada = nullptr;
std::function<void(std::int16_t)> ao_listar;

}  // namespace

void registra_lista_principal(ListView* lista, StatusBar* barra,
                              std::function<void(std::int16_t)> listada) {
  lista_registrada = lista;
  barra_registrada = barra;
  ao_listar = std::move(listada);
}

void Lista_principal(std::int16_t codigo) {
  if (lista_registrada != nullptr && barra_registrada != nullptr) {
    cTodos::compartilhada().Lista_Movimento(*lista_registrada, codigo, *barra_registrada);
    if (ao_listar) {
      ao_listar(codigo);
    }
  }
}

QString Subitem_principal(int n) {
  if (lista_registrada == nullptr) {
    return {};
  }
  return lista_registrada->subItem(lista_registrada->selectedRow(), n);
}

}  // namespace quartela
