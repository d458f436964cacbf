#include "platform/dialogs/Dialogs.h"

#include <utility>

#include "platform/dialogs/ToolkitDialogs.h"

namespace quartela::Dialogs {
namespace {

DialogHost* otherHost = nullptr;

DialogHost& host() {
  static ToolkitDialogs toolkit;
  return otherHost ? *otherHost : toolkit;
}

void tell(const QString& text, const QString& title, BoxIcon icon) {
  host().box(Box{text, title, icon, {Button::Ok}, Button::Ok});
}

}  // namespace

Button box(const Box& box) {
  return host().box(box);
}

QString openFile(const FileRequest& request) {
  return host().openFile(request);
}

QString saveFile(const FileRequest& request) {
  return host().saveFile(request);
}

QString pickFolder(const QString& title) {
  return host().pickFolder(title);
}

QString input(const InputRequest& request) {
  return host().input(request);
}

bool printer(QPrinter& printer) {
  return host().printer(printer);
}

void information(const QString& text, const QString& title) {
  tell(text, title, BoxIcon::Information);
}

void exclamation(const QString& text, const QString& title) {
  tell(text, title, BoxIcon::Exclamation);
}

void stop(const QString& text, const QString& title) {
  tell(text, title, BoxIcon::Stop);
}

bool confirm(const QString& text, const QString& title) {
  const Box question{text, title, BoxIcon::Question, {Button::Yes, Button::No}, Button::Yes};
  return host().box(question) == Button::Yes;
}

DialogHost* setHost(DialogHost* newHost) {
  return std::exchange(otherHost, newHost);
}

}  // namespace quartela::Dialogs
