// The three hover operations of a ribbon. Each keeps exactly the element given lit, -1 for none,
// and touches only what is not yet as it should be, so that moving the mouse within an element
// changes nothing.
#pragma once

#include "shell/ribbon/Elements.h"

namespace quartela::ribbon {

// The active tab never lights.
void hoverTab(ElementTable& elements, int index);
void hoverCategory(ElementTable& elements, int index);
void hoverButton(ElementTable& elements, int index);
void hover(ElementTable& elements, int tab, int category, int button);

// What a move of the mouse over the element does.
void mouseMoved(ElementTable& elements, Ref over);

// The category that a button stands in, as a number in the row shown.
int categoryOfButton(const ElementTable& elements, int button);

}  // namespace quartela::ribbon
