#include "demonstration/Random.h"

#include <bit>

namespace quartela::demonstration {

namespace {

std::uint64_t splitmix(std::uint64_t& state) {
  state += 0x9E3779B97F4A7C15U;
  std::uint64_t z = state;
  z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
  z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
  return z ^ (z >> 31U);
}

}  // namespace

Random::Random(std::uint64_t seed) : state_{} {
  for (std::uint64_t& word : state_) {
    word = splitmix(seed);
  }
}

std::uint64_t Random::next() {
  const std::uint64_t result = std::rotl(state_[1] * 5U, 7) * 9U;
  const std::uint64_t shifted = state_[1] << 17U;
  state_[2] ^= state_[0];
  state_[3] ^= state_[1];
  state_[1] ^= state_[2];
  state_[0] ^= state_[3];
  state_[2] ^= shifted;
  state_[3] = std::rotl(state_[3], 45);
  return result;
}

std::int32_t Random::below(std::int32_t count) {
  return static_cast<std::int32_t>((next() >> 11U) % static_cast<std::uint64_t>(count));
}

std::int32_t Random::between(std::int32_t first, std::int32_t last) {
  return first + below(last - first + 1);
}

}  // namespace quartela::demonstration
