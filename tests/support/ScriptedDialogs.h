// The dialogs of a test: each one that the program may show is expected beforehand with every word
// of it, and the answer stands beside it.
//
//   ScriptedDialogs dialogs;
//   dialogs.expectBox({"Confirma inclusão do novo registro?", "Aviso", BoxIcon::Question,
//                      {Button::Yes, Button::No}, Button::Yes}, Button::No);
//   ...
//   QVERIFY2(dialogs.satisfied(), dialogs.report());      // or leave it to the destructor
//
// In force from its construction to its destruction. A dialog that nobody expected, one with other
// words, icon or buttons, one that does not show every letter of its text in the toolkit's own box
// (in the style of the application that the test runs), and an expectation that never came fail the
// running test, at the latest in the destructor. A dialog that does not fit is answered as if it
// were closed.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

#include "platform/dialogs/Dialogs.h"

class QWidget;

namespace quartela::test {

// Stands, in the text of an expected box, for words that are not the program's own: the engine's,
// say.
inline const QString kAnything = QStringLiteral("\uFFFC");

class ScriptedDialogs : public DialogHost {
 public:
  // Runs while the expected dialog is up; for what an operator sees or does behind it.
  using Meanwhile = std::function<void()>;

  ScriptedDialogs();
  ~ScriptedDialogs() override;
  ScriptedDialogs(const ScriptedDialogs&) = delete;
  ScriptedDialogs& operator=(const ScriptedDialogs&) = delete;

  void expectBox(const Box& box, Button answer = Button::Ok, Meanwhile meanwhile = {});
  void expectOpenFile(const FileRequest& request, const QString& answer);
  void expectSaveFile(const FileRequest& request, const QString& answer);
  void expectPickFolder(const QString& title, const QString& answer);
  // The operator prints into the PDF file `answer`; an empty one cancels.
  void expectPrinter(const QString& answer);
  void expectInput(const InputRequest& request, const QString& answer);

  // Everything came as expected, in that order, and nothing else did.
  bool satisfied() const { return problems_.isEmpty() && expected_.isEmpty(); }
  // What went wrong, with both texts; valid until the next call. Whoever reads it deals with it:
  // the destructor says it no more.
  const char* report() const;

  // Boxes and dialogs that have been answered as expected so far.
  int answered() const { return answered_; }

  // DialogHost
  Button box(const Box& box) override;
  QString openFile(const FileRequest& request) override;
  QString saveFile(const FileRequest& request) override;
  QString pickFolder(const QString& title) override;
  QString input(const InputRequest& request) override;
  bool printer(QPrinter& printer) override;

 private:
  // A dialog as text, kind first, so that what came and what was expected compare and read alike.
  struct Expectation {
    QString dialog;
    Button button = Button::Ok;
    QString text;
    Meanwhile meanwhile;
  };

  // A problem where the dialog as operators see it does not show every letter.
  void requireWhole(QWidget& dialog, const QString& described);

  // The expectation that `dialog` fulfils, taken from the queue; else false, and a problem.
  bool take(const QString& dialog, Expectation& expectation);

  QList<Expectation> expected_;
  QStringList problems_;
  int answered_ = 0;
  DialogHost* before_ = nullptr;
  mutable QByteArray report_;
  mutable bool reported_ = false;
};

// What stands behind the scripts: a dialog that comes while no script is in force fails the running
// test at once instead of waiting for an operator. Put in force by prepareApplication.
DialogHost& refusedDialogs();

}  // namespace quartela::test
