#include "foundation/frmLogin.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "database/Builder.h"
#include "foundation/Abertura.h"
#include "foundation/Banco.h"
#include "foundation/Estilo.h"
#include "foundation/Ini.h"
#include "foundation/Splash.h"
#include "foundation/UmaJanela.h"
#include "foundation/frmParametros.h"
#include "platform/controls/OpenForms.h"
#include "platform/controls/ScreenPointer.h"
#include "platform/values/RuntimeError.h"
#include "tests/platform/files/NoMoreFiles.h"
#include "tests/support/FreshFolder.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowChecks.h"
#include "tests/support/office/Boxes.h"

using namespace quartela;  // NOLINT(google-build-using-namespace)
using test::FreshFolder;
using test::ScriptedDialogs;

namespace {

constexpr int kFolded = 3255 / 15;
constexpr int kUnfolded = 4335 / 15;
const Box kRefusal{"Invalid Password, try again!", "Login"};

}  // namespace

class frmLogin_test : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Estilo::aplica(*qApp); }
  void init() {
    folder_ = std::make_unique<FreshFolder>();
    folder_->deliver("progress.gif");
    folder_->write("Set.dat", "[Number]\r\nvalor1=Alfa\r\nvalor2=beta 2\r\nvalor3=senha3\r\n");
    database::createEmptyDatabase(folder_->path("um.mdb"));
    database::createEmptyDatabase(folder_->path("dois.mdb"));
    folder_->write("Config.ini", "[Diretorio]\ncaminho=" + folder_->path("um.mdb").toUtf8() +
                                     "\ncaminho2=" + folder_->path("dois.mdb").toUtf8() +
                                     "\ncaminhogeral=nenhum\n");
    mostra_frmLogin();
    window_ = UmaJanela<frmLogin>::aberta();
    QVERIFY(window_);
    QTRY_COMPARE(QApplication::activeWindow(), window_.data());
  }

  void cleanup() {
    for (QWidget* const form : OpenForms::all()) {
      form->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Fecha_banco();
    setScreenPointer(PointerShape::Normal);
    folder_.reset();
  }

  void escapeOnTheOpenListClosesTheListOnly() {
    combo()->setFocus();
    combo()->showPopup();
    QTRY_VERIFY(combo()->view()->isVisible());
    QTest::keyClick(combo()->view(), Qt::Key_Escape);
    QTRY_VERIFY(!combo()->view()->isVisible());
    QVERIFY(window_);
    QVERIFY(window_->isVisible());
  }

  void showsItsControls() {
    QCOMPARE(window_->windowTitle(), "Login");
    QCOMPARE(edit("Text1")->text(), "ADMINISTRADOR");
    QCOMPARE(edit("txtPassword")->text(), QString());
    QCOMPARE(button("cmdOk")->text(), "&Entrar");
    QCOMPARE(button("cmdCancel")->text(), "&Cancelar");
    QCOMPARE(button("cmdUp")->text(), ">>");
    QCOMPARE(button("cmdParam")->text(), "&Parâmetros");
    QCOMPARE(window_->findChild<QLabel*>("lblTitulo")->text(), "Login");
    QCOMPARE(window_->findChild<QLabel*>("lblSistema")->text(), "Quartela 2014");
    QCOMPARE(combo()->count(), 2);
    QCOMPARE(combo()->itemText(0), "DESKTOP LOCAL");
    QCOMPARE(combo()->itemText(1), "DISPOSITIVO MÓVEL");
    QCOMPARE(combo()->currentIndex(), 0);
    QVERIFY(!combo()->isEditable());
    QVERIFY(button("cmdOk")->isDefault());
    QVERIFY(!window_->isModal());
  }

  void keepsToTheRulesOfAllWindows() {
    QCOMPARE(test::mnemonicClashes(*window_), QString());
    QCOMPARE(test::unnamedControls(*window_), QString());
    QCOMPARE(test::clippedTexts(*window_), QString());
    click("cmdUp");
    QCOMPARE(test::clippedTexts(*window_), QString());
  }

  void theKeyboardReachesEverythingInOrder() {
    QVERIFY(edit("txtPassword")->hasFocus());
    const QStringList folded{"txtPassword", "Combo", "cmdOk", "cmdCancel", "cmdUp", "Text1"};
    QCOMPARE(test::tabRound(*window_), folded);
    click("cmdUp");
    edit("txtPassword")->setFocus();
    const QStringList unfolded{"txtPassword", "Combo",    "cmdOk", "cmdCancel",
                               "cmdUp",       "cmdParam", "Text1"};
    QCOMPARE(test::tabRound(*window_), unfolded);
  }

  void opensFolded() {
    QCOMPARE(window_->height(), kFolded);
    QVERIFY(!button("cmdParam")->isVisible());
    QVERIFY(window_->layout()->minimumSize().height() <= kFolded);
  }

  void unfoldsAndFolds() {
    const int place = button("cmdOk")->mapTo(window_.data(), QPoint()).y();
    click("cmdUp");
    QCOMPARE(window_->height(), kUnfolded);
    QCOMPARE(button("cmdUp")->text(), "<<");
    QVERIFY(button("cmdParam")->isVisible());
    QVERIFY(window_->layout()->minimumSize().height() <= kUnfolded);
    QTRY_COMPARE(button("cmdOk")->mapTo(window_.data(), QPoint()).y(), place);
    click("cmdUp");
    QCOMPARE(window_->height(), kFolded);
    QCOMPARE(button("cmdUp")->text(), ">>");
    QVERIFY(!button("cmdParam")->isVisible());
  }

  void foldsAgainFromAnyHeight_data() {
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("once");
    QTest::newRow("folded") << kFolded << kUnfolded;
    QTest::newRow("in between") << 250 << kUnfolded;
    QTest::newRow("higher") << 500 << kUnfolded;
    QTest::newRow("unfolded") << kUnfolded << kFolded;
  }
  void foldsAgainFromAnyHeight() {
    QFETCH(const int, height);
    QFETCH(const int, once);
    window_->setFixedHeight(height);
    click("cmdUp");
    QCOMPARE(window_->height(), once);
    click("cmdUp");
    QCOMPARE(window_->height(), once == kFolded ? kUnfolded : kFolded);
  }

  void thePasswordFieldIsYellowWhileItHasTheFocus() {
    QLineEdit* const field = edit("txtPassword");
    QVERIFY(field->hasFocus());
    const QPoint middle = field->rect().center();
    QCOMPARE(field->grab().toImage().pixelColor(middle), QColor(0xFF, 0xFF, 0x00));
    const QColor ink = field->palette().color(QPalette::Text);
    QVERIFY2(ink.lightness() < 100, "dark words on yellow");
    QTest::keyClick(field, Qt::Key_Tab);
    QVERIFY(!field->hasFocus());
    QCOMPARE(field->grab().toImage().pixelColor(middle), window_->palette().color(QPalette::Base));
    edit("Text1")->setFocus();
    QVERIFY(edit("Text1")->palette().color(QPalette::Base) != QColor(Qt::yellow));
  }

  void thePasswordIsShownAsAsterisks() {
    QTest::keyClicks(edit("txtPassword"), "segredo");
    QCOMPARE(edit("txtPassword")->text(), "segredo");
    QCOMPARE(edit("txtPassword")->displayText(), "*******");
  }

  void passwords_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("password");
    QTest::addColumn<bool>("good");
    const QByteArray all("[Number]\nvalor1=Alfa\nvalor2=beta 2\nvalor3=senha3\n");
    QTest::newRow("first") << all << "Alfa" << true;
    QTest::newRow("second") << all << "beta 2" << true;
    QTest::newRow("third") << all << "senha3" << true;
    QTest::newRow("another letter case") << all << "alfa" << false;
    QTest::newRow("a blank behind") << all << "Alfa " << false;
    QTest::newRow("the beginning of one") << all << "Alf" << false;
    QTest::newRow("empty") << all << "" << false;
    QTest::newRow("the user's name") << all << "ADMINISTRADOR" << false;
    QTest::newRow("empty first key")
        << QByteArray("[Number]\nvalor1=\nvalor2=b\nvalor3=c\n") << "" << true;
    QTest::newRow("absent second key")
        << QByteArray("[Number]\nvalor1=a\nvalor3=c\n") << "" << true;
    QTest::newRow("absent third key") << QByteArray("[Number]\nvalor1=a\nvalor2=b\n") << "" << true;
    QTest::newRow("empty key, another password")
        << QByteArray("[Number]\nvalor1=\nvalor2=b\nvalor3=c\n") << "x" << false;
    QTest::newRow("other section") << QByteArray("[Outra]\nvalor1=a\n") << "a" << false;
  }
  void passwords() {
    QFETCH(const QByteArray, file);
    QFETCH(const QString, password);
    QFETCH(const bool, good);
    folder_->write("Set.dat", file);
    ScriptedDialogs dialogs;
    if (!good) {
      dialogs.expectBox(kRefusal);
    }
    enter(password);
    QCOMPARE(UmaJanela<frmLogin>::aberta() == nullptr, good);
    QCOMPARE(UmaJanela<Splash>::aberta() != nullptr, good);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void withoutThePasswordFileAnEmptyPasswordPasses() {
    QVERIFY(QFile::remove(folder_->path("Set.dat")));
    ScriptedDialogs dialogs;
    dialogs.expectBox(kRefusal);
    enter("Alfa");
    QVERIFY(UmaJanela<frmLogin>::aberta());
    enter("");
    QVERIFY(!UmaJanela<frmLogin>::aberta());
    QVERIFY(UmaJanela<Splash>::aberta());
  }

  // What cannot be read is not empty: nobody gets in without a password.
  void anUnreadablePasswordFileLetsNobodyIn() {
    const QByteArray before = folder_->read("Config.ini");
    ScriptedDialogs dialogs;
    dialogs.expectBox(
        {"Houve um erro interno:\n\nNúmero do erro:\n75" + test::kAnything + "Função cmdOk_click",
         "Aviso", BoxIcon::Exclamation});
    {
      const test::NoMoreFiles none;
      enter("");
    }
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(UmaJanela<frmLogin>::aberta());
    QVERIFY(!UmaJanela<Splash>::aberta());
    QCOMPARE(folder_->read("Config.ini"), before);
  }

  void theUserNamePlaysNoPart() {
    edit("Text1")->setText("");
    enter("Alfa");
    QVERIFY(UmaJanela<Splash>::aberta());
  }

  void theFileIsReadAtEachPress() {
    ScriptedDialogs dialogs;
    dialogs.expectBox(kRefusal);
    enter("nova");
    folder_->write("Set.dat", "[Number]\nvalor1=nova\nvalor2=b\nvalor3=c\n");
    enter("nova");
    QVERIFY(UmaJanela<Splash>::aberta());
  }

  void aWrongPasswordGetsTheFocusAndIsSelected() {
    const QByteArray before = folder_->read("Config.ini");
    ScriptedDialogs dialogs;
    for (int attempt = 0; attempt < 5; ++attempt) {
      dialogs.expectBox(kRefusal);
      edit("txtPassword")->setText("errada");
      click("cmdOk");
      QVERIFY(edit("txtPassword")->hasFocus());
      QCOMPARE(edit("txtPassword")->selectedText(), "errada");
      QCOMPARE(edit("txtPassword")->cursorPosition(), 6);
    }
    QVERIFY(window_->isVisible());
    QCOMPARE(folder_->read("Config.ini"), before);
    QTest::keyClicks(edit("txtPassword"), "x");
    QCOMPARE(edit("txtPassword")->text(), "x");
  }

  void aWrongPasswordMakesNoConfigFile() {
    QVERIFY(QFile::remove(folder_->path("Config.ini")));
    ScriptedDialogs dialogs;
    dialogs.expectBox(kRefusal);
    enter("errada");
    QVERIFY(!QFile::exists(folder_->path("Config.ini")));
  }

  void aGoodPasswordOpensTheDatabaseAndTheSplash() {
    QTest::keyClicks(edit("txtPassword"), "Alfa");
    QTest::keyClick(edit("txtPassword"), Qt::Key_Return);
    QVERIFY(!UmaJanela<frmLogin>::aberta());
    QTRY_VERIFY(window_.isNull());
    QCOMPARE(caminhogeral(), folder_->path("um.mdb"));
    QCOMPARE(Conexao->state(), Connection::Open);
    QVERIFY(UmaJanela<Splash>::aberta());
    QVERIFY(UmaJanela<Splash>::aberta()->isVisible());
    QVERIFY(!UmaJanela<frmParametros>::aberta());
  }

  void theSecondItemTakesTheSecondPath() {
    combo()->setFocus();
    QTest::keyClick(combo(), Qt::Key_Down);
    QCOMPARE(combo()->currentText(), "DISPOSITIVO MÓVEL");
    enter("beta 2");
    QCOMPARE(caminhogeral(), folder_->path("dois.mdb"));
    QVERIFY(UmaJanela<Splash>::aberta());
  }

  void theSecondItemWithoutAPathEmptiesThePathInForce() {
    Grava_ini("Diretorio", "caminho2", "", folder_->path("Config.ini"));
    combo()->setCurrentIndex(1);
    enter("Alfa");
    QCOMPARE(caminhogeral(), QString());
    QVERIFY(!UmaJanela<Splash>::aberta());
    QVERIFY(UmaJanela<frmParametros>::aberta());
    QVERIFY(!UmaJanela<frmLogin>::aberta());
  }

  void thePathInForceIsWrittenAtEachGoodLogin() {
    Grava_ini("Diretorio", "caminhogeral", folder_->path("um.mdb"), folder_->path("Config.ini"));
    QFile file(folder_->path("Config.ini"));
    const QDateTime old(QDate(2014, 1, 2), QTime(3, 4));
    QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(old, QFile::FileModificationTime));
    file.close();
    enter("Alfa");
    QCOMPARE(caminhogeral(), folder_->path("um.mdb"));
    QVERIFY(QFileInfo(folder_->path("Config.ini")).lastModified() != old);
  }

  void aWrongPathShowsTheSettings_data() {
    QTest::addColumn<QString>("path");
    QTest::newRow("no such file") << "nada.mdb";
    QTest::newRow("no such folder") << "nada/nada.mdb";
  }
  void aWrongPathShowsTheSettings() {
    QFETCH(const QString, path);
    Grava_ini("Diretorio", "caminho", folder_->path(path), folder_->path("Config.ini"));
    enter("Alfa");
    QVERIFY(UmaJanela<frmParametros>::aberta());
    QVERIFY(UmaJanela<frmParametros>::aberta()->isVisible());
    QVERIFY(!UmaJanela<Splash>::aberta());
    QVERIFY(!UmaJanela<frmLogin>::aberta());
    QCOMPARE(caminhogeral(), folder_->path(path));
  }

  void theFirstRunWithoutConfigFileLeadsToTheSettings() {
    QVERIFY(QFile::remove(folder_->path("Config.ini")));
    enter("Alfa");
    QVERIFY(folder_->read("Config.ini").contains("caminhogeral="));
    QCOMPARE(caminhogeral(), QString());
    QVERIFY(UmaJanela<frmParametros>::aberta());
    QVERIFY(!UmaJanela<Splash>::aberta());
  }

  void anErrorIsReportedAndTheWindowStays() {
    QVERIFY(QFile::remove(folder_->path("Config.ini")));
    QVERIFY(QDir().mkpath(folder_->path("Config.ini/x")));
    QString told;
    try {
      Grava_ini("Diretorio", "caminhogeral", "", folder_->path("Config.ini"));
    } catch (const RuntimeError& error) {
      told = QStringLiteral(
                 "Houve um erro interno:\n\nNúmero do erro:\n%1\nDescrição :\n%2\n"
                 "Origem :\n%3 / Função cmdOk_click")
                 .arg(QString::number(error.number()), error.description(), error.source());
    }
    QVERIFY(!told.isEmpty());
    ScriptedDialogs dialogs;
    dialogs.expectBox({told, "Aviso", BoxIcon::Exclamation});
    enter("Alfa");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(UmaJanela<frmLogin>::aberta());
    QVERIFY(!UmaJanela<Splash>::aberta());
  }

  void cancelEndsTheProgramWithNothingWritten_data() {
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << false;
    QTest::newRow("Escape") << true;
  }
  void cancelEndsTheProgramWithNothingWritten() {
    QFETCH(const bool, byKey);
    const QByteArray before = folder_->read("Config.ini");
    mostra_frmParametros();
    auto* const settings = UmaJanela<frmParametros>::aberta();
    settings->findChild<QLineEdit*>("Text1")->setText("outro");
    window_->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), window_.data());
    const auto cancel = [this, byKey] {
      if (byKey) {
        QTest::keyClick(edit("txtPassword"), Qt::Key_Escape);
      } else {
        click("cmdCancel");
      }
    };
    // What was typed in the settings is asked for first.
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::boxes::askAbandon(), Button::No);
    dialogs.expectBox(test::boxes::askAbandon(), Button::Yes);
    bool stayed = false;
    QTimer::singleShot(0, window_, [&] {
      cancel();
      stayed = settings->isVisible();
      QTimer::singleShot(0, window_, cancel);
    });
    QCOMPARE(QCoreApplication::exec(), 0);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(stayed);
    QCOMPARE(folder_->read("Config.ini"), before);
  }

  void parametersOpenOverTheLoginWithoutPassword() {
    click("cmdUp");
    click("cmdParam");
    frmParametros* const settings = UmaJanela<frmParametros>::aberta();
    QVERIFY(settings && settings->isVisible());
    QVERIFY(!settings->isModal());
    QVERIFY(window_->isVisible());
    QVERIFY(window_->isEnabled());
    settings->close();
    enter("Alfa");
    QVERIFY(UmaJanela<Splash>::aberta());
  }

 private:
  QLineEdit* edit(const char* name) const { return window_->findChild<QLineEdit*>(name); }
  QPushButton* button(const char* name) const { return window_->findChild<QPushButton*>(name); }
  QComboBox* combo() const { return window_->findChild<QComboBox*>("Combo"); }
  void click(const char* name) const { QTest::mouseClick(button(name), Qt::LeftButton); }

  void enter(const QString& password) const {
    edit("txtPassword")->clear();
    QTest::keyClicks(edit("txtPassword"), password);
    click("cmdOk");
  }

  QString caminhogeral() const {
    return Le_ini("Diretorio", "caminhogeral", folder_->path("Config.ini"));
  }

  std::unique_ptr<FreshFolder> folder_;
  QPointer<frmLogin> window_;
};

QUARTELA_TEST_MAIN(frmLogin_test)
#include "frmLogin_test.moc"
