// Makes the program's pictures from their sources: the crest's icons, the animation of a deletion
// (FILEDELR.avi) and the moving bar of the start (progress.gif).
//
//   make_art <resources folder>
//
// Reads icons/*.svg and animations/*.svg there, writes icons/*.png and delivery/*.
#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QSaveFile>
#include <QSvgRenderer>
#include <QTextStream>
#include <QtEndian>
#include <cmath>

namespace {

constexpr QSize kSceneSize(240, 112);
constexpr int kSceneFrames = 20;
constexpr int kSceneMilliseconds = 15;  // the whole scene while the deletion's bar fills
constexpr QSize kBarSize(676, 14);
constexpr int kBarFrames = 8;
constexpr int kBarHundredths = 8;
constexpr QRgb kBand = qRgb(0x16, 0x37, 0x5B);

QByteArray little(quint32 number, int bytes) {
  QByteArray text;
  for (int i = 0; i < bytes; ++i) {
    text.append(static_cast<char>((number >> (8 * i)) & 0xFF));
  }
  return text;
}

bool write(const QString& path, const QByteArray& bytes) {
  QSaveFile file(path);
  const bool written =
      file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
  QTextStream(written ? stdout : stderr)
      << (written ? "wrote " : "could not write ") << path << '\n';
  return written;
}

// 8-bit pictures that share one palette, the colours of all of them counted together.
QList<QImage> withSharedPalette(const QList<QImage>& pictures) {
  QImage all(pictures.first().width(),
             pictures.first().height() * static_cast<int>(pictures.size()), QImage::Format_RGB32);
  QPainter painter(&all);
  for (int i = 0; i < pictures.size(); ++i) {
    painter.drawImage(0, i * pictures[i].height(), pictures[i]);
  }
  painter.end();
  // Sixteen steps a channel keep the edges smooth and the palette short.
  for (int y = 0; y < all.height(); ++y) {
    auto* const line = reinterpret_cast<QRgb*>(all.scanLine(y));
    for (int x = 0; x < all.width(); ++x) {
      const auto step = [](int channel) { return std::min(255, (channel + 8) / 17 * 17); };
      const QColor colour(line[x]);
      line[x] = line[x] == kBand
                    ? kBand
                    : qRgb(step(colour.red()), step(colour.green()), step(colour.blue()));
    }
  }
  const QImage indexed =
      all.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither | Qt::AvoidDither);
  QList<QImage> result;
  for (int i = 0; i < pictures.size(); ++i) {
    result.append(indexed.copy(0, i * pictures[i].height(), all.width(), pictures[i].height()));
  }
  return result;
}

// ---- The deletion: a sheet goes into the bin, and the lid closes.

void drawTurned(QPainter& painter, QSvgRenderer& part, QPointF centre, QSizeF size,
                double degrees) {
  painter.save();
  painter.translate(centre);
  painter.rotate(degrees);
  part.render(&painter, QRectF(-size.width() / 2, -size.height() / 2, size.width(), size.height()));
  painter.restore();
}

struct Scene {
  explicit Scene(const QString& folder)
      : sheet(folder + QStringLiteral("/sheet.svg")),
        back(folder + QStringLiteral("/bin-back.svg")),
        front(folder + QStringLiteral("/bin-front.svg")),
        lid(folder + QStringLiteral("/bin-lid.svg")) {}
  bool isValid() const {
    return sheet.isValid() && back.isValid() && front.isValid() && lid.isValid();
  }
  QSvgRenderer sheet, back, front, lid;
};

double eased(double t) {
  return t * t * (3 - 2 * t);
}

// In a bow over the bin's mouth, then straight down into it.
QPointF sheetPlace(double flight) {
  constexpr double kArrival = 0.7;
  if (flight >= kArrival) {
    return {179, 26 + 54 * (flight - kArrival) / (1 - kArrival)};
  }
  const double t = flight / kArrival;
  const QPointF from(40, 76);
  const QPointF over(120, 6);
  const QPointF to(179, 26);
  return from * ((1 - t) * (1 - t)) + over * (2 * t * (1 - t)) + to * (t * t);
}

QImage drawScene(Scene& scene, int frame) {
  constexpr double kFlightShare = 0.72;
  QImage image(kSceneSize, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const double time = static_cast<double>(frame) / (kSceneFrames - 1);
  const double flight = eased(std::min(1.0, time / kFlightShare));
  const double open =
      time < kFlightShare ? 1.0 : 1.0 - eased((time - kFlightShare) / (1 - kFlightShare));
  const QRectF bin(150, 40, 58, 68);
  scene.back.render(&painter, bin);
  if (flight < 1) {
    const double scale = 1 - 0.4 * flight;
    drawTurned(painter, scene.sheet, sheetPlace(flight), QSizeF(38 * scale, 49 * scale),
               std::min(1.0, flight / 0.7) * 90);
  }
  scene.front.render(&painter, bin);
  drawTurned(painter, scene.lid, QPointF(179 + 30 * open, 46 - 4 * open), QSizeF(64, 18),
             62 * open);
  return image;
}

// Each row as pairs of count and colour.
QByteArray runLengths(const QImage& image) {
  QByteArray coded;
  for (int y = image.height() - 1; y >= 0; --y) {
    const uchar* const line = image.constScanLine(y);
    for (int x = 0; x < image.width();) {
      int count = 1;
      while (x + count < image.width() && count < 255 && line[x + count] == line[x]) {
        ++count;
      }
      coded.append(static_cast<char>(count)).append(static_cast<char>(line[x]));
      x += count;
    }
    coded.append('\0').append('\0');
  }
  return coded.append('\0').append('\1');
}

QByteArray chunk(const char* id, const QByteArray& contents) {
  QByteArray bytes = QByteArray(id) + little(static_cast<quint32>(contents.size()), 4) + contents;
  return contents.size() % 2 != 0 ? bytes.append('\0') : bytes;
}

QByteArray list(const char* kind, const QByteArray& contents) {
  return chunk("LIST", QByteArray(kind) + contents);
}

QByteArray aviHeader(quint32 frames, quint32 largest) {
  const auto width = static_cast<quint32>(kSceneSize.width());
  const auto height = static_cast<quint32>(kSceneSize.height());
  constexpr quint32 kHasIndex = 0x10;
  QByteArray head;
  for (const quint32 number : {quint32{kSceneMilliseconds} * 1000, 0U, 0U, kHasIndex, frames, 0U,
                               1U, largest, width, height, 0U, 0U, 0U, 0U}) {
    head += little(number, 4);
  }
  return chunk("avih", head);
}

QByteArray aviTrack(quint32 frames, quint32 largest, const QList<QRgb>& palette) {
  QByteArray head("vidsmrle");
  for (const quint32 number :
       {0U, 0U, 0U, quint32{kSceneMilliseconds}, 1000U, 0U, frames, largest, 0xFFFFFFFFU, 0U}) {
    head += little(number, 4);
  }
  head += little(0, 4) + little(static_cast<quint32>(kSceneSize.width()), 2) +
          little(static_cast<quint32>(kSceneSize.height()), 2);
  QByteArray format = little(40, 4) + little(static_cast<quint32>(kSceneSize.width()), 4) +
                      little(static_cast<quint32>(kSceneSize.height()), 4) + little(1, 2) +
                      little(8, 2) + little(1, 4) + little(0, 12) +
                      little(static_cast<quint32>(palette.size()), 4) + little(0, 4);
  for (const QRgb colour : palette) {
    format += little(colour & 0xFFFFFF, 4);
  }
  return list("strl", chunk("strh", head) + chunk("strf", format));
}

QByteArray avi(const QList<QImage>& frames) {
  QByteArray pictures;
  QByteArray index;
  qsizetype largest = 0;
  constexpr quint32 kKeyFrame = 0x10;
  for (const QImage& frame : frames) {
    const QByteArray coded = runLengths(frame);
    index += QByteArray("00dc") + little(kKeyFrame, 4) +
             little(static_cast<quint32>(pictures.size()) + 4, 4) +
             little(static_cast<quint32>(coded.size()), 4);
    pictures += chunk("00dc", coded);
    largest = std::max(largest, coded.size());
  }
  const auto count = static_cast<quint32>(frames.size());
  const auto room = static_cast<quint32>(largest);
  const QByteArray head =
      list("hdrl", aviHeader(count, room) + aviTrack(count, room, frames.first().colorTable()));
  return chunk("RIFF", QByteArray("AVI ") + head + list("movi", pictures) + chunk("idx1", index));
}

// ---- The bar of the start: slanted stripes that move along.

QImage drawBar(int frame) {
  QImage image(kBarSize, QImage::Format_RGB32);
  image.fill(kBand);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF bar(QPointF(-8, 2), QPointF(kBarSize.width() - 2, kBarSize.height() - 2));
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0x2F, 0x7F, 0xC4));
  painter.drawRoundedRect(bar, 5, 5);
  QPainterPath rounded;
  rounded.addRoundedRect(bar, 5, 5);
  painter.setClipPath(rounded);
  constexpr int kStripe = 32;
  painter.setBrush(QColor(0x55, 0x9B, 0xD8));
  const double shift = static_cast<double>(kStripe) * frame / kBarFrames;
  for (int x = -2 * kStripe; x < kBarSize.width() + kStripe; x += kStripe) {
    const double left = x + shift;
    const double height = kBarSize.height();
    painter.drawPolygon(QPolygonF{
        {left, height}, {left + height, 0}, {left + height + 14, 0}, {left + 14, height}});
  }
  // A bright head leads it.
  QLinearGradient head(kBarSize.width() - 90, 0, kBarSize.width(), 0);
  head.setColorAt(0, QColor(0xF0, 0xBD, 0x4F, 0));
  head.setColorAt(1, QColor(0xF0, 0xBD, 0x4F));
  painter.fillRect(image.rect(), head);
  return image;
}

// Codes of growing width, lowest bit first.
class BitWriter {
 public:
  void write(int code, int width) {
    bits_ |= static_cast<quint32>(code) << count_;
    count_ += width;
    while (count_ >= 8) {
      flushByte();
    }
  }
  QByteArray finish() {
    if (count_ > 0) {
      flushByte();
    }
    return bytes_;
  }

 private:
  void flushByte() {
    bytes_.append(static_cast<char>(bits_ & 0xFF));
    bits_ >>= 8;
    count_ -= std::min(count_, 8);
  }
  QByteArray bytes_;
  quint32 bits_ = 0;
  int count_ = 0;
};

// The picture's pixels in the GIF format's LZW codes, for a palette of 256.
QByteArray lzw(const QImage& image) {
  constexpr int kClear = 256;
  constexpr int kEnd = 257;
  constexpr int kMostCodes = 4096;
  QHash<int, int> table;
  BitWriter writer;
  int width = 9;
  int next = kEnd + 1;
  int prefix = -1;
  writer.write(kClear, width);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const int pixel = image.constScanLine(y)[x];
      const int key = prefix * 256 + pixel;
      if (prefix < 0 || table.contains(key)) {
        prefix = prefix < 0 ? pixel : table.value(key);
        continue;
      }
      writer.write(prefix, width);
      if (next < kMostCodes) {
        width += next == (1 << width) ? 1 : 0;
        table.insert(key, next++);
      } else {
        writer.write(kClear, width);
        table.clear();
        width = 9;
        next = kEnd + 1;
      }
      prefix = pixel;
    }
  }
  writer.write(prefix, width);
  width += next == (1 << width) && width < 12 ? 1 : 0;
  writer.write(kEnd, width);
  return writer.finish();
}

QByteArray subBlocks(const QByteArray& bytes) {
  QByteArray blocks;
  for (qsizetype at = 0; at < bytes.size(); at += 255) {
    const QByteArray part = bytes.mid(at, 255);
    blocks.append(static_cast<char>(part.size())).append(part);
  }
  return blocks.append('\0');
}

QByteArray gif(const QList<QImage>& frames) {
  const QByteArray size = little(static_cast<quint32>(kBarSize.width()), 2) +
                          little(static_cast<quint32>(kBarSize.height()), 2);
  QByteArray bytes = QByteArray("GIF89a") + size + QByteArray("\xF7\0\0", 3);
  QList<QRgb> palette = frames.first().colorTable();
  palette.resize(256);
  for (const QRgb colour : palette) {
    bytes.append(static_cast<char>(qRed(colour)))
        .append(static_cast<char>(qGreen(colour)))
        .append(static_cast<char>(qBlue(colour)));
  }
  bytes += QByteArray("\x21\xFF\x0BNETSCAPE2.0\x03\x01\0\0\0", 19);
  for (const QImage& frame : frames) {
    bytes += QByteArray("\x21\xF9\x04\x04", 4) + little(kBarHundredths, 2) + QByteArray(2, '\0');
    bytes += QByteArray(1, ',') + little(0, 4) + size + QByteArray("\0\x08", 2);
    bytes += subBlocks(lzw(frame));
  }
  return bytes.append(';');
}

// ---- What is written.

bool makeIcons(const QString& folder) {
  QSvgRenderer crest(folder + QStringLiteral("/quartela.svg"));
  bool good = crest.isValid();
  for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    crest.render(&painter);
    painter.end();
    QByteArray png;
    QBuffer buffer(&png);
    good = good && buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG") &&
           write(QStringLiteral("%1/quartela-%2.png").arg(folder).arg(side), png);
  }
  return good;
}

bool makeAnimations(const QString& from, const QString& to) {
  Scene scene(from);
  QList<QImage> scenes;
  for (int frame = 0; frame < kSceneFrames; ++frame) {
    scenes.append(drawScene(scene, frame));
  }
  QList<QImage> bars;
  for (int frame = 0; frame < kBarFrames; ++frame) {
    bars.append(drawBar(frame));
  }
  return scene.isValid() &&
         write(to + QStringLiteral("/FILEDELR.avi"), avi(withSharedPalette(scenes))) &&
         write(to + QStringLiteral("/progress.gif"), gif(withSharedPalette(bars)));
}

}  // namespace

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() != 2) {
    QTextStream(stderr) << "make_art <resources folder>\n";
    return 2;
  }
  const QString& folder = arguments[1];
  const bool good =
      makeIcons(folder + QStringLiteral("/icons")) &&
      makeAnimations(folder + QStringLiteral("/animations"), folder + QStringLiteral("/delivery"));
  return good ? 0 : 1;
}
