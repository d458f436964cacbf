// Many short texts in little room: UTF-8 in blocks, each text behind its length.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

namespace quartela::reporting {

class TextStore {
 public:
  // The text's place, good as long as the store.
  std::uint32_t add(const QString& text);
  QString at(std::uint32_t place) const;
  std::size_t bytes() const { return bytes_; }

 private:
  // A place is the number of a block and the offset in it.
  static constexpr unsigned kOffsetBits = 18;
  static constexpr std::size_t kBlock = std::size_t{1} << kOffsetBits;

  std::vector<std::unique_ptr<char[]>> blocks_;
  std::size_t used_ = 0;
  std::size_t room_ = 0;
  std::size_t bytes_ = 0;
};

}  // namespace quartela::reporting
