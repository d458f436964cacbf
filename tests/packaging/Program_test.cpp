// The folder of a delivery: who may read what is laid out, and where the program looks for its
// parts.
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include "platform/files/KeyFile.h"
#include "tests/support/Folders.h"
#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

unsigned rightsOf(const QString& path) {
  struct stat status {};
  return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

int layOut(const QString& folder) {
  return QProcess::execute(test::inSource(QStringLiteral("packaging/lay-out")),
                           {test::inBuild(QString()), folder});
}

void write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly));
  QCOMPARE(file.write(bytes), bytes.size());
}

}  // namespace

class ProgramTest : public QObject {
  Q_OBJECT

 private slots:
  void dataIsForOwnerAndGroupAlone();
  void interruptedLayingOutIsCleared();
  void partsAreNeverLookedForBesideTheData();
};

void ProgramTest::dataIsForOwnerAndGroupAlone() {
  const QTemporaryDir place;
  const QString folder = place.filePath(QStringLiteral("programa"));
  const mode_t before = ::umask(0);
  const int done = layOut(folder);
  ::umask(before);
  QCOMPARE(done, 0);
  for (const char* name :
       {"Set.dat", "Config.ini", "Number.Ini", "Banco.mdb", "Demonstracao.mdb"}) {
    QCOMPARE(rightsOf(folder + QLatin1Char('/') + QLatin1String(name)), 0660U);
  }
  const QString passwords = folder + QStringLiteral("/Set.dat");
  writeKey(passwords, QStringLiteral("Number"), QStringLiteral("valor1"), QStringLiteral("nova"));
  QCOMPARE(rightsOf(passwords), 0660U);
  // What the office has changed stays at the next laying out.
  QCOMPARE(layOut(folder), 0);
  QCOMPARE(readKey(passwords, QStringLiteral("Number"), QStringLiteral("valor1")),
           QStringLiteral("nova"));
}

void ProgramTest::interruptedLayingOutIsCleared() {
  const QTemporaryDir folder;
  QVERIFY(QDir(folder.path()).mkdir(QStringLiteral(".nova-Ab12Cd")));
  write(folder.filePath(QStringLiteral(".nova-Ab12Cd/Banco.mdb")), "half");
  QCOMPARE(layOut(folder.path()), 0);
  const QStringList hidden = QDir(folder.path())
                                 .entryList({QStringLiteral(".*")},
                                            QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  QCOMPARE(hidden, QStringList());
}

void ProgramTest::partsAreNeverLookedForBesideTheData() {
  const QTemporaryDir folder;
  const QString program = folder.filePath(QStringLiteral("quartela"));
  QVERIFY(QFile::copy(test::inBuild(QStringLiteral("bin/quartela")), program));
  write(folder.filePath(QStringLiteral("qt.conf")), "[Paths]\nPrefix=/nada\nPlugins=/nada\n");
  QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("platforms")));
  write(folder.filePath(QStringLiteral("platforms/libqoffscreen.so")), "x");
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("QT_DEBUG_PLUGINS"), QStringLiteral("1"));
  process.setProcessEnvironment(environment);
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, {});
  QByteArray told;
  // The pictures are looked for once the window is being made.
  while (!told.contains("plugins/imageformats") && process.waitForReadyRead(60'000)) {
    told += process.readAll();
  }
  process.kill();
  QVERIFY(process.waitForFinished());
  QVERIFY2(told.contains("plugins/imageformats"), told.constData());
  QVERIFY2(!told.contains(QFile::encodeName(folder.path())), told.constData());
}

QUARTELA_TEST_MAIN(ProgramTest)
#include "Program_test.moc"
