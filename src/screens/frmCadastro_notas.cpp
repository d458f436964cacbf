// The notes of the process screen: entry, list, money summary and the aids to typing.
#include <QSignalBlocker>
#include <algorithm>
#include <array>

#include "foundation/Erros.h"
#include "foundation/Escritorio.h"
#include "foundation/Rotinas.h"
#include "foundation/Textos.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "records/Gravacao.h"
#include "records/cAdiantamento.h"
#include "records/cPrestContas.h"
#include "screens/Campos.h"
#include "screens/frmCadastro.h"
#include "ui_QuadroRequisicao.h"
#include "ui_frmCadastro.h"

namespace quartela {
namespace {

const QString kZero = QStringLiteral("0,00");
constexpr QStringView kResumo = u"#,###.00";
constexpr qsizetype kNumeroEmpenho = 8;  // "00000/00"
constexpr QRgb kAzulValor = 0xFF0000FF;
constexpr QRgb kVermelhoValor = 0xFFD00000;

}  // namespace

// Whatever fails on the way, the rest of the page is brought up to date.
void frmCadastro::chega_prestacao() {
  for (QPushButton* const botao : {ui_->cmdOk, ui_->cmdAplicar, ui_->cmdImprimir}) {
    botao->hide();
  }
  ListView& lista = *ui_->lstEmpenho;
  Segue([&] {
    ui_->lblIdentificacao_27->setText(lista.text(lista.selectedRow()) + QStringLiteral(" - ") +
                                      campos().cmbResponsavel->text() + QStringLiteral(" - ") +
                                      campos().cmbTipo->text());
  });
  cPrestContas& notas = cPrestContas::compartilhada();
  Segue([&] { notas.processo = Convert::toI32(QString(Tag).remove(QLatin1Char('/'))); });
  const Money total = notas.Lista_Prest(*ui_->lstNotas);
  Segue([&] { mostra_total(total); });
  if (ui_->lstNotas->count() == 0) {
    Command1[kAlterar]->setEnabled(false);
  } else {
    for (QPushButton* const botao :
         {Command1[kAlterar], Command1[kImprimirPrestacao], ui_->cmdEncerrar}) {
      botao->setEnabled(true);
    }
  }
  Segue([&] { ui_->lblEmpenho->setText(Format(campos().mskvalor->value(), kResumo)); });
}

void frmCadastro::mostra_total(Money total) {
  if (!total.isZero()) {
    mostra_gasto(Format(total, kResumo));
  } else {
    mostra_gasto(kZero);
    ui_->lblNao_aplicado->setText(Format(campos().mskvalor->value(), kResumo));
  }
}

// The summary follows a change of the amount spent; the same amount once more changes nothing.
void frmCadastro::mostra_gasto(const QString& texto) {
  if (texto == ui_->lblGasto->text()) {
    return;
  }
  ui_->lblGasto->setText(texto);
  const Money gasto = Convert::toMoney(texto);
  const Money diferenca = campos().mskvalor->value() - gasto;
  ui_->lblNao_aplicado->setText(Format(diferenca, kResumo));
  QPalette cores = ui_->lblNao_aplicado->palette();
  cores.setColor(QPalette::WindowText, QColor(diferenca > Money() ? kAzulValor : kVermelhoValor));
  ui_->lblNao_aplicado->setPalette(cores);
  for (QPushButton* const botao :
       {Command1[kImprimirPrestacao], ui_->cmdEncerrar, Command1[kExportar]}) {
    botao->setEnabled(gasto > Money());
  }
}

std::int32_t frmCadastro::empenho_identificado() const {
  return Convert::toI32(
      ui_->lblIdentificacao_27->text().left(kNumeroEmpenho).remove(QLatin1Char('/')));
}

void frmCadastro::mostra_botoes(Nota nota) {
  enum class Passa { Liga, Desliga, DesligaSemNotas };
  struct Estado {
    Passa incluir, alterar, gravar, cancelar;
  };
  using enum Passa;
  static constexpr std::array<Estado, 4> kEstados{{
      {Desliga, Desliga, Liga, Liga},             // Incluindo
      {Desliga, DesligaSemNotas, Liga, Liga},     // Alterando
      {Liga, DesligaSemNotas, Desliga, Desliga},  // Gravada
      {Liga, Liga, Desliga, Desliga},             // Largada
  }};
  const Estado& estado = kEstados[static_cast<std::size_t>(nota)];
  const auto passa = [this](Botao botao, Passa como) {
    if (como != DesligaSemNotas || ui_->lstNotas->count() == 0) {
      Command1[botao]->setEnabled(como == Liga);
    }
  };
  passa(kIncluir, estado.incluir);
  passa(kAlterar, estado.alterar);
  passa(kGravar, estado.gravar);
  passa(kCancelar, estado.cancelar);
}

// The date stays, so that a run of notes of one day needs it typed once.
void frmCadastro::Incluir() {
  altera_nota_ = false;
  valor_nota_.esquece();
  data_nota_ = DateTime();
  ui_->fraNotas->setEnabled(true);
  limpa_nota();
  mostra_botoes(Nota::Incluindo);
  ui_->txtdatanota->setFocus();
  nota_salva_ = Conteudo_digitado(*ui_->fraNotas);
}

bool frmCadastro::nota_digitada() const {
  return ui_->fraNotas->isEnabled() && Conteudo_digitado(*ui_->fraNotas) != nota_salva_;
}

bool frmCadastro::larga_nota() const {
  return !nota_digitada() || Confirma_abandono();
}

void frmCadastro::limpa_nota() {
  ui_->txtordem->clear();
  ui_->txtrazao_social->clear();
  ui_->mskValor_nota->clear();
}

void frmCadastro::Alterar() {
  if (Convert::toI32(ui_->txtseq->text()) == 0 || !larga_nota()) {
    return;
  }
  altera_nota_ = true;
  cPrestContas& nota = cPrestContas::compartilhada();
  nota.Envia_dados(Le_numero(ui_->txtseq->text()));
  data_nota_ = nota.Data;
  ui_->txtdatanota->setText(Format(nota.Data, kDateFormat));
  ui_->txtordem->setText(nota.Ordem);
  {
    const QSignalBlocker sem_busca(ui_->txtrazao_social);
    ui_->txtrazao_social->setText(nota.Historico);
  }
  valor_nota_.mostra(*ui_->mskValor_nota, nota.Despesas, Format(nota.Despesas, kResumo));
  ui_->fraNotas->setEnabled(true);
  mostra_botoes(Nota::Alterando);
  ui_->txtdatanota->setFocus();
  nota_salva_ = Conteudo_digitado(*ui_->fraNotas);
}

void frmCadastro::Gravar() {
  Sob_trava(QStringLiteral("Função Save_reg"), [this] {
    if (nota_aceita()) {
      grava_nota();
    }
  });
}

bool frmCadastro::nota_aceita() {
  const auto recusa = [](const char* texto, QLineEdit* campo) {
    Dialogs::exclamation(QString::fromUtf8(texto));
    campo->setFocus();
    campo->selectAll();
    return false;
  };
  const QString digitada = ui_->txtdatanota->text();
  if (!digitada.isEmpty() && !Valida_data(digitada)) {
    return recusa("Data inválida!!", ui_->txtdatanota);
  }
  if (ui_->txtrazao_social->text().isEmpty()) {
    return recusa("Informe a Identificação da nota !!", ui_->txtrazao_social);
  }
  if (ui_->mskValor_nota->text().isEmpty()) {
    return recusa("Informe um valor !!", ui_->mskValor_nota);
  }
  if (Avisa_valor_recusado(*ui_->mskValor_nota)) {
    return false;
  }
  const ListView& lista = *ui_->lstEmpenho;
  const QString retirada = lista.subItem(lista.selectedRow(), cAdiantamento::kRetirada);
  if (!retirada.isEmpty() && Convert::toDateTime(digitada) < Convert::toDateTime(retirada)) {
    return recusa("A data da nota é menor que a da retirada !!", ui_->txtdatanota);
  }
  const QString fechar_em = lista.subItem(lista.selectedRow(), cAdiantamento::kFecharEm);
  if (!fechar_em.isEmpty() && ui_->Check2->isChecked() &&
      Convert::toDateTime(digitada) > Convert::toDateTime(fechar_em)) {
    return recusa("A data da nota é maior que a do fechamento !!", ui_->txtdatanota);
  }
  return true;
}

// A note that could not be written stays on the screen, to be saved again.
void frmCadastro::grava_nota() {
  cPrestContas& nota = cPrestContas::compartilhada();
  nota.Seq = Le_numero(ui_->txtseq->text());
  nota.processo = empenho_identificado();
  nota.Data = Com_hora_carregada(Convert::toDateTime(ui_->txtdatanota->text()), data_nota_);
  nota.Ordem = ui_->txtordem->text().trimmed();
  nota.Historico = Remove_acentos(ui_->txtrazao_social->text().trimmed());
  nota.Despesas = valor_nota_.valor(*ui_->mskValor_nota);
  nota.ID_Viagem = 0;
  if (!nota.Save_prest(altera_nota_ ? kAlteracao : kInclusao)) {
    return;
  }
  relista_notas();
  limpa_nota();
  ui_->fraNotas->setEnabled(false);
  mostra_botoes(Nota::Gravada);
  Command1[kIncluir]->setFocus();
}

void frmCadastro::relista_notas() {
  cPrestContas& notas = cPrestContas::compartilhada();
  notas.processo = empenho_identificado();
  mostra_gasto(Format(notas.Lista_Prest(*ui_->lstNotas), kAmountFormat));
}

void frmCadastro::Cancelar() {
  ui_->fraNotas->setEnabled(false);
  ui_->txtdatanota->clear();
  limpa_nota();
  ui_->txtseq->setText(QStringLiteral("0"));
  mostra_botoes(Nota::Largada);
  Command1[kIncluir]->setFocus();
}

void frmCadastro::mnExcluir_Click() {
  const int linha = ui_->lstNotas->selectedRow();
  const QString item = linha < 0 ? QString() : ui_->lstNotas->text(linha);
  if (item.isEmpty()) {
    Dialogs::stop(QStringLiteral("Informe um item !!!"));
    return;
  }
  if (!larga_nota()) {
    return;
  }
  if (!Dialogs::confirm(QStringLiteral("Confirma exclusão deste item? - ") + item)) {
    return;
  }
  cPrestContas& nota = cPrestContas::compartilhada();
  nota.Seq = Le_numero(item);
  nota.Del_prest();
  relista_notas();
  ui_->txtdatanota->clear();
  limpa_nota();
  nota_salva_ = Conteudo_digitado(*ui_->fraNotas);
}

// Warns of a note that has been entered already.
void frmCadastro::txtordem_Change(const QString& texto) {
  const int linha = ui_->lstNotas->findSubItem(texto);
  ui_->lblachou_0->setVisible(linha >= 0);
  ui_->lblachou_1->setVisible(linha >= 0);
  if (linha < 0) {
    return;
  }
  ui_->lstNotas->ensureVisible(linha);
  ui_->lstNotas->selectRow(linha);
  ui_->lblachou_0->setText(QLatin1Char(' ') +
                           ui_->lstNotas->subItem(linha, cPrestContas::kIdentificacao));
  ui_->lblachou_1->setText(QStringLiteral(" VALOR: ") +
                           ui_->lstNotas->subItem(linha, cPrestContas::kValor));
}

// Proposes the rest of a history that was entered before; typing on replaces it. What is being
// taken away is not proposed again, or it could never be deleted.
void frmCadastro::txtrazao_social_Change(const QString& texto) {
  QLineEdit& campo = *ui_->txtrazao_social;
  const int posicao = campo.cursorPosition();
  if (!ui_->Check1->isChecked() || posicao == 0 || apagando_) {
    return;
  }
  Sob_trava(QStringLiteral("Função cmbnome_Change"), [&] {
    const QString achado = Consulta_combo(QStringLiteral("PrestContas"), texto.left(posicao),
                                          QStringLiteral("HISTORICO"));
    const QSignalBlocker uma_vez(&campo);
    campo.setText(achado);
    const int fim = static_cast<int>(campo.text().size());
    campo.setSelection(fim, std::min(posicao, fim) - fim);
  });
}

}  // namespace quartela
