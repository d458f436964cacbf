#include "foundation/UmaJanela.h"

#include <QDialog>

#include "platform/controls/OpenForms.h"
#include "platform/values/RuntimeError.h"
#include "tests/support/TestMain.h"

using quartela::ErrorNumber;
using quartela::RuntimeError;
using quartela::UmaJanela;
namespace OpenForms = quartela::OpenForms;

namespace {

int loaded = 0;
bool broken = false;

class Window : public QWidget {
 public:
  Window() {
    ++loaded;
    if (broken) {
      throw RuntimeError(ErrorNumber::TypeMismatch);
    }
  }
};

class Dialog : public QDialog {};

}  // namespace

class UmaJanela_test : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    loaded = 0;
    broken = false;
  }
  void cleanup() {
    if (Window* const window = UmaJanela<Window>::aberta()) {
      window->close();
    }
    QTRY_VERIFY(OpenForms::all().isEmpty());
  }

  void isMadeWhenFirstAskedFor() {
    QVERIFY(!UmaJanela<Window>::aberta());
    Window& window = UmaJanela<Window>::instancia();
    QCOMPARE(loaded, 1);
    QVERIFY(!window.isVisible());
    QCOMPARE(&UmaJanela<Window>::instancia(), &window);
    QCOMPARE(UmaJanela<Window>::aberta(), &window);
    QCOMPARE(loaded, 1);
  }

  void isShownWithoutModalityAndEnteredAmongTheOpenForms() {
    UmaJanela<Window>::mostra();
    Window* const window = UmaJanela<Window>::aberta();
    QVERIFY(window && window->isVisible());
    QVERIFY(!window->isModal());
    QCOMPARE(OpenForms::all(), QList<QWidget*>{window});
    UmaJanela<Window>::mostra();
    QCOMPARE(loaded, 1);
  }

  void isGivenUpAtOnceWhenItIsClosed() {
    UmaJanela<Window>::mostra();
    QPointer<Window> first = UmaJanela<Window>::aberta();
    first->close();
    QVERIFY(!UmaJanela<Window>::aberta());
    UmaJanela<Window>::mostra();
    QCOMPARE(loaded, 2);
    QVERIFY(UmaJanela<Window>::aberta() != first.data());
    QTRY_VERIFY(first.isNull());
    QVERIFY(UmaJanela<Window>::aberta());
  }

  void aHiddenWindowIsNotClosed() {
    UmaJanela<Window>::mostra();
    Window* const window = UmaJanela<Window>::aberta();
    window->hide();
    QCOMPARE(UmaJanela<Window>::aberta(), window);
  }

  void aDialogEndedByAButtonIsGivenUp() {
    UmaJanela<Dialog>::mostra();
    UmaJanela<Dialog>::aberta()->reject();
    QVERIFY(!UmaJanela<Dialog>::aberta());
  }

  void aLoadingThatFailsLeavesNoInstance() {
    broken = true;
    QVERIFY_EXCEPTION_THROWN(UmaJanela<Window>::mostra(), RuntimeError);
    QVERIFY(!UmaJanela<Window>::aberta());
    QVERIFY(OpenForms::all().isEmpty());
    broken = false;
    UmaJanela<Window>::mostra();
    QVERIFY(UmaJanela<Window>::aberta());
  }
};

QUARTELA_TEST_MAIN(UmaJanela_test)
#include "UmaJanela_test.moc"
