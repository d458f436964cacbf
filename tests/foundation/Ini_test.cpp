#include "foundation/Ini.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/files/ProgramFolder.h"
#include "platform/values/RuntimeError.h"
#include "tests/support/Files.h"
#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

const QString kSecao = QStringLiteral("Diretorio");
const QString kChave = QStringLiteral("caminho");

}  // namespace

class IniTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void readsAndWrites();
  void absentReadsAsEmpty();
  void unreadableIsAnError();
  void matchesWithoutRegardToCase();
  void cutsAt255Characters();
  void takesPathsAsKeyFilesGiveThem();
  void leavesTheRestOfTheFileAlone();
  void tellsWhatItCannotWrite_data();
  void tellsWhatItCannotWrite();

 private:
  QString config() const { return programFile(QStringLiteral("\\Config.ini")); }

  std::unique_ptr<QTemporaryDir> pasta_;
};

void IniTest::init() {
  pasta_ = std::make_unique<QTemporaryDir>();
  QVERIFY(pasta_->isValid());
  setProgramFolder(pasta_->path());
}

void IniTest::cleanup() {
  setProgramFolder({});
  pasta_.reset();
}

void IniTest::readsAndWrites() {
  Grava_ini(kSecao, kChave, QStringLiteral("C:\\dados\\Banco.mdb"), config());
  QCOMPARE(Le_ini(kSecao, kChave, config()), QStringLiteral("C:\\dados\\Banco.mdb"));
  Grava_ini(kSecao, kChave, QString(), config());
  QCOMPARE(Le_ini(kSecao, kChave, config()), QString());
  QCOMPARE(test::contentOf(config()), QByteArray("[Diretorio]\r\ncaminho=\r\n"));
}

void IniTest::absentReadsAsEmpty() {
  QCOMPARE(Le_ini(kSecao, kChave, config()), QString());
  Grava_ini(kSecao, QStringLiteral("outra"), QStringLiteral("1"), config());
  QCOMPARE(Le_ini(kSecao, kChave, config()), QString());
  QCOMPARE(Le_ini(QStringLiteral("Outra"), kChave, config()), QString());
  QCOMPARE(Le_ini(kSecao, kChave, QString()), QString());
}

// What is there and cannot be read is not empty.
void IniTest::unreadableIsAnError() {
  int numero = 0;
  try {
    Le_ini(kSecao, kChave, pasta_->path());
  } catch (const RuntimeError& erro) {
    numero = erro.number();
  }
  QCOMPARE(numero, 75);
}

void IniTest::matchesWithoutRegardToCase() {
  Grava_ini(QStringLiteral("Contador"), QStringLiteral("ano"), QStringLiteral("2014"), config());
  QCOMPARE(Le_ini(QStringLiteral("contador"), QStringLiteral("ANO"), config()),
           QStringLiteral("2014"));
  Grava_ini(QStringLiteral("CONTADOR"), QStringLiteral("Ano"), QStringLiteral("2015"), config());
  QCOMPARE(test::contentOf(config()), QByteArray("[Contador]\r\nano=2015\r\n"));
}

void IniTest::cutsAt255Characters() {
  Grava_ini(kSecao, kChave, QString(300, u'é'), config());
  QCOMPARE(Le_ini(kSecao, kChave, config()), QString(255, u'é'));
}

void IniTest::takesPathsAsKeyFilesGiveThem() {
  QVERIFY(QDir(pasta_->path()).mkdir(QStringLiteral("dados")));
  Grava_ini(kSecao, kChave, QStringLiteral("x"), QStringLiteral("dados\\Number.Ini"));
  QCOMPARE(Le_ini(kSecao, kChave, pasta_->filePath(QStringLiteral("dados/Number.Ini"))),
           QStringLiteral("x"));
  QCOMPARE(Le_ini(kSecao, kChave, QStringLiteral("dados/Number.Ini")), QStringLiteral("x"));
}

void IniTest::leavesTheRestOfTheFileAlone() {
  QFile file(config());
  QVERIFY(file.open(QIODevice::WriteOnly));
  const QByteArray antes(
      "; Finan\xE7"
      "as\r\n[Financas]\nnome = Jos\xE9\r\ncargo=x");
  QCOMPARE(file.write(antes), antes.size());
  file.close();
  Grava_ini(QStringLiteral("Financas"), QStringLiteral("cargo"), QStringLiteral("Secretário"),
            config());
  QCOMPARE(test::contentOf(config()),
           QByteArray("; Finan\xE7"
                      "as\r\n[Financas]\nnome = Jos\xE9\r\ncargo=Secret\xE1rio"));
  QCOMPARE(Le_ini(QStringLiteral("FINANCAS"), QStringLiteral("nome"), config()),
           QStringLiteral("José"));
}

void IniTest::tellsWhatItCannotWrite_data() {
  QTest::addColumn<QString>("arquivo");
  QTest::addColumn<int>("numero");
  QTest::newRow("no file name") << QString() << 76;
  QTest::newRow("folder missing") << QStringLiteral("nada/Config.ini") << 76;
  QTest::newRow("below a file") << QStringLiteral("Config.ini/Config.ini") << 76;
  QTest::newRow("a folder") << QStringLiteral(".") << 75;
}

void IniTest::tellsWhatItCannotWrite() {
  QFETCH(QString, arquivo);
  Grava_ini(kSecao, kChave, QStringLiteral("x"), config());
  const QByteArray antes = test::contentOf(config());
  int numero = 0;
  try {
    Grava_ini(kSecao, kChave, QStringLiteral("y"), arquivo);
  } catch (const RuntimeError& erro) {
    numero = erro.number();
  }
  QTEST(numero, "numero");
  QCOMPARE(test::contentOf(config()), antes);
}

QUARTELA_TEST_MAIN(IniTest)
#include "Ini_test.moc"
