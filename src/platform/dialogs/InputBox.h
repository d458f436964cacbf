// A box that asks for one line of text.
#pragma once

#include <QDialog>

#include "platform/dialogs/Dialogs.h"

class QLineEdit;

namespace quartela {

class InputBox : public QDialog {
  Q_OBJECT

 public:
  // Shows the request's text as it is, and its value all selected, so that typing replaces it.
  InputBox(const InputRequest& request, QWidget* parent);

  // What stands in the field.
  QString text() const;

 private:
  QLineEdit* field_;
};

}  // namespace quartela
