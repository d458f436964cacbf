// The dialogs that operators see: the toolkit's own, in Portuguese whatever the desktop speaks.
#pragma once

#include <memory>

#include "platform/dialogs/Dialogs.h"

class QMessageBox;
class QWidget;

namespace quartela {

class ToolkitDialogs : public DialogHost {
 public:
  Button box(const Box& box) override;
  QString openFile(const FileRequest& request) override;
  QString saveFile(const FileRequest& request) override;
  QString pickFolder(const QString& title) override;
  QString input(const InputRequest& request) override;
  bool printer(QPrinter& printer) override;
};

// The box that operators see, not shown yet.
std::unique_ptr<QMessageBox> messageBox(const Box& box, QWidget* parent);

// What `box` answers when it is closed without a button: Cancel where it has it, else No, else Ok.
Button closingAnswer(const Box& box);

// The title it is shown under: its own, or "Quartela".
QString shownTitle(const QString& title);

// The button that Enter presses: its default where it has that button, else its first.
Button shownDefault(const Box& box);

// The window that a dialog belongs to, so that it is never hidden behind one that stays on top: the
// active window, else the modal one, else that of the last dialog (between two of them nothing is
// active), else the newest that is open. A splash is none, since it goes away by
// itself and would take the dialog along. Null where nothing is open.
QWidget* dialogParent();

}  // namespace quartela
