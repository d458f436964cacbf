// The design of a report as data: sections with elements at fixed places. Read from a file by
// readLayout (LayoutReader.h); docs/reports.md tells how a file is written.
//
// Every measure is in twips (1/1440 inch). An element's place is counted from its section's top
// left corner, and a section's left edge is the page's left margin.
#pragma once

#include <QColor>
#include <QMargins>
#include <QRect>
#include <QSize>
#include <QString>
#include <vector>

namespace quartela::reporting {

constexpr int kTwipsPerInch = 1440;
constexpr int kTwipsPerPoint = 20;
// No page side, and no place on a page, is beyond this (22 inches).
constexpr int kLargestMeasure = 31'680;

enum class SectionKind {
  ReportHeader,
  PageHeader,
  GroupHeader,
  Detail,
  GroupFooter,
  PageFooter,
  ReportFooter
};
enum class ElementKind { Label, Field, Line, Shape, Image, BarCode, SubReport, PageBreak };
enum class Alignment { Left, Center, Right };
enum class VerticalAlignment { Top, Middle, Bottom };
enum class LineStyle { Solid, Dash, Dot };
enum class NewPage { None, Before, After, Both };
enum class Summary { None, Sum, Count };
// What a field shows besides columns and texts put in.
enum class Shows { Text, PageNumber, PageTotal, Title };
// What a report with a source of no rows gives: its headers and footers, or no page at all.
enum class EmptyData { Headings, Nothing };

struct FontSpec {
  QString family = QStringLiteral("Liberation Mono");
  double points = 10;
  bool bold = false;
  bool italic = false;
  bool underline = false;

  friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

struct ElementLayout {
  ElementKind kind = ElementKind::Label;
  QString name;  // unique in the report, without regard to case
  QRect place;   // for a Line: from the top left to the bottom right corner
  bool visible = true;

  QString text;
  FontSpec font;
  Alignment align = Alignment::Left;
  VerticalAlignment verticalAlign = VerticalAlignment::Top;
  bool wordWrap = false;
  bool canGrow = false;    // downward, to hold the whole text
  bool canShrink = false;  // to the lines that its text has, to nothing when it is empty
  double smallest = 0;     // points; a text that the box cuts is set smaller down to it; 0: never
  QMargins room;           // round the box, free for a text that the box cuts
  QColor color = Qt::black;
  QColor backColor;  // invalid: none

  QString column;         // empty: the text is put in
  bool optional = false;  // a source without the column is no error
  QString format;
  Shows shows = Shows::Text;
  Summary summary = Summary::None;
  QString over;  // the group that the summary goes over; empty: the report

  LineStyle lineStyle = LineStyle::Solid;
  int lineWeight = 10;   // 0: none
  bool stretch = false;  // a Line or Shape that grows with its section; a level line moves down

  QString image;  // an SVG or a picture: a file or a compiled-in resource
};

struct SectionLayout {
  SectionKind kind = SectionKind::Detail;
  QString name;
  int height = 0;
  bool canGrow = true;
  bool canShrink = false;
  bool keepTogether = true;
  bool visible = true;
  bool repeatOnPage = false;  // a GroupHeader, again on each page that its group reaches
  NewPage newPage = NewPage::None;
  QString group;   // of a GroupHeader and its GroupFooter
  QString column;  // of a GroupHeader: a new value begins a group; empty: one group for all rows
  QColor backColor;
  std::vector<ElementLayout> elements;
};

struct ReportLayout {
  QString name;
  QString title;
  QSize paper{11906, 16838};
  QMargins margins{780, 567, 780, 567};
  int printWidth = 10346;
  FontSpec font;
  EmptyData emptyData = EmptyData::Headings;
  std::vector<SectionLayout> sections;
};

}  // namespace quartela::reporting
