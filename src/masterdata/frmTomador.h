// The screen of the persons responsible for the money.
#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>

namespace quartela {

namespace Ui {
class frmTomador;
}
class TelaCadastro;

class frmTomador : public QDialog {
  Q_OBJECT

 public:
  explicit frmTomador(QWidget* parent = nullptr);
  ~frmTomador() override;

  // True when the fields were complete and the row was written.
  bool Salvar();

 private:
  void altera();
  bool salva(std::int16_t chave);

  std::unique_ptr<Ui::frmTomador> ui_;
  TelaCadastro* tela_;
};

}  // namespace quartela
