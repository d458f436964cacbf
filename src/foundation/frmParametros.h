// The paths of the database files and of the counter file; reachable before the login, so that they
// can be mended while no database can be opened. "Cancelar" gives up what was typed; Escape and the
// frame ask first.
#pragma once

#include <QDialog>
#include <QString>
#include <memory>

#include "foundation/Fechamento.h"

class QLineEdit;

namespace quartela {

namespace Ui {
class frmParametros;
}

class frmParametros : public QDialog {
  Q_OBJECT

 public:
  frmParametros();
  ~frmParametros() override;

 private:
  void cmdGravar_click();

  std::unique_ptr<Ui::frmParametros> ui_;
  QString carregado_;  // the contents when loaded
  Fechamento fechamento_;
};

void mostra_frmParametros();

}  // namespace quartela
