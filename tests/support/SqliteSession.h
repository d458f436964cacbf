// The embedded engine behind a connection, for tests that look behind it.
#pragma once

#include "platform/database/Connection.h"
#include "platform/database/engines/sqlite/Session.h"

namespace quartela::test {

inline SqliteSession& sqliteSession(Connection& connection) {
  return dynamic_cast<SqliteSession&>(connection.engine());
}

}  // namespace quartela::test
