#include "platform/reporting/Picture.h"

#include <QFileInfo>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>

#include "platform/reporting/Layout.h"
#include "platform/values/RuntimeError.h"

namespace quartela::reporting {
namespace {

// What office printers put on paper.
constexpr double kDotsPerInch = 600;

}  // namespace

Picture Picture::load(const QString& file) {
  if (!QFileInfo::exists(file)) {
    throw RuntimeError(ErrorNumber::FileNotFound, file);
  }
  Picture picture;
  if (file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
    picture.drawing_ = std::make_shared<QSvgRenderer>(file);
  } else {
    picture.image_.load(file);
  }
  const bool usable = picture.drawing_ ? picture.drawing_->isValid() : !picture.image_.isNull();
  if (!usable) {
    throw RuntimeError(ErrorNumber::InvalidPicture, file);
  }
  return picture;
}

void Picture::paint(QPainter& painter, const QRectF& box) const {
  const QSizeF own = drawing_ ? drawing_->viewBoxF().size() : QSizeF(image_.size());
  QRectF place(QPointF(), own.scaled(box.size(), Qt::KeepAspectRatio));
  place.moveCenter(box.center());
  if (drawing_) {
    paintDrawing(painter, place);
  } else {
    painter.drawImage(place, image_);
  }
}

// A PDF, and a printer through it, keeps dots once for all pages but would repeat each line of a
// drawing on every one of them.
void Picture::paintDrawing(QPainter& painter, const QRectF& place) const {
  if (painter.paintEngine()->type() != QPaintEngine::Pdf) {
    drawing_->render(&painter, place);
    return;
  }
  painter.setRenderHint(QPainter::LosslessImageRendering);
  painter.drawImage(place, dots(place.size()));
}

const QImage& Picture::dots(const QSizeF& size) const {
  const QSize wanted = (size * kDotsPerInch / kTwipsPerInch).toSize();
  if (dots_.size() != wanted) {
    dots_ = QImage(wanted, QImage::Format_ARGB32_Premultiplied);
    dots_.fill(Qt::transparent);
    QPainter painter(&dots_);
    drawing_->render(&painter);
  }
  return dots_;
}

}  // namespace quartela::reporting
