#include "platform/reporting/Report.h"

#include <QElapsedTimer>
#include <QScopedValueRollback>
#include <utility>

#include "platform/reporting/LayoutReader.h"
#include "platform/reporting/PageRun.h"
#include "platform/reporting/ReportParts.h"
#include "platform/values/Convert.h"
#include "platform/values/Format.h"
#include "platform/values/RuntimeError.h"

namespace quartela::reporting {

ReportElement::ReportElement(const ElementLayout& layout)
    : layout_(&layout), text_(layout.text), visible_(layout.visible), place_(layout.place) {}

void ReportElement::setValue(const Value& value) {
  text_ = layout_->format.isEmpty() ? Convert::toText(value) : Format(value, layout_->format);
}

SectionInstance::SectionInstance(ReportFlow& flow, const SectionLayout& section)
    : flow_(flow), section_(section), height_(section.height) {}

int SectionInstance::page() const {
  return flow_.page();
}

int SectionInstance::row() const {
  return flow_.rowsSoFar(section_);
}

Value SectionInstance::field(QStringView column) const {
  return flow_.field(column);
}

ReportElement& SectionInstance::element(QStringView name) {
  return flow_.parts().element(name).element;
}

struct Report::Run {
  Run(ReportParts& parts, Document& document) : pages(parts, document) {}
  PageRun pages;
};

Report::Report(const QString& layoutFile) : Report(readLayout(layoutFile)) {}

Report::Report(ReportLayout layout) : parts_(std::make_unique<ReportParts>(std::move(layout))) {}

Report::~Report() = default;

const ReportLayout& Report::layout() const {
  return parts_->layout;
}

const QString& Report::title() const {
  return parts_->title;
}

void Report::setTitle(const QString& title) {
  parts_->title = title;
}

ReportElement& Report::element(QStringView name) {
  return parts_->element(name).element;
}

void Report::setSource(Connection& connection, const QString& statement) {
  parts_->connection = &connection;
  parts_->statement = statement;
}

void Report::setSubReport(QStringView element, std::shared_ptr<Report> report) {
  parts_->element(element).subReport = std::move(report);
}

void Report::onStart(std::function<void()> routine) {
  parts_->startRoutine = std::move(routine);
}

void Report::onFormat(QStringView section, FormatRoutine routine) {
  for (SectionState& state : parts_->sections) {
    if (section.compare(state.layout->name, Qt::CaseInsensitive) == 0) {
      state.routine = std::move(routine);
      return;
    }
  }
  throw RuntimeError(ErrorNumber::SubscriptOutOfRange,
                     parts_->layout.name + QLatin1Char('.') + section.toString());
}

void Report::start() {
  state_ = State::Failed;
  run_.reset();
  document_ = std::make_shared<Document>(parts_->title, parts_->layout.paper);
  run_ = std::make_unique<Run>(*parts_, *document_);
  state_ = State::Building;
}

bool Report::buildWhile(const std::function<bool()>& more) {
  if (state_ != State::Building || inStep_) {
    return state_ == State::Building;
  }
  // A box that a routine shows lets the event loop go on, which may ask for more meanwhile.
  const QScopedValueRollback<bool> step(inStep_, true);
  // A routine may cancel the report; and what it raises ends it.
  try {
    do {
      const bool goesOn = run_->pages.step();
      if (state_ == State::Building && !goesOn) {
        state_ = State::Complete;
      }
    } while (state_ == State::Building && more());
  } catch (...) {
    state_ = State::Failed;
    run_.reset();
    throw;
  }
  if (state_ != State::Building) {
    // The rows have served their turn.
    run_.reset();
  }
  return state_ == State::Building;
}

bool Report::buildFor(int milliseconds) {
  QElapsedTimer timer;
  timer.start();
  return buildWhile([&timer, milliseconds] { return !timer.hasExpired(milliseconds); });
}

bool Report::buildPage() {
  const int before = document_ ? document_->pageCount() : 0;
  return buildWhile([this, before] { return document_->pageCount() == before; });
}

void Report::build() {
  if (state_ != State::Building) {
    start();
  }
  buildWhile([] { return true; });
}

void Report::cancel() {
  if (state_ == State::Building) {
    state_ = State::Cancelled;
  }
  if (!inStep_) {
    run_.reset();
  }
}

Report::State Report::state() const {
  return state_;
}

int Report::progress() const {
  constexpr int kWhole = 1000;
  return run_ ? run_->pages.progress() : (state_ == State::Complete ? kWhole : 0);
}

std::shared_ptr<const Document> Report::document() const {
  return document_;
}

}  // namespace quartela::reporting
