// Rows that a list shows as they come, without a copy of its own: a cell is asked for when it is
// shown, searched, sorted or read. Rows and cells count from 0; they never change.
#pragma once

#include <QString>

namespace quartela {

class ListSource {
 public:
  virtual ~ListSource() = default;

  virtual int count() const = 0;
  // The empty text for a cell that the rows do not have.
  virtual QString text(int row, int cell) const = 0;
  // The row's icon, numbered from 1; 0 for none.
  virtual int icon(int row) const = 0;
};

}  // namespace quartela
