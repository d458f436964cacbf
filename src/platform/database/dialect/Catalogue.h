// What the database file holds, as far as statements need it: tables with typed columns, and stored
// queries. Names are found without regard to letter case, accents kept apart.
#pragma once

#include <QString>
#include <QStringView>
#include <deque>
#include <memory>
#include <vector>

#include "platform/values/Value.h"

namespace quartela {

namespace dialect {
struct Tree;
}

struct CatalogueColumn {
  QString name;
  ValueType type = ValueType::Text;
  bool required = false;  // refuses null
  bool primaryKey = false;
  bool generated = false;  // an autonumber: the engine gives the value
};

struct CatalogueTable {
  QString name;
  std::vector<CatalogueColumn> columns;
};

class Catalogue {
 public:
  // A table or query of a name that is there already takes its place.
  void addTable(CatalogueTable table);
  // `text` is a SELECT in the program's dialect; it is parsed at its first use.
  void addStoredQuery(const QString& name, const QString& text);

  // Null when there is none of that name. Pointers stay good until the next add.
  const CatalogueTable* table(QStringView name) const;
  const QString* storedQuery(QStringView name) const;
  // The syntax tree of a stored query, parsed once; errors 3075, and 3065 when it is no SELECT. Not
  // for several threads at once.
  const dialect::Tree* storedTree(QStringView name) const;

 private:
  struct StoredQuery {
    QString name;
    QString text;
    mutable std::shared_ptr<const dialect::Tree> tree;
  };
  const StoredQuery* findQuery(QStringView name) const;

  std::deque<CatalogueTable> tables_;
  std::deque<StoredQuery> storedQueries_;
};

}  // namespace quartela
