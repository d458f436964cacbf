#include "foundation/Tamanho.h"

#include <QApplication>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>

namespace quartela::Tamanho {
namespace {

// Asks for as much room as its contents do, where the toolkit's own asks for a part of it.
class Rolagem : public QScrollArea {
 public:
  explicit Rolagem(QWidget& miolo) : QScrollArea(miolo.parentWidget()) {
    setObjectName(QStringLiteral("rolagem_") + miolo.objectName());
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(miolo.sizePolicy());
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* agora) {
      if (agora != nullptr && widget() != nullptr && widget()->isAncestorOf(agora)) {
        ensureWidgetVisible(agora);
      }
    });
  }

  QSize sizeHint() const override {
    return widget() == nullptr ? QScrollArea::sizeHint()
                               : widget()->sizeHint().expandedTo(widget()->minimumSize());
  }

 protected:
  // A page that grows, or a font that changes, is told to the window's layout.
  bool eventFilter(QObject* objeto, QEvent* evento) override {
    if (objeto == widget() && evento->type() == QEvent::LayoutRequest) {
      updateGeometry();
    }
    return QScrollArea::eventFilter(objeto, evento);
  }
};

}  // namespace

QSize maximo(const QWidget& janela) {
  return janela.screen()->availableSize() - kMoldura;
}

void cabe_na_tela(QWidget& janela) {
  if ((janela.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) != 0) {
    return;
  }
  const QSize cabe = janela.size().boundedTo(maximo(janela));
  if (cabe != janela.size()) {
    janela.resize(cabe);
  }
}

QScrollArea& rola(QWidget& miolo) {
  auto* const area = new Rolagem(miolo);
  QLayout* const lugar = miolo.parentWidget()->layout();
  const bool escondido = miolo.isHidden();
  delete lugar->replaceWidget(&miolo, area);
  area->setWidget(&miolo);
  miolo.setHidden(escondido);
  return *area;
}

}  // namespace quartela::Tamanho
