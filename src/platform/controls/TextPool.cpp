#include "platform/controls/TextPool.h"

#include <algorithm>
#include <cstring>

#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

constexpr std::size_t kLengthByteMax = 0x7F;
constexpr std::size_t kLongestLength = 10;

// Seven bits a byte, the lowest first; the high bit says that more follow.
std::size_t writeLength(char* to, std::size_t length) {
  std::size_t count = 0;
  while (length > kLengthByteMax) {
    to[count++] = static_cast<char>((length & kLengthByteMax) | 0x80);
    length >>= 7;
  }
  to[count++] = static_cast<char>(length);
  return count;
}

bool isAscii(QStringView text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

}  // namespace

char* TextPool::reserve(std::size_t size, Ref& ref) {
  const std::size_t whole = size + kLongestLength;
  // The block's first byte is left free, so that no text has the reference of the empty one.
  if (next_ + whole > kBlockSize) {
    constexpr std::size_t kMostBlocks = std::size_t{1} << (32 - kBlockBits);
    if (blocks_.size() == kMostBlocks) {
      throw RuntimeError(ErrorNumber::Overflow);
    }
    blocks_.push_back(std::make_unique_for_overwrite<char[]>(std::max(whole + 1, kBlockSize)));
    next_ = 1;
  }
  ref = static_cast<Ref>(((blocks_.size() - 1) << kBlockBits) + next_);
  char* const at = blocks_.back().get() + next_;
  const std::size_t taken = writeLength(at, size);
  next_ += taken + size;
  used_ += taken + size;
  return at + taken;
}

TextPool::Ref TextPool::add(QStringView text) {
  if (text.isEmpty()) {
    return kEmpty;
  }
  if (!isAscii(text)) {
    const QByteArray utf8 = text.toUtf8();
    return add(std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())));
  }
  Ref ref = kEmpty;
  char* const to = reserve(static_cast<std::size_t>(text.size()), ref);
  std::transform(text.begin(), text.end(), to,
                 [](QChar c) { return static_cast<char>(c.unicode()); });
  return ref;
}

TextPool::Ref TextPool::add(std::string_view utf8) {
  if (utf8.empty()) {
    return kEmpty;
  }
  Ref ref = kEmpty;
  std::memcpy(reserve(utf8.size(), ref), utf8.data(), utf8.size());
  return ref;
}

std::string_view TextPool::bytes(Ref ref) const {
  if (ref == kEmpty) {
    return {};
  }
  const char* at = blocks_[ref >> kBlockBits].get() + (ref & (kBlockSize - 1));
  std::size_t length = 0;
  for (unsigned shift = 0;; shift += 7) {
    const auto byte = static_cast<unsigned char>(*at++);
    length |= (byte & kLengthByteMax) << shift;
    if (byte <= kLengthByteMax) {
      return {at, length};
    }
  }
}

QString TextPool::text(Ref ref) const {
  const std::string_view utf8 = bytes(ref);
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

void TextPool::clear() {
  blocks_.clear();
  next_ = kBlockSize;
  used_ = 0;
}

}  // namespace quartela
