// A date to type (dd/MM/yyyy) or to pick from a calendar, which may also be empty.
//
// value() follows what is typed as soon as it is a whole date, or nothing at all; until then it
// keeps the former value. Leaving the field, or Enter, with anything else shows the former value
// again and marks the field, so that nothing typed by half, and no day that does not exist, ever
// becomes a date. Years have four digits.
//
// Dashes, dots and blanks are typed and pasted for slashes too, and days and months may then have
// one digit ("5-1-2014").
//
// Keys: H or Ctrl+; today, where the limits allow it; + and - the next day and the one before,
// while a whole date is shown; Delete with everything selected, or Ctrl+Delete, empties; F4 or
// Alt+Down opens the calendar. The wheel does nothing.
#pragma once

#include <optional>

#include "platform/controls/MaskedBox.h"
#include "platform/values/Value.h"

class QCalendarWidget;
class QDate;

namespace quartela {

class DatePicker : public MaskedBox {
  Q_OBJECT
  // Whether it may be empty; true at first. One that may not begins with today.
  Q_PROPERTY(bool optional READ isOptional WRITE setOptional)
 public:
  explicit DatePicker(QWidget* parent = nullptr);

  // Null when empty, else a DateTime without a time of day.
  Value value() const;
  // A date, a text that is one, or null. Errors: 13 for anything else, and for null when the picker
  // may not be empty; 6 for a date beyond the limits.
  void setValue(const Value& value);
  void setToday();
  bool isEmpty() const { return !date_.has_value(); }

  bool isOptional() const { return optional_; }
  void setOptional(bool optional);
  // At first from 01/01/1900, the earliest that can be meant; nothing: no limit.
  void setMinimum(std::optional<DateTime> minimum) { minimum_ = minimum; }
  void setMaximum(std::optional<DateTime> maximum) { maximum_ = maximum; }

  // What was typed is no date; the field is marked.
  bool isInvalid() const { return invalid_; }

  void openCalendar();

  QSize sizeHint() const override;

 signals:
  void valueChanged();
  // What was typed was no date and has given way to the former value.
  void typingRefused(const QString& typed);

 protected:
  void type(const QString& characters) override;
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  using MaskedBox::setMask;
  using MaskedBox::setText;

  bool pressDateKey(QKeyEvent* event);
  void pressToday();
  bool isSlash(const QKeyEvent& event) const;
  // A slash behind the only digit of a day or month ends it.
  void endPart();
  bool pressEmptyKey(QKeyEvent* event);
  bool isWithinLimits(DateTime date) const;
  // What the shown text means: a date, null for nothing typed, or nothing when it is neither.
  std::optional<Value> meaning() const;
  void follow();
  // False when what was typed had to give way.
  bool commit();
  // What is shown is the value, and a date.
  bool isWhole() const;
  void moveBy(int days);
  void take(std::optional<DateTime> date);
  void refuse(const QString& typed);
  void render();
  void setInvalid(bool invalid);
  void describe();
  QWidget* makeCalendarPopup();
  void pickFrom(const QDate& date);

  std::optional<DateTime> date_;
  std::optional<DateTime> minimum_;
  std::optional<DateTime> maximum_;
  bool optional_ = true;
  bool invalid_ = false;
};

}  // namespace quartela
