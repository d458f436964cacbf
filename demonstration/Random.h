// The source of chance of the demonstration data: the same seed gives the same sequence on every
// machine and with every compiler, which the standard library's distributions do not promise.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace quartela::demonstration {

// xoshiro256**, its state filled by splitmix64. A statement draws at most once among the arguments
// of one call: the order in which arguments are evaluated is the compiler's.
class Random {
 public:
  explicit Random(std::uint64_t seed);

  std::uint64_t next();
  // 0 to `count` - 1; `count` must be above 0.
  std::int32_t below(std::int32_t count);
  // `first` to `last`, both included.
  std::int32_t between(std::int32_t first, std::int32_t last);
  bool chance(std::int32_t percent) { return below(100) < percent; }

  template <typename T>
  const T& pick(std::span<const T> values) {
    return values[static_cast<std::size_t>(below(static_cast<std::int32_t>(values.size())))];
  }
  template <typename T, std::size_t N>
  const T& pick(const std::array<T, N>& values) {
    return pick(std::span<const T>(values));
  }

 private:
  std::array<std::uint64_t, 4> state_;
};

}  // namespace quartela::demonstration
