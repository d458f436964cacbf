#include "platform/database/engines/sqlite/RowLoader.h"

#include <cmath>
#include <limits>

#include "platform/files/TextEncoding.h"
#include "platform/values/RuntimeError.h"

namespace quartela::sqlite {
namespace {

// Whether the bytes are characters that somebody can have typed; a damaged text seldom is. Nearly
// all texts are plain, and are only glanced at.
bool isText(std::string_view bytes) {
  unsigned char all = 0;
  bool hasZero = false;
  for (const char byte : bytes) {
    all |= static_cast<unsigned char>(byte);
    hasZero |= byte == 0;
  }
  return !hasZero && (all < 0x80 || detectEncoding(QByteArrayView(
                                        bytes.data(), static_cast<qsizetype>(bytes.size()))) ==
                                        TextEncoding::Utf8);
}

// The engine's cells of one row. A false answer means that the cell does not fit the column.
class RowCells {
 public:
  RowCells(sqlite3_stmt* statement, ResultRows& rows) : statement_(statement), rows_(rows) {}

  bool load(int column, ValueType type) {
    const int stored = sqlite3_column_type(statement_, column);
    if (stored == SQLITE_NULL) {
      return true;
    }
    switch (type) {
      case ValueType::Null:
        return false;
      case ValueType::Bool:
        return stored == SQLITE_INTEGER && loadInteger(column, 0, 1);
      case ValueType::I16:
        return stored == SQLITE_INTEGER && loadWhole<std::int16_t>(column);
      case ValueType::I32:
        return stored == SQLITE_INTEGER && loadWhole<std::int32_t>(column);
      case ValueType::Money:
        return stored == SQLITE_INTEGER && loadWhole<std::int64_t>(column);
      case ValueType::Number:
        return (stored == SQLITE_FLOAT || stored == SQLITE_INTEGER) && loadNumber(column);
      case ValueType::DateTime:
        return stored == SQLITE_TEXT && loadDateTime(column);
      case ValueType::Text:
        return stored == SQLITE_TEXT && loadText(column);
    }
    return false;
  }

 private:
  template <typename Whole>
  bool loadWhole(int column) {
    return loadInteger(column, std::numeric_limits<Whole>::min(),
                       std::numeric_limits<Whole>::max());
  }

  bool loadInteger(int column, std::int64_t lowest, std::int64_t highest) {
    const std::int64_t number = sqlite3_column_int64(statement_, column);
    rows_.putInteger(column, number);
    return number >= lowest && number <= highest;
  }

  bool loadNumber(int column) {
    const double number = sqlite3_column_double(statement_, column);
    rows_.putNumber(column, number);
    return std::isfinite(number);
  }

  std::string_view text(int column) {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return {bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
  }

  bool loadDateTime(int column) {
    const std::string_view iso = text(column);
    const auto moment = DateTime::fromIso(iso.data(), static_cast<int>(iso.size()));
    if (moment) {
      rows_.putDateTime(column, *moment);
    }
    return moment.has_value();
  }

  bool loadText(int column) {
    const std::string_view bytes = text(column);
    rows_.putText(column, bytes);
    return isText(bytes);
  }

  sqlite3_stmt* statement_;
  ResultRows& rows_;
};

[[noreturn]] void raiseMisfit(const LoadedColumn& column, int row) {
  if (column.computed) {
    throw RuntimeError(ErrorNumber::Overflow, column.name);
  }
  throw RuntimeError::withDescription(
      ErrorNumber::TypeMismatch,
      QStringLiteral(
          "O campo \"%1\" traz, na linha %2 do resultado, um valor que não é do seu tipo. "
          "O arquivo pode ter sido alterado por outro programa.")
          .arg(column.name)
          .arg(row));
}

}  // namespace

void loadRow(const Statement& statement, const LoadedColumns& columns, ResultRows& rows) {
  rows.addRow();
  RowCells cells(statement.raw(), rows);
  const int count = static_cast<int>(columns.size());
  for (int i = 0; i < count; ++i) {
    const LoadedColumn& column = columns[static_cast<std::size_t>(i)];
    if (!cells.load(i, column.type)) {
      raiseMisfit(column, rows.rowCount());
    }
  }
}

}  // namespace quartela::sqlite
