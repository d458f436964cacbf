#include "platform/database/StatementListener.h"

#include <QList>
#include <utility>

namespace quartela {
namespace {

QList<const StatementListener*>& listeners() {
  static QList<const StatementListener*> all;
  return all;
}

}  // namespace

StatementListener::StatementListener(Hear hear) : hear_(std::move(hear)) {
  listeners() << this;
}

StatementListener::~StatementListener() {
  listeners().removeOne(this);
}

void tellOfStatement(const QString& statement) {
  for (const StatementListener* listener : std::as_const(listeners())) {
    listener->hear_(statement);
  }
}

}  // namespace quartela
