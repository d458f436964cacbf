// The registration of a standalone requisition, which is saved and printed and starts no process.
// A saved one is not altered here any more: the next takes a new opening of the window.
#pragma once

#include <QWidget>
#include <memory>

#include "foundation/Fechamento.h"

namespace quartela {

namespace Ui {
class frmReqAvulso;
}

class frmReqAvulso : public QWidget {
  Q_OBJECT

 public:
  explicit frmReqAvulso(QWidget* parent = nullptr);
  ~frmReqAvulso() override;

 private:
  void Form_Load();
  void cmdAplicar_Click();
  void cmdImprimir_Click();

  std::unique_ptr<Ui::frmReqAvulso> ui_;
  Fechamento fechamento_;
};

}  // namespace quartela
