// The find dialog of the main window: lists the processes of a name or of a number.
#pragma once

#include <QDialog>
#include <memory>

namespace quartela {

namespace Ui {
class frmLocalizar;
}

class frmLocalizar : public QDialog {
  Q_OBJECT

 public:
  explicit frmLocalizar(QWidget* parent = nullptr);
  ~frmLocalizar() override;

 private:
  void Command1_Click();

  std::unique_ptr<Ui::frmLocalizar> ui_;
};

}  // namespace quartela
