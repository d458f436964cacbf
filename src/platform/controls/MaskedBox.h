// A line to type into with a fixed template, such as "###.###.###-##". Its literals always show; a
// position without a character shows the prompt "_".
//
// In the mask # stands for a digit, ? for a letter, & for any character but the prompt, and \x for
// x itself. Typing overwrites in place and steps over literals; Backspace empties the position
// before the caret, Delete the one behind it; a selection is emptied as a whole. What is pasted may
// bear the template's literals or not. Ctrl+K empties what stands behind the caret, Ctrl+U all.
// Characters that are being composed (an accent that waits for its letter) come in when they are
// whole. Other ways of editing that the toolkit has are swallowed, undoing too. The empty mask
// makes it a plain line.
//
// text() is what is shown, prompts and literals included: always the template's, for whoever hears
// of a change. setText() takes it with and without them; what fits no position is passed over.
#pragma once

#include <QLineEdit>
#include <QList>
#include <QString>

namespace quartela {

class MaskedBox : public QLineEdit {
  Q_OBJECT
  Q_PROPERTY(QString mask READ mask WRITE setMask)
  Q_PROPERTY(bool promptIncluded READ promptIncluded WRITE setPromptIncluded)
 public:
  static constexpr QChar kPrompt = QLatin1Char('_');

  explicit MaskedBox(QWidget* parent = nullptr);

  const QString& mask() const { return mask_; }
  // Keeps what was typed as far as it fits the new mask.
  void setMask(const QString& mask);

  void setText(const QString& text);
  // The typed characters alone; of a plain line the whole text.
  QString clipText() const;
  // Nothing is typed yet; a plain line is empty.
  bool isMaskEmpty() const;
  // Every position is filled; a plain line always is.
  bool isComplete() const;

  // What value() gives: text() when prompts are included (as at first), else clipText().
  bool promptIncluded() const { return promptIncluded_; }
  void setPromptIncluded(bool included) { promptIncluded_ = included; }
  QString value() const { return promptIncluded_ ? text() : clipText(); }

 protected:
  // Types `characters` at the caret or over the selection. Those that fit nowhere leave everything
  // as it is, the selection too.
  virtual void type(const QString& characters);

  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  class Template;
  struct Position {
    QChar kind;     // one of # ? & for a position to type at, else null
    QChar literal;  // the prompt at a position to type at
  };

  bool isPlain() const { return positions_.isEmpty(); }
  bool isSlot(qsizetype at) const { return !positions_.at(at).kind.isNull(); }
  bool fits(const QString& shown) const;
  // `text`, typed from the first position on into the empty template.
  QString templated(const QString& text, int* end) const;
  bool accepts(qsizetype at, QChar character) const;
  int nextSlot(int from) const;
  int previousSlot(int before) const;
  QString blank() const;
  // Fills the positions of `base` from `from` on with what fits of `typed`; gives where it ended.
  int fill(QString& base, int from, const QString& typed) const;
  int literalFrom(int from, QChar character) const;

  bool pressTypingKey(QKeyEvent* event);
  bool pressEraseKey(QKeyEvent* event);
  bool pressMoveKey(QKeyEvent* event);
  bool pressClipboardKey(QKeyEvent* event);
  void backspace();
  void deleteForward();
  void emptyFrom(int at);
  // Gives where the selection began, or the caret; the selection's positions are emptied.
  int emptySelection(QString& shown) const;
  void display(const QString& shown, int caret, bool edited);
  void putCaretAtFirstSlot();

  QString mask_;
  QList<Position> positions_;
  bool promptIncluded_ = true;
};

}  // namespace quartela
