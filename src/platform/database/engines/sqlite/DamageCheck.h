// Looks for damage in a database file that others go on working with.
#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <cstdint>

namespace quartela::sqlite {

enum class CheckDepth : std::uint8_t {
  // Pages, rows and their columns.
  Quick,
  // Indexes and relations too.
  Full,
};

// What is damaged, in words for an operator, each line naming the table, and the key where it is
// known; empty when nothing is. A copy is made in small steps and looked at, so that nobody's save
// waits; the file is read only. Also safe from a thread of its own. Given up, with nothing found,
// as soon as `cancelled` is set. Raises what stops the copying, such as 61 or 75.
QStringList findDamage(const QString& path, CheckDepth depth, const std::atomic_bool& cancelled);

}  // namespace quartela::sqlite
