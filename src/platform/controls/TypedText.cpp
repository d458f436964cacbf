#include "platform/controls/TypedText.h"

#include <QKeyEvent>

namespace quartela {
namespace {

bool isInserted(QChar character) {
  return character.isPrint() || character.isSurrogate() ||
         character.category() == QChar::Other_PrivateUse;
}

}  // namespace

QString typedText(const QKeyEvent& event) {
  const QString text = event.text();
  if (text.isEmpty()) {
    return {};
  }
  // The toolkit inserts these with Ctrl held too, since some keyboards type them so.
  const bool formats = text.at(0).category() == QChar::Other_Format;
  const auto held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  // The third level of a keyboard comes as Ctrl and Alt together.
  const bool bare = !held || held == (Qt::ControlModifier | Qt::AltModifier);
  return formats || (bare && isInserted(text.at(0))) ? text : QString();
}

}  // namespace quartela
