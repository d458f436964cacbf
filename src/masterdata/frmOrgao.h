// The screen of the secretariats.
#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>

namespace quartela {

namespace Ui {
class frmOrgao;
}
class TelaCadastro;

class frmOrgao : public QDialog {
  Q_OBJECT

 public:
  explicit frmOrgao(QWidget* parent = nullptr);
  ~frmOrgao() override;

  // True when the fields were complete and the row was written.
  bool Salvar();

 private:
  void altera();
  bool salva(std::int16_t chave);

  std::unique_ptr<Ui::frmOrgao> ui_;
  TelaCadastro* tela_;
};

}  // namespace quartela
