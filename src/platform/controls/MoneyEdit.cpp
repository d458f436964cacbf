#include "platform/controls/MoneyEdit.h"

#include <QKeyEvent>
#include <QRegularExpression>
#include <QRegularExpressionMatch>
#include <QValidator>

#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

// Fourteen digits before the comma are the most that an amount can always have.
const QRegularExpression& typedAmount() {
  static const QRegularExpression pattern(QStringLiteral("^-?[0-9]{0,14}(,[0-9]{0,2})?$"));
  return pattern;
}

const QRegularExpression& groupedAmount() {
  static const QRegularExpression pattern(
      QStringLiteral("^\\(?-?[0-9]{1,3}(\\.[0-9]{3}){1,4}(,[0-9]{0,2})?\\)?$"));
  return pattern;
}

// The dot of a text that can only be meant as the decimal comma.
const QRegularExpression& dottedDecimals() {
  static const QRegularExpression pattern(QStringLiteral("^-?[0-9]{0,14}\\.[0-9]{0,2}$"));
  return pattern;
}

bool isBracketed(const QString& text) {
  return text.startsWith(QLatin1Char('(')) && text.endsWith(QLatin1Char(')'));
}

class AmountValidator : public QValidator {
 public:
  explicit AmountValidator(const MoneyEdit* edit) : QValidator(nullptr), edit_(edit) {}

  State validate(QString& input, int& caret) const override {
    if (dottedDecimals().match(input).hasMatch()) {
      input.replace(QLatin1Char('.'), QLatin1Char(','));
    }
    const QString trimmed = input.trimmed();
    if (trimmed.size() != input.size()) {
      input = trimmed;
      caret = static_cast<int>(input.size());
    }
    if (input.contains(QLatin1Char('-')) && !edit_->isNegativeAllowed()) {
      return Invalid;
    }
    const bool amount =
        typedAmount().match(input).hasMatch() || groupedAmount().match(input).hasMatch();
    return amount ? Acceptable : Invalid;
  }

 private:
  const MoneyEdit* edit_;
};

}  // namespace

MoneyEdit::MoneyEdit(QWidget* parent)
    : QLineEdit(parent), format_(QStringLiteral("#,##0.00;(#,##0.00)")) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* validator = new AmountValidator(this);
  validator->setParent(this);
  setValidator(validator);
}

Money MoneyEdit::value() const {
  const QString shown = text().trimmed();
  if (isBracketed(shown)) {
    return -Convert::toMoney(shown.mid(1, shown.size() - 2));
  }
  return Convert::toMoney(shown);
}

void MoneyEdit::setValue(Money value) {
  setText(Format(value, format_));
}

void MoneyEdit::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool withControl = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  const bool isComma = !withControl && (key == Qt::Key_Comma || key == Qt::Key_Period);
  const bool enters = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (enters) {
    complete();
  } else if (!isReadOnly() && (!event->text().isEmpty() || key == Qt::Key_Delete)) {
    bare();
  }
  if (isComma) {
    typeComma();
    event->accept();
    return;
  }
  QLineEdit::keyPressEvent(event);
}

// The comma that stands already in front of the caret is stepped over.
void MoneyEdit::typeComma() {
  if (isReadOnly()) {
    return;
  }
  const bool isNext = !hasSelectedText() && cursorPosition() < text().size() &&
                      text().at(cursorPosition()) == QLatin1Char(',');
  if (isNext) {
    setCursorPosition(cursorPosition() + 1);
  } else {
    insert(QStringLiteral(","));
  }
}

void MoneyEdit::bare() {
  const QString shown = text();
  if (!groupedAmount().match(shown).hasMatch() && !isBracketed(shown)) {
    return;
  }
  const bool all = selectedText() == shown;
  const auto count = shown.left(cursorPosition()).count(QLatin1Char('.'));
  const int caret = cursorPosition() - static_cast<int>(count);
  QString plain = shown;
  plain.remove(QLatin1Char('.'));
  if (isBracketed(shown)) {
    plain = QLatin1Char('-') + plain.mid(1, plain.size() - 2);
  }
  setText(plain);
  setCursorPosition(caret);
  if (all) {
    selectAll();
  }
}

// What is no amount stays for the operator to see; value() refuses it.
void MoneyEdit::complete() {
  const QString shown = text().trimmed();
  const bool digits = shown.contains(QRegularExpression(QStringLiteral("[0-9]")));
  if (!digits) {
    if (shown == QStringLiteral(",") || shown == QStringLiteral("-")) {
      clear();
    }
    return;
  }
  try {
    const QString whole = Format(value(), format_);
    if (whole != text()) {
      setText(whole);
    }
  } catch (const RuntimeError&) {
    return;
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

}  // namespace quartela
