#include "platform/controls/DatePicker.h"

#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QDate>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QRegularExpressionMatch>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/controls/Refusal.h"
#include "platform/values/Clock.h"
#include "platform/values/Convert.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

const QString kHint = QStringLiteral(
    "Data: dia, mês e ano com quatro algarismos.\n"
    "H: hoje   + e -: dia seguinte e anterior\n"
    "Ctrl+Delete: deixa vazio   F4: calendário");

constexpr int kPopupMargin = 6;

QDate toQDate(DateTime date) {
  return QDate(date.year(), date.month(), date.day());
}

// A small month sheet, drawn, so that it follows the colours and the resolution of the screen.
QIcon calendarIcon(const QPalette& colours) {
  QIcon icon;
  for (const int scale : {1, 2}) {
    QPixmap sheet(16 * scale, 16 * scale);
    sheet.setDevicePixelRatio(scale);
    sheet.fill(Qt::transparent);
    QPainter painter(&sheet);
    const QColor line = colours.color(QPalette::Text);
    painter.setPen(line);
    painter.drawRect(QRectF(1.5, 2.5, 12, 11));
    painter.fillRect(QRectF(2, 3, 12, 3), colours.color(QPalette::Highlight));
    for (int day = 0; day < 6; ++day) {
      painter.fillRect(QRectF(4 + day % 3 * 3.5, 8 + day / 3 * 3, 2, 2), line);
    }
    painter.end();
    icon.addPixmap(sheet);
  }
  return icon;
}

std::optional<DateTime> fromShown(const QString& shown) {
  return DateTime::fromParts(shown.mid(6, 4).toInt(), shown.mid(3, 2).toInt(),
                             shown.left(2).toInt());
}

QString toShown(DateTime date) {
  return QStringLiteral("%1/%2/%3")
      .arg(date.day(), 2, 10, QLatin1Char('0'))
      .arg(date.month(), 2, 10, QLatin1Char('0'))
      .arg(date.year(), 4, 10, QLatin1Char('0'));
}

// Dashes, dots and blanks for slashes; day and month with two digits in a whole date.
QString withSlashes(const QString& typed) {
  static const QRegularExpression separator(QStringLiteral("[-. ]"));
  static const QRegularExpression date(QStringLiteral("^([0-9]{1,2})/([0-9]{1,2})/([0-9]{4})$"));
  const QString slashed = typed.trimmed().replace(separator, QStringLiteral("/"));
  const QRegularExpressionMatch whole = date.match(slashed);
  if (!whole.hasMatch()) {
    return slashed;
  }
  const auto part = [&whole](int n) {
    return whole.captured(n).rightJustified(2, QLatin1Char('0'));
  };
  return part(1) + QLatin1Char('/') + part(2) + QLatin1Char('/') + whole.captured(3);
}

}  // namespace

DatePicker::DatePicker(QWidget* parent) : MaskedBox(parent), minimum_(DateTime::of(1900, 1, 1)) {
  setMask(QStringLiteral("##/##/####"));
  setToolTip(kHint);
  QAction* calendar = addAction(calendarIcon(palette()), QLineEdit::TrailingPosition);
  calendar->setText(QStringLiteral("Calendário"));
  calendar->setToolTip(QStringLiteral("Calendário (F4)"));
  connect(calendar, &QAction::triggered, this, &DatePicker::openCalendar);
  // Whichever the toolkit says first, nobody hears of a text whose value is still the former one.
  connect(this, &QLineEdit::textEdited, this, &DatePicker::follow);
  connect(this, &QLineEdit::textChanged, this, &DatePicker::follow);
  describe();
}

Value DatePicker::value() const {
  return date_ ? Value(*date_) : Value();
}

void DatePicker::setValue(const Value& value) {
  if (value.isNull()) {
    if (!optional_) {
      throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    take({});
    return;
  }
  const DateTime date = Convert::toDateTime(value).date();
  if (!isWithinLimits(date)) {
    throw RuntimeError(ErrorNumber::Overflow);
  }
  take(date);
}

void DatePicker::setToday() {
  take(Clock::today());
}

void DatePicker::setOptional(bool optional) {
  optional_ = optional;
  if (!optional && isEmpty()) {
    setToday();
  }
}

bool DatePicker::isWithinLimits(DateTime date) const {
  return !(minimum_ && date < *minimum_) && !(maximum_ && date > *maximum_);
}

std::optional<Value> DatePicker::meaning() const {
  if (isMaskEmpty()) {
    return optional_ ? std::optional<Value>(Value()) : std::nullopt;
  }
  const std::optional<DateTime> date = isComplete() ? fromShown(text()) : std::nullopt;
  return date && isWithinLimits(*date) ? std::optional<Value>(Value(*date)) : std::nullopt;
}

// Called for each change of what is typed.
void DatePicker::follow() {
  const std::optional<Value> meant = meaning();
  setInvalid(!meant && isComplete());
  if (!meant || *meant == value()) {
    return;
  }
  date_ = meant->isNull() ? std::nullopt : std::optional<DateTime>(meant->dateTime());
  describe();
  emit valueChanged();
}

bool DatePicker::commit() {
  if (meaning()) {
    return true;
  }
  const QString typed = text();
  render();
  refuse(typed);
  return false;
}

void DatePicker::refuse(const QString& typed) {
  setInvalid(true);
  setToolTip(QStringLiteral("%1 não é uma data: voltou o valor anterior.\n\n").arg(typed) + kHint);
  emit typingRefused(typed);
}

void DatePicker::take(std::optional<DateTime> date) {
  const bool changed = date != date_;
  date_ = date;
  setInvalid(false);
  render();
  if (changed) {
    emit valueChanged();
  }
}

void DatePicker::render() {
  setText(date_ ? toShown(*date_) : QString());
  describe();
}

// Readers of the screen hear the prompts as nothing of use.
void DatePicker::describe() {
  setAccessibleDescription(isEmpty() ? QStringLiteral("vazio") : QString());
}

void DatePicker::setInvalid(bool invalid) {
  if (invalid_ != invalid) {
    invalid_ = invalid;
    setToolTip(kHint);
    update();
  }
}

bool DatePicker::isWhole() const {
  return date_ && meaning() == Value(*date_);
}

void DatePicker::moveBy(int days) {
  if (!isWhole()) {
    return;
  }
  if (isWithinLimits(date_->addDays(days))) {
    take(date_->addDays(days));
  }
  selectAll();
}

void DatePicker::pressToday() {
  const DateTime today = Clock::today();
  if (isWithinLimits(today)) {
    take(today);
  } else {
    refuse(toShown(today));
  }
  selectAll();
}

// A dash is a slash as long as the date is being typed: it is not whole, or the caret has just been
// brought behind a slash.
bool DatePicker::isSlash(const QKeyEvent& event) const {
  const int caret = cursorPosition();
  const bool behindSlash =
      !hasSelectedText() && caret > 0 && text().at(caret - 1) == QLatin1Char('/');
  return event.key() == Qt::Key_Minus && (!isWhole() || behindSlash);
}

void DatePicker::endPart() {
  const QString shown = text();
  const int caret = cursorPosition();
  const bool oneDigit = !hasSelectedText() && (caret == 1 || caret == 4) &&
                        shown.at(caret - 1).isDigit() && shown.at(caret) == kPrompt;
  if (oneDigit) {
    setCursorPosition(caret - 1);
    MaskedBox::type(QLatin1Char('0') + shown.mid(caret - 1, 1));
  }
}

void DatePicker::type(const QString& characters) {
  const QString typed =
      characters == QStringLiteral(" ") ? QStringLiteral("/") : withSlashes(characters);
  if (typed == QStringLiteral("/")) {
    endPart();
  }
  MaskedBox::type(typed);
}

bool DatePicker::pressDateKey(QKeyEvent* event) {
  const bool withControl = event->modifiers() == Qt::ControlModifier;
  const bool plain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  const int key = event->key();
  if ((plain && key == Qt::Key_H) || (withControl && key == Qt::Key_Semicolon)) {
    pressToday();
  } else if (plain && (key == Qt::Key_Plus || key == Qt::Key_Minus) && !isSlash(*event)) {
    moveBy(key == Qt::Key_Plus ? 1 : -1);
  } else {
    return pressEmptyKey(event);
  }
  return true;
}

bool DatePicker::pressEmptyKey(QKeyEvent* event) {
  const bool isDelete = event->key() == Qt::Key_Delete;
  const bool withControl = event->modifiers() == Qt::ControlModifier;
  const bool all = selectedText().size() == text().size();
  const bool empties = isDelete && (withControl || all);
  if (empties && optional_) {
    take({});
  }
  return empties;
}

void DatePicker::keyPressEvent(QKeyEvent* event) {
  const bool opens = event->key() == Qt::Key_F4 ||
                     (event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier);
  const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool refused = enters && !commit();
  if (refused) {
    selectAll();
  } else if (opens && !isReadOnly()) {
    openCalendar();
  } else if (isReadOnly() || !pressDateKey(event)) {
    MaskedBox::keyPressEvent(event);
    return;
  }
  event->accept();
}

// The calendar's picture is drawn in the colours of the field.
bool DatePicker::event(QEvent* event) {
  if (event->type() == QEvent::PaletteChange && !actions().isEmpty()) {
    actions().constFirst()->setIcon(calendarIcon(palette()));
  }
  return MaskedBox::event(event);
}

void DatePicker::focusOutEvent(QFocusEvent* event) {
  if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::MenuBarFocusReason) {
    commit();
  }
  MaskedBox::focusOutEvent(event);
}

void DatePicker::paintEvent(QPaintEvent* event) {
  MaskedBox::paintEvent(event);
  if (invalid_) {
    paintRefusal(*this);
  }
}

QSize DatePicker::sizeHint() const {
  const QSize line = MaskedBox::sizeHint();
  const int width = fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000 "));
  const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
  return {width + icon * 2 + fontMetrics().horizontalAdvance(QLatin1Char('0')), line.height()};
}

void DatePicker::pickFrom(const QDate& date) {
  take(DateTime::of(date.year(), date.month(), date.day()));
  selectAll();
}

QWidget* DatePicker::makeCalendarPopup() {
  auto* popup = new QFrame(this, Qt::Popup);
  popup->setAttribute(Qt::WA_DeleteOnClose);
  popup->setFrameShape(QFrame::StyledPanel);
  auto* calendar = new QCalendarWidget(popup);
  calendar->setLocale(QLocale(QStringLiteral("pt_BR")));
  calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar->setGridVisible(false);
  if (minimum_) {
    calendar->setMinimumDate(toQDate(*minimum_));
  }
  if (maximum_) {
    calendar->setMaximumDate(toQDate(*maximum_));
  }
  calendar->setSelectedDate(toQDate(date_.value_or(Clock::today())));
  const auto pick = [this, popup](const QDate& date) {
    popup->close();
    pickFrom(date);
  };
  connect(calendar, &QCalendarWidget::clicked, popup, pick);
  connect(calendar, &QCalendarWidget::activated, popup, pick);

  auto* today = new QPushButton(QStringLiteral("&Hoje"), popup);
  today->setEnabled(isWithinLimits(Clock::today()));
  connect(today, &QPushButton::clicked, popup, [pick] { pick(toQDate(Clock::today())); });
  auto* none = new QPushButton(QStringLiteral("&Vazio"), popup);
  none->setEnabled(optional_);
  connect(none, &QPushButton::clicked, popup, [this, popup] {
    popup->close();
    take({});
  });

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(today);
  buttons->addStretch();
  buttons->addWidget(none);
  auto* layout = new QVBoxLayout(popup);
  layout->setContentsMargins(kPopupMargin, kPopupMargin, kPopupMargin, kPopupMargin);
  layout->addWidget(calendar);
  layout->addLayout(buttons);
  popup->setFocusProxy(calendar);
  return popup;
}

void DatePicker::openCalendar() {
  if (isReadOnly() || !isEnabled()) {
    return;
  }
  commit();
  QWidget* popup = makeCalendarPopup();
  popup->adjustSize();
  const QRect room = screen()->availableGeometry();
  QPoint place = mapToGlobal(rect().bottomLeft());
  if (place.y() + popup->height() > room.bottom()) {
    place.setY(mapToGlobal(rect().topLeft()).y() - popup->height());
  }
  place.setX(
      std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - popup->width())));
  popup->move(place);
  popup->show();
  popup->focusProxy()->setFocus();
}

}  // namespace quartela
