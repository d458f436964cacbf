#include "platform/controls/Refusal.h"

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QToolTip>
#include <QWidget>

namespace quartela {
namespace {

constexpr QRgb kRefused = 0xFFC62828;

}  // namespace

void paintRefusal(QWidget& field) {
  QPainter painter(&field);
  painter.setPen(QPen(QColor(kRefused), 2));
  painter.drawRect(field.rect().adjusted(1, 1, -1, -1));
}

void tellRefusal(QWidget& field, const QString& why) {
  QToolTip::showText(field.mapToGlobal(field.rect().bottomLeft()), why, &field);
}

}  // namespace quartela
