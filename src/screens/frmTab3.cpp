#include "screens/frmTab3.h"

#include <QEvent>

#include "foundation/Erros.h"
#include "foundation/Estilo.h"
#include "foundation/Evento.h"
#include "foundation/Rotinas.h"
#include "platform/values/Clock.h"
#include "platform/values/Format.h"
#include "records/Impressao.h"
#include "screens/Campos.h"
#include "screens/frmProcura.h"
#include "ui_frmTab3.h"

namespace quartela {
namespace {

constexpr std::int16_t kModoProcura = 2;
constexpr int kUltimaAba = 2;
// Twips.
constexpr int kLargura = 5835;
constexpr int kAltura = 4290;

// The columns of the picker.
constexpr int kNome = 1;
constexpr int kTipo = 2;

// The process of an empenho.
QString comando_cabeca(const QString& empenho) {
  return QStringLiteral(
             "SELECT Requisicao.VALOR, Requisicao.SEQ, Adiantamento.EMPENHO, "
             "Adiantamento.ABERTURA, Adiantamento.RETIRADA, "
             "Adiantamento.DATADEV, Adiantamento.DEVOLUCAO, Executor.NOME, Executor.FUNCAO "
             "FROM (Executor INNER JOIN Requisicao ON Executor.ORDEM = Requisicao.ORGAO) "
             "INNER JOIN Adiantamento ON Requisicao.SEQ = Adiantamento.PROCESSO "
             "Where Adiantamento.EMPENHO = ") +
         empenho;
}

QString comando_notas(const QString& empenho) {
  return QStringLiteral(
             "SELECT PrestContas.DATA, PrestContas.ORDEM, PrestContas.HISTORICO, "
             "PrestContas.DESPESAS, Requisicao.VALOR "
             "FROM Requisicao INNER JOIN (Adiantamento INNER JOIN PrestContas "
             "ON Adiantamento.EMPENHO = PrestContas.PROCESSO) "
             "ON Requisicao.SEQ = Adiantamento.PROCESSO Where PrestContas.Processo = ") +
         empenho + QStringLiteral(" ORDER BY PrestContas.DATA;");
}

}  // namespace

frmTab3::frmTab3(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmTab3>()) {
  ui_->setupUi(this);
  ui_->txtmomento->setText(Format(Clock::today(), kDateFormat));
  ui_->txthora->setText(Format(Clock::now(), u"HH:mm:ss"));
  mostra_aba(0);
  TabStrip1_Click(0);
  liga_eventos();
}

frmTab3::~frmTab3() {
  registra_procura(kModoProcura, {});
}

void frmTab3::liga_eventos() {
  Completa_ao_sair(*ui_->mskempenho);
  Filtra_data(*ui_->txtmomento);
  liga(ui_->TabStrip1, &QTabWidget::currentChanged, this, &frmTab3::TabStrip1_Click);
  liga(ui_->Command2, &QPushButton::clicked, this, &frmTab3::Command2_Click);
  liga(ui_->cmdVoltar, &QPushButton::clicked, this,
       [this] { mostra_aba(ui_->TabStrip1->currentIndex() - 1); });
  liga(ui_->cmdAvancar, &QPushButton::clicked, this,
       [this] { mostra_aba(ui_->TabStrip1->currentIndex() + 1); });
  liga(ui_->cmdConcluir, &QPushButton::clicked, this, &frmTab3::cmdConcluir_Click);
  liga(ui_->Command1, &QPushButton::clicked, this, &QDialog::close);
}

void frmTab3::changeEvent(QEvent* evento) {
  QDialog::changeEvent(evento);
  if (evento->type() == QEvent::ActivationChange && isActiveWindow()) {
    resize(Estilo::pixels(kLargura, *this), Estilo::pixels(kAltura, *this));
  }
}

// The operator goes on in the page's first field, or with the button that is next.
void frmTab3::mostra_aba(int aba) {
  ui_->TabStrip1->setCurrentIndex(aba);
  const QList<QWidget*> primeiros{ui_->mskempenho, ui_->txtmomento, ui_->cmdConcluir};
  primeiros.at(aba)->setFocus();
}

// However the page was reached, the buttons are those of its step.
void frmTab3::TabStrip1_Click(int aba) {
  ui_->cmdVoltar->setEnabled(aba > 0);
  ui_->cmdAvancar->setEnabled(aba < kUltimaAba);
  ui_->cmdConcluir->setEnabled(aba == kUltimaAba);
  (aba < kUltimaAba ? ui_->cmdAvancar : ui_->cmdConcluir)->setDefault(true);
}

void frmTab3::Command2_Click() {
  mostra_frmProcura(kModoProcura,
                    [this](const EmpenhoEscolhido& escolhido) { recebe_empenho(escolhido); });
}

void frmTab3::recebe_empenho(const EmpenhoEscolhido& escolhido) {
  ui_->mskempenho->setText(escolhido.empenho);
  ui_->lblststus->setText(escolhido.subitens.at(kNome) + QStringLiteral(" - ") +
                          escolhido.subitens.at(kTipo));
}

void frmTab3::cmdConcluir_Click() {
  Sob_trava(kFuncaoImprimir, [this] {
    const QString empenho = ui_->mskempenho->value();
    const QString momento = ui_->txtmomento->text() + QStringLiteral(" - ") + ui_->txthora->text();
    imprime({.relatorio = Relatorio::PrestacaoAnterior,
             .comando = comando_notas(empenho),
             .campos = {{QStringLiteral("Data2"), comando_cabeca(empenho)},
                        {QStringLiteral("Field23"), momento},
                        {QStringLiteral("Field24"), ui_->txtlocal->text()},
                        {QStringLiteral("Field25"), ui_->txtatipicidade->text()}}});
  });
}

}  // namespace quartela
