#include "platform/reporting/Picture.h"

#include <QFileInfo>
#include <QPainter>
#include <QSvgRenderer>

#include "platform/values/RuntimeError.h"

namespace quartela::reporting {

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
    drawing_->render(&painter, place);
  } else {
    painter.drawImage(place, image_);
  }
}

}  // namespace quartela::reporting
