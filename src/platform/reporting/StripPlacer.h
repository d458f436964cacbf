// Places a sub-report's sections one below the other in a block that knows no pages.
#pragma once

#include "platform/reporting/ReportFlow.h"

namespace quartela::reporting {

class StripPlacer : public Placer {
 public:
  // `page` is the page that the sub-report is formatted for.
  explicit StripPlacer(int page) : page_(page) {}
  void setFlow(ReportFlow& flow) { flow_ = &flow; }
  Block takeBlock() { return std::move(strip_); }

  void begin() override;
  void makeRoom(const SectionLayout& section, int needed) override;
  void put(const SectionLayout& section, Block block) override;
  void end() override {}
  int page() const override { return page_; }

 private:
  void breakPage();

  const int page_;
  ReportFlow* flow_ = nullptr;
  Block strip_;
  bool breakBefore_ = false;
};

}  // namespace quartela::reporting
