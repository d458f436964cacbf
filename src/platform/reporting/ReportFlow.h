// Goes through a report's rows and groups and formats its sections one after the other; a Placer
// says where they stand. Not for callers.
#pragma once

#include <functional>
#include <vector>

#include "platform/database/Recordset.h"
#include "platform/reporting/Block.h"
#include "platform/reporting/ReportParts.h"
#include "platform/reporting/Summaries.h"

namespace quartela::reporting {

class Placer {
 public:
  virtual ~Placer() = default;
  // Before the first row.
  virtual void begin() = 0;
  // Called before a section is formatted, which needs so much at the least.
  virtual void makeRoom(const SectionLayout& section, int needed) = 0;
  virtual void put(const SectionLayout& section, Block block) = 0;
  // Behind the last section.
  virtual void end() = 0;
  // The page that is being filled, 1 the first.
  virtual int page() const = 0;
};

class ReportFlow {
 public:
  // Opens the source and enters the styles. `depth` is 0 for a report, more for sub-reports. All
  // that is handed in must outlive the flow.
  ReportFlow(ReportParts& parts, Document& document, Placer& placer, int depth);

  // Goes on by one row, or by the report's beginning or end; false behind the end.
  bool step();
  // In thousandths.
  int progress() const;

  // The section formatted and handed to the placer; nothing when the layout has none.
  void place(SectionState* section, int needed);
  // A page's own section, with the last row that has its place as the current one. False when there
  // is none on this page.
  bool formatForPage(SectionState* section, Block& block);
  // The headers of the groups that go on on a new page.
  std::vector<Block> repeatedHeaders();

  // What format routines ask for.
  ReportParts& parts() { return parts_; }
  int page() const { return placer_.page(); }
  int rowsSoFar(const SectionLayout& section) const;
  Value field(QStringView column) const;

 private:
  enum class Phase { Begin, Rows, End, Over };

  struct Group {
    SectionState* header = nullptr;
    SectionState* footer = nullptr;
    int column = -1;
    Value current;
    bool open = false;
  };

  void openSource();
  void resolve();
  void resolveElement(ElementState& state);
  int columnPosition(const QString& column, bool optional) const;
  int groupIndex(const QString& name) const;

  void stepRow();
  void stepEnd();
  std::size_t firstChangedGroup() const;
  void openGroups(std::size_t first);
  void closeGroups(std::size_t first);
  void addRow();
  bool format(SectionState& section, Block& block);
  void refresh(ElementState& state);
  Block subReport(Report& report);
  // Runs with the row before as the current one.
  void withRowBefore(const std::function<void()>& routine);

  ReportParts& parts_;
  Document& document_;
  Placer& placer_;
  const int depth_;
  Phase phase_ = Phase::Begin;

  Recordset rows_;
  bool bound_ = false;
  int rowCount_ = 1;
  int row_ = 0;          // the current one, 0 the first
  bool placed_ = false;  // the current row's Detail has its place
  bool added_ = false;   // the current row is in the sums
  bool lastRowCounts_ = true;

  std::vector<Group> groups_;
  std::vector<Accumulator> accumulators_;
};

}  // namespace quartela::reporting
