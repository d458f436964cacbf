// The empenho of a process: number, payment order, dates, and its closing by hand. It creates the
// empenho or edits the one selected in the window that opened it.
#pragma once

#include <QDialog>
#include <QList>
#include <QString>
#include <cstdint>
#include <memory>

#include "screens/Campos.h"

namespace quartela {

class ComboBox;
class ListView;
class MoneyEdit;

namespace Ui {
class frmAdiantamento;
}

// How frmAdiantamento loads: 0 creates an empenho, any other value edits the selected one.
extern std::int16_t AlteraEmpenho;

// What the dialog reads in the window that opens it. The controls outlive the dialog.
struct ContextoEmpenho {
  QString processo;      // the process number as digits alone
  QString chave;         // the empenho to edit, as shown
  MoneyEdit* mskvalor;   // the amount requested
  ComboBox* cmbTipo;     // the advance type, whose deadline is proposed
  ListView* lstEmpenho;  // the selected row is edited; refilled after saving
};

class frmAdiantamento : public QDialog {
  Q_OBJECT

 public:
  explicit frmAdiantamento(const ContextoEmpenho& contexto, QWidget* parent = nullptr);
  ~frmAdiantamento() override;

  // Escape or the frame: what was typed and not saved is asked for. The buttons ask nothing.
  void reject() override;

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;
  void changeEvent(QEvent* evento) override;

 private:
  void liga_eventos();
  void Form_Load();
  void prepara_novo();
  void Carrega_dados();
  void dtpretirada_Change();
  void dtpfechamento_Click();
  void MonthView1_DateClick(const QDate& dia);
  void Command1_Click();
  bool aceita();
  bool recusa(const QString& texto, QWidget* campo);
  void acerta_devolucao();
  void preenche_adiantamento();

  // The list shows less than the row holds: what is not altered here is not written from here.
  struct CampoCarregado {
    const QWidget* campo;
    QString coluna;
    QString conteudo;
  };

  std::unique_ptr<Ui::frmAdiantamento> ui_;
  ContextoEmpenho contexto_;
  bool novo_;
  bool volta_de_caixa_ = false;  // a box or list of its own has the keyboard
  DatasRecusadas datas_;
  QList<CampoCarregado> carregados_;
  QString carregado_;  // the contents when loaded
};

}  // namespace quartela
