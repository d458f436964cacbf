#include "platform/controls/UpperCase.h"

#include <QLineEdit>
#include <QValidator>

namespace quartela {
namespace {

class Capitals : public QValidator {
 public:
  using QValidator::QValidator;

  // Letter by letter, so that the text keeps its length and the caret its place (ß has no capital of
  // one letter and stays).
  State validate(QString& text, int&) const override {
    for (QChar& letter : text) {
      letter = letter.toUpper();
    }
    return Acceptable;
  }
};

}  // namespace

void typeUpperCase(QLineEdit& field) {
  field.setValidator(new Capitals(&field));
}

}  // namespace quartela
