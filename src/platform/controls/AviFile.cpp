#include "platform/controls/AviFile.h"

#include <QFile>
#include <algorithm>

#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

constexpr int kLargestSide = 4096;
constexpr int kMostFrames = 10000;
constexpr int kDeepestList = 4;
constexpr qsizetype kChunkHead = 8;
constexpr qint64 kLargestFile = 16 * 1024 * 1024;

[[noreturn]] void refuse() {
  throw RuntimeError(ErrorNumber::InvalidPicture, QString(), QStringLiteral("AviFile"));
}

// A stretch of the file, with numbers read in the file's byte order; reading outside it is refused.
class Stretch {
 public:
  Stretch(const QByteArray& bytes, qsizetype begin, qsizetype length)
      : bytes_(bytes), begin_(begin), length_(length) {
    if (begin < 0 || length < 0 || begin > bytes.size() || length > bytes.size() - begin) {
      refuse();
    }
  }

  qsizetype begin() const { return begin_; }
  qsizetype length() const { return length_; }

  QByteArray text(qsizetype at, qsizetype count) const {
    return bytes_.mid(part(at, count).begin_, count);
  }
  quint32 u32(qsizetype at) const { return littleEndian(at, 4); }
  quint16 u16(qsizetype at) const { return static_cast<quint16>(littleEndian(at, 2)); }
  qint32 i32(qsizetype at) const { return static_cast<qint32>(u32(at)); }
  quint8 u8(qsizetype at) const { return static_cast<quint8>(littleEndian(at, 1)); }

  Stretch part(qsizetype at, qsizetype count) const {
    if (at < 0 || count < 0 || at > length_ || count > length_ - at) {
      refuse();
    }
    return {bytes_, begin_ + at, count};
  }

 private:
  // The number of `count` bytes, up to four, the lowest first.
  quint32 littleEndian(qsizetype at, qsizetype count) const {
    const Stretch place = part(at, count);
    quint32 number = 0;
    for (qsizetype i = count - 1; i >= 0; --i) {
      number = number << 8 | static_cast<quint8>(bytes_.at(place.begin_ + i));
    }
    return number;
  }

  const QByteArray& bytes_;
  qsizetype begin_;
  qsizetype length_;
};

// Calls `visit(id, contents)` for each chunk of `list`.
template <typename Visit>
void forEachChunk(const Stretch& list, Visit visit) {
  qsizetype at = 0;
  while (list.length() - at >= kChunkHead) {
    const QByteArray id = list.text(at, 4);
    const qsizetype length = list.u32(at + 4);
    visit(id, list.part(at + kChunkHead, length));
    at += kChunkHead + length + (length & 1);
  }
}

}  // namespace

// Walks the chunks once and fills an AviFile.
class AviReader {
 public:
  explicit AviReader(AviFile& file) : file_(file) {}

  void read() {
    const Stretch whole(file_.bytes_, 0, file_.bytes_.size());
    if (whole.text(0, 4) != "RIFF" || whole.text(8, 4) != "AVI ") {
      refuse();
    }
    const qsizetype length = whole.u32(4);
    walk(whole.part(kChunkHead, length).part(4, std::max<qsizetype>(length - 4, 0)), 0);
    if (track_ < 0 || file_.frames_.isEmpty()) {
      refuse();
    }
  }

 private:
  void walk(const Stretch& list, int depth) {
    if (depth > kDeepestList) {
      refuse();
    }
    forEachChunk(list, [this, depth](const QByteArray& id, const Stretch& chunk) {
      if (id == "LIST") {
        walk(chunk.part(4, chunk.length() - 4), depth + 1);
      } else {
        take(id, chunk);
      }
    });
  }

  void take(const QByteArray& id, const Stretch& chunk) {
    if (id == "avih") {
      file_.frameMilliseconds_ = static_cast<int>(std::clamp(chunk.u32(0) / 1000, 1U, 10000U));
    } else if (id == "strh") {
      ++tracks_;
      pictures_ = track_ < 0 && chunk.text(0, 4) == "vids";
    } else if (id == "strf" && pictures_) {
      takeFormat(chunk);
      track_ = tracks_ - 1;
      pictures_ = false;
    } else if (track_ >= 0 && isFrame(id)) {
      takeFrame(chunk);
    }
  }

  // Frames bear the track's two digits and "db" or "dc".
  bool isFrame(const QByteArray& id) const {
    const QByteArray digits = QByteArray::number(track_).rightJustified(2, '0');
    return id == digits + "db" || id == digits + "dc";
  }

  void takeFrame(const Stretch& chunk) {
    if (file_.frames_.size() >= kMostFrames) {
      refuse();
    }
    file_.frames_.append({chunk.begin(), chunk.length()});
  }

  void takeFormat(const Stretch& format) {
    const qsizetype headLength = format.u32(0);
    const qint32 width = format.i32(4);
    const qint32 height = format.i32(8);
    file_.bitCount_ = format.u16(14);
    const quint32 compression = format.u32(16);
    const bool plain = compression == 0 &&
                       (file_.bitCount_ == 8 || file_.bitCount_ == 24 || file_.bitCount_ == 32);
    file_.runLength_ = compression == 1 && file_.bitCount_ == 8;
    file_.topDown_ = height < 0;
    if (!(plain || file_.runLength_) || width < 1 || width > kLargestSide || height == 0 ||
        height < -kLargestSide || height > kLargestSide) {
      refuse();
    }
    file_.size_ = QSize(width, std::abs(height));
    takePalette(format, headLength);
  }

  // The palette stands behind the head, four bytes a colour: blue, green, red, nothing.
  void takePalette(const Stretch& format, qsizetype headLength) {
    if (file_.bitCount_ != 8) {
      return;
    }
    const quint32 used = format.u32(32);
    const qsizetype count = used == 0 || used > 256 ? 256 : static_cast<qsizetype>(used);
    const Stretch palette = format.part(headLength, count * 4);
    for (qsizetype i = 0; i < count; ++i) {
      file_.palette_.append(qRgb(palette.u8(i * 4 + 2), palette.u8(i * 4 + 1), palette.u8(i * 4)));
    }
  }

  AviFile& file_;
  int tracks_ = 0;
  int track_ = -1;
  bool pictures_ = false;
};

AviFile AviFile::read(const QString& path) {
  QFile file(path);
  if (!file.exists()) {
    throw RuntimeError(ErrorNumber::FileNotFound, path, QStringLiteral("AviFile"));
  }
  if (!file.open(QIODevice::ReadOnly)) {
    throw RuntimeError(ErrorNumber::PathFileAccess, path, QStringLiteral("AviFile"));
  }
  if (file.size() > kLargestFile) {
    refuse();
  }
  return parse(file.readAll());
}

AviFile AviFile::parse(const QByteArray& bytes) {
  AviFile file;
  file.bytes_ = bytes;
  AviReader(file).read();
  return file;
}

QImage AviFile::canvas() const {
  QImage image(size_, QImage::Format_RGB32);
  image.fill(colour(0));
  return image;
}

void AviFile::draw(int index, QImage& canvas) const {
  if (index < 0 || index >= frameCount() || canvas.size() != size_) {
    return;
  }
  const QByteArray pixels =
      QByteArray::fromRawData(bytes_.constData() + frames_[index].offset, frames_[index].length);
  if (runLength_) {
    drawRuns(pixels, canvas);
  } else {
    drawRows(pixels, canvas);
  }
}

// Rows of pixels, each filled up to four bytes, the lowest row first as a rule. A frame that is too
// short shows nothing new.
void AviFile::drawRows(const QByteArray& pixels, QImage& canvas) const {
  const qsizetype step = bitCount_ / 8;
  const qsizetype rowLength = (size_.width() * step + 3) / 4 * 4;
  if (pixels.size() < rowLength * size_.height()) {
    return;
  }
  for (int row = 0; row < size_.height(); ++row) {
    const char* from = pixels.constData() + row * rowLength;
    const int y = topDown_ ? row : size_.height() - 1 - row;
    auto* const line = reinterpret_cast<QRgb*>(canvas.scanLine(y));
    for (int x = 0; x < size_.width(); ++x, from += step) {
      const auto byte = [from](int i) { return static_cast<quint8>(from[i]); };
      line[x] = step == 1 ? colour(byte(0)) : qRgb(byte(2), byte(1), byte(0));
    }
  }
}

namespace {

// Where the run-length decoder stands; rows count from the bottom. Pixels outside the canvas fall
// away.
struct Pen {
  QImage& canvas;
  int x = 0;
  int row = 0;

  void put(QRgb colour) {
    if (x < canvas.width() && row < canvas.height()) {
      canvas.setPixel(x++, canvas.height() - 1 - row, colour);
    }
  }
  void jump(int pixels, int rows) {
    x = std::min(x + pixels, canvas.width());
    row += rows;
  }
  bool outside() const { return row >= canvas.height(); }
};

}  // namespace

// Pairs of bytes: a count and a colour, or 0 and an order: 0 end of row, 1 end of picture, 2 a jump
// over pixels that stay, 3 and above that many single pixels, filled up to two bytes.
void AviFile::drawRuns(const QByteArray& pixels, QImage& canvas) const {
  Pen pen{canvas};
  const auto byte = [&pixels](qsizetype i) { return static_cast<quint8>(pixels[i]); };
  qsizetype at = 0;
  while (at + 1 < pixels.size() && !pen.outside()) {
    const int count = byte(at);
    const int order = byte(at + 1);
    at += 2;
    if (count > 0) {
      for (int i = 0; i < count; ++i) {
        pen.put(colour(static_cast<quint8>(order)));
      }
    } else if (order == 0) {
      pen.x = 0;
      ++pen.row;
    } else if (order == 1) {
      return;
    } else if (order == 2) {
      if (at + 1 >= pixels.size()) {
        return;
      }
      pen.jump(byte(at), byte(at + 1));
      at += 2;
    } else {
      const qsizetype end = std::min<qsizetype>(at + order, pixels.size());
      for (qsizetype i = at; i < end; ++i) {
        pen.put(colour(byte(i)));
      }
      at += order + (order & 1);
    }
  }
}

}  // namespace quartela
