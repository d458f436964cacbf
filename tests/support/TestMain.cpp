#include "tests/support/TestMain.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "platform/dialogs/Dialogs.h"
#include "platform/values/Clock.h"
#include "tests/support/ScriptedDialogs.h"

namespace quartela::test {

void prepareApplication(QApplication& application) {
  QLocale::setDefault(QLocale(QStringLiteral("pt_BR")));
  auto* translator = new QTranslator(&application);
  if (translator->load(QStringLiteral("qtbase_pt_BR"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(translator);
  }
  Dialogs::setHost(&refusedDialogs());
  Clock::stopAt(DateTime::of(2014, 11, 21, 10, 30));
}

}  // namespace quartela::test
