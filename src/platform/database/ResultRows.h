// The rows of a result in compact form: eight bytes a cell whatever its type, texts longer than
// seven bytes as UTF-8 in blocks of their own. Nothing is ever moved or copied while rows are
// added.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/values/Value.h"

namespace quartela {

// Texts in blocks that grow with what they hold; a place stays good as long as the arena.
class TextArena {
 public:
  // The place of the text, below 2^56.
  std::uint64_t add(std::string_view text);
  std::string_view at(std::uint64_t place) const;
  std::size_t bytes() const { return total_; }

 private:
  void addBlock(std::size_t needed);

  std::vector<std::unique_ptr<char[]>> blocks_;
  std::size_t size_ = 0;   // of the last block
  std::size_t used_ = 0;   // of the last block
  std::size_t total_ = 0;  // of all blocks
};

class ResultRows {
 public:
  explicit ResultRows(std::vector<ValueType> types);

  int rowCount() const { return count_; }
  int columnCount() const { return static_cast<int>(types_.size()); }
  ValueType type(int column) const { return types_[static_cast<std::size_t>(column)]; }

  // A cell as a value of its column's type, or null.
  Value value(int row, int column) const;

  // Adds a row of nulls; the put functions fill the row added last. The number is an integer's
  // value, 0 or 1 for a bool, the ten-thousandths of an amount.
  void addRow();
  void putInteger(int column, std::int64_t number) {
    put(column, static_cast<std::uint64_t>(number));
  }
  void putNumber(int column, double number) { put(column, std::bit_cast<std::uint64_t>(number)); }
  void putDateTime(int column, DateTime moment);
  void putText(int column, std::string_view text);

  void dropLastRow() { --count_; }
  // Puts the cell of the row added last in the place of the same column's cell in `row`.
  void moveLastCell(int column, int row);

  // What the rows take, for measuring.
  std::size_t bytes() const;

 private:
  static constexpr int kRowsPerChunk = 128;
  static constexpr int kCellsPerMask = 64;

  void put(int column, std::uint64_t cell) {
    last_[column / kCellsPerMask] |= std::uint64_t{1} << (column % kCellsPerMask);
    last_[masks_ + column] = cell;
  }
  std::uint64_t* rowAt(int row) const {
    return chunks_[static_cast<std::size_t>(row / kRowsPerChunk)].get() +
           static_cast<std::ptrdiff_t>(row % kRowsPerChunk) * stride_;
  }
  std::string_view textOf(const std::uint64_t& cell) const;

  std::vector<ValueType> types_;
  // A row is `masks_` words that tell which cells have a value, and a word for each cell.
  int masks_;
  int stride_;
  int count_ = 0;
  std::uint64_t* last_ = nullptr;
  std::vector<std::unique_ptr<std::uint64_t[]>> chunks_;
  TextArena texts_;
};

}  // namespace quartela
