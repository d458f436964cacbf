#include "platform/database/engines/sqlite/LeastMatch.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "platform/database/engines/sqlite/Latin.h"
#include "platform/database/engines/sqlite/Statement.h"

namespace quartela::sqlite {
namespace {

// Beginnings that differ in their accents only; beyond that many the statement itself is run.
constexpr std::size_t kMostHeads = 64;
const char kFirstNonAscii = '\x80';
const char kFirstAccent = '\xCC';
const char kBehindAccents = '\xCE';
const char kBehindAll = '\xFF';

// What only the statement itself can judge, accents behind their letters among it. Raised and
// caught here alone.
struct Unknown {};

// One state of the file for all look-ups, and its lock taken once.
class ReadScope {
 public:
  explicit ReadScope(sqlite3* db) : db_(db), begun_(sqlite3_get_autocommit(db) != 0) {
    if (begun_) {
      run(db_, "BEGIN", Activity::Reading);
    }
  }
  ~ReadScope() {
    if (begun_) {
      sqlite3_exec(db_, "COMMIT", nullptr, nullptr, nullptr);
    }
  }
  ReadScope(const ReadScope&) = delete;
  ReadScope& operator=(const ReadScope&) = delete;

 private:
  sqlite3* db_;
  bool begun_;
};

char asciiLower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

bool isAscii(char byte) {
  return static_cast<unsigned char>(byte) < 0x80;
}

bool sameNocase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return asciiLower(x) == asciiLower(y); });
}

// The least text behind all that begin with `head`. NOCASE has no byte between '@' and '['.
std::string behind(std::string head) {
  if (head.empty()) {
    return std::string(1, kBehindAll);
  }
  char& last = head.back();
  last = last == '@' ? '[' : static_cast<char>(static_cast<unsigned char>(last) + 1);
  return head;
}

// A beginning (its ASCII letters small) and the letter that it ends with.
struct Head {
  std::string text;
  char32_t base = 0;
};

class Search {
 public:
  Search(SqliteSession& session, const LeastMatch& wanted)
      : db_(session.handle()),
        first_(session.prepared(lookUp(wanted, ""))),
        last_(session.prepared(lookUp(wanted, " DESC"))) {}

  std::optional<std::string> find(std::string_view prefix) {
    std::vector<Head> heads = beginnings(prefix);
    while (!heads.empty()) {
      if (const auto found = ended(heads)) {
        return found;
      }
      heads = leastOf(next(heads));
    }
    return std::nullopt;
  }

 private:
  static std::string lookUp(const LeastMatch& wanted, const char* direction) {
    const std::string column = quoted(wanted.column) + " COLLATE NOCASE";
    return "SELECT " + quoted(wanted.column) + " FROM " + quoted(wanted.table) + " WHERE " +
           column + " >= ?1 AND " + column + " < ?2 ORDER BY " + column + direction + " LIMIT 1";
  }

  // The first text of the range, or the last.
  std::optional<std::string> seek(const KeptStatement& kept, const std::string& from,
                                  const std::string& to) const {
    Statement statement(db_, kept, Activity::Reading);
    bindText(statement, 1, from);
    bindText(statement, 2, to);
    if (!statement.step()) {
      return std::nullopt;
    }
    const auto* const bytes =
        reinterpret_cast<const char*>(sqlite3_column_text(statement.raw(), 0));
    const std::string text(bytes,
                           static_cast<std::size_t>(sqlite3_column_bytes(statement.raw(), 0)));
    if (hasAccent(text)) {
      throw Unknown();
    }
    return text;
  }

  void bindText(const Statement& statement, int index, const std::string& text) const {
    check(db_,
          sqlite3_bind_text(statement.raw(), index, text.data(), static_cast<int>(text.size()),
                            SQLITE_STATIC),
          Activity::Reading);
  }

  std::optional<std::string> firstOf(const std::string& head) const {
    return seek(first_, head, behind(head));
  }

  // The letters beyond ASCII that follow `head` somewhere, each once.
  std::vector<Head> accentedBehind(const std::string& head,
                                   const std::optional<char32_t>& folded) const {
    std::vector<Head> found;
    const std::string end = behind(head);
    std::string from = head + kFirstNonAscii;
    while (const auto text = seek(first_, from, end)) {
      const LatinCharacter letter = following(*text, head.size());
      Head longer{head + text->substr(head.size(), letter.bytes), letter.base};
      from = behind(longer.text);
      if (!folded || letter.folded == *folded) {
        found.push_back(std::move(longer));
      }
    }
    return found;
  }

  static LatinCharacter following(std::string_view text, std::size_t position) {
    const LatinCharacter letter = firstLatinCharacter(text.substr(position));
    if (!letter.valid) {
      throw Unknown();
    }
    return letter;
  }

  // Every spelling of the prefix in the file, by the case of its letters.
  std::vector<Head> beginnings(std::string_view prefix) const {
    std::vector<Head> heads(1);
    while (!prefix.empty()) {
      const LatinCharacter letter = following(prefix, 0);
      std::vector<Head> longer;
      for (const Head& head : heads) {
        lookForAccents(head, letter);
        if (letter.folded < 0x80) {
          longer.push_back({head.text + static_cast<char>(letter.folded), letter.base});
        }
        append(longer, accentedBehind(head.text, letter.folded));
      }
      heads = std::move(longer);
      prefix.remove_prefix(letter.bytes);
    }
    return heads;
  }

  // The letter can stand in the file with its accent behind it, where the index does not have it.
  void lookForAccents(const Head& head, const LatinCharacter& letter) const {
    if (letter.base < 0x80 && letter.base != letter.folded) {
      const std::string plain = head.text + static_cast<char>(letter.base);
      seek(first_, plain + kFirstAccent, plain + kBehindAccents);
    }
  }

  static void append(std::vector<Head>& heads, std::vector<Head> more) {
    std::move(more.begin(), more.end(), std::back_inserter(heads));
    if (heads.size() > kMostHeads) {
      throw Unknown();
    }
  }

  // The text that ends the search: one that is a beginning itself, since no longer one stands
  // before it, or the only one that begins so.
  std::optional<std::string> ended(const std::vector<Head>& heads) const {
    std::optional<std::string> least;
    for (const Head& head : heads) {
      const auto first = firstOf(head.text);
      const bool ends = first && (first->size() == head.text.size() ||
                                  (heads.size() == 1 && isOnly(head.text, *first)));
      if (ends && (!least || compareLatin(*first, *least) < 0)) {
        least = first;
      }
    }
    return least;
  }

  bool isOnly(const std::string& head, const std::string& first) const {
    const auto last = seek(last_, head, behind(head));
    return last && sameNocase(first, *last);
  }

  std::vector<Head> next(const std::vector<Head>& heads) const {
    std::vector<Head> longer;
    for (const Head& head : heads) {
      const auto first = firstOf(head.text);
      if (!first) {
        continue;
      }
      const char letter = asciiLower((*first)[head.text.size()]);
      if (isAscii(letter)) {
        longer.push_back({head.text + letter, static_cast<unsigned char>(letter)});
      }
      append(longer, accentedBehind(head.text, std::nullopt));
    }
    return longer;
  }

  static std::vector<Head> leastOf(std::vector<Head> heads) {
    const auto least = std::min_element(
        heads.begin(), heads.end(), [](const Head& a, const Head& b) { return a.base < b.base; });
    if (least != heads.end()) {
      std::erase_if(heads, [base = least->base](const Head& head) { return head.base != base; });
    }
    return heads;
  }

  sqlite3* db_;
  KeptStatement first_;
  KeptStatement last_;
};

bool hasIndex(SqliteSession& session, const LeastMatch& wanted) {
  Statement statement(session.handle(),
                      session.prepared("SELECT 1 FROM pragma_index_list(?1) AS l,"
                                       " pragma_index_xinfo(l.name) AS x"
                                       " WHERE l.partial = 0 AND x.seqno = 0 AND x.name = ?2"
                                       " AND x.coll = 'NOCASE' AND x.desc = 0"),
                      Activity::Reading);
  statement.bind(1, wanted.table);
  statement.bind(2, wanted.column);
  return statement.step();
}

}  // namespace

FoundText findLeastMatch(SqliteSession& session, const LeastMatch& wanted) {
  const ReadScope scope(session.handle());
  if (!hasIndex(session, wanted)) {
    return {};
  }
  try {
    return {.known = true, .text = Search(session, wanted).find(wanted.prefix)};
  } catch (const Unknown&) {
    return {};
  }
}

}  // namespace quartela::sqlite
