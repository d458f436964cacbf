// A report: a layout, its rows, and the routines that run while its sections are formatted. Gives a
// Document, at once or in slices.
//
// In the order of a caller: make it from its layout; hand it source, texts and routines; start();
// then build(), or buildFor() from an event loop. A report can be started again.
//
// The page's bottom is settled by measures: a section whose height does not fit any more opens a
// new page before it is formatted; only one that grew too high moves on after it was. A page's
// footer is formatted when the page is full, with the last row that stands on the page as the
// current one. A section that is higher than a page is parted between lines and elements.
#pragma once

#include <QString>
#include <QStringView>
#include <functional>
#include <memory>

#include "platform/reporting/Document.h"
#include "platform/reporting/Layout.h"
#include "platform/values/Value.h"

namespace quartela {
class Connection;
}

namespace quartela::reporting {

class ReportFlow;
struct ReportParts;

// An element as callers and routines see it. What they set stays until it is set again; the text of
// an element with a column, a summary or a page number is set anew each time its section is
// formatted.
class ReportElement {
 public:
  explicit ReportElement(const ElementLayout& layout);

  const QString& name() const { return layout_->name; }
  const ElementLayout& layout() const { return *layout_; }

  const QString& text() const { return text_; }
  // As it is; the element's format is for values.
  void setText(const QString& text) { text_ = text; }
  void setValue(const Value& value);

  bool isVisible() const { return visible_; }
  void setVisible(bool visible) { visible_ = visible; }

  // In the section, in twips.
  const QRect& place() const { return place_; }
  void setPosition(int left, int top) { place_.moveTo(left, top); }
  void setWidth(int width) { place_.setWidth(width); }
  void setHeight(int height) { place_.setHeight(height); }

 private:
  const ElementLayout* layout_;
  QString text_;
  bool visible_;
  QRect place_;
};

// A section while it is formatted.
class SectionInstance {
 public:
  SectionInstance(ReportFlow& flow, const SectionLayout& section);

  const SectionLayout& section() const { return section_; }
  // The page that is being filled, 1 the first.
  int page() const;
  // Rows so far: 1 in the first Detail, 0 before it.
  int row() const;
  // A column of the current row. Errors: 3265 no such column, 3021 the source has no rows.
  Value field(QStringView column) const;
  // Any element of the report; error 9 when there is none of that name.
  ReportElement& element(QStringView name);
  QString text(QStringView element) { return this->element(element).text(); }
  void setText(QStringView element, const QString& text) { this->element(element).setText(text); }

  // Leaves this instance of the section out.
  void skip() { skipped_ = true; }
  bool isSkipped() const { return skipped_; }
  // Of this instance, before it grows or shrinks.
  int height() const { return height_; }
  void setHeight(int height) { height_ = height; }

 private:
  ReportFlow& flow_;
  const SectionLayout& section_;
  int height_;
  bool skipped_ = false;
};

class Report {
 public:
  enum class State { Ready, Building, Complete, Cancelled, Failed };
  using FormatRoutine = std::function<void(SectionInstance&)>;

  // Errors: those of readLayout.
  explicit Report(const QString& layoutFile);
  explicit Report(ReportLayout layout);
  ~Report();
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;

  const ReportLayout& layout() const;
  const QString& title() const;
  void setTitle(const QString& title);

  // Error 9 when there is no such element.
  ReportElement& element(QStringView name);
  QString text(QStringView name) { return element(name).text(); }
  void setText(QStringView name, const QString& text) { element(name).setText(text); }

  // Where the rows come from; opened by start(). The connection must stay open until the report is
  // built. A report without a source formats Detail once.
  void setSource(Connection& connection, const QString& statement);
  // What stands in a SubReport element. It is formatted whole whenever its section is, without its
  // page headers and footers; a routine of that section may set it up for the current row.
  void setSubReport(QStringView element, std::shared_ptr<Report> report);

  // Before anything else, at each start.
  void onStart(std::function<void()> routine);
  // Whenever the section is formatted, after its columns have been read. Error 9: no such section.
  void onFormat(QStringView section, FormatRoutine routine);

  // Begins a new document. Errors: those of the statement, 3265 a column that the source lacks, 53
  // and 481 for pictures, 5 when the headers leave no place on the page.
  void start();
  // Builds until the time is over or the report is complete; true while there is more. Errors of
  // routines, 6, 13 and 5 (a bar code's text) leave here, and the report has failed.
  bool buildFor(int milliseconds);
  // Builds until a page more is there; true while there is more.
  bool buildPage();
  // Starts if need be, and builds everything.
  void build();
  // Leaves the pages that are there; totals stay unknown.
  void cancel();

  State state() const;
  // In thousandths.
  int progress() const;
  // The document of the last start, null before.
  std::shared_ptr<const Document> document() const;

 private:
  friend class ReportFlow;
  struct Run;

  bool buildWhile(const std::function<bool()>& more);

  std::unique_ptr<ReportParts> parts_;
  std::unique_ptr<Run> run_;
  std::shared_ptr<Document> document_;
  State state_ = State::Ready;
  bool inStep_ = false;
};

}  // namespace quartela::reporting
