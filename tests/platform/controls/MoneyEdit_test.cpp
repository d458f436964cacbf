#include "platform/controls/MoneyEdit.h"

#include <QClipboard>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/values/RuntimeError.h"
#include "tests/support/TestMain.h"

using namespace quartela;

class MoneyEditTest : public QObject {
  Q_OBJECT
 private slots:
  void init();
  void cleanup();
  void typing_data();
  void typing();
  void keypadKeyTypesTheComma();
  void leavingCompletes_data();
  void leavingCompletes();
  void enterCompletesToo();
  void emptyRaises13();
  void editingAGroupedAmount();
  void typingOverTheSelection();
  void commaInFrontIsSteppedOver();
  void pastes_data();
  void pastes();
  void valuesAreShownByTheFormat_data();
  void valuesAreShownByTheFormat();
  void negativeOnlyWhereAllowed();
  void mostDigits();
  void textThatIsNoAmountStays();
  void readOnlyKeepsItsDots();

 private:
  void leave();

  std::unique_ptr<QWidget> window_;
  MoneyEdit* edit_ = nullptr;
  QPushButton* other_ = nullptr;
};

void MoneyEditTest::init() {
  window_ = std::make_unique<QWidget>();
  auto* layout = new QVBoxLayout(window_.get());
  edit_ = new MoneyEdit;
  other_ = new QPushButton("OK");
  layout->addWidget(edit_);
  layout->addWidget(other_);
  window_->show();
  window_->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  edit_->setFocus(Qt::TabFocusReason);
  QTRY_VERIFY(edit_->hasFocus());
}

void MoneyEditTest::cleanup() {
  window_.reset();
}

void MoneyEditTest::leave() {
  other_->setFocus();
  QTRY_VERIFY(!edit_->hasFocus());
}

void MoneyEditTest::typing_data() {
  QTest::addColumn<QString>("keys");
  QTest::addColumn<QString>("text");
  QTest::addColumn<qint64>("cents");
  QTest::newRow("whole") << "12"
                         << "12" << qint64{1200};
  QTest::newRow("comma") << "12,50"
                         << "12,50" << qint64{1250};
  QTest::newRow("dot is the comma") << "12.50"
                                    << "12,50" << qint64{1250};
  QTest::newRow("second comma") << "1,2,3"
                                << "1,23" << qint64{123};
  QTest::newRow("dot behind a comma") << "1,2.3"
                                      << "1,23" << qint64{123};
  QTest::newRow("letters") << "a1b2c"
                           << "12" << qint64{1200};
  QTest::newRow("signs and blanks") << "-1 +2$"
                                    << "12" << qint64{1200};
  QTest::newRow("third decimal") << "1,239"
                                 << "1,23" << qint64{123};
  QTest::newRow("comma first") << ",5"
                               << ",5" << qint64{50};
  QTest::newRow("leading zeros") << "007"
                                 << "007" << qint64{700};
}

void MoneyEditTest::typing() {
  QFETCH(QString, keys);
  QFETCH(QString, text);
  QFETCH(qint64, cents);
  QTest::keyClicks(edit_, keys);
  QCOMPARE(edit_->text(), text);
  QVERIFY(edit_->value() == Money::fromCents(cents));
}

void MoneyEditTest::keypadKeyTypesTheComma() {
  QTest::keyClicks(edit_, "7");
  QTest::keyClick(edit_, Qt::Key_Period, Qt::KeypadModifier);
  QTest::keyClicks(edit_, "25");
  QCOMPARE(edit_->text(), "7,25");
  edit_->clear();
  QTest::keyClicks(edit_, "8");
  QTest::keyClick(edit_, Qt::Key_Comma, Qt::KeypadModifier);
  QTest::keyClicks(edit_, "5");
  QCOMPARE(edit_->text(), "8,5");
}

void MoneyEditTest::leavingCompletes_data() {
  QTest::addColumn<QString>("keys");
  QTest::addColumn<QString>("shown");
  QTest::newRow("whole") << "12"
                         << "12,00";
  QTest::newRow("one decimal") << "12,5"
                               << "12,50";
  QTest::newRow("comma last") << "12,"
                              << "12,00";
  QTest::newRow("comma first") << ",5"
                               << "0,50";
  QTest::newRow("thousands") << "1234567,8"
                             << "1.234.567,80";
  QTest::newRow("nothing") << ""
                           << "";
  QTest::newRow("comma alone") << ","
                               << "";
  QTest::newRow("zero") << "0"
                        << "0,00";
  QTest::newRow("leading zeros") << "007"
                                 << "7,00";
}

void MoneyEditTest::leavingCompletes() {
  QFETCH(QString, keys);
  QFETCH(QString, shown);
  QTest::keyClicks(edit_, keys);
  leave();
  QCOMPARE(edit_->text(), shown);
}

void MoneyEditTest::enterCompletesToo() {
  QTest::keyClicks(edit_, "1234,5");
  QTest::keyClick(edit_, Qt::Key_Return);
  QCOMPARE(edit_->text(), "1.234,50");
}

void MoneyEditTest::emptyRaises13() {
  QVERIFY(edit_->isEmpty());
  try {
    (void)edit_->value();
    QFAIL("an empty field gave a value");
  } catch (const RuntimeError& error) {
    QCOMPARE(error.number(), 13);
  }
}

void MoneyEditTest::editingAGroupedAmount() {
  edit_->setText("1.234,50");
  edit_->setCursorPosition(3);
  QTest::keyClicks(edit_, "9");
  QCOMPARE(edit_->text(), "12934,50");
  leave();
  QCOMPARE(edit_->text(), "12.934,50");
  edit_->setFocus(Qt::TabFocusReason);
  QTRY_VERIFY(edit_->hasFocus());
  QCOMPARE(edit_->text(), "12934,50");
  QCOMPARE(edit_->selectedText(), "12934,50");
  edit_->setText("1.234,50");
  edit_->setCursorPosition(5);
  QTest::keyClick(edit_, Qt::Key_Backspace);
  leave();
  QCOMPARE(edit_->text(), "123,50");
}

void MoneyEditTest::typingOverTheSelection() {
  edit_->setText("1.234,50");
  edit_->selectAll();
  QTest::keyClicks(edit_, "7.1");
  QCOMPARE(edit_->text(), "7,1");
}

void MoneyEditTest::commaInFrontIsSteppedOver() {
  edit_->setText("12,00");
  edit_->setCursorPosition(2);
  QTest::keyClicks(edit_, ".");
  QCOMPARE(edit_->text(), "12,00");
  QCOMPARE(edit_->cursorPosition(), 3);
}

void MoneyEditTest::pastes_data() {
  QTest::addColumn<QString>("pasted");
  QTest::addColumn<QString>("shown");
  QTest::newRow("groups") << "1.234,50"
                          << "1.234,50";
  QTest::newRow("one group") << "1.234"
                             << "1.234,00";
  QTest::newRow("dotted decimals") << "12.50"
                                   << "12,50";
  QTest::newRow("blanks") << " 12,5 "
                          << "12,50";
  QTest::newRow("broken groups") << "1.23,50"
                                 << "";
  QTest::newRow("other country's form") << "1,234.50"
                                        << "";
  QTest::newRow("words") << "R$ 12"
                         << "";
  QTest::newRow("exponent") << "1e5"
                            << "";
}

void MoneyEditTest::pastes() {
  QFETCH(QString, pasted);
  QFETCH(QString, shown);
  QApplication::clipboard()->setText(pasted);
  edit_->paste();
  leave();
  QCOMPARE(edit_->text(), shown);
}

void MoneyEditTest::valuesAreShownByTheFormat_data() {
  QTest::addColumn<qint64>("cents");
  QTest::addColumn<QString>("shown");
  QTest::newRow("zero") << qint64{0} << "0,00";
  QTest::newRow("thousands") << qint64{123456789} << "1.234.567,89";
  QTest::newRow("negative") << qint64{-123456} << "(1.234,56)";
}

void MoneyEditTest::valuesAreShownByTheFormat() {
  QFETCH(qint64, cents);
  QFETCH(QString, shown);
  edit_->setValue(Money::fromCents(cents));
  QCOMPARE(edit_->text(), shown);
  QVERIFY(edit_->value() == Money::fromCents(cents));
}

void MoneyEditTest::negativeOnlyWhereAllowed() {
  QTest::keyClicks(edit_, "-5");
  QCOMPARE(edit_->text(), "5");
  edit_->clear();
  edit_->setNegativeAllowed(true);
  QTest::keyClicks(edit_, "-1234,5");
  leave();
  QCOMPARE(edit_->text(), "(1.234,50)");
  QVERIFY(edit_->value() == Money::fromCents(-123450));
  edit_->setFocus(Qt::TabFocusReason);
  QTRY_COMPARE(edit_->text(), "-1234,50");
}

void MoneyEditTest::mostDigits() {
  QTest::keyClicks(edit_, "999999999999999");
  QCOMPARE(edit_->text(), "99999999999999");
  leave();
  QCOMPARE(edit_->text(), "99.999.999.999.999,00");
  QVERIFY(edit_->value() == Money::fromReais(99'999'999'999'999));
}

void MoneyEditTest::textThatIsNoAmountStays() {
  edit_->setText("abc 1");
  leave();
  QCOMPARE(edit_->text(), "abc 1");
  QVERIFY_EXCEPTION_THROWN((void)edit_->value(), RuntimeError);
}

void MoneyEditTest::readOnlyKeepsItsDots() {
  leave();
  edit_->setText("1.234,50");
  edit_->setReadOnly(true);
  edit_->setFocus(Qt::TabFocusReason);
  QTRY_VERIFY(edit_->hasFocus());
  QTest::keyClicks(edit_, "5,");
  QCOMPARE(edit_->text(), "1.234,50");
}

QUARTELA_TEST_MAIN(MoneyEditTest)
#include "MoneyEdit_test.moc"
