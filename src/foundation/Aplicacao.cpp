#include "foundation/Aplicacao.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QLibraryInfo>
#include <QLocale>
#include <QScrollBar>
#include <QStringList>

#include "foundation/Estilo.h"
#include "platform/dialogs/Dialogs.h"

namespace quartela {
namespace {

bool tem_valor(const QObject* objeto) {
  return qobject_cast<const QComboBox*>(objeto) || qobject_cast<const QAbstractSpinBox*>(objeto) ||
         (qobject_cast<const QAbstractSlider*>(objeto) && !qobject_cast<const QScrollBar*>(objeto));
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
  } catch (const RuntimeError& erro) {
    mostra_erro_sem_trava(erro);
  } catch (const std::exception& erro) {
    mostra_erro_sem_trava(RuntimeError::withDescription(ErrorNumber::InvalidProcedureCall,
                                                        QString::fromUtf8(erro.what())));
  }
  return true;
}

bool Aplicacao::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::Wheel && tem_valor(objeto) &&
      !static_cast<QWidget*>(objeto)->hasFocus()) {
    evento->ignore();
    return true;
  }
  return QApplication::eventFilter(objeto, evento);
}

void mostra_erro_sem_trava(const RuntimeError& erro) {
  static QStringList fila;
  const QString texto =
      QStringLiteral("Erro em tempo de execução %1:\n\n").arg(erro.number()) + erro.description();
  if (fila.contains(texto)) {
    return;
  }
  fila.append(texto);
  if (fila.size() > 1) {
    return;
  }
  while (!fila.isEmpty()) {
    Dialogs::stop(fila.first());
    fila.removeFirst();
  }
}

QVersionNumber versao() {
  return QVersionNumber::fromString(QLatin1String(QUARTELA_VERSION));
}

}  // namespace quartela
