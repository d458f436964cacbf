#include "platform/dialogs/InputBox.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/dialogs/ToolkitDialogs.h"

namespace quartela {
namespace {

constexpr int kWidth = 380;

}  // namespace

InputBox::InputBox(const InputRequest& request, QWidget* parent)
    : QDialog(parent), field_(new QLineEdit(request.initialValue)) {
  setWindowTitle(shownTitle(request.title));
  // Without a buddy an "&" in the text stays an "&".
  auto* const label = new QLabel(request.text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  field_->setAccessibleName(request.text);
  field_->selectAll();
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("OK"));
  buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Cancelar"));
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(label);
  layout->addWidget(field_);
  layout->addWidget(buttons);
  setMinimumWidth(kWidth);
  field_->setFocus();
}

QString InputBox::text() const {
  return field_->text();
}

}  // namespace quartela
