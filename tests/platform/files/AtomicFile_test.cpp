#include "platform/files/AtomicFile.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <csignal>

#include "tests/platform/files/OrdinaryUser.h"
#include "tests/support/Files.h"
#include "tests/support/TestMain.h"

using namespace quartela;

namespace {

// The number of the error of a write, 0 when it succeeds.
int write(const QString& path, const QByteArray& bytes) {
  try {
    replaceFile(path, bytes);
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return 0;
}

// No file may become larger than `bytes`, as on a disk that is full.
class SmallFiles {
 public:
  explicit SmallFiles(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit now = before_;
    now.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &now);
  }
  ~SmallFiles() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  SmallFiles(const SmallFiles&) = delete;
  SmallFiles& operator=(const SmallFiles&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int);
};

}  // namespace

class AtomicFileTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { folder_.reset(); }

  void makesAndReplaces();
  void keepsPermissions();
  void writesThroughALink();
  void refusesPlaces_data();
  void refusesPlaces();
  void leavesTheFileWhenTheDiskTakesNoMore();
  void respectsAReadOnlyFile();
  void respectsAReadOnlyFolder();
  void numbersErrors();
  void keepsTheGroup();
  void clearsWhatAKilledProgramLeft();
  void readsWhole();

 private:
  QString path(const QString& name) const { return folder_->filePath(name); }
  QStringList names() const {
    return QDir(folder_->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  std::unique_ptr<QTemporaryDir> folder_;
};

void AtomicFileTest::init() {
  folder_ = std::make_unique<QTemporaryDir>();
  QVERIFY(folder_->isValid());
}

void AtomicFileTest::makesAndReplaces() {
  const QString file = path(QStringLiteral("Config.ini"));
  QCOMPARE(write(file, "one"), 0);
  QCOMPARE(test::contentOf(file), QByteArray("one"));
  QCOMPARE(write(file, QByteArray(100'000, 'x')), 0);
  QCOMPARE(test::contentOf(file), QByteArray(100'000, 'x'));
  QCOMPARE(write(file, {}), 0);
  QCOMPARE(test::contentOf(file), QByteArray());
  QCOMPARE(names(), QStringList{QStringLiteral("Config.ini")});
}

void AtomicFileTest::keepsPermissions() {
  const QString file = path(QStringLiteral("Set.dat"));
  QCOMPARE(write(file, "one"), 0);
  const auto permissions = QFile::ReadOwner | QFile::WriteOwner;
  QVERIFY(QFile::setPermissions(file, permissions));
  QCOMPARE(write(file, "two"), 0);
  struct stat status {};
  QCOMPARE(::stat(QFile::encodeName(file).constData(), &status), 0);
  QCOMPARE(static_cast<unsigned>(status.st_mode & 0777U), 0600U);
}

void AtomicFileTest::writesThroughALink() {
  const QString file = path(QStringLiteral("real.ini"));
  const QString link = path(QStringLiteral("link.ini"));
  QCOMPARE(write(file, "one"), 0);
  QVERIFY(QFile::link(file, link));
  QCOMPARE(write(link, "two"), 0);
  QVERIFY(QFileInfo(link).isSymLink());
  QCOMPARE(test::contentOf(file), QByteArray("two"));
}

void AtomicFileTest::refusesPlaces_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<int>("error");
  QTest::newRow("folder missing") << QStringLiteral("none/Config.ini") << 76;
  QTest::newRow("below a file") << QStringLiteral("file/Config.ini") << 76;
  QTest::newRow("a folder") << QStringLiteral("folder") << 75;
}

void AtomicFileTest::refusesPlaces() {
  QFETCH(QString, name);
  QCOMPARE(write(path(QStringLiteral("file")), "one"), 0);
  QVERIFY(QDir(folder_->path()).mkdir(QStringLiteral("folder")));
  QTEST(write(path(name), "two"), "error");
  QCOMPARE(test::contentOf(path(QStringLiteral("file"))), QByteArray("one"));
  QCOMPARE(names(), (QStringList{QStringLiteral("file"), QStringLiteral("folder")}));
}

void AtomicFileTest::leavesTheFileWhenTheDiskTakesNoMore() {
  const QString file = path(QStringLiteral("Config.ini"));
  QCOMPARE(write(file, "one"), 0);
  int error = 0;
  {
    const SmallFiles limit(1000);
    error = write(file, QByteArray(100'000, 'x'));
  }
  QCOMPARE(error, 75);
  QCOMPARE(test::contentOf(file), QByteArray("one"));
  QCOMPARE(names(), QStringList{QStringLiteral("Config.ini")});
}

void AtomicFileTest::respectsAReadOnlyFile() {
  const test::OrdinaryUser user(folder_->path());
  if (!user.isOrdinary()) {
    QSKIP("The permissions of files bind nobody here.");
  }
  const QString file = path(QStringLiteral("Config.ini"));
  QCOMPARE(write(file, "one"), 0);
  QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
  QCOMPARE(write(file, "two"), 70);
  QCOMPARE(test::contentOf(file), QByteArray("one"));
}

void AtomicFileTest::respectsAReadOnlyFolder() {
  const test::OrdinaryUser user(folder_->path());
  if (!user.isOrdinary()) {
    QSKIP("The permissions of folders bind nobody here.");
  }
  const QString file = path(QStringLiteral("Config.ini"));
  QCOMPARE(write(file, "one"), 0);
  QVERIFY(QFile::setPermissions(folder_->path(), QFile::ReadOwner | QFile::ExeOwner));
  const int existing = write(file, "two");
  const int fresh = write(path(QStringLiteral("new.ini")), "two");
  QVERIFY(QFile::setPermissions(folder_->path(),
                                QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  QCOMPARE(existing, 70);
  QCOMPARE(fresh, 70);
  QCOMPARE(test::contentOf(file), QByteArray("one"));
}

void AtomicFileTest::numbersErrors() {
  QCOMPARE(writeErrorNumber(QFileDevice::PermissionsError), ErrorNumber::PermissionDenied);
  QCOMPARE(writeErrorNumber(QFileDevice::ResourceError), ErrorNumber::DiskFull);
  QCOMPARE(writeErrorNumber(QFileDevice::WriteError), ErrorNumber::PathFileAccess);
  QCOMPARE(writeErrorNumber(QFileDevice::RenameError), ErrorNumber::PathFileAccess);
}

// Who could use the file through its group still can.
void AtomicFileTest::keepsTheGroup() {
  if (::geteuid() != 0) {
    QSKIP("Only root can give a file to another group.");
  }
  const QString file = path(QStringLiteral("Config.ini"));
  QCOMPARE(write(file, "one"), 0);
  const QByteArray name = QFile::encodeName(file);
  QCOMPARE(::chown(name.constData(), 0, 4242), 0);
  QCOMPARE(::chmod(name.constData(), 0660), 0);
  QCOMPARE(write(file, "two"), 0);
  struct stat status {};
  QCOMPARE(::stat(name.constData(), &status), 0);
  QCOMPARE(status.st_gid, 4242U);
  QCOMPARE(static_cast<unsigned>(status.st_mode & 07777), 0660U);
}

void AtomicFileTest::clearsWhatAKilledProgramLeft() {
  const pid_t child = ::fork();
  if (child == 0) {
    AtomicFile unfinished(path(QStringLiteral("Number.Ini")));
    unfinished.write("half");
    ::kill(::getpid(), SIGKILL);
  }
  int status = 0;
  QCOMPARE(::waitpid(child, &status, 0), child);
  QVERIFY(WIFSIGNALED(status));
  QCOMPARE(names().size(), 1);
  // One that is being written stays.
  AtomicFile current(path(QStringLiteral("Config.ini")));
  QCOMPARE(write(path(QStringLiteral("other")), "x"), 0);
  QCOMPARE(names().size(), 3);
  clearLeftovers(folder_->path());
  QCOMPARE(names().size(), 2);
  current.commit();
  QCOMPARE(names(), (QStringList{QStringLiteral("Config.ini"), QStringLiteral("other")}));
}

void AtomicFileTest::readsWhole() {
  const QString file = path(QStringLiteral("Config.ini"));
  QVERIFY(!readWhole(file, 10));
  QCOMPARE(write(file, "ten bytes."), 0);
  QCOMPARE(readWhole(file, 10), QByteArray("ten bytes."));
  const auto errorOf = [](const QString& name, qint64 most) {
    try {
      readWhole(name, most);
    } catch (const RuntimeError& error) {
      return error.number();
    }
    return 0;
  };
  QCOMPARE(errorOf(file, 9), 75);
  QCOMPARE(errorOf(folder_->path(), 10), 75);
  QCOMPARE(errorOf(file + QStringLiteral("/below"), 10), 76);
}

QUARTELA_TEST_MAIN(AtomicFileTest)
#include "AtomicFile_test.moc"
