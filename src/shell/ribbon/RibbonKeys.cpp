#include "shell/ribbon/RibbonKeys.h"

#include <algorithm>

#include "shell/ribbon/RibbonHover.h"

namespace quartela::ribbon {
namespace {

using enum Element;

std::vector<Ref> tabs(const ElementTable& elements) {
  std::vector<Ref> found;
  for (int i = 0; i < elements.count(TabMouse); ++i) {
    if (elements.visible(TabMouse, i)) {
      found.push_back({TabMouse, i});
    }
  }
  return found;
}

std::vector<Ref> rowItems(const ElementTable& elements) {
  std::vector<Ref> found;
  int button = 1;
  for (int category = 0; category < elements.count(CatMouse); ++category) {
    for (; button < elements.count(ButMouse) && categoryOfButton(elements, button) == category;
         ++button) {
      found.push_back({ButMouse, button});
    }
    if (elements.visible(Cat_Dlg, category)) {
      found.push_back({Cat_Dlg, category});
    }
  }
  return found;
}

Ref neighbour(const std::vector<Ref>& items, Ref from, int distance) {
  const auto found = std::ranges::find(items, from);
  if (found == items.end()) {
    return from;
  }
  const auto count = static_cast<std::ptrdiff_t>(items.size());
  const std::ptrdiff_t place = (found - items.begin() + distance + count) % count;
  return items[static_cast<std::size_t>(place)];
}

Ref firstOr(const std::vector<Ref>& items, Ref otherwise) {
  return items.empty() ? otherwise : items.front();
}

}  // namespace

std::vector<Ref> pressableItems(const ElementTable& elements) {
  std::vector<Ref> items = tabs(elements);
  const std::vector<Ref> row = rowItems(elements);
  items.insert(items.end(), row.begin(), row.end());
  return items;
}

std::optional<Ref> activeTab(const ElementTable& elements) {
  for (const Ref tab : tabs(elements)) {
    if (elements.visible(Tab_center, tab.index)) {
      return tab;
    }
  }
  return std::nullopt;
}

Ref stepFrom(const ElementTable& elements, Ref from, Step step) {
  const bool onTab = from.kind == TabMouse;
  const std::vector<Ref> level = onTab ? tabs(elements) : rowItems(elements);
  switch (step) {
    case Step::Left:
      return neighbour(level, from, -1);
    case Step::Right:
      return neighbour(level, from, 1);
    case Step::Home:
      return firstOr(level, from);
    case Step::End:
      return level.empty() ? from : level.back();
    case Step::Up:
      return onTab ? from : activeTab(elements).value_or(from);
    case Step::Down:
      return onTab ? firstOr(rowItems(elements), from) : from;
    case Step::Next:
      return neighbour(pressableItems(elements), from, 1);
    case Step::Previous:
      return neighbour(pressableItems(elements), from, -1);
  }
  return from;
}

}  // namespace quartela::ribbon
