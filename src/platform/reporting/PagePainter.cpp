#include "platform/reporting/PagePainter.h"

#include <QGlyphRun>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>
#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/reporting/BarCode.h"
#include "platform/reporting/TextFit.h"

namespace quartela::reporting {
namespace {

// Letters may reach a little out of their box (slanted ones, and those of a box too low for them).
constexpr int kOverhang = 120;
// A PDF tells the place of a run's first letter and each letter's way from the one before, with
// nine digits, and cuts the rest off: ways below this, in twips, have enough of them left for
// sixty-fourths of a twip, the finest there are.
constexpr double kExactWay = 1000;

bool isNear(const QPointF& one, const QPointF& other) {
  const QPointF way = other - one;
  return std::abs(way.x()) < kExactWay && std::abs(way.y()) < kExactWay;
}

class PagePainter {
 public:
  PagePainter(QPainter& painter, const Page& page)
      : painter_(painter),
        page_(page),
        gathers_(painter.paintEngine()->type() == QPaintEngine::Pdf) {}

  void paint(const QRectF& exposed) {
    painter_.setBrush(Qt::NoBrush);
    for (const StoredItem& item : page_.stored()) {
      const QRect reach = item.rect().adjusted(-kOverhang, -kOverhang, kOverhang, kOverhang);
      if (exposed.isNull() || exposed.intersects(reach)) {
        paintItem(item, page_.document().style(item.style));
      }
    }
    paintWaiting();
  }

 private:
  // A line of letters from where it begins.
  struct Text {
    QPointF place;
    QString letters;
  };

  void paintItem(const StoredItem& item, const ItemStyle& style) {
    // Texts and lines leave each other as they are; what covers them has to find them painted.
    if (style.kind != ItemKind::Line &&
        (style.kind != ItemKind::Text || style.backColor.isValid())) {
      paintWaiting();
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
    const QLineF line(item.left, item.top, item.left + item.width, item.top + item.height);
    if (!lengthensRule(line)) {
      lines_.append(line);
    }
  }

  // The rules between columns go on from row to row; one line does for them.
  bool lengthensRule(const QLineF& line) {
    if (line.dx() != 0 || lineStyle_->lineStyle != LineStyle::Solid) {
      return false;
    }
    for (const qsizetype at : rules_) {
      if (lines_[at].p2() == line.p1()) {
        lines_[at].setP2(line.p2());
        return true;
      }
    }
    rules_.push_back(lines_.size());
    return false;
  }

  void paintWaiting() {
    paintLines();
    paintTexts();
  }

  void paintLines() {
    if (lineStyle_ != nullptr) {
      usePen(*lineStyle_);
      painter_.drawLines(lines_);
      lines_.clear();
      rules_.clear();
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
    if (!gather(line, QPointF(left, base), style)) {
      paintTexts();
      useTextPen(style);
      painter_.drawText(QPointF(left, base), line);
    }
  }

  // A PDF has each letter with its place. What a text costs besides is saved by handing over the
  // letters of many texts at once.
  bool gather(const QString& line, const QPointF& place, const ItemStyle& style) {
    if (!gathers_ || !style.face->hasGlyphs(line)) {
      return false;
    }
    if (textStyle_ != nullptr &&
        (textStyle_->face != style.face || textStyle_->color != style.color)) {
      paintTexts();
    }
    textStyle_ = &style;
    texts_.push_back({place, line});
    return true;
  }

  // As they are read, which is the shortest way from one to the other.
  void paintTexts() {
    if (textStyle_ == nullptr) {
      return;
    }
    std::stable_sort(texts_.begin(), texts_.end(), [](const Text& one, const Text& other) {
      return one.place.y() != other.place.y() ? one.place.y() < other.place.y()
                                              : one.place.x() < other.place.x();
    });
    useTextPen(*textStyle_);
    Face::Glyphs glyphs;
    for (const Text& text : texts_) {
      if (!glyphs.places.isEmpty() && !isNear(glyphs.places.last(), text.place)) {
        paintGlyphs(glyphs);
      }
      textStyle_->face->addGlyphs(text.letters, text.place, glyphs);
    }
    paintGlyphs(glyphs);
    texts_.clear();
    textStyle_ = nullptr;
  }

  void paintGlyphs(Face::Glyphs& glyphs) {
    QGlyphRun run;
    run.setRawFont(textStyle_->face->rawFont());
    run.setRawData(glyphs.numbers.constData(), glyphs.places.constData(),
                   static_cast<int>(glyphs.numbers.size()));
    painter_.drawGlyphRun(QPointF(), run);
    glyphs.numbers.clear();
    glyphs.places.clear();
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
  std::vector<qsizetype> rules_;  // the upright ones of the lines
  const bool gathers_;
  const ItemStyle* textStyle_ = nullptr;  // of the texts that wait
  std::vector<Text> texts_;
  const Face* face_ = nullptr;
  QColor textColor_;
};

}  // namespace

void paintPage(QPainter& painter, const Page& page, const QRectF& exposed) {
  PagePainter(painter, page).paint(exposed);
}

}  // namespace quartela::reporting
