// The rows of one SELECT, read whole when it opens and kept on the program's side, with one current
// row; and, for a SELECT on one table, the way to add and change rows.
#pragma once

#include <QString>
#include <QStringView>
#include <memory>

#include "platform/values/Value.h"

namespace quartela {

class Connection;

enum class CursorType { ForwardOnly = 0, Keyset = 1, Dynamic = 2, Static = 3 };
enum class LockType { ReadOnly = 1, Pessimistic = 2, Optimistic = 3 };

class Recordset {
 public:
  enum State { Closed = 0, Open = 1 };

  Recordset();
  ~Recordset();
  Recordset(Recordset&&) noexcept;
  Recordset& operator=(Recordset&&) noexcept;

  // `source` is a SELECT, "SELECT @@IDENTITY", or the bare name of a table or stored query. The
  // first row becomes current. What the source leaves without an order comes by its keys. A source
  // that is no SELECT is error 3065; open twice is error 3705. With LockType::Pessimistic a bare
  // table name reads no rows: it is opened to add to.
  void open(const QString& source, Connection& connection, CursorType cursor = CursorType::Static,
            LockType lock = LockType::ReadOnly);
  // Gives up a row begun and not updated. Closing twice is no error.
  void close();
  State state() const;

  int recordCount() const;
  bool eof() const;
  bool bof() const;
  // Errors: 3704 closed, 3021 moving past the ends (or to the first row of none), 5 while a row is
  // begun, as nothing may be lost by the way.
  void moveFirst();
  void moveLast();
  void moveNext();
  void movePrevious();

  int fieldCount() const;
  const QString& fieldName(int position) const;
  ValueType fieldType(int position) const;
  // The position of a field by its name without regard to case; error 3265.
  int fieldPosition(QStringView name) const;

  // A cell of the current row (of the row begun, when one is). Errors: 3021 no current row, 3265 no
  // such field.
  Value field(int position) const;
  Value field(QStringView name) const;
  // A cell of any row, counted from 0, as it was read; which row is current does not matter. Error
  // 3021 for a row that there is not, 3265 for such a field.
  Value cell(int row, int position) const;

  // Begins a new row. Takes the write lock with LockType::Pessimistic: 3218 after a short wait when
  // another program holds it. Error 3027 when the source can only be read, 5 while a row is begun.
  void addNew();
  // Writes a cell of the row begun; without one, begins a change of the current row (3021 when
  // there is none, 3167 when another program has deleted it). The value is converted to the
  // column's type: 13 and 6 as Convert raises them; accents of a text are composed with their
  // letters. 3027 for a computed column.
  void setField(int position, const Value& value);
  void setField(QStringView name, const Value& value);
  // Writes the row begun and gives the lock up; the row is then safe on the disk. Without a row
  // begun it is error 3021 when there is no current row, and does nothing otherwise. Errors: 3022
  // the key exists, 3314 a required column is null, 3317 a value the file refuses, 3201 a row it
  // refers to is missing, 3218, 61 disk full, 3051 read-only. The row begun then stays, for
  // cancelUpdate() or another try.
  void update();
  // Forgets the row begun and gives the lock up; without one it does nothing.
  void cancelUpdate();

 private:
  struct Data;

  Data& opened() const;
  void moveTo(int row);

  std::unique_ptr<Data> data_;
};

}  // namespace quartela
