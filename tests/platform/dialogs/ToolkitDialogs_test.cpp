// The dialogs as operators see them: each test lets the real one come up, reads it and works it.
#include "platform/dialogs/ToolkitDialogs.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPointer>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <memory>

#include "platform/dialogs/InputBox.h"
#include "tests/support/TestMain.h"

using quartela::Box;
using quartela::BoxIcon;
using quartela::Button;
using quartela::FileRequest;
using quartela::InputBox;
namespace Dialogs = quartela::Dialogs;

namespace {

// Works the next modal window, or all of them, as soon as there is one and it has the keyboard.
class Operator : public QObject {
 public:
  static constexpr bool kAll = true;

  explicit Operator(std::function<void(QWidget*)> work, bool all = false) : work_(std::move(work)) {
    connect(&timer_, &QTimer::timeout, this, [this, all] {
      QWidget* const dialog = QApplication::activeModalWidget();
      if (dialog && dialog->isVisible() && dialog->isActiveWindow()) {
        if (!all) {
          timer_.stop();
        }
        ++worked;
        const QPointer<QWidget> guard(dialog);
        work_(dialog);
        // A check that failed leaves the dialog up.
        if (guard && guard->isVisible()) {
          guard->close();
        }
      }
    });
    timer_.start(1);
  }
  int worked = 0;

 private:
  QTimer timer_;
  std::function<void(QWidget*)> work_;
};

// The words of its buttons, from left to right or from top to bottom.
QStringList buttonWords(const QWidget* dialog) {
  QList<QAbstractButton*> buttons = dialog->findChild<QDialogButtonBox*>()->buttons();
  std::sort(buttons.begin(), buttons.end(), [](const QWidget* one, const QWidget* other) {
    return one->x() + one->y() < other->x() + other->y();
  });
  QStringList words;
  for (const QAbstractButton* button : buttons) {
    words << button->text().remove('&');
  }
  return words;
}

void press(QWidget* dialog, const QString& words) {
  for (auto* const button : dialog->findChildren<QPushButton*>()) {
    if (button->text().remove('&') == words && button->isVisible()) {
      QTest::mouseClick(button, Qt::LeftButton);
      return;
    }
  }
  dialog->close();
  QFAIL(qUtf8Printable("no button " + words));
}

bool writeFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write("x") == 1;
}

}  // namespace

class ToolkitDialogs_test : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { before_ = Dialogs::setHost(nullptr); }
  void cleanupTestCase() { Dialogs::setHost(before_); }
  void cleanup() { QVERIFY(!QApplication::activeModalWidget()); }

  void aBoxShowsItsWords_data() {
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("expected");
    const auto row = [](const char* name, BoxIcon icon, QMessageBox::Icon expected) {
      QTest::newRow(name) << static_cast<int>(icon) << static_cast<int>(expected);
    };
    row("none", BoxIcon::None, QMessageBox::NoIcon);
    row("stop", BoxIcon::Stop, QMessageBox::Critical);
    row("question", BoxIcon::Question, QMessageBox::Question);
    row("exclamation", BoxIcon::Exclamation, QMessageBox::Warning);
    row("information", BoxIcon::Information, QMessageBox::Information);
  }
  void aBoxShowsItsWords() {
    QFETCH(const int, icon);
    QFETCH(const int, expected);
    const QString text = "Confirma <b>a alteração</b> de \"A&B\"?\nSegunda linha";
    Operator person([&](QWidget* window) {
      auto* const box = qobject_cast<QMessageBox*>(window);
      QVERIFY(box);
      QCOMPARE(box->windowTitle(), "Aviso");
      QCOMPARE(box->text(), text);
      QCOMPARE(box->textFormat(), Qt::PlainText);
      QCOMPARE(static_cast<int>(box->icon()), expected);
      QCOMPARE(buttonWords(box), (QStringList{"Sim", "Não", "Cancelar"}));
      QCOMPARE(box->defaultButton()->text(), "&Não");
      press(box, "Sim");
    });
    const Button answer = Dialogs::box({text,
                                        "Aviso",
                                        static_cast<BoxIcon>(icon),
                                        {Button::Yes, Button::No, Button::Cancel},
                                        Button::No});
    QCOMPARE(answer, Button::Yes);
    QCOMPARE(person.worked, 1);
  }

  void aBoxWithoutTitleBearsTheApplications() {
    Operator person([](QWidget* window) {
      QCOMPARE(window->windowTitle(), "Quartela");
      QCOMPARE(buttonWords(window), QStringList{"OK"});
      QTest::keyClick(window, Qt::Key_Return);
    });
    QCOMPARE(Dialogs::box({"Texto", ""}), Button::Ok);
    QCOMPARE(person.worked, 1);
  }

  void aBoxThatDoesNotSayItsTitleBearsTheUsualOne() {
    QStringList titles;
    const auto read = [&titles](QWidget* window) {
      titles << window->windowTitle();
      QTest::keyClick(window, Qt::Key_Return);
    };
    Operator person(read, Operator::kAll);
    Dialogs::box({"Texto"});
    Dialogs::information("Texto");
    Dialogs::exclamation("Texto");
    Dialogs::stop("Texto");
    Dialogs::stop("Texto", {});
    QCOMPARE(titles, (QStringList{"Aviso", "Aviso", "Aviso", "Aviso", "Quartela"}));
  }

  void theShortWays_data() {
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("icon");
    QTest::newRow("information") << 0 << static_cast<int>(QMessageBox::Information);
    QTest::newRow("exclamation") << 1 << static_cast<int>(QMessageBox::Warning);
    QTest::newRow("stop") << 2 << static_cast<int>(QMessageBox::Critical);
    QTest::newRow("confirm") << 3 << static_cast<int>(QMessageBox::Question);
  }
  void theShortWays() {
    QFETCH(const int, way);
    QFETCH(const int, icon);
    Operator person([&](QWidget* window) {
      auto* const box = qobject_cast<QMessageBox*>(window);
      QCOMPARE(box->text(), "Texto");
      QCOMPARE(box->windowTitle(), "Aviso");
      QCOMPARE(static_cast<int>(box->icon()), icon);
      QCOMPARE(buttonWords(box), way == 3 ? QStringList({"Sim", "Não"}) : QStringList{"OK"});
      QTest::keyClick(box, Qt::Key_Return);
    });
    switch (way) {
      case 0:
        Dialogs::information("Texto", "Aviso");
        break;
      case 1:
        Dialogs::exclamation("Texto", "Aviso");
        break;
      case 2:
        Dialogs::stop("Texto", "Aviso");
        break;
      default:
        QVERIFY(Dialogs::confirm("Texto", "Aviso"));
    }
    QCOMPARE(person.worked, 1);
  }

  void enterPressesTheDefaultButton_data() {
    QTest::addColumn<int>("defaultButton");
    QTest::addColumn<int>("expected");
    QTest::newRow("second") << static_cast<int>(Button::No) << static_cast<int>(Button::No);
    QTest::newRow("first") << static_cast<int>(Button::Yes) << static_cast<int>(Button::Yes);
    QTest::newRow("none of them: the first")
        << static_cast<int>(Button::Ok) << static_cast<int>(Button::Yes);
  }
  void enterPressesTheDefaultButton() {
    QFETCH(const int, defaultButton);
    QFETCH(const int, expected);
    Operator person([](QWidget* window) { QTest::keyClick(window, Qt::Key_Return); });
    const Button answer = Dialogs::box({"Texto",
                                        "",
                                        BoxIcon::Question,
                                        {Button::Yes, Button::No},
                                        static_cast<Button>(defaultButton)});
    QCOMPARE(static_cast<int>(answer), expected);
  }

  void closingAnswers_data() {
    QTest::addColumn<QList<int>>("buttons");
    QTest::addColumn<int>("expected");
    const int ok = static_cast<int>(Button::Ok);
    const int cancel = static_cast<int>(Button::Cancel);
    const int yes = static_cast<int>(Button::Yes);
    const int no = static_cast<int>(Button::No);
    QTest::newRow("ok") << QList<int>{ok} << ok;
    QTest::newRow("ok cancel") << QList<int>{ok, cancel} << cancel;
    QTest::newRow("yes no") << QList<int>{yes, no} << no;
    QTest::newRow("yes no cancel") << QList<int>{yes, no, cancel} << cancel;
  }
  void closingAnswers() {
    QFETCH(const QList<int>, buttons);
    QFETCH(const int, expected);
    Box box{"Texto"};
    box.buttons.clear();
    for (const int button : buttons) {
      box.buttons << static_cast<Button>(button);
    }
    Operator escape([](QWidget* window) { QTest::keyClick(window, Qt::Key_Escape); });
    QCOMPARE(static_cast<int>(Dialogs::box(box)), expected);
    Operator frame([](QWidget* window) { window->close(); });
    QCOMPARE(static_cast<int>(Dialogs::box(box)), expected);
    QCOMPARE(escape.worked + frame.worked, 2);
  }

  void aDialogBelongsToTheActiveWindow() {
    QWidget back;
    QWidget front;
    back.show();
    front.setWindowFlag(Qt::WindowStaysOnTopHint);
    front.show();
    front.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &front);
    Operator person([&](QWidget* window) {
      QCOMPARE(window->parentWidget(), &front);
      window->close();
    });
    Dialogs::information("Texto");
    QCOMPARE(person.worked, 1);
  }

  void aSplashIsNoParent() {
    QWidget splash(nullptr, Qt::SplashScreen);
    splash.show();
    splash.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &splash);
    QVERIFY(!quartela::dialogParent());
    QWidget window;
    window.show();
    splash.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &splash);
    QCOMPARE(quartela::dialogParent(), &window);
  }

  // Window managers choose anew when a dialog goes, and now and then nobody, or the wrong window,
  // while the next dialog comes up.
  void theWindowHasTheKeyboardAgainAfterItsDialogs() {
    QWidget main;
    main.show();
    QWidget window(&main, Qt::Dialog);
    window.show();
    window.activateWindow();
    QTRY_VERIFY(window.isActiveWindow());
    constexpr int kRounds = 20;
    for (int round = 0; round < kRounds; ++round) {
      Operator person([](QWidget* box) { QTest::keyClick(box, Qt::Key_Return); }, Operator::kAll);
      QVERIFY(Dialogs::confirm("Confirma?", "Aviso"));
      Dialogs::information("Registro Salvo!", "Aviso");
      QCOMPARE(person.worked, 2);
      QTRY_VERIFY2(window.isActiveWindow(), qPrintable(QString::number(round)));
    }
  }

  void aDialogWhoseWindowGoesAwayAnswersAsClosed() {
    auto window = std::make_unique<QWidget>();
    window->show();
    window->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), window.get());
    Operator person([&](QWidget*) { window.reset(); });
    QCOMPARE(Dialogs::box({"Texto", "", BoxIcon::Question, {Button::Yes, Button::No}, Button::Yes}),
             Button::No);
    QCOMPARE(person.worked, 1);
  }

  void anInputBoxTakesTyping() {
    Operator person([](QWidget* window) {
      auto* const box = qobject_cast<InputBox*>(window);
      QVERIFY(box);
      QCOMPARE(box->windowTitle(), "Cópias");
      QCOMPARE(buttonWords(box), (QStringList{"OK", "Cancelar"}));
      auto* const label = box->findChild<QLabel*>();
      QCOMPARE(label->text(), "Quantas <b>vias</b> de A&B?");
      QCOMPARE(label->textFormat(), Qt::PlainText);
      QVERIFY(!label->buddy());
      auto* const field = box->findChild<QLineEdit*>();
      QCOMPARE(field->text(), "1");
      QCOMPARE(field->selectedText(), "1");
      QVERIFY(field->hasFocus());
      QCOMPARE(field->accessibleName(), label->text());
      QTest::keyClicks(field, "12");
      QTest::keyClick(field, Qt::Key_Return);
    });
    QCOMPARE(Dialogs::input({"Quantas <b>vias</b> de A&B?", "Cópias", "1"}), "12");
    QCOMPARE(person.worked, 1);
  }

  void aCancelledInputBoxGivesNothing() {
    Operator person([](QWidget* window) {
      QCOMPARE(window->windowTitle(), "Quartela");
      QTest::keyClick(window, Qt::Key_Escape);
    });
    QCOMPARE(Dialogs::input({"Texto", "", "valor"}), QString());
    Operator button([](QWidget* window) { press(window, "Cancelar"); });
    QCOMPARE(Dialogs::input({"Texto", "", "valor"}), QString());
    QCOMPARE(person.worked + button.worked, 2);
  }

  void anOpenDialogPicksAFileOfEitherCase_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("capitals") << "DADOS.MDB";
    QTest::newRow("small letters") << "dados.mdb";
  }
  void anOpenDialogPicksAFileOfEitherCase() {
    QFETCH(const QString, name);
    QTemporaryDir folder;
    QVERIFY(writeFile(folder.filePath(name)) && writeFile(folder.filePath("outro.txt")));
    Operator person([&](QWidget* window) {
      auto* const dialog = qobject_cast<QFileDialog*>(window);
      QVERIFY(dialog);
      QCOMPARE(dialog->windowTitle(), "Abrir");
      QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptOpen);
      QCOMPARE(dialog->directory().canonicalPath(), QDir(folder.path()).canonicalPath());
      QCOMPARE(buttonWords(dialog), (QStringList{"Abrir", "Cancelar"}));
      auto* const types = dialog->findChild<QComboBox*>("fileTypeCombo");
      QCOMPARE(types->currentText(), "Banco de dados Access (*.MDB)");
      auto* const list = dialog->findChild<QListView*>("listView");
      QTRY_COMPARE(list->model()->rowCount(list->rootIndex()), 1);
      const QModelIndex first = list->model()->index(0, 0, list->rootIndex());
      QCOMPARE(first.data().toString(), name);
      QTest::keyClicks(dialog->findChild<QLineEdit*>("fileNameEdit"), name);
      press(dialog, "Abrir");
    });
    const QString picked =
        Dialogs::openFile({"", "Banco de dados Access (*.MDB)|*.MDB|", folder.path(), ""});
    QCOMPARE(picked, QDir::toNativeSeparators(folder.filePath(name)));
    QCOMPARE(person.worked, 1);
  }

  void aCancelledFileDialogGivesNothing() {
    Operator open([](QWidget* window) { QTest::keyClick(window, Qt::Key_Escape); });
    QCOMPARE(Dialogs::openFile({"Procurar", "Texto|*.txt|", "", ""}), QString());
    Operator save([](QWidget* window) { press(window, "Cancelar"); });
    QCOMPARE(Dialogs::saveFile({"Salvar", "Texto|*.txt|", "", "a.txt"}), QString());
    Operator pick([](QWidget* window) { window->close(); });
    QCOMPARE(Dialogs::pickFolder("Pasta"), QString());
    QCOMPARE(open.worked + save.worked + pick.worked, 3);
  }

  void aSaveDialogProposesANameAndAddsTheExtension() {
    QTemporaryDir folder;
    Operator person([](QWidget* window) {
      auto* const dialog = qobject_cast<QFileDialog*>(window);
      QVERIFY(dialog);
      QCOMPARE(dialog->windowTitle(), "Exportar");
      QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
      QCOMPARE(buttonWords(dialog), (QStringList{"Salvar", "Cancelar"}));
      auto* const name = dialog->findChild<QLineEdit*>("fileNameEdit");
      QCOMPARE(name->text(), "proposta.txt");
      name->setText("outra");
      press(dialog, "Salvar");
    });
    const QString picked =
        Dialogs::saveFile({"Exportar", "Texto (*.txt)|*.txt|", folder.path(), "proposta.txt"});
    QCOMPARE(picked, QDir::toNativeSeparators(folder.filePath("outra.txt")));
    QCOMPARE(person.worked, 1);
  }

  void aFolderDialogPicksAFolder() {
    QTemporaryDir folder;
    Operator person([&](QWidget* window) {
      auto* const dialog = qobject_cast<QFileDialog*>(window);
      QVERIFY(dialog);
      QCOMPARE(dialog->windowTitle(), "Escolha a pasta");
      QCOMPARE(dialog->fileMode(), QFileDialog::Directory);
      QCOMPARE(buttonWords(dialog), (QStringList{"Escolher", "Cancelar"}));
      dialog->findChild<QLineEdit*>("fileNameEdit")->setText(folder.path());
      press(dialog, "Escolher");
    });
    QCOMPARE(Dialogs::pickFolder("Escolha a pasta"), QDir::toNativeSeparators(folder.path()));
    QCOMPARE(person.worked, 1);
  }

  void aPrinterIsChosenOrNot_data() {
    QTest::addColumn<QString>("pressed");
    QTest::addColumn<bool>("chosen");
    QTest::newRow("chosen") << "Imprimir" << true;
    QTest::newRow("given up") << "Cancelar" << false;
  }

  void aPrinterIsChosenOrNot() {
    QFETCH(const QString, pressed);
    QFETCH(const bool, chosen);
    const QTemporaryDir folder;
    QPrinter printer;
    printer.setOutputFileName(folder.filePath("pages.pdf"));
    Operator clerk([&pressed](QWidget* dialog) {
      QCOMPARE(dialog->windowTitle(), QStringLiteral("Imprimir"));
      press(dialog, pressed);
    });
    QCOMPARE(Dialogs::printer(printer), chosen);
    QCOMPARE(clerk.worked, 1);
    QCOMPARE(printer.outputFileName(), folder.filePath("pages.pdf"));
  }

 private:
  quartela::DialogHost* before_ = nullptr;
};

QUARTELA_TEST_MAIN(ToolkitDialogs_test)
#include "ToolkitDialogs_test.moc"
