#include "platform/reporting/PagePainter.h"

#include <QPainter>
#include <QPen>
#include <algorithm>

#include "platform/reporting/BarCode.h"
#include "platform/reporting/TextFit.h"

namespace quartela::reporting {
namespace {

// Letters may reach a little out of their box (slanted ones, and those of a box too low for them).
constexpr int kOverhang = 120;

class PagePainter {
 public:
  PagePainter(QPainter& painter, const Page& page) : painter_(painter), page_(page) {}

  void paint(const QRectF& exposed) {
    painter_.setBrush(Qt::NoBrush);
    for (const StoredItem& item : page_.stored()) {
      const QRect reach = item.rect().adjusted(-kOverhang, -kOverhang, kOverhang, kOverhang);
      if (exposed.isNull() || exposed.intersects(reach)) {
        paintItem(item, page_.document().style(item.style));
      }
    }
    paintLines();
  }

 private:
  void paintItem(const StoredItem& item, const ItemStyle& style) {
    // Texts leave lines as they are; what covers them has to find them painted.
    if (style.kind != ItemKind::Line &&
        (style.kind != ItemKind::Text || style.backColor.isValid())) {
      paintLines();
    }
    switch (style.kind) {
      case ItemKind::Text:
        paintText(item, style);
        break;
      case ItemKind::Line:
        addLine(item, style);
        break;
      case ItemKind::Area:
        paintArea(item, style);
        break;
      case ItemKind::Picture:
        page_.document().picture(style.picture).paint(painter_, item.rect());
        forget();
        break;
      case ItemKind::BarCode:
        paintBars(item, style);
        break;
      case ItemKind::Row:
        break;  // comes as its items
    }
  }

  // Lines of one pen wait for each other: an engine takes much of its time for each call.
  void addLine(const StoredItem& item, const ItemStyle& style) {
    if (lineStyle_ != nullptr && !samePen(*lineStyle_, style)) {
      paintLines();
    }
    lineStyle_ = &style;
    lines_.append(
        {QPointF(item.left, item.top), QPointF(item.left + item.width, item.top + item.height)});
  }

  void paintLines() {
    if (lineStyle_ != nullptr) {
      usePen(*lineStyle_);
      painter_.drawLines(lines_);
      lines_.clear();
      lineStyle_ = nullptr;
    }
  }

  static bool samePen(const ItemStyle& one, const ItemStyle& other) {
    return one.color == other.color && one.lineWeight == other.lineWeight &&
           one.lineStyle == other.lineStyle;
  }

  void paintArea(const StoredItem& item, const ItemStyle& style) {
    if (style.backColor.isValid()) {
      painter_.fillRect(item.rect(), style.backColor);
    }
    if (style.lineWeight > 0) {
      usePen(style);
      painter_.drawRect(item.rect());
    }
  }

  void paintText(const StoredItem& item, const ItemStyle& style) {
    if (style.backColor.isValid()) {
      painter_.fillRect(item.rect(), style.backColor);
    }
    const QString text = page_.fittedText(item);
    if (text.isEmpty()) {
      return;
    }
    useTextPen(style);
    const auto lines = 1 + std::count_if(text.begin(), text.end(), endsLine);
    double base = firstBase(item, style, static_cast<int>(lines));
    if (lines == 1) {
      paintLine(item, style, text, base);
      return;
    }
    qsizetype start = 0;
    for (qsizetype at = 0; at <= text.size(); ++at) {
      if (at == text.size() || endsLine(text[at])) {
        paintLine(item, style, text.sliced(start, at - start), base);
        base += style.face->lineHeight();
        start = at + 1;
      }
    }
  }

  // Where the first line of letters stands. A box lower than its text has the text in its middle.
  static double firstBase(const StoredItem& item, const ItemStyle& style, int lines) {
    const double spare = item.height - style.face->lineHeight() * lines;
    const bool middle = style.verticalAlign == VerticalAlignment::Middle || spare < 0;
    const double share =
        middle ? 0.5 : (style.verticalAlign == VerticalAlignment::Bottom ? 1.0 : 0.0);
    return item.top + spare * share + style.face->base();
  }

  void paintLine(const StoredItem& item, const ItemStyle& style, const QString& line, double base) {
    double left = item.left;
    if (style.align != Alignment::Left) {
      const double spare = item.width - style.face->width(line);
      left += style.align == Alignment::Right ? spare : spare / 2;
    }
    painter_.drawText(QPointF(left, base), line);
  }

  // Bars are filled areas, so that they have the same edges at every resolution.
  void paintBars(const StoredItem& item, const ItemStyle& style) {
    const QString digits = page_.fittedText(item);
    if (digits.isEmpty()) {
      return;
    }
    const BarCode code = interleaved2of5(digits);
    const double module = double(item.width) / (code.modules + 2 * kQuietModules);
    for (const BarCode::Bar& bar : code.bars) {
      painter_.fillRect(QRectF(item.left + (kQuietModules + bar.start) * module, item.top,
                               bar.width * module, item.height),
                        style.color);
    }
  }

  // The engines take their time for each change of pen and font: the same again is no change.
  void usePen(const ItemStyle& style) {
    if (pen_ != nullptr && samePen(*pen_, style)) {
      return;
    }
    constexpr Qt::PenStyle kStyles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine};
    painter_.setPen(QPen(style.color, style.lineWeight, kStyles[static_cast<int>(style.lineStyle)],
                         Qt::FlatCap, Qt::MiterJoin));
    pen_ = &style;
    textColor_ = QColor();
  }

  void useTextPen(const ItemStyle& style) {
    if (textColor_ != style.color) {
      painter_.setPen(style.color);
      textColor_ = style.color;
      pen_ = nullptr;
    }
    if (face_ != style.face) {
      painter_.setFont(style.face->font());
      face_ = style.face;
    }
  }

  void forget() {
    pen_ = nullptr;
    face_ = nullptr;
    textColor_ = QColor();
    painter_.setBrush(Qt::NoBrush);
  }

  QPainter& painter_;
  const Page& page_;
  const ItemStyle* pen_ = nullptr;
  const ItemStyle* lineStyle_ = nullptr;  // of the lines that wait
  QList<QLineF> lines_;
  const Face* face_ = nullptr;
  QColor textColor_;
};

}  // namespace

void paintPage(QPainter& painter, const Page& page, const QRectF& exposed) {
  PagePainter(painter, page).paint(exposed);
}

}  // namespace quartela::reporting
