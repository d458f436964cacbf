// The rows of a list in compact storage: one 32-bit reference a cell, all texts in one pool.
// Rows and cells count from 0; cell 0 is the row's text, cell n its sub-item n.
#pragma once

#include <QString>
#include <QStringView>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/controls/TextPool.h"

namespace quartela {

class RowStore {
 public:
  struct Info {
    TextPool::Ref tag = TextPool::kEmpty;
    std::int16_t icon = 0;
    bool checked = false;
  };

  int count() const { return static_cast<int>(info_.size()); }
  int cells() const { return static_cast<int>(cells_); }

  // Adds an empty row behind the others and gives its number.
  int append();
  // The same with all its cells.
  int append(std::span<const QString> cells);
  // Cells that the rows do not have yet are added, empty, to all of them.
  void setText(int row, int cell, QStringView text);
  void setTag(int row, QStringView tag);
  // The empty text for a cell that the rows do not have.
  QString text(int row, int cell) const;
  std::string_view bytes(int row, int cell) const;
  QString tag(int row) const;
  Info& info(int row) { return info_[static_cast<std::size_t>(row)]; }
  const Info& info(int row) const { return info_[static_cast<std::size_t>(row)]; }

  // Bytes that the texts take, those of cells changed since included.
  std::size_t textBytes() const { return pool_.used(); }

  void remove(int row);
  void clear();
  // Row `order[n]` becomes row n.
  void reorder(const std::vector<std::uint32_t>& order);
  void reserveCells(int cells);

 private:
  TextPool::Ref& at(int row, int cell);
  void put(TextPool::Ref& place, QStringView text);
  void giveUp(TextPool::Ref ref);
  void compactWhenWasteful();

  std::size_t cells_ = 1;
  std::vector<TextPool::Ref> refs_;
  std::vector<Info> info_;
  TextPool pool_;
  std::size_t wasted_ = 0;
};

}  // namespace quartela
