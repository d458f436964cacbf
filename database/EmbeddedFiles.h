// The text files of this folder, as the build found them.
#pragma once

#include <span>
#include <string_view>

namespace quartela::database {

struct StoredQuery {
  std::string_view name;
  // One SELECT in the dialect of the program's statements.
  std::string_view text;
};

std::string_view schemaText();
std::span<const StoredQuery> storedQueries();

// UTF-8, one head line, fields joined by ";": id, nome, uf, distancia (kilometres).
std::string_view citiesText();
// UTF-8, one head line, fields joined by ";": id, finalidade.
std::string_view purposesText();

}  // namespace quartela::database
