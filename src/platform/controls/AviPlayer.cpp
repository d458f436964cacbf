#include "platform/controls/AviPlayer.h"

#include <QPainter>

namespace quartela {

AviPlayer::AviPlayer(QWidget* parent) : QWidget(parent) {
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, &AviPlayer::next);
}

void AviPlayer::open(const QString& path) {
  stop();
  file_.reset();
  canvas_ = QImage();
  file_ = AviFile::read(path);
  canvas_ = file_->canvas();
  showFrame(0);
  updateGeometry();
}

void AviPlayer::play() {
  if (file_) {
    timer_.start(file_->frameMilliseconds());
  }
}

void AviPlayer::stop() {
  timer_.stop();
}

QSize AviPlayer::sizeHint() const {
  return file_ ? file_->size() : QSize(0, 0);
}

void AviPlayer::paintEvent(QPaintEvent* /*event*/) {
  if (canvas_.isNull()) {
    return;
  }
  QPainter painter(this);
  // On dense screens the picture is drawn larger than it is.
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage((width() - canvas_.width()) / 2, (height() - canvas_.height()) / 2, canvas_);
}

void AviPlayer::showFrame(int frame) {
  frame_ = frame;
  file_->draw(frame, canvas_);
  update();
  emit frameShown(frame);
}

void AviPlayer::next() {
  // The first frame is complete by itself; frames behind it may draw only what changed.
  showFrame(frame_ + 1 < frameCount() ? frame_ + 1 : 0);
}

}  // namespace quartela
