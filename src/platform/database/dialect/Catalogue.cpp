#include "platform/database/dialect/Catalogue.h"

#include <algorithm>

#include "platform/database/dialect/Errors.h"
#include "platform/database/dialect/Names.h"
#include "platform/database/dialect/Parser.h"

namespace quartela {
namespace {

// A file holds a few dozen names, so that looking through them beats folding a key for a hash.
template <typename Entries>
auto* findNamed(Entries& entries, QStringView name) {
  const auto found = std::find_if(entries.begin(), entries.end(), [&](const auto& entry) {
    return dialect::sameName(entry.name, name);
  });
  return found == entries.end() ? nullptr : &*found;
}

template <typename Entries, typename Entry>
void put(Entries& entries, Entry&& entry) {
  if (auto* present = findNamed(entries, entry.name)) {
    *present = std::forward<Entry>(entry);
  } else {
    entries.push_back(std::forward<Entry>(entry));
  }
}

}  // namespace

void Catalogue::addTable(CatalogueTable table) {
  put(tables_, std::move(table));
}

void Catalogue::addStoredQuery(const QString& name, const QString& text) {
  put(storedQueries_, StoredQuery{name, text, nullptr});
}

const CatalogueTable* Catalogue::table(QStringView name) const {
  return findNamed(tables_, name);
}

const Catalogue::StoredQuery* Catalogue::findQuery(QStringView name) const {
  return findNamed(storedQueries_, name);
}

const QString* Catalogue::storedQuery(QStringView name) const {
  const StoredQuery* query = findQuery(name);
  return query == nullptr ? nullptr : &query->text;
}

const dialect::Tree* Catalogue::storedTree(QStringView name) const {
  const StoredQuery* query = findQuery(name);
  if (query == nullptr) {
    return nullptr;
  }
  if (!query->tree) {
    auto tree = std::make_shared<dialect::Tree>(dialect::parse(query->text));
    if (tree->kind != dialect::StatementKind::Select) {
      dialect::invalidStatement(query->name);
    }
    tree->text = query->text;
    query->tree = std::move(tree);
  }
  return query->tree.get();
}

}  // namespace quartela
