#include "platform/reporting/TextFit.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quartela::reporting {
namespace {

// Widths are sums of fractions; a twip too much is not to be seen.
constexpr double kTolerance = 1.0;

// The longest beginning of the text that fits into the width.
qsizetype fittingLength(const Face& face, QStringView text, double width) {
  qsizetype low = 0;
  qsizetype high = text.size();
  while (low < high) {
    const qsizetype middle = (low + high + 1) / 2;
    if (face.width(text.first(middle)) <= width + kTolerance) {
      low = middle;
    } else {
      high = middle - 1;
    }
  }
  // Never between the two halves of one letter.
  const bool halves = low > 0 && low < text.size() && text[low - 1].isHighSurrogate();
  return halves ? low - 1 : low;
}

QString cut(const Face& face, QStringView line, double width) {
  const double room = width - face.width(QStringView(&kCutSign, 1));
  QStringView kept = line.first(fittingLength(face, line, std::max(room, 0.0)));
  while (!kept.isEmpty() && kept.back().isSpace()) {
    kept.chop(1);
  }
  return kept.toString() + kCutSign;
}

// Takes the lines one after the other until the box is full.
class Fitting {
 public:
  Fitting(const Face& face, const TextBox& box)
      : face_(face),
        box_(box),
        limit_(box.grow ? std::numeric_limits<int>::max() : linesIn(face, box.height)) {}

  // One line of the text itself; false once the box is full.
  bool addParagraph(QStringView paragraph) {
    if (!box_.wrap) {
      if (face_.width(paragraph) <= box_.width + kTolerance) {
        return addLine(paragraph, kLineEnd);
      }
      cut_ = true;
      return addLine(cut(face_, paragraph, box_.width), kLineEnd);
    }
    QChar before = kLineEnd;
    do {
      const qsizetype length = lineLength(paragraph);
      const bool atBlank = length < paragraph.size() && paragraph[length] == QLatin1Char(' ');
      if (!addLine(paragraph.first(length), before)) {
        return false;
      }
      paragraph = paragraph.sliced(length);
      if (atBlank) {
        paragraph = paragraph.sliced(1);
      }
      before = atBlank ? kSoftBreak : kWordBreak;
    } while (!paragraph.isEmpty());
    return true;
  }

  FittedText result() const { return {text_, lines_, cut_}; }

 private:
  // How much of the paragraph stands on its first line.
  qsizetype lineLength(QStringView paragraph) const {
    const qsizetype length = fittingLength(face_, paragraph, box_.width);
    if (length == paragraph.size()) {
      return length;
    }
    const qsizetype blank = paragraph.first(length + 1).lastIndexOf(QLatin1Char(' '));
    if (blank > 0) {
      return blank;
    }
    const bool pair = paragraph.front().isHighSurrogate() && paragraph.size() > 1;
    return std::max<qsizetype>(length, pair ? 2 : 1);
  }

  bool addLine(QStringView line, QChar before) {
    if (lines_ == limit_) {
      cut_ = true;
      text_ =
          text_.first(lastStart_) + cut(face_, QStringView(text_).sliced(lastStart_), box_.width);
      return false;
    }
    if (lines_ > 0) {
      text_ += before;
    }
    lastStart_ = text_.size();
    text_ += line;
    ++lines_;
    return true;
  }

  const Face& face_;
  const TextBox& box_;
  const int limit_;
  QString text_;
  qsizetype lastStart_ = 0;
  int lines_ = 0;
  bool cut_ = false;
};

}  // namespace

int heightOfLines(const Face& face, int lines) {
  return static_cast<int>(std::ceil(face.lineHeight() * lines));
}

int linesIn(const Face& face, int height) {
  return std::max(1, static_cast<int>((height + kTolerance) / face.lineHeight()));
}

bool endsLine(QChar letter) {
  return letter == kLineEnd || letter == kSoftBreak || letter == kWordBreak;
}

FittedText fitText(const Face& face, const QString& text, const TextBox& box) {
  if (text.isEmpty()) {
    return {};
  }
  const bool plain = std::none_of(text.begin(), text.end(),
                                  [](QChar letter) { return letter < QLatin1Char(' '); });
  if (plain && face.width(text) <= box.width + kTolerance) {
    return {text, 1, false};
  }
  QString clean = text;
  clean.remove(QLatin1Char('\r')).remove(kSoftBreak).remove(kWordBreak);
  clean.replace(QLatin1Char('\t'), QLatin1Char(' '));
  Fitting fitting(face, box);
  for (const QStringView paragraph : QStringView(clean).split(kLineEnd)) {
    if (!fitting.addParagraph(paragraph)) {
      break;
    }
  }
  return fitting.result();
}

PartedText partText(const FittedText& text, int line) {
  qsizetype at = 0;
  for (int passed = 0; passed < line && at < text.text.size(); ++at) {
    passed += endsLine(text.text[at]) ? 1 : 0;
  }
  if (line <= 0 || line >= text.lines) {
    return line <= 0 ? PartedText{{}, text} : PartedText{text, {}};
  }
  return {{text.text.first(at - 1), line}, {text.text.sliced(at), text.lines - line}};
}

QString readable(const QString& fitted) {
  QString text = fitted;
  text.replace(kSoftBreak, QLatin1Char(' ')).remove(kWordBreak);
  return text;
}

}  // namespace quartela::reporting
