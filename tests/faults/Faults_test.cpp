// Every call by which a working day reaches its files fails once, goes on failing, or is the last
// before the program is killed. Afterwards every acknowledged row is there, whole; none that was
// refused has come; the key files are old or new; nobody is kept out.
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include "foundation/Abertura.h"
#include "foundation/Banco.h"
#include "foundation/Caminhos.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/files/AtomicFile.h"
#include "platform/files/ProgramFolder.h"
#include "tests/faults/FaultScenario.h"
#include "tests/faults/SystemCalls.h"
#include "tests/support/TestMain.h"

namespace quartela::test::faults {
namespace {

// The operator who says yes to every question; what a stop box tells has failed.
class Yes : public DialogHost {
 public:
  Button box(const Box& box) override {
    failed = failed || box.icon == BoxIcon::Stop;
    return box.buttons.contains(Button::Yes) ? Button::Yes : box.buttons.first();
  }
  QString openFile(const FileRequest&) override { return {}; }
  QString saveFile(const FileRequest&) override { return {}; }
  QString pickFolder(const QString&) override { return {}; }
  QString input(const InputRequest&) override { return {}; }
  bool printer(QPrinter&) override { return false; }
  bool failed = false;
};

enum Outcome : char { NotBegun, Begun, Acknowledged, Refused };

struct Report {
  char step;
  char outcome;
};

void tell(int pipe, std::size_t step, Outcome outcome) {
  const Report report{static_cast<char>(step), outcome};
  if (::write(pipe, &report, sizeof report) != sizeof report) {
    ::_exit(3);
  }
}

bool act(const Step& step, Yes& operator_) {
  operator_.failed = false;
  try {
    return step.act() && !operator_.failed;
  } catch (const RuntimeError&) {
    return false;
  }
}

// The child: works through the steps, waits before the closing until the parent has looked.
void work(const QString& folder, const Plans& plans, int reports, int goOn) {
  Yes yes;
  Dialogs::setHost(&yes);
  setProgramFolder(folder);
  caminhos.geral = QStringLiteral("Banco.mdb");
  const std::vector<Step> steps = stepsOf(folder);
  watch(QFile::encodeName(folder).constData(), plans);
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const bool closing = i + 1 == steps.size();
    if (closing) {
      tell(reports, i, NotBegun);
      char word = 0;
      if (::read(goOn, &word, 1) != 1) {
        ::_exit(4);
      }
    }
    tell(reports, i, Begun);
    const bool done = act(steps[i], yes);
    tell(reports, i, done ? Acknowledged : Refused);
    if (i == 0 && !done) {
      break;
    }
  }
  const std::array<int, kCalls> made = counts();
  forget();
  if (::write(reports, made.data(), sizeof made) != sizeof made) {
    ::_exit(5);
  }
}

class PlainFile {
 public:
  explicit PlainFile(const QString& path) {
    sqlite3_open_v2(path.toUtf8().constData(), &handle_, SQLITE_OPEN_READWRITE, nullptr);
  }
  ~PlainFile() { sqlite3_close(handle_); }
  PlainFile(const PlainFile&) = delete;
  PlainFile& operator=(const PlainFile&) = delete;

  bool runs(const char* sql) {
    return sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
  }
  QByteArray ask(const QByteArray& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle_, sql.constData(), -1, &statement, nullptr) != SQLITE_OK) {
      return sqlite3_errmsg(handle_);
    }
    QByteArray answer;
    if (sqlite3_step(statement) == SQLITE_ROW) {
      answer = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
    }
    sqlite3_finalize(statement);
    return answer;
  }

 private:
  sqlite3* handle_ = nullptr;
};

QByteArray contentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

constexpr int kRuns = 1500;
constexpr int kLongRuns = 10 * kRuns;

bool isLong() {
  return qEnvironmentVariableIsSet("QUARTELA_LONG");
}

// The usual run passes some of the calls that come by the hundred: those that change nothing, and
// writes that fail or are the last in a second way.
int stepOf(Call call, Fault fault) {
  if (isLong()) {
    return 1;
  }
  if (call == Call::Write) {
    return fault == Fault::Fails || fault == Fault::KilledBefore ? 1 : 3;
  }
  const bool looks = call == Call::Read || call == Call::Lock || call == Call::Unlock ||
                     call == Call::Open || call == Call::Close;
  return looks ? 3 : 1;
}

// Where nothing waits for a disk: what is asked here is not what is on it.
QString quickFolder() {
  const QString memory = QStringLiteral("/dev/shm");
  return QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
}

}  // namespace

class FaultsTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void withoutFaultsAllIsDone();
  void everyCall_data();
  void everyCall();
  void twoInOneDay();
  void enoughRuns();

 private:
  struct Run {
    std::vector<Outcome> outcomes;
    std::array<int, kCalls> made{};
    bool locked = false;
  };

  Run play(const QString& folder, const Plans& plans);
  void check(const QString& folder, const Run& run);
  void checkStep(const QString& folder, PlainFile& database, const Step& step, Outcome outcome);
  void carryOut(const Plans& plans);
  QByteArray told(const Plans& plans) const;

  OfficeFiles files_;
  std::array<int, kCalls> all_{};
  int runs_ = 0;
  QByteArray problem_;
};

void FaultsTest::initTestCase() {
  const QTemporaryDir folder(quickFolder() + QStringLiteral("/quartela-falhas-XXXXXX"));
  all_ = play(folder.path(), {}).made;
}

FaultsTest::Run FaultsTest::play(const QString& folder, const Plans& plans) {
  files_.layOut(folder);
  int reports[2];
  int goOn[2];
  if (::pipe(reports) != 0 || ::pipe(goOn) != 0) {
    qFatal("no pipe");
  }
  const pid_t child = ::fork();
  if (child == 0) {
    ::close(reports[0]);
    ::close(goOn[1]);
    work(folder, plans, reports[1], goOn[0]);
    ::_exit(0);
  }
  ::close(reports[1]);
  ::close(goOn[0]);
  Run run;
  run.outcomes.assign(stepsOf(folder).size(), NotBegun);
  Report report{};
  bool last = false;
  while (!last && ::read(reports[0], &report, sizeof report) == sizeof report) {
    const auto step = static_cast<std::size_t>(report.step);
    run.outcomes[step] = static_cast<Outcome>(report.outcome);
    const bool closing = step + 1 == run.outcomes.size();
    if (closing && report.outcome == NotBegun) {
      run.locked = !PlainFile(folder + QStringLiteral("/Banco.mdb")).runs("BEGIN EXCLUSIVE");
      if (::write(goOn[1], "x", 1) != 1) {
        qFatal("the child is gone");
      }
    }
    last = (closing && report.outcome > Begun) || (step == 0 && report.outcome == Refused);
  }
  if (last && ::read(reports[0], run.made.data(), sizeof run.made) != sizeof run.made) {
    run.made = {};
  }
  ::close(reports[0]);
  ::close(goOn[1]);
  int status = 0;
  ::waitpid(child, &status, 0);
  if (!(WIFEXITED(status) && WEXITSTATUS(status) == 0) &&
      !(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)) {
    problem_ = "the program ended with status " + QByteArray::number(status);
  }
  ++runs_;
  return run;
}

void FaultsTest::checkStep(const QString& folder, PlainFile& database, const Step& step,
                           Outcome outcome) {
  if (!step.effect.isEmpty()) {
    const QByteArray effect = database.ask(step.effect).isEmpty() ? "0" : database.ask(step.effect);
    const bool whole = effect == "1";
    const bool none = effect == "0";
    if ((!whole && !none) || (outcome == Acknowledged && !whole) ||
        ((outcome == Refused || outcome == NotBegun) && !none)) {
      problem_ =
          QByteArray(step.name) + ": outcome " + QByteArray::number(outcome) + ", effect " + effect;
    }
  }
  if (!step.file.isEmpty()) {
    const QByteArray content =
        contentOf(folder + QLatin1Char('/') + QString::fromLatin1(step.file));
    const bool isNew = step.file.endsWith(".pdf")
                           ? content.startsWith("%PDF") && content.endsWith(step.after)
                           : content == step.after;
    const bool isOld = content == step.before;
    if ((!isNew && !isOld) || (outcome == Acknowledged && !isNew) ||
        (outcome == NotBegun && !isOld)) {
      problem_ = QByteArray(step.name) + ": outcome " + QByteArray::number(outcome) +
                 ", the file has " + QByteArray::number(content.size()) + " bytes";
    }
  }
}

void FaultsTest::check(const QString& folder, const Run& run) {
  if (run.locked) {
    problem_ = "a lock was left";
  }
  const QString path = folder + QStringLiteral("/Banco.mdb");
  try {
    // The next start of the program.
    clearLeftovers(folder);
    Connection connection;
    connection.open(QStringLiteral("Data Source=") + path);
    if (!connection.notices().isEmpty()) {
      problem_ = connection.notices().first().toUtf8();
    }
  } catch (const RuntimeError& error) {
    problem_ = error.what();
  }
  PlainFile database(path);
  if (database.ask("PRAGMA integrity_check") != "ok" ||
      !database.ask("PRAGMA foreign_key_check").isEmpty()) {
    problem_ = "the database is damaged";
  }
  const std::vector<Step> steps = stepsOf(folder);
  for (std::size_t i = 0; i < steps.size(); ++i) {
    checkStep(folder, database, steps[i], run.outcomes[i]);
  }
  static const QStringList known{QStringLiteral("Banco.mdb"), QStringLiteral("Config.ini"),
                                 QStringLiteral("Number.Ini"), QStringLiteral("notas.pdf"),
                                 QStringLiteral("notas.txt")};
  const QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden);
  for (const QString& name : names) {
    // A PDF's unfinished file is the toolkit's, which gives it a name of its own.
    if (!known.contains(name) && !name.startsWith(QStringLiteral("notas.pdf."))) {
      problem_ = "left behind: " + name.toUtf8();
    }
  }
}

QByteArray FaultsTest::told(const Plans& plans) const {
  QByteArray text;
  for (const Plan& plan : plans) {
    text += "fault " + QByteArray::number(static_cast<int>(plan.fault)) + " at " +
            kCallNames[static_cast<std::size_t>(plan.call)] + ' ' + QByteArray::number(plan.nth) +
            ", ";
  }
  return text + problem_;
}

void FaultsTest::carryOut(const Plans& plans) {
  const QTemporaryDir folder(quickFolder() + QStringLiteral("/quartela-falhas-XXXXXX"));
  problem_.clear();
  const Run run = play(folder.path(), plans);
  check(folder.path(), run);
  QVERIFY2(problem_.isEmpty(), told(plans).constData());
}

void FaultsTest::withoutFaultsAllIsDone() {
  const QTemporaryDir folder(quickFolder() + QStringLiteral("/quartela-falhas-XXXXXX"));
  problem_.clear();
  const Run run = play(folder.path(), {});
  for (const Outcome outcome : run.outcomes) {
    QCOMPARE(outcome, Acknowledged);
  }
  check(folder.path(), run);
  QCOMPARE(problem_, QByteArray());
}

void FaultsTest::everyCall_data() {
  QTest::addColumn<Call>("call");
  QTest::addColumn<Fault>("fault");
  const auto row = [](Call call, Fault fault, const char* name) {
    const QByteArray title = QByteArray(kCallNames[static_cast<std::size_t>(call)]) + ' ' + name;
    QTest::newRow(title.constData()) << call << fault;
  };
  for (int i = 0; i < kCalls; ++i) {
    row(static_cast<Call>(i), Fault::Fails, "fails once");
  }
  for (const Call call :
       {Call::Open, Call::Write, Call::Sync, Call::Rename, Call::Unlink, Call::Lock}) {
    row(call, Fault::FailsOn, "fails from then on");
  }
  row(Call::Write, Fault::Torn, "writes a part");
  for (const Call call :
       {Call::Open, Call::Write, Call::Sync, Call::Rename, Call::Unlink, Call::Rights}) {
    row(call, Fault::KilledBefore, "is the last begun");
    row(call, Fault::KilledAfter, "is the last done");
  }
}

void FaultsTest::everyCall() {
  QFETCH(Call, call);
  QFETCH(Fault, fault);
  const int made = all_[static_cast<std::size_t>(call)];
  QVERIFY(made > 0);
  for (int nth = 1; nth <= made && !QTest::currentTestFailed(); nth += stepOf(call, fault)) {
    carryOut({Plan{fault, call, nth}, Plan{}});
  }
}

// The long run: two faults in one working day, chosen by chance.
void FaultsTest::twoInOneDay() {
  if (!isLong()) {
    QSKIP("only in the long run");
  }
  QRandomGenerator random(20141121);
  const auto any = [&] {
    constexpr Fault kFaults[]{Fault::Fails, Fault::FailsOn, Fault::KilledBefore,
                              Fault::KilledAfter};
    const auto call = static_cast<Call>(random.bounded(kCalls));
    const int made = all_[static_cast<std::size_t>(call)];
    // With locks that fail for good a lock that was left cannot be given up by anybody.
    const bool locks = call == Call::Lock || call == Call::Unlock;
    return Plan{locks ? Fault::Fails : kFaults[random.bounded(4)], call, 1 + random.bounded(made)};
  };
  while (runs_ < kLongRuns && !QTest::currentTestFailed()) {
    carryOut({any(), any()});
  }
}

void FaultsTest::enoughRuns() {
  qInfo("%d runs", runs_);
  QVERIFY2(runs_ >= (isLong() ? kLongRuns : kRuns), QByteArray::number(runs_).constData());
}

}  // namespace quartela::test::faults

Q_DECLARE_METATYPE(quartela::test::faults::Call)
Q_DECLARE_METATYPE(quartela::test::faults::Fault)

QUARTELA_TEST_MAIN(quartela::test::faults::FaultsTest)
#include "Faults_test.moc"
