// Mouse, keyboard and tool tips of the ribbon.
#include <QAccessible>
#include <QHash>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "shell/ribbon/FaixaRibbon.h"
#include "shell/ribbon/RibbonHover.h"
#include "shell/ribbon/RibbonKeys.h"

namespace quartela {

using ribbon::Element;
using ribbon::Ref;
using ribbon::Step;

bool FaixaRibbon::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    return showToolTip(static_cast<QHelpEvent*>(event));
  }
  return QWidget::event(event);
}

bool FaixaRibbon::showToolTip(QHelpEvent* event) {
  const std::optional<Ref> over = elementAt(event->pos());
  const QString text = over ? elements_.at(*over).toolTip : QString();
  if (text.isEmpty()) {
    QToolTip::hideText();
    event->ignore();
  } else {
    QToolTip::showText(event->globalPos(), text, this,
                       ribbon::pixelRect(elements_.at(*over).rect()));
  }
  return true;
}

std::optional<Ref> FaixaRibbon::elementAt(const QPointF& position) const {
  return elements_.hit(position.x() * ribbon::kTwipsPerPixel,
                       position.y() * ribbon::kTwipsPerPixel);
}

void FaixaRibbon::mouseMoveEvent(QMouseEvent* event) {
  // A dialog that came up in between may have swallowed the letting go.
  if (!(event->buttons() & Qt::LeftButton)) {
    letGo();
  }
  const std::optional<Ref> over = pressed_ ? pressed_ : elementAt(event->position());
  if (over) {
    ribbon::mouseMoved(elements_, *over);
    updateChanged();
  }
}

void FaixaRibbon::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    mouseDown(event->position(), true);
  }
}

// A double click is one click: a button that opens and closes a window must not do both.
void FaixaRibbon::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    mouseDown(event->position(), false);
  }
}

void FaixaRibbon::mouseDown(const QPointF& position, bool clicks) {
  leaveKeyboard();
  pressed_ = elementAt(position);
  pressClicks_ = clicks;
  if (pressed_ && pressed_->kind == Element::ButMouse) {
    elements_.setVisible(ribbon::kButtonOverLook, pressed_->index, true);
    updateChanged();
  }
}

void FaixaRibbon::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    return;
  }
  const std::optional<Ref> released = letGo();
  if (released && pressClicks_ && elementAt(event->position()) == released) {
    click(*released);
  }
}

std::optional<Ref> FaixaRibbon::letGo() {
  const std::optional<Ref> released = std::exchange(pressed_, std::nullopt);
  if (released && released->kind == Element::ButMouse) {
    elements_.setVisible(ribbon::kButtonOverLook, released->index, false);
    updateChanged();
  }
  return released;
}

void FaixaRibbon::click(Ref element) {
  switch (element.kind) {
    case Element::TabMouse:
      clickTab(element.index);
      break;
    case Element::Cat_Dlg_over:
      clickCategory(element.index);
      break;
    case Element::ButMouse:
      clickButton(element.index);
      break;
    default:
      break;
  }
}

void FaixaRibbon::clickTab(int index) {
  ribbon::hoverTab(elements_, -1);
  for (int i = 0; i < elements_.count(Element::TabMouse); ++i) {
    elements_.setVisible(ribbon::kTabLook, i, i == index);
    elements_.setColour(Element::Tab_caption, i,
                        i == index ? activeTabColour_ : inactiveTabColour_);
  }
  const ribbon::Tab tab = model_.tab(index);
  model_.setActiveTab(tab.key);
  const QPointer<FaixaRibbon> self(this);
  buildRow();
  if (!self.isNull()) {
    emit TabClick(tab.key, tab.caption);
  }
}

void FaixaRibbon::clickCategory(int index) {
  const ribbon::Piece caption = elements_.at(Element::Cat_Caption, index);
  emit CatClick(caption.tag, caption.text);
}

void FaixaRibbon::clickButton(int index) {
  const QString key = elements_.at(Element::ButMouse, index).tag;
  const QString caption = elements_.at(Element::Button_Caption, index).text;
  emit ButtonClick(key, caption);
}

void FaixaRibbon::press(Ref item) {
  if (!elements_.has(item) || !elements_.at(item).visible) {
    return;
  }
  // What a command opens takes the focus; behind it stands the control that had it before.
  if (item.kind != Element::TabMouse) {
    leaveKeyboard();
  }
  click(item.kind == Element::Cat_Dlg ? Ref{Element::Cat_Dlg_over, item.index} : item);
}

void FaixaRibbon::enterKeyboard() {
  const std::optional<Ref> tab = ribbon::activeTab(elements_);
  if (!tab) {
    return;
  }
  if (window()->focusWidget() != this) {
    focusBefore_ = window()->focusWidget();
  }
  setFocus(Qt::ShortcutFocusReason);
  moveFocus(tab);
}

void FaixaRibbon::setFocusItem(Ref item) {
  if (elements_.has(item) && elements_.at(item).visible) {
    enterKeyboard();
    moveFocus(item);
  }
}

void FaixaRibbon::leaveKeyboard() {
  if (!focusItem_) {
    return;
  }
  moveFocus(std::nullopt);
  if (focusBefore_ != nullptr) {
    focusBefore_->setFocus(Qt::OtherFocusReason);
  } else {
    clearFocus();
  }
  focusBefore_.clear();
}

void FaixaRibbon::moveFocus(std::optional<Ref> item) {
  for (const std::optional<Ref>& place : {focusItem_, item}) {
    if (place && elements_.has(*place)) {
      update(ribbon::pixelRect(elements_.at(*place).rect()));
    }
  }
  focusItem_ = item;
  if (item && hasFocus()) {
    const std::vector<Ref> items = ribbon::pressableItems(elements_);
    QAccessibleEvent focused(this, QAccessible::Focus);
    focused.setChild(static_cast<int>(std::ranges::find(items, *item) - items.begin()));
    QAccessible::updateAccessibility(&focused);
  }
}

// After a rebuilding the keyboard is on the same element as far as it still stands.
void FaixaRibbon::keepFocusValid() {
  if (focusItem_ && (!elements_.has(*focusItem_) || !elements_.at(*focusItem_).visible)) {
    focusItem_ = ribbon::activeTab(elements_);
  }
}

void FaixaRibbon::keyPressEvent(QKeyEvent* event) {
  static const QHash<int, Step> kSteps{
      {Qt::Key_Left, Step::Left}, {Qt::Key_Right, Step::Right}, {Qt::Key_Up, Step::Up},
      {Qt::Key_Down, Step::Down}, {Qt::Key_Home, Step::Home},   {Qt::Key_End, Step::End},
  };
  if (!focusItem_) {
    QWidget::keyPressEvent(event);
    return;
  }
  const auto step = kSteps.constFind(event->key());
  if (step != kSteps.constEnd()) {
    moveFocus(ribbon::stepFrom(elements_, *focusItem_, *step));
    return;
  }
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      press(*focusItem_);
      break;
    case Qt::Key_Escape:
    case Qt::Key_F10:
      leaveKeyboard();
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

bool FaixaRibbon::focusNextPrevChild(bool next) {
  if (!focusItem_) {
    return QWidget::focusNextPrevChild(next);
  }
  moveFocus(ribbon::stepFrom(elements_, *focusItem_, next ? Step::Next : Step::Previous));
  return true;
}

void FaixaRibbon::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  moveFocus(focusItem_ ? focusItem_ : ribbon::activeTab(elements_));
}

// While another window has the keyboard the place is kept; another control of this one ends it.
void FaixaRibbon::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  const bool comesBack =
      event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
  moveFocus(comesBack ? focusItem_ : std::nullopt);
}

}  // namespace quartela
