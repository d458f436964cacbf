#include "platform/dialogs/ToolkitDialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QMessageBox>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSpacerItem>
#include <QWidget>
#include <QWindow>

#include "platform/dialogs/FileFilters.h"
#include "platform/dialogs/InputBox.h"

namespace quartela {
namespace {

QMessageBox::Icon toolkitIcon(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Stop:
      return QMessageBox::Critical;
    case BoxIcon::Question:
      return QMessageBox::Question;
    case BoxIcon::Exclamation:
      return QMessageBox::Warning;
    case BoxIcon::Information:
      return QMessageBox::Information;
    case BoxIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButton toolkitButton(Button button) {
  switch (button) {
    case Button::Cancel:
      return QMessageBox::Cancel;
    case Button::Yes:
      return QMessageBox::Yes;
    case Button::No:
      return QMessageBox::No;
    case Button::Ok:
      break;
  }
  return QMessageBox::Ok;
}

QString buttonWords(Button button) {
  switch (button) {
    case Button::Cancel:
      return QStringLiteral("&Cancelar");
    case Button::Yes:
      return QStringLiteral("&Sim");
    case Button::No:
      return QStringLiteral("&Não");
    case Button::Ok:
      break;
  }
  return QStringLiteral("OK");
}

// A box with a word or two is no narrower than this.
void widen(QMessageBox& dialog) {
  constexpr int kLeastWidth = 280;
  if (auto* const grid = qobject_cast<QGridLayout*>(dialog.layout())) {
    grid->addItem(new QSpacerItem(kLeastWidth, 0), grid->rowCount(), 0, 1, grid->columnCount());
  }
}

void fillBox(QMessageBox& dialog, const Box& box) {
  dialog.setWindowTitle(shownTitle(box.title));
  dialog.setTextFormat(Qt::PlainText);
  dialog.setText(box.text);
  dialog.setIcon(toolkitIcon(box.icon));
  for (const Button button : box.buttons) {
    dialog.addButton(toolkitButton(button))->setText(buttonWords(button));
  }
  dialog.setDefaultButton(toolkitButton(shownDefault(box)));
  dialog.setEscapeButton(toolkitButton(closingAnswer(box)));
  widen(dialog);
}

// The window of the dialog that was shown last.
QPointer<QWidget>& lastWindow() {
  static QPointer<QWidget> window;
  return window;
}

// A window manager that sees dialogs come and go in quick order now and then leaves the keyboard
// with the wrong window, or with none: the dialog's own window asks for it.
void returnTo(QWidget* window) {
  if (window != nullptr && window->isVisible()) {
    window->activateWindow();
  }
  lastWindow() = window;
}

bool canHaveDialogs(const QWidget* window) {
  return window != nullptr && window->isVisible() &&
         (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog);
}

// A dialog may lose its window, and with it itself, while it is shown; `read` then has nothing to
// read and the answer is `closed`.
template <typename Dialog, typename Answer, typename Read>
Answer show(Dialog* dialog, const Answer& closed, Read read) {
  const QPointer<Dialog> guard(dialog);
  const QPointer<QWidget> window(dialog->parentWidget());
  dialog->exec();
  returnTo(window);
  if (!guard) {
    return closed;
  }
  const Answer answer = read(*dialog);
  delete dialog;
  return answer;
}

Button answerOf(const Box& box, const QMessageBox& dialog) {
  const QAbstractButton* const clicked = dialog.clickedButton();
  for (const Button button : box.buttons) {
    if (clicked && dialog.button(toolkitButton(button)) == clicked) {
      return button;
    }
  }
  return closingAnswer(box);
}

QString showFileDialog(QFileDialog* dialog) {
  dialog->setOption(QFileDialog::DontUseNativeDialog);
  dialog->setLabelText(QFileDialog::Reject, QStringLiteral("&Cancelar"));
  return show(dialog, QString(), [](const QFileDialog& shown) {
    const QStringList picked = shown.selectedFiles();
    const bool accepted = shown.result() == QDialog::Accepted && !picked.isEmpty();
    return accepted ? QDir::toNativeSeparators(picked.first()) : QString();
  });
}

QFileDialog* fileDialog(const FileRequest& request, const QString& title) {
  auto* dialog = new QFileDialog(dialogParent());
  dialog->setWindowTitle(request.title.isEmpty() ? title : request.title);
  // The filter's words stand alone in the list, without the patterns that match both cases.
  dialog->setOption(QFileDialog::HideNameFilterDetails);
  if (!request.folder.isEmpty()) {
    dialog->setDirectory(request.folder);
  }
  const QStringList filters = toolkitFilters(request.filter);
  if (!filters.isEmpty()) {
    dialog->setNameFilters(filters);
  }
  return dialog;
}

}  // namespace

Button closingAnswer(const Box& box) {
  for (const Button button : {Button::Cancel, Button::No}) {
    if (box.buttons.contains(button)) {
      return button;
    }
  }
  return Button::Ok;
}

QString shownTitle(const QString& title) {
  return title.isEmpty() ? QStringLiteral("Quartela") : title;
}

Button shownDefault(const Box& box) {
  if (box.buttons.isEmpty() || box.buttons.contains(box.defaultButton)) {
    return box.defaultButton;
  }
  return box.buttons.first();
}

QWidget* dialogParent() {
  for (QWidget* window :
       {QApplication::activeWindow(), QApplication::activeModalWidget(), lastWindow().data()}) {
    if (canHaveDialogs(window)) {
      return window;
    }
  }
  QWidget* newest = nullptr;
  const QWindowList windows = QGuiApplication::topLevelWindows();
  for (const QWindow* const window : windows) {
    QWidget* const widget = window->isVisible() ? QWidget::find(window->winId()) : nullptr;
    newest = canHaveDialogs(widget) ? widget : newest;
  }
  return newest;
}

std::unique_ptr<QMessageBox> messageBox(const Box& box, QWidget* parent) {
  auto dialog = std::make_unique<QMessageBox>(parent);
  fillBox(*dialog, box);
  return dialog;
}

Button ToolkitDialogs::box(const Box& box) {
  QMessageBox* const dialog = messageBox(box, dialogParent()).release();
  return show(dialog, closingAnswer(box),
              [&box](const QMessageBox& shown) { return answerOf(box, shown); });
}

QString ToolkitDialogs::openFile(const FileRequest& request) {
  QFileDialog* dialog = fileDialog(request, QStringLiteral("Abrir"));
  dialog->setFileMode(QFileDialog::ExistingFile);
  dialog->setLabelText(QFileDialog::Accept, QStringLiteral("&Abrir"));
  return showFileDialog(dialog);
}

QString ToolkitDialogs::saveFile(const FileRequest& request) {
  QFileDialog* dialog = fileDialog(request, QStringLiteral("Salvar como"));
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setFileMode(QFileDialog::AnyFile);
  dialog->setDefaultSuffix(firstExtension(request.filter));
  dialog->setLabelText(QFileDialog::Accept, QStringLiteral("&Salvar"));
  dialog->selectFile(request.fileName);
  return showFileDialog(dialog);
}

QString ToolkitDialogs::pickFolder(const QString& title) {
  auto* dialog = new QFileDialog(dialogParent(), shownTitle(title));
  dialog->setFileMode(QFileDialog::Directory);
  dialog->setOption(QFileDialog::ShowDirsOnly);
  dialog->setLabelText(QFileDialog::Accept, QStringLiteral("&Escolher"));
  return showFileDialog(dialog);
}

QString ToolkitDialogs::input(const InputRequest& request) {
  return show(new InputBox(request, dialogParent()), QString(), [](const InputBox& shown) {
    return shown.result() == QDialog::Accepted ? shown.text() : QString();
  });
}

bool ToolkitDialogs::printer(QPrinter& printer) {
  auto* dialog = new QPrintDialog(&printer, dialogParent());
  dialog->setWindowTitle(QStringLiteral("Imprimir"));
  return show(dialog, false,
              [](const QPrintDialog& shown) { return shown.result() == QDialog::Accepted; });
}

}  // namespace quartela
