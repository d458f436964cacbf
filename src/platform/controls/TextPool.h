// Many short texts in few large blocks: the cells of a list. Texts are kept as UTF-8 behind their
// length; a text is known by a 32-bit reference and never moves.
#pragma once

#include <QString>
#include <QStringView>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace quartela {

class TextPool {
 public:
  using Ref = std::uint32_t;
  // The empty text, which takes no room.
  static constexpr Ref kEmpty = 0;

  // Raises error 6 when four gigabytes are full.
  Ref add(QStringView text);
  Ref add(std::string_view utf8);
  std::string_view bytes(Ref ref) const;
  QString text(Ref ref) const;
  void clear();
  // Bytes taken by the texts added since the last clear().
  std::size_t used() const { return used_; }

 private:
  static constexpr std::size_t kBlockBits = 18;
  static constexpr std::size_t kBlockSize = std::size_t{1} << kBlockBits;

  // Room for a text of `size` bytes; its length is written already. Gives where the text itself
  // goes.
  char* reserve(std::size_t size, Ref& ref);

  std::vector<std::unique_ptr<char[]>> blocks_;
  std::size_t next_ = kBlockSize;
  std::size_t used_ = 0;
};

}  // namespace quartela
