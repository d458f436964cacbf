#include "platform/controls/ScreenPointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace quartela {
namespace {

PointerShape current = PointerShape::Normal;

}  // namespace

void setScreenPointer(PointerShape shape) {
  if (shape == current) {
    return;
  }
  current = shape;
  if (shape == PointerShape::Hourglass) {
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

PointerShape screenPointer() {
  return current;
}

}  // namespace quartela
