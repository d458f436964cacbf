#include "foundation/Aplicacao.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QLocale>
#include <QMimeData>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcutEvent>
#include <QStringList>
#include <QToolButton>

#include "foundation/Estilo.h"
#include "foundation/Lugar.h"
#include "foundation/Tamanho.h"
#include "platform/dialogs/Dialogs.h"

namespace quartela {
namespace {

bool tem_valor(const QObject* objeto) {
  return qobject_cast<const QComboBox*>(objeto) || qobject_cast<const QAbstractSpinBox*>(objeto) ||
         (qobject_cast<const QAbstractSlider*>(objeto) && !qobject_cast<const QScrollBar*>(objeto));
}

bool gira_sem_foco(const QObject* objeto, const QEvent& evento) {
  return evento.type() == QEvent::Wheel && tem_valor(objeto) &&
         !static_cast<const QWidget*>(objeto)->hasFocus();
}

bool edita_texto(const QObject* objeto) {
  return qobject_cast<const QLineEdit*>(objeto) || qobject_cast<const QPlainTextEdit*>(objeto);
}

// The key of a command that is not there, or not enabled, at the moment.
bool tecla_sem_comando(const QObject* objeto, const QEvent& evento) {
  if (evento.type() != QEvent::KeyPress || !edita_texto(objeto)) {
    return false;
  }
  const auto& tecla = static_cast<const QKeyEvent&>(evento);
  return tecla.modifiers() == Qt::AltModifier && !tecla.text().isEmpty() &&
         tecla.text().at(0).isPrint();
}

// The button that Enter is pressed on: it is the one meant, whatever the window's own Enter does.
QAbstractButton* botao_do_enter(QObject* objeto, const QEvent& evento) {
  const bool botao = qobject_cast<QPushButton*>(objeto) || qobject_cast<QToolButton*>(objeto);
  if (!botao || evento.type() != QEvent::KeyPress) {
    return nullptr;
  }
  const auto& tecla = static_cast<const QKeyEvent&>(evento);
  const bool enter = tecla.key() == Qt::Key_Return || tecla.key() == Qt::Key_Enter;
  const bool simples = (tecla.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  return enter && simples ? static_cast<QAbstractButton*>(objeto) : nullptr;
}

bool tem_texto(QClipboard::Mode modo) {
  const QMimeData* const dados = QGuiApplication::clipboard()->mimeData(modo);
  return dados != nullptr && dados->hasText() && !dados->text().isEmpty();
}

// The middle button and Ctrl+Shift+Insert paste what is selected elsewhere.
bool pede_selecao(const QEvent& evento) {
  if (evento.type() == QEvent::MouseButtonRelease) {
    return static_cast<const QMouseEvent&>(evento).button() == Qt::MiddleButton;
  }
  if (evento.type() != QEvent::KeyPress) {
    return false;
  }
  const auto& tecla = static_cast<const QKeyEvent&>(evento);
  return tecla.key() == Qt::Key_Insert &&
         tecla.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
}

// While nothing is selected anywhere, a memo of the toolkit would follow a selection that is not
// there.
bool cola_selecao_vazia(const QObject* objeto, const QEvent& evento) {
  if (!pede_selecao(evento)) {
    return false;
  }
  const bool memo = qobject_cast<const QPlainTextEdit*>(objeto) ||
                    qobject_cast<const QPlainTextEdit*>(objeto->parent());
  return memo && !tem_texto(QClipboard::Selection);
}

// The button whose key was pressed; null when several have it.
QAbstractButton* botao_da_tecla(QObject* objeto, const QEvent& evento) {
  auto* const botao = qobject_cast<QAbstractButton*>(objeto);
  const bool tecla = evento.type() == QEvent::Shortcut &&
                     !static_cast<const QShortcutEvent&>(evento).isAmbiguous();
  return tecla ? botao : nullptr;
}

// A window that opens finds its place again and fits its screen; one that closes leaves its place.
// Not one that hangs on another, such as a list or a tip, and not when the window system minimises.
void cuida_da_janela(QObject* objeto, const QEvent& evento) {
  const bool abre = evento.type() == QEvent::Show;
  if (!objeto->isWidgetType() || evento.spontaneous() || (!abre && evento.type() != QEvent::Hide)) {
    return;
  }
  QWidget& janela = *static_cast<QWidget*>(objeto);
  if (janela.windowType() != Qt::Window && janela.windowType() != Qt::Dialog) {
    return;
  }
  if (abre) {
    Tamanho::mostra_inteira(janela);
    Lugar::devolve(janela);
    Tamanho::cabe_na_tela(janela);
  } else {
    Lugar::guarda(janela);
  }
}

RuntimeError com_numero(const std::exception& erro) {
  const auto* const numerado = dynamic_cast<const RuntimeError*>(&erro);
  return numerado != nullptr ? *numerado
                             : RuntimeError::withDescription(ErrorNumber::InvalidProcedureCall,
                                                             QString::fromUtf8(erro.what()));
}

}  // namespace

Aplicacao::Aplicacao(int& argc, char** argv) : QApplication(argc, argv) {
  QLocale::setDefault(QLocale(QStringLiteral("pt_BR")));
  if (tradutor_.load(QStringLiteral("qtbase_pt_BR"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    installTranslator(&tradutor_);
  }
  setApplicationName(QStringLiteral("Quartela"));
  setApplicationVersion(versao().toString());
  setDesktopFileName(QStringLiteral("quartela"));
  Estilo::aplica(*this);
  setWindowIcon(Estilo::marca());
  installEventFilter(this);
}

bool Aplicacao::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& erro) {
    mostra_erro_sem_trava(erro);
  }
  return true;
}

bool Aplicacao::eventFilter(QObject* objeto, QEvent* evento) {
  cuida_da_janela(objeto, *evento);
  if (gira_sem_foco(objeto, *evento) || tecla_sem_comando(objeto, *evento)) {
    evento->ignore();
    return true;
  }
  if (cola_selecao_vazia(objeto, *evento)) {
    return true;
  }
  if (QAbstractButton* const botao = botao_do_enter(objeto, *evento)) {
    // A key that is held down presses once.
    if (!static_cast<QKeyEvent*>(evento)->isAutoRepeat()) {
      botao->click();
    }
    return true;
  }
  if (QAbstractButton* const botao = botao_da_tecla(objeto, *evento)) {
    if (botao->focusPolicy() != Qt::NoFocus) {
      botao->setFocus(Qt::ShortcutFocusReason);
    }
    botao->click();
    return true;
  }
  return QApplication::eventFilter(objeto, evento);
}

void mostra_erro_sem_trava(const std::exception& erro) {
  static QStringList fila;
  const RuntimeError numerado = com_numero(erro);
  const QString texto = QStringLiteral("Erro em tempo de execução %1:\n\n").arg(numerado.number()) +
                        numerado.description();
  if (fila.contains(texto)) {
    return;
  }
  fila.append(texto);
  if (fila.size() > 1) {
    return;
  }
  while (!fila.isEmpty()) {
    Dialogs::stop(fila.first(), {});
    fila.removeFirst();
  }
}

// The toolkit adds the program's folder when the application is made, and then repeats what was
// taken from its list before. So the folder is put into the list for a moment, to be taken out.
void Afasta_partes_da_pasta() {
  const char* const variavel = "QT_PLUGIN_PATH";
  const bool havia = qEnvironmentVariableIsSet(variavel);
  const QByteArray antes = qgetenv(variavel);
  const QString pasta =
      QFileInfo(QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath()).path();
  qputenv(variavel, QFile::encodeName(pasta) + ':' + antes);
  QStringList lugares = QCoreApplication::libraryPaths();
  lugares.removeAll(pasta);
  QCoreApplication::setLibraryPaths(lugares);
  if (havia) {
    qputenv(variavel, antes);
  } else {
    qunsetenv(variavel);
  }
}

QVersionNumber versao() {
  return QVersionNumber::fromString(QLatin1String(QUARTELA_VERSION));
}

}  // namespace quartela
