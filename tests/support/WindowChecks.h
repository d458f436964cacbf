// What every window of the program must keep to; each check gives what it found wrong, empty for
// nothing.
#pragma once

#include <QString>
#include <QWidget>

namespace quartela::test {

// Letters that two labels, buttons, frames or tabs take with Alt. Widgets on different pages of a
// tab control are seen one page at a time and may share a letter.
QString mnemonicClashes(const QWidget& window);

// Fields and buttons that a screen reader could not name.
QString unnamedControls(const QWidget& window);

// Texts of labels, buttons and check boxes that are wider or higher than their place. The window
// must be shown.
QString clippedTexts(const QWidget& window);

// The object names of what the Tab key visits from the focused widget on, until it comes back.
QStringList tabRound(QWidget& window);

}  // namespace quartela::test
