// Joins the program's printed documents to the screens that ask for them.
#pragma once

namespace quartela {

void registra_relatorios();

}  // namespace quartela
