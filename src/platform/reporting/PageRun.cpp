#include "platform/reporting/PageRun.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "platform/values/RuntimeError.h"

namespace quartela::reporting {
namespace {

// A page must have place for a line or so between its headers and footers.
constexpr int kSmallestBody = 240;

ReportParts& styled(ReportParts& parts, Document& document) {
  addStyles(parts, document);
  return parts;
}

int heightOf(const SectionState* section) {
  return section == nullptr || !section->layout->visible ? 0 : section->layout->height;
}

void checkBody(const ReportParts& parts, int room) {
  if (room < kSmallestBody) {
    throw RuntimeError::withDescription(
        ErrorNumber::InvalidProcedureCall,
        QStringLiteral("O cabeçalho e o rodapé do relatório não deixam lugar na página [%1].")
            .arg(parts.layout.name));
  }
}

std::int16_t stored(int measure) {
  return static_cast<std::int16_t>(std::clamp<int>(
      measure, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()));
}

StoredItem storedItem(const BlockItem& item, int left, int top) {
  StoredItem placed;
  placed.left = stored(item.place.x() + left);
  placed.top = stored(item.place.y() + top);
  placed.width = stored(item.place.width());
  placed.height = stored(item.place.height());
  placed.style = item.style;
  return placed;
}

bool beginsPage(const SectionLayout& section) {
  return section.newPage == NewPage::Before || section.newPage == NewPage::Both;
}

bool endsPage(const SectionLayout& section) {
  return section.newPage == NewPage::After || section.newPage == NewPage::Both;
}

}  // namespace

PageRun::PageRun(ReportParts& parts, Document& document)
    : parts_(styled(parts, document)), document_(document), flow_(parts, document, *this, 0) {
  checkBody(parts_, roomOfFreshPage());
}

bool PageRun::step() {
  if (flow_.step()) {
    return true;
  }
  document_.complete();
  return false;
}

int PageRun::roomOfFreshPage() const {
  return document_.paper().height() - parts_.layout.margins.top() - parts_.layout.margins.bottom() -
         heightOf(parts_.section(SectionKind::PageHeader)) -
         heightOf(parts_.section(SectionKind::PageFooter));
}

// The report's header stands above the first page's own header.
void PageRun::begin() {
  openPage();
  if (SectionState* const header = parts_.section(SectionKind::ReportHeader)) {
    flow_.place(header, header->layout->height);
  }
  if (headed_ || breakBefore_) {
    return;
  }
  if (heightOf(parts_.section(SectionKind::PageHeader)) > room()) {
    changePage();
  } else {
    putPageHeader();
  }
}

void PageRun::openPage() {
  ++page_;
  items_.clear();
  y_ = parts_.layout.margins.top();
  bottom_ = document_.paper().height() - parts_.layout.margins.bottom() -
            heightOf(parts_.section(SectionKind::PageFooter));
  fresh_ = true;
  headed_ = false;
  breakBefore_ = false;
}

void PageRun::putPageHeader() {
  headed_ = true;
  Block header;
  if (flow_.formatForPage(parts_.section(SectionKind::PageHeader), header)) {
    placeBlock(header, y_);
    y_ += header.height;
  }
  for (const Block& group : flow_.repeatedHeaders()) {
    placeBlock(group, y_);
    y_ += group.height;
  }
  if (fresh_) {
    checkBody(parts_, room());
  }
}

void PageRun::closePage() {
  SectionState* const section = parts_.section(SectionKind::PageFooter);
  Block footer;
  if (flow_.formatForPage(section, footer)) {
    placeBlock(footer, bottom_);
  }
  document_.addPage(items_);
  items_.clear();
}

void PageRun::changePage() {
  closePage();
  openPage();
  putPageHeader();
}

void PageRun::makeRoom(const SectionLayout& section, int needed) {
  const bool tooLow = needed > room() && needed <= roomOfFreshPage();
  const bool measured = section.keepTogether && !section.canShrink;
  if (!fresh_ && (breakBefore_ || beginsPage(section) || (measured && tooLow))) {
    changePage();
  }
}

void PageRun::put(const SectionLayout& section, Block block) {
  while (putPart(section, block)) {
  }
  breakBefore_ = breakBefore_ || (endsPage(section) && !fresh_);
}

// Puts what has place on this page; true when a rest is left in `block`.
bool PageRun::putPart(const SectionLayout& section, Block& block) {
  if (block.height == 0 && block.items.empty()) {
    return false;
  }
  if (breakBefore_ && !fresh_) {
    changePage();
  }
  if (!block.breaks.empty()) {
    const int at = block.breaks.front();
    block.breaks.erase(block.breaks.begin());
    Block rest = block.splitAt(at);
    Block head = std::exchange(block, std::move(rest));
    while (putPart(section, head)) {
    }
    breakBefore_ = true;
    return true;
  }
  if (block.height <= room()) {
    placeSection(section, block);
    y_ += block.height;
    fresh_ = fresh_ && block.height == 0;
    return false;
  }
  const bool movesWhole = section.keepTogether && block.height <= roomOfFreshPage();
  const int cut = movesWhole ? 0 : block.cleanCut(room());
  if (cut <= 0 && !fresh_) {
    changePage();
  } else {
    putSplit(section, block, cut > 0 ? cut : room());
  }
  return true;
}

void PageRun::putSplit(const SectionLayout& section, Block& block, int cut) {
  Block rest = block.splitAt(cut);
  placeSection(section, block);
  fresh_ = false;
  changePage();
  block = std::move(rest);
}

void PageRun::placeSection(const SectionLayout& section, const Block& block) {
  if (section.kind != SectionKind::Detail || !placeRow(block, y_)) {
    placeBlock(block, y_);
  }
}

// Most of a long report is rows that look alike: a row with its rules is one item.
bool PageRun::placeRow(const Block& block, int top) {
  if (block.items.size() < 2) {
    return false;
  }
  RowLook look;
  std::vector<const QString*> texts;
  look.reserve(block.items.size());
  for (const BlockItem& item : block.items) {
    look.push_back(storedItem(item, 0, 0));
    if (hasText(item.kind)) {
      texts.push_back(&item.text.text);
    }
  }
  StoredItem row;
  row.left = stored(parts_.layout.margins.left());
  row.top = stored(top);
  if (!document_.addRow(look, texts, row)) {
    return false;
  }
  items_.push_back(row);
  return true;
}

void PageRun::placeBlock(const Block& block, int top) {
  for (const BlockItem& item : block.items) {
    StoredItem placed = storedItem(item, parts_.layout.margins.left(), top);
    if (hasText(item.kind)) {
      placed.text = document_.addText(item.style, item.text.text);
    }
    items_.push_back(placed);
  }
}

void PageRun::end() {
  // A page that was opened for a row which was then left out stands empty.
  if (fresh_ && page_ > 1) {
    items_.clear();
    --page_;
    return;
  }
  closePage();
}

}  // namespace quartela::reporting
