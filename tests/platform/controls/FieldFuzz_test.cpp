// The masked, date and money fields under keys, pastes, input methods, drops, the mouse and the
// toolkit's own ways of editing, in an order that no operator would think of. The environment's
// QUARTELA_FUZZ_STEPS and QUARTELA_FUZZ_SEED say how many and which.
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QPushButton>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QVBoxLayout>
#include <array>
#include <functional>

#include "platform/controls/DatePicker.h"
#include "platform/controls/MoneyEdit.h"
#include "platform/values/Convert.h"
#include "platform/values/RuntimeError.h"
#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

constexpr int kUsualSteps = 10000;

int fromEnvironment(const char* name, int otherwise) {
  return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

const QStringList& pieces() {
  static const QStringList texts{"0",
                                 "1",
                                 "9",
                                 "12",
                                 "25-12-2014",
                                 "31/02/2014",
                                 "01012015",
                                 "1.500,00",
                                 "1500.5",
                                 "R$ 1.234,56",
                                 "123456789012345678",
                                 ",",
                                 ".",
                                 "-",
                                 "+",
                                 "/",
                                 "_",
                                 " ",
                                 "",
                                 "a",
                                 "Z",
                                 "(5,00)",
                                 QStringLiteral("á"),
                                 QStringLiteral("´"),
                                 QStringLiteral("\U0001F600"),
                                 QStringLiteral("\u200B"),
                                 QStringLiteral("\u0663"),
                                 QStringLiteral("e\u0301"),
                                 "1\n2\t3",
                                 QString(300, QLatin1Char('7')),
                                 QString(QChar(0xD83D))};
  return texts;
}

}  // namespace

class FieldFuzzTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase();
  void fieldsKeepTheirRules();

 private:
  // A field and what must hold of it whenever anyone hears of it; empty when it does.
  struct Field {
    QLineEdit* line;
    std::function<QString()> broken;
  };

  int below(int end) { return static_cast<int>(random_.bounded(end)); }
  QString piece() { return pieces().at(below(static_cast<int>(pieces().size()))); }
  void addMasked(const QString& mask, const QString& shape);
  void addDate(bool optional);
  void addMoney(bool negative);
  void add(QLineEdit* line, std::function<QString()> broken);
  void check(const Field& field);
  void step(QLineEdit& line);
  void pressKey(QLineEdit& line);
  void compose(QLineEdit& line);
  void paste(QLineEdit& line);
  void drop(QLineEdit& line);
  void useMouse(QLineEdit& line);
  void callTheToolkit(QLineEdit& line);

  std::unique_ptr<QWidget> window_;
  QList<Field> fields_;
  QStringList problems_;
  QRandomGenerator random_;
  QString lastStep_;
};

void FieldFuzzTest::add(QLineEdit* line, std::function<QString()> broken) {
  window_->layout()->addWidget(line);
  fields_.append({line, std::move(broken)});
  const Field field = fields_.constLast();
  const auto hear = [this, field] { check(field); };
  connect(line, &QLineEdit::textEdited, this, hear);
  connect(line, &QLineEdit::textChanged, this, hear);
  connect(line, &QLineEdit::selectionChanged, this, hear);
  connect(line, &QLineEdit::cursorPositionChanged, this, hear);
}

void FieldFuzzTest::addMasked(const QString& mask, const QString& shape) {
  auto* const box = new MaskedBox;
  box->setMask(mask);
  const QRegularExpression whole("^(?:" + shape + ")$");
  add(box, [box, whole] {
    (void)box->clipText();
    (void)box->isComplete();
    return whole.match(box->text()).hasMatch() ? QString() : "mask broken: " + box->text();
  });
}

void FieldFuzzTest::addDate(bool optional) {
  auto* const picker = new DatePicker;
  picker->setOptional(optional);
  picker->setMinimum(DateTime::of(1997, 1, 1));
  picker->setMaximum(DateTime::of(2100, 12, 31));
  const QRegularExpression whole("^[0-9_]{2}/[0-9_]{2}/[0-9_]{4}$");
  add(picker, [picker, optional, whole] {
    const QString shown = picker->text();
    if (!whole.match(shown).hasMatch()) {
      return "mask broken: " + shown;
    }
    const bool blank = shown == QLatin1String("__/__/____");
    if (blank && optional && !picker->isEmpty()) {
      return QStringLiteral("shows nothing and has a value");
    }
    if (!optional && picker->isEmpty()) {
      return QStringLiteral("must not be empty");
    }
    const bool isDate = Convert::isDate(shown);
    const bool within = isDate && shown.right(4) >= "1997" && shown.right(4) <= "2100";
    const bool same = !within || picker->value() == Convert::toDateTime(Value(shown));
    return same ? QString() : "another value than shown: " + shown;
  });
}

void FieldFuzzTest::addMoney(bool negative) {
  auto* const edit = new MoneyEdit;
  edit->setNegativeAllowed(negative);
  add(edit, [edit, negative] {
    try {
      const Money value = edit->value();
      const bool below = value.isNegative() && !negative;
      const bool large = value > Money::fromReais(99'999'999'999'999) + Money::fromCents(99);
      return below || large ? "no such amount can be typed: " + edit->text() : QString();
    } catch (const RuntimeError& error) {
      return error.number() == 13 || error.number() == 6 ? QString() : error.description();
    }
  });
}

void FieldFuzzTest::initTestCase() {
  window_ = std::make_unique<QWidget>();
  new QVBoxLayout(window_.get());
  addMasked("###.###.###-##", "[0-9_]{3}\\.[0-9_]{3}\\.[0-9_]{3}-[0-9_]{2}");
  addMasked("#####/##", "[0-9_]{5}/[0-9_]{2}");
  addMasked("(?\?) &&&-#", "\\([\\p{L}_]{2}\\) .{3}-[0-9_]");
  addDate(true);
  addDate(false);
  addMoney(false);
  addMoney(true);
  window_->show();
  window_->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(window_.get()));
}

void FieldFuzzTest::check(const Field& field) {
  const QString broken = field.broken();
  if (!broken.isEmpty() && problems_.size() < 10) {
    problems_ << lastStep_ + ": " + broken;
  }
}

void FieldFuzzTest::pressKey(QLineEdit& line) {
  constexpr std::array kKeys{
      Qt::Key_0,     Qt::Key_3,         Qt::Key_9,      Qt::Key_Comma,  Qt::Key_Period,
      Qt::Key_Minus, Qt::Key_Plus,      Qt::Key_Slash,  Qt::Key_A,      Qt::Key_D,
      Qt::Key_H,     Qt::Key_K,         Qt::Key_U,      Qt::Key_W,      Qt::Key_X,
      Qt::Key_Y,     Qt::Key_Z,         Qt::Key_V,      Qt::Key_C,      Qt::Key_Semicolon,
      Qt::Key_Left,  Qt::Key_Right,     Qt::Key_Home,   Qt::Key_End,    Qt::Key_Up,
      Qt::Key_Down,  Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Insert, Qt::Key_Return,
      Qt::Key_F4,    Qt::Key_Escape,    Qt::Key_Undo,   Qt::Key_Cut,    Qt::Key_Paste};
  constexpr std::array kHeld{Qt::NoModifier,      Qt::NoModifier,         Qt::NoModifier,
                             Qt::ControlModifier, Qt::ShiftModifier,      Qt::KeypadModifier,
                             Qt::AltModifier,     Qt::GroupSwitchModifier};
  const Qt::Key key = kKeys.at(static_cast<std::size_t>(below(kKeys.size())));
  Qt::KeyboardModifiers held = kHeld.at(static_cast<std::size_t>(below(kHeld.size())));
  held |= below(4) == 0 ? Qt::ShiftModifier : Qt::NoModifier;
  lastStep_ += QStringLiteral(" key %1 held %2").arg(int{key}, 0, 16).arg(held.toInt(), 0, 16);
  const bool printable = key > Qt::Key_Space && key < Qt::Key_AsciiTilde;
  const bool control = held.testFlag(Qt::ControlModifier);
  const int code = control ? int{key} & 0x1F : int{key};
  const QString usual = printable ? QString(QChar(code)) : QString();
  const QString text = below(6) == 0 ? piece() : usual;
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, held, text);
    QApplication::sendEvent(&line, &event);
  }
}

void FieldFuzzTest::compose(QLineEdit& line) {
  QInputMethodEvent event(below(2) == 0 ? piece() : QString(), {});
  if (below(2) == 0) {
    event.setCommitString(piece(), below(9) - 4, below(5));
  }
  lastStep_ += " composes '" + event.preeditString() + "' '" + event.commitString() + "'";
  QApplication::sendEvent(&line, &event);
}

void FieldFuzzTest::paste(QLineEdit& line) {
  const QString text = piece() + (below(3) == 0 ? piece() : QString());
  lastStep_ += " pastes " + text;
  QApplication::clipboard()->setText(text);
  if (below(2) == 0) {
    QTest::keyClick(&line, Qt::Key_V, Qt::ControlModifier);
  } else {
    line.paste();
  }
}

void FieldFuzzTest::drop(QLineEdit& line) {
  QMimeData data;
  data.setText(piece());
  lastStep_ += " is dropped on: " + data.text();
  const QPoint place(below(line.width()), line.height() / 2);
  QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&line, &enter);
  QDropEvent dropped(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&line, &dropped);
}

void FieldFuzzTest::useMouse(QLineEdit& line) {
  const QPoint place(below(line.width() * 2 / 3), line.height() / 2);
  lastStep_ += " mouse";
  switch (below(3)) {
    case 0:
      QTest::mouseClick(&line, Qt::MiddleButton, {}, place);
      break;
    case 1:
      QTest::mouseDClick(&line, Qt::LeftButton, {}, place);
      break;
    default:
      QTest::mouseClick(&line, Qt::LeftButton, {}, place);
  }
}

void FieldFuzzTest::callTheToolkit(QLineEdit& line) {
  const QString text = piece();
  const int which = below(8);
  lastStep_ += QStringLiteral(" call %1 %2").arg(which).arg(text);
  const QList<std::function<void()>> calls{
      [&] { line.undo(); },       [&] { line.redo(); },
      [&] { line.del(); },        [&] { line.backspace(); },
      [&] { line.insert(text); }, [&] { line.cut(); },
      [&] { line.selectAll(); },  [&] { line.setCursorPosition(below(12)); }};
  calls.at(which)();
}

void FieldFuzzTest::step(QLineEdit& line) {
  const int way = below(20);
  if (way < 10) {
    pressKey(line);
  } else if (way < 13) {
    compose(line);
  } else if (way < 15) {
    paste(line);
  } else if (way < 16) {
    drop(line);
  } else if (way < 17) {
    useMouse(line);
  } else {
    callTheToolkit(line);
  }
  while (QWidget* const popup = QApplication::activePopupWidget()) {
    delete popup;
  }
}

void FieldFuzzTest::fieldsKeepTheirRules() {
  const int steps = fromEnvironment("QUARTELA_FUZZ_STEPS", kUsualSteps);
  const int seed = fromEnvironment("QUARTELA_FUZZ_SEED", 1);
  random_.seed(static_cast<quint32>(seed));
  for (int done = 0; done < steps && problems_.isEmpty(); ++done) {
    const auto which = below(static_cast<int>(fields_.size()));
    const Field field = fields_.at(which);
    if (done % 7 == 0) {
      field.line->setFocus(Qt::TabFocusReason);
    }
    lastStep_ = QStringLiteral("seed %1, step %2, field %3:").arg(seed).arg(done).arg(which);
    step(*field.line);
    check(field);
  }
  QVERIFY2(problems_.isEmpty(), qPrintable(problems_.join(QLatin1Char('\n'))));
}

QUARTELA_TEST_MAIN(FieldFuzzTest)
#include "FieldFuzz_test.moc"
