#include "platform/controls/TwoPageTab.h"

#include <QTabBar>

namespace quartela {

TwoPageTab::TwoPageTab(QWidget* parent) : QTabWidget(parent) {}

bool TwoPageTab::tabEnabled(int page) const {
  return tabBar()->isTabEnabled(page);
}

void TwoPageTab::setTabEnabled(int page, bool enabled) {
  tabBar()->setTabEnabled(page, enabled);
}

}  // namespace quartela
