// A formatted section before it has a place on a page: items with places counted from the block's
// top left corner.
#pragma once

#include <QRect>
#include <cstdint>
#include <vector>

#include "platform/reporting/Document.h"
#include "platform/reporting/TextFit.h"

namespace quartela::reporting {

struct BlockItem {
  std::uint16_t style = 0;
  ItemKind kind = ItemKind::Text;
  const Face* face = nullptr;
  QRect place;
  FittedText text;

  int top() const { return place.y(); }
  int bottom() const { return place.y() + place.height(); }
};

struct Block {
  int height = 0;
  std::vector<BlockItem> items;
  // Heights at which a new page begins, in order.
  std::vector<int> breaks;

  // Adds another block's items at a place.
  void take(Block&& other, int left, int top);

  // The lowest height up to `room` that parts no item but areas, upright lines and texts of several
  // lines. 0 when there is none.
  int cleanCut(int room) const;

  // Keeps what stands above `at` and gives the rest as a block of its own. An item that cannot
  // be parted goes with the rest, but for one at the very top, which is cut off.
  Block splitAt(int at);
};

}  // namespace quartela::reporting
