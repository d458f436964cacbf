// Fills a document's pages with a report's sections. Not for callers.
#pragma once

#include <vector>

#include "platform/reporting/ReportFlow.h"

namespace quartela::reporting {

class PageRun : public Placer {
 public:
  // Errors: those of Report::start().
  PageRun(ReportParts& parts, Document& document);

  // Goes on by one row; false when the document is complete.
  bool step();
  int progress() const { return flow_.progress(); }

  void begin() override;
  void makeRoom(const SectionLayout& section, int needed) override;
  void put(const SectionLayout& section, Block block) override;
  void end() override;
  int page() const override { return page_; }

 private:
  void openPage();
  void putPageHeader();
  void closePage();
  void changePage();
  bool putPart(const SectionLayout& section, Block& block);
  void putSplit(const SectionLayout& section, Block& block, int cut);
  void placeBlock(const Block& block, int top);
  void placeSection(const SectionLayout& section, const Block& block);
  bool placeRow(const Block& block, int top);
  int room() const { return bottom_ - y_; }
  int roomOfFreshPage() const;

  ReportParts& parts_;
  Document& document_;
  ReportFlow flow_;

  std::vector<StoredItem> items_;  // of the page that is being filled
  int page_ = 0;
  int y_ = 0;
  int bottom_ = 0;            // where the page's footer begins
  bool fresh_ = true;         // nothing stands on the page but its headers
  bool headed_ = false;       // the page has its header
  bool breakBefore_ = false;  // what comes next begins a page
};

}  // namespace quartela::reporting
