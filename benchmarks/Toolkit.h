// The toolkit's own models and views, as the peers of our lists.
#pragma once

#include <QApplication>
#include <QSqlQueryModel>
#include <QTableView>

namespace quartela::bench {

inline void paint(QWidget& widget) {
  widget.repaint();
  QApplication::sendPostedEvents();
  widget.grab();
}

// Shows all rows of the model, not only those that fit the screen.
inline void showAllRows(QSqlQueryModel& model, QTableView& view) {
  while (model.canFetchMore()) {
    model.fetchMore();
  }
  view.setModel(&model);
  paint(view);
}

}  // namespace quartela::bench
