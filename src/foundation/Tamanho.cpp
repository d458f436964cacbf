#include "foundation/Tamanho.h"

#include <QApplication>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <algorithm>

#include "foundation/Evento.h"

namespace quartela::Tamanho {
namespace {

constexpr int kMargensDosLados = 60;

// Asks for as much room as its contents do, where the toolkit's own asks for a part of it.
class Rolagem : public QScrollArea {
 public:
  explicit Rolagem(QWidget& miolo) : QScrollArea(miolo.parentWidget()) {
    setObjectName(QStringLiteral("rolagem_") + miolo.objectName());
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(miolo.sizePolicy());
    liga(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* agora) {
      if (agora != nullptr && widget() != nullptr && widget()->isAncestorOf(agora)) {
        ensureWidgetVisible(agora);
      }
    });
  }

  QSize sizeHint() const override {
    return widget() == nullptr ? QScrollArea::sizeHint()
                               : widget()->sizeHint().expandedTo(widget()->minimumSize());
  }

  // What it can be lower by than its contents need.
  int altura_escondida() const {
    const int inteira =
        std::max(widget()->minimumSizeHint().height(), widget()->minimumSize().height());
    return inteira - minimumSizeHint().height();
  }

 protected:
  // A page that is shown for the first time has its place only now.
  void resizeEvent(QResizeEvent* evento) override {
    QScrollArea::resizeEvent(evento);
    QWidget* const campo = QApplication::focusWidget();
    if (campo != nullptr && widget() != nullptr && widget()->isAncestorOf(campo)) {
      ensureWidgetVisible(campo);
    }
  }
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

// What stands above and below the contents adds to their height; beside them stand margins only, as
// the rows above and below are narrower or tell their width in the window's own.
void mostra_inteira(QWidget& janela) {
  QSize precisa = janela.size();
  for (const QScrollArea* const area : janela.findChildren<QScrollArea*>()) {
    if (const auto* const rolagem = dynamic_cast<const Rolagem*>(area)) {
      const QSize minima = janela.minimumSizeHint();
      const int largura = rolagem->widget()->minimumSizeHint().width() + kMargensDosLados;
      precisa = precisa.expandedTo(
          {std::max(minima.width(), largura), minima.height() + rolagem->altura_escondida()});
    }
  }
  if (precisa != janela.size()) {
    janela.resize(precisa);
  }
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
