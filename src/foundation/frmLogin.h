// The window that the program starts with: the password, and the database file of this run.
#pragma once

#include <QDialog>
#include <memory>

namespace quartela {

namespace Ui {
class frmLogin;
}

class frmLogin : public QDialog {
  Q_OBJECT

 public:
  frmLogin();
  ~frmLogin() override;

 protected:
  // The password field is yellow while it has the focus.
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  void cmdOk_click();
  void cmdCancel_click();
  void cmdUp_click();
  void recusa_senha();
  void grava_caminhogeral();
  void ajusta_altura(bool aberta);
  // How the last login ended, where it ended with nothing shown.
  void mostra_ultimo_acesso();

  std::unique_ptr<Ui::frmLogin> ui_;
};

// Shows the login window, once what a killed program has left in its folder is cleared; what main()
// does.
void mostra_frmLogin();

}  // namespace quartela
