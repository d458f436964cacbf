// Where the settings say that the program's files are.
#pragma once

#include <QString>

namespace quartela {

// The paths of section "Diretorio" of Config.ini, as Abre_banco read them last.
struct Caminhos {
  QString geral;
  QString number;
  QString produtos;
  QString servicos;
  QString transporte;
};
extern Caminhos caminhos;

}  // namespace quartela
