// A line for an amount of money, in the Brazilian form.
//
// The comma, the keypad's decimal key and the dot all type the decimal comma, so "12.50" becomes
// "12,50"; letters, a second comma and a third decimal are swallowed. Leaving the field, or Enter,
// completes the decimals and sets the thousands dots by the format. A pasted amount may bear
// thousands dots in proper groups; anything else that is no amount is not pasted.
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

  // The amount shown; error 13 when the field is empty or shows no amount, 6 out of range.
  Money value() const;
  void setValue(Money value);
  bool isEmpty() const { return text().trimmed().isEmpty(); }

  // "#,##0.00;(#,##0.00)" at first.
  const QString& format() const { return format_; }
  void setFormat(const QString& format) { format_ = format; }
  // Whether a minus sign can be typed; false at first.
  bool isNegativeAllowed() const { return negativeAllowed_; }
  void setNegativeAllowed(bool allowed) { negativeAllowed_ = allowed; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void typeComma();
  // Takes the thousands dots and the brackets away, so that typing inside cannot break the groups.
  void bare();
  void complete();

  QString format_;
  bool negativeAllowed_ = false;
};

}  // namespace quartela
