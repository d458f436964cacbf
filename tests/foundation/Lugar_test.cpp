// Windows that come back where their operator left them.
#include "foundation/Lugar.h"

#include <QDialog>
#include <QDir>
#include <QScreen>
#include <QTest>

#include "tests/support/FreshFolder.h"
#include "tests/support/office/OfficeMain.h"

using namespace quartela;  // NOLINT(google-build-using-namespace)

namespace {

class Window : public QWidget {
 public:
  explicit Window(const QString& name = QStringLiteral("frmJanela")) {
    setObjectName(name);
    setGeometry(40, 50, 300, 200);
  }
};

}  // namespace

class Lugar_test : public QObject {
  Q_OBJECT

 private slots:
  void init() { folder_ = std::make_unique<test::FreshFolder>(); }
  void cleanup() { folder_.reset(); }

  void aWindowThatWasMovedComesBackThere() {
    leftAt(QRect(120, 90, 420, 260));
    Window again;
    again.show();
    QCOMPARE(again.geometry(), QRect(120, 90, 420, 260));
  }

  void aMaximisedWindowComesBackMaximisedAndCanBeRestored() {
    {
      Window window;
      window.show();
      window.setGeometry(100, 80, 350, 240);
      window.showMaximized();
      window.close();
    }
    Window again;
    again.show();
    QTRY_VERIFY(again.isMaximized());
    QTRY_COMPARE(again.frameGeometry().size(), again.screen()->availableSize());
    QCOMPARE(again.normalGeometry().size(), QSize(350, 240));
  }

  void onOtherScreensItOpensAsEver() {
    leftAt(QRect(120, 90, 420, 260));
    QByteArray kept = folder_->read("Janelas.ini");
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const QByteArray here = QString("[%1x%2").arg(screen.width()).arg(screen.height()).toLatin1();
    QVERIFY(kept.contains(here));
    folder_->write("Janelas.ini", kept.replace(here, "[640x480"));
    Window again;
    again.show();
    QCOMPARE(again.geometry(), QRect(40, 50, 300, 200));
  }

  void eachWindowHasItsOwnPlace() {
    leftAt(QRect(120, 90, 420, 260));
    Window other(QStringLiteral("frmOutra"));
    other.show();
    QCOMPARE(other.geometry(), QRect(40, 50, 300, 200));
  }

  void whatNobodyTouchedLeavesNoTrace() {
    Window window;
    window.show();
    window.close();
    QCOMPARE(QDir(folder_->path({})).entryList(QDir::Files), QStringList());
  }

  void boxesAndWindowsOfFixedSizeAreNotKept() {
    Window fixed;
    fixed.setFixedSize(200, 100);
    QDialog box;
    for (QWidget* window : {static_cast<QWidget*>(&fixed), static_cast<QWidget*>(&box)}) {
      window->show();
      window->move(150, 160);
      window->close();
    }
    QCOMPARE(QDir(folder_->path({})).entryList(QDir::Files), QStringList());
  }

  void aPlaceThatNobodyCanUseIsNone_data() {
    QTest::addColumn<QByteArray>("place");
    QTest::newRow("no place") << QByteArray("%%%%");
    QTest::newRow("half a place") << QByteArray("120 90");
    QTest::newRow("off every screen") << QByteArray("9000 9000 420 260");
    QTest::newRow("without size") << QByteArray("120 90 wide high");
  }
  void aPlaceThatNobodyCanUseIsNone() {
    QFETCH(QByteArray, place);
    leftAt(QRect(120, 90, 420, 260));
    QByteArray kept = folder_->read("Janelas.ini");
    const qsizetype value = kept.indexOf("frmJanela=") + 10;
    folder_->write("Janelas.ini", kept.left(value) + place + "\r\n");
    Window again;
    again.show();
    QCOMPARE(again.geometry(), QRect(40, 50, 300, 200));
  }

  void aFolderThatCannotBeWrittenIsNoTrouble() {
    QVERIFY(QDir(folder_->path({})).mkdir("Janelas.ini"));
    leftAt(QRect(120, 90, 420, 260));
    Window again;
    again.show();
    QCOMPARE(again.geometry(), QRect(40, 50, 300, 200));
  }

 private:
  static void leftAt(const QRect& place) {
    Window window;
    window.show();
    window.setGeometry(place);
    window.close();
  }

  std::unique_ptr<test::FreshFolder> folder_;
};

QUARTELA_OFFICE_TEST_MAIN(Lugar_test)
#include "Lugar_test.moc"
