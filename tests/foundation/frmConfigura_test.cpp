#include "foundation/frmConfigura.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QWindow>

#include "foundation/Estilo.h"
#include "foundation/Ini.h"
#include "foundation/UmaJanela.h"
#include "platform/values/RuntimeError.h"
#include "tests/support/FreshFolder.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"
#include "tests/support/WindowChecks.h"
#include "tests/support/office/Boxes.h"

using namespace quartela;  // NOLINT(google-build-using-namespace)
using test::FreshFolder;
using test::ScriptedDialogs;

namespace {

const QByteArray kConfig(
    "[Secretaria]\nnome=Ana\n[Financas]\nnome=Bento\ncargo=Diretor\n"
    "[FTP]\nendereco=ftp.exemplo\nuser=eu\nsenha=abc\n[Requisicao]\nvalor=1\nvalor2=0\n");

QByteArray withValues(const QByteArray& valor, const QByteArray& valor2) {
  return "[Requisicao]\n" + valor + "\n" + valor2 + "\n";
}

}  // namespace

class frmConfigura_test : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Estilo::aplica(*qApp); }
  void init() {
    folder_ = std::make_unique<FreshFolder>();
    folder_->write("Config.ini", kConfig);
    open();
  }
  void cleanup() {
    if (frmConfigura* const window = UmaJanela<frmConfigura>::aberta()) {
      window->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    folder_.reset();
  }

  void showsTheEightKeys() {
    QCOMPARE(window_->windowTitle(), "Configurações de Impressão");
    QCOMPARE(edit("txtSec")->text(), "Ana");
    QCOMPARE(edit("txtFinancas")->text(), "Bento");
    QCOMPARE(edit("txtcargo")->text(), "Diretor");
    QCOMPARE(edit("txtEndereco")->text(), "ftp.exemplo");
    QCOMPARE(edit("txtUser")->text(), "eu");
    QCOMPARE(edit("txtSenha")->text(), "abc");
    QCOMPARE(edit("txtSenha")->displayText(), "***");
    QVERIFY(check("Check1")->isChecked());
    QVERIFY(!check("Check2")->isChecked());
    QVERIFY(window_->isModal());
  }

  void bearsItsWords() {
    QCOMPARE(frameOf("txtSec"), "Secretária Responsável");
    QCOMPARE(frameOf("txtFinancas"), "Assinatura de Autorização de Abertura de Adiantamento");
    QCOMPARE(frameOf("txtcargo"), frameOf("txtFinancas"));
    QCOMPARE(frameOf("Check1"), "Configurações válidas para Requisição");
    QCOMPARE(frameOf("Check2"), frameOf("Check1"));
    QCOMPARE(frameOf("txtEndereco"), "Servidor Remoto FTP");
    QCOMPARE(frameOf("txtSenha"), frameOf("txtEndereco"));
    QCOMPARE(check("Check1")->text().remove('&'), "Exibe numero de protocolo e data?");
    QCOMPARE(check("Check2")->text().remove('&'), "Exibe relatório antes de imprimir");
    QCOMPARE(button()->text().remove('&'), "OK");
    QCOMPARE(window_->findChildren<QPushButton*>().size(), 1);
  }

  void keepsToTheRulesOfAllWindows() {
    QCOMPARE(test::mnemonicClashes(*window_), QString());
    QCOMPARE(test::unnamedControls(*window_), QString());
    QCOMPARE(test::clippedTexts(*window_), QString());
    window_->findChild<QTabWidget*>("SSTab")->setCurrentIndex(1);
    QCOMPARE(test::clippedTexts(*window_), QString());
  }

  void theKeyboardReachesEverythingInOrder() {
    QVERIFY(edit("txtSec")->hasFocus());
    const QStringList first{"txtSec", "txtFinancas", "txtcargo",           "Check1",
                            "Check2", "Command1",    "qt_tabwidget_tabbar"};
    QCOMPARE(test::tabRound(*window_), first);
    QTest::keyClick(edit("txtSec"), Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(window_->findChild<QTabWidget*>("SSTab")->currentIndex(), 1);
    edit("txtEndereco")->setFocus();
    const QStringList second{"txtEndereco", "txtUser", "txtSenha", "Command1",
                             "qt_tabwidget_tabbar"};
    QCOMPARE(test::tabRound(*window_), second);
  }

  void checkBoxesTakeTheValueAsA16BitNumber_data() {
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("ticked");
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("1") << QByteArray("1") << true;
    QTest::newRow("2") << QByteArray("2") << true;
    QTest::newRow("-1") << QByteArray("-1") << true;
    QTest::newRow("rounded down to even") << QByteArray("0,5") << false;
    QTest::newRow("rounded up") << QByteArray("0,6") << true;
  }
  void checkBoxesTakeTheValueAsA16BitNumber() {
    QFETCH(const QByteArray, value);
    QFETCH(const bool, ticked);
    window_->close();
    folder_->write("Config.ini", withValues("valor=" + value, "valor2=" + value));
    open();
    QCOMPARE(check("Check1")->isChecked(), ticked);
    QCOMPARE(check("Check2")->isChecked(), ticked);
  }

  void aCheckBoxWithoutANumberEndsTheProgram_data() {
    QTest::addColumn<QByteArray>("config");
    QTest::addColumn<int>("number");
    QTest::newRow("valor absent") << withValues("", "valor2=0") << 13;
    QTest::newRow("valor2 absent") << withValues("valor=0", "") << 13;
    QTest::newRow("valor empty") << withValues("valor=", "valor2=0") << 13;
    QTest::newRow("valor2 a word") << withValues("valor=0", "valor2=sim") << 13;
    QTest::newRow("valor too large") << withValues("valor=40000", "valor2=0") << 6;
    QTest::newRow("no file") << QByteArray() << 13;
  }
  void aCheckBoxWithoutANumberEndsTheProgram() {
    QFETCH(const QByteArray, config);
    QFETCH(const int, number);
    window_->close();
    folder_->write("Config.ini", config);
    if (config.isEmpty()) {
      QVERIFY(QFile::remove(folder_->path("Config.ini")));
    }
    const QString words = errorDescription(static_cast<ErrorNumber>(number));
    ScriptedDialogs dialogs;
    dialogs.expectBox({QStringLiteral("Erro em tempo de execução %1:\n\n%2").arg(number).arg(words),
                       "Quartela", BoxIcon::Stop});
    QWidget other;
    other.show();
    QTimer::singleShot(0, this, [] { mostra_frmConfigura(); });
    QCOMPARE(QCoreApplication::exec(), 0);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!UmaJanela<frmConfigura>::aberta());
    QVERIFY(other.isVisible());
  }

  void theLoadingItselfRaisesTheError() {
    window_->close();
    folder_->write("Config.ini", withValues("valor=x", "valor2=0"));
    QVERIFY_EXCEPTION_THROWN(UmaJanela<frmConfigura>::instancia(), RuntimeError);
  }

  void okWritesTheEightKeysAndCloses() {
    for (const char* name :
         {"txtSec", "txtFinancas", "txtcargo", "txtEndereco", "txtUser", "txtSenha"}) {
      edit(name)->setText(QStringLiteral("novo ") + name);
    }
    QTest::keyClick(check("Check1"), Qt::Key_Space);
    QTest::keyClick(check("Check2"), Qt::Key_Space);
    QTest::mouseClick(button(), Qt::LeftButton);
    QVERIFY(!UmaJanela<frmConfigura>::aberta());
    QCOMPARE(key("Secretaria", "nome"), "novo txtSec");
    QCOMPARE(key("Financas", "nome"), "novo txtFinancas");
    QCOMPARE(key("Financas", "cargo"), "novo txtcargo");
    QCOMPARE(key("FTP", "endereco"), "novo txtEndereco");
    QCOMPARE(key("FTP", "user"), "novo txtUser");
    QCOMPARE(key("FTP", "senha"), "novo txtSenha");
    QCOMPARE(key("Requisicao", "valor"), "0");
    QCOMPARE(key("Requisicao", "valor2"), "1");
  }

  void theKeysAreWrittenInTheirOrder() {
    QVERIFY(QFile::remove(folder_->path("Config.ini")));
    QTest::mouseClick(button(), Qt::LeftButton);
    const QByteArray written = folder_->read("Config.ini");
    qsizetype last = -1;
    for (const char* text : {"[Secretaria]", "Ana", "[Financas]", "Bento", "cargo", "[FTP]",
                             "endereco", "user", "senha", "[Requisicao]", "valor=", "valor2="}) {
      const qsizetype at = written.indexOf(text, last + 1);
      QVERIFY2(at > last, text);
      last = at;
    }
  }

  void anyOtherNumberIsWrittenAsOne() {
    window_->close();
    folder_->write("Config.ini", withValues("valor=7", "valor2=-1"));
    open();
    QTest::mouseClick(button(), Qt::LeftButton);
    QCOMPARE(key("Requisicao", "valor"), "1");
    QCOMPARE(key("Requisicao", "valor2"), "1");
  }

  void enterIsOk() {
    edit("txtcargo")->setFocus();
    edit("txtcargo")->selectAll();
    QTest::keyClicks(edit("txtcargo"), "Chefe");
    QTest::keyClick(edit("txtcargo"), Qt::Key_Return);
    QVERIFY(!UmaJanela<frmConfigura>::aberta());
    QCOMPARE(key("Financas", "cargo"), "Chefe");
  }

  void theFrameDiscards() {
    edit("txtSec")->setText("outra");
    window_->windowHandle()->close();
    QVERIFY(!UmaJanela<frmConfigura>::aberta());
    QCOMPARE(folder_->read("Config.ini"), kConfig);
    open();
    QCOMPARE(edit("txtSec")->text(), "Ana");
  }

  void escapeAsksBeforeItDiscards() {
    QTest::keyClick(check("Check1"), Qt::Key_Space);
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::boxes::askAbandon(), Button::No);
    QTest::keyClick(edit("txtSec"), Qt::Key_Escape);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(UmaJanela<frmConfigura>::aberta(), window_);
    QVERIFY(window_->isVisible());
    QVERIFY(!check("Check1")->isChecked());
    dialogs.expectBox(test::boxes::askAbandon(), Button::Yes);
    QTest::keyClick(edit("txtSec"), Qt::Key_Escape);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!UmaJanela<frmConfigura>::aberta());
    QCOMPARE(folder_->read("Config.ini"), kConfig);
  }

  void escapeAsksNothingWhereNothingWasTyped() {
    QTest::keyClick(edit("txtSec"), Qt::Key_Escape);
    QVERIFY(!UmaJanela<frmConfigura>::aberta());
  }

 private:
  void open() {
    mostra_frmConfigura();
    window_ = UmaJanela<frmConfigura>::aberta();
    QVERIFY(window_);
    QTRY_COMPARE(QApplication::activeWindow(), window_);
  }
  QLineEdit* edit(const QString& name) const { return window_->findChild<QLineEdit*>(name); }
  QCheckBox* check(const QString& name) const { return window_->findChild<QCheckBox*>(name); }
  QPushButton* button() const { return window_->findChild<QPushButton*>("Command1"); }
  QString frameOf(const QString& name) const {
    auto* const frame =
        qobject_cast<QGroupBox*>(window_->findChild<QWidget*>(name)->parentWidget());
    return frame ? frame->title().remove('&') : QString();
  }
  QString key(const QString& section, const QString& name) const {
    return Le_ini(section, name, folder_->path("Config.ini"));
  }

  std::unique_ptr<FreshFolder> folder_;
  frmConfigura* window_ = nullptr;
};

QUARTELA_TEST_MAIN(frmConfigura_test)
#include "frmConfigura_test.moc"
