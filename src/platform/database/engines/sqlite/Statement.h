// A prepared statement of the engine, finalised when it leaves its scope.
#pragma once

#include <memory>
#include <string_view>

#include "platform/database/engines/sqlite/Errors.h"
#include "platform/values/Value.h"

namespace quartela::sqlite {

// A statement that is kept for its next use. Who keeps it and who is at work with it share it, so
// that it can be dropped at any time.
using KeptStatement = std::shared_ptr<sqlite3_stmt>;

class Statement {
 public:
  // `sql` is one statement in UTF-8. `activity` says how the engine's refusals are to be read.
  Statement(sqlite3* db, std::string_view sql, Activity activity);
  // One that somebody else keeps for its next use: it is reset, not finalised.
  Statement(sqlite3* db, KeptStatement kept, Activity activity);
  ~Statement();
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  // Binds ?`index` (from 1) in the form that the file keeps: money as ten-thousandths, dates as ISO
  // text, bools as 0 and 1.
  void bind(int index, const Value& value);

  // True when there is a row.
  bool step() {
    const int code = tryStep();
    check(db_, code, activity_);
    return code == SQLITE_ROW;
  }
  // The engine's result code, for who knows more of a refusal.
  int tryStep() { return sqlite3_step(statement_); }

  QString text(int column) const;
  std::int64_t integer(int column) const { return sqlite3_column_int64(statement_, column); }
  sqlite3_stmt* raw() const { return statement_; }

 private:
  int bindCell(int index, const Value& value);

  sqlite3* db_;
  sqlite3_stmt* statement_ = nullptr;
  Activity activity_;
  KeptStatement kept_;
};

// Runs a statement that gives no rows, or whose rows nobody reads.
void run(sqlite3* db, std::string_view sql, Activity activity);

// `name` as the engine's text bears it: in double quotes.
std::string quoted(const QString& name);

}  // namespace quartela::sqlite
