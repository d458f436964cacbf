#include "platform/controls/ComboBox.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "platform/values/RuntimeError.h"
#include "tests/support/TestMain.h"

using namespace quartela;

class ComboBoxTest : public QObject {
  Q_OBJECT
 private slots:
  void init();
  void cleanup();
  void addingPicksNothing();
  void keysOfItems();
  void itemsThatDoNotExistRaise9();
  void programPicksLikeTheOperator();
  void selectsByKey();
  void clearIsSilent();
  void editableLine();
  void addingKeepsTheTypedLine();
  void dropDownComesBeforeTheList();
  void emptyBoxIsFilledForTheKeyboard();
  void typingJumpsToAnItem();
  void wheelNeedsTheFocus();
  void typingBlocked();
  void leavingTheLinePicksNothing_data();
  void leavingTheLinePicksNothing();
  void aNameThatStandsTwiceKeepsItsEntry();
  void arrowsGoOnFromTheTextInTheLine_data();
  void arrowsGoOnFromTheTextInTheLine();

 private:
  void wheel();

  std::unique_ptr<QWidget> window_;
  ComboBox* box_ = nullptr;
  QLineEdit* other_ = nullptr;
};

void ComboBoxTest::init() {
  window_ = std::make_unique<QWidget>();
  auto* layout = new QVBoxLayout(window_.get());
  other_ = new QLineEdit;
  box_ = new ComboBox;
  layout->addWidget(other_);
  layout->addWidget(box_);
  window_->show();
  window_->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

void ComboBoxTest::cleanup() {
  window_.reset();
}

void ComboBoxTest::addingPicksNothing() {
  QSignalSpy picked(box_, &ComboBox::picked);
  QCOMPARE(box_->addItem("Saúde"), 0);
  QCOMPARE(box_->addItem("Obras"), 1);
  QCOMPARE(box_->listIndex(), -1);
  QCOMPARE(box_->text(), "");
  QCOMPARE(picked.size(), 0);
}

void ComboBoxTest::keysOfItems() {
  box_->addItem("Saúde");
  box_->addItem("Obras", 2'000'000'000);
  QCOMPARE(box_->itemDataAt(0), 0);
  box_->setItemData(0, -7);
  QCOMPARE(box_->itemDataAt(0), -7);
  QCOMPARE(box_->itemDataAt(1), 2'000'000'000);
  QCOMPARE(box_->findKey(-7), 0);
  QCOMPARE(box_->findKey(1), -1);
}

void ComboBoxTest::itemsThatDoNotExistRaise9() {
  const auto raises9 = [](const auto& action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      return error.number() == 9;
    }
    return false;
  };
  box_->addItem("Saúde", 3);
  QVERIFY(raises9([this] { (void)box_->itemDataAt(1); }));
  QVERIFY(raises9([this] { (void)box_->itemDataAt(-1); }));
  QVERIFY(raises9([this] { box_->setItemData(1, 1); }));
  QVERIFY(raises9([this] { box_->setListIndex(1); }));
  QVERIFY(raises9([this] { box_->selectByData(4); }));
  QCOMPARE(box_->listIndex(), -1);
}

void ComboBoxTest::programPicksLikeTheOperator() {
  box_->addItem("Saúde");
  box_->addItem("Obras");
  QSignalSpy picked(box_, &ComboBox::picked);
  box_->setListIndex(1);
  box_->setListIndex(1);
  QCOMPARE(picked.size(), 1);
  QCOMPARE(picked.at(0).at(0).toInt(), 1);
  box_->setListIndex(-1);
  QCOMPARE(picked.size(), 1);
  QCOMPARE(box_->text(), "");
  box_->setFocus();
  QTest::keyClick(box_, Qt::Key_Down);
  QCOMPARE(picked.size(), 2);
  QCOMPARE(picked.at(1).at(0).toInt(), 0);
}

void ComboBoxTest::selectsByKey() {
  box_->addItem("Saúde", 4);
  box_->addItem("Obras", 9);
  QSignalSpy picked(box_, &ComboBox::picked);
  box_->selectByData(9);
  QCOMPARE(box_->text(), "Obras");
  QCOMPARE(picked.size(), 1);
}

void ComboBoxTest::clearIsSilent() {
  box_->addItem("Saúde", 4);
  box_->selectByData(4);
  QSignalSpy picked(box_, &ComboBox::picked);
  box_->clear();
  QCOMPARE(box_->count(), 0);
  QCOMPARE(box_->listIndex(), -1);
  QCOMPARE(box_->text(), "");
  box_->setEditable(true);
  box_->setText("livre");
  box_->clear();
  QCOMPARE(box_->text(), "");
  QCOMPARE(picked.size(), 0);
}

void ComboBoxTest::editableLine() {
  box_->setEditable(true);
  box_->addItem("Diesel", 1);
  box_->addItem("Gasolina", 2);
  box_->setText("outro");
  QCOMPARE(box_->text(), "outro");
  QCOMPARE(box_->listIndex(), -1);
  box_->setListIndex(1);
  QCOMPARE(box_->text(), "Gasolina");
  QCOMPARE(box_->listIndex(), 1);
  box_->setText("");
  QCOMPARE(box_->listIndex(), -1);
  box_->setListIndex(1);
  QCOMPARE(box_->text(), "Gasolina");
  box_->setFocus();
  box_->lineEdit()->selectAll();
  QTest::keyClicks(box_->lineEdit(), "novo");
  QTest::keyClick(box_->lineEdit(), Qt::Key_Return);
  QCOMPARE(box_->count(), 2);
}

void ComboBoxTest::addingKeepsTheTypedLine() {
  box_->setEditable(true);
  box_->setText("3390.30");
  box_->addItem("3390.33");
  QCOMPARE(box_->text(), "3390.30");
  QCOMPARE(box_->listIndex(), -1);
}

void ComboBoxTest::dropDownComesBeforeTheList() {
  QSignalSpy down(box_, &ComboBox::dropDown);
  connect(box_, &ComboBox::dropDown, box_, [this] {
    box_->clear();
    box_->addItem("Saúde");
    box_->addItem("Obras");
  });
  box_->setFocus();
  QTest::keyClick(box_, Qt::Key_F4);
  QTRY_VERIFY(box_->view()->isVisible());
  QCOMPARE(down.size(), 1);
  QCOMPARE(box_->view()->model()->rowCount(), 2);
  box_->hidePopup();
}

void ComboBoxTest::emptyBoxIsFilledForTheKeyboard() {
  QSignalSpy down(box_, &ComboBox::dropDown);
  connect(box_, &ComboBox::dropDown, box_, [this] {
    box_->clear();
    box_->addItem("Saúde");
    box_->addItem("Obras");
  });
  box_->setFocus();
  QTest::keyClick(box_, Qt::Key_Down);
  QCOMPARE(down.size(), 1);
  QCOMPARE(box_->text(), "Saúde");
  QTest::keyClick(box_, Qt::Key_Down);
  QCOMPARE(down.size(), 1);
  QCOMPARE(box_->text(), "Obras");
}

void ComboBoxTest::typingJumpsToAnItem() {
  box_->addItem("Educação");
  box_->addItem("Obras");
  QSignalSpy picked(box_, &ComboBox::picked);
  box_->setFocus();
  QTest::keyClicks(box_, "o");
  QCOMPARE(box_->text(), "Obras");
  QCOMPARE(picked.size(), 1);
}

void ComboBoxTest::wheel() {
  QWheelEvent turn(QPointF(5, 5), box_->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(box_, &turn);
}

void ComboBoxTest::wheelNeedsTheFocus() {
  box_->addItem("Saúde");
  box_->addItem("Obras");
  box_->setListIndex(0);
  other_->setFocus();
  QTRY_VERIFY(other_->hasFocus());
  wheel();
  QCOMPARE(box_->listIndex(), 0);
  QVERIFY(!box_->hasFocus());
  box_->setFocus();
  QTRY_VERIFY(box_->hasFocus());
  wheel();
  QCOMPARE(box_->listIndex(), 1);
}

void ComboBoxTest::typingBlocked() {
  box_->setTypingBlocked(true);
  box_->addItem("3390.30");
  box_->setText("3390.14");
  box_->setFocus();
  QTest::keyClicks(box_->lineEdit(), "9");
  QCOMPARE(box_->text(), "3390.14");
  QTest::keyClick(box_, Qt::Key_Down);
  QCOMPARE(box_->text(), "3390.30");
}

void ComboBoxTest::leavingTheLinePicksNothing_data() {
  QTest::addColumn<bool>("typed");
  QTest::addColumn<Qt::Key>("leaves");
  QTest::newRow("shown, Tab") << false << Qt::Key_Tab;
  QTest::newRow("typed, Tab") << true << Qt::Key_Tab;
  QTest::newRow("typed, Enter") << true << Qt::Key_Return;
}

// Entries of one name are told apart by their keys alone: only a choice in the list can be meant.
void ComboBoxTest::leavingTheLinePicksNothing() {
  QFETCH(const bool, typed);
  QFETCH(const Qt::Key, leaves);
  box_->setEditable(true);
  box_->addItem("Viagem", 1);
  box_->addItem("Curso", 2);
  box_->addItem("Curso", 3);
  QWidget::setTabOrder(box_, other_);
  box_->setFocus();
  QTest::keyClick(box_, Qt::Key_F4);
  QTRY_VERIFY(box_->view()->isVisible());
  QTest::keyClick(box_->view(), Qt::Key_Escape);
  QTRY_VERIFY(!box_->view()->isVisible());
  if (typed) {
    QTest::keyClicks(box_->lineEdit(), "Curso");
  } else {
    box_->setText("Curso");
  }
  QSignalSpy picked(box_, &ComboBox::picked);
  QTest::keyClick(box_, leaves);
  other_->setFocus();
  QTRY_VERIFY(other_->hasFocus());
  QCOMPARE(picked.size(), 0);
  QCOMPARE(box_->listIndex(), -1);
  QCOMPARE(box_->text(), "Curso");
}

void ComboBoxTest::aNameThatStandsTwiceKeepsItsEntry() {
  box_->setEditable(true);
  box_->addItem("Curso", 2);
  box_->addItem("Curso", 3);
  box_->setFocus();
  QTest::keyClick(box_, Qt::Key_F4);
  QTRY_VERIFY(box_->view()->isVisible());
  QTest::keyClick(box_->view(), Qt::Key_End);
  QTest::keyClick(box_->view(), Qt::Key_Return);
  QCOMPARE(box_->listIndex(), 1);
  QSignalSpy picked(box_, &ComboBox::picked);
  other_->setFocus();
  QTRY_VERIFY(other_->hasFocus());
  box_->setText("Curso");
  QCOMPARE(box_->itemDataAt(box_->listIndex()), 3);
  QCOMPARE(picked.size(), 0);
}

void ComboBoxTest::arrowsGoOnFromTheTextInTheLine_data() {
  QTest::addColumn<QString>("line");
  QTest::addColumn<QString>("below");
  QTest::newRow("emptied") << ""
                           << "05";
  QTest::newRow("another entry's") << "15"
                                   << "30";
  QTest::newRow("no entry's") << "7"
                              << "05";
}

void ComboBoxTest::arrowsGoOnFromTheTextInTheLine() {
  QFETCH(const QString, line);
  QFETCH(const QString, below);
  box_->setEditable(true);
  for (const char* term : {"05", "15", "30"}) {
    box_->addItem(term);
  }
  box_->setListIndex(2);
  box_->setFocus();
  box_->lineEdit()->selectAll();
  QTest::keyClick(box_, Qt::Key_Delete);
  QTest::keyClicks(box_, line);
  QSignalSpy picked(box_, &ComboBox::picked);
  QTest::keyClick(box_, Qt::Key_Down);
  QCOMPARE(box_->text(), below);
  QCOMPARE(picked.size(), 1);
}

QUARTELA_TEST_MAIN(ComboBoxTest)
#include "ComboBox_test.moc"
