#include "platform/controls/MoneyEdit.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QPushButton>
#include <QToolTip>
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
  void leavingRefuses_data();
  void leavingRefuses();
  void outlineGoesWithTheNextKey();
  void enterCompletesToo();
  void enterRefusesToo();
  void composedLettersAreSwallowed();
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
  QTest::newRow("dot for the comma") << "12.50"
                                     << "12.50" << qint64{1250};
  QTest::newRow("one decimal behind a dot") << "1500.5"
                                            << "1500.5" << qint64{150050};
  QTest::newRow("thousands and cents") << "1.500,00"
                                       << "1.500,00" << qint64{150000};
  QTest::newRow("thousands") << "1.500"
                             << "1.500" << qint64{150000};
  QTest::newRow("millions") << "1.234.567"
                            << "1.234.567" << qint64{123456700};
  QTest::newRow("millions and a cent") << "1.234.567,8"
                                       << "1.234.567,8" << qint64{123456780};
  QTest::newRow("letters") << "a1b2c"
                           << "12" << qint64{1200};
  QTest::newRow("signs and blanks") << "-1 +2$"
                                    << "12" << qint64{1200};
  QTest::newRow("currency") << "R$ 1.234,56"
                            << "1.234,56" << qint64{123456};
  QTest::newRow("comma first") << ",5"
                               << ",5" << qint64{50};
  QTest::newRow("dot first") << ".50"
                             << ".50" << qint64{50};
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
  QTest::newRow("dotted thousands and cents") << "1.500,00"
                                              << "1.500,00";
  QTest::newRow("dotted thousands") << "1.500"
                                    << "1.500,00";
  QTest::newRow("dot for the comma") << "1500.5"
                                     << "1.500,50";
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

void MoneyEditTest::leavingRefuses_data() {
  QTest::addColumn<QString>("keys");
  QTest::addColumn<int>("error");
  QTest::newRow("two commas") << "1,2,3" << 13;
  QTest::newRow("dot behind a comma") << "1,2.3" << 13;
  QTest::newRow("third decimal") << "1,239" << 13;
  QTest::newRow("third decimal behind a dot") << "12.3456" << 13;
  QTest::newRow("group of two") << "1.50,00" << 13;
  QTest::newRow("groups broken") << "12.34.567" << 13;
  QTest::newRow("four digits before the dot") << "1500.000" << 13;
  QTest::newRow("dot last") << "12." << 13;
  QTest::newRow("two dots") << "1..5" << 13;
  QTest::newRow("comma alone") << "," << 13;
  QTest::newRow("dot alone") << "." << 13;
  QTest::newRow("fifteen digits") << "123456789012345" << 6;
  QTest::newRow("fifteen digits in groups") << "123.456.789.012.345,00" << 6;
}

void MoneyEditTest::leavingRefuses() {
  QFETCH(QString, keys);
  QFETCH(int, error);
  QTest::keyClicks(edit_, keys);
  QVERIFY(!edit_->isRefused());
  leave();
  QCOMPARE(edit_->text(), keys);
  QVERIFY(edit_->isRefused());
  const QColor frame = edit_->grab().toImage().pixelColor(1, 1);
  QVERIFY2(frame.red() > frame.green() + 60, qPrintable(frame.name()));
  QVERIFY2(QToolTip::text().contains(keys), qPrintable(QToolTip::text()));
  try {
    (void)edit_->value();
    QFAIL("a refused text gave a value");
  } catch (const RuntimeError& refusal) {
    QCOMPARE(refusal.number(), error);
    QVERIFY2(refusal.description().contains(keys), qPrintable(refusal.description()));
  }
}

void MoneyEditTest::outlineGoesWithTheNextKey() {
  QTest::keyClicks(edit_, "1,239");
  leave();
  edit_->setFocus(Qt::TabFocusReason);
  QTRY_VERIFY(edit_->hasFocus());
  QCOMPARE(edit_->text(), "1,239");
  edit_->setCursorPosition(5);
  QTest::keyClick(edit_, Qt::Key_Backspace);
  QVERIFY(!edit_->isRefused());
  QVERIFY(edit_->toolTip().isEmpty());
  leave();
  QCOMPARE(edit_->text(), "1,23");
}

void MoneyEditTest::enterRefusesToo() {
  QTest::keyClicks(edit_, "1,2,3");
  QTest::keyClick(edit_, Qt::Key_Return);
  QVERIFY(edit_->isRefused());
  QCOMPARE(edit_->selectedText(), "1,2,3");
}

void MoneyEditTest::composedLettersAreSwallowed() {
  QTest::keyClicks(edit_, "12");
  edit_->selectAll();
  QInputMethodEvent waiting(QStringLiteral("´"), {});
  QApplication::sendEvent(edit_, &waiting);
  QInputMethodEvent letter;
  letter.setCommitString(QStringLiteral("á"));
  QApplication::sendEvent(edit_, &letter);
  QCOMPARE(edit_->text(), "12");
  QInputMethodEvent amount;
  amount.setCommitString("34,5");
  QApplication::sendEvent(edit_, &amount);
  QCOMPARE(edit_->text(), "34,5");
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
  QTest::keyClicks(edit_, "7,1");
  QCOMPARE(edit_->text(), "7,1");
}

void MoneyEditTest::commaInFrontIsSteppedOver() {
  edit_->setText("12,00");
  edit_->setCursorPosition(2);
  QTest::keyClicks(edit_, ",");
  QCOMPARE(edit_->text(), "12,00");
  QCOMPARE(edit_->cursorPosition(), 3);
}

void MoneyEditTest::pastes_data() {
  QTest::addColumn<QString>("pasted");
  QTest::addColumn<QString>("shown");
  QTest::addColumn<bool>("refused");
  QTest::newRow("groups") << "1.234,50"
                          << "1.234,50" << false;
  QTest::newRow("one group") << "1.234"
                             << "1.234,00" << false;
  QTest::newRow("dotted decimals") << "12.50"
                                   << "12,50" << false;
  QTest::newRow("blanks") << " 12,5 "
                          << "12,50" << false;
  QTest::newRow("currency") << "R$ 1.234,56"
                            << "1.234,56" << false;
  QTest::newRow("currency alone in front") << "R$12"
                                           << "12,00" << false;
  QTest::newRow("thousands and cents") << "1.234,56"
                                       << "1.234,56" << false;
  QTest::newRow("dot for the comma") << "1234.56"
                                     << "1.234,56" << false;
  QTest::newRow("broken groups") << "1.23,50"
                                 << "1.23,50" << true;
  QTest::newRow("other country's form") << "1,234.50"
                                        << "1,234.50" << true;
  QTest::newRow("words") << "doze"
                         << "doze" << true;
  QTest::newRow("exponent") << "1e5"
                            << "1e5" << true;
  QTest::newRow("below zero") << "-5,00"
                              << "-5,00" << true;
  QTest::newRow("in brackets") << "(5,00)"
                               << "(5,00)" << true;
}

void MoneyEditTest::pastes() {
  QFETCH(QString, pasted);
  QFETCH(QString, shown);
  QFETCH(bool, refused);
  QApplication::clipboard()->setText(pasted);
  edit_->paste();
  leave();
  QCOMPARE(edit_->text(), shown);
  QCOMPARE(edit_->isRefused(), refused);
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
  QTest::keyClicks(edit_, "99999999999999");
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
