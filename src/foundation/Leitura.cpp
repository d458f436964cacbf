#include "foundation/Leitura.h"

#include <QCoreApplication>
#include <QEvent>

#include "foundation/Banco.h"
#include "foundation/Erros.h"
#include "platform/controls/ScreenPointer.h"

namespace quartela {
namespace {

struct FechaTabela {
  FechaTabela() = default;
  FechaTabela(const FechaTabela&) = delete;
  FechaTabela& operator=(const FechaTabela&) = delete;
  ~FechaTabela() { Tabela.close(); }
};

struct Ampulheta {
  Ampulheta() { setScreenPointer(PointerShape::Hourglass); }
  Ampulheta(const Ampulheta&) = delete;
  Ampulheta& operator=(const Ampulheta&) = delete;
  ~Ampulheta() { setScreenPointer(PointerShape::Normal); }
};

}  // namespace

void Abre_consulta(const QString& comando) {
  Tabela.close();
  Tabela.open(comando, *Conexao, CursorType::Static, LockType::Optimistic);
}

void Le_tabela(const QString& comando, const std::function<void()>& linha) {
  Abre_consulta(comando);
  const FechaTabela fecha;
  for (; !Tabela.eof(); Tabela.moveNext()) {
    linha();
  }
}

void Lista_sob_trava(const QString& rotulo, const std::function<void()>& corpo) {
  Sob_trava(rotulo, [&corpo] {
    const Ampulheta ampulheta;
    const FechaTabela fecha;
    corpo();
  });
}

// Timers wait as well: the alert's, say, would read through Tabela in the middle of a listing.
void Cede_vez() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
}

}  // namespace quartela
