#include "platform/controls/DatePicker.h"

#include <QAccessible>
#include <QAction>
#include <QCalendarWidget>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <functional>

#include "platform/values/RuntimeError.h"
#include "tests/support/Errors.h"
#include "tests/support/TestMain.h"

using namespace quartela;

Q_DECLARE_METATYPE(std::function<void(QLineEdit*)>)

// The clock of the tests stands at 21/11/2014.
class DatePickerTest : public QObject {
  Q_OBJECT
 private slots:
  void init();
  void cleanup();
  void beginsEmpty();
  void takesDatesAndNull();
  void refusesWhatIsNoDate();
  void typedDateIsTakenWhenWhole();
  void halfTypedDateFallsBack_data();
  void halfTypedDateFallsBack();
  void impossibleDateIsMarkedWhileTyped();
  void enterRefusesAHalfTypedDate();
  void markGoesWithTheNextDate();
  void erasedTextIsEmpty();
  void keys_data();
  void keys();
  void deleteEmptiesOnlyWhenAllIsSelected();
  void dayKeysNeedADate();
  void notOptionalIsNeverEmpty();
  void limits();
  void wheelDoesNothing();
  void readersHearWhetherItIsEmpty();
  void calendarPicks();
  void calendarButtons();
  void calendarOfAHalfTypedDate();
  void readOnlyStaysAsItIs();
  void typedWithOtherSigns_data();
  void typedWithOtherSigns();
  void typedWithDashesInPlace();
  void pastedOverADate_data();
  void pastedOverADate();
  void dayKeysNeedAWholeDate_data();
  void dayKeysNeedAWholeDate();
  void todayKeepsToTheLimits_data();
  void todayKeepsToTheLimits();
  void valueFollowsEveryEdit_data();
  void valueFollowsEveryEdit();

 private:
  QCalendarWidget* calendar() const { return picker_->findChild<QCalendarWidget*>(); }
  void type(const QString& keys);

  std::unique_ptr<QWidget> window_;
  DatePicker* picker_ = nullptr;
  QPushButton* other_ = nullptr;
};

void DatePickerTest::init() {
  window_ = std::make_unique<QWidget>();
  auto* layout = new QVBoxLayout(window_.get());
  picker_ = new DatePicker;
  other_ = new QPushButton("OK");
  layout->addWidget(picker_);
  layout->addWidget(other_);
  window_->show();
  window_->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  picker_->setFocus(Qt::TabFocusReason);
  QTRY_VERIFY(picker_->hasFocus());
}

void DatePickerTest::cleanup() {
  window_.reset();
}

void DatePickerTest::type(const QString& keys) {
  picker_->selectAll();
  QTest::keyClicks(picker_, keys);
}

void DatePickerTest::beginsEmpty() {
  QVERIFY(picker_->isEmpty());
  QVERIFY(picker_->value().isNull());
  QCOMPARE(picker_->text(), "__/__/____");
}

void DatePickerTest::takesDatesAndNull() {
  QSignalSpy changed(picker_, &DatePicker::valueChanged);
  picker_->setValue(DateTime::of(2014, 3, 5, 14, 30));
  QCOMPARE(picker_->text(), "05/03/2014");
  QCOMPARE(picker_->value(), Value(DateTime::of(2014, 3, 5)));
  picker_->setValue(Value("06/03/2014"));
  QCOMPARE(picker_->text(), "06/03/2014");
  QCOMPARE(changed.size(), 2);
  picker_->setValue(DateTime::of(2014, 3, 6));
  QCOMPARE(changed.size(), 2);
  picker_->setValue({});
  QVERIFY(picker_->isEmpty());
  QCOMPARE(changed.size(), 3);
  picker_->setToday();
  QCOMPARE(picker_->text(), "21/11/2014");
}

void DatePickerTest::refusesWhatIsNoDate() {
  QCOMPARE(test::errorOf([this] { picker_->setValue(Value("31/02/2014")); }), 13);
  QCOMPARE(test::errorOf([this] { picker_->setValue(Value("")); }), 13);
  QVERIFY(picker_->isEmpty());
}

void DatePickerTest::typedDateIsTakenWhenWhole() {
  QSignalSpy changed(picker_, &DatePicker::valueChanged);
  type("2911201");
  QVERIFY(picker_->isEmpty());
  QTest::keyClicks(picker_, "4");
  QCOMPARE(picker_->value(), Value(DateTime::of(2014, 11, 29)));
  QCOMPARE(changed.size(), 1);
  type("01/02/2015");
  QCOMPARE(picker_->value(), Value(DateTime::of(2015, 2, 1)));
}

void DatePickerTest::halfTypedDateFallsBack_data() {
  QTest::addColumn<bool>("hadDate");
  QTest::addColumn<QString>("typed");
  for (const bool hadDate : {false, true}) {
    const auto name = [hadDate](const char* what) {
      return QByteArray(what) + (hadDate ? " over a date" : " over nothing");
    };
    QTest::newRow(name("day").constData()) << hadDate << "29";
    QTest::newRow(name("two-digit year").constData()) << hadDate << "291114";
    QTest::newRow(name("no such day").constData()) << hadDate << "31022014";
    QTest::newRow(name("no such month").constData()) << hadDate << "01132014";
    QTest::newRow(name("day zero").constData()) << hadDate << "00012014";
    QTest::newRow(name("29 February of a common year").constData()) << hadDate << "29022013";
    QTest::newRow(name("digits of the year changed round").constData()) << hadDate << "01010214";
  }
}

void DatePickerTest::halfTypedDateFallsBack() {
  QFETCH(bool, hadDate);
  QFETCH(QString, typed);
  const Value before = hadDate ? Value(DateTime::of(2014, 3, 5)) : Value();
  picker_->setValue(before);
  QSignalSpy changed(picker_, &DatePicker::valueChanged);
  QSignalSpy refused(picker_, &DatePicker::typingRefused);
  type(typed);
  QCOMPARE(picker_->value(), before);
  other_->setFocus();
  QTRY_VERIFY(!picker_->hasFocus());
  QCOMPARE(picker_->value(), before);
  QCOMPARE(picker_->text(), hadDate ? "05/03/2014" : "__/__/____");
  QVERIFY(picker_->isInvalid());
  QCOMPARE(refused.size(), 1);
  QCOMPARE(changed.size(), 0);
}

void DatePickerTest::impossibleDateIsMarkedWhileTyped() {
  type("3102201");
  QVERIFY(!picker_->isInvalid());
  QTest::keyClicks(picker_, "4");
  QVERIFY(picker_->isInvalid());
  const QColor frame = picker_->grab().toImage().pixelColor(1, 1);
  QVERIFY2(frame.red() > frame.green() + 60, qPrintable(frame.name()));
}

void DatePickerTest::enterRefusesAHalfTypedDate() {
  picker_->setValue(DateTime::of(2014, 3, 5));
  QSignalSpy refused(picker_, &DatePicker::typingRefused);
  type("2911");
  QTest::keyClick(picker_, Qt::Key_Return);
  QCOMPARE(refused.size(), 1);
  QCOMPARE(refused.at(0).at(0).toString(), "29/11/____");
  QCOMPARE(picker_->text(), "05/03/2014");
  QCOMPARE(picker_->selectedText(), "05/03/2014");
}

void DatePickerTest::markGoesWithTheNextDate() {
  type("2911");
  QTest::keyClick(picker_, Qt::Key_Return);
  QVERIFY(picker_->isInvalid());
  type("29112014");
  QVERIFY(!picker_->isInvalid());
}

void DatePickerTest::erasedTextIsEmpty() {
  picker_->setValue(DateTime::of(2014, 3, 5));
  picker_->setCursorPosition(10);
  for (int digit = 0; digit < 8; ++digit) {
    QVERIFY(!picker_->isEmpty());
    QTest::keyClick(picker_, Qt::Key_Backspace);
  }
  QVERIFY(picker_->isEmpty());
  QVERIFY(!picker_->isInvalid());
}

void DatePickerTest::keys_data() {
  QTest::addColumn<int>("key");
  QTest::addColumn<int>("modifiers");
  QTest::addColumn<QString>("shown");
  QTest::newRow("h") << int(Qt::Key_H) << 0 << "21/11/2014";
  QTest::newRow("H") << int(Qt::Key_H) << int(Qt::ShiftModifier) << "21/11/2014";
  QTest::newRow("Ctrl+;") << int(Qt::Key_Semicolon) << int(Qt::ControlModifier) << "21/11/2014";
  QTest::newRow("+") << int(Qt::Key_Plus) << 0 << "01/03/2014";
  QTest::newRow("keypad -") << int(Qt::Key_Minus) << int(Qt::KeypadModifier) << "27/02/2014";
  QTest::newRow("Ctrl+Delete") << int(Qt::Key_Delete) << int(Qt::ControlModifier) << "__/__/____";
  QTest::newRow("a letter") << int(Qt::Key_K) << 0 << "28/02/2014";
  QTest::newRow("Up") << int(Qt::Key_Up) << 0 << "28/02/2014";
}

void DatePickerTest::keys() {
  QFETCH(int, key);
  QFETCH(int, modifiers);
  QFETCH(QString, shown);
  picker_->setValue(DateTime::of(2014, 2, 28));
  QTest::keyClick(picker_, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
  QCOMPARE(picker_->text(), shown);
}

void DatePickerTest::deleteEmptiesOnlyWhenAllIsSelected() {
  picker_->setValue(DateTime::of(2014, 2, 28));
  picker_->deselect();
  picker_->setCursorPosition(0);
  QTest::keyClick(picker_, Qt::Key_Delete);
  QCOMPARE(picker_->text(), "_8/02/2014");
  QVERIFY(!picker_->isEmpty());
  picker_->selectAll();
  QTest::keyClick(picker_, Qt::Key_Delete);
  QVERIFY(picker_->isEmpty());
}

void DatePickerTest::dayKeysNeedADate() {
  QTest::keyClick(picker_, Qt::Key_Plus);
  QVERIFY(picker_->isEmpty());
}

void DatePickerTest::notOptionalIsNeverEmpty() {
  picker_->setOptional(false);
  QCOMPARE(picker_->text(), "21/11/2014");
  QCOMPARE(test::errorOf([this] { picker_->setValue({}); }), 13);
  picker_->selectAll();
  QTest::keyClick(picker_, Qt::Key_Delete);
  QCOMPARE(picker_->text(), "21/11/2014");
  picker_->selectAll();
  QTest::keyClick(picker_, Qt::Key_Backspace);
  other_->setFocus();
  QTRY_COMPARE(picker_->text(), "21/11/2014");
  QVERIFY(!picker_->isEmpty());
}

void DatePickerTest::limits() {
  picker_->setMinimum(DateTime::of(1997, 1, 1));
  picker_->setMaximum(DateTime::of(2020, 12, 31));
  QCOMPARE(test::errorOf([this] { picker_->setValue(DateTime::of(1996, 12, 31)); }), 6);
  QCOMPARE(test::errorOf([this] { picker_->setValue(DateTime::of(2021, 1, 1)); }), 6);
  type("31121996");
  QVERIFY(picker_->isEmpty());
  type("01011997");
  QCOMPARE(picker_->text(), "01/01/1997");
  QTest::keyClick(picker_, Qt::Key_Minus);
  QCOMPARE(picker_->text(), "01/01/1997");
  picker_->setMinimum({});
  type("31121799");
  QCOMPARE(picker_->value(), Value(DateTime::of(1799, 12, 31)));
}

void DatePickerTest::wheelDoesNothing() {
  picker_->setValue(DateTime::of(2014, 2, 28));
  QWheelEvent turn(QPointF(5, 5), picker_->mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(picker_, &turn);
  QCOMPARE(picker_->text(), "28/02/2014");
}

void DatePickerTest::readersHearWhetherItIsEmpty() {
  const QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(picker_);
  QVERIFY(heard);
  QCOMPARE(heard->text(QAccessible::Description), "vazio");
  picker_->setToday();
  QVERIFY(heard->text(QAccessible::Description) != "vazio");
  QTest::keyClick(picker_, Qt::Key_Delete, Qt::ControlModifier);
  QCOMPARE(heard->text(QAccessible::Description), "vazio");
}

void DatePickerTest::calendarPicks() {
  picker_->setValue(DateTime::of(2014, 2, 28));
  QTest::keyClick(picker_, Qt::Key_F4);
  QVERIFY(calendar());
  QTRY_VERIFY(calendar()->isVisible());
  QCOMPARE(calendar()->selectedDate(), QDate(2014, 2, 28));
  QCOMPARE(calendar()->locale().language(), QLocale::Portuguese);
  emit calendar()->clicked(QDate(2014, 2, 14));
  QCOMPARE(picker_->text(), "14/02/2014");
  QTRY_VERIFY(!calendar());
}

void DatePickerTest::calendarButtons() {
  const auto press = [this](const QString& text) {
    picker_->openCalendar();
    const auto buttons = picker_->findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
      if (button->text() == text) {
        button->click();
        return;
      }
    }
    QFAIL("no such button");
  };
  press("&Hoje");
  QCOMPARE(picker_->text(), "21/11/2014");
  QTRY_VERIFY(!calendar());
  press("&Vazio");
  QVERIFY(picker_->isEmpty());
  QTRY_VERIFY(!calendar());
  QCOMPARE(picker_->actions().size(), 1);
  picker_->actions().constFirst()->trigger();
  QVERIFY(calendar());
}

void DatePickerTest::calendarOfAHalfTypedDate() {
  picker_->setValue(DateTime::of(2014, 2, 28));
  type("1503");
  picker_->openCalendar();
  QCOMPARE(calendar()->selectedDate(), QDate(2014, 2, 28));
  QTest::keyClick(calendar()->parentWidget(), Qt::Key_Escape);
  QTRY_VERIFY(!calendar());
  QCOMPARE(picker_->text(), "28/02/2014");
}

void DatePickerTest::readOnlyStaysAsItIs() {
  picker_->setValue(DateTime::of(2014, 2, 28));
  picker_->setReadOnly(true);
  QTest::keyClick(picker_, Qt::Key_H);
  QTest::keyClick(picker_, Qt::Key_Plus);
  QTest::keyClick(picker_, Qt::Key_Delete, Qt::ControlModifier);
  QTest::keyClick(picker_, Qt::Key_F4);
  QCOMPARE(picker_->text(), "28/02/2014");
  QVERIFY(!calendar());
}

void DatePickerTest::typedWithOtherSigns_data() {
  QTest::addColumn<QString>("typed");
  QTest::newRow("slashes") << "25/12/2014";
  QTest::newRow("dashes") << "25-12-2014";
  QTest::newRow("dots") << "25.12.2014";
  QTest::newRow("blanks") << "25 12 2014";
}

void DatePickerTest::typedWithOtherSigns() {
  QFETCH(QString, typed);
  for (const Value& before : {Value(), Value(DateTime::of(2014, 3, 5))}) {
    picker_->setValue(before);
    type(typed);
    QCOMPARE(picker_->text(), "25/12/2014");
    QCOMPARE(picker_->value(), Value(DateTime::of(2014, 12, 25)));
  }
  QString short_ = typed;
  type(short_.replace("25", "5").replace("12", "1"));
  QCOMPARE(picker_->text(), "05/01/2014");
}

void DatePickerTest::typedWithDashesInPlace() {
  picker_->setValue(DateTime::of(2014, 3, 5));
  QTest::keyClick(picker_, Qt::Key_Home);
  QTest::keyClicks(picker_, "25-12-2015");
  QCOMPARE(picker_->text(), "25/12/2015");
}

void DatePickerTest::pastedOverADate_data() {
  QTest::addColumn<QString>("pasted");
  QTest::newRow("dashes") << "25-12-2014";
  QTest::newRow("blanks around") << " 25/12/2014\n";
  QTest::newRow("digits") << "25122014";
}

void DatePickerTest::pastedOverADate() {
  QFETCH(QString, pasted);
  picker_->setValue(DateTime::of(2014, 3, 5));
  picker_->selectAll();
  QApplication::clipboard()->setText(pasted);
  QTest::keyClick(picker_, Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(picker_->text(), "25/12/2014");
  QCOMPARE(picker_->value(), Value(DateTime::of(2014, 12, 25)));
}

void DatePickerTest::dayKeysNeedAWholeDate_data() {
  QTest::addColumn<QString>("typed");
  QTest::addColumn<QString>("shown");
  QTest::newRow("half typed") << "2512"
                              << "25/12/____";
  QTest::newRow("no such day") << "31022014"
                               << "31/02/2014";
}

void DatePickerTest::dayKeysNeedAWholeDate() {
  QFETCH(QString, typed);
  QFETCH(QString, shown);
  picker_->setValue(DateTime::of(2014, 3, 5));
  type(typed);
  for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Minus}) {
    QTest::keyClick(picker_, key);
    QCOMPARE(picker_->text(), shown);
    QCOMPARE(picker_->value(), Value(DateTime::of(2014, 3, 5)));
  }
}

void DatePickerTest::todayKeepsToTheLimits_data() {
  QTest::addColumn<bool>("tooEarly");
  QTest::newRow("before the first day") << true;
  QTest::newRow("behind the last day") << false;
}

void DatePickerTest::todayKeepsToTheLimits() {
  QFETCH(bool, tooEarly);
  const DateTime day = tooEarly ? DateTime::of(2015, 1, 1) : DateTime::of(2013, 12, 31);
  (tooEarly ? picker_->setMinimum(day) : picker_->setMaximum(day));
  picker_->setValue(day);
  QSignalSpy refused(picker_, &DatePicker::typingRefused);
  QTest::keyClick(picker_, Qt::Key_H);
  QTest::keyClick(picker_, Qt::Key_Semicolon, Qt::ControlModifier);
  QCOMPARE(picker_->value(), Value(day));
  QVERIFY(picker_->isInvalid());
  QCOMPARE(refused.size(), 2);
  QCOMPARE(refused.at(0).at(0).toString(), "21/11/2014");
  picker_->openCalendar();
  const auto buttons = picker_->findChildren<QPushButton*>();
  const auto today = std::find_if(buttons.begin(), buttons.end(),
                                  [](auto* button) { return button->text() == "&Hoje"; });
  QVERIFY(today != buttons.end());
  QVERIFY(!(*today)->isEnabled());
}

void DatePickerTest::valueFollowsEveryEdit_data() {
  QTest::addColumn<std::function<void(QLineEdit*)>>("edit");
  const auto row = [](const char* name, std::function<void(QLineEdit*)> edit) {
    QTest::newRow(name) << std::move(edit);
  };
  row("line cleared", [](QLineEdit* line) { line->clear(); });
  row("line set", [](QLineEdit* line) { line->setText("25/12/2014"); });
  row("everything deleted", [](QLineEdit* line) {
    line->selectAll();
    line->del();
  });
  row("Ctrl+U", [](QLineEdit* line) { QTest::keyClick(line, Qt::Key_U, Qt::ControlModifier); });
  row("Ctrl+K at the front", [](QLineEdit* line) {
    line->setCursorPosition(0);
    QTest::keyClick(line, Qt::Key_K, Qt::ControlModifier);
  });
  row("Ctrl+D", [](QLineEdit* line) {
    line->setCursorPosition(0);
    QTest::keyClick(line, Qt::Key_D, Qt::ControlModifier);
  });
  row("accent over the selection", [](QLineEdit* line) {
    line->selectAll();
    QInputMethodEvent accent(QStringLiteral("´"), {});
    QApplication::sendEvent(line, &accent);
  });
}

void DatePickerTest::valueFollowsEveryEdit() {
  QFETCH(std::function<void(QLineEdit*)>, edit);
  picker_->setValue(DateTime::of(2014, 3, 5));
  edit(picker_);
  const QString shown = picker_->text();
  QCOMPARE(shown.size(), 10);
  const Value half = DateTime::of(2014, 3, 5);
  const Value expected = shown == "__/__/____"   ? Value()
                         : shown == "25/12/2014" ? Value(DateTime::of(2014, 12, 25))
                                                 : half;
  QCOMPARE(picker_->value(), expected);
}

QUARTELA_TEST_MAIN(DatePickerTest)
#include "DatePicker_test.moc"
