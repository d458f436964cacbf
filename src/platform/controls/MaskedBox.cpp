#include "platform/controls/MaskedBox.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <algorithm>
#include <memory>

namespace quartela {
namespace {

bool isKind(QChar character) {
  return character == QLatin1Char('#') || character == QLatin1Char('?') ||
         character == QLatin1Char('&');
}

bool isTyped(const QKeyEvent& event) {
  const auto modifiers =
      event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier);
  // The third level of a keyboard comes as Ctrl and Alt together.
  const bool bare =
      modifiers == Qt::NoModifier || modifiers == (Qt::ControlModifier | Qt::AltModifier);
  return bare && !event.text().isEmpty() && event.text().at(0).isPrint();
}

}  // namespace

MaskedBox::MaskedBox(QWidget* parent) : QLineEdit(parent) {
  connect(this, &QLineEdit::textChanged, this, &MaskedBox::restoreTemplate);
}

void MaskedBox::setMask(const QString& mask) {
  const QString typed = clipText();
  mask_ = mask;
  positions_.clear();
  for (qsizetype i = 0; i < mask.size(); ++i) {
    const bool escaped = mask.at(i) == QLatin1Char('\\') && i + 1 < mask.size();
    const QChar character = mask.at(escaped ? ++i : i);
    const bool slot = !escaped && isKind(character);
    positions_.append({slot ? character : QChar(), slot ? kPrompt : character});
  }
  setDragEnabled(isPlain());
  setText(typed);
}

void MaskedBox::setText(const QString& text) {
  if (isPlain()) {
    QLineEdit::setText(text);
    return;
  }
  QString shown = blank();
  const int caret = fill(shown, 0, text);
  show(shown, shown == blank() ? nextSlot(0) : caret, false);
}

QString MaskedBox::clipText() const {
  const QString shown = text();
  if (isPlain()) {
    return shown;
  }
  QString typed;
  for (qsizetype i = 0; i < positions_.size(); ++i) {
    if (isSlot(i) && shown.at(i) != kPrompt) {
      typed += shown.at(i);
    }
  }
  return typed;
}

bool MaskedBox::isMaskEmpty() const {
  return clipText().isEmpty();
}

bool MaskedBox::isComplete() const {
  const QString shown = text();
  for (qsizetype i = 0; i < positions_.size(); ++i) {
    if (isSlot(i) && shown.at(i) == kPrompt) {
      return false;
    }
  }
  return true;
}

bool MaskedBox::accepts(qsizetype at, QChar character) const {
  switch (positions_.at(at).kind.unicode()) {
    case '#':
      return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    case '?':
      return character.isLetter();
    default:
      return character.isPrint() && character != kPrompt;
  }
}

int MaskedBox::nextSlot(int from) const {
  int at = from;
  while (at < positions_.size() && !isSlot(at)) {
    ++at;
  }
  return at;
}

int MaskedBox::previousSlot(int before) const {
  int at = before - 1;
  while (at >= 0 && !isSlot(at)) {
    --at;
  }
  return at;
}

QString MaskedBox::blank() const {
  QString shown;
  for (const Position& position : positions_) {
    shown += position.literal;
  }
  return shown;
}

int MaskedBox::literalFrom(int from, QChar character) const {
  for (int at = from; at < positions_.size(); ++at) {
    if (!isSlot(at) && positions_.at(at).literal == character) {
      return at;
    }
  }
  return -1;
}

int MaskedBox::fill(QString& base, int from, const QString& typed) const {
  int at = from;
  for (const QChar character : typed) {
    const int slot = nextSlot(at);
    if (slot < positions_.size() && accepts(slot, character)) {
      base[slot] = character;
      at = slot + 1;
    } else if (slot < positions_.size() && character == kPrompt) {
      base[slot] = kPrompt;
      at = slot + 1;
    } else if (slot > 0 && !isSlot(slot - 1) && positions_.at(slot - 1).literal == character) {
      // The literal before the caret, which was stepped over already.
      at = slot;
    } else if (const int literal = literalFrom(at, character); literal >= 0) {
      at = literal + 1;
    }
  }
  return nextSlot(at);
}

void MaskedBox::show(const QString& shown, int caret, bool edited) {
  const bool changed = shown != text();
  showing_ = true;
  if (changed) {
    QLineEdit::setText(shown);
  }
  showing_ = false;
  setCursorPosition(caret);
  if (changed && edited) {
    emit textEdited(shown);
  }
}

void MaskedBox::restoreTemplate() {
  if (!showing_ && !isPlain()) {
    setText(text());
  }
}

int MaskedBox::emptySelection(QString& shown) const {
  if (!hasSelectedText()) {
    return cursorPosition();
  }
  for (int at = selectionStart(); at < selectionEnd(); ++at) {
    shown[at] = positions_.at(at).literal;
  }
  return selectionStart();
}

// Characters that fit nowhere leave everything as it is, the selection too.
void MaskedBox::type(const QString& characters) {
  QString shown = text();
  const int from = emptySelection(shown);
  const int caret = fill(shown, from, characters);
  if (caret != nextSlot(from)) {
    show(shown, caret, true);
  }
}

void MaskedBox::backspace() {
  QString shown = text();
  int caret = emptySelection(shown);
  if (!hasSelectedText()) {
    const int slot = previousSlot(caret);
    if (slot < 0) {
      return;
    }
    shown[slot] = kPrompt;
    caret = slot;
  }
  show(shown, caret, true);
}

void MaskedBox::deleteForward() {
  QString shown = text();
  int caret = emptySelection(shown);
  if (!hasSelectedText()) {
    caret = nextSlot(caret);
    if (caret == positions_.size()) {
      return;
    }
    shown[caret] = kPrompt;
  }
  show(shown, caret, true);
}

bool MaskedBox::pressEditKey(QKeyEvent* event) {
  const bool typed = isTyped(*event);
  const bool erases = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
  if (!typed && !erases) {
    return false;
  }
  if (isReadOnly()) {
    return true;
  }
  if (typed) {
    type(event->text());
  } else if (event->key() == Qt::Key_Backspace) {
    backspace();
  } else {
    deleteForward();
  }
  return true;
}

bool MaskedBox::pressMoveKey(QKeyEvent* event) {
  if ((event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
    return false;
  }
  const QString shown = text();
  switch (event->key()) {
    case Qt::Key_Home:
      setCursorPosition(nextSlot(0));
      return true;
    case Qt::Key_End: {
      auto last = static_cast<int>(positions_.size());
      while (last > 0 && (!isSlot(last - 1) || shown.at(last - 1) == kPrompt)) {
        --last;
      }
      setCursorPosition(nextSlot(last));
      return true;
    }
    case Qt::Key_Left:
      setCursorPosition(std::max(previousSlot(cursorPosition()), nextSlot(0)));
      return true;
    case Qt::Key_Right:
      setCursorPosition(
          nextSlot(std::min(nextSlot(cursorPosition()) + 1, static_cast<int>(positions_.size()))));
      return true;
    default:
      return false;
  }
}

bool MaskedBox::pressClipboardKey(QKeyEvent* event) {
  if (event->matches(QKeySequence::Paste)) {
    if (!isReadOnly()) {
      type(QApplication::clipboard()->text());
    }
    return true;
  }
  if (event->matches(QKeySequence::Cut)) {
    copy();
    if (hasSelectedText() && !isReadOnly()) {
      backspace();
    }
    return true;
  }
  return false;
}

void MaskedBox::keyPressEvent(QKeyEvent* event) {
  if (!isPlain() && (pressClipboardKey(event) || pressMoveKey(event) || pressEditKey(event))) {
    event->accept();
    return;
  }
  QLineEdit::keyPressEvent(event);
}

// Composed characters (an accent and its letter) come this way.
void MaskedBox::inputMethodEvent(QInputMethodEvent* event) {
  if (isPlain() || event->commitString().isEmpty()) {
    QLineEdit::inputMethodEvent(event);
    return;
  }
  if (!isReadOnly()) {
    type(event->commitString());
  }
  event->accept();
}

void MaskedBox::putCaretAtFirstSlot() {
  if (!isPlain() && isMaskEmpty() && !hasSelectedText()) {
    setCursorPosition(nextSlot(0));
  }
}

void MaskedBox::mousePressEvent(QMouseEvent* event) {
  QLineEdit::mousePressEvent(event);
  putCaretAtFirstSlot();
}

// The middle button pastes what is selected elsewhere.
void MaskedBox::mouseReleaseEvent(QMouseEvent* event) {
  const bool pastes = event->button() == Qt::MiddleButton &&
                      QApplication::clipboard()->supportsSelection() && !isPlain();
  if (!pastes) {
    QLineEdit::mouseReleaseEvent(event);
    putCaretAtFirstSlot();
    return;
  }
  if (!isReadOnly()) {
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    type(QApplication::clipboard()->text(QClipboard::Selection));
  }
  event->accept();
}

void MaskedBox::dropEvent(QDropEvent* event) {
  if (isPlain()) {
    QLineEdit::dropEvent(event);
    return;
  }
  if (!isReadOnly() && event->mimeData()->hasText()) {
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    type(event->mimeData()->text());
    event->setDropAction(Qt::CopyAction);
    event->accept();
  }
}

void MaskedBox::contextMenuEvent(QContextMenuEvent* event) {
  if (isPlain()) {
    QLineEdit::contextMenuEvent(event);
    return;
  }
  const auto menu = std::make_unique<QMenu>(this);
  const bool writable = !isReadOnly();
  QAction* cut = menu->addAction(QStringLiteral("Recor&tar"), this, [this] {
    copy();
    backspace();
  });
  cut->setEnabled(writable && hasSelectedText());
  menu->addAction(QStringLiteral("&Copiar"), this, &QLineEdit::copy)->setEnabled(hasSelectedText());
  menu->addAction(QStringLiteral("Co&lar"), this,
                  [this] { type(QApplication::clipboard()->text()); })
      ->setEnabled(writable && !QApplication::clipboard()->text().isEmpty());
  menu->addSeparator();
  menu->addAction(QStringLiteral("&Selecionar tudo"), this, &QLineEdit::selectAll);
  menu->exec(event->globalPos());
}

}  // namespace quartela
