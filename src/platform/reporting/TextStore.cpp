#include "platform/reporting/TextStore.h"

#include <algorithm>
#include <cstring>

#include "platform/values/RuntimeError.h"

namespace quartela::reporting {
namespace {

// Nearly every text is shorter than this, and its length one byte.
constexpr unsigned char kLongLength = 255;

}  // namespace

std::uint32_t TextStore::add(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  const auto length = static_cast<std::uint32_t>(bytes.size());
  const bool isLong = length >= kLongLength;
  const std::size_t needed = length + 1 + (isLong ? sizeof length : 0);
  if (used_ + needed > room_) {
    if (blocks_.size() == (std::size_t{1} << (32U - kOffsetBits))) {
      throw RuntimeError(ErrorNumber::Overflow);
    }
    // The first block is small, as most reports are.
    room_ = std::max(needed, blocks_.empty() ? kBlock / 16 : kBlock);
    blocks_.push_back(std::make_unique_for_overwrite<char[]>(room_));
    used_ = 0;
  }
  const auto place = static_cast<std::uint32_t>(((blocks_.size() - 1) << kOffsetBits) | used_);
  char* to = blocks_.back().get() + used_;
  *to++ = static_cast<char>(isLong ? kLongLength : length);
  if (isLong) {
    std::memcpy(to, &length, sizeof length);
    to += sizeof length;
  }
  std::memcpy(to, bytes.constData(), length);
  used_ += needed;
  bytes_ += needed;
  return place;
}

QString TextStore::at(std::uint32_t place) const {
  const char* from = blocks_[place >> kOffsetBits].get() + (place & (kBlock - 1));
  std::uint32_t length = static_cast<unsigned char>(*from++);
  if (length == kLongLength) {
    std::memcpy(&length, from, sizeof length);
    from += sizeof length;
  }
  return QString::fromUtf8(from, static_cast<qsizetype>(length));
}

}  // namespace quartela::reporting
