// The one instance of a window: made when it is first asked for, shown without modality, entered
// among the open forms, given up when it is closed; the next call then makes and loads a fresh one.
// `Janela` is a window with a default constructor, which is its loading; what that raises leaves no
// instance behind.
#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>

#include "platform/controls/OpenForms.h"

namespace quartela {

template <typename Janela>
class UmaJanela {
 public:
  // The window, loaded but perhaps not shown. It deletes itself when it is closed.
  static Janela& instancia() {
    if (!aberta()) {
      auto nova = std::make_unique<Janela>();
      nova->setAttribute(Qt::WA_DeleteOnClose);
      OpenForms::add(nova.get());
      janela_ = nova.release();
    }
    return *janela_;
  }

  // The window where there is one; null before its first use and from its closing on, although the
  // event loop deletes it only later.
  static Janela* aberta() {
    return janela_ && OpenForms::all().contains(janela_.data()) ? janela_.data() : nullptr;
  }

  static void mostra() { OpenForms::showInFront(instancia()); }

 private:
  static inline QPointer<Janela> janela_;
};

}  // namespace quartela
