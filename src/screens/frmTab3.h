// The older way to an accountability, in three steps: the empenho, the moment and place, the
// report. No command of the main window shows it. The report that it was made for is no longer
// there, so that its end is an error box.
#pragma once

#include <QDialog>
#include <memory>

namespace quartela {

struct EmpenhoEscolhido;

namespace Ui {
class frmTab3;
}

class frmTab3 : public QDialog {
  Q_OBJECT

 public:
  explicit frmTab3(QWidget* parent = nullptr);
  ~frmTab3() override;

 protected:
  void changeEvent(QEvent* evento) override;

 private:
  void liga_eventos();
  void mostra_aba(int aba);
  void TabStrip1_Click(int aba);
  void Command2_Click();
  void recebe_empenho(const EmpenhoEscolhido& escolhido);
  void cmdConcluir_Click();

  std::unique_ptr<Ui::frmTab3> ui_;
};

}  // namespace quartela
