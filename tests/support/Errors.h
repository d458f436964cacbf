// The error that a piece of the program raises, for tests that expect one or none.
#pragma once

#include <QString>
#include <optional>

#include "platform/values/RuntimeError.h"

namespace quartela::test {

// What `action` raises.
template <typename Action>
std::optional<RuntimeError> raisedBy(const Action& action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error;
  }
  return {};
}

// Its number, 0 for none.
template <typename Action>
int errorOf(const Action& action) {
  const std::optional<RuntimeError> error = raisedBy(action);
  return error ? error->number() : 0;
}

// Its words, empty for none.
template <typename Action>
QString wordsOf(const Action& action) {
  const std::optional<RuntimeError> error = raisedBy(action);
  return error ? error->description() : QString();
}

}  // namespace quartela::test
