#include "shell/ribbon/RibbonHover.h"

namespace quartela::ribbon {
namespace {

using enum Element;

void lightCategory(ElementTable& elements, int i) {
  elements.setVisible(kCategoryOnLook, i, true);
  if (elements.visible(Cat_Dlg, i)) {
    elements.setVisible(Cat_Dlg_on, i, true);
    elements.setVisible(Cat_Dlg_over, i, false);
  }
}

void dimCategory(ElementTable& elements, int i) {
  elements.setVisible(kCategoryOnLook, i, false);
  if (elements.visible(Cat_Dlg, i)) {
    elements.setVisible(Cat_Dlg_on, i, false);
    elements.setVisible(Cat_Dlg_over, i, false);
  }
}

void lightButton(ElementTable& elements, int i) {
  if (elements.visible(Button_center, i)) {
    return;
  }
  elements.setVisible(kButtonLook, i, true);
  if (elements.visible(Glip_off, i)) {
    elements.setVisible(Glip_on, i, true);
  }
}

void dimButton(ElementTable& elements, int i) {
  if (elements.visible(Button_center, i)) {
    elements.setVisible(kButtonLook, i, false);
    elements.setVisible(Glip_on, i, false);
  }
}

}  // namespace

void hoverTab(ElementTable& elements, int index) {
  for (int i = 0; i < elements.count(TabMouse); ++i) {
    if (i != index) {
      elements.setVisible(kTabOverLook, i, false);
    } else if (!elements.visible(Tab_center, i)) {
      elements.setVisible(kTabOverLook, i, true);
    }
  }
}

void hoverCategory(ElementTable& elements, int index) {
  for (int i = 0; i < elements.count(CatMouse); ++i) {
    if (i == index) {
      lightCategory(elements, i);
    } else {
      dimCategory(elements, i);
    }
  }
}

void hoverButton(ElementTable& elements, int index) {
  for (int i = 0; i < elements.count(ButMouse); ++i) {
    if (i == index) {
      lightButton(elements, i);
    } else {
      dimButton(elements, i);
    }
  }
}

void hover(ElementTable& elements, int tab, int category, int button) {
  hoverTab(elements, tab);
  hoverCategory(elements, category);
  hoverButton(elements, button);
}

void mouseMoved(ElementTable& elements, Ref over) {
  switch (over.kind) {
    case Barra2:
    case BarraLeft:
    case BarraRight:
      hover(elements, -1, -1, -1);
      break;
    case TabMouse:
      hover(elements, over.index, -1, -1);
      break;
    case CatMouse:
    case Cat_Dlg:
      hover(elements, -1, over.index, -1);
      break;
    case Cat_Dlg_on:
      hover(elements, -1, over.index, -1);
      elements.setVisible(Cat_Dlg_over, over.index, true);
      break;
    case ButMouse:
      hover(elements, -1, categoryOfButton(elements, over.index), over.index);
      break;
    default:
      break;
  }
}

int categoryOfButton(const ElementTable& elements, int button) {
  return elements.at(Button_center, button).tag.toInt();
}

}  // namespace quartela::ribbon
