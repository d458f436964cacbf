// Adds many rows to one table through one prepared statement.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/values/DateTime.h"
#include "platform/values/Money.h"

struct sqlite3;
struct sqlite3_stmt;

namespace quartela::database {

// Raises the program's error for a return code of the engine, with the engine's words behind it:
// 61 disk full, 3044 the file cannot be opened, 3051 read-only, 3317 a value or relation is
// refused, 3049 damaged, 75 anything else. SQLITE_OK, SQLITE_ROW and SQLITE_DONE raise nothing.
void check(int code, sqlite3* database);

class RowWriter {
 public:
  // `columns` is the column list of the INSERT, "A, B, C". The database must outlive the writer.
  RowWriter(sqlite3* database, std::string_view table, std::string_view columns);
  ~RowWriter();
  RowWriter(const RowWriter&) = delete;
  RowWriter& operator=(const RowWriter&) = delete;

  // Adds one row, its values in the order of the columns, and gives its key. Errors as check().
  template <typename... Values>
  std::int32_t add(const Values&... values) {
    int position = 0;
    (bind(++position, values), ...);
    return step();
  }

  // The same value by value: as many calls of put() as there are columns, then step().
  template <typename T>
  void put(const T& value) {
    bind(++position_, value);
  }
  std::int32_t step();

 private:
  void bind(int position, std::nullopt_t);
  void bind(int position, std::int32_t value);
  void bind(int position, bool value);
  void bind(int position, double value);
  void bind(int position, Money value);
  void bind(int position, const DateTime& value);
  void bind(int position, std::string_view value);
  void bind(int position, const std::string& value) { bind(position, std::string_view(value)); }
  void bind(int position, const char* value) { bind(position, std::string_view(value)); }

  template <typename T>
  void bind(int position, const std::optional<T>& value) {
    if (value) {
      bind(position, *value);
    } else {
      bind(position, std::nullopt);
    }
  }

  sqlite3* database_;
  sqlite3_stmt* statement_ = nullptr;
  int position_ = 0;
};

}  // namespace quartela::database
