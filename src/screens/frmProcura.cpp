#include "screens/frmProcura.h"

#include <QMap>

#include "platform/controls/UpperCase.h"
#include "records/cTodos.h"
#include "ui_frmProcura.h"

namespace quartela {

std::int16_t ModoProcura = 0;

namespace {

constexpr std::int16_t kTab3 = 2;
constexpr std::int16_t kTransporte = 3;
constexpr int kTipo = 2;

constexpr std::int16_t kTodosAbertos = 1;
constexpr std::int16_t kAbertosPorNome = 2;
constexpr std::int16_t kAbertosPorTipo = 3;
constexpr std::int16_t kEncerrados = 4;

QMap<std::int16_t, RecebeEmpenho>& receptores() {
  static QMap<std::int16_t, RecebeEmpenho> registrados;
  return registrados;
}

void prepara_colunas(ListView& lista) {
  const auto coluna = [&lista](const char* titulo, int largura,
                               Qt::Alignment lado = Qt::AlignLeft) {
    lista.addColumn(QString::fromUtf8(titulo), ColumnWidth::pixels(largura), lado);
  };
  coluna("EMPENHO", 90);
  coluna("NOME", 230);
  coluna("TIPO", 150);
  coluna("VALOR", 90, Qt::AlignRight);
  coluna("RETIRADA", 90);
  coluna("FECHAR EM", 90);
  coluna("ABERTURA", 90);
  coluna("FUNÇÃO", 140);
  coluna("PROCESSO", 90);
}

}  // namespace

void registra_procura(std::int16_t modo, RecebeEmpenho recebe) {
  receptores().insert(modo, std::move(recebe));
}

frmProcura::frmProcura(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmProcura>()) {
  ui_->setupUi(this);
  prepara_colunas(*ui_->ListView1);
  typeUpperCase(*ui_->txtprocura);
  connect(ui_->Command3, &QAbstractButton::clicked, this, &frmProcura::Command3_Click);
  connect(ui_->ListView1, &ListView::itemClicked, this,
          [this](int linha) { Tag = ui_->ListView1->text(linha); });
  connect(ui_->ListView1, &ListView::itemActivated, this, &frmProcura::Command1_Click);
  connect(ui_->Command1, &QPushButton::clicked, this, &frmProcura::Command1_Click);
  connect(ui_->Command2, &QPushButton::clicked, this, &frmProcura::close);
  cTodos::compartilhada().Lista_Procura(*ui_->ListView1,
                                        ModoProcura == kTab3 ? kEncerrados : kTodosAbertos);
}

frmProcura::~frmProcura() = default;

// The search is always over the open empenhos, also for the window that lists the closed ones.
void frmProcura::Command3_Click() {
  cTodos& todos = cTodos::compartilhada();
  const bool por_nome = ui_->Option1->isChecked();
  (por_nome ? todos.Nome : todos.Tipo) = ui_->txtprocura->text();
  todos.Lista_Procura(*ui_->ListView1, por_nome ? kAbertosPorNome : kAbertosPorTipo);
}

void frmProcura::Command1_Click() {
  if (Tag.isEmpty()) {
    return;
  }
  entrega(linha_clicada());
  close();
}

EmpenhoEscolhido frmProcura::linha_clicada() const {
  EmpenhoEscolhido escolhido{.empenho = Tag, .subitens = {}};
  const int linha = ui_->ListView1->selectedRow();
  for (int n = 0; n < ui_->ListView1->columnCount(); ++n) {
    escolhido.subitens << (n == 0 || linha < 0 ? QString() : ui_->ListView1->subItem(linha, n));
  }
  return escolhido;
}

// An advance for small expenses bears no transport sheet.
void frmProcura::entrega(const EmpenhoEscolhido& escolhido) const {
  if (ModoProcura == kTransporte && escolhido.subitens.at(kTipo) == QStringLiteral("Miúdas")) {
    return;
  }
  if (const RecebeEmpenho& recebe = receptores().value(ModoProcura)) {
    recebe(escolhido);
  }
}

}  // namespace quartela
