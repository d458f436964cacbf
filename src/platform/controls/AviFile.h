// A small animation: the first picture track of an AVI file whose frames are uncompressed (8, 24 or
// 32 bits a pixel) or run-length coded (8 bits). Sound and further tracks are passed over.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QList>
#include <QSize>
#include <QString>

namespace quartela {

class AviFile {
 public:
  // Errors: 53 when there is no file at `path`, 75 when it cannot be read, 481 when it is no such
  // animation: another format, cut off, without pictures, or larger than any that the program
  // shows.
  static AviFile read(const QString& path);
  static AviFile parse(const QByteArray& bytes);

  QSize size() const { return size_; }
  int frameCount() const { return static_cast<int>(frames_.size()); }
  // How long each frame stands, in milliseconds; at least 1.
  int frameMilliseconds() const { return frameMilliseconds_; }

  // A picture of the animation's size, all in the first palette colour, to draw the frames on.
  QImage canvas() const;
  // Draws frame `index` over the one before it. A frame whose pixels are broken, and an index that
  // is none, leave the rest of the canvas as it was.
  void draw(int index, QImage& canvas) const;

 private:
  friend class AviReader;

  void drawRows(const QByteArray& pixels, QImage& canvas) const;
  void drawRuns(const QByteArray& pixels, QImage& canvas) const;
  QRgb colour(quint8 index) const {
    return index < palette_.size() ? palette_[index] : qRgb(0, 0, 0);
  }

  QByteArray bytes_;
  struct Frame {
    qsizetype offset;
    qsizetype length;
  };
  QList<Frame> frames_;
  QList<QRgb> palette_;
  QSize size_;
  bool topDown_ = false;
  int bitCount_ = 0;
  bool runLength_ = false;
  int frameMilliseconds_ = 1;
};

}  // namespace quartela
