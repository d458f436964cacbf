#include "platform/database/ResultRows.h"

#include <algorithm>

namespace quartela {
namespace {

static_assert(std::endian::native == std::endian::little,
              "the tag of a short text is the cell's lowest byte");

constexpr std::size_t kFirstBlock = 1024;
constexpr std::size_t kLargestBlock = 256 * 1024;
constexpr std::size_t kLengthBytes = sizeof(std::uint32_t);
// A place is the block's index above these bits and the position in the block below them.
constexpr int kPositionBits = 32;

// The lowest byte of a text's cell is its length, with the text in the other seven, or this tag,
// with the place in the arena above it.
constexpr std::size_t kLongestShortText = 7;
constexpr std::uint64_t kLongTextTag = 0xFF;
constexpr int kTagBits = 8;

}  // namespace

std::uint64_t TextArena::add(std::string_view text) {
  const std::size_t needed = kLengthBytes + text.size();
  if (size_ - used_ < needed) {
    addBlock(needed);
  }
  char* const at = blocks_.back().get() + used_;
  const auto length = static_cast<std::uint32_t>(text.size());
  std::memcpy(at, &length, kLengthBytes);
  std::memcpy(at + kLengthBytes, text.data(), text.size());
  const std::uint64_t place = (std::uint64_t{blocks_.size() - 1} << kPositionBits) | used_;
  used_ += needed;
  return place;
}

void TextArena::addBlock(std::size_t needed) {
  const std::size_t usual = std::clamp(total_, kFirstBlock, kLargestBlock);
  size_ = std::max(usual, needed);
  blocks_.push_back(std::make_unique_for_overwrite<char[]>(size_));
  used_ = 0;
  total_ += size_;
}

std::string_view TextArena::at(std::uint64_t place) const {
  const char* const at =
      blocks_[place >> kPositionBits].get() + (place & ((std::uint64_t{1} << kPositionBits) - 1));
  std::uint32_t length = 0;
  std::memcpy(&length, at, kLengthBytes);
  return {at + kLengthBytes, length};
}

ResultRows::ResultRows(std::vector<ValueType> types)
    : types_(std::move(types)),
      masks_((columnCount() + kCellsPerMask - 1) / kCellsPerMask),
      stride_(masks_ + columnCount()) {}

void ResultRows::addRow() {
  if (static_cast<std::size_t>(count_) == chunks_.size() * kRowsPerChunk) {
    chunks_.push_back(std::make_unique_for_overwrite<std::uint64_t[]>(
        static_cast<std::size_t>(stride_) * kRowsPerChunk));
  }
  last_ = rowAt(count_++);
  std::fill_n(last_, masks_, 0);
}

void ResultRows::putDateTime(int column, DateTime moment) {
  const auto days = static_cast<std::uint32_t>(moment.days());
  put(column, std::uint64_t{days} << 32 | static_cast<std::uint32_t>(moment.secondsOfDay()));
}

void ResultRows::putText(int column, std::string_view text) {
  if (text.size() > kLongestShortText) {
    put(column, texts_.add(text) << kTagBits | kLongTextTag);
    return;
  }
  std::uint64_t cell = 0;
  auto* const bytes = reinterpret_cast<char*>(&cell);
  bytes[0] = static_cast<char>(text.size());
  std::memcpy(bytes + 1, text.data(), text.size());
  put(column, cell);
}

std::string_view ResultRows::textOf(const std::uint64_t& cell) const {
  if ((cell & kLongTextTag) == kLongTextTag) {
    return texts_.at(cell >> kTagBits);
  }
  return {reinterpret_cast<const char*>(&cell) + 1, cell & kLongTextTag};
}

Value ResultRows::value(int row, int column) const {
  const std::uint64_t* const words = rowAt(row);
  if ((words[column / kCellsPerMask] >> (column % kCellsPerMask) & 1) == 0) {
    return {};
  }
  const std::uint64_t& cell = words[masks_ + column];
  switch (type(column)) {
    case ValueType::Null:
      return {};
    case ValueType::Bool:
      return cell != 0;
    case ValueType::I16:
      return static_cast<std::int16_t>(cell);
    case ValueType::I32:
      return static_cast<std::int32_t>(cell);
    case ValueType::Money:
      return Money::fromUnits(static_cast<std::int64_t>(cell));
    case ValueType::Number:
      return std::bit_cast<double>(cell);
    case ValueType::DateTime:
      return DateTime::fromSerial(static_cast<std::int32_t>(cell >> 32),
                                  static_cast<std::int32_t>(cell & 0xFFFFFFFFU));
    case ValueType::Text: {
      const std::string_view text = textOf(cell);
      return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }
  }
  return {};
}

void ResultRows::moveLastCell(int column, int row) {
  std::uint64_t* const target = rowAt(row);
  const std::uint64_t* const source = rowAt(count_ - 1);
  const std::uint64_t bit = std::uint64_t{1} << (column % kCellsPerMask);
  std::uint64_t& mask = target[column / kCellsPerMask];
  mask = (mask & ~bit) | (source[column / kCellsPerMask] & bit);
  target[masks_ + column] = source[masks_ + column];
}

std::size_t ResultRows::bytes() const {
  return chunks_.size() * kRowsPerChunk * static_cast<std::size_t>(stride_) *
             sizeof(std::uint64_t) +
         texts_.bytes();
}

}  // namespace quartela
