#include "foundation/frmParametros.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QWindow>

#include "foundation/Estilo.h"
#include "foundation/Ini.h"
#include "foundation/UmaJanela.h"
#include "platform/controls/OpenForms.h"
#include "tests/support/FreshFolder.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowChecks.h"
#include "tests/support/office/Boxes.h"

using namespace quartela;  // NOLINT(google-build-using-namespace)
using test::FreshFolder;
using test::ScriptedDialogs;

namespace {

FileRequest request(const QString& filter) {
  return {"", filter, "", ""};
}

}  // namespace

class frmParametros_test : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Estilo::aplica(*qApp); }
  void init() {
    folder_ = std::make_unique<FreshFolder>();
    folder_->write("Config.ini",
                   "[Diretorio]\ncaminho=C:\\dados\\um.mdb\ncaminho2=/dados/dois.mdb\n"
                   "caminhogeral=geral\nnumber=/dados/Number.Ini\nprodutos=p\n[FTP]\nuser=eu\n");
    open();
  }
  void cleanup() {
    if (UmaJanela<frmParametros>::aberta()) {
      click("cmdCancelar");
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    folder_.reset();
  }

  void showsThePaths() {
    QCOMPARE(window_->windowTitle(), "Configurações");
    QVERIFY(!window_->isModal());
    QCOMPARE(edit("Text1")->text(), "C:\\dados\\um.mdb");
    QCOMPARE(edit("Text2")->text(), "/dados/dois.mdb");
    QCOMPARE(edit("Text3")->text(), "/dados/Number.Ini");
    QCOMPARE(frameOf("Text1"), "Caminho para o Banco de Dados");
    QCOMPARE(frameOf("Text2"), "Caminho para o Banco de Dados (Backup)");
    QCOMPARE(frameOf("Text3"), "Caminho para o Arquivo Number.Ini");
    QCOMPARE(frameOf("cmdCaminho"), frameOf("Text1"));
    QCOMPARE(frameOf("Command1"), frameOf("Text2"));
    QCOMPARE(frameOf("Command2"), frameOf("Text3"));
    QCOMPARE(button("cmdGravar")->text(), "&Gravar");
    QCOMPARE(button("cmdCancelar")->text(), "&Cancelar");
  }

  void keepsToTheRulesOfAllWindows() {
    QCOMPARE(test::mnemonicClashes(*window_), QString());
    QCOMPARE(test::unnamedControls(*window_), QString());
    QCOMPARE(test::clippedTexts(*window_), QString());
  }

  void theKeyboardReachesEverythingInOrder() {
    QVERIFY(edit("Text1")->hasFocus());
    const QStringList order{"Text1", "cmdCaminho", "Text2",     "Command1",
                            "Text3", "Command2",   "cmdGravar", "cmdCancelar"};
    QCOMPARE(test::tabRound(*window_), order);
  }

  void withoutAFileTheBoxesAreEmpty() {
    window_->close();
    QVERIFY(QFile::remove(folder_->path("Config.ini")));
    open();
    for (const char* name : {"Text1", "Text2", "Text3"}) {
      QCOMPARE(edit(name)->text(), QString());
    }
    QVERIFY(!QFile::exists(folder_->path("Config.ini")));
  }

  void browseButtons_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("filter");
    QTest::newRow("database") << "cmdCaminho"
                              << "Text1"
                              << "Banco de dados Access (*.MDB)|*.MDB|";
    QTest::newRow("second database") << "Command1"
                                     << "Text2"
                                     << "Banco de dados Access (*.MDB)|*.MDB|";
    QTest::newRow("counter file") << "Command2"
                                  << "Text3"
                                  << "Banco de dados Access (*.ini)|*.ini|";
  }
  void browseButtons() {
    QFETCH(const QString, button);
    QFETCH(const QString, box);
    QFETCH(const QString, filter);
    QStringList before = texts();
    const int place = box.right(1).toInt() - 1;
    ScriptedDialogs dialogs;
    dialogs.expectOpenFile(request(filter), "/pasta/escolhido");
    click(button);
    before[place] = "/pasta/escolhido";
    QCOMPARE(texts(), before);
    dialogs.expectOpenFile(request(filter), "");
    click(button);
    before[place].clear();
    QCOMPARE(texts(), before);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void aCancelledBrowsingAndSavingStoresTheEmptyPath() {
    ScriptedDialogs dialogs;
    dialogs.expectOpenFile(request("Banco de dados Access (*.MDB)|*.MDB|"), "");
    click("cmdCaminho");
    click("cmdGravar");
    QCOMPARE(key("caminho"), QString());
    QCOMPARE(key("caminho2"), "/dados/dois.mdb");
    QVERIFY(folder_->read("Config.ini").contains("caminho=\n"));
  }

  void savingWritesTheThreePathsUntestedAndCloses() {
    edit("Text1")->setText("não existe");
    edit("Text2")->setText("");
    edit("Text3")->setText("Z:\\x.ini");
    click("cmdGravar");
    QVERIFY(!UmaJanela<frmParametros>::aberta());
    QCOMPARE(key("caminho"), "não existe");
    QCOMPARE(key("caminho2"), QString());
    QCOMPARE(key("number"), "Z:\\x.ini");
    QCOMPARE(key("caminhogeral"), "geral");
    QCOMPARE(key("produtos"), "p");
    QCOMPARE(Le_ini("FTP", "user", folder_->path("Config.ini")), "eu");
  }

  void enterSaves() {
    QTest::keyClick(edit("Text2"), Qt::Key_End);
    QTest::keyClicks(edit("Text2"), "x");
    QTest::keyClick(edit("Text2"), Qt::Key_Return);
    QVERIFY(!UmaJanela<frmParametros>::aberta());
    QCOMPARE(key("caminho2"), "/dados/dois.mdbx");
  }

  void savingMakesTheFile() {
    QVERIFY(QFile::remove(folder_->path("Config.ini")));
    click("cmdGravar");
    QCOMPARE(key("caminho"), "C:\\dados\\um.mdb");
    QCOMPARE(key("number"), "/dados/Number.Ini");
  }

  void leavingWithoutSavingWritesNothing_data() {
    QTest::addColumn<int>("way");
    QTest::addColumn<bool>("asks");
    QTest::newRow("Cancelar") << 0 << false;
    QTest::newRow("Escape") << 1 << true;
    QTest::newRow("frame") << 2 << true;
    QTest::newRow("end of the program") << 3 << true;
  }
  void leavingWithoutSavingWritesNothing() {
    QFETCH(const int, way);
    QFETCH(const bool, asks);
    const QByteArray before = folder_->read("Config.ini");
    QTest::keyClick(edit("Text1"), Qt::Key_End);
    QTest::keyClicks(edit("Text1"), "x");
    ScriptedDialogs dialogs;
    if (asks) {
      dialogs.expectBox(test::boxes::askAbandon(), Button::No);
      leave(way);
      QVERIFY2(dialogs.satisfied(), dialogs.report());
      QCOMPARE(UmaJanela<frmParametros>::aberta(), window_);
      QVERIFY(window_->isVisible());
      QCOMPARE(edit("Text1")->text(), "C:\\dados\\um.mdbx");
      dialogs.expectBox(test::boxes::askAbandon(), Button::Yes);
    }
    leave(way);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!UmaJanela<frmParametros>::aberta());
    QCOMPARE(folder_->read("Config.ini"), before);
    open();
    QCOMPARE(edit("Text1")->text(), "C:\\dados\\um.mdb");
  }

  void leavingAsksNothingWhereNothingWasTyped_data() {
    QTest::addColumn<int>("way");
    for (int way = 0; way < 4; ++way) {
      QTest::addRow("way %d", way) << way;
    }
  }
  void leavingAsksNothingWhereNothingWasTyped() {
    QFETCH(const int, way);
    leave(way);
    QVERIFY(!UmaJanela<frmParametros>::aberta());
  }

  void shownAgainItIsTheSameWindow() {
    edit("Text1")->setText("outro");
    mostra_frmParametros();
    QCOMPARE(UmaJanela<frmParametros>::aberta(), window_);
    QCOMPARE(edit("Text1")->text(), "outro");
  }

  void aPathTakesNoMoreThanAValueHolds() {
    edit("Text1")->clear();
    QTest::keyClicks(edit("Text1"), QString(300, 'a'));
    QCOMPARE(edit("Text1")->text().size(), 255);
  }

 private:
  void open() {
    mostra_frmParametros();
    window_ = UmaJanela<frmParametros>::aberta();
    QVERIFY(window_);
    QTRY_COMPARE(QApplication::activeWindow(), window_);
  }
  QLineEdit* edit(const QString& name) const { return window_->findChild<QLineEdit*>(name); }
  QPushButton* button(const QString& name) const { return window_->findChild<QPushButton*>(name); }
  void click(const QString& name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
  void leave(int way) const {
    switch (way) {
      case 0:
        click("cmdCancelar");
        break;
      case 1:
        QTest::keyClick(edit("Text1"), Qt::Key_Escape);
        break;
      case 2:
        window_->windowHandle()->close();
        break;
      default:
        OpenForms::unload(window_);
    }
  }
  QStringList texts() const {
    return {edit("Text1")->text(), edit("Text2")->text(), edit("Text3")->text()};
  }
  QString frameOf(const QString& name) const {
    auto* const frame =
        qobject_cast<QGroupBox*>(window_->findChild<QWidget*>(name)->parentWidget());
    return frame ? frame->title().remove('&') : QString();
  }
  QString key(const QString& name) const {
    return Le_ini("Diretorio", name, folder_->path("Config.ini"));
  }

  std::unique_ptr<FreshFolder> folder_;
  frmParametros* window_ = nullptr;
};

QUARTELA_TEST_MAIN(frmParametros_test)
#include "frmParametros_test.moc"
