#include "screens/frmCadastro.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTabBar>
#include <utility>

#include "foundation/Caminhos.h"
#include "foundation/Erros.h"
#include "foundation/Escape.h"
#include "foundation/Estilo.h"
#include "foundation/Evento.h"
#include "foundation/Rotinas.h"
#include "foundation/Tamanho.h"
#include "platform/controls/OpenForms.h"
#include "platform/controls/UpperCase.h"
#include "platform/values/Convert.h"
#include "records/Numeracao.h"
#include "records/Principal.h"
#include "records/cAdiantamento.h"
#include "records/cPrestContas.h"
#include "screens/Campos.h"
#include "screens/frmAdiantamento.h"
#include "ui_QuadroRequisicao.h"
#include "ui_frmCadastro.h"

namespace quartela {
namespace {

constexpr QRgb kVerdeClaro = 0xFFC8F0C8;
constexpr QRgb kAmareloClaro = 0xFFFFFF80;
constexpr QRgb kAzulValor = 0xFF0000FF;
constexpr QRgb kVerdeEscuro = 0xFF006400;

void pinta_botao(QPushButton& botao, QRgb cor) {
  QPalette cores = botao.palette();
  cores.setColor(QPalette::Button, QColor(cor));
  botao.setPalette(cores);
}

void pinta_texto(QLabel& rotulo, QRgb cor) {
  QPalette cores = rotulo.palette();
  cores.setColor(QPalette::WindowText, QColor(cor));
  rotulo.setPalette(cores);
}

void reserva_lugar(QWidget& campo) {
  QSizePolicy politica = campo.sizePolicy();
  politica.setRetainSizeWhenHidden(true);
  campo.setSizePolicy(politica);
}

void negrita(QWidget& campo) {
  QFont fonte = campo.font();
  fonte.setBold(true);
  campo.setFont(fonte);
}

}  // namespace

frmCadastro::frmCadastro()
    : ui_(std::make_unique<Ui::frmCadastro>()),
      fechamento_(*this, [this] { return tem_digitacao(); }) {
  ui_->setupUi(this);
  Tamanho::rola(*ui_->SSTab1);
  Command1 = {ui_->Command1_0, ui_->Command1_1, ui_->Command1_2, ui_->Command1_3,
              ui_->Command1_4, ui_->Command1_5, ui_->Command1_6};
  prepara_tela();
  prepara_listas();
  liga_janela();
  liga_empenho();
  liga_notas();
  liga_digitacao();
  Form_Load();
  ui_->fracadastro->marca_salvo();
  nota_salva_ = Conteudo_digitado(*ui_->fraNotas);
}

// The field that loses the focus still reports to this window, not to what is left of it.
frmCadastro::~frmCadastro() {
  hide();
}

void frmCadastro::prepara_tela() {
  Estilo::destaca(*ui_->cmdAplicar);
  ui_->fracadastro->prepara_numero(QStringLiteral("Processo"), QStringLiteral("####/##"));
  // One page is enabled at a time: there is nothing to choose, and the first field has the focus.
  ui_->SSTab1->tabBar()->setFocusPolicy(Qt::NoFocus);
  Escurece_inativos(*ui_->fraNotas);
  pinta_botao(*Command1[kImprimirPrestacao], kVerdeClaro);
  pinta_botao(*Command1[kExportar], qRgb(255, 255, 255));
  pinta_botao(*ui_->cmdEncerrar, kAmareloClaro);
  pinta_texto(*ui_->lblEmpenho, kAzulValor);
  pinta_texto(*ui_->lblGasto, kVerdeEscuro);
  pinta_texto(*ui_->lblNao_aplicado, kAzulValor);
  for (QWidget* const rotulo : {ui_->lblIdentificacao_27, ui_->lblEmpenho, ui_->lblGasto,
                                ui_->lblNao_aplicado, ui_->lblachou_0, ui_->lblachou_1}) {
    negrita(*rotulo);
  }
  for (QWidget* const campo :
       {static_cast<QWidget*>(ui_->pbr), static_cast<QWidget*>(ui_->lblachou_0),
        static_cast<QWidget*>(ui_->lblachou_1)}) {
    reserva_lugar(*campo);
  }
}

void frmCadastro::prepara_listas() {
  cAdiantamento::prepara_lista(*ui_->lstEmpenho);
  cPrestContas::prepara_lista(*ui_->lstNotas);
}

void frmCadastro::liga_janela() {
  liga(ui_->SSTab1, &QTabWidget::currentChanged, this, &frmCadastro::SSTab1_Click);
  liga(ui_->cmdPrestacao, &QPushButton::clicked, this, &frmCadastro::cmdPrestacao_Click);
  liga(ui_->cmdOk, &QPushButton::clicked, this, &frmCadastro::cmdOk_Click);
  liga(ui_->cmdAplicar, &QPushButton::clicked, this, &frmCadastro::cmdAplicar_Click);
  liga(ui_->cmdImprimir, &QPushButton::clicked, this, &frmCadastro::cmdImprimir_Click);
  liga(Command1[kSair], &QPushButton::clicked, this, [this] { close(); });
  Ao_escapar(*this, Evento([this] { close(); }));
}

void frmCadastro::liga_empenho() {
  ListView* const lista = ui_->lstEmpenho;
  lista->installEventFilter(this);
  lista->viewport()->installEventFilter(this);
  liga(lista, &ListView::itemClicked, this, [this, lista](int linha) {
    Tag = lista->text(linha);
    copia_chave();
  });
  liga(lista, &ListView::itemActivated, this, &frmCadastro::cmdalterar_Click);
  liga(lista, &ListView::columnClicked, this, [lista](int n) { Ordena_lista(*lista, n); });
  liga(ui_->cmdnovo, &QPushButton::clicked, this, &frmCadastro::cmdnovo_Click);
  liga(ui_->cmdalterar, &QPushButton::clicked, this, &frmCadastro::cmdalterar_Click);
  liga(ui_->cmdexcluir, &QPushButton::clicked, this, &frmCadastro::cmdexcluir_Click);
  liga(ui_->cmdEncerrar, &QPushButton::clicked, this, &frmCadastro::cmdEncerrar_Click);
}

void frmCadastro::liga_notas() {
  liga(Command1[kAlterar], &QPushButton::clicked, this, &frmCadastro::Alterar);
  liga(Command1[kGravar], &QPushButton::clicked, this, &frmCadastro::Gravar);
  liga(Command1[kIncluir], &QPushButton::clicked, this, &frmCadastro::Incluir);
  liga(Command1[kImprimirPrestacao], &QPushButton::clicked, this, &frmCadastro::imprime_prestacao);
  liga(Command1[kExportar], &QPushButton::clicked, this, &frmCadastro::Exporta);
  liga(Command1[kCancelar], &QPushButton::clicked, this, &frmCadastro::Cancelar);
  ListView* const lista = ui_->lstNotas;
  liga(lista, &ListView::itemClicked, this,
       [this, lista](int linha) { ui_->txtseq->setText(lista->text(linha)); });
  liga(lista, &ListView::columnClicked, this, [lista](int n) { Ordena_lista(*lista, n); });
  liga(lista, &ListView::deleteRequested, this, &frmCadastro::mnExcluir_Click);
  auto* const mnOpcoes = new QMenu(this);
  mnOpcoes->setObjectName(QStringLiteral("mnOpcoes"));
  QAction* const mnExcluir = mnOpcoes->addAction(QStringLiteral("&Excluir item selecionado"));
  mnExcluir->setObjectName(QStringLiteral("mnExcluir"));
  liga(mnExcluir, &QAction::triggered, this, &frmCadastro::mnExcluir_Click);
  liga(lista, &ListView::contextMenuRequested, this,
       [mnOpcoes](int, const QPoint& lugar) { mnOpcoes->popup(lugar); });
}

void frmCadastro::liga_digitacao() {
  for (QLineEdit* const campo : {ui_->txtdatanota, ui_->txtordem, ui_->txtrazao_social,
                                 static_cast<QLineEdit*>(ui_->mskValor_nota)}) {
    Seleciona_ao_entrar(*campo);
    Enter_avanca(*campo);
  }
  Filtra_data(*ui_->txtdatanota);
  typeUpperCase(*ui_->txtrazao_social);
  ui_->txtrazao_social->installEventFilter(this);
  liga(ui_->txtordem, &QLineEdit::textChanged, this, &frmCadastro::txtordem_Change);
  liga(ui_->txtordem, &QLineEdit::editingFinished, this, [this] {
    const QString proprio = Nome_proprio(ui_->txtordem->text());
    if (proprio != ui_->txtordem->text()) {
      ui_->txtordem->setText(proprio);
    }
  });
  liga(ui_->txtrazao_social, &QLineEdit::textChanged, this, &frmCadastro::txtrazao_social_Change);
}

void frmCadastro::Form_Load() {
  ui_->SSTab1->setTabEnabled(1, false);
  const bool tem_empenho = ui_->lstEmpenho->count() > 0;
  ui_->fracadastro->setEnabled(!tem_empenho);
  ui_->cmdAplicar->setEnabled(!tem_empenho);
  if (tem_empenho) {
    ui_->cmdOk->setEnabled(true);
  }
  if (ModoAlteracao == 0) {
    Novo_item(*campos().mskprocesso, caminhos.number);
    campos().dtpdata->setToday();
  } else {
    carrega_processo();
  }
}

void frmCadastro::carrega_processo() {
  ui_->fracadastro->oferece_inativos(true);
  ui_->fracadastro->carrega_listas();
  Sob_trava(QStringLiteral("Função Carrega_dados"), [this] { Carrega_dados(); });
  lista_empenhos();
  ui_->cmdImprimir->setEnabled(true);
  if (ui_->lstEmpenho->count() == 1) {
    ui_->cmdnovo->setEnabled(false);
    ui_->cmdPrestacao->setEnabled(true);
  }
}

void frmCadastro::SSTab1_Click(int pagina) {
  if (pagina == 0) {
    chega_requisicao();
  } else {
    chega_prestacao();
  }
}

void frmCadastro::chega_requisicao() {
  for (QPushButton* const botao : {ui_->cmdOk, ui_->cmdAplicar, ui_->cmdImprimir}) {
    botao->show();
  }
}

void frmCadastro::closeEvent(QCloseEvent* evento) {
  frmAdiantamento* const empenho = dialogo();
  evento->setAccepted(empenho == nullptr || empenho->close());
  if (evento->isAccepted() && std::exchange(atualiza_ao_sair_, false)) {
    Lista_principal(FiltroStatus);
  }
}

const Ui::QuadroRequisicao& frmCadastro::campos() const {
  return ui_->fracadastro->campos();
}

QString frmCadastro::numero_processo() const {
  return campos().mskprocesso->clipText();
}

std::int32_t frmCadastro::processo() const {
  const QString numero = numero_processo();
  return numero.isEmpty() ? 0 : Convert::toI32(numero);
}

bool frmCadastro::tem_digitacao() const {
  return ui_->fracadastro->tem_digitacao() || nota_digitada();
}

// A key or a click on the list of empenhos, beside its rows too, takes up the one last clicked.
bool frmCadastro::eventFilter(QObject* objeto, QEvent* evento) {
  const bool toca =
      evento->type() == QEvent::KeyPress || evento->type() == QEvent::MouseButtonPress;
  if (toca && (objeto == ui_->lstEmpenho || objeto == ui_->lstEmpenho->viewport())) {
    copia_chave();
  } else if (objeto == ui_->txtrazao_social && evento->type() == QEvent::KeyPress) {
    const auto* const tecla = static_cast<QKeyEvent*>(evento);
    apagando_ = tecla->key() == Qt::Key_Backspace || tecla->key() == Qt::Key_Delete ||
                tecla->matches(QKeySequence::Cut);
  }
  return QWidget::eventFilter(objeto, evento);
}

}  // namespace quartela
