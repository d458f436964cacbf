#include "shell/frmOficce.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QProcess>
#include <QScreen>
#include <QShortcut>
#include <algorithm>

#include "foundation/Abertura.h"
#include "foundation/Estilo.h"
#include "foundation/Evento.h"
#include "foundation/Rotinas.h"
#include "platform/controls/ListView.h"
#include "platform/controls/OpenForms.h"
#include "platform/controls/StatusBar.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/ProgramFolder.h"
#include "platform/values/Convert.h"
#include "records/Principal.h"
#include "records/cRequisicao.h"
#include "records/cTodos.h"
#include "reports/Relatorios.h"
#include "screens/frmAviso.h"
#include "shell/Comandos.h"
#include "shell/Imagens.h"
#include "shell/ribbon/FaixaRibbon.h"

namespace quartela {
namespace {

constexpr int kAlturaRibbon = 1740;  // twips, as are all measures here
constexpr int kAlturaBarra = 360;
constexpr int kTopoLista = 1725;
constexpr int kFolgaLista = 20;
constexpr int kAlturaGuias = 360;
constexpr int kFolgaFiltro = 12;      // pixels
constexpr int kAvisoDepoisDe = 1000;  // milliseconds
constexpr std::int16_t kFiltroInicial = 1;
constexpr std::int16_t kTemaAzul = 1;

QString texto(const char* utf8) {
  return QString::fromUtf8(utf8);
}

// With the key that does the same, at the right of the menu.
QString linha_do_menu(const Comando& comando) {
  const char* const tecla = comando.tecla != nullptr ? comando.tecla : comando.atalho;
  return texto(comando.menu) + QLatin1Char('\t') + texto(tecla);
}

}  // namespace

frmOficce::frmOficce(QWidget* parent)
    : QWidget(parent),
      ImageList_(imagens_do_ribbon()),
      txtkey(new QLineEdit(this)),
      ribbon_(new FaixaRibbon(this)),
      lblFiltro_(new QLabel(ribbon_)),
      lista_(new ListView(this)),
      barra_(new StatusBar(this)) {
  setObjectName(QStringLiteral("frmOficce"));
  setWindowTitle(QStringLiteral("Quartela 2014"));
  resize(QSize(1340, 690).boundedTo(screen()->availableSize()));
  setMinimumSize(640, 360);
  OpenForms::setMainWindow(this);
  prepara_chave();
  prepara_filtro();
  prepara_lista();
  prepara_barra();
  liga_eventos();
  liga_atalhos();
  Form_Load();
}

frmOficce::~frmOficce() {
  registra_lista_principal(nullptr, nullptr);
}

void frmOficce::Form_Load() {
  MontaRibbon();
  registra_relatorios();
  registra_lista_principal(lista_, barra_, [this](std::int16_t codigo) { mostra_filtro(codigo); });
  FiltroStatus = kFiltroInicial;
  Lista_principal(kFiltroInicial);
  Timer1.start(kAvisoDepoisDe);
}

void frmOficce::MontaRibbon() {
  ribbon_->setObjectName(QStringLiteral("Ribbon"));
  ribbon_->setImageList(ImageList_.get());
  ribbon_->setTheme(kTemaAzul);
  ribbon_->setButtonCenter(false);
  for (const GuiaRibbon& guia : guias()) {
    ribbon_->AddTab(texto(guia.chave), texto(guia.titulo));
  }
  for (const CategoriaRibbon& categoria : categorias()) {
    ribbon_->AddCat(texto(categoria.chave), texto(categoria.guia), texto(categoria.titulo), false);
  }
  for (const Comando& botao : comandos()) {
    if (botao.categoria != nullptr) {
      ribbon_->AddButton(texto(botao.chave), texto(botao.categoria), texto(botao.titulo),
                         static_cast<std::int16_t>(botao.imagem));
    }
  }
  ribbon_->Refresh();
}

// What stands on the theme's colours is written in one that can be read on them.
void frmOficce::veste_tema() {
  const auto escreve = [](QLabel& rotulo, const QColor& cor) {
    QPalette cores = rotulo.palette();
    cores.setColor(QPalette::WindowText, cor);
    rotulo.setPalette(cores);
  };
  escreve(*lblFiltro_, ribbon_->ForeColor());
  const bool escuro = ribbon_->BackColor().lightness() < 128;
  for (QLabel* const painel : barra_->findChildren<QLabel*>()) {
    escreve(*painel, escuro ? QColor(Qt::white) : QColor(Estilo::kTinta));
  }
}

void frmOficce::prepara_lista() {
  lista_->setObjectName(QStringLiteral("ListView1"));
  lista_->setAccessibleName(QStringLiteral("Processos"));
  cTodos::prepara_movimento(*lista_);
  lista_->setIconList(icones_das_linhas(), kTamanhoIconeLinha);
}

void frmOficce::prepara_barra() {
  barra_->setObjectName(QStringLiteral("sbStatusBar"));
}

void frmOficce::prepara_chave() {
  txtkey->setObjectName(QStringLiteral("txtkey"));
  txtkey->setFocusPolicy(Qt::NoFocus);
  txtkey->hide();
}

// At the end of the row of tabs, where it is seen whatever tab is active.
void frmOficce::prepara_filtro() {
  lblFiltro_->setObjectName(QStringLiteral("lblFiltro"));
  lblFiltro_->setTextFormat(Qt::PlainText);
  lblFiltro_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lblFiltro_->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void frmOficce::liga_eventos() {
  liga(ribbon_, &FaixaRibbon::ButtonClick, this,
       [this](const QString& id) { Ribbon_ButtonClick(id); });
  liga(lista_, &ListView::itemClicked, this, &frmOficce::escolhe);
  liga(lista_, &ListView::itemActivated, this,
       [this](int linha) { na_linha(linha, QStringLiteral("1")); });
  liga(lista_, &ListView::columnClicked, this,
       [this](int coluna) { Ordena_lista(*lista_, coluna); });
  liga(lista_, &ListView::deleteRequested, this,
       [this](int linha) { na_linha(linha, QStringLiteral("2")); });
  liga(lista_, &ListView::contextMenuRequested, this, &frmOficce::mostra_menu);
  liga(&Timer1, &QTimer::timeout, this, &frmOficce::Timer1_Timer);
}

void frmOficce::liga_atalhos() {
  for (const Comando& c : comandos()) {
    if (c.atalho != nullptr) {
      auto* const atalho = new QShortcut(QKeySequence(QLatin1String(c.atalho)), this);
      liga(atalho, &QShortcut::activated, this, [this, &c] { executa(c, *this); });
    }
  }
}

void frmOficce::Atualiza_grid() {
  Lista_principal(FiltroStatus);
}

void frmOficce::filtra(std::int16_t filtro) {
  FiltroStatus = filtro;
  Atualiza_grid();
}

void frmOficce::mostra_filtro(std::int16_t codigo) {
  filtro_ = QStringLiteral("Exibindo: ") + nome_do_filtro(codigo);
  ajusta_filtro();
}

void frmOficce::ajusta_filtro() {
  const int altura = Estilo::pixels(kAlturaGuias, *this);
  const int esquerda = fim_das_guias() + kFolgaFiltro;
  lblFiltro_->setGeometry(esquerda, 0, std::max(0, ribbon_->width() - kFolgaFiltro - esquerda),
                          altura);
  lblFiltro_->setText(
      lblFiltro_->fontMetrics().elidedText(filtro_, Qt::ElideRight, lblFiltro_->width()));
}

int frmOficce::fim_das_guias() const {
  const ribbon::ElementTable& elementos = ribbon_->elements();
  const int ultima = elementos.count(ribbon::Element::TabMouse) - 1;
  return static_cast<int>(elementos.at(ribbon::Element::TabMouse, ultima).right() /
                          ribbon::kTwipsPerPixel);
}

void frmOficce::Ribbon_ButtonClick(const QString& id) {
  if (const Comando* const c = comando(id)) {
    executa(*c, *this);
  }
}

void frmOficce::escolhe(int linha) {
  Tag_principal = lista_->text(linha);
  txtkey->setText(Tag_principal);
}

// The row that a key or the menu acts on is the one that shows as chosen. A list just filled has
// none, although the window still remembers the one last clicked.
void frmOficce::na_linha(int linha, const QString& chave) {
  if (lista_->hasSelection()) {
    escolhe(linha);
    Ribbon_ButtonClick(chave);
  }
}

void frmOficce::Exclui_processo() {
  if (Tag_principal.isEmpty()) {
    Dialogs::exclamation(QStringLiteral("Você deve selecionar um item!!"));
    return;
  }
  cRequisicao& requisicao = cRequisicao::compartilhada();
  requisicao.Seq = Convert::toI32(QString(Tag_principal).remove(QLatin1Char('/')));
  if (Dialogs::confirm(QStringLiteral("Confirma exclusão do Cadastro: ") + Tag_principal +
                       QStringLiteral(" e seus relacionamentos."))) {
    requisicao.Del_req();
    Atualiza_grid();
  }
}

// A tick that comes while the alert is still up only stops the timer, and so does one that fails.
void frmOficce::Timer1_Timer() {
  try {
    if (OpenForms::find(QStringLiteral("frmAviso")) == nullptr) {
      mostra_frmAviso();
    }
  } catch (const RuntimeError&) {
    Timer1.stop();
  }
  Timer1.stop();
}

// Beside the rows, and where none shows as chosen, the menu has nothing that acts on one.
void frmOficce::mostra_menu(int linha, const QPoint& posicao) {
  const bool tem_linha = linha >= 0 && lista_->hasSelection();
  QMenu menu(this);
  bool da_linha = false;
  for (const Comando& c : comandos()) {
    if (c.menu == nullptr || (c.da_linha && !tem_linha)) {
      continue;
    }
    if (da_linha && !c.da_linha) {
      menu.addSeparator();
    }
    da_linha = c.da_linha;
    liga(menu.addAction(linha_do_menu(c)), &QAction::triggered, this,
         [this, &c, linha] { c.da_linha ? na_linha(linha, texto(c.chave)) : executa(c, *this); });
  }
  menu.exec(posicao);
}

void frmOficce::LoadEXE(const QString& caminho) {
  if (!QProcess::startDetached(nativePath(caminho), {})) {
    Dialogs::exclamation(
        QStringLiteral("O aplicativo não foi localizado !!! Verifique sua localização ..."), {});
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
  ajusta_filtro();
  veste_tema();
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
