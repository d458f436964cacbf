#include "foundation/Aplicacao.h"

#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QIcon>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <functional>
#include <stdexcept>
#include <utility>

#include "foundation/Evento.h"
#include "foundation/Ini.h"
#include "foundation/UmaJanela.h"
#include "foundation/frmParametros.h"
#include "tests/support/FreshFolder.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"

using namespace quartela;  // NOLINT(google-build-using-namespace)
using test::FreshFolder;
using test::ScriptedDialogs;

namespace {

Box told(const QString& number, const QString& words) {
  return {"Erro em tempo de execução " + number + ":\n\n" + words, "Quartela", BoxIcon::Stop};
}

Box told(ErrorNumber number) {
  return told(QString::number(static_cast<int>(number)), errorDescription(number));
}

[[noreturn]] void fail(ErrorNumber number) {
  throw RuntimeError(number);
}

void wheel(QWidget* widget) {
  const QPointF middle = widget->rect().center();
  QWheelEvent event(middle, widget->mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(widget, &event);
}

}  // namespace

// Raises out of an event of its own, past the traps of the handlers.
class Raiser : public QObject {
 public:
  explicit Raiser(std::function<void()> raise) : raise_(std::move(raise)) {
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
  }

 protected:
  void customEvent(QEvent*) override { raise_(); }

 private:
  std::function<void()> raise_;
};

class Aplicacao_test : public QObject {
  Q_OBJECT

 private slots:
  void bearsTheProgramsNameAndVersion() {
    QCOMPARE(QCoreApplication::applicationName(), "Quartela");
    QCOMPARE(QCoreApplication::applicationVersion(), "4.0.2");
    QCOMPARE(versao(), QVersionNumber(4, 0, 2));
    QVERIFY(!QApplication::windowIcon().pixmap(32, 32).isNull());
  }

  void speaksPortuguese() {
    QCOMPARE(QLocale().name(), "pt_BR");
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "&Yes"), "&Sim");
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancelar");
  }

  void looksTheSameOnEveryDesktop() {
    QCOMPARE(QApplication::font().families().first(), "Verdana");
    QCOMPARE(QApplication::font().pointSize(), 9);
    const QPalette colours = QApplication::palette();
    const auto contrast = [&colours](QPalette::ColorRole ink, QPalette::ColorRole ground) {
      return std::abs(qGray(colours.color(ink).rgb()) - qGray(colours.color(ground).rgb()));
    };
    QVERIFY(contrast(QPalette::WindowText, QPalette::Window) > 150);
    QVERIFY(contrast(QPalette::Text, QPalette::Base) > 150);
    QVERIFY(contrast(QPalette::HighlightedText, QPalette::Highlight) > 125);
  }

  void anErrorOfAHandlerIsToldAtOnce_data() {
    QTest::addColumn<int>("way");
    QTest::newRow("program") << 0;
    QTest::newRow("mouse") << 1;
    QTest::newRow("key") << 2;
  }
  void anErrorOfAHandlerIsToldAtOnce() {
    QFETCH(const int, way);
    QPushButton button("x");
    button.show();
    liga(&button, &QPushButton::clicked, this, [] { fail(ErrorNumber::RowLocked); });
    bool second = false;
    liga(&button, &QPushButton::clicked, this, [&second](bool) { second = true; });
    ScriptedDialogs dialogs;
    dialogs.expectBox(told(ErrorNumber::RowLocked));
    switch (way) {
      case 0:
        button.click();
        break;
      case 1:
        QTest::mouseClick(&button, Qt::LeftButton);
        break;
      default:
        QTest::keyClick(&button, Qt::Key_Space);
    }
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(second);
  }

  // A routine of the receiver's, one with an argument, one of what it is derived from, one that
  // gives something back.
  void aRoutineIsConnectedAsAHandlerIs() {
    QLineEdit line;
    QLineEdit copy;
    liga(&line, &QLineEdit::textChanged, &copy, &QLineEdit::setText);
    liga(&line, &QLineEdit::returnPressed, &copy, &QLineEdit::hide);
    liga(&line, &QLineEdit::editingFinished, &line, &QLineEdit::close);
    copy.show();
    line.show();
    line.setText("x");
    QCOMPARE(copy.text(), QString("x"));
    QTest::keyClick(&line, Qt::Key_Return);
    QVERIFY(copy.isHidden());
    QVERIFY(line.isHidden());
  }

  void aHandlerGoesWithItsReceiver() {
    QPushButton button("x");
    int clicks = 0;
    {
      QObject receiver;
      liga(&button, &QPushButton::clicked, &receiver, [&clicks] { ++clicks; });
      button.click();
    }
    button.click();
    QCOMPARE(clicks, 1);
  }

  void anErrorOfAnEventIsToldAndTheProgramGoesOn() {
    ScriptedDialogs dialogs;
    dialogs.expectBox(told(ErrorNumber::RowLocked));
    const Raiser raiser([] { fail(ErrorNumber::RowLocked); });
    QTRY_COMPARE(dialogs.answered(), 1);
    bool goesOn = false;
    QTimer::singleShot(0, this, [&goesOn] { goesOn = true; });
    QTRY_VERIFY(goesOn);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void anErrorWithWordsOfItsOwnShowsThem() {
    ScriptedDialogs dialogs;
    dialogs.expectBox(told("3022", "Já existe o empenho 12."));
    const Raiser raiser([] {
      throw RuntimeError::withDescription(ErrorNumber::DuplicateKey, "Já existe o empenho 12.");
    });
    QTRY_COMPARE(dialogs.answered(), 1);
  }

  void anyOtherExceptionIsNumber5WithItsWords() {
    ScriptedDialogs dialogs;
    dialogs.expectBox(told("5", "memória"));
    const Raiser raiser([] { throw std::runtime_error("memória"); });
    QTRY_COMPARE(dialogs.answered(), 1);
    QPushButton button("x");
    liga(&button, &QPushButton::clicked, this, [] { throw std::runtime_error("disco"); });
    dialogs.expectBox(told("5", "disco"));
    button.click();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void anErrorWhileOneIsShownWaitsAndTheSameIsNotRepeated() {
    ScriptedDialogs dialogs;
    dialogs.expectBox(told(ErrorNumber::RowLocked), Button::Ok, [] {
      mostra_erro_sem_trava(RuntimeError(ErrorNumber::RowLocked));
      mostra_erro_sem_trava(RuntimeError(ErrorNumber::DiskFull));
      mostra_erro_sem_trava(RuntimeError(ErrorNumber::DiskFull));
    });
    dialogs.expectBox(told(ErrorNumber::DiskFull));
    mostra_erro_sem_trava(RuntimeError(ErrorNumber::RowLocked));
    dialogs.expectBox(told(ErrorNumber::RowLocked));
    mostra_erro_sem_trava(RuntimeError(ErrorNumber::RowLocked));
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void settingsThatCannotBeWrittenAreNotLost() {
    FreshFolder folder;
    mostra_frmParametros();
    QPointer<frmParametros> window = UmaJanela<frmParametros>::aberta();
    window->findChild<QLineEdit*>("Text1")->setText("/dados/um.mdb");
    QVERIFY(QDir().mkpath(folder.path("Config.ini/x")));
    ScriptedDialogs dialogs;
    try {
      Grava_ini("Diretorio", "caminho", "x", folder.path("Config.ini"));
      QFAIL("the file can be written");
    } catch (const RuntimeError& error) {
      dialogs.expectBox(told(QString::number(error.number()), error.description()));
    }
    QTest::mouseClick(window->findChild<QPushButton*>("cmdGravar"), Qt::LeftButton);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(window && window->isVisible());
    QCOMPARE(window->findChild<QLineEdit*>("Text1")->text(), "/dados/um.mdb");
    QTest::mouseClick(window->findChild<QPushButton*>("cmdCancelar"), Qt::LeftButton);
  }

  void theWheelChangesNothingWithoutTheFocus() {
    QWidget window;
    QVBoxLayout layout(&window);
    QComboBox combo;
    combo.addItems({"a", "b", "c"});
    QSpinBox spin;
    QLineEdit other;
    for (QWidget* widget : QList<QWidget*>{&combo, &spin, &other}) {
      layout.addWidget(widget);
    }
    spin.setValue(50);
    window.show();
    window.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    other.setFocus();
    wheel(&combo);
    wheel(&spin);
    QCOMPARE(combo.currentIndex(), 0);
    QCOMPARE(spin.value(), 50);
    combo.setFocus();
    wheel(&combo);
    QCOMPARE(combo.currentIndex(), 1);
    spin.setFocus();
    wheel(&spin);
    QCOMPARE(spin.value(), 49);
  }

  void aButtonsKeyPressesItAtOnce() {
    QWidget window;
    QVBoxLayout layout(&window);
    QPushButton include("Incl&uir");
    QLineEdit date;
    layout.addWidget(&include);
    layout.addWidget(&date);
    connect(&include, &QPushButton::clicked, &date, [&date] { date.setFocus(); });
    window.show();
    window.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    include.setFocus();
    QTest::keyClick(&include, Qt::Key_U, Qt::AltModifier);
    QTest::keyClicks(QApplication::focusWidget(), "21");
    QCOMPARE(date.text(), QString("21"));
  }

  void aButtonsKeyFinishesTheFieldFirst() {
    QWidget window;
    QVBoxLayout layout(&window);
    QLineEdit date;
    QPushButton save("&Gravar");
    layout.addWidget(&date);
    layout.addWidget(&save);
    QStringList events;
    connect(&date, &QLineEdit::editingFinished, &save, [&events] { events << "finished"; });
    connect(&save, &QPushButton::clicked, &save, [&events] { events << "clicked"; });
    window.show();
    window.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    date.setFocus();
    QTest::keyClicks(&date, "21");
    QTest::keyClick(&date, Qt::Key_G, Qt::AltModifier);
    QCOMPARE(events, QStringList({"finished", "clicked"}));
  }

  void enterPressesTheButtonWithTheFocus_data() {
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
  }
  void enterPressesTheButtonWithTheFocus() {
    QFETCH(int, key);
    QDialog window;
    QVBoxLayout layout(&window);
    QPushButton ok("OK");
    QPushButton cancel("Cancelar");
    QToolButton search;
    QLineEdit line;
    for (QWidget* widget : QList<QWidget*>{&line, &ok, &cancel, &search}) {
      layout.addWidget(widget);
    }
    ok.setDefault(true);
    cancel.setAutoDefault(false);
    search.setFocusPolicy(Qt::StrongFocus);
    QString pressed;
    connect(&ok, &QPushButton::clicked, &window, [&] { pressed += "ok "; });
    connect(&cancel, &QPushButton::clicked, &window, [&] { pressed += "cancel "; });
    connect(&search, &QToolButton::clicked, &window, [&] { pressed += "search "; });
    window.show();
    window.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    for (QWidget* widget : QList<QWidget*>{&cancel, &search, &ok, &line}) {
      widget->setFocus();
      QTest::keyClick(widget, static_cast<Qt::Key>(key));
    }
    QCOMPARE(pressed, QString("cancel search ok ok "));
    QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(&cancel, &held);
    QCOMPARE(pressed, QString("cancel search ok ok "));
  }

  void aMemoPastesNothingFromAnEmptySelection() {
    QPlainTextEdit memo;
    memo.setPlainText("texto");
    memo.show();
    memo.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &memo);
    QClipboard& clipboard = *QApplication::clipboard();
    const bool selection = clipboard.supportsSelection();
    for (const QString& selected : {QString(), QString("novo ")}) {
      if (selection) {
        selected.isEmpty() ? clipboard.clear(QClipboard::Selection)
                           : clipboard.setText(selected, QClipboard::Selection);
      }
      memo.setPlainText("texto");
      QTest::mouseClick(memo.viewport(), Qt::MiddleButton, {}, QPoint(2, 8));
      QCOMPARE(memo.toPlainText(), selection ? selected + "texto" : QString("texto"));
      memo.setPlainText("texto");
      QTest::keyClick(&memo, Qt::Key_Insert, Qt::ControlModifier | Qt::ShiftModifier);
      const QString clean = memo.toPlainText();
      QVERIFY2(clean == "texto" || (selection && clean == selected + "texto"), qPrintable(clean));
    }
  }

  void theKeyOfADisabledButtonTypesNothing() {
    QWidget window;
    QVBoxLayout layout(&window);
    QPushButton include("Incl&uir");
    QLineEdit line;
    QPlainTextEdit text;
    for (QWidget* widget : QList<QWidget*>{&include, &line, &text}) {
      layout.addWidget(widget);
    }
    include.setEnabled(false);
    window.show();
    window.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    for (QWidget* field : QList<QWidget*>{&line, &text}) {
      field->setFocus();
      QTest::keyClick(field, Qt::Key_U, Qt::AltModifier);
      QTest::keyClick(field, Qt::Key_X);
    }
    QCOMPARE(line.text(), QString("x"));
    QCOMPARE(text.toPlainText(), QString("x"));
  }
};

int main(int argc, char** argv) {
  Aplicacao application(argc, argv);
  test::prepareApplication(application);
  Aplicacao_test aplicacao_test;
  return QTest::qExec(&aplicacao_test, argc, argv);
}

#include "Aplicacao_test.moc"
