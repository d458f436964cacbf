// What the database file holds, as far as statements need it: tables with typed columns, and stored
// queries. Names are found without regard to letter case, accents kept apart.
#pragma once

#include <QHash>
#include <QString>
#include <QStringView>
#include <memory>
#include <vector>

#include "platform/values/Value.h"

namespace quartela {

struct CatalogueColumn {
  QString name;
  ValueType type = ValueType::Text;
  bool required = false;       // refuses null
  bool primaryKey = false;
  bool generated = false;      // an autonumber: the engine gives the value
};

struct CatalogueTable {
  QString name;
  std::vector<CatalogueColumn> columns;
};

class Catalogue {
 public:
  void addTable(CatalogueTable table);
  // `text` is a SELECT in the program's dialect; it is parsed at its first use.
  void addStoredQuery(const QString& name, const QString& text);

  // Null when there is none of that name. Pointers stay good until the next add.
  const CatalogueTable* table(QStringView name) const;
  const QString* storedQuery(QStringView name) const;

 private:
  QHash<QString, CatalogueTable> tables_;
  QHash<QString, QString> storedQueries_;
};

}  // namespace quartela
