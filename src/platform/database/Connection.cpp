#include "platform/database/Connection.h"

#include "platform/database/StatementListener.h"
#include "platform/database/dialect/Dialect.h"
#include "platform/database/engines/Engine.h"
#include "platform/values/RuntimeError.h"

namespace quartela {
Connection::Connection() = default;
Connection::~Connection() = default;

void Connection::open(const QString& connectionText, const SchemaSteps& steps) {
  if (engine_) {
    throw RuntimeError(ErrorNumber::ObjectOpen);
  }
  engine_ = openEngine(connectionText, steps);
}

void Connection::close() {
  engine_.reset();
}

Connection::State Connection::state() const {
  return engine_ ? Open : Closed;
}

int Connection::execute(const QString& text) {
  const dialect::AnalysedStatement statement = dialect::analyse(text, engine().catalogue());
  if (statement.kind() != dialect::StatementKind::Delete) {
    throw RuntimeError(ErrorNumber::InvalidStatement);
  }
  tellOfStatement(text);
  return engine().remove(statement);
}

void Connection::beginTransaction() {
  engine().beginTransaction();
}

void Connection::commit() {
  engine().commit();
}

void Connection::rollback() {
  engine().rollback();
}

bool Connection::inTransaction() const {
  return engine_ && engine_->inTransaction();
}

const Catalogue& Connection::catalogue() const {
  if (!engine_) {
    throw RuntimeError(ErrorNumber::ObjectClosed);
  }
  return engine_->catalogue();
}

const QStringList& Connection::notices() const {
  if (!engine_) {
    throw RuntimeError(ErrorNumber::ObjectClosed);
  }
  return engine_->notices();
}

Engine& Connection::engine() {
  if (!engine_) {
    throw RuntimeError(ErrorNumber::ObjectClosed);
  }
  return *engine_;
}

}  // namespace quartela
