#include "masterdata/TelaCadastro.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QVBoxLayout>

#include "foundation/Escape.h"
#include "foundation/Estilo.h"
#include "foundation/Evento.h"
#include "foundation/Rotinas.h"
#include "foundation/Tamanho.h"
#include "masterdata/ItemCadastro.h"
#include "platform/controls/ListView.h"
#include "platform/controls/TwoPageTab.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Convert.h"
#include "records/Gravacao.h"

namespace quartela {

std::int16_t Operacao = 0;

namespace {

constexpr int kConsulta = 0;
constexpr int kCadastro = 1;
constexpr std::int16_t kListaTodos = 0;
constexpr std::int16_t kListaProcurados = 1;
constexpr int kMargem = 12;
constexpr int kAlturaCampo = 28;
// A label with an underlined letter is drawn without kerning, a little wider than it measures.
constexpr int kFolgaRotulo = 2;

QPushButton* novo_botao(QWidget* dono, const BotaoCadastro& botao) {
  auto* const novo = new QPushButton(botao.texto, dono);
  novo->setObjectName(botao.nome);
  novo->setMinimumSize(96, 30);
  novo->setAutoDefault(false);
  return novo;
}

QHBoxLayout* linha_de_botoes(const QList<QPushButton*>& botoes) {
  auto* const linha = new QHBoxLayout;
  linha->setSpacing(8);
  linha->addStretch();
  for (QPushButton* botao : botoes) {
    linha->addWidget(botao);
  }
  return linha;
}

QWidget* nova_pagina(QWidget* dono, QVBoxLayout*& colunas) {
  auto* const pagina = new QWidget(dono);
  colunas = new QVBoxLayout(pagina);
  colunas->setContentsMargins(kMargem, kMargem, kMargem, kMargem);
  colunas->setSpacing(kMargem);
  return pagina;
}

}  // namespace

TelaCadastro::TelaCadastro(QWidget& janela, QWidget& campos, QLineEdit& ordem,
                           const AparenciaCadastro& aparencia, PassosCadastro passos)
    : QObject(&janela),
      janela_(janela),
      campos_(campos),
      ordem_(ordem),
      passos_(std::move(passos)),
      obrigatorios_(aparencia.obrigatorios),
      fechamento_(janela, [this] { return tem_digitacao(); }) {
  abas_ = new TwoPageTab(&janela);
  abas_->setObjectName(QStringLiteral("SSTab1"));
  // The other tab is always disabled: there is nothing to do on the tabs themselves.
  abas_->setFocusPolicy(Qt::NoFocus);
  abas_->tabBar()->setFocusPolicy(Qt::NoFocus);
  janela.layout()->removeWidget(&campos);
  abas_->addTab(monta_consulta(aparencia), QStringLiteral("Consulta"));
  abas_->addTab(monta_cadastro(campos, aparencia), QStringLiteral("Cadastro"));
  janela.layout()->addWidget(abas_);
  janela.layout()->addWidget(monta_rodape(aparencia));
  liga_comandos();
}

QWidget* TelaCadastro::monta_rodape(const AparenciaCadastro& aparencia) {
  auto* const rodape = new QFrame(&janela_);
  rodape->setObjectName(QStringLiteral("Frame2"));
  sair_ = novo_botao(rodape, aparencia.sair);
  QHBoxLayout* const linha = linha_de_botoes({sair_});
  linha->setContentsMargins(0, 0, 0, 0);
  rodape->setLayout(linha);
  return rodape;
}

QWidget* TelaCadastro::monta_consulta(const AparenciaCadastro& aparencia) {
  QVBoxLayout* colunas = nullptr;
  QWidget* const pagina = nova_pagina(&janela_, colunas);
  auto* const rotulo = new QLabel(aparencia.pesquisar_por, pagina);
  rotulo->setObjectName(QStringLiteral("Label_0"));
  pesquisa_ = new QLineEdit(pagina);
  pesquisa_->setObjectName(QStringLiteral("txtpesquisa"));
  pesquisa_->setAccessibleName(aparencia.pesquisar_por);
  pesquisa_->setMinimumHeight(kAlturaCampo);
  rotulo->setBuddy(pesquisa_);
  procura_ = novo_botao(pagina, {QStringLiteral("cmdProcura"), QStringLiteral("&Procurar")});
  auto* const procura = new QHBoxLayout;
  procura->setSpacing(8);
  procura->addWidget(rotulo);
  procura->addWidget(pesquisa_, 1);
  procura->addWidget(procura_);
  colunas->addLayout(procura);

  colunas->addWidget(monta_lista(pagina, aparencia), 1);
  incluir_ = novo_botao(pagina, aparencia.incluir);
  alterar_ = novo_botao(pagina, aparencia.alterar);
  comandos_ = linha_de_botoes({incluir_, alterar_});
  colunas->addLayout(comandos_);
  return pagina;
}

QWidget* TelaCadastro::monta_lista(QWidget* pagina, const AparenciaCadastro& aparencia) {
  lista_ = new ListView(pagina);
  lista_->setObjectName(QStringLiteral("ListView1"));
  lista_->setAccessibleName(janela_.windowTitle());
  lista_->setCheckBoxes(aparencia.marcas);
  for (const ColunaCadastro& coluna : aparencia.colunas) {
    lista_->addColumn(coluna.titulo, ColumnWidth::twips(coluna.largura));
  }
  item_ = new ItemCadastro(*lista_, aparencia.excluir, passos_.exclui,
                           [this] { passos_.lista(*lista_, kListaTodos); });
  return lista_;
}

QWidget* TelaCadastro::monta_cadastro(QWidget& campos, const AparenciaCadastro& aparencia) {
  QVBoxLayout* colunas = nullptr;
  QWidget* const pagina = nova_pagina(&janela_, colunas);
  for (QLabel* rotulo : campos.findChildren<QLabel*>()) {
    rotulo->setMinimumWidth(rotulo->sizeHint().width() + kFolgaRotulo);
  }
  colunas->addWidget(&campos);
  Tamanho::rola(campos);
  auto* const nota =
      new QLabel(QStringLiteral("( * ) Campos de preenchimento obrigatórios"), pagina);
  nota->setObjectName(QStringLiteral("Label_4"));
  colunas->addWidget(nota);
  colunas->addStretch();
  gravar_ = novo_botao(pagina, aparencia.gravar);
  cancelar_ = novo_botao(pagina, aparencia.cancelar);
  Estilo::destaca(*gravar_);
  colunas->addLayout(linha_de_botoes({gravar_, cancelar_}));
  return pagina;
}

void TelaCadastro::liga_comandos() {
  liga(procura_, &QPushButton::clicked, this, &TelaCadastro::pesquisa);
  liga(pesquisa_, &QLineEdit::returnPressed, procura_, &QPushButton::click);
  liga(item_, &ItemCadastro::ativado, this, &TelaCadastro::comeca_alteracao);
  liga(incluir_, &QPushButton::clicked, this, [this] { comeca_inclusao(passos_.inclui); });
  liga(alterar_, &QPushButton::clicked, this, &TelaCadastro::comeca_alteracao);
  liga(cancelar_, &QPushButton::clicked, this, &TelaCadastro::cancela);
  liga(gravar_, &QPushButton::clicked, this, &TelaCadastro::grava);
  liga(sair_, &QPushButton::clicked, &fechamento_, &Fechamento::fecha);
  Ao_escapar(janela_, Evento([this] { escapa(); }));
}

void TelaCadastro::pesquisa() {
  passos_.procura(pesquisa_->text());
  relista(kListaProcurados);
}

void TelaCadastro::relista(std::int16_t modo) {
  item_->relista([this, modo] { passos_.lista(*lista_, modo); });
}

QPushButton& TelaCadastro::acrescenta_botao(const BotaoCadastro& botao) {
  QPushButton* const novo = novo_botao(alterar_->parentWidget(), botao);
  comandos_->addWidget(novo);
  QWidget::setTabOrder(alterar_, novo);
  return *novo;
}

void TelaCadastro::carrega() {
  relista(kListaTodos);
  abas_->setTabEnabled(kCadastro, false);
  abas_->setCurrent(kConsulta);
  pesquisa_->setFocus();
}

void TelaCadastro::comeca_inclusao(const std::function<void()>& preenche) {
  Limpa_tela(*abas_->widget(kCadastro));
  pesquisa_->clear();
  ordem_.setText(kNumeracaoAutomatica);
  preenche();
  Operacao = kInclusao;
  vai_editar();
}

void TelaCadastro::comeca_alteracao() {
  if (!item_->tem_item()) {
    return;
  }
  ordem_.setText(item_->Tag());
  passos_.altera();
  Operacao = kAlteracao;
  vai_editar();
}

void TelaCadastro::vai_editar() {
  carregado_ = Conteudo_digitado(campos_);
  Troca_aba(*abas_);
}

bool TelaCadastro::tem_digitacao() const {
  return abas_->current() == kCadastro && Conteudo_digitado(campos_) != carregado_;
}

bool TelaCadastro::Salvar() {
  if (Campos_vazios(*abas_->widget(kCadastro))) {
    Dialogs::exclamation(obrigatorios_);
    return false;
  }
  if (ordem_.text() == kNumeracaoAutomatica) {
    ordem_.setText(QStringLiteral("0"));
  }
  if (!passos_.salva(Convert::toI16(ordem_.text()))) {
    return false;
  }
  Troca_aba(*abas_);
  return true;
}

void TelaCadastro::grava() {
  if (Salvar()) {
    relista(kListaTodos);
    lista_->setFocus();
  }
}

void TelaCadastro::cancela() {
  Troca_aba(*abas_);
  lista_->setFocus();
}

// Never more than one step back.
void TelaCadastro::escapa() {
  if (fechamento_.permite()) {
    (abas_->current() == kCadastro ? cancelar_ : sair_)->click();
  }
}

}  // namespace quartela
