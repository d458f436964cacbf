#include "platform/database/dialect/DateLiteral.h"

#include <array>

namespace quartela::dialect {
namespace {

class Digits {
 public:
  explicit Digits(QStringView text) : text_(text) {}

  // A number of at most `most` digits.
  bool number(int most, int& value) {
    qsizetype end = position_;
    value = 0;
    while (end < text_.size() && end - position_ < most && digitAt(end) >= 0) {
      value = value * 10 + digitAt(end++);
    }
    const bool read = end > position_;
    position_ = end;
    return read;
  }

  bool sign(char16_t wanted) {
    if (position_ >= text_.size() || text_[position_] != QChar(wanted)) {
      return false;
    }
    ++position_;
    return true;
  }

  void blanks() {
    while (sign(u' ')) {
    }
  }

  bool atEnd() const { return position_ == text_.size(); }

 private:
  int digitAt(qsizetype position) const {
    const char16_t unit = text_[position].unicode();
    return unit >= u'0' && unit <= u'9' ? unit - u'0' : -1;
  }

  QStringView text_;
  qsizetype position_ = 0;
};

bool readDay(Digits& digits, std::array<int, 3>& day) {
  if (!digits.number(4, day[0])) {
    return false;
  }
  const char16_t separator = digits.sign(u'/') ? u'/' : u'-';
  return (separator == u'/' || digits.sign(separator)) && digits.number(2, day[1]) &&
         digits.sign(separator) && digits.number(2, day[2]);
}

bool readTime(Digits& digits, std::array<int, 3>& time) {
  digits.blanks();
  if (digits.atEnd()) {
    return true;
  }
  if (!digits.number(2, time[0]) || !digits.sign(u':') || !digits.number(2, time[1])) {
    return false;
  }
  return digits.atEnd() || (digits.sign(u':') && digits.number(2, time[2]) && digits.atEnd());
}

}  // namespace

std::optional<DateTime> readDate(QStringView text) {
  Digits digits(text);
  std::array<int, 3> day{};
  std::array<int, 3> time{};
  if (!readDay(digits, day) || !readTime(digits, time)) {
    return std::nullopt;
  }
  return DateTime::fromParts(day[0], day[1], day[2], time[0], time[1], time[2]);
}

}  // namespace quartela::dialect
