// Many short texts in little room: UTF-8 in blocks, each text behind its length. A row of texts
// stands together, and one that is the same as an earlier text is a reference to it.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace quartela::reporting {

class TextStore {
 public:
  // A text of a row: anew, or where the same one stands already.
  struct RowText {
    QByteArray bytes;
    std::uint32_t same = kNone;
  };
  static constexpr std::uint32_t kNone = UINT32_MAX;
  // More bytes than this do not stand together.
  static constexpr std::size_t kLongestRow = 60'000;

  // The text's place, good as long as the store.
  std::uint32_t add(const QString& text);
  // The places of such texts, the first of which alone is needed to find them.
  std::vector<std::uint32_t> addRow(std::span<const RowText> texts);
  QString at(std::uint32_t place) const;
  // The place of the text behind that one in its row.
  std::uint32_t next(std::uint32_t place) const;
  std::size_t bytes() const { return bytes_; }

 private:
  // A place is the number of a block and the offset in it.
  static constexpr unsigned kOffsetBits = 18;
  static constexpr std::size_t kBlock = std::size_t{1} << kOffsetBits;

  std::uint32_t reserve(std::size_t needed);
  char* bytesAt(std::uint32_t place) const;

  std::vector<std::unique_ptr<char[]>> blocks_;
  std::size_t used_ = 0;
  std::size_t room_ = 0;
  std::size_t bytes_ = 0;
};

}  // namespace quartela::reporting
