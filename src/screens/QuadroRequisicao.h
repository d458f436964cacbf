// The frame in which a requisition is entered: its fields, the lists that follow one another, the
// required fields, and what was typed since the last save. The windows that enter requisitions
// compose it.
#pragma once

#include <QGroupBox>
#include <QString>
#include <functional>
#include <memory>

#include "foundation/Fechamento.h"
#include "screens/Campos.h"

namespace quartela {

class ComboBox;
struct CamposRequisicao;

namespace Ui {
class QuadroRequisicao;
}

class QuadroRequisicao : public QGroupBox {
  Q_OBJECT

 public:
  explicit QuadroRequisicao(QWidget* parent = nullptr);
  ~QuadroRequisicao() override;

  // The single fields (ui_QuadroRequisicao.h).
  const Ui::QuadroRequisicao& campos() const { return *ui_; }

  // Names the number, which is never typed, and gives it a template; the empty one takes any text.
  void prepara_numero(const QString& rotulo, const QString& mascara);
  // Whether a secretariat offers its inactive orderers too; at first it does not.
  void oferece_inativos(bool oferece) { oferece_inativos_ = oferece; }

  // Fills the lists with all rows, inactive ones too, so that an old requisition can show them.
  void carrega_listas();
  // Shows all but the number. Error 9 for a key that its list does not hold; what stands behind it
  // in the frame is not shown then.
  void mostra(const CamposRequisicao& requisicao);

  // Whether all that is required is there. What is missing, or a date or an amount that is none, is
  // told, with the focus on it. Other required fields of the window count too.
  bool completo();
  // The places of person and type in their lists, in the place of their keys.
  void preenche_lugares(CamposRequisicao& requisicao) const;
  // All but the number. Errors: 13 and 6 for an amount that is none.
  void preenche(CamposRequisicao& requisicao) const;

  // Whether something was typed or picked since marca_salvo().
  bool tem_digitacao() const { return Conteudo_digitado(*this) != salvo_; }
  void marca_salvo() { salvo_ = Conteudo_digitado(*this); }

 private:
  void liga_listas();
  void cmbOrgao_Click();
  void cmbOrdenador_Click();
  void cmbResponsavel_Click();
  void cmbTipo_Click();
  void cmbficha_DropDown();
  // Fills `combo` anew and keeps what was chosen: a list that no longer offers it has it at its
  // end.
  void recarrega(ComboBox& combo, const std::function<void()>& carrega);

  std::unique_ptr<Ui::QuadroRequisicao> ui_;
  DatasRecusadas datas_;
  ValorMostrado valor_;
  DateTime data_carregada_;
  bool oferece_inativos_ = false;
  QString salvo_;  // the typed contents when last loaded or saved
};

}  // namespace quartela
