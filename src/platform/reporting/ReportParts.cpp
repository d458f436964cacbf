#include "platform/reporting/ReportParts.h"

#include <algorithm>
#include <utility>

#include "platform/values/RuntimeError.h"

namespace quartela::reporting {
namespace {

ItemKind itemKind(ElementKind kind) {
  switch (kind) {
    case ElementKind::Line:
      return ItemKind::Line;
    case ElementKind::Shape:
      return ItemKind::Area;
    case ElementKind::Image:
      return ItemKind::Picture;
    case ElementKind::BarCode:
      return ItemKind::BarCode;
    default:
      return ItemKind::Text;
  }
}

bool needsStyle(ElementKind kind) {
  return kind != ElementKind::SubReport && kind != ElementKind::PageBreak;
}

ItemStyle styleOf(const ElementLayout& element, const SectionLayout& section, Document& document) {
  ItemStyle style;
  style.kind = itemKind(element.kind);
  style.element = element.name;
  style.section = section.name;
  style.face = style.kind == ItemKind::Text ? &Face::of(element.font) : nullptr;
  style.align = element.align;
  style.verticalAlign = element.verticalAlign;
  style.shows = element.shows;
  style.format = element.format;
  style.color = element.color;
  style.backColor = element.backColor;
  style.lineStyle = element.lineStyle;
  style.lineWeight = element.lineWeight;
  if (style.kind == ItemKind::Picture) {
    style.picture = document.addPicture(element.image);
  }
  return style;
}

// Half a point at a time.
std::vector<TextLook> smallerLooks(const ElementLayout& element, ItemStyle style,
                                   Document& document) {
  constexpr double kStep = 0.5;
  std::vector<TextLook> looks;
  if (style.kind != ItemKind::Text || element.smallest <= 0) {
    return looks;
  }
  FontSpec font = element.font;
  while (font.points > element.smallest) {
    font.points = std::max(font.points - kStep, element.smallest);
    style.face = &Face::of(font);
    looks.push_back({style.face, document.addStyle(style)});
  }
  return looks;
}

ItemStyle bandOf(const SectionLayout& section) {
  ItemStyle style;
  style.kind = ItemKind::Area;
  style.section = section.name;
  style.backColor = section.backColor;
  return style;
}

}  // namespace

ReportParts::ReportParts(ReportLayout reportLayout)
    : layout(std::move(reportLayout)), title(layout.title) {
  for (const SectionLayout& sectionLayout : layout.sections) {
    SectionState state;
    state.layout = &sectionLayout;
    for (const ElementLayout& elementLayout : sectionLayout.elements) {
      elements.push_back(std::make_unique<ElementState>(elementLayout));
      state.elements.push_back(elements.back().get());
      byName.insert(elementLayout.name.toLower(), elements.back().get());
    }
    sections.push_back(std::move(state));
  }
}

ElementState& ReportParts::element(QStringView name) {
  ElementState* const found = byName.value(name.toString().toLower());
  if (found == nullptr) {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                       layout.name + QLatin1Char('.') + name.toString());
  }
  return *found;
}

SectionState* ReportParts::section(SectionKind kind) {
  for (SectionState& state : sections) {
    if (state.layout->kind == kind) {
      return &state;
    }
  }
  return nullptr;
}

void addStyles(ReportParts& parts, Document& document) {
  if (parts.styledFor == document.serial()) {
    return;
  }
  for (SectionState& section : parts.sections) {
    if (section.layout->backColor.isValid()) {
      section.bandStyle = document.addStyle(bandOf(*section.layout));
    }
    for (ElementState* const state : section.elements) {
      const ElementLayout& layout = state->element.layout();
      if (needsStyle(layout.kind)) {
        const ItemStyle style = styleOf(layout, *section.layout, document);
        state->kind = style.kind;
        state->face = style.face;
        state->style = document.addStyle(style);
        state->smaller = smallerLooks(layout, style, document);
      }
    }
  }
  parts.styledFor = document.serial();
}

}  // namespace quartela::reporting
