#include "screens/frmProcura.h"

#include <QMap>
#include <utility>

#include "foundation/Evento.h"
#include "foundation/UmaJanela.h"
#include "platform/controls/UpperCase.h"
#include "records/cTodos.h"
#include "ui_frmProcura.h"

// A static library's pictures are taken up only when asked for, and that from outside of every
// namespace.
static void traz_imagens() {
  Q_INIT_RESOURCE(screens);
}

namespace quartela {

std::int16_t ModoProcura = 0;

namespace {

constexpr std::int16_t kTab3 = 2;
constexpr std::int16_t kTransporte = 3;

constexpr std::int16_t kTodosAbertos = 1;
constexpr std::int16_t kAbertosPorNome = 2;
constexpr std::int16_t kAbertosPorTipo = 3;
constexpr std::int16_t kEncerrados = 4;

QMap<std::int16_t, RecebeEmpenho>& receptores() {
  static QMap<std::int16_t, RecebeEmpenho> registrados;
  return registrados;
}

}  // namespace

void registra_procura(std::int16_t modo, RecebeEmpenho recebe) {
  receptores().insert(modo, std::move(recebe));
}

void mostra_frmProcura(std::int16_t modo, RecebeEmpenho recebe) {
  registra_procura(modo, std::move(recebe));
  const bool outro = modo != std::exchange(ModoProcura, modo);
  if (frmProcura* const aberta = UmaJanela<frmProcura>::aberta(); aberta != nullptr && outro) {
    aberta->atende_modo();
  }
  UmaJanela<frmProcura>::mostra();
}

frmProcura::frmProcura(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmProcura>()) {
  ui_->setupUi(this);
  traz_imagens();
  ui_->Command3->setIcon(QIcon(QStringLiteral(":/quartela/screens/icons/search.svg")));
  cTodos::prepara_procura(*ui_->ListView1);
  typeUpperCase(*ui_->txtprocura);
  liga(ui_->Command3, &QAbstractButton::clicked, this, &frmProcura::Command3_Click);
  liga(ui_->ListView1, &ListView::itemClicked, this, &frmProcura::escolhe);
  liga(ui_->ListView1, &ListView::itemActivated, this, [this](int linha) {
    escolhe(linha);
    Command1_Click();
  });
  liga(ui_->Command1, &QPushButton::clicked, this, &frmProcura::Command1_Click);
  liga(ui_->Command2, &QPushButton::clicked, this, &frmProcura::close);
  atende_modo();
}

frmProcura::~frmProcura() = default;

void frmProcura::atende_modo() {
  escolhido_ = {};
  ui_->txtprocura->clear();
  lista(ModoProcura == kTab3 ? kEncerrados : kTodosAbertos);
}

void frmProcura::lista(std::int16_t codigo) {
  ListView& linhas = *ui_->ListView1;
  cTodos::compartilhada().Lista_Procura(linhas, codigo);
  for (int linha = 0; linha < linhas.count(); ++linha) {
    if (linhas.text(linha) == escolhido_.empenho) {
      linhas.selectRow(linha);
      return;
    }
  }
}

void frmProcura::escolhe(int linha) {
  const ListView& linhas = *ui_->ListView1;
  escolhido_ = {.empenho = linhas.text(linha), .subitens = {QString()}};
  for (int n = 1; n < linhas.columnCount(); ++n) {
    escolhido_.subitens << linhas.subItem(linha, n);
  }
}

// The search is always over the open empenhos, also for the window that lists the closed ones.
void frmProcura::Command3_Click() {
  cTodos& todos = cTodos::compartilhada();
  const bool por_nome = ui_->Option1->isChecked();
  (por_nome ? todos.Nome : todos.Tipo) = ui_->txtprocura->text();
  lista(por_nome ? kAbertosPorNome : kAbertosPorTipo);
}

void frmProcura::Command1_Click() {
  if (escolhido_.empenho.isEmpty()) {
    return;
  }
  entrega();
  close();
}

// An advance for small expenses bears no transport sheet.
void frmProcura::entrega() const {
  if (ModoProcura == kTransporte &&
      escolhido_.subitens.at(cTodos::kProcuraTipo) == QStringLiteral("Miúdas")) {
    return;
  }
  if (const RecebeEmpenho& recebe = receptores().value(ModoProcura)) {
    recebe(escolhido_);
  }
}

}  // namespace quartela
