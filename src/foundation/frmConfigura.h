// The names that stand on printed documents, the print options, and the remote server's fields.
//
// There is no cancel button: closing the window by its frame discards what was changed, Escape asks
// first.
#pragma once

#include <QDialog>
#include <QString>
#include <memory>

class QLineEdit;

namespace quartela {

namespace Ui {
class frmConfigura;
}

class frmConfigura : public QDialog {
  Q_OBJECT

 public:
  // Reads the eight keys. A check box whose key is no 16-bit number raises the conversion's error.
  frmConfigura();
  ~frmConfigura() override;

 private:
  void carrega();
  void Command1_click();
  void escapa();

  std::unique_ptr<Ui::frmConfigura> ui_;
  QString carregado_;  // the contents when loaded
};

// Shows the screen. An error of its loading is told in the box of an untrapped error, and the
// program ends.
void mostra_frmConfigura();

}  // namespace quartela
