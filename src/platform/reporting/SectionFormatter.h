// Makes a block of a section whose elements have their texts: fits the texts, lets elements grow
// and shrink, and moves what stands below them.
#pragma once

#include <functional>

#include "platform/reporting/Block.h"
#include "platform/reporting/ReportParts.h"

namespace quartela::reporting {

// Gives a sub-report's block.
using SubReportMaker = std::function<Block(Report&)>;

// `height` is that of the section, before growing. `width` is how far a section's band reaches.
// Error 5 for a bar code that cannot be.
Block formatSection(const SectionState& section, int height, int width,
                    const SubReportMaker& makeSubReport);

}  // namespace quartela::reporting
