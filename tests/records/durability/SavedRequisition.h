// What the durability test's child writes into the row of each number, so that the parent can tell a
// whole row from a half one.
#pragma once

#include <QString>
#include <cstdint>

namespace quartela::test {

inline QString justificationOf(std::int32_t seq) {
  return QStringLiteral("Requisição %1. ").arg(seq).repeated(40 + seq % 60);
}

}  // namespace quartela::test
