#include "platform/reporting/ReportFlow.h"

#include <utility>

#include "platform/reporting/SectionFormatter.h"
#include "platform/reporting/StripPlacer.h"
#include "platform/values/RuntimeError.h"

namespace quartela::reporting {
namespace {

// A report that stood in itself would never end.
constexpr int kDeepestSubReport = 8;

}  // namespace

ReportFlow::ReportFlow(ReportParts& parts, Document& document, Placer& placer, int depth)
    : parts_(parts), document_(document), placer_(placer), depth_(depth) {
  if (depth_ > kDeepestSubReport) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall, parts_.layout.name);
  }
  if (parts_.startRoutine) {
    parts_.startRoutine();
  }
  openSource();
  resolve();
}

void ReportFlow::openSource() {
  bound_ = parts_.connection != nullptr;
  if (!bound_) {
    return;
  }
  rows_.open(parts_.statement, *parts_.connection);
  rowCount_ = rows_.recordCount();
  if (rowCount_ == 0 && parts_.layout.emptyData == EmptyData::Nothing) {
    phase_ = Phase::Over;
  }
}

void ReportFlow::resolve() {
  for (SectionState& section : parts_.sections) {
    if (section.layout->kind == SectionKind::GroupHeader) {
      groups_.push_back(
          {&section, nullptr, columnPosition(section.layout->column, false), {}, false});
    }
  }
  for (SectionState& section : parts_.sections) {
    if (section.layout->kind == SectionKind::GroupFooter) {
      groups_[static_cast<std::size_t>(groupIndex(section.layout->group))].footer = &section;
    }
    for (ElementState* const state : section.elements) {
      resolveElement(*state);
    }
  }
}

void ReportFlow::resolveElement(ElementState& state) {
  const ElementLayout& layout = state.element.layout();
  state.column = columnPosition(layout.column, layout.optional);
  state.accumulator = -1;
  if (layout.summary == Summary::None) {
    return;
  }
  const ValueType type = state.column < 0 ? ValueType::Null : rows_.fieldType(state.column);
  state.accumulator = static_cast<int>(accumulators_.size());
  accumulators_.emplace_back(layout.summary, groupIndex(layout.over), state.column, type);
}

int ReportFlow::columnPosition(const QString& column, bool optional) const {
  if (column.isEmpty() || !bound_) {
    return -1;
  }
  try {
    return rows_.fieldPosition(column);
  } catch (const RuntimeError& error) {
    if (optional && error.code() == ErrorNumber::ColumnNotFound) {
      return -1;
    }
    throw;
  }
}

int ReportFlow::groupIndex(const QString& name) const {
  for (std::size_t index = 0; index < groups_.size(); ++index) {
    if (groups_[index].header->layout->group == name) {
      return static_cast<int>(index);
    }
  }
  return -1;
}

bool ReportFlow::step() {
  switch (phase_) {
    case Phase::Begin:
      placer_.begin();
      phase_ = rowCount_ > 0 ? Phase::Rows : Phase::End;
      break;
    case Phase::Rows:
      stepRow();
      break;
    case Phase::End:
      stepEnd();
      break;
    case Phase::Over:
      break;
  }
  return phase_ != Phase::Over;
}

int ReportFlow::progress() const {
  constexpr std::int64_t kWhole = 1000;
  return phase_ == Phase::Over || rowCount_ == 0 ? static_cast<int>(kWhole)
                                                 : static_cast<int>(row_ * kWhole / rowCount_);
}

void ReportFlow::stepRow() {
  const std::size_t changed = row_ == 0 ? 0 : firstChangedGroup();
  if (row_ > 0 && changed < groups_.size()) {
    withRowBefore([this, changed] { closeGroups(changed); });
  }
  openGroups(changed);
  SectionState* const detail = parts_.section(SectionKind::Detail);
  if (detail != nullptr && detail->layout->visible) {
    place(detail, detail->layout->height);
  } else {
    addRow();
  }
  placed_ = true;
  if (row_ + 1 == rowCount_) {
    phase_ = Phase::End;
    return;
  }
  ++row_;
  rows_.moveNext();
  placed_ = false;
  added_ = false;
}

void ReportFlow::stepEnd() {
  closeGroups(0);
  if (SectionState* const footer = parts_.section(SectionKind::ReportFooter)) {
    place(footer, footer->layout->height);
  }
  placer_.end();
  phase_ = Phase::Over;
}

std::size_t ReportFlow::firstChangedGroup() const {
  std::size_t index = 0;
  while (index < groups_.size() && (groups_[index].column < 0 ||
                                    rows_.field(groups_[index].column) == groups_[index].current)) {
    ++index;
  }
  return index;
}

// A heading never stands alone at the foot of a page: it needs room for what it heads.
void ReportFlow::openGroups(std::size_t first) {
  const SectionState* const detail = parts_.section(SectionKind::Detail);
  int needed = detail == nullptr ? 0 : detail->layout->height;
  for (std::size_t index = first; index < groups_.size(); ++index) {
    needed += groups_[index].header->layout->height;
    for (Accumulator& accumulator : accumulators_) {
      if (accumulator.group() == static_cast<int>(index)) {
        accumulator.reset();
      }
    }
  }
  for (std::size_t index = first; index < groups_.size(); ++index) {
    Group& group = groups_[index];
    group.current = group.column < 0 ? Value() : rows_.field(group.column);
    place(group.header, needed);
    needed -= group.header->layout->height;
    group.open = true;
  }
}

void ReportFlow::closeGroups(std::size_t first) {
  for (std::size_t index = groups_.size(); index > first; --index) {
    Group& group = groups_[index - 1];
    if (group.open && group.footer != nullptr) {
      place(group.footer, group.footer->layout->height);
    }
    group.open = false;
  }
}

void ReportFlow::withRowBefore(const std::function<void()>& routine) {
  const bool placed = std::exchange(placed_, true);
  lastRowCounts_ = !added_ || placed;
  --row_;
  rows_.movePrevious();
  routine();
  rows_.moveNext();
  ++row_;
  placed_ = placed;
  lastRowCounts_ = true;
}

void ReportFlow::addRow() {
  for (Accumulator& accumulator : accumulators_) {
    accumulator.add(accumulator.column() < 0 ? Value() : rows_.field(accumulator.column()));
  }
  added_ = true;
}

void ReportFlow::place(SectionState* section, int needed) {
  if (section == nullptr || !section->layout->visible) {
    return;
  }
  placer_.makeRoom(*section->layout, needed);
  if (section->layout->kind == SectionKind::Detail) {
    addRow();
  }
  Block block;
  if (format(*section, block)) {
    placer_.put(*section->layout, std::move(block));
  }
}

bool ReportFlow::formatForPage(SectionState* section, Block& block) {
  if (section == nullptr || !section->layout->visible) {
    return false;
  }
  const bool footer = section->layout->kind == SectionKind::PageFooter;
  if (!footer || placed_ || row_ == 0) {
    return format(*section, block);
  }
  bool stands = false;
  withRowBefore([&] { stands = format(*section, block); });
  return stands;
}

std::vector<Block> ReportFlow::repeatedHeaders() {
  std::vector<Block> blocks;
  for (const Group& group : groups_) {
    Block block;
    const SectionLayout& layout = *group.header->layout;
    if (group.open && layout.repeatOnPage && layout.visible && format(*group.header, block)) {
      blocks.push_back(std::move(block));
    }
  }
  return blocks;
}

bool ReportFlow::format(SectionState& section, Block& block) {
  for (ElementState* const state : section.elements) {
    refresh(*state);
  }
  SectionInstance instance(*this, *section.layout);
  if (section.routine) {
    section.routine(instance);
  }
  if (instance.isSkipped()) {
    return false;
  }
  block = formatSection(section, instance.height(), parts_.layout.printWidth,
                        [this](Report& report) { return subReport(report); });
  return true;
}

void ReportFlow::refresh(ElementState& state) {
  ReportElement& element = state.element;
  if (state.accumulator >= 0) {
    element.setValue(
        accumulators_[static_cast<std::size_t>(state.accumulator)].value(lastRowCounts_));
  } else if (state.column >= 0) {
    element.setValue(rowCount_ == 0 ? Value() : rows_.field(state.column));
  } else if (element.layout().shows == Shows::PageNumber) {
    element.setValue(placer_.page());
  } else if (element.layout().shows == Shows::Title) {
    element.setText(parts_.title);
  }
}

Block ReportFlow::subReport(Report& report) {
  StripPlacer placer(placer_.page());
  addStyles(*report.parts_, document_);
  ReportFlow flow(*report.parts_, document_, placer, depth_ + 1);
  placer.setFlow(flow);
  while (flow.step()) {
  }
  return placer.takeBlock();
}

int ReportFlow::rowsSoFar(const SectionLayout& section) const {
  if (rowCount_ == 0) {
    return 0;
  }
  return row_ + (section.kind == SectionKind::Detail || placed_ ? 1 : 0);
}

Value ReportFlow::field(QStringView column) const {
  if (!bound_) {
    throw RuntimeError(ErrorNumber::CurrentRowMissing, column.toString());
  }
  return rows_.field(column);
}

}  // namespace quartela::reporting
