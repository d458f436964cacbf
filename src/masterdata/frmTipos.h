// The screen of the advance types, with the command to clone one.
#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>

namespace quartela {

namespace Ui {
class frmTipos;
}
class TelaCadastro;

class frmTipos : public QDialog {
  Q_OBJECT

 public:
  explicit frmTipos(QWidget* parent = nullptr);
  ~frmTipos() override;

  // True when the fields were complete and the row was written.
  bool Salvar();

 private:
  void inclui();
  void altera();
  void clona();
  bool salva(std::int16_t chave);
  void carrega_campos();

  std::unique_ptr<Ui::frmTipos> ui_;
  TelaCadastro* tela_;
};

}  // namespace quartela
