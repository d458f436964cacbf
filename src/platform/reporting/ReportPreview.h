// The window that shows a report before it is printed: pages, zoom, print, save as PDF.
//
// It builds the report itself, a slice at a time, so that the first page is there at once; printing
// and saving wait until it is complete. Both go through the owner, so that dialogs stay where they
// belong.
//
// Keys: PageUp and PageDown scroll, then turn the page; Ctrl+PageUp and Ctrl+PageDown turn it;
// Ctrl+Home and Ctrl+End go to the first and the last; Ctrl+G to the page's number; Ctrl++ and
// Ctrl+- zoom, Ctrl+0 to 100%, Ctrl+1 to the width, Ctrl+2 to the whole page; Ctrl+P prints, Ctrl+S
// saves; Esc leaves the page's number or the zoom as they were, else cancels the building, else
// closes.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <memory>

#include "platform/reporting/PageView.h"
#include "platform/reporting/Report.h"
#include "platform/values/RuntimeError.h"

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QToolBar;
class QToolButton;

namespace quartela::reporting {

class ReportPreview;

// What the owner does for the window. A missing `print` or `save` hides its button; a missing
// `failed` lets an error of the building leave to the event loop.
struct PreviewCommands {
  std::function<void(ReportPreview&)> print;
  std::function<void(ReportPreview&)> save;
  std::function<void(const RuntimeError&)> failed;
};

class ReportPreview : public QMainWindow {
  Q_OBJECT

 public:
  // Starts the report, unless it is started already. Errors: those of Report::start().
  ReportPreview(std::shared_ptr<Report> report, PreviewCommands commands,
                QWidget* parent = nullptr);
  ~ReportPreview() override;

  // A window on the screen that goes when it is closed.
  static ReportPreview* open(std::shared_ptr<Report> report, PreviewCommands commands,
                             QWidget* parent = nullptr);

  std::shared_ptr<const Document> document() const { return report_->document(); }
  // 1 the first; 0 while there is none.
  int page() const { return view_->page() + 1; }
  void goToPage(int page);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QAction* addCommand(QToolBar& bar, const char* icon, const QString& text,
                      const QList<QKeySequence>& keys, void (ReportPreview::*handler)());
  void addKeys(const QList<QKeySequence>& keys, void (ReportPreview::*handler)());
  void makeToolBar();
  QToolButton* closeButton(QWidget* parent);
  void addOutput(QToolBar& bar);
  void addPages(QToolBar& bar);
  void addZoom(QToolBar& bar);
  void makeStatusBar();

  void firstPage();
  void previousPage();
  void nextPage();
  void lastPage();
  void pageUp();
  void pageDown();
  void editPage();
  void takePage();
  void turn(int direction);

  void zoomIn();
  void zoomOut();
  void zoomFull();
  void zoomWidth();
  void zoomPage();
  void pickZoom(int index);
  void takeZoom();
  void enterZoom();
  void showZoom();

  void print();
  void save();
  void cancelBuilding();
  void escape();
  void leaveField();

  void buildSlice();
  void buildFailed(const RuntimeError& error);
  void showProgressOfBuilding();
  void showState();
  void showProgress();

  std::shared_ptr<Report> report_;
  PreviewCommands commands_;
  QTimer timer_;
  PageView* view_;

  QAction* print_ = nullptr;
  QAction* save_ = nullptr;
  QAction* first_ = nullptr;
  QAction* previous_ = nullptr;
  QAction* next_ = nullptr;
  QAction* last_ = nullptr;
  QLineEdit* number_ = nullptr;
  QLabel* count_ = nullptr;
  QComboBox* zoom_ = nullptr;
  QWidget* building_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QPushButton* cancel_ = nullptr;
  QLabel* message_ = nullptr;
};

}  // namespace quartela::reporting
