// Makes new database files: the schema, the stored queries, the reference data, and whatever rows
// the caller adds, in one transaction.
#pragma once

#include <QString>
#include <string_view>

struct sqlite3;

namespace quartela::database {

class NewDatabase {
 public:
  // Creates the file with its tables and begins the one transaction of its making. Errors: 75 when
  // a file of that name exists already, 3044 when none can be created there, others as check().
  explicit NewDatabase(const QString& path);
  // Takes the file away again when finish() was not reached.
  ~NewDatabase();
  NewDatabase(const NewDatabase&) = delete;
  NewDatabase& operator=(const NewDatabase&) = delete;

  // For RowWriter; relations are enforced. Owned by this object and gone after finish().
  sqlite3* handle() const { return database_; }

  void addStoredQueries();
  void addReferenceData();

  // Makes the indexes, commits and closes. One file is left, with a rollback journal as its mode.
  // Every RowWriter must be gone by then.
  void finish();

 private:
  void open();
  void abandon();
  void run(std::string_view sql);

  QString path_;
  sqlite3* database_ = nullptr;
};

// A database with stored queries and reference data and no other rows.
void createEmptyDatabase(const QString& path);

}  // namespace quartela::database
