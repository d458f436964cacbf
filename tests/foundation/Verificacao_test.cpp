// The look for damage at the first opening of a day and of a week.
#include "foundation/Verificacao.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QStandardPaths>

#include "foundation/Abertura.h"
#include "foundation/Banco.h"
#include "foundation/Splash.h"
#include "foundation/UmaJanela.h"
#include "platform/values/Clock.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"
#include "tests/support/office/Office.h"
#include "tests/support/office/Samples.h"

namespace quartela {

class VerificacaoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    data_ = std::make_unique<QTemporaryDir>();
    qputenv("XDG_DATA_HOME", QFile::encodeName(data_->path()));
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
  }
  void cleanup() { office_.reset(); }

  void firstOfAWeekIsWholeThenDaysAreQuick() {
    test::ScriptedDialogs dialogs;
    day(2014, 11, 19);  // Wednesday
    check();
    QVERIFY(dates().contains("dia=2014-11-19"));
    QVERIFY(dates().contains("semana=2014-11-17"));
    // A lost relation is found by the whole look only.
    office_->run(
        "PRAGMA foreign_keys = OFF;"
        "INSERT INTO Adiantamento (EMPENHO, PROCESSO) VALUES (514, 999)");
    day(2014, 11, 20);
    check();
    QVERIFY(dates().contains("dia=2014-11-20"));
    // The same day once more: nothing is due.
    const QByteArray before = dates();
    Comeca_verificacao(office_->database());
    Encerra_verificacao();
    QCOMPARE(dates(), before);

    day(2014, 11, 24);
    for (int opening = 0; opening < 2; ++opening) {
      // Told at each opening until it is mended.
      dialogs.expectBox({.text = QStringLiteral("O banco de dados \"") + office_->database() +
                                 QStringLiteral("\" está danificado:\n\nTabela \"Adiantamento\", "
                                                "registro 514: o registro de \"Requisicao\" a que "
                                                "se liga não existe\n\nNada foi alterado.") +
                                 test::kAnything,
                         .icon = BoxIcon::Exclamation});
      Comeca_verificacao(office_->database());
      QTRY_VERIFY(dialogs.satisfied());
    }
    QVERIFY(!dates().contains("2014-11-24"));
    QCOMPARE(office_->ask("SELECT PROCESSO FROM Adiantamento"), QStringLiteral("999"));
  }

  void theLoginHasTheFileChecked() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox({.text = QStringLiteral("Houve um erro interno:") + test::kAnything +
                               QStringLiteral("Função Load"),
                       .icon = BoxIcon::Exclamation});
    Fecha_banco();
    Abre_banco();
    QTRY_VERIFY_WITH_TIMEOUT(dates().contains("dia="), 60'000);
    UmaJanela<Splash>::aberta() ? UmaJanela<Splash>::aberta()->close() : true;
  }

  void closingDoesNotWaitForIt() {
    test::ScriptedDialogs dialogs;
    Comeca_verificacao(office_->database());
    Fecha_banco();
    QCoreApplication::processEvents();
  }

 private:
  static void day(int year, int month, int of) { Clock::stopAt(DateTime::of(year, month, of)); }
  void check() const {
    const QByteArray before = dates();
    Comeca_verificacao(office_->database());
    QTRY_VERIFY(dates() != before);
  }
  static QByteArray dates() {
    QFile file(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
               QStringLiteral("/verificacoes.ini"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  std::unique_ptr<QTemporaryDir> data_;
  std::unique_ptr<test::Office> office_;
};

}  // namespace quartela

QUARTELA_TEST_MAIN(quartela::VerificacaoTest)
#include "Verificacao_test.moc"
