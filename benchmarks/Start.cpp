// From the start of the process to a painted window.
#include <QApplication>
#include <QEvent>
#include <QProcess>
#include <QPushButton>
#include <QVBoxLayout>

#include "benchmarks/Measure.h"
#include "foundation/Aplicacao.h"
#include "foundation/frmLogin.h"

namespace quartela::bench {
namespace {

// Ends the program once `window` has been painted.
class LeaveWhenPainted : public QObject {
 public:
  explicit LeaveWhenPainted(QWidget& window) : QObject(&window) { window.installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
  }
};

void runChild(const QString& mode) {
  if (QProcess::execute(QCoreApplication::applicationFilePath(), {mode}) != 0) {
    qFatal("the child %s failed", qPrintable(mode));
  }
}

}  // namespace

int showLoginOnce(int argc, char** argv) {
  Aplicacao application(argc, argv);
  frmLogin login;
  LeaveWhenPainted leave(login);
  login.show();
  return Aplicacao::exec();
}

int showEmptyWindowOnce(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  QVBoxLayout layout(&window);
  layout.addWidget(new QPushButton(QStringLiteral("Entrar")));
  LeaveWhenPainted leave(window);
  window.show();
  return QApplication::exec();
}

void benchStart() {
  const auto [ours, peer] = medians(
      15, [] { runChild(QStringLiteral("--show-login")); },
      [] { runChild(QStringLiteral("--show-empty")); });
  print({.measure = QStringLiteral("start to a painted login | an empty window with a button"),
         .ours = ours / 1000,
         .peer = peer / 1000,
         .target = 1.5,
         .unit = QStringLiteral("ms")});
}

}  // namespace quartela::bench
