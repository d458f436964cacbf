#include "tests/support/ScriptedDialogs.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPrinter>
#include <QTest>
#include <utility>

#include "platform/dialogs/InputBox.h"
#include "platform/dialogs/ToolkitDialogs.h"
#include "tests/support/WindowChecks.h"

namespace quartela::test {
namespace {

QString word(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Stop:
      return QStringLiteral("Stop");
    case BoxIcon::Question:
      return QStringLiteral("Question");
    case BoxIcon::Exclamation:
      return QStringLiteral("Exclamation");
    case BoxIcon::Information:
      return QStringLiteral("Information");
    case BoxIcon::None:
      break;
  }
  return QStringLiteral("None");
}

QString word(Button button) {
  switch (button) {
    case Button::Cancel:
      return QStringLiteral("Cancel");
    case Button::Yes:
      return QStringLiteral("Yes");
    case Button::No:
      return QStringLiteral("No");
    case Button::Ok:
      break;
  }
  return QStringLiteral("Ok");
}

QString describe(const Box& box) {
  QStringList buttons;
  for (const Button button : box.buttons) {
    buttons << word(button);
  }
  return QStringLiteral("box \"%1\" [%2] buttons %3, default %4: \"%5\"")
      .arg(shownTitle(box.title), word(box.icon), buttons.join(QLatin1Char(' ')),
           word(shownDefault(box)), box.text);
}

QString describe(const QString& kind, const FileRequest& request) {
  return QStringLiteral("%1 \"%2\", filter \"%3\", folder \"%4\", name \"%5\"")
      .arg(kind, request.title, request.filter, request.folder, request.fileName);
}

QString describeFolder(const QString& title) {
  return QStringLiteral("folder dialog \"%1\"").arg(shownTitle(title));
}

QString describe(const InputRequest& request) {
  return QStringLiteral("input box \"%1\", value \"%2\": \"%3\"")
      .arg(shownTitle(request.title), request.initialValue, request.text);
}

const QString kOpen = QStringLiteral("open dialog");
const QString kSave = QStringLiteral("save dialog");
const QString kPrinter = QStringLiteral("print dialog");

// Whether `dialog` is what was expected; kAnything in the expectation stands for any text.
bool fits(const QString& expected, const QString& dialog) {
  const QStringList pieces = expected.split(kAnything);
  qsizetype position = 0;
  for (const QString& piece : pieces) {
    position = dialog.indexOf(piece, position);
    if (position < 0) {
      return false;
    }
    position += piece.size();
  }
  return dialog.startsWith(pieces.first()) && dialog.endsWith(pieces.last());
}

// The smallest screen that offices have.
constexpr QSize kScreen(1024, 768);

// A field shows the whole of what it proposes.
QString cutFields(const QWidget& dialog) {
  constexpr int kEdges = 12;
  QString found;
  for (const auto* field : dialog.findChildren<const QLineEdit*>()) {
    if (field->fontMetrics().horizontalAdvance(field->text()) + kEdges > field->width()) {
      found += QStringLiteral("field; ");
    }
  }
  return found;
}

// What an operator would not see of the toolkit's own dialog; empty for nothing.
QString cutTexts(QWidget& dialog) {
  dialog.setAttribute(Qt::WA_DontShowOnScreen);
  dialog.show();
  QString found = clippedTexts(dialog) + cutFields(dialog);
  if (dialog.width() > kScreen.width() || dialog.height() > kScreen.height()) {
    found += QStringLiteral("larger than the screen; ");
  }
  return found;
}

class RefusedDialogs : public DialogHost {
 public:
  Button box(const Box& box) override {
    refuse(describe(box));
    return closingAnswer(box);
  }
  QString openFile(const FileRequest& request) override { return refuse(describe(kOpen, request)); }
  QString saveFile(const FileRequest& request) override { return refuse(describe(kSave, request)); }
  QString pickFolder(const QString& title) override { return refuse(describeFolder(title)); }
  QString input(const InputRequest& request) override { return refuse(describe(request)); }
  bool printer(QPrinter& /*printer*/) override {
    refuse(kPrinter);
    return false;
  }

 private:
  static QString refuse(const QString& dialog) {
    QTest::qFail(qUtf8Printable(QStringLiteral("not expected: ") + dialog), __FILE__, __LINE__);
    return {};
  }
};

}  // namespace

DialogHost& refusedDialogs() {
  static RefusedDialogs host;
  return host;
}

ScriptedDialogs::ScriptedDialogs() : before_(Dialogs::setHost(this)) {}

ScriptedDialogs::~ScriptedDialogs() {
  Dialogs::setHost(before_);
  if (!satisfied() && !reported_) {
    QTest::qFail(report(), __FILE__, __LINE__);
  }
}

void ScriptedDialogs::expectBox(const Box& box, Button answer, Meanwhile meanwhile) {
  expected_.append({describe(box), answer, {}, std::move(meanwhile)});
}

void ScriptedDialogs::expectOpenFile(const FileRequest& request, const QString& answer) {
  expected_.append({describe(kOpen, request), Button::Ok, answer, {}});
}

void ScriptedDialogs::expectSaveFile(const FileRequest& request, const QString& answer) {
  expected_.append({describe(kSave, request), Button::Ok, answer, {}});
}

void ScriptedDialogs::expectPickFolder(const QString& title, const QString& answer) {
  expected_.append({describeFolder(title), Button::Ok, answer, {}});
}

void ScriptedDialogs::expectInput(const InputRequest& request, const QString& answer) {
  expected_.append({describe(request), Button::Ok, answer, {}});
}

void ScriptedDialogs::expectPrinter(const QString& answer) {
  expected_.append({kPrinter, Button::Ok, answer, {}});
}

const char* ScriptedDialogs::report() const {
  QStringList lines = problems_;
  for (const Expectation& expectation : expected_) {
    lines << QStringLiteral("never came: ") + expectation.dialog;
  }
  reported_ = !satisfied();
  report_ = lines.join(QLatin1Char('\n')).toUtf8();
  return report_.constData();
}

bool ScriptedDialogs::take(const QString& dialog, Expectation& expectation) {
  reported_ = false;
  if (expected_.isEmpty()) {
    problems_ << QStringLiteral("not expected: ") + dialog;
    return false;
  }
  if (!fits(expected_.first().dialog, dialog)) {
    problems_ << QStringLiteral("came: %1\n  expected: %2").arg(dialog, expected_.first().dialog);
    return false;
  }
  expectation = expected_.takeFirst();
  ++answered_;
  if (expectation.meanwhile) {
    expectation.meanwhile();
  }
  return true;
}

void ScriptedDialogs::requireWhole(QWidget& dialog, const QString& described) {
  if (const QString cut = cutTexts(dialog); !cut.isEmpty()) {
    reported_ = false;
    problems_ << QStringLiteral("not all of it is shown (%1): ").arg(cut.trimmed()) + described;
  }
}

Button ScriptedDialogs::box(const Box& box) {
  requireWhole(*messageBox(box, nullptr), describe(box));
  Expectation expectation;
  const bool fits = take(describe(box), expectation);
  if (fits && !box.buttons.contains(expectation.button)) {
    problems_ << QStringLiteral("answer %1 is no button of ").arg(word(expectation.button)) +
                     expectation.dialog;
    return closingAnswer(box);
  }
  return fits ? expectation.button : closingAnswer(box);
}

QString ScriptedDialogs::openFile(const FileRequest& request) {
  Expectation expectation;
  return take(describe(kOpen, request), expectation) ? expectation.text : QString();
}

QString ScriptedDialogs::saveFile(const FileRequest& request) {
  Expectation expectation;
  return take(describe(kSave, request), expectation) ? expectation.text : QString();
}

QString ScriptedDialogs::pickFolder(const QString& title) {
  Expectation expectation;
  return take(describeFolder(title), expectation) ? expectation.text : QString();
}

QString ScriptedDialogs::input(const InputRequest& request) {
  InputBox dialog(request, nullptr);
  requireWhole(dialog, describe(request));
  Expectation expectation;
  return take(describe(request), expectation) ? expectation.text : QString();
}

bool ScriptedDialogs::printer(QPrinter& printer) {
  Expectation expectation;
  if (!take(kPrinter, expectation) || expectation.text.isEmpty()) {
    return false;
  }
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(expectation.text);
  return true;
}

}  // namespace quartela::test
