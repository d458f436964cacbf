// What a Report consists of, for the pieces that build it. Not for callers.
#pragma once

#include <QHash>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "platform/reporting/Report.h"

namespace quartela::reporting {

// A type in which an element's text may stand, and its style in the run's document.
struct TextLook {
  const Face* face = nullptr;
  std::uint16_t style = 0;
};

struct ElementState {
  explicit ElementState(const ElementLayout& layout) : element(layout) {}

  ReportElement element;
  std::shared_ptr<Report> subReport;
  // Of the run: the column's position and the accumulator's, -1 for none; the style in its
  // document.
  int column = -1;
  int accumulator = -1;
  std::uint16_t style = 0;
  ItemKind kind = ItemKind::Text;
  const Face* face = nullptr;
  // For texts that the box would cut, one smaller than the other.
  std::vector<TextLook> smaller;
};

struct SectionState {
  const SectionLayout* layout = nullptr;
  std::vector<ElementState*> elements;
  Report::FormatRoutine routine;
  std::uint16_t bandStyle = 0;
};

struct ReportParts {
  explicit ReportParts(ReportLayout reportLayout);

  ElementState& element(QStringView name);
  // Null when the layout has none.
  SectionState* section(SectionKind kind);

  const ReportLayout layout;
  QString title;
  Connection* connection = nullptr;
  QString statement;
  std::function<void()> startRoutine;
  std::vector<SectionState> sections;
  // By the name in small letters.
  QHash<QString, ElementState*> byName;
  std::vector<std::unique_ptr<ElementState>> elements;
  // The document that has the elements' looks.
  std::uint64_t styledFor = 0;
};

// Enters the looks of all elements into the document that is to be filled, unless it has them.
void addStyles(ReportParts& parts, Document& document);

}  // namespace quartela::reporting
