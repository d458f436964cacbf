// A line for an amount of money, in the Brazilian form.
//
// Digits, dots and commas are typed as they are, and the keypad's decimal key types a comma; other
// keys are swallowed. What the amount is, the whole text says: with a comma, dots are thousands
// ("1.500,00"); dots alone in front of three digits each are thousands ("1.500"); one dot in front
// of one or two digits is the decimal comma ("1500.5"). "R$" in front and blanks around are passed
// over. So the same is read however it was typed or pasted.
//
// Leaving the field, or Enter, writes the amount by the format. Anything else, more than fourteen
// digits in front of the comma included, is refused then: the text stays, the field is outlined,
// and the reason is said beside it.
#pragma once

#include <QLineEdit>
#include <QString>

#include "platform/values/Money.h"

namespace quartela {

class MoneyEdit : public QLineEdit {
  Q_OBJECT
  Q_PROPERTY(QString format READ format WRITE setFormat)
  Q_PROPERTY(bool negativeAllowed READ isNegativeAllowed WRITE setNegativeAllowed)
 public:
  explicit MoneyEdit(QWidget* parent = nullptr);

  // The amount shown; error 13 when the field is empty or shows no amount, 6 out of range. Both say
  // what is wrong.
  Money value() const;
  void setValue(Money value);
  bool isEmpty() const { return text().trimmed().isEmpty(); }

  // "#,##0.00;(#,##0.00)" at first.
  const QString& format() const { return format_; }
  void setFormat(const QString& format) { format_ = format; }
  // Whether an amount below zero can be typed; false at first. The program may show one.
  bool isNegativeAllowed() const { return negativeAllowed_; }
  void setNegativeAllowed(bool allowed) { negativeAllowed_ = allowed; }

  // What was typed is no amount; the field is outlined.
  bool isRefused() const { return refused_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  // What of `typed` can be part of an amount.
  QString accepted(const QString& typed) const;
  void typeComma();
  // Takes the thousands dots and the brackets of a written amount away, so that typing inside
  // cannot break the groups.
  void bare();
  // False when what was typed is no amount.
  bool complete();
  void setRefused(bool refused, const QString& why = {});

  QString format_;
  bool negativeAllowed_ = false;
  bool refused_ = false;
};

}  // namespace quartela
