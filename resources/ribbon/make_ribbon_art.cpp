// Draws the pictures of the ribbon's themes.
//
//   make_ribbon_art <folder of the palettes> <folder to write>
//
// For each group (black, blue, silver) it reads <group>/palette.json and writes every numbered
// picture as <group>/<percent>/<number>.png, once for each density of screen, so that on each of
// them a picture is copied dot by dot: border lines are whole dots wide, never smeared over two.
// Last it writes ribbon_art.qrc, the list of all.
#include <QColor>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QSaveFile>
#include <QTextStream>
#include <array>
#include <cmath>

namespace {

constexpr std::array kGroups{"black", "blue", "silver"};
constexpr std::array kPercents{100, 125, 150, 175, 200, 300};

// Rows of the pictures, in pixels.
constexpr double kStripHidden = 26;   // the strip begins this far above the control's top
constexpr double kTabRow = 24;        // height of the row of tabs
constexpr double kCategoryInset = 2;  // space above a category's frame
constexpr double kBandTop = 66;       // where the band of a category's caption begins
constexpr double kButtonFoot = 4;     // space below a button, so that it ends above the band
constexpr double kFar = 1000;         // far outside of any picture

enum class Part { Left, Center, Right };

// The colours of one group by name. A name that the palette lacks is remembered as an error.
class Palette {
 public:
  explicit Palette(const QString& path) : path_(path) {
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
      colours_ = QJsonDocument::fromJson(file.readAll()).object();
    }
  }

  QColor operator[](const QString& name) const {
    const QColor colour(colours_.value(name).toString());
    if (!colour.isValid()) {
      QTextStream(stderr) << path_ << ": no colour \"" << name << "\"\n";
      complete_ = false;
    }
    return colour;
  }

  bool complete() const { return complete_; }

 private:
  QString path_;
  QJsonObject colours_;
  mutable bool complete_ = true;
};

// One picture under the brush, with what every shape of it needs to know.
class Canvas {
 public:
  Canvas(QSize pixels, int percent, const Palette& palette)
      : scale_(percent / 100.0),
        image_(QSize(dots(pixels.width()), dots(pixels.height())),
               QImage::Format_ARGB32_Premultiplied),
        palette_(palette) {
    image_.fill(Qt::transparent);
    painter_.begin(&image_);
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(Qt::NoPen);
  }

  QColor colour(const QString& name) const { return palette_[name]; }
  QPainter& painter() { return painter_; }
  double scale() const { return scale_; }
  double width() const { return image_.width(); }
  double height() const { return image_.height(); }
  // Whole dots of the screen for a length in pixels.
  int dots(double pixels) const {
    return std::max(1, static_cast<int>(std::floor(pixels * scale_ + 0.5)));
  }
  // Width of a border line in dots.
  double line() const { return std::max(1.0, std::floor(scale_)); }

  QImage finish() {
    painter_.end();
    return image_;
  }

 private:
  double scale_;
  QImage image_;
  const Palette& palette_;
  QPainter painter_;
};

// The colours of a framed surface, all found under one prefix: <prefix>Border, Top, Bottom, Shine.
struct FrameStyle {
  QString prefix;
  double radius = 3;
  double top = 0;  // space above and below, in pixels
  double bottom = 0;
  double side = 0;    // space at the outer side of a cap
  bool open = false;  // no lower border, square lower corners
};

void fillDown(Canvas& canvas, const QRectF& rect, const QColor& top, const QColor& bottom) {
  QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
  gradient.setColorAt(0, top);
  gradient.setColorAt(1, bottom);
  canvas.painter().fillRect(rect, gradient);
}

// Where the frame lies for a picture that shows one part of it; its other parts lie far outside.
QRectF frameRect(const Canvas& canvas, Part part, const FrameStyle& style) {
  const double side = style.side > 0 ? canvas.dots(style.side) : 0;
  const double top = style.top > 0 ? canvas.dots(style.top) : 0;
  const double bottom = style.bottom > 0 ? canvas.dots(style.bottom) : 0;
  QRectF rect(0, top, canvas.width(), canvas.height() - top - bottom);
  rect.setLeft(part == Part::Left ? side : -kFar);
  rect.setRight(part == Part::Right ? canvas.width() - side : canvas.width() + kFar);
  if (style.open) {
    rect.setBottom(canvas.height() + kFar);
  }
  return rect;
}

QPainterPath rounded(const QRectF& rect, double radius) {
  QPainterPath path;
  path.addRoundedRect(rect, radius, radius);
  return path;
}

// A frame: border, then a surface shaded downwards, then a line of light inside.
QPainterPath drawFrame(Canvas& canvas, Part part, const FrameStyle& style) {
  const QRectF outer = frameRect(canvas, part, style);
  const double line = canvas.line();
  const double radius = style.radius * canvas.scale();
  QPainter& painter = canvas.painter();
  const QRectF inner = outer.adjusted(line, line, -line, style.open ? 0 : -line);
  const QPainterPath surface = rounded(inner, std::max(0.0, radius - line));
  painter.fillPath(rounded(outer, radius).subtracted(surface),
                   canvas.colour(style.prefix + QStringLiteral("Border")));
  QLinearGradient shade(0, inner.top(), 0, std::min(inner.bottom(), canvas.height()));
  shade.setColorAt(0, canvas.colour(style.prefix + QStringLiteral("Top")));
  shade.setColorAt(1, canvas.colour(style.prefix + QStringLiteral("Bottom")));
  painter.fillPath(surface, shade);
  const QRectF core = inner.adjusted(line, line, -line, style.open ? 0 : -line);
  painter.fillPath(surface.subtracted(rounded(core, std::max(0.0, radius - 2 * line))),
                   canvas.colour(style.prefix + QStringLiteral("Shine")));
  return surface;
}

void drawStrip(Canvas& canvas) {
  const double rowEnd = canvas.dots(kStripHidden + kTabRow);
  const double line = canvas.line();
  fillDown(canvas, {0, 0, canvas.width(), rowEnd}, canvas.colour("rowTop"),
           canvas.colour("rowBottom"));
  fillDown(canvas, {0, rowEnd, canvas.width(), canvas.height() - rowEnd}, canvas.colour("panelTop"),
           canvas.colour("panelBottom"));
  canvas.painter().fillRect(QRectF(0, rowEnd - line, canvas.width(), line),
                            canvas.colour("panelLine"));
  canvas.painter().fillRect(QRectF(0, canvas.height() - line, canvas.width(), line),
                            canvas.colour("panelEdge"));
}

void drawTab(Canvas& canvas, Part part) {
  drawFrame(canvas, part, {.prefix = "tab", .radius = 4, .top = 1, .side = 1, .open = true});
}

// A tab under the mouse lets the line below the tabs show through.
void drawTabOver(Canvas& canvas, Part part) {
  canvas.painter().setClipRect(QRectF(0, 0, canvas.width(), canvas.height() - canvas.line()));
  drawFrame(canvas, part, {.prefix = "tabOver", .radius = 4, .top = 1, .side = 1, .open = true});
}

void drawCategory(Canvas& canvas, Part part, const QString& prefix) {
  const FrameStyle style{
      .prefix = prefix, .radius = 4, .top = kCategoryInset, .bottom = 1, .side = 1};
  const QPainterPath surface = drawFrame(canvas, part, style);
  const double top = canvas.dots(kBandTop);
  const QRectF band(-kFar, top, 3 * kFar, canvas.height() - top);
  QPainter& painter = canvas.painter();
  painter.setClipPath(surface);
  fillDown(canvas, band, canvas.colour(prefix + "BandTop"), canvas.colour(prefix + "BandBottom"));
  painter.fillRect(QRectF(band.left(), top, band.width(), canvas.line()),
                   canvas.colour(prefix + "BandLine"));
}

void drawButton(Canvas& canvas, Part part, const QString& prefix) {
  drawFrame(canvas, part, {.prefix = prefix, .radius = 3, .bottom = kButtonFoot});
}

// The corner: two sides of a small window, and an arrow that leads out of it.
void drawCornerMark(Canvas& canvas, const QColor& colour) {
  const double line = canvas.line();
  const double left = canvas.dots(4);
  const double top = canvas.dots(4);
  const double side = canvas.dots(6);
  QPainter& painter = canvas.painter();
  painter.fillRect(QRectF(left, top, side, line), colour);
  painter.fillRect(QRectF(left, top, line, side), colour);
  const double tip = left + canvas.dots(7);
  const double arm = canvas.dots(4);
  painter.fillRect(QRectF(tip - arm, tip - line, arm, line), colour);
  painter.fillRect(QRectF(tip - line, tip - arm, line, arm), colour);
  painter.setPen(QPen(colour, line));
  painter.drawLine(QPointF(left + canvas.dots(3), top + canvas.dots(3)),
                   QPointF(tip - line, tip - line));
  painter.setPen(Qt::NoPen);
}

void drawCorner(Canvas& canvas, int number) {
  if (number == 120) {
    QPainter& painter = canvas.painter();
    const double line = canvas.line();
    const QRectF box(0, 0, canvas.width(), canvas.height());
    painter.fillPath(rounded(box, 2 * canvas.scale()), canvas.colour("buttonBorder"));
    painter.fillPath(rounded(box.adjusted(line, line, -line, -line), canvas.scale()),
                     canvas.colour("buttonTop"));
  }
  const std::array names{"corner", "cornerOn", "cornerOver"};
  drawCornerMark(canvas, canvas.colour(names.at(static_cast<std::size_t>(number - 118))));
}

void drawGlyph(Canvas& canvas, const QString& name) {
  QPainterPath triangle;
  triangle.moveTo(0, 0.5 * canvas.scale());
  triangle.lineTo(canvas.width(), 0.5 * canvas.scale());
  triangle.lineTo(canvas.width() / 2, canvas.height() - 0.25 * canvas.scale());
  triangle.closeSubpath();
  canvas.painter().fillPath(triangle, canvas.colour(name));
}

// Wide arcs of light that have faded into the window's colour before the picture ends.
void drawBackdrop(Canvas& canvas) {
  QPainter& painter = canvas.painter();
  const QRectF all(0, 0, canvas.width(), canvas.height());
  painter.fillRect(all, canvas.colour("backdrop"));
  if (canvas.width() < canvas.dots(2)) {
    return;
  }
  QColor glow = canvas.colour("backdropGlow");
  QRadialGradient light(QPointF(0, 0), canvas.height());
  light.setColorAt(0, glow);
  glow.setAlpha(0);
  light.setColorAt(1, glow);
  painter.scale(canvas.width() / canvas.height(), 1);
  painter.fillRect(QRectF(0, 0, canvas.height(), canvas.height()), light);
}

struct Picture {
  int number;
  QSize size;  // pixels
  void (*draw)(Canvas& canvas, int number);
};

Part partOf(int number, int first) {
  return static_cast<Part>(number - first);
}

const QList<Picture>& pictures() {
  const auto strip = [](Canvas& canvas, int) { drawStrip(canvas); };
  const auto off = [](Canvas& canvas, int n) { drawCategory(canvas, partOf(n, 121), "cat"); };
  const auto on = [](Canvas& canvas, int n) { drawCategory(canvas, partOf(n, 124), "catOn"); };
  const auto tab = [](Canvas& canvas, int n) { drawTab(canvas, partOf(n, 127)); };
  const auto over = [](Canvas& canvas, int n) { drawTabOver(canvas, partOf(n, 130)); };
  const auto down = [](Canvas& canvas, int n) { drawButton(canvas, partOf(n, 135), "pressed"); };
  const auto hover = [](Canvas& canvas, int n) { drawButton(canvas, partOf(n, 138), "button"); };
  static const QList<Picture> list{
      {101, {11, 142}, strip},
      {102, {7, 142}, strip},
      {103, {7, 142}, strip},
      {118, {15, 14}, drawCorner},
      {119, {15, 14}, drawCorner},
      {120, {15, 14}, drawCorner},
      {121, {4, 89}, off},
      {122, {5, 89}, off},
      {123, {5, 89}, off},
      {124, {4, 89}, on},
      {125, {4, 89}, on},
      {126, {5, 89}, on},
      {127, {10, 24}, tab},
      {128, {18, 24}, tab},
      {129, {10, 24}, tab},
      {130, {10, 24}, over},
      {131, {37, 24}, over},
      {132, {10, 24}, over},
      {133, {5, 4}, [](Canvas& canvas, int) { drawGlyph(canvas, "glyph"); }},
      {134, {5, 4}, [](Canvas& canvas, int) { drawGlyph(canvas, "glyphOn"); }},
      {135, {3, 66}, down},
      {136, {49, 66}, down},
      {137, {3, 66}, down},
      {138, {3, 66}, hover},
      {139, {49, 66}, hover},
      {140, {3, 66}, hover},
      {141, {499, 157}, [](Canvas& canvas, int) { drawBackdrop(canvas); }},
  };
  return list;
}

// The silver group's background is one dot of plain colour, whatever the density.
bool plainBackground(const QString& group, int number) {
  return number == 141 && group == QLatin1String("silver");
}

QImage draw(const Picture& picture, const QString& group, int percent, const Palette& palette) {
  const bool plain = plainBackground(group, picture.number);
  Canvas canvas(plain ? QSize(1, 1) : picture.size, plain ? 100 : percent, palette);
  picture.draw(canvas, picture.number);
  return canvas.finish();
}

bool drawGroup(const QString& group, const QDir& source, const QDir& target, QTextStream& list) {
  const Palette palette(source.filePath(group + "/palette.json"));
  bool written = true;
  for (const int percent : kPercents) {
    const QString folder = QStringLiteral("%1/%2").arg(group).arg(percent);
    written = target.mkpath(folder) && written;
    for (const Picture& picture : pictures()) {
      const QString name = QStringLiteral("%1/%2.png").arg(folder).arg(picture.number);
      const QImage image = draw(picture, group, percent, palette);
      if (!image.save(target.filePath(name))) {
        QTextStream(stderr) << "could not write " << target.filePath(name) << '\n';
        written = false;
      }
      list << "  <file>" << name << "</file>\n";
    }
  }
  return written && palette.complete();
}

bool drawAll(const QDir& source, const QDir& target) {
  QString text;
  QTextStream list(&text);
  list << "<RCC>\n <qresource prefix=\"/quartela/ribbon\">\n";
  bool good = target.mkpath(QStringLiteral("."));
  for (const char* group : kGroups) {
    good = drawGroup(QString::fromLatin1(group), source, target, list) && good;
  }
  list << " </qresource>\n</RCC>\n";
  list.flush();
  QSaveFile file(target.filePath(QStringLiteral("ribbon_art.qrc")));
  return good && file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0 && file.commit();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    QTextStream(stderr) << "usage: make_ribbon_art <palettes> <target>\n";
    return 2;
  }
  return drawAll(QDir(QFile::decodeName(argv[1])), QDir(QFile::decodeName(argv[2]))) ? 0 : 1;
}
