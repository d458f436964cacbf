// The order of a list's texts: without regard to letter case, accented letters beside their bare
// ones ("Água" among the A), the accent deciding only between texts that are otherwise the same. A
// letter with its accent behind it is the composed letter.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quartela {

// Appends the key of a UTF-8 text to `out`. Two keys compare, byte by byte, as their texts sort.
void appendSortKey(std::string_view utf8, std::string& out);

// Appends the key of a row's text.
using AppendRowKey = std::function<void(int row, std::string& out)>;

// The rows from 0 to `count` in the order of their keys. Rows of equal text keep the order they
// have.
std::vector<std::uint32_t> sortedRows(int count, const AppendRowKey& appendKey, bool descending);

}  // namespace quartela
