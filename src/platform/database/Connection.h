// The connection to the one database file of a run.
//
// A file is opened as it stands. The opening undoes an interrupted save, gives a file that an
// earlier program left in another mode its rollback journal, and brings one of an older version
// forward by the steps that the caller names; it changes nothing else. Errors of open(): 3024 the
// file does not exist; 3044 the path leads to nothing that can be opened: it is empty, a folder or
// malformed, the folder does not exist, the file cannot be read, is empty, or is no database of
// this program (the description says which; an Access file is recognised by its head and named as
// such).
#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include "platform/database/SchemaSteps.h"
#include "platform/database/dialect/Catalogue.h"

namespace quartela {

class Engine;

class Connection {
 public:
  enum State { Closed = 0, Open = 1 };
  enum CursorLocation { Server = 2, Client = 3 };

  Connection();
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  // `connectionText` is "Provider=...;Data Source=PATH;", further settings are passed over. Paths
  // take both separators. A file older than the last of `steps` is copied beside itself and brought
  // forward; a newer one is refused (3044). Error 3705 when it is open already.
  void open(const QString& connectionText, const SchemaSteps& steps = {});
  // Rolls an open transaction back and leaves one file. Closing twice is no error.
  void close();
  State state() const;

  // Rows are always kept on the program's side; the setting is only remembered.
  void setCursorLocation(CursorLocation location) { cursorLocation_ = location; }
  CursorLocation cursorLocation() const { return cursorLocation_; }

  // Runs one DELETE; gives the count of rows that it removed from the table it names.
  // Errors: 3704 closed, the dialect's, 3200 dependants, 3218 locked by another program.
  int execute(const QString& text);

  // One transaction at a time (error 5 otherwise); beginning takes the write lock (3218 after a
  // short wait). A commit that fails leaves the transaction to be rolled back; a rollback without
  // one does nothing.
  void beginTransaction();
  void commit();
  void rollback();
  bool inTransaction() const;

  const Catalogue& catalogue() const;
  // What the opening has to tell an operator, such as what an interrupted save had left beside the
  // file; empty as a rule.
  const QStringList& notices() const;
  Engine& engine();

 private:
  // Shared, so that a Recordset can tell that its connection has been closed.
  std::shared_ptr<Engine> engine_;
  CursorLocation cursorLocation_ = Server;
};

}  // namespace quartela
