#include "platform/database/Connection.h"

#include <QStringList>

#include "platform/database/dialect/Dialect.h"
#include "platform/database/engines/sqlite/Parameters.h"
#include "platform/database/engines/sqlite/Refusals.h"
#include "platform/database/engines/sqlite/Session.h"
#include "platform/files/ProgramFolder.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
namespace {

// The value of the setting "Data Source"; the settings that the file does not need are passed over.
QString dataSource(const QString& connectionText) {
  const QStringList settings = connectionText.split(QLatin1Char(';'));
  for (const QString& setting : settings) {
    const qsizetype sign = setting.indexOf(QLatin1Char('='));
    if (sign >= 0 && QStringView(setting).left(sign).trimmed().compare(QLatin1String("Data Source"),
                                                                       Qt::CaseInsensitive) == 0) {
      return setting.mid(sign + 1).trimmed();
    }
  }
  return {};
}

}  // namespace

Connection::Connection() = default;
Connection::~Connection() = default;

void Connection::open(const QString& connectionText, const SchemaSteps& steps) {
  if (session_) {
    throw RuntimeError(ErrorNumber::ObjectOpen);
  }
  session_ = std::make_shared<SqliteSession>(nativePath(dataSource(connectionText)), steps);
}

void Connection::close() {
  session_.reset();
}

Connection::State Connection::state() const {
  return session_ ? Open : Closed;
}

int Connection::execute(const QString& statement) {
  SqliteSession& target = session();
  const dialect::EngineStatement translated = dialect::translate(statement, target.catalogue());
  if (translated.kind != dialect::StatementKind::Delete) {
    throw RuntimeError(ErrorNumber::InvalidStatement);
  }
  sqlite::WriteScope scope(target);
  int removed = 0;
  {
    sqlite::Statement command(target.handle(), translated.sql, sqlite::Activity::Deleting);
    sqlite::bindParameters(command, translated);
    const int code = command.tryStep();
    if (sqlite::isConstraint(code)) {
      sqlite::raiseRefusedDeletion(target.handle(), translated, translated.target);
    }
    sqlite::check(target.handle(), code, sqlite::Activity::Deleting);
    removed = sqlite3_changes(target.handle());
  }
  scope.commit();
  return removed;
}

void Connection::beginTransaction() {
  session().beginTransaction();
}

void Connection::commit() {
  session().commit();
}

void Connection::rollback() {
  session().rollback();
}

bool Connection::inTransaction() const {
  return session_ && session_->inTransaction();
}

const Catalogue& Connection::catalogue() const {
  if (!session_) {
    throw RuntimeError(ErrorNumber::ObjectClosed);
  }
  return session_->catalogue();
}

const QStringList& Connection::notices() const {
  if (!session_) {
    throw RuntimeError(ErrorNumber::ObjectClosed);
  }
  return session_->notices();
}

SqliteSession& Connection::session() {
  if (!session_) {
    throw RuntimeError(ErrorNumber::ObjectClosed);
  }
  return *session_;
}

}  // namespace quartela
