// The screen of the expense orderers.
#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>

namespace quartela {

namespace Ui {
class frmExecutor;
}
class TelaCadastro;

class frmExecutor : public QDialog {
  Q_OBJECT

 public:
  explicit frmExecutor(QWidget* parent = nullptr);
  ~frmExecutor() override;

  // True when the fields were complete and the row was written.
  bool Salvar();

 private:
  void inclui();
  void altera();
  bool salva(std::int16_t chave);
  void carrega_secretarias();

  std::unique_ptr<Ui::frmExecutor> ui_;
  TelaCadastro* tela_;
};

}  // namespace quartela
