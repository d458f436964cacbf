#include "foundation/Escape.h"

#include <QEvent>
#include <QKeyEvent>
#include <QWidget>

namespace quartela {
namespace {

// Not a shortcut: that would be taken before the list that is open over the window sees the key.
class Escape : public QObject {
 public:
  Escape(QWidget& janela, std::function<void()> acao) : QObject(&janela), acao_(std::move(acao)) {
    janela.installEventFilter(this);
  }

  bool eventFilter(QObject* objeto, QEvent* evento) override {
    if (evento->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(evento)->matches(QKeySequence::Cancel)) {
      acao_();
      return true;
    }
    return QObject::eventFilter(objeto, evento);
  }

 private:
  std::function<void()> acao_;
};

}  // namespace

void Ao_escapar(QWidget& janela, std::function<void()> acao) {
  new Escape(janela, std::move(acao));
}

}  // namespace quartela
