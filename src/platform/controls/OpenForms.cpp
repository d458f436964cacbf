#include "platform/controls/OpenForms.h"

#include <QDialog>
#include <QEvent>
#include <QFont>
#include <QPalette>
#include <QPointer>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace quartela::OpenForms {
namespace {

// Knows whether a window has been closed, although it may be deleted later or never. A close that
// the window refuses leaves it visible.
class CloseWatch : public QObject {
 public:
  explicit CloseWatch(QWidget* form) : QObject(form), form_(form) {
    form->installEventFilter(this);
    // A dialog that a button or Escape ends gets no close event.
    if (auto* const dialog = qobject_cast<QDialog*>(form)) {
      connect(dialog, &QDialog::finished, this, [this] { closed_ = true; });
    }
  }

  QWidget* form() const { return form_; }
  bool isOpen() const { return !(closed_ && form_->isHidden()); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Close) {
      closed_ = true;
    } else if (event->type() == QEvent::Show) {
      closed_ = false;
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QWidget* form_;
  bool closed_ = false;
};

// The watches are children of their windows and go with them.
QList<QPointer<CloseWatch>>& watches() {
  static QList<QPointer<CloseWatch>> list;
  list.removeIf([](const QPointer<CloseWatch>& watch) { return watch.isNull(); });
  return list;
}

QPointer<QWidget>& mainWindow() {
  static QPointer<QWidget> window;
  return window;
}

// Window managers keep a dialog above the window that it belongs to, and any other window where the
// operator's clicks put it.
Qt::WindowFlags asDialog(const QWidget& form) {
  if (form.windowType() != Qt::Window) {
    return form.windowFlags();
  }
  const Qt::WindowFlags others = form.windowFlags() & ~Qt::WindowFlags(Qt::WindowType_Mask);
  return others | Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
         Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;
}

// The fonts and colours that the parts of a window were given.
class OwnLooks {
 public:
  explicit OwnLooks(const QWidget& form) {
    const QList<QWidget*> parts = form.findChildren<QWidget*>();
    for (QWidget* const part : parts) {
      if (part->testAttribute(Qt::WA_SetFont) || part->testAttribute(Qt::WA_SetPalette)) {
        looks_.append({part, part->font(), part->palette()});
      }
    }
  }

  void giveBack() const {
    for (const Look& look : looks_) {
      look.part->setFont(look.font);
      look.part->setPalette(look.palette);
    }
  }

 private:
  struct Look {
    QWidget* part;
    QFont font;
    QPalette palette;
  };

  QList<Look> looks_;
};

// A style sheet takes them away from a window that changes its parent.
void adopt(QWidget& form, QWidget& parent) {
  const OwnLooks looks(form);
  form.setParent(&parent, asDialog(form));
  looks.giveBack();
}

// As far as the screen allows; a window without a parent stays where the window system puts it.
void centreOnParent(QWidget& form) {
  const QWidget* const parent = form.parentWidget();
  if (parent == nullptr) {
    return;
  }
  QRect place(QPoint(), form.size());
  place.moveCenter(parent->frameGeometry().center());
  const QRect screen = parent->screen()->availableGeometry();
  place.moveLeft(std::clamp(place.left(), screen.left(),
                            std::max(screen.left(), screen.right() - place.width())));
  place.moveTop(std::clamp(place.top(), screen.top(),
                           std::max(screen.top(), screen.bottom() - place.height())));
  form.move(place.topLeft());
}

}  // namespace

void setMainWindow(QWidget* window) {
  mainWindow() = window;
}

void add(QWidget* form) {
  if (all().contains(form)) {
    return;
  }
  if (mainWindow() != nullptr && mainWindow() != form && form->parentWidget() == nullptr) {
    adopt(*form, *mainWindow());
  }
  for (const QPointer<CloseWatch>& watch : watches()) {
    if (watch->form() == form) {
      delete watch.data();
    }
  }
  watches().append(new CloseWatch(form));
}

void showInFront(QWidget& form) {
  if (form.isHidden()) {
    centreOnParent(form);
  }
  form.setWindowState(form.windowState() & ~Qt::WindowMinimized);
  form.show();
  form.raise();
  form.activateWindow();
}

QList<QWidget*> all() {
  QList<QWidget*> open;
  for (const QPointer<CloseWatch>& watch : watches()) {
    if (watch->isOpen()) {
      open.append(watch->form());
    }
  }
  return open;
}

QWidget* find(const QString& name) {
  const QList<QWidget*> open = all();
  const auto found = std::find_if(open.cbegin(), open.cend(), [&name](const QWidget* form) {
    return form->objectName() == name;
  });
  return found == open.cend() ? nullptr : *found;
}

bool unload(QWidget* form) {
  return form->close();
}

}  // namespace quartela::OpenForms
