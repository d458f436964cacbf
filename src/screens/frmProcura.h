// The picker of empenhos: another window asks for one, the operator chooses, and the choice is
// handed to the receiver that the asking window has registered.
#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <memory>

namespace quartela {

namespace Ui {
class frmProcura;
}

// Which window asked last: 1 frmPrestContas, 2 frmTab3, 3 frmTransporte, 4 frmViagem.
extern std::int16_t ModoProcura;

// A row of the picker, as shown.
struct EmpenhoEscolhido {
  QString empenho;       // "00000/00"
  QStringList subitens;  // from 1 on, so at(0) is empty: name, type, amount, withdrawal, deadline,
                         // opening, post, process
};

using RecebeEmpenho = std::function<void(const EmpenhoEscolhido&)>;

// The window of that ModoProcura takes what is picked; an empty function takes it back.
void registra_procura(std::int16_t modo, RecebeEmpenho recebe);

// Shows the picker for the window of that ModoProcura. One that is open already lists anew for it,
// and what was picked for another window is forgotten.
void mostra_frmProcura(std::int16_t modo, RecebeEmpenho recebe);

class frmProcura : public QDialog {
  Q_OBJECT

 public:
  explicit frmProcura(QWidget* parent = nullptr);
  ~frmProcura() override;

  // Lists what the window of ModoProcura may pick from.
  void atende_modo();

 private:
  void Command1_Click();
  void Command3_Click();
  void escolhe(int linha);
  // Fills the list. The row that was picked is current again, where the list still holds it.
  void lista(std::int16_t codigo);
  void entrega() const;

  std::unique_ptr<Ui::frmProcura> ui_;
  EmpenhoEscolhido escolhido_;  // the row last clicked, whole; without an empenho until one is
};

}  // namespace quartela
