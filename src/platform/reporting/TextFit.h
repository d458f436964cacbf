// Fits a text into a box: breaks it into lines and cuts what the box does not hold.
#pragma once

#include <QString>
#include <QStringView>

#include "platform/reporting/Face.h"

namespace quartela::reporting {

struct TextBox {
  int width = 0;
  int height = 0;
  bool wrap = false;  // between words; a word wider than the box is broken where it must be
  bool grow = false;  // as many lines as the text has, whatever the height
};

// Lines are parted by kLineEnd where the text itself ends a line, by kSoftBreak for the blank that
// the line broke at, and by kWordBreak inside a word.
struct FittedText {
  QString text;
  int lines = 0;
  bool cut = false;  // the box did not hold all of it
};

constexpr QChar kLineEnd{u'\n'};
constexpr QChar kSoftBreak{u'\v'};
constexpr QChar kWordBreak{u'\f'};

// The lines that the box has place for, one at the least; a line that is too wide, and the last
// line when there were more, end with the cut sign. An empty text has no line.
FittedText fitText(const Face& face, const QString& text, const TextBox& box);

// The height of so many lines in whole twips.
int heightOfLines(const Face& face, int lines);
// How many whole lines a height has place for.
int linesIn(const Face& face, int height);

bool endsLine(QChar letter);

// A fitted text parted before the line `line` (0 the first).
struct PartedText {
  FittedText head;
  FittedText tail;
};
PartedText partText(const FittedText& text, int line);

// What a fitted text reads: soft breaks are blanks again, broken words whole.
QString readable(const QString& fitted);

}  // namespace quartela::reporting
