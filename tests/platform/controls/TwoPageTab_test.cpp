#include "platform/controls/TwoPageTab.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QVBoxLayout>

#include "tests/support/TestMain.h"

using namespace quartela;

class TwoPageTabTest : public QObject {
  Q_OBJECT
 private slots:
  void init();
  void cleanup();
  void disabledTabCannotBeReached();
  void fieldsOfADisabledTabStayEnabled();
  void fieldOfAHiddenPageTakesTheFocusWhenShown();

 private:
  std::unique_ptr<TwoPageTab> tab_;
  QPushButton* button_ = nullptr;
  QLineEdit* field_ = nullptr;
  QLineEdit* first_ = nullptr;
};

void TwoPageTabTest::init() {
  tab_ = std::make_unique<TwoPageTab>();
  auto* consult = new QWidget;
  button_ = new QPushButton("Incluir");
  (new QVBoxLayout(consult))->addWidget(button_);
  auto* edit = new QWidget;
  first_ = new QLineEdit;
  field_ = new QLineEdit;
  auto* fields = new QVBoxLayout(edit);
  fields->addWidget(first_);
  fields->addWidget(field_);
  tab_->addTab(consult, "Consulta");
  tab_->addTab(edit, "Cadastro");
  tab_->show();
  tab_->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(tab_.get()));
}

void TwoPageTabTest::cleanup() {
  tab_.reset();
}

void TwoPageTabTest::disabledTabCannotBeReached() {
  QVERIFY(tab_->tabEnabled(1));
  tab_->setTabEnabled(1, false);
  QVERIFY(!tab_->tabEnabled(1));
  QTest::mouseClick(tab_->tabBar(), Qt::LeftButton, {}, tab_->tabBar()->tabRect(1).center());
  QCOMPARE(tab_->current(), 0);
  tab_->tabBar()->setFocus();
  QTest::keyClick(tab_->tabBar(), Qt::Key_Right);
  QTest::keyClick(tab_.get(), Qt::Key_Tab, Qt::ControlModifier);
  QCOMPARE(tab_->current(), 0);
  tab_->setTabEnabled(1, true);
  QTest::mouseClick(tab_->tabBar(), Qt::LeftButton, {}, tab_->tabBar()->tabRect(1).center());
  QCOMPARE(tab_->current(), 1);
}

void TwoPageTabTest::fieldsOfADisabledTabStayEnabled() {
  tab_->setTabEnabled(1, false);
  QVERIFY(field_->isEnabled());
}

void TwoPageTabTest::fieldOfAHiddenPageTakesTheFocusWhenShown() {
  tab_->setTabEnabled(1, false);
  button_->setFocus();
  QTRY_VERIFY(button_->hasFocus());
  field_->setFocus();
  tab_->setTabEnabled(1, true);
  tab_->setCurrent(1);
  QTRY_VERIFY(field_->hasFocus());
}

QUARTELA_TEST_MAIN(TwoPageTabTest)
#include "TwoPageTab_test.moc"
