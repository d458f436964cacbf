// The screen of the legal clauses: one page, where the enabled controls tell what is being done.
#pragma once

#include <QDialog>
#include <QString>
#include <cstdint>
#include <memory>

#include "foundation/Fechamento.h"

namespace quartela {

namespace Ui {
class frmLei;
}
class ItemCadastro;

class frmLei : public QDialog {
  Q_OBJECT

 public:
  explicit frmLei(QWidget* parent = nullptr);
  ~frmLei() override;

 private:
  void monta_lista();
  void liga_comandos();

  void Combo1_DropDown();
  void Combo1_Click(int indice);
  // Shows the name of the key again when another one was typed over it.
  void Combo1_LostFocus();
  void inclui();
  void altera();
  void cancela();
  void grava();
  void escapa();
  bool tem_digitacao() const;

  void esvazia();
  void edita(bool editando);
  bool completo();
  void salva();

  std::unique_ptr<Ui::frmLei> ui_;
  ItemCadastro* item_ = nullptr;
  QString carregado_;  // what the fields held when their editing began
  QString tipo_;       // the name that belongs to the key shown
  Fechamento fechamento_;
};

}  // namespace quartela
