#include "platform/files/ProgramFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "platform/files/AtomicFile.h"
#include "tests/platform/files/OrdinaryUser.h"
#include "tests/support/Files.h"
#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

constexpr auto kReadOnlyFolder = QFile::ReadOwner | QFile::ExeOwner;
constexpr auto kFolder = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

}  // namespace

class ProgramFolderTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void isTheExecutablesFolder();
  void isWhereATestPutsIt();
  void findsFiles_data();
  void findsFiles();
  void takesPathsWithEitherSeparator_data();
  void takesPathsWithEitherSeparator();
  void staysWhereItCanBeWritten();
  void fillsTheUsersOwnFolder();
  void takesNothingFromWhereNoDeliveryIs();
  void tellsWhenItCannotBeFilled();

 private:
  QString executables() const { return folder_->filePath(QStringLiteral("executables")); }
  QString own() const { return folder_->filePath(QStringLiteral("own/data")); }
  void deliver(const QString& name, const QByteArray& bytes) const {
    replaceFile(executables() + QLatin1Char('/') + name, bytes);
  }

  std::unique_ptr<QTemporaryDir> folder_;
};

void ProgramFolderTest::init() {
  folder_ = std::make_unique<QTemporaryDir>();
  QVERIFY(folder_->isValid());
}

void ProgramFolderTest::cleanup() {
  setProgramFolder({});
  folder_.reset();
}

void ProgramFolderTest::isTheExecutablesFolder() {
  setProgramFolder(folder_->path());
  setProgramFolder({});
  QCOMPARE(programFolder(), QCoreApplication::applicationDirPath());
}

void ProgramFolderTest::isWhereATestPutsIt() {
  setProgramFolder(folder_->path() + QLatin1Char('/'));
  QCOMPARE(programFolder(), folder_->path());
}

void ProgramFolderTest::findsFiles_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<QString>("path");
  QTest::newRow("backslash") << QStringLiteral("\\Config.ini") << QStringLiteral("/q/Config.ini");
  QTest::newRow("slash") << QStringLiteral("/Config.ini") << QStringLiteral("/q/Config.ini");
  QTest::newRow("none") << QStringLiteral("Config.ini") << QStringLiteral("/q/Config.ini");
  QTest::newRow("two") << QStringLiteral("\\\\Config.ini") << QStringLiteral("/q/Config.ini");
  QTest::newRow("below") << QStringLiteral("\\Fotos\\a b.png")
                         << QStringLiteral("/q/Fotos/a b.png");
  QTest::newRow("accents") << QStringLiteral("\\Serviços.pdf") << QStringLiteral("/q/Serviços.pdf");
}

void ProgramFolderTest::findsFiles() {
  QFETCH(QString, name);
  setProgramFolder(QStringLiteral("/q"));
  QTEST(programFile(name), "path");
}

void ProgramFolderTest::takesPathsWithEitherSeparator_data() {
  QTest::addColumn<QString>("given");
  QTest::addColumn<QString>("path");
  const auto row = [](const char* given, const char* path) {
    QTest::newRow(*given ? given : "empty") << QString::fromUtf8(given) << QString::fromUtf8(path);
  };
  row("", "");
  row("Banco.mdb", "/q/Banco.mdb");
  row("dados\\Banco.mdb", "/q/dados/Banco.mdb");
  row("dados/Banco.mdb", "/q/dados/Banco.mdb");
  row("..\\Banco.mdb", "/Banco.mdb");
  row("/srv/finanças/Banco.mdb", "/srv/finanças/Banco.mdb");
  row("\\srv\\Banco.mdb", "/srv/Banco.mdb");
  row("/srv//dados/./Banco.mdb", "/srv/dados/Banco.mdb");
  row("C:\\dados\\Banco.mdb", "/q/C:/dados/Banco.mdb");
}

void ProgramFolderTest::takesPathsWithEitherSeparator() {
  QFETCH(QString, given);
  setProgramFolder(QStringLiteral("/q"));
  QTEST(nativePath(given), "path");
}

void ProgramFolderTest::staysWhereItCanBeWritten() {
  QVERIFY(QDir().mkpath(executables()));
  deliver(QStringLiteral("Config.ini"), "x");
  QCOMPARE(chooseProgramFolder(executables(), own()), executables());
  QVERIFY(!QFileInfo::exists(own()));
}

void ProgramFolderTest::fillsTheUsersOwnFolder() {
  const test::OrdinaryUser user(folder_->path());
  if (!user.isOrdinary()) {
    QSKIP("The permissions of folders bind nobody here.");
  }
  QVERIFY(QDir().mkpath(executables() + QStringLiteral("/Fotos")));
  deliver(QStringLiteral("Config.ini"), "installed");
  deliver(QStringLiteral("Set.dat"), "installed");
  deliver(QStringLiteral("Fotos/brasão.png"), "picture");
  QVERIFY(QFile::setPermissions(executables() + QStringLiteral("/Config.ini"), QFile::ReadOwner));
  QVERIFY(QDir().mkpath(own()));
  replaceFile(own() + QStringLiteral("/Set.dat"), "changed");
  QVERIFY(QFile::setPermissions(executables(), kReadOnlyFolder));
  const QString chosen = chooseProgramFolder(executables(), own());
  QVERIFY(QFile::setPermissions(executables(), kFolder));

  QCOMPARE(chosen, own());
  QCOMPARE(test::contentOf(own() + QStringLiteral("/Config.ini")), QByteArray("installed"));
  QCOMPARE(test::contentOf(own() + QStringLiteral("/Set.dat")), QByteArray("changed"));
  QCOMPARE(test::contentOf(own() + QStringLiteral("/Fotos/brasão.png")), QByteArray("picture"));
  // A copy can be written though what it was made from could not.
  replaceFile(own() + QStringLiteral("/Config.ini"), "set");
}

void ProgramFolderTest::takesNothingFromWhereNoDeliveryIs() {
  const test::OrdinaryUser user(folder_->path());
  if (!user.isOrdinary()) {
    QSKIP("The permissions of folders bind nobody here.");
  }
  QVERIFY(QDir().mkpath(executables()));
  deliver(QStringLiteral("another-program"), "x");
  QVERIFY(QFile::setPermissions(executables(), kReadOnlyFolder));
  const QString chosen = chooseProgramFolder(executables(), own());
  QVERIFY(QFile::setPermissions(executables(), kFolder));
  QCOMPARE(chosen, own());
  QVERIFY(QDir(own()).exists());
  QVERIFY(QDir(own()).isEmpty());
}

void ProgramFolderTest::tellsWhenItCannotBeFilled() {
  replaceFile(folder_->filePath(QStringLiteral("own")), "a file where the folder should be");
  int error = 0;
  try {
    // A folder that is not there cannot be written either.
    chooseProgramFolder(executables(), own());
  } catch (const RuntimeError& failure) {
    error = failure.number();
  }
  QCOMPARE(error, 75);
}

QUARTELA_TEST_MAIN(ProgramFolderTest)
#include "ProgramFolder_test.moc"
