#include "platform/reporting/Block.h"

#include <algorithm>
#include <utility>

namespace quartela::reporting {
namespace {

bool crosses(const BlockItem& item, int height) {
  return item.top() < height && item.bottom() > height;
}

int wholeLinesAbove(const BlockItem& item, int height) {
  if (item.kind != ItemKind::Text || item.text.lines < 2 ||
      height - item.top() < heightOfLines(*item.face, 1)) {
    return 0;
  }
  return std::min(item.text.lines - 1, linesIn(*item.face, height - item.top()));
}

bool isDivisible(const BlockItem& item, int height) {
  return item.kind == ItemKind::Area || item.kind == ItemKind::Line ||
         wholeLinesAbove(item, height) > 0;
}

// Parts a block; knows how far what follows must give way to items that moved on.
class Split {
 public:
  Split(Block& block, int height) : block_(block), height_(height) {}

  Block run() {
    std::vector<BlockItem> items = std::move(block_.items);
    block_.items.clear();
    std::vector<BlockItem> below;
    for (BlockItem& item : items) {
      if (item.bottom() <= height_ && item.top() < height_) {
        block_.items.push_back(std::move(item));
      } else if (item.top() >= height_) {
        below.push_back(std::move(item));
      } else {
        part(std::move(item));
      }
    }
    for (BlockItem& item : below) {
      item.place.translate(0, push_ - height_);
      tail_.items.push_back(std::move(item));
    }
    finish();
    return std::move(tail_);
  }

 private:
  void part(BlockItem item) {
    if (item.kind == ItemKind::Area || item.kind == ItemKind::Line) {
      BlockItem rest = item;
      moveOn(std::move(rest), item.bottom() - height_);
      item.place.setHeight(height_ - item.top());
      block_.items.push_back(std::move(item));
      return;
    }
    if (const int lines = wholeLinesAbove(item, height_); lines > 0) {
      PartedText parted = partText(item.text, lines);
      BlockItem rest = item;
      rest.text = std::move(parted.tail);
      const int needed = heightOfLines(*item.face, rest.text.lines);
      moveOn(std::move(rest), std::max(needed, item.bottom() - height_));
      item.text = std::move(parted.head);
      item.place.setHeight(height_ - item.top());
      block_.items.push_back(std::move(item));
      return;
    }
    if (item.top() > 0) {
      const int whole = item.place.height();
      moveOn(std::move(item), whole);
      return;
    }
    item.place.setHeight(height_);
    block_.items.push_back(std::move(item));
  }

  // Puts the item, `high` as it must be now, at the top of the rest.
  void moveOn(BlockItem item, int high) {
    push_ = std::max(push_, high - (item.bottom() - height_));
    item.place = QRect(item.place.x(), 0, item.place.width(), high);
    tail_.items.push_back(std::move(item));
  }

  void finish() {
    tail_.height = block_.height - height_ + push_;
    for (const int at : block_.breaks) {
      if (at > height_) {
        tail_.breaks.push_back(at - height_ + push_);
      }
    }
    std::erase_if(block_.breaks, [this](int at) { return at >= height_; });
    block_.height = height_;
  }

  Block& block_;
  const int height_;
  Block tail_;
  int push_ = 0;
};

}  // namespace

void Block::take(Block&& other, int left, int top) {
  for (BlockItem& item : other.items) {
    item.place.translate(left, top);
    items.push_back(std::move(item));
  }
  for (const int at : other.breaks) {
    breaks.push_back(at + top);
  }
}

int Block::cleanCut(int room) const {
  int cut = room;
  for (bool moved = true; moved;) {
    moved = false;
    for (const BlockItem& item : items) {
      if (crosses(item, cut) && !isDivisible(item, cut)) {
        cut = item.top();
        moved = true;
      }
    }
  }
  return std::max(cut, 0);
}

Block Block::splitAt(int at) {
  return Split(*this, at).run();
}

}  // namespace quartela::reporting
