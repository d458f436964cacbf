#include "tests/support/ScriptedDialogs.h"

#include <QScopeGuard>

#include "tests/support/TestMain.h"

using quartela::Box;
using quartela::BoxIcon;
using quartela::Button;
using quartela::FileRequest;
using quartela::InputRequest;
using quartela::test::ScriptedDialogs;
namespace Dialogs = quartela::Dialogs;

namespace {

const Box kQuestion{
    "Confirma?", "Aviso", BoxIcon::Question, {Button::Yes, Button::No}, Button::Yes};

}  // namespace

class ScriptedDialogs_test : public QObject {
  Q_OBJECT

 private slots:
  void answersInTheOrderExpected() {
    ScriptedDialogs dialogs;
    dialogs.expectBox(kQuestion, Button::No);
    dialogs.expectBox({"Registro Salvo!", "Aviso", BoxIcon::Information});
    dialogs.expectOpenFile({"", "A|*.a|", "", ""}, "/x.a");
    dialogs.expectSaveFile({"Salvar", "A|*.a|", "/f", "n"}, "/y.a");
    dialogs.expectPickFolder("Pasta", "/pasta");
    dialogs.expectInput({"Quantos?", "Cópias", "1"}, "3");
    QVERIFY(!Dialogs::confirm("Confirma?", "Aviso"));
    Dialogs::information("Registro Salvo!", "Aviso");
    QCOMPARE(Dialogs::openFile({"", "A|*.a|", "", ""}), "/x.a");
    QCOMPARE(Dialogs::saveFile({"Salvar", "A|*.a|", "/f", "n"}), "/y.a");
    QCOMPARE(Dialogs::pickFolder("Pasta"), "/pasta");
    QCOMPARE(Dialogs::input({"Quantos?", "Cópias", "1"}), "3");
    QCOMPARE(dialogs.answered(), 6);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(dialogs.report(), "");
  }

  void theApplicationsTitleAndTheFirstButtonStandForNone() {
    ScriptedDialogs dialogs;
    Box told{"Texto", "Quartela", BoxIcon::None, {Button::Yes, Button::No}, Button::Yes};
    dialogs.expectBox(told, Button::Yes);
    QCOMPARE(Dialogs::box({"Texto", "", BoxIcon::None, {Button::Yes, Button::No}, Button::Ok}),
             Button::Yes);
  }

  void runsWhatHappensMeanwhile() {
    bool seen = false;
    ScriptedDialogs dialogs;
    dialogs.expectBox(kQuestion, Button::Yes, [&seen] { seen = true; });
    QVERIFY(Dialogs::confirm("Confirma?", "Aviso"));
    QVERIFY(seen);
  }

  void anUnexpectedBoxIsAProblemAndIsClosed() {
    ScriptedDialogs dialogs;
    QCOMPARE(Dialogs::box(kQuestion), Button::No);
    QVERIFY(!dialogs.satisfied());
    QCOMPARE(dialogs.report(),
             "not expected: box \"Aviso\" [Question] buttons Yes No, default Yes: \"Confirma?\"");
  }

  void aBoxThatShowsNotEveryLetterIsAProblem() {
    qApp->setStyleSheet("QMessageBox QLabel#qt_msgbox_label { min-width: 240px; }");
    const auto restore = qScopeGuard([] { qApp->setStyleSheet({}); });
    const Box told{"Deseja mostrar o número do processo e a data de abertura?", "Aviso"};
    ScriptedDialogs dialogs;
    dialogs.expectBox(told);
    QCOMPARE(Dialogs::box(told), Button::Ok);
    QVERIFY(!dialogs.satisfied());
    QVERIFY(
        QByteArray(dialogs.report()).startsWith("not all of it is shown (qt_msgbox_label;): box"));
  }

  void aWrappedTextThatIsCutIsAProblem() {
    qApp->setStyleSheet("QMessageBox QLabel#qt_msgbox_label { max-height: 20px; }");
    const auto restore = qScopeGuard([] { qApp->setStyleSheet({}); });
    const Box told{QString("Uma frase que não cabe numa linha. ").repeated(12), "Aviso"};
    ScriptedDialogs dialogs;
    dialogs.expectBox(told);
    Dialogs::box(told);
    QVERIFY(
        QByteArray(dialogs.report()).startsWith("not all of it is shown (qt_msgbox_label;): box"));
  }

  void anInputBoxThatShowsNotEveryLetterIsAProblem() {
    const InputRequest words{QString("Palavra").repeated(30), "Aviso", "1"};
    const InputRequest value{"Valor?", "Aviso", QString("9").repeated(100)};
    for (const InputRequest& request : {words, value}) {
      ScriptedDialogs dialogs;
      dialogs.expectInput(request, "2");
      QCOMPARE(Dialogs::input(request), "2");
      QVERIFY(QByteArray(dialogs.report()).startsWith("not all of it is shown"));
    }
  }

  void aLongTextIsShownWhole() {
    const Box told{QString("Uma frase que não cabe numa linha. ").repeated(12), "Aviso"};
    ScriptedDialogs dialogs;
    dialogs.expectBox(told);
    Dialogs::box(told);
    dialogs.expectInput({told.text, "Aviso", "21/11/2014"}, "2");
    Dialogs::input({told.text, "Aviso", "21/11/2014"});
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void everyWordOfABoxCounts_data() {
    QTest::addColumn<int>("change");
    QTest::newRow("text") << 0;
    QTest::newRow("title") << 1;
    QTest::newRow("icon") << 2;
    QTest::newRow("buttons") << 3;
    QTest::newRow("default button") << 4;
  }
  void everyWordOfABoxCounts() {
    QFETCH(const int, change);
    Box other = kQuestion;
    switch (change) {
      case 0:
        other.text = "confirma?";
        break;
      case 1:
        other.title.clear();
        break;
      case 2:
        other.icon = BoxIcon::Stop;
        break;
      case 3:
        other.buttons.append(Button::Cancel);
        break;
      default:
        other.defaultButton = Button::No;
    }
    ScriptedDialogs dialogs;
    dialogs.expectBox(kQuestion, Button::Yes);
    QVERIFY(Dialogs::box(other) != Button::Yes);
    QVERIFY(!dialogs.satisfied());
    QVERIFY(QByteArray(dialogs.report()).startsWith("came: box "));
  }

  void anotherKindIsAProblem() {
    ScriptedDialogs dialogs;
    dialogs.expectSaveFile({"", "A|*.a|", "", ""}, "/x");
    QCOMPARE(Dialogs::openFile({"", "A|*.a|", "", ""}), QString());
    QVERIFY(QByteArray(dialogs.report()).startsWith("came: open dialog"));
  }

  void anAnswerThatIsNoButtonIsAProblem() {
    ScriptedDialogs dialogs;
    dialogs.expectBox(kQuestion, Button::Ok);
    QCOMPARE(Dialogs::box(kQuestion), Button::No);
    QVERIFY(!dialogs.satisfied());
    QVERIFY(QByteArray(dialogs.report()).startsWith("answer Ok is no button"));
  }

  void whatNeverCameIsReported() {
    ScriptedDialogs dialogs;
    dialogs.expectPickFolder("Pasta", "/x");
    QVERIFY(!dialogs.satisfied());
    QCOMPARE(dialogs.report(), "never came: folder dialog \"Pasta\"");
  }

  void theDestructorFailsTheTestForWhatNeverCame() {
    QEXPECT_FAIL("", "the script was not played", Continue);
    ScriptedDialogs dialogs;
    dialogs.expectBox(kQuestion, Button::Yes);
  }

  void theDestructorFailsTheTestForWhatWasNotExpected() {
    QEXPECT_FAIL("", "nobody expected it", Continue);
    ScriptedDialogs dialogs;
    Dialogs::stop("Erro");
  }

  void aBoxOutsideOfEveryScriptFailsTheTest() {
    { ScriptedDialogs dialogs; }
    QEXPECT_FAIL("", "nobody answers it", Continue);
    QVERIFY(!Dialogs::confirm("Confirma?", "Aviso"));
  }
};

QUARTELA_TEST_MAIN(ScriptedDialogs_test)
#include "ScriptedDialogs_test.moc"
