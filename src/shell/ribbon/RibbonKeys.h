// The walk through a ribbon by keyboard: what can be reached, and what lies in which direction.
#pragma once

#include <optional>
#include <vector>

#include "shell/ribbon/Elements.h"

namespace quartela::ribbon {

enum class Step : std::uint8_t { Left, Right, Up, Down, Home, End, Next, Previous };

// Everything that can be pressed, in the order of reading: the tabs (TabMouse), then category by
// category the buttons (ButMouse) and the corner (Cat_Dlg) where it shows.
std::vector<Ref> pressableItems(const ElementTable& elements);

// The tab that looks active; none without tabs.
std::optional<Ref> activeTab(const ElementTable& elements);

// Where `step` leads from `from`. Left and right go round within the tabs or within the row; down
// leads from a tab into the row, up from the row to the active tab; next and previous go round all.
Ref stepFrom(const ElementTable& elements, Ref from, Step step);

}  // namespace quartela::ribbon
