// Reads a report's layout from JSON.
//
//   { "name", "title", "page": {"width", "height", "margins": {"left", "top", "right", "bottom"}},
//     "printWidth", "font": FONT, "emptyData": "headings" | "nothing",
//     "sections": [ {
//        "kind": "ReportHeader" | "PageHeader" | "GroupHeader" | "Detail" | "GroupFooter" |
//                "PageFooter" | "ReportFooter",
//        "name" (the kind when missing), "height", "canGrow" (true), "canShrink", "keepTogether"
//        (true), "visible" (true), "repeatOnPage", "newPage": "none" | "before" | "after" | "both",
//        "group", "column", "backColor", "font": FONT (for its elements),
//        "elements": [ {
//           "kind": "Label" | "Field" | "Line" | "Shape" | "Image" | "BarCode" | "SubReport" |
//                   "PageBreak",
//           "name", "left", "top", "width", "height", "visible" (true), "text", "font": FONT,
//           "align": "left" | "center" | "right", "verticalAlign": "top" | "middle" | "bottom",
//           "wordWrap", "canGrow", "canShrink", "smallest" (points),
//           "room": {"left", "top", "right", "bottom"}, "color": "#rrggbb", "backColor",
//           "column", "optional", "format", "shows": "text" | "pageNumber" | "pageTotal" | "title",
//           "summary": "none" | "sum" | "count", "over": GROUP,
//           "lineStyle": "solid" | "dash" | "dot", "lineWeight", "stretch", "image" } ] } ] }
//   FONT: { "family", "size" (points), "bold", "italic", "underline" }, each optional; what is
//   missing is the section's, then the report's.
//
// Measures are whole twips, none below 0 but for "left", which may reach into the left margin. A
// relative "image" is looked for beside the layout's file.
#pragma once

#include <QByteArray>
#include <QString>

#include "platform/reporting/Layout.h"

namespace quartela::reporting {

// Errors: 53 there is no such file, 75 it cannot be read, 5 it is no layout; the description names
// the file, and the line or the section and element.
ReportLayout readLayout(const QString& file);

// As readLayout, from a text. `file` is for the errors and for relative images.
ReportLayout parseLayout(const QByteArray& json, const QString& file);

}  // namespace quartela::reporting
