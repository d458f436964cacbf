#include "platform/controls/ScreenPointer.h"

#include <QCursor>
#include <QGuiApplication>

#include "tests/support/TestMain.h"

using quartela::PointerShape;
using quartela::screenPointer;
using quartela::setScreenPointer;

class ScreenPointer_test : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { setScreenPointer(PointerShape::Normal); }

  void isNormalAtTheStart() {
    QCOMPARE(screenPointer(), PointerShape::Normal);
    QVERIFY(!QGuiApplication::overrideCursor());
  }

  void bearsTheNumbersOfTheScreens() {
    QCOMPARE(static_cast<int>(PointerShape::Normal), 0);
    QCOMPARE(static_cast<int>(PointerShape::Hourglass), 11);
  }

  void hourglassAndBack() {
    setScreenPointer(PointerShape::Hourglass);
    QCOMPARE(screenPointer(), PointerShape::Hourglass);
    QVERIFY(QGuiApplication::overrideCursor());
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    setScreenPointer(PointerShape::Normal);
    QCOMPARE(screenPointer(), PointerShape::Normal);
    QVERIFY(!QGuiApplication::overrideCursor());
  }

  void callsDoNotStack() {
    setScreenPointer(PointerShape::Hourglass);
    setScreenPointer(PointerShape::Hourglass);
    setScreenPointer(PointerShape::Normal);
    QVERIFY(!QGuiApplication::overrideCursor());
  }

  void normalTwiceTakesNoOthersCursorAway() {
    QGuiApplication::setOverrideCursor(QCursor(Qt::CrossCursor));
    setScreenPointer(PointerShape::Normal);
    QVERIFY(QGuiApplication::overrideCursor());
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::CrossCursor);
    QGuiApplication::restoreOverrideCursor();
  }
};

QUARTELA_TEST_MAIN(ScreenPointer_test)
#include "ScreenPointer_test.moc"
