// The record of a requisition on a real database: saving, altering, deleting, loading, and the test
// for an open advance.
#include "records/cRequisicao.h"

#include <sqlite3.h>

#include <QTest>

#include "foundation/Banco.h"
#include "platform/controls/ListView.h"
#include "platform/controls/ScreenPointer.h"
#include "platform/controls/StatusBar.h"
#include "platform/values/RuntimeError.h"
#include "records/cTodos.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/SqliteSession.h"
#include "tests/support/TestMain.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/Samples.h"

namespace quartela {
namespace {

namespace boxes = test::boxes;

cRequisicao sample(std::int32_t seq) {
  cRequisicao requisition;
  requisition.Seq = seq;
  requisition.Data = DateTime::of(2014, 11, 20);
  requisition.Orgao = 1;
  requisition.Tomador = 1;
  requisition.Valor = Money::fromCents(123'456);
  requisition.Finalidade = 1;
  requisition.Justificativa = QStringLiteral("Pão d'água & café \"extra\" — João");
  requisition.Ficha = QStringLiteral("128");
  return requisition;
}

void saveQuietly(cRequisicao requisition) {
  test::ScriptedDialogs dialogs;
  dialogs.expectBox(boxes::askInclusion(), Button::Yes);
  dialogs.expectBox(boxes::saved());
  QVERIFY(requisition.Save_req(1));
}

}  // namespace

class cRequisicaoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    setScreenPointer(PointerShape::Normal);
  }
  void cleanup() { office_.reset(); }

  void inclusionWritesEveryColumn() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    QVERIFY(sample(114).Save_req(1));
    QCOMPARE(
        office_->ask("SELECT SEQ||'|'||DATA||'|'||ORGAO||'|'||TOMADOR||'|'||VALOR||'|'||FINALIDADE"
                     "||'|'||JUSTIFICATIVA||'|'||FICHA FROM Requisicao"),
        QStringLiteral("114|2014-11-20 00:00:00|1|1|12345600|1|Pão d'água & café \"extra\" — "
                       "João|128"));
    QCOMPARE(Tabela.state(), Recordset::Closed);
  }

  void declinedInclusionWritesNothing() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::No);
    QVERIFY(!sample(114).Save_req(1));
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao"), QStringLiteral("0"));
  }

  void alterationChangesTheRowOfItsNumber() {
    saveQuietly(sample(114));
    saveQuietly(sample(214));
    cRequisicao changed = sample(114);
    changed.Valor = Money::fromReais(9);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::altered());
    QVERIFY(changed.Save_req(2));
    QCOMPARE(office_->ask("SELECT group_concat(SEQ||'='||VALOR) FROM Requisicao"),
             QStringLiteral("114=90000,214=12345600"));
  }

  void anyOtherCodeIsAnAlteration() {
    saveQuietly(sample(114));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::No);
    QVERIFY(!sample(114).Save_req(0));
  }

  void takenNumberIsToldAndNothingIsLost() {
    saveQuietly(sample(114));
    cRequisicao again = sample(114);
    again.Valor = Money::fromReais(1);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::DuplicateKey,
                                         QStringLiteral("campo SEQ da tabela Requisicao")));
    QVERIFY(!again.Save_req(1));
    QCOMPARE(office_->ask("SELECT VALOR FROM Requisicao"), QStringLiteral("12345600"));
  }

  void alterationOfADeletedRowFails() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::CurrentRowMissing));
    QVERIFY(!sample(114).Save_req(2));
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao"), QStringLiteral("0"));
  }

  void unknownPersonIsRefusedByTheFile() {
    cRequisicao requisition = sample(114);
    requisition.Tomador = 99;
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(
        ErrorNumber::ParentMissing,
        QStringLiteral("campo TOMADOR da tabela Requisicao, que não está na tabela Tomador")));
    QVERIFY(!requisition.Save_req(1));
  }

  void deletionTakesTheAdvanceAndItsNotesAlong() {
    saveQuietly(sample(114));
    office_->run(
        "INSERT INTO Adiantamento(EMPENHO, PROCESSO) VALUES (500, 114);"
        "INSERT INTO PrestContas(PROCESSO, DESPESAS) VALUES (500, 10000);");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::deleted());
    sample(114).Del_req();
    QCOMPARE(office_->ask(
                 "SELECT (SELECT count(*) FROM Requisicao) + (SELECT count(*) FROM Adiantamento)"
                 " + (SELECT count(*) FROM PrestContas)"),
             QStringLiteral("0"));
    QVERIFY(!Conexao->inTransaction());
  }

  void refusedDeletionIsRolledBackAndTold() {
    saveQuietly(sample(114));
    office_->run(
        "CREATE TABLE Anexo(SEQ INTEGER REFERENCES Requisicao(SEQ));"
        "INSERT INTO Anexo VALUES (114);");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::DependantsExist,
                                         QStringLiteral("há registros na tabela Anexo")));
    sample(114).Del_req();
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao"), QStringLiteral("1"));
    QVERIFY(!Conexao->inTransaction());
  }

  void deletionWhileAnotherProgramWritesIsToldAndUndone() {
    saveQuietly(sample(114));
    Connection other;
    other.open(QStringLiteral("Data Source=") + office_->database());
    other.beginTransaction();
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::RowLocked));
    sample(114).Del_req();
    other.rollback();
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao"), QStringLiteral("1"));
  }

  void savingWhileAnotherProgramWritesIsToldAndWorksAfterwards() {
    Connection other;
    other.open(QStringLiteral("Data Source=") + office_->database());
    Recordset begun;
    begun.open(QStringLiteral("Requisicao"), other, CursorType::Static, LockType::Pessimistic);
    begun.addNew();
    begun.setField(u"SEQ", 214);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::RowLocked));
    QVERIFY(!sample(114).Save_req(1));
    begun.update();
    saveQuietly(sample(114));
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao"), QStringLiteral("2"));
  }

  void aFullDiskIsToldAndNothingIsHalfWritten() {
    cRequisicao requisition = sample(114);
    requisition.Justificativa = QStringLiteral("Despesas miúdas. ").repeated(2000);
    allowGrowth(false);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::DiskFull));
    QVERIFY(!requisition.Save_req(1));
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao"), QStringLiteral("0"));
    allowGrowth(true);
    saveQuietly(requisition);
    QCOMPARE(office_->ask("PRAGMA integrity_check"), QStringLiteral("ok"));
  }

  void loadsEveryProperty() {
    saveQuietly(sample(114));
    cRequisicao loaded;
    loaded.Envia_dados(114);
    QCOMPARE(loaded.Seq, 114);
    QVERIFY(loaded.Data == DateTime::of(2014, 11, 20));
    QCOMPARE(loaded.Orgao, std::int16_t{1});
    QCOMPARE(loaded.Secretaria, std::int16_t{2});
    QCOMPARE(loaded.Tomador, std::int16_t{1});
    QVERIFY(loaded.Valor == Money::fromCents(123'456));
    QCOMPARE(loaded.Finalidade, std::int16_t{1});
    QCOMPARE(loaded.Justificativa, sample(114).Justificativa);
    QCOMPARE(loaded.Ficha, QStringLiteral("128"));
    QCOMPARE(screenPointer(), PointerShape::Normal);
    QCOMPARE(Tabela.state(), Recordset::Closed);
  }

  void loadingAMissingNumberKeepsTheProperties() {
    cRequisicao requisition = sample(114);
    requisition.Secretaria = 7;
    requisition.Envia_dados(999);
    QCOMPARE(requisition.Seq, 114);
    QCOMPARE(requisition.Secretaria, std::int16_t{7});
    QCOMPARE(screenPointer(), PointerShape::Normal);
  }

  void aRowWithoutAnOrdererIsNotFound() {
    office_->run("INSERT INTO Requisicao(SEQ, TOMADOR) VALUES (114, 1)");
    cRequisicao requisition;
    requisition.Envia_dados(114);
    QCOMPARE(requisition.Seq, 0);
  }

  void loadingAnEmptyColumnFails_data() {
    QTest::addColumn<QString>("column");
    for (const char* column : {"DATA", "TOMADOR", "VALOR", "FINALIDADE"}) {
      QTest::newRow(column) << QString::fromLatin1(column);
    }
  }
  void loadingAnEmptyColumnFails() {
    QFETCH(QString, column);
    saveQuietly(sample(114));
    office_->run(qPrintable(QStringLiteral("UPDATE Requisicao SET %1 = NULL").arg(column)));
    cRequisicao requisition;
    try {
      requisition.Envia_dados(114);
      QFAIL("the empty column was taken");
    } catch (const RuntimeError& error) {
      QCOMPARE(error.number(), 13);
    }
    QCOMPARE(screenPointer(), PointerShape::Hourglass);
  }

  void openAdvanceIsFound_data() {
    QTest::addColumn<QString>("advance");
    QTest::addColumn<int>("person");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("open");
    const QString none = QStringLiteral("SELECT 1");
    const QString open =
        QStringLiteral("INSERT INTO Adiantamento(EMPENHO, PROCESSO) VALUES (500, 114)");
    const QString closed = QStringLiteral(
        "INSERT INTO Adiantamento(EMPENHO, PROCESSO, FECHAMENTO) "
        "VALUES (500, 114, '2014-11-21 00:00:00')");
    QTest::newRow("a requisition without an advance counts as open") << none << 1 << 1 << true;
    QTest::newRow("an advance that is not closed") << open << 1 << 1 << true;
    QTest::newRow("a closed advance") << closed << 1 << 1 << false;
    QTest::newRow("another person") << open << 2 << 1 << false;
    QTest::newRow("another type") << open << 1 << 2 << false;
  }
  void openAdvanceIsFound() {
    QFETCH(QString, advance);
    QFETCH(int, person);
    QFETCH(int, type);
    saveQuietly(sample(114));
    office_->run(qPrintable(advance));
    cRequisicao asked;
    asked.Tomador = static_cast<std::int16_t>(person);
    asked.Finalidade = static_cast<std::int16_t>(type);
    QTEST(asked.Verifica_registro(), "open");
    QCOMPARE(Tabela.state(), Recordset::Closed);
  }

  void openAdvanceUnderAnotherSecretariatCounts() {
    saveQuietly(sample(114));
    office_->run(
        "INSERT INTO Executor(ORDEM, IDORGAO, NOME) VALUES (2, 1, 'Outro');"
        "UPDATE Requisicao SET ORGAO = 2");
    QVERIFY(sample(0).Verifica_registro());
  }

  void aFailureOfTheTestReachesTheCaller() {
    Conexao->close();
    QVERIFY_EXCEPTION_THROWN(sample(1).Verifica_registro(), RuntimeError);
  }

  void numbersAboveSixteenBitsAreKeptAndListed() {
    saveQuietly(sample(32'814));
    QCOMPARE(office_->ask("SELECT SEQ FROM Requisicao"), QStringLiteral("32814"));
    ListView list;
    StatusBar bar;
    cTodos::prepara_movimento(list);
    cTodos().Lista_Movimento(list, 0, bar);
    QCOMPARE(list.count(), 1);
    QCOMPARE(list.subItem(0, cTodos::kNumero), QStringLiteral("0328/14"));
  }

  void theSharedInstanceIsOne() {
    QCOMPARE(&cRequisicao::compartilhada(), &cRequisicao::compartilhada());
  }

 private:
  // Without growth the file takes no page more than it has now, as on a full disk.
  static void allowGrowth(bool allow) {
    const char* const sql =
        allow ? "PRAGMA max_page_count = 1073741823" : "PRAGMA max_page_count = 1";
    QCOMPARE(sqlite3_exec(test::sqliteSession(*Conexao).handle(), sql, nullptr, nullptr, nullptr),
             SQLITE_OK);
  }

  std::unique_ptr<test::Office> office_;
};

}  // namespace quartela

QUARTELA_TEST_MAIN(quartela::cRequisicaoTest)
#include "cRequisicao_test.moc"
