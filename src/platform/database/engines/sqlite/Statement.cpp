#include "platform/database/engines/sqlite/Statement.h"

#include <QByteArray>
#include <string>
#include <utility>

namespace quartela::sqlite {

Statement::Statement(sqlite3* db, std::string_view sql, Activity activity)
    : db_(db), activity_(activity) {
  check(db, sqlite3_prepare_v2(db, sql.data(), static_cast<int>(sql.size()), &statement_, nullptr),
        activity == Activity::Opening ? activity : Activity::Preparing);
}

Statement::Statement(sqlite3* db, KeptStatement kept, Activity activity)
    : db_(db), statement_(kept.get()), activity_(activity), kept_(std::move(kept)) {}

Statement::~Statement() {
  // The codes only repeat what the last step has raised already.
  if (kept_) {
    static_cast<void>(sqlite3_reset(statement_));
    static_cast<void>(sqlite3_clear_bindings(statement_));
  } else {
    static_cast<void>(sqlite3_finalize(statement_));
  }
}

void Statement::bind(int index, const Value& value) {
  check(db_, bindCell(index, value), activity_);
}

int Statement::bindCell(int index, const Value& value) {
  const auto bindText = [&](const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    return sqlite3_bind_text64(statement_, index, utf8.constData(),
                               static_cast<sqlite3_uint64>(utf8.size()), SQLITE_TRANSIENT,
                               SQLITE_UTF8);
  };
  switch (value.type()) {
    case ValueType::Null:
      return sqlite3_bind_null(statement_, index);
    case ValueType::Bool:
      return sqlite3_bind_int(statement_, index, value.boolean() ? 1 : 0);
    case ValueType::I16:
      return sqlite3_bind_int(statement_, index, value.i16());
    case ValueType::I32:
      return sqlite3_bind_int(statement_, index, value.i32());
    case ValueType::Money:
      return sqlite3_bind_int64(statement_, index, value.money().units());
    case ValueType::Number:
      return sqlite3_bind_double(statement_, index, value.number());
    case ValueType::DateTime:
      return bindText(value.dateTime().toIso());
    case ValueType::Text:
      return bindText(value.text());
  }
  return SQLITE_MISUSE;
}

QString Statement::text(int column) const {
  const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
  return QString::fromUtf8(bytes, sqlite3_column_bytes(statement_, column));
}

void run(sqlite3* db, std::string_view sql, Activity activity) {
  Statement statement(db, sql, activity);
  while (statement.step()) {
  }
}

std::string quoted(const QString& name) {
  QString doubled = name;
  doubled.replace(QLatin1Char('"'), QLatin1String("\"\""));
  return '"' + doubled.toStdString() + '"';
}

}  // namespace quartela::sqlite
