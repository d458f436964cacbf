// Looks for damage in a database that others go on working with.
#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <cstdint>

namespace quartela {

enum class CheckDepth : std::uint8_t {
  // Pages, rows and their columns.
  Quick,
  // Indexes and relations too.
  Full,
};

// What is damaged, in words for an operator, each line naming the table, and the key where it is
// known; empty when nothing is. Nobody's save waits for it, and nothing is written. Also safe from
// a thread of its own. Given up, with nothing found, as soon as `cancelled` is set. Raises what
// stops the looking, such as 61 or 75.
QStringList findDamage(const QString& path, CheckDepth depth, const std::atomic_bool& cancelled);

}  // namespace quartela
