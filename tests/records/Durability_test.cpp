// What the operator was told is saved stays saved: a program that is killed in the middle of its
// work leaves every acknowledged requisition whole, and nothing half.
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>
#include <QThread>

#include "foundation/Abertura.h"
#include "tests/records/durability/SavedRequisition.h"
#include "tests/support/Folders.h"
#include "tests/support/TestMain.h"
#include "tests/support/office/Office.h"

namespace quartela {
namespace {

constexpr int kKills = 200;
constexpr quint32 kSeed = 20'141'121;
constexpr int kMostSaves = 12;
constexpr int kMostMicroseconds = 3'000;

// Starts the child at `first`, lets it acknowledge some rows and kills it a random moment later.
// Gives the last number acknowledged, or -1 when the child ended by itself.
std::int32_t saveAndKill(const QString& database, std::int32_t first, QRandomGenerator& random) {
  QProcess child;
  child.start(quartela::test::inBuild(QStringLiteral("tests/save_requisitions")),
              {database, QString::number(first)});
  const int saves = random.bounded(1, kMostSaves);
  QByteArray printed;
  while (printed.count('\n') < saves) {
    if (!child.waitForReadyRead(60'000)) {
      qWarning("the child stopped: %s", child.readAllStandardError().constData());
      return -1;
    }
    printed += child.readAllStandardOutput();
  }
  QThread::usleep(static_cast<unsigned long>(random.bounded(kMostMicroseconds)));
  child.kill();
  child.waitForFinished();
  printed += child.readAllStandardOutput();
  printed.truncate(printed.lastIndexOf('\n'));
  return printed.mid(printed.lastIndexOf('\n') + 1).toInt();
}

}  // namespace

class DurabilityTest : public QObject {
  Q_OBJECT

 private slots:
  void killedAtAnyMomentNothingAcknowledgedIsLost() {
    test::Office office;
    office.run(
        "INSERT INTO Orgao(IDORGAO, ORGAO) VALUES (1, 'Saúde');"
        "INSERT INTO Executor(ORDEM, IDORGAO, NOME) VALUES (1, 1, 'Ordenador');"
        "INSERT INTO Tomador(ID, NOME1) VALUES (1, 'Responsável');"
        "INSERT INTO Tipos(SEQUENCIA, IDORGAO, TIPO) VALUES (1, 1, 'Miúdas');");
    Fecha_banco();

    QRandomGenerator random(kSeed);
    std::int32_t first = 1;
    for (int kill = 0; kill < kKills; ++kill) {
      const std::int32_t last = saveAndKill(office.database(), first, random);
      QVERIFY(last >= first);
      acknowledgedRowsAreThere(office, first, last);
      if (QTest::currentTestFailed()) {
        return;
      }
      first = office.ask("SELECT max(SEQ) FROM Requisicao").toInt() + 1;
    }
    everyRowIsWhole(office);
  }

 private:
  // The rows of one child: all that it acknowledged, and at most one more that it could not tell
  // of.
  static void acknowledgedRowsAreThere(const test::Office& office, std::int32_t first,
                                       std::int32_t last) {
    const auto count = [&](const char* condition, std::int32_t bound) {
      return office
          .ask(qPrintable(
              QStringLiteral("SELECT count(*) FROM Requisicao WHERE SEQ >= %1 AND SEQ %2 %3")
                  .arg(first)
                  .arg(QLatin1String(condition))
                  .arg(bound)))
          .toInt();
    };
    QCOMPARE(count("<=", last), last - first + 1);
    QVERIFY(count(">", last) <= 1);
    QCOMPARE(office.ask("PRAGMA integrity_check"), QStringLiteral("ok"));
    QCOMPARE(office.ask("PRAGMA foreign_key_check"), QString());
  }

  static void everyRowIsWhole(const test::Office& office) {
    const int last = office.ask("SELECT max(SEQ) FROM Requisicao").toInt();
    QVERIFY(last >= kKills);
    for (std::int32_t seq = 1; seq <= last; ++seq) {
      const QString row = office.ask(qPrintable(
          QStringLiteral("SELECT VALOR || '|' || JUSTIFICATIVA FROM Requisicao WHERE SEQ = %1")
              .arg(seq)));
      QCOMPARE(row, QString::number(seq) + '|' + test::justificationOf(seq));
    }
  }
};

}  // namespace quartela

QUARTELA_TEST_MAIN(quartela::DurabilityTest)
#include "Durability_test.moc"
