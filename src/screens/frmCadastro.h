// The registration of a process: its requisition, its empenho and the notes presented against it.
// On the first page the requisition is typed and the empenho kept, on the second the notes; from
// there the process is closed, reopened, printed and exported.
//
// The construction is the loading: ModoAlteracao says whether a new process is offered or the one
// of Tag_principal is shown. frmCadastro.cpp holds the opening and what belongs to the window as a
// whole; the themes have a file each.
#pragma once

#include <QString>
#include <QWidget>
#include <array>
#include <memory>

#include "foundation/Fechamento.h"
#include "platform/values/DateTime.h"
#include "platform/values/Money.h"
#include "screens/Campos.h"

class QPushButton;

namespace quartela {

class frmAdiantamento;

namespace Ui {
class QuadroRequisicao;
class frmCadastro;
}  // namespace Ui

class frmCadastro : public QWidget {
  Q_OBJECT

 public:
  frmCadastro();
  ~frmCadastro() override;

 protected:
  // The open dialog of the empenho closes first; kept open, it keeps this window open too. Then the
  // main list is brought up to date where it has become stale.
  void closeEvent(QCloseEvent* evento) override;
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  // Opening (frmCadastro.cpp)
  void prepara_tela();
  void prepara_listas();
  void liga_janela();
  void liga_empenho();
  void liga_notas();
  void liga_digitacao();
  void Form_Load();
  void carrega_processo();
  void SSTab1_Click(int pagina);
  void chega_requisicao();
  bool tem_digitacao() const;
  // The fields of the requisition.
  const Ui::QuadroRequisicao& campos() const;
  // The process number as digits alone, and as a number (0 while there is none).
  QString numero_processo() const;
  std::int32_t processo() const;

  // The requisition (frmCadastro_requisicao.cpp)
  void Carrega_dados();
  void cmdAplicar_Click();
  void avanca_contador();
  void oferece_outro_numero();
  bool aceita_outro_aberto();
  void cmdOk_Click();
  void cmdImprimir_Click();

  // The empenho (frmCadastro_empenho.cpp)
  void lista_empenhos();
  void copia_chave();
  // The number of the selected empenho as digits alone; error 9 without one.
  QString empenho_selecionado() const;
  void cmdnovo_Click();
  void cmdalterar_Click();
  void cmdexcluir_Click();
  bool falta_selecao();
  // Asks before the requisition can be altered no more; true when nothing was typed, or it may go.
  bool larga_requisicao();
  void mostra_empenho(bool altera);
  // The open dialog of the empenho; null for none.
  frmAdiantamento* dialogo() const;
  void cmdPrestacao_Click();
  void cmdEncerrar_Click();
  // True when the slip was printed, after which the window closes.
  bool encerra();
  void preenche_encerramento();
  void reativa();
  void marca_encerrado(bool encerrado);
  // What befalls a note, and with it the buttons of its entry.
  enum class Nota { Incluindo, Alterando, Gravada, Largada };
  void mostra_botoes(Nota nota);

  // The notes (frmCadastro_notas.cpp)
  void chega_prestacao();
  void mostra_total(Money total);
  void mostra_gasto(const QString& gasto);
  // The number of the empenho whose notes are shown.
  std::int32_t empenho_identificado() const;
  void Incluir();
  void Alterar();
  void Gravar();
  void Cancelar();
  void mnExcluir_Click();
  bool nota_aceita();
  void grava_nota();
  // Lists the notes anew and tells their total.
  void relista_notas();
  void limpa_nota();
  // Whether a note was typed and neither saved nor given up.
  bool nota_digitada() const;
  // Asks before a typed note goes; true when there is none, or it may go.
  bool larga_nota() const;
  void txtordem_Change(const QString& texto);
  void txtrazao_social_Change(const QString& texto);

  // What leaves the program (frmCadastro_saida.cpp)
  void imprime_prestacao();
  // False when it failed, which the operator has been told.
  bool imprime_guia();
  void Exporta();
  void exporta_para(const QString& arquivo);
  QString texto_exportado();

  std::unique_ptr<Ui::frmCadastro> ui_;
  // The buttons of the notes' page, and the window's "Sair".
  enum Botao {
    kSair,
    kAlterar,
    kGravar,
    kIncluir,
    kImprimirPrestacao,
    kExportar,
    kCancelar,
    kBotoes
  };
  std::array<QPushButton*, kBotoes> Command1{};
  bool encerrado_ = false;         // what cmdEncerrar offers to undo
  QString Tag;                     // the empenho last clicked, as shown
  bool atualiza_ao_sair_ = false;  // the main list has become stale
  bool altera_nota_ = false;       // "Gravar" alters the note of txtseq
  QString nota_salva_;             // the typed contents of the note when last loaded or saved
  ValorMostrado valor_nota_;
  DateTime data_nota_;     // of the note being altered
  bool apagando_ = false;  // the history is being shortened, not typed
  Fechamento fechamento_;
};

}  // namespace quartela
