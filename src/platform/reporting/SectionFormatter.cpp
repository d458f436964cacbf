#include "platform/reporting/SectionFormatter.h"

#include <algorithm>
#include <span>
#include <utility>

#include "platform/reporting/BarCode.h"

namespace quartela::reporting {
namespace {

// Boxes of two lines may overlap by the empty paper of their letters; one stands below the other
// all the same.
constexpr int kOverlap = 30;

// An element on its way into the block: where it stood and where it comes to stand.
struct Piece {
  const ElementState* state = nullptr;
  QRect before;
  int top = 0;
  int height = 0;
  TextLook look;
  FittedText text;
  QMargins room;  // that the text takes round its box
  Block inner;    // of a sub-report

  const ElementLayout& layout() const { return state->element.layout(); }
  int bottomBefore() const { return before.y() + before.height(); }
  int bottom() const { return top + height; }
};

bool holdsText(ElementKind kind) {
  return kind == ElementKind::Label || kind == ElementKind::Field;
}

// A number that is put in on painting has no text to be fitted.
bool isPutInLater(const ElementLayout& layout) {
  return layout.shows == Shows::PageNumber || layout.shows == Shows::PageTotal;
}

bool stretches(const ElementLayout& layout) {
  return layout.stretch && (layout.kind == ElementKind::Line || layout.kind == ElementKind::Shape);
}

class Formatter {
 public:
  Formatter(const SectionState& section, int height, const SubReportMaker& makeSubReport)
      : section_(section), height_(height), makeSubReport_(makeSubReport) {}

  Block run(int width) {
    for (const ElementState* const state : section_.elements) {
      if (state->element.isVisible()) {
        pieces_.push_back(pieceOf(*state));
      }
    }
    const int change = changed_ ? arrange() : 0;
    const bool follows = change > 0 ? section_.layout->canGrow : section_.layout->canShrink;
    block_.height = std::max(0, height_ + (follows ? change : 0));
    if (section_.layout->backColor.isValid()) {
      block_.items.push_back(
          {section_.bandStyle, ItemKind::Area, nullptr, QRect(0, 0, width, block_.height), {}});
    }
    for (Piece& piece : pieces_) {
      emitPiece(piece);
    }
    std::sort(block_.breaks.begin(), block_.breaks.end());
    return std::move(block_);
  }

 private:
  Piece pieceOf(const ElementState& state) {
    Piece piece;
    piece.state = &state;
    piece.before = state.element.place();
    piece.top = piece.before.y();
    piece.height = piece.before.height();
    piece.look = {state.face, state.style};
    const ElementLayout& layout = state.element.layout();
    if (holdsText(layout.kind) && !isPutInLater(layout)) {
      fit(piece);
    } else if (layout.kind == ElementKind::SubReport && state.subReport) {
      piece.inner = makeSubReport_(*state.subReport);
      resize(piece, piece.inner.height, true);
    }
    return piece;
  }

  // The largest type in which nothing is cut, in the box itself or in the room round it; where
  // there is none, the box grows.
  void fit(Piece& piece) {
    tryLook(piece);
    const std::vector<TextLook>& smaller = piece.state->smaller;
    for (auto look = smaller.begin(); piece.text.cut && look != smaller.end(); ++look) {
      piece.look = *look;
      tryLook(piece);
    }
    const bool grows = piece.layout().canGrow && section_.layout->canGrow;
    if (piece.text.cut && grows) {
      piece.look = {piece.state->face, piece.state->style};
      fitInto(piece, {}, true);
    }
    resize(piece, heightOfLines(*piece.look.face, piece.text.lines), grows && piece.room.isNull());
  }

  static void tryLook(Piece& piece) {
    fitInto(piece, {}, false);
    if (piece.text.cut && !piece.layout().room.isNull()) {
      fitInto(piece, piece.layout().room, false);
    }
  }

  static void fitInto(Piece& piece, const QMargins& room, bool grow) {
    piece.room = room;
    piece.text = fitText(*piece.look.face, piece.state->element.text(),
                         {.width = piece.before.width() + room.left() + room.right(),
                          .height = piece.height + room.top() + room.bottom(),
                          .wrap = piece.layout().wordWrap,
                          .grow = grow});
  }

  void resize(Piece& piece, int wanted, bool canGrow) {
    if ((wanted > piece.height && canGrow) || (wanted < piece.height && piece.layout().canShrink)) {
      piece.height = wanted;
      changed_ = true;
    }
  }

  // Elements beside each other make a band. A band is as high as its highest element now is, and
  // the bands below move by what it has become higher or lower. Gives what the last one moved by.
  int arrange() {
    std::vector<Piece*> order;
    for (Piece& piece : pieces_) {
      if (!stretches(piece.layout())) {
        order.push_back(&piece);
      }
    }
    std::stable_sort(order.begin(), order.end(), [](const Piece* one, const Piece* other) {
      return one->before.y() < other->before.y();
    });
    int shift = 0;
    for (std::size_t first = 0; first < order.size();) {
      std::size_t end = first;
      int bottom = order[first]->before.y();
      while (end < order.size() && (end == first || order[end]->before.y() < bottom)) {
        bottom = std::max(bottom, order[end]->bottomBefore());
        ++end;
      }
      shift = arrangeBand(std::span(order).subspan(first, end - first), shift) - bottom;
      first = end;
    }
    return shift;
  }

  // Gives the band's new bottom.
  static int arrangeBand(std::span<Piece* const> band, int shift) {
    int bottom = 0;
    for (std::size_t at = 0; at < band.size(); ++at) {
      Piece& piece = *band[at];
      piece.top = piece.before.y() + shift;
      for (const Piece* const above : band.first(at)) {
        const int between = piece.before.y() - above->bottomBefore();
        if (between >= -kOverlap) {
          // What has grown fills its box, and nothing may overlap it any more.
          const bool grown = above->height > above->before.height();
          piece.top =
              std::max(piece.top, above->bottom() + (grown ? std::max(between, 0) : between));
        }
      }
      bottom = std::max(bottom, piece.bottom());
    }
    return bottom;
  }

  void emitPiece(Piece& piece) {
    const ElementLayout& layout = piece.layout();
    if (layout.kind == ElementKind::PageBreak) {
      block_.breaks.push_back(piece.top);
      return;
    }
    if (layout.kind == ElementKind::SubReport) {
      block_.take(std::move(piece.inner), piece.before.x(), piece.top);
      return;
    }
    if (stretches(layout)) {
      // A level line stays where it was from the section's bottom.
      (piece.height == 0 ? piece.top : piece.height) += block_.height - height_;
    }
    if (layout.kind == ElementKind::BarCode) {
      piece.text = {piece.state->element.text(), 1};
      if (!piece.text.text.isEmpty()) {
        interleaved2of5(piece.text.text);
      }
    }
    if (!isBlank(piece)) {
      block_.items.push_back(itemOf(piece));
    }
  }

  static bool isBlank(const Piece& piece) {
    const ElementLayout& layout = piece.layout();
    const bool ofText = holdsText(layout.kind) || layout.kind == ElementKind::BarCode;
    return ofText && piece.text.text.isEmpty() && !isPutInLater(layout) &&
           !layout.backColor.isValid();
  }

  static BlockItem itemOf(Piece& piece) {
    BlockItem item;
    item.style = piece.look.style;
    item.kind = piece.state->kind;
    item.face = piece.look.face;
    item.place = QRect(piece.before.x(), piece.top, piece.before.width(), piece.height)
                     .marginsAdded(piece.room);
    item.text = std::move(piece.text);
    return item;
  }

  const SectionState& section_;
  const int height_;
  const SubReportMaker& makeSubReport_;
  std::vector<Piece> pieces_;
  bool changed_ = false;
  Block block_;
};

}  // namespace

Block formatSection(const SectionState& section, int height, int width,
                    const SubReportMaker& makeSubReport) {
  return Formatter(section, height, makeSubReport).run(width);
}

}  // namespace quartela::reporting
