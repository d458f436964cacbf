// Shows a small AVI animation over and over, centred, at its own size.
#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>
#include <optional>

#include "platform/controls/AviFile.h"

namespace quartela {

class AviPlayer : public QWidget {
  Q_OBJECT

 public:
  explicit AviPlayer(QWidget* parent = nullptr);

  // Takes the animation and shows its first frame; it does not play yet. Raises what AviFile::read
  // does; the player is then empty.
  void open(const QString& path);
  // Plays from the frame shown, again from the first after the last. Nothing where none is open.
  void play();
  void stop();

  bool isOpen() const { return file_.has_value(); }
  bool isPlaying() const { return timer_.isActive(); }
  int frameCount() const { return file_ ? file_->frameCount() : 0; }
  int frame() const { return frame_; }
  const QImage& picture() const { return canvas_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  void frameShown(int frame);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void showFrame(int frame);
  void next();

  std::optional<AviFile> file_;
  QImage canvas_;
  int frame_ = 0;
  QTimer timer_;
};

}  // namespace quartela
