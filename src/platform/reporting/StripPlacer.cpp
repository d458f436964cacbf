#include "platform/reporting/StripPlacer.h"

#include <utility>

namespace quartela::reporting {

void StripPlacer::begin() {
  if (SectionState* const header = flow_->parts().section(SectionKind::ReportHeader)) {
    flow_->place(header, header->layout->height);
  }
}

void StripPlacer::makeRoom(const SectionLayout& section, int) {
  const bool asked = section.newPage == NewPage::Before || section.newPage == NewPage::Both;
  if (breakBefore_ || asked) {
    breakPage();
  }
  breakBefore_ = false;
}

void StripPlacer::breakPage() {
  if (strip_.height > 0) {
    strip_.breaks.push_back(strip_.height);
  }
}

void StripPlacer::put(const SectionLayout& section, Block block) {
  const int height = block.height;
  strip_.take(std::move(block), 0, strip_.height);
  strip_.height += height;
  breakBefore_ = section.newPage == NewPage::After || section.newPage == NewPage::Both;
}

}  // namespace quartela::reporting
