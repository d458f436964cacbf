// The dialogs that operators see: the toolkit's own, in Portuguese whatever the desktop speaks.
#pragma once

#include "platform/dialogs/Dialogs.h"

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

// What `box` answers when it is closed without a button: Cancel where it has it, else No, else Ok.
Button closingAnswer(const Box& box);

// The title it is shown under: its own, or "Quartela".
QString shownTitle(const QString& title);

// The button that Enter presses: its default where it has that button, else its first.
Button shownDefault(const Box& box);

// The window that a dialog belongs to, so that it is never hidden behind one that stays on top: the
// active window, else the modal one, else any that is open. A splash is none, since it goes away by
// itself and would take the dialog along. Null where nothing is open.
QWidget* dialogParent();

}  // namespace quartela
