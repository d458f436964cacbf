// One page of a document in a scrolled view, painted at the screen's own resolution.
#pragma once

#include <QScrollArea>
#include <memory>

#include "platform/reporting/Document.h"

namespace quartela::reporting {

class PageView : public QScrollArea {
  Q_OBJECT

 public:
  enum class Zoom { Width, WholePage, Percent };

  static constexpr int kLeastPercent = 10;
  static constexpr int kMostPercent = 400;
  // Around the paper, in pixels.
  static constexpr int kBorder = 14;

  explicit PageView(QWidget* parent = nullptr);

  // -1 shows no page.
  void showPage(std::shared_ptr<const Document> document, int page);
  int page() const { return page_; }
  // What stands there while there is no page.
  void setEmptyText(const QString& text);

  void setZoom(Zoom zoom, int percent = 100);
  Zoom zoom() const { return zoom_; }
  // The page's size on the screen against that on paper, whatever it comes from.
  int percent() const;

  // Scrolls by a screenful; false when the page's end (its beginning, for -1) is in view already.
  bool scrollBy(int direction);
  void scrollToTop();
  void scrollToBottom();

 signals:
  void zoomChanged();
  // The wheel was turned beyond the page's end (1) or its beginning (-1).
  void turned(int direction);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  class Sheet;

  void zoomByWheel(int turn);
  void fitSheet();
  double scaleToFit() const;
  QSizeF paperPixels() const;

  Sheet* sheet_;
  std::shared_ptr<const Document> document_;
  int page_ = -1;
  Zoom zoom_ = Zoom::Width;
  double scale_ = 1;
  int wheel_ = 0;      // eighths of a degree since the last turn
  int zoomWheel_ = 0;  // the same of the zooming wheel, less than a hundredth is worth
};

}  // namespace quartela::reporting
