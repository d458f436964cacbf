// A picture of a report: lines and areas that stay sharp at every size (SVG), or dots.
#pragma once

#include <QImage>
#include <QRectF>
#include <QString>
#include <memory>

class QPainter;
class QSvgRenderer;

namespace quartela::reporting {

class Picture {
 public:
  // Errors: 53 there is no such file, 481 it is no picture.
  static Picture load(const QString& file);

  // As large as the box, in twips, allows without being distorted, in its middle.
  void paint(QPainter& painter, const QRectF& box) const;

 private:
  void paintDrawing(QPainter& painter, const QRectF& place) const;
  const QImage& dots(const QSizeF& size) const;

  std::shared_ptr<QSvgRenderer> drawing_;
  QImage image_;
  mutable QImage dots_;  // the drawing as it is printed
};

}  // namespace quartela::reporting
