// A database full of plausible rows: for trying the program out, for its tests and benchmarks.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>

#include "platform/values/DateTime.h"

namespace quartela::demonstration {

struct Options {
  // The day on which the data looks current: deadlines lie around it, the newest rows just before
  // it.
  DateTime today;
  // 1 to 500,000. The years they are spread over grow with them, since a year has four-digit
  // numbers.
  std::int32_t processes = 900;
  // Notes of all processes together, up to 20 million; seven a process when nothing is said.
  std::optional<std::int32_t> notes;
  // The same options and seed give the same rows on every machine.
  std::uint64_t seed = 1;
};

// Makes the file at `path`, which must not exist. Errors: 5 for options out of range, and those of
// database::NewDatabase.
void makeDatabase(const QString& path, const Options& options);

}  // namespace quartela::demonstration
