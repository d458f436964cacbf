// The names that stand on printed documents, the print options, and the remote server's fields.
#pragma once

#include <QDialog>
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

 protected:
  // There is no cancel button, and Escape is none: it would lose what was typed.
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void carrega();
  void Command1_click();

  std::unique_ptr<Ui::frmConfigura> ui_;
};

// Shows the screen. An error of its loading is told in the box of an untrapped error, and the
// program ends.
void mostra_frmConfigura();

}  // namespace quartela
