// Pictures of one size, numbered from 1: what buttons and rows take their icons from.
//
// A picture made from an SVG file, or from several sizes, stays sharp on dense screens.
#pragma once

#include <QIcon>
#include <QList>
#include <QSize>

namespace quartela {

// A picture as taken from a list: it lives on when the list is gone.
struct ListPicture {
  QIcon icon;
  QSize size;  // pixels; empty when there is no picture
};

class ImageList {
 public:
  explicit ImageList(QSize imageSize) : size_(imageSize) {}

  QSize imageSize() const { return size_; }
  int count() const { return static_cast<int>(icons_.size()); }

  // Appends a picture; its number is the new count.
  void add(const QIcon& icon) { icons_.append(icon); }
  void addFile(const QString& path) { add(QIcon(path)); }

  // Picture `number`, from 1. Error 9 where the list has none.
  ListPicture picture(int number) const;

 private:
  QSize size_;
  QList<QIcon> icons_;
};

}  // namespace quartela
