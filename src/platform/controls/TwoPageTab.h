// The tab control of the screens with a page to consult and a page to edit.
#pragma once

#include <QTabWidget>

namespace quartela {

class TwoPageTab : public QTabWidget {
  Q_OBJECT
 public:
  explicit TwoPageTab(QWidget* parent = nullptr);

  // A disabled tab cannot be reached by mouse or key. Only the tab: the page's fields stay as they
  // are, so that one of them can be given the focus before its page is shown.
  bool tabEnabled(int page) const;
  void setTabEnabled(int page, bool enabled);

  int current() const { return currentIndex(); }
  void setCurrent(int page) { setCurrentIndex(page); }
};

}  // namespace quartela
