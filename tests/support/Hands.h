// The operator's hands on controls that take more than one key.
#pragma once

#include <QAbstractItemView>
#include <QTest>

#include "platform/controls/ComboBox.h"

namespace quartela::test {

// Drops the list of `box` down with F4, goes to the item of that text and takes it with Enter.
inline void pickItem(ComboBox& box, const QString& item) {
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_F4);
  QAbstractItemView* const list = box.view();
  QVERIFY2(list->isVisible(), "the list did not open");
  const int place = box.findText(item);
  QVERIFY2(place >= 0, qPrintable(item));
  QTest::keyClick(list, Qt::Key_Home);
  for (int row = 0; row < place; ++row) {
    QTest::keyClick(list, Qt::Key_Down);
  }
  QCOMPARE(list->currentIndex().data().toString(), item);
  QTest::keyClick(list, Qt::Key_Return);
  QVERIFY(!list->isVisible());
}

}  // namespace quartela::test
