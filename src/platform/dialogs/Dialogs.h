// The one way to every box and every dialog of the program. Nothing else calls the toolkit's, so
// that tests can say beforehand which box they expect, with every word of it, and what is answered.
#pragma once

#include <QList>
#include <QString>
#include <memory>

class QPrinter;

namespace quartela {

enum class BoxIcon { None, Stop, Question, Exclamation, Information };
enum class Button { Ok, Cancel, Yes, No };

// What a box is titled that does not say it otherwise.
inline const QString kUsualTitle = QStringLiteral("Aviso");

struct Box {
  QString text{};
  QString title = kUsualTitle;  // empty: the application's, "Quartela"
  BoxIcon icon = BoxIcon::None;
  QList<Button> buttons{Button::Ok};
  Button defaultButton = Button::Ok;  // the first of `buttons` where it is none of them
};

// A file filter as the program writes it: "Words (*.MDB)|*.MDB|". Both letter cases match.
struct FileRequest {
  QString title{};
  QString filter{};
  QString folder{};    // where it starts; empty: where the system says
  QString fileName{};  // the name proposed, for saving
};

struct InputRequest {
  QString text{};
  QString title{};
  QString initialValue{};
};

class DialogHost {
 public:
  virtual ~DialogHost() = default;
  // Closing a box by its frame answers Cancel where it has it, else No, else Ok.
  virtual Button box(const Box& box) = 0;
  // The picked path; empty when cancelled.
  virtual QString openFile(const FileRequest& request) = 0;
  virtual QString saveFile(const FileRequest& request) = 0;
  virtual QString pickFolder(const QString& title) = 0;
  // The typed text; empty when cancelled.
  virtual QString input(const InputRequest& request) = 0;
  // Lets the operator choose and set up the printer; false when cancelled.
  virtual bool printer(QPrinter& printer) = 0;
};

namespace Dialogs {

Button box(const Box& box);
QString openFile(const FileRequest& request);
QString saveFile(const FileRequest& request);
QString pickFolder(const QString& title);
QString input(const InputRequest& request);
bool printer(QPrinter& printer);

// Short ways to the boxes that the program shows everywhere.
void information(const QString& text, const QString& title = kUsualTitle);
void exclamation(const QString& text, const QString& title = kUsualTitle);
void stop(const QString& text, const QString& title = kUsualTitle);
bool confirm(const QString& text, const QString& title = kUsualTitle);

// Puts `host` in the place of the toolkit's dialogs, or, with null, the toolkit's back. Not owned.
// Gives the host that it takes the place of, null for the toolkit's.
DialogHost* setHost(DialogHost* host);

}  // namespace Dialogs
}  // namespace quartela
