// The calls by which the program reaches the files of one folder, counted, and made to fail or to
// be the last. The system's functions are defined anew in SystemCalls.cpp for the whole process;
// until watch() is called they do what they always do.
#pragma once

#include <array>
#include <cstdint>

namespace quartela::test::faults {

enum class Call : std::uint8_t {
  Open,
  Read,
  Write,
  Sync,
  Rename,
  Unlink,
  Lock,
  Unlock,
  Rights,
  Close,
};
inline constexpr int kCalls = static_cast<int>(Call::Close) + 1;
inline constexpr std::array<const char*, kCalls> kCallNames{
    "open", "read", "write", "sync", "rename", "unlink", "lock", "unlock", "rights", "close"};

enum class Fault : std::uint8_t {
  None,
  // The call fails once.
  Fails,
  // It fails, and so does every later one of its kind.
  FailsOn,
  // A part of the bytes is written, then it fails as a full disk does.
  Torn,
  // The process is killed before the call.
  KilledBefore,
  // The process is killed behind it.
  KilledAfter,
};

struct Plan {
  Fault fault = Fault::None;
  Call call = Call::Open;
  int nth = 0;  // from 1
};

// Both are carried out; a plan without a fault is none.
using Plans = std::array<Plan, 2>;

// From here on the calls on files below `folder` are counted and the plans are carried out. What
// was opened before is not watched.
void watch(const char* folder, const Plans& plans);
// Every call does what it always does.
void forget();
const std::array<int, kCalls>& counts();

}  // namespace quartela::test::faults
