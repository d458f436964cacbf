// The deadline alert: the advances that are not closed and whose deadline has passed or is less
// than six days away. With none of them the window closes itself.
#pragma once

#include <QDialog>
#include <QTimer>
#include <memory>

namespace quartela {

namespace Ui {
class frmAviso;
}

class frmAviso : public QDialog {
  Q_OBJECT

 public:
  explicit frmAviso(QWidget* parent = nullptr);
  ~frmAviso() override;

 private:
  void Form_Load();

  std::unique_ptr<Ui::frmAviso> ui_;
  QTimer Timer1;
};

// Shows it over the active window until it is closed.
void mostra_frmAviso();

}  // namespace quartela
