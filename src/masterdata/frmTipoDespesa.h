// The screen of the expense purposes. An empty purpose is saved as it stands.
#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>

namespace quartela {

namespace Ui {
class frmTipoDespesa;
}
class TelaCadastro;

class frmTipoDespesa : public QDialog {
  Q_OBJECT

 public:
  explicit frmTipoDespesa(QWidget* parent = nullptr);
  ~frmTipoDespesa() override;

  // True when the fields were complete and the row was written.
  bool Salvar();

 private:
  void altera();
  bool salva(std::int16_t chave);

  std::unique_ptr<Ui::frmTipoDespesa> ui_;
  TelaCadastro* tela_;
};

}  // namespace quartela
