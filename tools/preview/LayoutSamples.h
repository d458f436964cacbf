// Rows made up for a layout, so that it can be looked at before anything fills it.
//
// What an element's format shows makes its column's type: dates, amounts, whole numbers, or texts.
// A group's column has another value every seven rows. Elements that are filled by code show their
// own name. A sub-report is taken from the file of its element's name beside the layout, where
// there is one.
#pragma once

#include <QString>
#include <QTemporaryDir>
#include <memory>

#include "platform/database/Connection.h"
#include "platform/reporting/Report.h"

namespace quartela::preview {

class LayoutSamples {
 public:
  // Errors: those of readLayout.
  explicit LayoutSamples(const QString& layoutFile, int rows = 100);

  // Ready to be started; good as long as these samples.
  const std::shared_ptr<reporting::Report>& report() const { return report_; }

 private:
  void fill(reporting::Report& report, int rows);
  void addSubReports(reporting::Report& report, const QString& folder);

  QTemporaryDir folder_;
  std::vector<std::unique_ptr<Connection>> connections_;
  std::shared_ptr<reporting::Report> report_;
};

}  // namespace quartela::preview
