// The limits that a key of Config.ini lifts, with and without it.
#include "foundation/Escritorio.h"

#include <QFile>
#include <QTemporaryDir>

#include "foundation/Ini.h"
#include "platform/files/ProgramFolder.h"
#include "platform/values/RuntimeError.h"
#include "tests/support/TestMain.h"

namespace quartela {
namespace {

const QString kSection = QStringLiteral("Escritorio");

// The number, or the error's.
QString read(const Value& number) {
  try {
    return QString::number(Le_numero(number));
  } catch (const RuntimeError& error) {
    return QStringLiteral("error %1").arg(error.number());
  }
}

}  // namespace

class EscritorioTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    folder_ = std::make_unique<QTemporaryDir>();
    setProgramFolder(folder_->path());
  }
  void cleanup() {
    setProgramFolder({});
    folder_.reset();
  }

  void readsNumbers_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("number");
    for (const char* key : {"", "16", "31", "sim", "32"}) {
      QTest::addRow("%s: the last of 16 bits", key) << key << "32767"
                                                    << "32767";
      QTest::addRow("%s: no number", key) << key << "x"
                                          << "error 13";
      QTest::addRow("%s: nothing", key) << key << ""
                                        << "error 13";
    }
    for (const char* key : {"", "16", "31", "sim"}) {
      QTest::addRow("%s: one more", key) << key << "32768"
                                         << "error 6";
    }
    QTest::newRow("32: one more") << "32"
                                  << "32768"
                                  << "32768";
    QTest::newRow("32: process 0400/14") << "32"
                                         << "040014"
                                         << "40014";
    QTest::newRow("32: the last of 32 bits") << "32"
                                             << "2147483647"
                                             << "2147483647";
    QTest::newRow("32: beyond") << "32"
                                << "2147483648"
                                << "error 6";
    QTest::newRow("blanks round the key") << " 32 "
                                          << "32768"
                                          << "32768";
  }
  void readsNumbers() {
    QFETCH(QString, key);
    QFETCH(QString, typed);
    if (!key.isEmpty()) {
      Grava_config(kSection, "numeros", key);
    }
    QTEST(read(typed), "number");
  }

  void aNumberThatIsOneAlreadyHasTheSameLimit() {
    QCOMPARE(read(40000), QString("error 6"));
    Grava_config(kSection, "numeros", "32");
    QCOMPARE(read(40000), QString("40000"));
  }

  void quotesSearchTexts_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::newRow("without the key") << ""
                                     << "D'Ávila"
                                     << "D'Ávila";
    QTest::newRow("another value") << "0"
                                   << "D'Ávila"
                                   << "D'Ávila";
    QTest::newRow("doubled") << "1"
                             << "D'Ávila"
                             << "D''Ávila";
    QTest::newRow("several") << "1"
                             << "'a''b'"
                             << "''a''''b''";
    QTest::newRow("none") << "1"
                          << "Ávila %"
                          << "Ávila %";
  }
  void quotesSearchTexts() {
    QFETCH(QString, key);
    QFETCH(QString, typed);
    if (!key.isEmpty()) {
      Grava_config(kSection, "aspas", key);
    }
    QTEST(Texto_procurado(typed), "text");
  }

  // What a new office gets.
  void theDeliveredFileLiftsBoth() {
    const QString delivered = QStringLiteral(QUARTELA_DELIVERY "/Config.ini");
    QVERIFY(QFile::copy(delivered, folder_->filePath("Config.ini")));
    QCOMPARE(Le_config(kSection, "numeros"), QString("32"));
    QCOMPARE(Le_config(kSection, "aspas"), QString("1"));
    QCOMPARE(Le_config("Diretorio", "number"), QString("Number.Ini"));
  }

 private:
  std::unique_ptr<QTemporaryDir> folder_;
};

}  // namespace quartela

QUARTELA_TEST_MAIN(quartela::EscritorioTest)
#include "Escritorio_test.moc"
