#include "shell/ribbon/RibbonPainter.h"

#include <QFontMetrics>
#include <cmath>

namespace quartela::ribbon {
namespace {

constexpr int kCaptionPixels = 13;  // 9.75 points
constexpr int kButtonPixels = 9;    // 6.75 points
constexpr double kFocusRadius = 3;

QStringList linesOf(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return text.split(QLatin1Char('\n'));
}

QFont makeFont(int pixels) {
  QFont font(QStringList{QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")});
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(pixels);
  return font;
}

}  // namespace

QFont fontOf(TextStyle style) {
  return makeFont(style == TextStyle::Caption ? kCaptionPixels : kButtonPixels);
}

QSizeF FontMeasure::size(const QString& text, TextStyle style) const {
  const QFontMetrics metrics(fontOf(style));
  int width = 0;
  const QStringList lines = linesOf(text);
  for (const QString& line : lines) {
    width = std::max(width, metrics.horizontalAdvance(line));
  }
  const int height = metrics.lineSpacing() * static_cast<int>(lines.size());
  return QSizeF(width, height) * kTwipsPerPixel;
}

RibbonPainter::RibbonPainter(QPainter& painter, ThemePictures& pictures, const QPalette& palette)
    : painter_(painter),
      pictures_(pictures),
      palette_(palette),
      toDots_(painter.deviceTransform()),
      fromDots_(toDots_.inverted()) {}

void RibbonPainter::paint(const ElementTable& elements, const QRegion& region) {
  for (const Ref ref : elements.stacking()) {
    const Piece& piece = elements.at(ref);
    if (piece.visible && region.intersects(pixelRect(piece.rect()))) {
      paintPiece(ref.kind, piece);
    }
  }
}

void RibbonPainter::paintPiece(Element kind, const Piece& piece) {
  switch (kind) {
    case Element::TabMouse:
    case Element::CatMouse:
    case Element::ButMouse:
      break;  // they only sense
    case Element::Tab_caption:
    case Element::Cat_Caption:
      paintText(piece, TextStyle::Caption);
      break;
    case Element::Button_Caption:
      paintText(piece, TextStyle::Button);
      break;
    case Element::Button_Icon:
      paintIcon(piece);
      break;
    default:
      paintPicture(kind, piece);
  }
}

QPoint RibbonPainter::dot(double xTwips, double yTwips) const {
  const QPointF place = toDots_.map(QPointF(xTwips, yTwips) / kTwipsPerPixel);
  return {static_cast<int>(std::floor(place.x() + 0.5)),
          static_cast<int>(std::floor(place.y() + 0.5))};
}

// A picture drawn for just this density is copied dot by dot; for one in between, the finer version
// is brought down.
void RibbonPainter::paintPicture(Element kind, const Piece& piece) {
  const double ratio = toDots_.m11();
  const DensePicture& picture = pictures_.picture(piece.theme, piece.picture, ratio);
  const QPoint from = dot(piece.left, piece.top);
  const QPoint to = dot(piece.right(), piece.bottom());
  const bool exact = std::abs(picture.scale - ratio) < 0.005;
  QSize size = exact ? picture.pixmap.size() : QSize(to.x() - from.x(), to.y() - from.y());
  if (stretches(kind)) {
    size.setWidth(to.x() - from.x());
  }
  painter_.setRenderHint(QPainter::SmoothPixmapTransform, !exact);
  painter_.drawPixmap(fromDots_.mapRect(QRectF(QRect(from, size))), picture.pixmap,
                      QRectF(picture.pixmap.rect()));
}

void RibbonPainter::paintIcon(const Piece& piece) {
  if (piece.icon.isNull()) {
    return;
  }
  const QSize size = (piece.rect().size() / kTwipsPerPixel).toSize();
  const QPixmap pixmap = piece.icon.pixmap(size, toDots_.m11());
  const QSizeF drawn = QSizeF(pixmap.size()) / toDots_.m11();
  const double inset = kTwipsPerPixel / 2.0;
  const QPoint from = dot(piece.left + (size.width() - drawn.width()) * inset,
                          piece.top + (size.height() - drawn.height()) * inset);
  painter_.setRenderHint(QPainter::SmoothPixmapTransform, false);
  painter_.drawPixmap(fromDots_.mapRect(QRectF(QRect(from, pixmap.size()))), pixmap,
                      QRectF(pixmap.rect()));
}

void RibbonPainter::paintText(const Piece& piece, TextStyle style) {
  const QFont font = fontOf(style);
  const QFontMetrics metrics(font);
  painter_.setFont(font);
  painter_.setPen(toColor(piece.colour, palette_));
  const double width = piece.width / kTwipsPerPixel;
  QPointF place = fromDots_.map(QPointF(dot(piece.left, piece.top)));
  place.ry() += metrics.ascent();
  for (const QString& line : linesOf(piece.text)) {
    const double spare = width - metrics.horizontalAdvance(line);
    painter_.drawText(place + QPointF(std::floor(spare / 2), 0), line);
    place.ry() += metrics.lineSpacing();
  }
}

// A dark line within a light one stands out on every theme, lit or not.
void RibbonPainter::paintFocus(const Piece& piece) {
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing);
  const QRectF outer = QRectF(pixelRect(piece.rect())).adjusted(0.5, 0.5, -0.5, -0.5);
  painter_.setPen(QPen(Qt::white, 1));
  painter_.drawRoundedRect(outer, kFocusRadius, kFocusRadius);
  painter_.setPen(QPen(QColor(0x1d, 0x2a, 0x38), 1));
  painter_.drawRoundedRect(outer.adjusted(1, 1, -1, -1), kFocusRadius - 1, kFocusRadius - 1);
  painter_.restore();
}

}  // namespace quartela::ribbon
