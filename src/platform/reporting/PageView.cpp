#include "platform/reporting/PageView.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/reporting/PagePainter.h"

namespace quartela::reporting {
namespace {

constexpr int kShadow = 3;
constexpr QRgb kDesk = 0xFF8B97A5;
constexpr QRgb kShadowColor = 0xFF6B7683;
constexpr QRgb kEdge = 0xFF55606C;
constexpr int kWheelNotch = 120;
// A notch of the wheel zooms by so many hundredths.
constexpr int kZoomNotch = 10;

}  // namespace

// The paper on the desk.
class PageView::Sheet : public QWidget {
 public:
  explicit Sheet(PageView& view) : QWidget(&view), view_(view) {
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.fillRect(event->rect(), QColor(kDesk));
    if (view_.page_ < 0) {
      painter.setPen(Qt::white);
      painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, accessibleName());
      return;
    }
    const QRectF paper(QPointF(kBorder, kBorder), view_.paperPixels() * view_.scale_);
    painter.fillRect(paper.translated(kShadow, kShadow), QColor(kShadowColor));
    painter.fillRect(paper, Qt::white);
    painter.setPen(QColor(kEdge));
    painter.drawRect(paper);
    paintPaper(painter, paper, QRectF(event->rect()) & paper);
  }

 private:
  void paintPaper(QPainter& painter, const QRectF& paper, const QRectF& exposed) const {
    const double unit = paper.width() / view_.document_->paper().width();
    painter.setClipRect(exposed);
    painter.translate(paper.topLeft());
    painter.scale(unit, unit);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF inPaper((exposed.topLeft() - paper.topLeft()) / unit, exposed.size() / unit);
    paintPage(painter, view_.document_->page(view_.page_), inPaper);
  }

  PageView& view_;
};

PageView::PageView(QWidget* parent) : QScrollArea(parent), sheet_(new Sheet(*this)) {
  setWidget(sheet_);
  setAlignment(Qt::AlignCenter);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  fitSheet();
}

// The desk round the sheet. A style sheet would take no palette for it.
void PageView::paintEvent(QPaintEvent* event) {
  QPainter(viewport()).fillRect(event->rect(), QColor(kDesk));
}

void PageView::showPage(std::shared_ptr<const Document> document, int page) {
  document_ = std::move(document);
  page_ = document_ ? page : -1;
  fitSheet();
  sheet_->update();
}

void PageView::setEmptyText(const QString& text) {
  sheet_->setAccessibleName(text);
  sheet_->update();
}

void PageView::setZoom(Zoom zoom, int percent) {
  zoom_ = zoom;
  if (zoom == Zoom::Percent) {
    scale_ = std::clamp(percent, kLeastPercent, kMostPercent) / 100.0;
  }
  fitSheet();
  emit zoomChanged();
}

int PageView::percent() const {
  return static_cast<int>(std::lround(scale_ * 100));
}

QSizeF PageView::paperPixels() const {
  const QSizeF inches = QSizeF(document_->paper()) / kTwipsPerInch;
  return {inches.width() * logicalDpiX(), inches.height() * logicalDpiY()};
}

double PageView::scaleToFit() const {
  const QSizeF paper = paperPixels();
  // As if there were no scroll bars, but the upright one where the width is fitted: so the scale
  // does not depend on whether they are there.
  QSizeF room = QSizeF(size()) - QSizeF(2 * kBorder, 2 * kBorder);
  if (zoom_ == Zoom::Width) {
    room.rwidth() -= verticalScrollBar()->sizeHint().width();
    return room.width() / paper.width();
  }
  return std::min(room.width() / paper.width(), room.height() / paper.height());
}

void PageView::fitSheet() {
  if (page_ < 0) {
    sheet_->resize(viewport()->size());
    return;
  }
  setVerticalScrollBarPolicy(zoom_ == Zoom::Width       ? Qt::ScrollBarAlwaysOn
                             : zoom_ == Zoom::WholePage ? Qt::ScrollBarAlwaysOff
                                                        : Qt::ScrollBarAsNeeded);
  setHorizontalScrollBarPolicy(zoom_ == Zoom::Percent ? Qt::ScrollBarAsNeeded
                                                      : Qt::ScrollBarAlwaysOff);
  const double before = scale_;
  if (zoom_ != Zoom::Percent) {
    scale_ = std::clamp(scaleToFit(), kLeastPercent / 100.0, kMostPercent / 100.0);
  }
  const QSizeF size = paperPixels() * scale_ + QSizeF(2 * kBorder, 2 * kBorder);
  sheet_->resize(static_cast<int>(size.width()), static_cast<int>(size.height()));
  sheet_->update();
  if (scale_ != before) {
    emit zoomChanged();
  }
}

bool PageView::scrollBy(int direction) {
  QScrollBar* const bar = verticalScrollBar();
  const int before = bar->value();
  bar->setValue(before + direction * bar->pageStep());
  return bar->value() != before;
}

void PageView::scrollToTop() {
  verticalScrollBar()->setValue(0);
}

void PageView::scrollToBottom() {
  verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void PageView::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  fitSheet();
}

// A fine wheel tells of a notch in many small turns; what is less than a hundredth waits.
void PageView::zoomByWheel(int turn) {
  zoomWheel_ += turn * kZoomNotch;
  const int hundredths = zoomWheel_ / kWheelNotch;
  zoomWheel_ -= hundredths * kWheelNotch;
  if (hundredths != 0) {
    setZoom(Zoom::Percent, percent() + hundredths);
  }
}

void PageView::wheelEvent(QWheelEvent* event) {
  const int turn = event->angleDelta().y();
  const bool sideways = std::abs(event->angleDelta().x()) > std::abs(turn);
  if ((event->modifiers() & Qt::ControlModifier) != 0) {
    if (!sideways) {
      zoomByWheel(turn);
    }
    event->accept();
    return;
  }
  const QScrollBar* const bar = verticalScrollBar();
  const bool atEnd = turn < 0 ? bar->value() == bar->maximum() : bar->value() == bar->minimum();
  if (!atEnd || turn == 0 || sideways) {
    wheel_ = 0;
    QScrollArea::wheelEvent(event);
    return;
  }
  event->accept();
  wheel_ += turn;
  if (std::abs(wheel_) >= kWheelNotch) {
    const int direction = wheel_ < 0 ? 1 : -1;
    wheel_ = 0;
    emit turned(direction);
  }
}

}  // namespace quartela::reporting
