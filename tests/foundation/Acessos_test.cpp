// A login that ends with nothing shown: noted on the error output and in the user's log, and told
// by the next one.
#include "foundation/Acessos.h"

#include <sqlite3.h>
#include <sys/stat.h>

#include <QFile>
#include <QLabel>
#include <QTemporaryFile>

#include "foundation/Abertura.h"
#include "foundation/Banco.h"
#include "foundation/Estilo.h"
#include "foundation/Splash.h"
#include "foundation/UmaJanela.h"
#include "foundation/frmLogin.h"
#include "platform/controls/OpenForms.h"
#include "platform/database/engines/sqlite/Session.h"
#include "platform/values/Clock.h"
#include "tests/support/Files.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"
#include "tests/support/office/Office.h"

namespace quartela {

class AcessosTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Estilo::aplica(*qApp); }
  void init() {
    data_ = std::make_unique<QTemporaryDir>();
    qputenv("XDG_DATA_HOME", QFile::encodeName(data_->path()));
    Clock::stopAt(DateTime::of(2014, 11, 21, 10, 30, 0));
    office_ = std::make_unique<test::Office>();
    Fecha_banco();
  }
  void cleanup() {
    for (QWidget* const form : OpenForms::all()) {
      form->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    office_.reset();
  }

  void lockedDatabaseIsNotedAndToldOnce() {
    QVERIFY(!line());
    const QByteArray told = openLocked();
    QVERIFY(!UmaJanela<Splash>::aberta());
    const QByteArray words = QByteArrayLiteral("Erro 3218. O banco de dados está sendo usado");
    QVERIFY2(told.contains("quartela: 21/11/2014 10:30: "), told.constData());
    QVERIFY2(told.contains(words), told.constData());
    QVERIFY(log().contains(words));
    QCOMPARE(log().count('\n'), 1);

    QLabel* const shown = line();
    QVERIFY(shown && shown->isVisible());
    QVERIFY(shown->text().startsWith(
        QStringLiteral("O acesso de 21/11/2014 10:30 não abriu o banco:\nErro 3218. ")));
    QVERIFY(shown->accessibleName().contains(QString::fromUtf8(words)));
    UmaJanela<frmLogin>::aberta()->close();

    // A login that opens its database is the last one then.
    expectMissingPicture();
    Abre_banco();
    QVERIFY(UmaJanela<Splash>::aberta());
    QVERIFY(!line());
    QCOMPARE(log().count('\n'), 2);
  }

  void isTheUsersAlone() {
    openLocked();
    struct stat status {};
    QCOMPARE(::stat(QFile::encodeName(Arquivo_de_acessos()).constData(), &status), 0);
    QCOMPARE(static_cast<unsigned>(status.st_mode & 0777U), 0600U);
  }

  void anOrdinaryLoginNotesNothing() {
    expectMissingPicture();
    Abre_banco();
    QVERIFY(!QFile::exists(Arquivo_de_acessos()));
  }

  void aLogThatCannotBeWrittenCostsNothing() {
    QFile file(data_->filePath(QStringLiteral("x")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    qputenv("XDG_DATA_HOME", QFile::encodeName(file.fileName()));
    QVERIFY(openLocked().contains("Erro 3218"));
    QVERIFY(!line());
  }

  void oddLogsTellNothing_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zeros") << QByteArray(100, '\0');
    QTest::newRow("no date") << QByteArray("ontem\tErro\n");
    QTest::newRow("too large") << QByteArray(1 << 20, 'x');
  }
  void oddLogsTellNothing() {
    QFETCH(QByteArray, content);
    openLocked();
    QFile file(Arquivo_de_acessos());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(content), content.size());
    file.close();
    QVERIFY(!line());
    openLocked();
    QVERIFY(line());
    QVERIFY(line()->text().contains(QStringLiteral("3218")));
  }

 private:
  // Opens while another program has the whole file; what the error output got.
  QByteArray openLocked() {
    sqlite3* other = nullptr;
    sqlite3_open(office_->database().toUtf8().constData(), &other);
    sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    QTemporaryFile errors;
    errors.open();
    std::fflush(stderr);
    const int kept = ::dup(2);
    ::dup2(errors.handle(), 2);
    Abre_banco();
    std::fflush(stderr);
    ::dup2(kept, 2);
    ::close(kept);
    sqlite3_close(other);
    return test::contentOf(errors.fileName());
  }

  // The line of a fresh login window; null when it shows none.
  static QLabel* line() {
    if (auto* const open = UmaJanela<frmLogin>::aberta()) {
      open->close();
    }
    mostra_frmLogin();
    auto* const label = UmaJanela<frmLogin>::aberta()->findChild<QLabel*>("lblUltimoAcesso");
    return label->isVisible() ? label : nullptr;
  }
  void expectMissingPicture() {
    dialogs_.expectBox({.text = QStringLiteral("Houve um erro interno:") + test::kAnything +
                                QStringLiteral("Função Load"),
                        .icon = BoxIcon::Exclamation});
  }
  static QByteArray log() {
    QFile file(Arquivo_de_acessos());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  std::unique_ptr<QTemporaryDir> data_;
  std::unique_ptr<test::Office> office_;
  test::ScriptedDialogs dialogs_;
};

}  // namespace quartela

QUARTELA_TEST_MAIN(quartela::AcessosTest)
#include "Acessos_test.moc"
