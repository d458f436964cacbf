// The one way from SQLite's result codes to the program's errors.
#pragma once

#include <sqlite3.h>

#include <cstdint>

namespace quartela::sqlite {

// What the program is about when the engine answers; some codes mean another thing by it.
enum class Activity : std::uint8_t { Opening, Preparing, Reading, Writing, Deleting };

// Raises the error that `code` stands for. The engine's own words, which are English, stand in
// brackets behind the number's where those leave open what has happened. `db` may be null.
[[noreturn]] void raise(sqlite3* db, int code, Activity activity);

// Every result code passes here. OK, ROW and DONE are no errors.
inline void check(sqlite3* db, int code, Activity activity) {
  if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE) {
    raise(db, code, activity);
  }
}

}  // namespace quartela::sqlite
