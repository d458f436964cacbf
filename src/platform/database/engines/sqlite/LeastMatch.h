// The least text of a column that begins with some letters, found by way of an index.
//
// The program's order of texts (LATIN_NOCASE) is no index's: a file that holds it could not be
// opened by other tools. An index in the engine's own NOCASE order has the ASCII letters at their
// places and the letters with accents behind them. So the text is found letter by letter: each
// beginning is looked up for the least letter that follows it, and what stands before the others in
// the program's order goes on. The cost is a few look-ups a letter, whatever the number of rows.
#pragma once

#include <optional>
#include <string>

#include "platform/database/engines/sqlite/Session.h"
#include "platform/database/engines/sqlite/Translation.h"

namespace quartela::sqlite {

struct FoundText {
  // False: there is no such index, or a text that only the statement itself can judge; it has to be
  // run.
  bool known = false;
  std::optional<std::string> text;  // none: no text begins so
};

FoundText findLeastMatch(SqliteSession& session, const LeastMatch& wanted);

}  // namespace quartela::sqlite
