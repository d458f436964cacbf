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
#include <QValidator>
#include <algorithm>
#include <array>
#include <memory>

#include "platform/controls/TypedText.h"

namespace quartela {
namespace {

bool isKind(QChar character) {
  return character == QLatin1Char('#') || character == QLatin1Char('?') ||
         character == QLatin1Char('&');
}

// What the base class may do of itself in a box with a template: it alters nothing.
bool leavesTheText(const QKeyEvent& event) {
  constexpr std::array kKeys = {
      QKeySequence::Copy,
      QKeySequence::SelectAll,
      QKeySequence::Deselect,
      QKeySequence::MoveToNextChar,
      QKeySequence::MoveToPreviousChar,
      QKeySequence::MoveToNextWord,
      QKeySequence::MoveToPreviousWord,
      QKeySequence::MoveToStartOfLine,
      QKeySequence::MoveToEndOfLine,
      QKeySequence::MoveToStartOfBlock,
      QKeySequence::MoveToEndOfBlock,
      QKeySequence::SelectNextChar,
      QKeySequence::SelectPreviousChar,
      QKeySequence::SelectNextWord,
      QKeySequence::SelectPreviousWord,
      QKeySequence::SelectStartOfLine,
      QKeySequence::SelectEndOfLine,
      QKeySequence::SelectStartOfBlock,
      QKeySequence::SelectEndOfBlock,
  };
  return std::any_of(kKeys.begin(), kKeys.end(),
                     [&](QKeySequence::StandardKey key) { return event.matches(key); });
}

bool enters(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

// The toolkit asks its validator after every edit, of whatever kind, and before it tells anyone:
// text that came past the template goes back into it here.
class MaskedBox::Template : public QValidator {
 public:
  explicit Template(MaskedBox* box) : QValidator(box), box_(box) {}

  State validate(QString& text, int& caret) const override {
    if (!box_->isPlain() && !box_->fits(text)) {
      text = box_->templated(text, &caret);
    }
    return Acceptable;
  }

 private:
  const MaskedBox* box_;
};

MaskedBox::MaskedBox(QWidget* parent) : QLineEdit(parent) {
  setValidator(new Template(this));
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
  setMaxLength(std::max(maxLength(), static_cast<int>(positions_.size())));
  setText(typed);
}

void MaskedBox::setText(const QString& text) {
  if (isPlain()) {
    QLineEdit::setText(text);
    return;
  }
  int caret = 0;
  const QString shown = templated(text, &caret);
  display(shown, caret, false);
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

bool MaskedBox::fits(const QString& shown) const {
  if (shown.size() != positions_.size()) {
    return false;
  }
  for (qsizetype i = 0; i < positions_.size(); ++i) {
    const bool filled = isSlot(i) && accepts(i, shown.at(i));
    if (!filled && shown.at(i) != positions_.at(i).literal) {
      return false;
    }
  }
  return true;
}

QString MaskedBox::templated(const QString& text, int* end) const {
  QString shown = blank();
  const int caret = fill(shown, 0, text);
  *end = shown == blank() ? nextSlot(0) : caret;
  return fits(text) ? text : shown;
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

void MaskedBox::display(const QString& shown, int caret, bool edited) {
  const bool changed = shown != text();
  if (changed) {
    QLineEdit::setText(shown);
  }
  setCursorPosition(caret);
  if (changed && edited) {
    emit textEdited(shown);
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

void MaskedBox::type(const QString& characters) {
  QString shown = text();
  const int from = emptySelection(shown);
  const QString emptied = shown;
  const int caret = fill(shown, from, characters);
  const bool steps = caret != nextSlot(from) && emptied == text();
  if (steps || shown != emptied) {
    display(shown, caret, true);
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
  display(shown, caret, true);
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
  display(shown, caret, true);
}

void MaskedBox::emptyFrom(int at) {
  QString shown = text();
  const QString empty = blank();
  shown.replace(at, shown.size() - at, empty.mid(at));
  display(shown, std::max(at, nextSlot(0)), true);
}

bool MaskedBox::pressEraseKey(QKeyEvent* event) {
  const bool back = event->key() == Qt::Key_Backspace || event->matches(QKeySequence::Backspace);
  const bool forward = event->key() == Qt::Key_Delete || event->matches(QKeySequence::Delete);
  const bool toTheEnd = event->matches(QKeySequence::DeleteEndOfLine);
  const bool all = event->matches(QKeySequence::DeleteCompleteLine);
  if (isReadOnly() || !(back || forward || toTheEnd || all)) {
    return back || forward || toTheEnd || all;
  }
  if (all || toTheEnd) {
    emptyFrom(all ? 0 : cursorPosition());
  } else if (back) {
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

bool MaskedBox::pressTypingKey(QKeyEvent* event) {
  const QString typed = typedText(*event);
  if (!typed.isEmpty() && !isReadOnly()) {
    type(typed);
  }
  return !typed.isEmpty();
}

void MaskedBox::keyPressEvent(QKeyEvent* event) {
  if (isPlain()) {
    QLineEdit::keyPressEvent(event);
  } else if (pressClipboardKey(event) || pressMoveKey(event) || pressEraseKey(event) ||
             pressTypingKey(event)) {
    event->accept();
  } else if (enters(*event) || leavesTheText(*event)) {
    QLineEdit::keyPressEvent(event);
  } else {
    event->ignore();
  }
}

void MaskedBox::inputMethodEvent(QInputMethodEvent* event) {
  if (isPlain()) {
    QLineEdit::inputMethodEvent(event);
    return;
  }
  if (!isReadOnly() && !event->commitString().isEmpty()) {
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
