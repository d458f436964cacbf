#include "shell/frmOficce.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QPainter>
#include <QProcess>
#include <QScreen>
#include <array>

#include "foundation/Banco.h"
#include "foundation/Estilo.h"
#include "foundation/Evento.h"
#include "foundation/Rotinas.h"
#include "foundation/UmaJanela.h"
#include "foundation/frmConfigura.h"
#include "masterdata/frmDotacao.h"
#include "masterdata/frmExecutor.h"
#include "masterdata/frmLei.h"
#include "masterdata/frmOrgao.h"
#include "masterdata/frmTipoDespesa.h"
#include "masterdata/frmTipos.h"
#include "masterdata/frmTomador.h"
#include "platform/controls/ListView.h"
#include "platform/controls/OpenForms.h"
#include "platform/controls/StatusBar.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/ProgramFolder.h"
#include "platform/values/Convert.h"
#include "records/Principal.h"
#include "records/cRequisicao.h"
#include "reports/Relatorios.h"
#include "screens/frmAviso.h"
#include "screens/frmCadastro.h"
#include "screens/frmLocalizar.h"
#include "screens/frmReqAvulso.h"
#include "shell/ComandosRibbon.h"
#include "shell/Imagens.h"
#include "shell/ribbon/FaixaRibbon.h"

namespace quartela {
namespace {

constexpr int kAlturaRibbon = 1740;  // twips, as are all measures here
constexpr int kAlturaBarra = 360;
constexpr int kTopoLista = 1725;
constexpr int kFolgaLista = 20;
constexpr int kAvisoDepoisDe = 1000;  // milliseconds
constexpr std::int16_t kFiltroInicial = 1;
constexpr std::int16_t kInclui = 0;
constexpr std::int16_t kAltera = -1;
constexpr std::int16_t kTemaAzul = 1;
const QString kAviso = QStringLiteral("Aviso");

struct ColunaLista {
  const char* titulo;
  int largura;  // hundredths of a millimetre
};

constexpr std::array kColunas{
    ColunaLista{"N°.", 2293},         ColunaLista{"EMPENHO", 2117},
    ColunaLista{"DATA", 2646},        ColunaLista{"SECRETARIA", 4410},
    ColunaLista{"RESPONSAVEL", 4410}, ColunaLista{"VALOR", 1940},
    ColunaLista{"TIPO", 3528},        ColunaLista{"ABERTURA", 2646},
    ColunaLista{"RETIRADA", 2646},    ColunaLista{"FECHAR EM", 2646},
    ColunaLista{"FECHAMENTO", 2646},  ColunaLista{"DIAS", 1411},
};
constexpr std::size_t kColunaValor = 5;

QString texto(const char* utf8) {
  return QString::fromUtf8(utf8);
}

// Closes the window where it is open.
template <typename Janela>
bool estava_aberta() {
  return FormAberto(QString::fromLatin1(Janela::staticMetaObject.className()).section(':', -1));
}

// The button of a window that is open closes it.
template <typename Janela>
void alterna() {
  if (!estava_aberta<Janela>()) {
    UmaJanela<Janela>::mostra();
  }
}

void inclui_processo() {
  if (!estava_aberta<frmCadastro>()) {
    ModoAlteracao = kInclui;
    UmaJanela<frmCadastro>::mostra();
  }
}

void altera_processo() {
  if (!estava_aberta<frmCadastro>() && !Tag_principal.isEmpty()) {
    ModoAlteracao = kAltera;
    UmaJanela<frmCadastro>::mostra();
  }
}

}  // namespace

frmOficce::frmOficce(QWidget* parent)
    : QWidget(parent),
      ImageList_(imagens_do_ribbon()),
      ribbon_(new FaixaRibbon(this)),
      lista_(new ListView(this)),
      barra_(new StatusBar(this)) {
  setObjectName(QStringLiteral("frmOficce"));
  setWindowTitle(QStringLiteral("Quartela 2014"));
  resize(QSize(1340, 690).boundedTo(screen()->availableSize()));
  setMinimumSize(640, 360);
  OpenForms::setMainWindow(this);
  prepara_lista();
  prepara_barra();
  liga_eventos();
  Form_Load();
}

frmOficce::~frmOficce() {
  registra_lista_principal(nullptr, nullptr);
}

void frmOficce::Form_Load() {
  MontaRibbon();
  registra_relatorios();
  registra_lista_principal(lista_, barra_);
  FiltroStatus = kFiltroInicial;
  Lista_principal(kFiltroInicial);
  Timer1.start(kAvisoDepoisDe);
}

void frmOficce::MontaRibbon() {
  ribbon_->setObjectName(QStringLiteral("Ribbon"));
  ribbon_->setImageList(ImageList_.get());
  ribbon_->setTheme(kTemaAzul);
  ribbon_->setButtonCenter(false);
  for (const GuiaRibbon& guia : kGuias) {
    ribbon_->AddTab(texto(guia.chave), texto(guia.titulo));
  }
  for (const CategoriaRibbon& categoria : kCategorias) {
    ribbon_->AddCat(texto(categoria.chave), texto(categoria.guia), texto(categoria.titulo), false);
  }
  for (const BotaoRibbon& botao : kBotoes) {
    ribbon_->AddButton(texto(botao.chave), texto(botao.categoria), texto(botao.titulo),
                       static_cast<std::int16_t>(botao.imagem));
  }
  ribbon_->Refresh();
}

void frmOficce::prepara_lista() {
  lista_->setObjectName(QStringLiteral("ListView1"));
  lista_->setAccessibleName(QStringLiteral("Processos"));
  for (std::size_t n = 0; n < kColunas.size(); ++n) {
    lista_->addColumn(texto(kColunas[n].titulo),
                      ColumnWidth::hundredthsOfMillimetre(kColunas[n].largura),
                      n == kColunaValor ? Qt::AlignRight : Qt::AlignLeft);
  }
  lista_->setIconList(icones_das_linhas(), kTamanhoIconeLinha);
}

void frmOficce::prepara_barra() {
  barra_->setObjectName(QStringLiteral("sbStatusBar"));
}

void frmOficce::liga_eventos() {
  connect(ribbon_, &FaixaRibbon::ButtonClick, this,
          Evento([this](const QString& id) { Ribbon_ButtonClick(id); }));
  connect(lista_, &ListView::itemClicked, this, [this](int linha) {
    Tag_principal = lista_->text(linha);
    txtkey_ = Tag_principal;
  });
  connect(lista_, &ListView::itemActivated, this,
          Evento([this] { Ribbon_ButtonClick(QStringLiteral("1")); }));
  connect(lista_, &ListView::columnClicked, this,
          [this](int coluna) { Ordena_lista(*lista_, coluna); });
  connect(lista_, &ListView::deleteRequested, this, Evento([this] { Exclui_processo(); }));
  connect(lista_, &ListView::contextMenuRequested, this, &frmOficce::mostra_menu);
  connect(&Timer1, &QTimer::timeout, this, &frmOficce::Timer1_Timer);
}

void frmOficce::Atualiza_grid() {
  Lista_principal(FiltroStatus);
}

void frmOficce::filtra(std::int16_t filtro) {
  FiltroStatus = filtro;
  Atualiza_grid();
}

void frmOficce::Ribbon_ButtonClick(const QString& id) {
  const auto comando = comandos().constFind(id);
  if (comando != comandos().constEnd()) {
    (*comando)(*this);
  }
}

const frmOficce::Comandos& frmOficce::comandos() {
  static const Comandos tabela{
      {QStringLiteral("0"), [](frmOficce&) { inclui_processo(); }},
      {QStringLiteral("1"), [](frmOficce&) { altera_processo(); }},
      {QStringLiteral("2"), [](frmOficce& janela) { janela.Exclui_processo(); }},
      {QStringLiteral("3"), [](frmOficce&) { mostra_frmAviso(); }},
      {QStringLiteral("4"), [](frmOficce&) { alterna<frmLocalizar>(); }},
      {QStringLiteral("6"), [](frmOficce&) { alterna<frmReqAvulso>(); }},
      {QStringLiteral("9"), [](frmOficce&) { alterna<frmExecutor>(); }},
      {QStringLiteral("10"), [](frmOficce&) { alterna<frmTomador>(); }},
      {QStringLiteral("11"), [](frmOficce&) { alterna<frmTipos>(); }},
      {QStringLiteral("12"), [](frmOficce&) { alterna<frmTipoDespesa>(); }},
      {QStringLiteral("13"), [](frmOficce&) { alterna<frmDotacao>(); }},
      {QStringLiteral("25"), [](frmOficce&) { alterna<frmOrgao>(); }},
      {QStringLiteral("15"), [](frmOficce&) { mostra_frmConfigura(); }},
      {QStringLiteral("18"), [](frmOficce& janela) { janela.filtra(4); }},
      {QStringLiteral("19"), [](frmOficce& janela) { janela.filtra(2); }},
      {QStringLiteral("20"), [](frmOficce& janela) { janela.filtra(3); }},
      {QStringLiteral("21"), [](frmOficce& janela) { janela.filtra(0); }},
      {QStringLiteral("22"), [](frmOficce& janela) { janela.filtra(1); }},
      {QStringLiteral("23"),
       [](frmOficce&) {
         Dialogs::information(QStringLiteral("Não disponivel no momento"), kAviso);
       }},
  };
  return tabela;
}

void frmOficce::Exclui_processo() {
  if (Tag_principal.isEmpty()) {
    Dialogs::exclamation(QStringLiteral("Você deve selecionar um item!!"), kAviso);
    return;
  }
  cRequisicao& requisicao = cRequisicao::compartilhada();
  requisicao.Seq = Convert::toI32(QString(Tag_principal).remove(QLatin1Char('/')));
  if (Dialogs::confirm(QStringLiteral("Confirma exclusão do Cadastro: ") + Tag_principal +
                           QStringLiteral(" e seus relacionamentos."),
                       kAviso)) {
    requisicao.Del_req();
    Atualiza_grid();
  }
}

// A tick that comes while the alert is still up only stops the timer.
void frmOficce::Timer1_Timer() {
  if (OpenForms::find(QStringLiteral("frmAviso")) == nullptr) {
    mostra_frmAviso();
  }
  Timer1.stop();
}

void frmOficce::mostra_menu(int, const QPoint& posicao) {
  QMenu menu(this);
  menu.addAction(QStringLiteral("&Alterar requisição"), this,
                 [this] { Ribbon_ButtonClick(QStringLiteral("1")); });
  menu.addAction(QStringLiteral("&Excluir requisição"), this, &frmOficce::Exclui_processo);
  menu.addSeparator();
  menu.addAction(QStringLiteral("&Incisos"), this, [] { alterna<frmLei>(); });
  menu.exec(posicao);
}

void frmOficce::LoadEXE(const QString& caminho) {
  if (!QProcess::startDetached(nativePath(caminho), {})) {
    Dialogs::exclamation(
        QStringLiteral("O aplicativo não foi localizado !!! Verifique sua localização ..."));
  }
  QCoreApplication::processEvents();
}

void frmOficce::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const auto pixels = [this](int twips) { return Estilo::pixels(twips, *this); };
  const int altura_ribbon = pixels(kAlturaRibbon);
  const int altura_barra = pixels(kAlturaBarra);
  ribbon_->setGeometry(0, 0, width(), altura_ribbon);
  lista_->setGeometry(0, pixels(kTopoLista), width() - pixels(kFolgaLista),
                      height() - altura_barra - altura_ribbon);
  barra_->setGeometry(0, height() - altura_barra, width(), altura_barra);
}

void frmOficce::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  pintor.fillRect(rect(), ribbon_->BackColor());
  pintor.drawPixmap(0, 0, ribbon_->LoadBackground());
}

void frmOficce::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::NoModifier) {
    ribbon_->enterKeyboard();
    return;
  }
  QWidget::keyPressEvent(event);
}

bool frmOficce::fecha_as_outras() {
  QList<QWidget*> abertas = OpenForms::all();
  abertas.removeAll(this);
  while (!abertas.isEmpty()) {
    if (!OpenForms::unload(abertas.takeLast())) {
      return false;
    }
  }
  return true;
}

// Every window closes, from the last opened to the first, then the database. A window that asks its
// operator and is kept open keeps the program open too.
void frmOficce::closeEvent(QCloseEvent* event) {
  Timer1.stop();
  if (!fecha_as_outras()) {
    event->ignore();
    return;
  }
  registra_lista_principal(nullptr, nullptr);
  Fecha_banco();
  event->accept();
  QCoreApplication::quit();
}

}  // namespace quartela
