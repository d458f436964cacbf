// What a key types, for the fields that decide themselves what is typed into them.
#pragma once

#include <QString>

class QKeyEvent;

namespace quartela {

// The characters that a line of the toolkit would insert for that key; empty for a key that inserts
// none (Enter, arrows, shortcuts). The third level of a keyboard counts, and so do characters that
// are not seen or that take two units, such as a zero-width blank or an emoji.
QString typedText(const QKeyEvent& event);

}  // namespace quartela
