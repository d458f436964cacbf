#include "platform/reporting/TextStore.h"

#include <algorithm>
#include <cstring>

#include "platform/values/RuntimeError.h"

namespace quartela::reporting {
namespace {

// Nearly every text is shorter than these, and its length one byte. A long text has its length
// behind the first, a repeated one its place behind the second.
constexpr unsigned char kLongLength = 255;
constexpr unsigned char kRepeated = 254;
constexpr std::size_t kBehind = sizeof(std::uint32_t);

std::uint32_t numberAt(const char* from) {
  std::uint32_t number = 0;
  std::memcpy(&number, from, sizeof number);
  return number;
}

std::size_t sizeOf(const QByteArray& bytes) {
  const auto length = static_cast<std::size_t>(bytes.size());
  return 1 + (length >= kRepeated ? kBehind : 0) + length;
}

// A short text takes less room than the reference to it.
bool isReference(const TextStore::RowText& text) {
  return text.same != TextStore::kNone && sizeOf(text.bytes) > 1 + kBehind;
}

char* writeNumber(char* to, unsigned char sign, std::uint32_t number) {
  *to++ = static_cast<char>(sign);
  std::memcpy(to, &number, sizeof number);
  return to + sizeof number;
}

char* write(char* to, const QByteArray& bytes) {
  const auto length = static_cast<std::uint32_t>(bytes.size());
  if (length >= kRepeated) {
    to = writeNumber(to, kLongLength, length);
  } else {
    *to++ = static_cast<char>(length);
  }
  std::memcpy(to, bytes.constData(), length);
  return to + length;
}

}  // namespace

std::uint32_t TextStore::reserve(std::size_t needed) {
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
  used_ += needed;
  bytes_ += needed;
  return place;
}

char* TextStore::bytesAt(std::uint32_t place) const {
  return blocks_[place >> kOffsetBits].get() + (place & (kBlock - 1));
}

std::uint32_t TextStore::add(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  const std::uint32_t place = reserve(sizeOf(bytes));
  write(bytesAt(place), bytes);
  return place;
}

std::vector<std::uint32_t> TextStore::addRow(std::span<const RowText> texts) {
  std::size_t needed = 0;
  for (const RowText& text : texts) {
    needed += isReference(text) ? 1 + kBehind : sizeOf(text.bytes);
  }
  std::vector<std::uint32_t> places;
  places.reserve(texts.size());
  std::uint32_t place = reserve(needed);
  for (const RowText& text : texts) {
    char* const from = bytesAt(place);
    char* const to =
        isReference(text) ? writeNumber(from, kRepeated, text.same) : write(from, text.bytes);
    places.push_back(place);
    place += static_cast<std::uint32_t>(to - from);
  }
  return places;
}

QString TextStore::at(std::uint32_t place) const {
  const char* from = bytesAt(place);
  std::uint32_t length = static_cast<unsigned char>(*from++);
  if (length == kRepeated) {
    return at(numberAt(from));
  }
  if (length == kLongLength) {
    length = numberAt(from);
    from += kBehind;
  }
  return QString::fromUtf8(from, static_cast<qsizetype>(length));
}

std::uint32_t TextStore::next(std::uint32_t place) const {
  const char* const from = bytesAt(place);
  const std::uint32_t length = static_cast<unsigned char>(*from);
  constexpr auto kSigned = static_cast<std::uint32_t>(1 + kBehind);
  if (length == kRepeated) {
    return place + kSigned;
  }
  return place + (length == kLongLength ? kSigned + numberAt(from + 1) : 1 + length);
}

}  // namespace quartela::reporting
