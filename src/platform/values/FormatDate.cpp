#include <QChar>
#include <array>

#include "platform/values/FormatText.h"

namespace quartela {
namespace {

constexpr std::array<std::u16string_view, 12> kMonths{
    u"janeiro", u"fevereiro", u"março",    u"abril",   u"maio",     u"junho",
    u"julho",   u"agosto",    u"setembro", u"outubro", u"novembro", u"dezembro"};

constexpr int kYearDigits = 4;
constexpr int kMonthName = 4;

void appendNumber(int number, int digits, Characters& out) {
  std::array<char16_t, 12> reversed{};
  std::size_t count = 0;
  while (number > 0 || count < static_cast<std::size_t>(digits)) {
    reversed[count++] = static_cast<char16_t>(u'0' + number % 10);
    number /= 10;
  }
  while (count > 0) {
    out.append(reversed[--count]);
  }
}

}  // namespace

DateFormat::DateFormat(QStringView format) {
  for (qsizetype i = 0; i < format.size();) {
    const char16_t letter = format[i].toLower().unicode();
    if (letter == u'\\' && i + 1 < format.size()) {
      pieces_.push_back({Kind::Literal, format[i + 1].unicode()});
      i += 2;
      continue;
    }
    if (!QStringView(u"dmyhs").contains(letter)) {
      pieces_.push_back({Kind::Literal, format[i].unicode()});
      ++i;
      continue;
    }
    const qsizetype start = i;
    while (i < format.size() && format[i].toLower() == letter) {
      ++i;
    }
    takeRun(letter, static_cast<int>(i - start));
  }
}

void DateFormat::takeRun(char16_t letter, int length) {
  const auto digits = static_cast<char16_t>(length >= 2 ? 2 : 1);
  switch (letter) {
    case u'd':
      return pieces_.push_back({Kind::Day, digits});
    case u'y':
      return pieces_.push_back({Kind::Year, static_cast<char16_t>(length > 2 ? kYearDigits : 2)});
    case u'h':
      return pieces_.push_back({Kind::Hour, digits});
    case u's':
      return pieces_.push_back({Kind::Second, digits});
    default:
      break;
  }
  if (isBehindHour()) {
    pieces_.push_back({Kind::Minute, digits});
  } else {
    pieces_.push_back({length >= kMonthName ? Kind::MonthName : Kind::Month, digits});
  }
}

// Whether the last piece that is no literal is the hour.
bool DateFormat::isBehindHour() const {
  for (auto piece = pieces_.rbegin(); piece != pieces_.rend(); ++piece) {
    if (piece->kind != Kind::Literal) {
      return piece->kind == Kind::Hour;
    }
  }
  return false;
}

void DateFormat::write(DateTime date, Characters& out) const {
  for (const Piece& piece : pieces_) {
    switch (piece.kind) {
      case Kind::Literal:
        out.append(piece.detail);
        break;
      case Kind::Day:
        appendNumber(date.day(), piece.detail, out);
        break;
      case Kind::Month:
        appendNumber(date.month(), piece.detail, out);
        break;
      case Kind::MonthName: {
        const auto name = kMonths[static_cast<std::size_t>(date.month() - 1)];
        out.append(name.data(), static_cast<int>(name.size()));
        break;
      }
      case Kind::Year:
        appendNumber(piece.detail == kYearDigits ? date.year() : date.year() % 100, piece.detail,
                     out);
        break;
      case Kind::Hour:
        appendNumber(date.hour(), piece.detail, out);
        break;
      case Kind::Minute:
        appendNumber(date.minute(), piece.detail, out);
        break;
      case Kind::Second:
        appendNumber(date.second(), piece.detail, out);
        break;
    }
  }
}

}  // namespace quartela
