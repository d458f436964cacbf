#include "foundation/Tamanho.h"

#include <QApplication>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>

#include "foundation/Evento.h"

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

  // Insists, while `insiste`, on the room that its contents need.
  void exige(bool insiste) {
    setMinimumSize(insiste ? widget()->minimumSizeHint().expandedTo(widget()->minimumSize())
                           : QSize(0, 0));
    for (QWidget* parte = this; !parte->isWindow(); parte = parte->parentWidget()) {
      parte->updateGeometry();
    }
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

// What the window needs is asked of its own layout: the room of two scroll areas beside each other
// adds up, that of pages behind each other does not.
void mostra_inteira(QWidget& janela) {
  QList<Rolagem*> rolagens;
  for (QScrollArea* const area : janela.findChildren<QScrollArea*>()) {
    if (auto* const rolagem = dynamic_cast<Rolagem*>(area)) {
      rolagens.append(rolagem);
    }
  }
  for (Rolagem* const rolagem : rolagens) {
    rolagem->exige(true);
  }
  const QSize precisa = janela.size().expandedTo(janela.minimumSizeHint());
  for (Rolagem* const rolagem : rolagens) {
    rolagem->exige(false);
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
