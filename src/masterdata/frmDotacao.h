// The screen of the budget allocations, with its two linked lists.
#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>

namespace quartela {

namespace Ui {
class frmDotacao;
}
class TelaCadastro;

class frmDotacao : public QDialog {
  Q_OBJECT

 public:
  explicit frmDotacao(QWidget* parent = nullptr);
  ~frmDotacao() override;

  // True when the fields were complete and the row was written.
  bool Salvar();

 private:
  void inclui();
  void altera();
  bool salva(std::int16_t chave);
  void carrega_secretarias();
  void cmbSetor_Click();

  std::unique_ptr<Ui::frmDotacao> ui_;
  TelaCadastro* tela_;
};

}  // namespace quartela
