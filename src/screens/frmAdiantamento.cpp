#include "screens/frmAdiantamento.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTabBar>
#include <QTextCharFormat>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "foundation/Erros.h"
#include "foundation/Estilo.h"
#include "foundation/Evento.h"
#include "foundation/Fechamento.h"
#include "foundation/Rotinas.h"
#include "foundation/Tamanho.h"
#include "masterdata/cTipos.h"
#include "platform/controls/ComboBox.h"
#include "platform/controls/ListView.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Clock.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "records/Gravacao.h"
#include "records/cAdiantamento.h"
#include "ui_frmAdiantamento.h"

namespace quartela {

std::int16_t AlteraEmpenho = 0;

namespace {

const QString kZero = QStringLiteral("0,00");

Value data_mostrada(const QString& texto) {
  return texto.isEmpty() ? Value() : Value(texto);
}

Value data_ou_vazia(const DatePicker& data) {
  return data.isEmpty() ? Value() : Value(Format(data.value(), kDateFormat));
}

// What is pasted may be anything; a number with decimals would be rounded to another one.
bool so_digitos(const QString& texto) {
  return !texto.isEmpty() && std::all_of(texto.cbegin(), texto.cend(), [](QChar letra) {
    return letra >= QLatin1Char('0') && letra <= QLatin1Char('9');
  });
}

// Behind the last two digits, which are the year's, stands a number from 1 on.
bool tem_numero(const QString& empenho) {
  constexpr std::int32_t kAnos = 100;
  return !empenho.isEmpty() && Convert::toI32(empenho) >= kAnos;
}

// The weekends' red would make an inactive calendar look active.
void apaga_fins_de_semana(QCalendarWidget& calendario) {
  QTextCharFormat apagado;
  apagado.setForeground(calendario.palette().brush(QPalette::Disabled, QPalette::Text));
  calendario.setWeekdayTextFormat(Qt::Saturday, apagado);
  calendario.setWeekdayTextFormat(Qt::Sunday, apagado);
}

}  // namespace

frmAdiantamento::frmAdiantamento(const ContextoEmpenho& contexto, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::frmAdiantamento>()),
      contexto_(contexto),
      novo_(AlteraEmpenho == 0) {
  ui_->setupUi(this);
  Tamanho::rola(*ui_->SSTab1);
  Estilo::destaca(*ui_->Command1);
  // There is one page: nothing to choose, and the first field has the focus.
  ui_->SSTab1->tabBar()->setFocusPolicy(Qt::NoFocus);
  for (DatePicker* const campo : {ui_->dtpabertura, ui_->dtpretirada, ui_->dtpfechar_em,
                                  ui_->dtpfechamento, ui_->dtpdevolucao}) {
    datas_.observa(*campo);
  }
  // What a reader of the screen would find nameless.
  const QList<QAbstractButton*> botoes = ui_->MonthView1->findChildren<QAbstractButton*>();
  for (QAbstractButton* const botao : botoes) {
    botao->setAccessibleName(ui_->MonthView1->accessibleName());
  }
  Form_Load();
  liga_eventos();
  carregado_ = Conteudo_digitado(*this);
}

// The field that loses the focus still reports to this window, not to what is left of it.
frmAdiantamento::~frmAdiantamento() {
  hide();
}

void frmAdiantamento::liga_eventos() {
  Seleciona_ao_entrar(*ui_->mskempenho);
  Completa_ao_sair(*ui_->mskempenho);
  Filtra_digitos(*ui_->mskOP);
  // The picture that opens its calendar belongs to the field.
  ui_->dtpfechamento->installEventFilter(this);
  const QList<QToolButton*> figuras = ui_->dtpfechamento->findChildren<QToolButton*>();
  for (QToolButton* const figura : figuras) {
    figura->installEventFilter(this);
  }
  liga(ui_->dtpretirada, &DatePicker::valueChanged, this, &frmAdiantamento::dtpretirada_Change);
  liga(ui_->MonthView1, &QCalendarWidget::clicked, this, &frmAdiantamento::MonthView1_DateClick);
  liga(ui_->MonthView1, &QCalendarWidget::activated, this, &frmAdiantamento::MonthView1_DateClick);
  liga(ui_->Command1, &QPushButton::clicked, this, &frmAdiantamento::Command1_Click);
  liga(ui_->Command2, &QPushButton::clicked, this, [this] { done(Rejected); });
}

void frmAdiantamento::Form_Load() {
  const DateTime hoje = Clock::today();
  ui_->MonthView1->setSelectedDate(QDate(hoje.year(), hoje.month(), hoje.day()));
  ui_->txtprocesso->setText(contexto_.processo);
  if (novo_) {
    prepara_novo();
  } else {
    Sob_trava(QStringLiteral("Função Carrega_dados"), [this] { Carrega_dados(); });
    ui_->Frame4->setEnabled(true);
  }
}

void frmAdiantamento::prepara_novo() {
  ui_->dtpabertura->setToday();
  for (DatePicker* const campo :
       {ui_->dtpretirada, ui_->dtpfechar_em, ui_->dtpfechamento, ui_->dtpdevolucao}) {
    campo->setValue(Value());
  }
  ui_->mskdev->setText(kZero);
  apaga_fins_de_semana(*ui_->MonthView1);
}

// The box of the annulled empenho goes by the column of the payment order, so that it opens without
// a tick whatever the empenho's mark is.
void frmAdiantamento::Carrega_dados() {
  const ListView& lista = *contexto_.lstEmpenho;
  const int linha = lista.selectedRow();
  const auto mostra = [&](DatePicker* campo, int n, const char* coluna) {
    Mostra_data(*campo, data_mostrada(lista.subItem(linha, n)));
    carregados_.append({campo, QLatin1String(coluna), Conteudo_campo(*campo)});
  };
  ui_->mskempenho->setText(contexto_.chave);
  mostra(ui_->dtpabertura, cAdiantamento::kAbertura, "ABERTURA");
  mostra(ui_->dtpretirada, cAdiantamento::kRetirada, "RETIRADA");
  mostra(ui_->dtpfechar_em, cAdiantamento::kFecharEm, "FECHAR_EM");
  mostra(ui_->dtpfechamento, cAdiantamento::kFechamento, "FECHAMENTO");
  ui_->mskdev->setText(lista.subItem(linha, cAdiantamento::kDevolucao));
  carregados_.append({ui_->mskdev, QStringLiteral("DEVOLUCAO"), Conteudo_campo(*ui_->mskdev)});
  mostra(ui_->dtpdevolucao, cAdiantamento::kDataDevolucao, "DATADEV");
  ui_->mskOP->setText(lista.subItem(linha, cAdiantamento::kOP));
  ui_->Check1->setChecked(lista.subItem(linha, cAdiantamento::kOP) == QStringLiteral("SIM"));
  ui_->mskempenho->setEnabled(false);
}

// The deadline is the withdrawal date and the days that the advance type allows. An emptied
// withdrawal date has none.
void frmAdiantamento::dtpretirada_Change() {
  cTipos& tipos = cTipos::compartilhada();
  const ComboBox& tipo = *contexto_.cmbTipo;
  tipos.Envia_dados(Convert::toI16(tipo.itemDataAt(tipo.listIndex())));
  const std::int16_t dias = Convert::toI16(tipos.Prazo.left(2));
  const Value retirada = ui_->dtpretirada->value();
  ui_->dtpfechar_em->setValue(retirada.isNull() ? Value()
                                                : Value(retirada.dateTime().addDays(dias)));
}

// The notes hang on the empenho's number. With more spent than was requested the amount stays.
void frmAdiantamento::dtpfechamento_Click() {
  cAdiantamento& adiantamento = cAdiantamento::compartilhada();
  adiantamento.processo = Convert::toI32(ui_->mskempenho->clipText());
  const Money diferenca = contexto_.mskvalor->value() - adiantamento.Soma_despesas();
  if (!diferenca.isNegative()) {
    ui_->mskdev->setText(Format(diferenca, kAmountFormat));
  }
}

void frmAdiantamento::MonthView1_DateClick(const QDate& dia) {
  const DateTime escolhido = DateTime::of(dia.year(), dia.month(), dia.day());
  ui_->dtpfechamento->setValue(escolhido);
  ui_->dtpdevolucao->setValue(escolhido);
  dtpfechamento_Click();
}

bool frmAdiantamento::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::MouseButtonRelease &&
      static_cast<QMouseEvent*>(evento)->button() == Qt::LeftButton) {
    Evento(this, &frmAdiantamento::dtpfechamento_Click)();
  }
  return QDialog::eventFilter(objeto, evento);
}

// Coming back from a box or a list of its own is no new activation: a box leaves the focus on the
// field that it spoke of.
void frmAdiantamento::changeEvent(QEvent* evento) {
  QDialog::changeEvent(evento);
  if (evento->type() != QEvent::ActivationChange || !novo_) {
    return;
  }
  if (!isActiveWindow()) {
    volta_de_caixa_ = QApplication::activeModalWidget() != nullptr ||
                      QApplication::activePopupWidget() != nullptr;
  } else if (!std::exchange(volta_de_caixa_, false)) {
    ui_->mskempenho->setFocus();
  }
}

void frmAdiantamento::Command1_Click() {
  // A date that is still being typed is taken or refused first.
  ui_->Command1->setFocus();
  if (datas_.avisa() || !aceita()) {
    return;
  }
  preenche_adiantamento();
  cAdiantamento& adiantamento = cAdiantamento::compartilhada();
  adiantamento.Save_ad(ui_->mskempenho->isEnabled() ? kInclusao : kAlteracao);
  adiantamento.Lista_Adiantamento(*contexto_.lstEmpenho);
  done(Accepted);
}

bool frmAdiantamento::recusa(const QString& texto, QWidget* campo) {
  Dialogs::exclamation(texto);
  campo->setFocus();
  return false;
}

bool frmAdiantamento::aceita() {
  if (!tem_numero(ui_->mskempenho->clipText())) {
    return recusa(QStringLiteral("Informe o número do Empenho !!"), ui_->mskempenho);
  }
  acerta_devolucao();
  if (ui_->dtpfechar_em->isEmpty()) {
    return recusa(
        QStringLiteral("Informe uma data para encerramento ?\n"
                       "Obs.: Campo automático. Para despesas com Cursos ou Viagens longas \n"
                       "distâncias contar 5 (cinco) dias do último dia de retorno do agente"),
        ui_->dtpfechar_em);
  }
  if (ui_->dtpretirada->isEmpty()) {
    return recusa(QStringLiteral("Informe uma data para a retirada ?"), ui_->dtpretirada);
  }
  if (ui_->dtpretirada->value().dateTime() > ui_->dtpfechar_em->value().dateTime()) {
    return recusa(QStringLiteral("A data de encerramento não pode ser menor que a da retirada !!"),
                  ui_->dtpfechar_em);
  }
  if (!so_digitos(ui_->mskOP->text())) {
    return recusa(QStringLiteral("Informe o número da OP !!"), ui_->mskOP);
  }
  return !Avisa_valor_recusado(*ui_->mskdev);
}

// Without a closing date nothing has been returned.
void frmAdiantamento::acerta_devolucao() {
  if (ui_->mskdev->isEmpty()) {
    ui_->mskdev->setText(kZero);
  } else if (ui_->dtpfechamento->isEmpty()) {
    ui_->mskdev->setText(kZero);
    ui_->dtpdevolucao->setValue(Value());
  }
}

void frmAdiantamento::preenche_adiantamento() {
  cAdiantamento& adiantamento = cAdiantamento::compartilhada();
  adiantamento.Empenho = Convert::toI32(ui_->mskempenho->clipText());
  adiantamento.processo = Convert::toI32(ui_->txtprocesso->text());
  adiantamento.Abertura = ui_->dtpabertura->value();
  adiantamento.Retirada = ui_->dtpretirada->value();
  adiantamento.Fechar = ui_->dtpfechar_em->value();
  adiantamento.Fechamento = data_ou_vazia(*ui_->dtpfechamento);
  adiantamento.Devolucao = ui_->mskdev->value();
  adiantamento.Datadev = data_ou_vazia(*ui_->dtpdevolucao);
  adiantamento.OP = Convert::toI32(ui_->mskOP->text());
  adiantamento.Nulo = ui_->Check1->isChecked() ? -1 : 0;
  adiantamento.Intocadas.clear();
  for (const CampoCarregado& carregado : carregados_) {
    if (Conteudo_campo(*carregado.campo) == carregado.conteudo) {
      adiantamento.Intocadas.append(carregado.coluna);
    }
  }
}

void frmAdiantamento::reject() {
  if (Conteudo_digitado(*this) == carregado_ || Confirma_abandono()) {
    QDialog::reject();
  }
}

}  // namespace quartela
