#include "platform/database/engines/sqlite/Refusals.h"

#include <QStringList>

#include "platform/database/engines/sqlite/Parameters.h"
#include "platform/database/engines/sqlite/Statement.h"
#include "platform/values/RuntimeError.h"

namespace quartela::sqlite {
namespace {

constexpr int kPrimaryCodeMask = 0xFF;
// Relations of the file lead no deeper; a circle of them would.
constexpr int kDeepestRelation = 8;

struct Relation {
  QString child;
  QString column;
  QString parent;
  QString key;
  bool cascades = false;
};

QString fields(const QStringList& names, const QString& table) {
  return (names.size() == 1 ? QStringLiteral("campo %1 da tabela %2")
                            : QStringLiteral("campos %1 da tabela %2"))
      .arg(names.join(QStringLiteral(", ")), table);
}

// What stands behind the colon of the engine's message.
QString subject(sqlite3* db) {
  const QString message = QString::fromUtf8(sqlite3_errmsg(db));
  const qsizetype colon = message.indexOf(QLatin1String(": "));
  return colon < 0 ? QString() : message.mid(colon + 2);
}

// Of "Tabela.A, Tabela.B".
QStringList namedColumns(const QString& subject) {
  QStringList names = subject.split(QStringLiteral(", "), Qt::SkipEmptyParts);
  for (QString& name : names) {
    name = name.mid(name.lastIndexOf(QLatin1Char('.')) + 1);
  }
  return names;
}

QStringList wordsOf(const QString& text) {
  QStringList words(QString{});
  for (const QChar letter : text) {
    if (letter.isLetterOrNumber() || letter == QLatin1Char('_')) {
      words.last() += letter;
    } else if (!words.last().isEmpty()) {
      words.append(QString());
    }
  }
  return words;
}

// The column that a CHECK is about: the first that its text names.
QStringList checkedColumn(const QString& check, const CatalogueTable& table) {
  for (const QString& word : wordsOf(check)) {
    for (const CatalogueColumn& column : table.columns) {
      if (column.name.compare(word, Qt::CaseInsensitive) == 0) {
        return {column.name};
      }
    }
  }
  return {};
}

std::vector<Relation> relations(sqlite3* db, const char* condition, const QString& table) {
  const std::string sql =
      "SELECT t.name, f.\"from\", f.\"table\", coalesce(f.\"to\","
      " (SELECT name FROM pragma_table_info(f.\"table\") WHERE pk = 1)), f.on_delete = 'CASCADE'"
      " FROM sqlite_schema AS t, pragma_foreign_key_list(t.name) AS f"
      " WHERE t.type = 'table' AND " +
      std::string(condition) + " = ?1 COLLATE NOCASE ORDER BY t.name, f.id";
  Statement select(db, sql, Activity::Reading);
  select.bind(1, table);
  std::vector<Relation> found;
  while (select.step()) {
    found.push_back(
        {select.text(0), select.text(1), select.text(2), select.text(3), select.integer(4) != 0});
  }
  return found;
}

bool hasParent(sqlite3* db, const Relation& relation, const Value& value) {
  Statement select(
      db, "SELECT 1 FROM " + quoted(relation.parent) + " WHERE " + quoted(relation.key) + " = ?1",
      Activity::Reading);
  select.bind(1, value);
  return select.step();
}

QString missingParent(sqlite3* db, const CatalogueTable& table, const CellsToWrite& cells) {
  for (const Relation& relation : relations(db, "t.name", table.name)) {
    for (const CellToWrite& cell : cells) {
      if (cell.column.compare(relation.column, Qt::CaseInsensitive) == 0 && !cell.value.isNull() &&
          !hasParent(db, relation, cell.value)) {
        return fields({relation.column}, table.name) + QStringLiteral(", que não está na tabela ") +
               relation.parent;
      }
    }
  }
  return QStringLiteral("tabela ") + table.name;
}

// Looks below the rows that `selected` selects of `table` for rows that keep them; rows that would
// go along are looked below in their turn.
class Dependants {
 public:
  Dependants(sqlite3* db, const EngineStatement& deletion) : db_(db), deletion_(deletion) {}

  QString tableBelow(const QString& table, const std::string& selected, int depth = 0) const {
    if (depth == kDeepestRelation) {
      return {};
    }
    for (const Relation& relation : relations(db_, "f.\"table\"", table)) {
      const std::string below = " FROM " + quoted(relation.child) + " WHERE " +
                                quoted(relation.column) + " IN (SELECT " + quoted(relation.key) +
                                selected + ')';
      const QString kept = relation.cascades ? tableBelow(relation.child, below, depth + 1)
                           : exists(below)   ? relation.child
                                             : QString();
      if (!kept.isEmpty()) {
        return kept;
      }
    }
    return {};
  }

 private:
  bool exists(const std::string& below) const {
    Statement select(db_, "SELECT 1" + below + " LIMIT 1", Activity::Reading);
    bindParameters(select, deletion_);
    return select.step();
  }

  sqlite3* db_;
  const EngineStatement& deletion_;
};

}  // namespace

QString namedField(const CatalogueTable& table, const QString& column) {
  return fields({column}, table.name);
}

bool isConstraint(int code) {
  return (code & kPrimaryCodeMask) == SQLITE_CONSTRAINT;
}

void raiseRefusedRow(sqlite3* db, int code, const CatalogueTable& table,
                     const CellsToWrite& cells) {
  const QString subject = sqlite::subject(db);
  switch (code) {
    case SQLITE_CONSTRAINT_FOREIGNKEY:
    case SQLITE_CONSTRAINT_TRIGGER:
      throw RuntimeError(ErrorNumber::ParentMissing, missingParent(db, table, cells));
    case SQLITE_CONSTRAINT_NOTNULL:
      throw RuntimeError(ErrorNumber::ColumnRequired, fields(namedColumns(subject), table.name));
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_ROWID:
      throw RuntimeError(ErrorNumber::DuplicateKey, fields(namedColumns(subject), table.name));
    default:
      break;
  }
  const QStringList column = checkedColumn(subject, table);
  throw RuntimeError(ErrorNumber::ValueRefused, column.isEmpty()
                                                    ? QStringLiteral("tabela ") + table.name
                                                    : fields(column, table.name));
}

void raiseRefusedDeletion(sqlite3* db, const EngineStatement& deletion, const QString& table) {
  static constexpr std::string_view kDelete = "DELETE";
  const QString kept =
      Dependants(db, deletion).tableBelow(table, deletion.sql.substr(kDelete.size()));
  throw RuntimeError(ErrorNumber::DependantsExist,
                     kept.isEmpty() ? kept : QStringLiteral("há registros na tabela ") + kept);
}

}  // namespace quartela::sqlite
