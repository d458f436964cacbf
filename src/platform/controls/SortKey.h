// The order of a list's texts: without regard to letter case, accented letters beside their bare
// ones
// ("Água" among the A), the accent deciding only between texts that are otherwise the same.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quartela {

class RowStore;

// Appends the key of a UTF-8 text to `out`. Two keys compare, byte by byte, as their texts sort.
void appendSortKey(std::string_view utf8, std::string& out);

// The rows of `store` in the order of their cell `cell`. Rows of equal text keep the order they
// have.
std::vector<std::uint32_t> sortedRows(const RowStore& store, int cell, bool descending);

}  // namespace quartela
