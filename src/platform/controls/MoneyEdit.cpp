#include "platform/controls/MoneyEdit.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QRegularExpressionMatch>

#include "platform/controls/Refusal.h"
#include "platform/controls/TypedText.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

// An amount without its sign, as it may stand in the field.
struct Written {
  QString amount;
  bool negative = false;
};

const QRegularExpression& groupedAmount() {
  static const QRegularExpression pattern(
      QStringLiteral("^[0-9]{1,3}(\\.[0-9]{3})+(,[0-9]{0,2})?$"));
  return pattern;
}

const QRegularExpression& plainAmount() {
  static const QRegularExpression pattern(QStringLiteral("^[0-9]*(,[0-9]{0,2})?$"));
  return pattern;
}

// The one dot of these can only be meant as the decimal comma.
const QRegularExpression& dottedDecimals() {
  static const QRegularExpression pattern(QStringLiteral("^[0-9]*\\.[0-9]{1,2}$"));
  return pattern;
}

// Fourteen digits before the comma are the most that an amount can always have.
const QRegularExpression& tooLongAmount() {
  static const QRegularExpression pattern(QStringLiteral("^0*[1-9][0-9]{14,}(,|$)"));
  return pattern;
}

bool isBracketed(const QString& text) {
  return text.startsWith(QLatin1Char('(')) && text.endsWith(QLatin1Char(')'));
}

bool takeSign(QString& text) {
  const bool negative = text.startsWith(QLatin1Char('-'));
  if (negative) {
    text = text.mid(1).trimmed();
  }
  return negative;
}

Written written(const QString& shown) {
  QString text = shown.trimmed();
  const bool bracketed = isBracketed(text);
  if (bracketed) {
    text = text.mid(1, text.size() - 2).trimmed();
  }
  bool negative = takeSign(text) || bracketed;
  if (text.startsWith(QStringLiteral("R$"), Qt::CaseInsensitive)) {
    text = text.mid(2).trimmed();
    negative = takeSign(text) || negative;
  }
  return {.amount = text, .negative = negative};
}

[[noreturn]] void refuse(ErrorNumber number, const QString& shown, const char* why) {
  throw RuntimeError::withDescription(
      number, QStringLiteral("“%1” %2").arg(shown.trimmed(), QString::fromUtf8(why)));
}

Money amountOf(const QString& shown, const Written& text) {
  QString amount = text.amount;
  if (dottedDecimals().match(amount).hasMatch()) {
    amount.replace(QLatin1Char('.'), QLatin1Char(','));
  }
  const bool known =
      plainAmount().match(amount).hasMatch() || groupedAmount().match(amount).hasMatch();
  if (!known || !Convert::isNumeric(amount)) {
    refuse(ErrorNumber::TypeMismatch, shown, "não é um valor. Escreva, por exemplo, 1.234,56.");
  }
  if (tooLongAmount().match(QString(amount).remove(QLatin1Char('.'))).hasMatch()) {
    refuse(ErrorNumber::Overflow, shown, "tem mais de 14 algarismos antes da vírgula.");
  }
  const Money money = Convert::toMoney(amount);
  return text.negative ? -money : money;
}

}  // namespace

MoneyEdit::MoneyEdit(QWidget* parent)
    : QLineEdit(parent), format_(QStringLiteral("#,##0.00;(#,##0.00)")) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  connect(this, &QLineEdit::textChanged, this, [this] { setRefused(false); });
}

Money MoneyEdit::value() const {
  if (isEmpty()) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  const Written text = written(this->text());
  if (text.negative && !negativeAllowed_ && isModified()) {
    refuse(ErrorNumber::TypeMismatch, this->text(), "não pode ser menor que zero.");
  }
  return amountOf(this->text(), text);
}

void MoneyEdit::setValue(Money value) {
  setText(Format(value, format_));
}

QString MoneyEdit::accepted(const QString& typed) const {
  QString amount;
  for (const QChar character : typed) {
    const bool digit = character >= QLatin1Char('0') && character <= QLatin1Char('9');
    const bool mark = character == QLatin1Char('.') || character == QLatin1Char(',');
    if (digit || mark || (negativeAllowed_ && character == QLatin1Char('-'))) {
      amount += character;
    }
  }
  return amount;
}

void MoneyEdit::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool enters = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (enters && !complete()) {
    selectAll();
    event->accept();
    return;
  }
  const QString typed = typedText(*event);
  const bool edits = !event->text().isEmpty() || key == Qt::Key_Delete;
  if (!isReadOnly() && !enters && edits) {
    bare();
  }
  if (typed.isEmpty()) {
    QLineEdit::keyPressEvent(event);
    return;
  }
  event->accept();
  const bool decimalKey = event->modifiers().testFlag(Qt::KeypadModifier) &&
                          (key == Qt::Key_Comma || key == Qt::Key_Period);
  const QString amount = decimalKey ? QStringLiteral(",") : accepted(typed);
  if (isReadOnly() || amount.isEmpty()) {
    return;
  }
  if (amount == QStringLiteral(",")) {
    typeComma();
  } else {
    insert(amount);
  }
}

// Nothing is shown while an accent waits for its letter, so that it cannot take the selection away.
void MoneyEdit::inputMethodEvent(QInputMethodEvent* event) {
  const QString amount = accepted(event->commitString());
  if (!isReadOnly() && !amount.isEmpty()) {
    bare();
    insert(amount);
  }
  event->accept();
}

// The comma that stands already in front of the caret is stepped over.
void MoneyEdit::typeComma() {
  const bool isNext = !hasSelectedText() && cursorPosition() < text().size() &&
                      text().at(cursorPosition()) == QLatin1Char(',');
  if (isNext) {
    setCursorPosition(cursorPosition() + 1);
  } else {
    insert(QStringLiteral(","));
  }
}

// Only as long as the text is the program's: the operator's own dots stand where they were typed.
void MoneyEdit::bare() {
  const QString shown = text();
  const Written amount = written(shown);
  const bool dotted = groupedAmount().match(amount.amount).hasMatch();
  if (isModified() || !(dotted || isBracketed(shown))) {
    return;
  }
  const bool all = selectedText() == shown;
  const auto count = shown.left(cursorPosition()).count(QLatin1Char('.'));
  const int caret = cursorPosition() - static_cast<int>(count);
  QString plain = amount.amount;
  plain.remove(QLatin1Char('.'));
  setText(amount.negative ? QLatin1Char('-') + plain : plain);
  setCursorPosition(caret);
  if (all) {
    selectAll();
  }
}

bool MoneyEdit::complete() {
  if (isReadOnly() || isEmpty()) {
    return true;
  }
  try {
    const QString whole = Format(value(), format_);
    if (whole != text()) {
      setText(whole);
    }
    return true;
  } catch (const RuntimeError& error) {
    setRefused(true, error.description());
    return false;
  }
}

void MoneyEdit::setRefused(bool refused, const QString& why) {
  if (refused) {
    tellRefusal(*this, why);
  }
  if (refused_ != refused) {
    refused_ = refused;
    setToolTip(why);
    setAccessibleDescription(why);
    update();
  }
}

void MoneyEdit::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (!isReadOnly()) {
    bare();
  }
  if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
      event->reason() == Qt::ShortcutFocusReason) {
    selectAll();
  }
}

void MoneyEdit::focusOutEvent(QFocusEvent* event) {
  if (event->reason() != Qt::PopupFocusReason) {
    complete();
  }
  QLineEdit::focusOutEvent(event);
}

void MoneyEdit::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (refused_) {
    paintRefusal(*this);
  }
}

}  // namespace quartela
