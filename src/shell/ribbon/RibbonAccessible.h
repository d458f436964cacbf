// What assistive programs see of the ribbon: a tool bar with the tabs, the buttons and the corners
// of the categories as its children, each with name, place, state and the action of pressing it.
#pragma once

namespace quartela::ribbon {

// Makes every FaixaRibbon accessible; further calls do nothing.
void installRibbonAccessibility();

}  // namespace quartela::ribbon
