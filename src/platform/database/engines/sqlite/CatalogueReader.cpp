#include "platform/database/engines/sqlite/CatalogueReader.h"

#include <array>

#include "platform/database/engines/sqlite/Statement.h"
#include "platform/values/RuntimeError.h"

namespace quartela::sqlite {
namespace {

struct DeclaredType {
  const char* name;
  ValueType type;
};

constexpr std::array kTypes{
    DeclaredType{"SMALLINT", ValueType::I16}, DeclaredType{"INTEGER", ValueType::I32},
    DeclaredType{"MONEY", ValueType::Money},  DeclaredType{"DATETIME", ValueType::DateTime},
    DeclaredType{"BOOLEAN", ValueType::Bool}, DeclaredType{"DOUBLE", ValueType::Number},
};

ValueType typeDeclared(const char* name) {
  for (const DeclaredType& declared : kTypes) {
    if (name != nullptr && sqlite3_stricmp(declared.name, name) == 0) {
      return declared.type;
    }
  }
  return ValueType::Text;
}

CatalogueColumn readColumn(sqlite3* db, const QString& table, const QString& name) {
  const char* type = nullptr;
  int required = 0;
  int primaryKey = 0;
  int generated = 0;
  check(db,
        sqlite3_table_column_metadata(db, "main", table.toUtf8().constData(),
                                      name.toUtf8().constData(), &type, nullptr, &required,
                                      &primaryKey, &generated),
        Activity::Opening);
  CatalogueColumn column;
  column.name = name;
  column.type = typeDeclared(type);
  column.required = required != 0 || primaryKey != 0;
  column.primaryKey = primaryKey != 0;
  column.generated = generated != 0;
  return column;
}

CatalogueTable readTable(sqlite3* db, const QString& name) {
  CatalogueTable table;
  table.name = name;
  Statement columns(db, "SELECT name FROM pragma_table_info(?1) ORDER BY cid", Activity::Opening);
  columns.bind(1, name);
  while (columns.step()) {
    table.columns.push_back(readColumn(db, name, columns.text(0)));
  }
  return table;
}

bool hasStoredQueries(sqlite3* db) {
  return sqlite3_table_column_metadata(db, "main", "Consultas", "TEXTO", nullptr, nullptr, nullptr,
                                       nullptr, nullptr) == SQLITE_OK;
}

void readTables(sqlite3* db, Catalogue& catalogue) {
  Statement tables(
      db,
      "SELECT name FROM sqlite_schema WHERE type = 'table'"
      " AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' AND name <> 'Consultas' COLLATE NOCASE",
      Activity::Opening);
  while (tables.step()) {
    catalogue.addTable(readTable(db, tables.text(0)));
  }
}

}  // namespace

Catalogue readCatalogue(sqlite3* db) {
  Catalogue catalogue;
  readTables(db, catalogue);
  if (!hasStoredQueries(db)) {
    throw RuntimeError(ErrorNumber::InvalidPath, QStringLiteral("Consultas"));
  }
  Statement queries(db, "SELECT NOME, TEXTO FROM Consultas", Activity::Opening);
  while (queries.step()) {
    catalogue.addStoredQuery(queries.text(0), queries.text(1));
  }
  return catalogue;
}

}  // namespace quartela::sqlite
