#include "database/Builder.h"

#include <fcntl.h>
#include <sqlite3.h>

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <charconv>
#include <string>

#include "database/EmbeddedFiles.h"
#include "database/RowWriter.h"
#include "platform/files/OpenFile.h"
#include "platform/values/RuntimeError.h"

namespace quartela::database {

namespace {

// The schema in two halves: indexes are made behind the rows, which is several times quicker.
std::size_t indexesBegin() {
  return schemaText().find("\nCREATE INDEX");
}

std::string_view firstField(std::string_view& line) {
  const std::size_t end = std::min(line.find(';'), line.size());
  const std::string_view field = line.substr(0, end);
  line.remove_prefix(std::min(end + 1, line.size()));
  return field;
}

std::int32_t number(std::string_view text) {
  std::int32_t value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc() || result.ptr != text.data() + text.size()) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  return value;
}

// Calls `take` with every line behind the head line.
template <typename Take>
void forEachLine(std::string_view text, Take take) {
  std::size_t begin = text.find('\n') + 1;
  while (begin < text.size()) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    take(text.substr(begin, end - begin));
    begin = end + 1;
  }
}

// A file of its own for owner and group alone, whatever stood there a moment ago.
void createForOffice(const QString& path) {
  constexpr mode_t kOwnerAndGroup = 0660;
  const OpenFile file(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL,
                      kOwnerAndGroup);
  if (!file.isOpen()) {
    throw RuntimeError(errno == ENOSPC   ? ErrorNumber::DiskFull
                       : errno == EEXIST ? ErrorNumber::PathFileAccess
                                         : ErrorNumber::InvalidPath,
                       path);
  }
}

}  // namespace

NewDatabase::NewDatabase(const QString& path) : path_(path) {
  createForOffice(path_);
  try {
    open();
  } catch (...) {
    abandon();
    throw;
  }
}

NewDatabase::~NewDatabase() {
  abandon();
}

void NewDatabase::open() {
  check(sqlite3_open_v2(path_.toUtf8().constData(), &database_,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr),
        database_);
  // Nobody else knows the file yet, and a broken attempt is removed whole: no need for a journal on
  // the disk or for a wait on it.
  run("PRAGMA journal_mode = MEMORY; PRAGMA synchronous = OFF; PRAGMA cache_size = -200000;"
      "PRAGMA foreign_keys = ON; BEGIN IMMEDIATE");
  run(schemaText().substr(0, indexesBegin()));
}

void NewDatabase::abandon() {
  if (database_ == nullptr) {
    return;
  }
  sqlite3_close_v2(database_);
  database_ = nullptr;
  QFile::remove(path_);
}

void NewDatabase::run(std::string_view sql) {
  check(sqlite3_exec(database_, std::string(sql).c_str(), nullptr, nullptr, nullptr), database_);
}

void NewDatabase::addStoredQueries() {
  RowWriter writer(database_, "Consultas", "NOME, TEXTO");
  for (const StoredQuery& query : storedQueries()) {
    writer.add(query.name, query.text);
  }
}

void NewDatabase::addReferenceData() {
  RowWriter cities(database_, "Cidades", "id, nome, uf, distancia");
  forEachLine(citiesText(), [&cities](std::string_view line) {
    const std::int32_t id = number(firstField(line));
    const std::string_view name = firstField(line);
    const std::string_view state = firstField(line);
    cities.add(id, name, state, static_cast<double>(number(firstField(line))));
  });
  RowWriter purposes(database_, "Finalidade", "ID, FINALIDADE");
  forEachLine(purposesText(), [&purposes](std::string_view line) {
    const std::int32_t id = number(firstField(line));
    purposes.add(id, firstField(line));
  });
}

void NewDatabase::finish() {
  run(schemaText().substr(indexesBegin()));
  run("COMMIT");
  // Refused while a writer of the caller still stands: the file would stay open behind it.
  check(sqlite3_close(database_), database_);
  database_ = nullptr;
}

void createEmptyDatabase(const QString& path) {
  NewDatabase database(path);
  database.addStoredQueries();
  database.addReferenceData();
  database.finish();
}

}  // namespace quartela::database
