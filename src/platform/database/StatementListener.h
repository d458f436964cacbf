// Who wants to hear what is asked of the database: to check, to count or to time it.
#pragma once

#include <QString>
#include <functional>

namespace quartela {

// Calls `hear` with each statement that is sent to an engine, whatever connection sends it, for as
// long as it lives: as the caller wrote it, once it is known to be right and before it runs. The
// rows that a Recordset writes are no statements. Of the main thread.
class StatementListener {
 public:
  using Hear = std::function<void(const QString& statement)>;

  explicit StatementListener(Hear hear);
  ~StatementListener();
  StatementListener(const StatementListener&) = delete;
  StatementListener& operator=(const StatementListener&) = delete;

 private:
  friend void tellOfStatement(const QString& statement);

  Hear hear_;
};

// Tells all listeners.
void tellOfStatement(const QString& statement);

}  // namespace quartela
