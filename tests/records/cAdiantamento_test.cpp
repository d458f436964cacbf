// The record of an advance on a real database: saving with nullable dates, listing, adding up,
// closing, reopening, the summary.
#include "records/cAdiantamento.h"

#include <QTest>

#include "foundation/Banco.h"
#include "platform/controls/ListView.h"
#include "platform/controls/ScreenPointer.h"
#include "platform/values/RuntimeError.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/Samples.h"

namespace quartela {
namespace {

namespace boxes = test::boxes;

cAdiantamento sample() {
  cAdiantamento advance;
  advance.Empenho = 50014;
  advance.processo = 114;
  advance.Abertura = DateTime::of(2014, 11, 1);
  advance.Retirada = DateTime::of(2014, 11, 3);
  advance.Fechar = DateTime::of(2014, 12, 3);
  advance.OP = 77;
  return advance;
}

QStringList cells(const ListView& list, int row) {
  QStringList texts;
  for (int n = 0; n < list.columnCount(); ++n) {
    texts << list.subItem(row, n);
  }
  return texts;
}

}  // namespace

class cAdiantamentoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    test::addOpenProcess(*office_);
    list_ = std::make_unique<ListView>();
    for (int column = 0; column < 9; ++column) {
      list_->addColumn(QString::number(column), ColumnWidth::pixels(80));
    }
  }
  void cleanup() {
    list_.reset();
    office_.reset();
  }

  void inclusionWritesEveryColumn() {
    office_->run("DELETE FROM Adiantamento");
    cAdiantamento advance = sample();
    advance.Nulo = -1;
    advance.Devolucao = Money::fromCents(1250);
    advance.Datadev = QStringLiteral("21/11/2014");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    advance.Save_ad(1);
    QCOMPARE(
        office_->ask(
            "SELECT EMPENHO||'|'||PROCESSO||'|'||ABERTURA||'|'||RETIRADA||'|'||FECHAR_EM||"
            "'|'||ifnull(FECHAMENTO,'-')||'|'||DEVOLUCAO||'|'||DATADEV||'|'||ANULADO||'|'||OP "
            "FROM Adiantamento"),
        QStringLiteral("50014|114|2014-11-01 00:00:00|2014-11-03 00:00:00|2014-12-03 00:00:00|-|"
                       "125000|2014-11-21 00:00:00|1|77"));
  }

  void alterationAndItsRefusal() {
    cAdiantamento advance = sample();
    advance.OP = 88;
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::No);
    advance.Save_ad(2);
    QCOMPARE(office_->ask("SELECT OP FROM Adiantamento"), QStringLiteral("77"));
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::altered());
    advance.Save_ad(2);
    QCOMPARE(office_->ask("SELECT OP FROM Adiantamento"), QStringLiteral("88"));
  }

  void takenEmpenhoIsTold() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::DuplicateKey,
                                         QStringLiteral("campo EMPENHO da tabela Adiantamento")));
    sample().Save_ad(1);
  }

  void anEmptyTextIsNoDate() {
    cAdiantamento advance = sample();
    advance.Abertura = QString();
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::TypeMismatch));
    advance.Save_ad(2);
    QCOMPARE(office_->ask("SELECT ABERTURA FROM Adiantamento"),
             QStringLiteral("2014-11-01 00:00:00"));
  }

  void deletionTakesTheNotesAlong() {
    office_->run("INSERT INTO PrestContas(PROCESSO, DESPESAS) VALUES (50014, 10000)");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::deleted());
    sample().Del_ad();
    QCOMPARE(office_->ask("SELECT (SELECT count(*) FROM Adiantamento) + "
                          "(SELECT count(*) FROM PrestContas)"),
             QStringLiteral("0"));
  }

  void aFailedDeletionIsToldBeforeItIsRolledBack() {
    office_->run(
        "CREATE TABLE Anexo(EMPENHO INTEGER REFERENCES Adiantamento(EMPENHO));"
        "INSERT INTO Anexo VALUES (50014);");
    bool inTransaction = false;
    bool free = false;
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::DependantsExist,
                                         QStringLiteral("há registros na tabela Anexo")),
                      Button::Ok, [&] {
                        inTransaction = Conexao->inTransaction();
                        free = anotherProgramCanWrite();
                      });
    sample().Del_ad();
    QVERIFY(inTransaction);
    QVERIFY(free);
    QVERIFY(!Conexao->inTransaction());
    QCOMPARE(office_->ask("SELECT count(*) FROM Adiantamento"), QStringLiteral("1"));
  }

  void listsTheEmpenhosOfAProcess() {
    office_->run(
        "INSERT INTO Adiantamento(EMPENHO, PROCESSO, FECHAMENTO, DEVOLUCAO, DATADEV, ANULADO) "
        "VALUES "
        "(50114, 114, '2014-11-20 00:00:00', 12345678, '2014-11-19 00:00:00', 1)");
    sample().Lista_Adiantamento(*list_);
    QCOMPARE(list_->count(), 2);
    QCOMPARE(cells(*list_, 0), QStringList({"00500/14", "01/11/2014", "03/11/2014", "03/12/2014",
                                            "", "0,00", "", "77", "NÃO"}));
    QCOMPARE(cells(*list_, 1), QStringList({"00501/14", "", "", "", "20/11/2014", "1.234,57",
                                            "19/11/2014", "", "SIM"}));
    QCOMPARE(screenPointer(), PointerShape::Normal);
    QCOMPARE(Tabela.state(), Recordset::Closed);
  }

  void listOfAnUnknownProcessIsEmpty() {
    list_->addItem(QStringLiteral("antes"));
    cAdiantamento advance = sample();
    advance.processo = 1;
    advance.Lista_Adiantamento(*list_);
    QCOMPARE(list_->count(), 0);
  }

  void aFailedListingIsReported() {
    Conexao->close();
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::ObjectClosed,
                                           QStringLiteral("Função Lista_Adiantamento")));
    sample().Lista_Adiantamento(*list_);
    QCOMPARE(screenPointer(), PointerShape::Normal);
  }

  void addsUpTheNotes_data() {
    QTest::addColumn<QString>("notes");
    QTest::addColumn<qint64>("units");
    QTest::newRow("none") << QStringLiteral("SELECT 1") << qint64{0};
    QTest::newRow("two")
        << QStringLiteral(
               "INSERT INTO PrestContas(PROCESSO, DESPESAS) VALUES (50014, 10000), (50014, 5)")
        << qint64{10000};
    QTest::newRow("half a cent is rounded up")
        << QStringLiteral("INSERT INTO PrestContas(PROCESSO, DESPESAS) VALUES (50014, 12345650)")
        << qint64{12345700};
  }
  void addsUpTheNotes() {
    QFETCH(QString, notes);
    office_->run(qPrintable(notes));
    cAdiantamento advance;
    advance.processo = 50014;
    QTEST(qint64{advance.Soma_despesas().units()}, "units");
  }

  void closesAndReopens_data() {
    QTest::addColumn<bool>("nullDate");
    QTest::newRow("date of return empty") << false;
    QTest::newRow("date of return null") << true;
  }
  void closesAndReopens() {
    QFETCH(bool, nullDate);
    cAdiantamento advance = sample();
    advance.Fechamento = DateTime::of(2014, 11, 21);
    advance.Devolucao = Money::fromReais(10);
    advance.Datadev = nullDate ? Value() : Value("");
    QVERIFY(advance.Encerra_adiantamento());
    QVERIFY(advance.Datadev.isNull());
    const char* row =
        "SELECT ifnull(FECHAMENTO,'-')||'|'||DEVOLUCAO||'|'||ifnull(DATADEV,'-')||'|'||OP "
        "FROM Adiantamento";
    QCOMPARE(office_->ask(row), QStringLiteral("2014-11-21 00:00:00|100000|-|77"));
    advance.Fechamento = Value();
    advance.Devolucao = Money();
    QVERIFY(advance.Encerra_adiantamento());
    QCOMPARE(office_->ask(row), QStringLiteral("-|0|-|77"));
  }

  void closingAMissingEmpenhoIsReported() {
    cAdiantamento advance = sample();
    advance.Empenho = 1;
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::CurrentRowMissing,
                                           QStringLiteral("Encerra_adiantamento")));
    QVERIFY(!advance.Encerra_adiantamento());
  }

  void aRefusedClosingKeepsNoLock() {
    cAdiantamento advance = sample();
    advance.Fechamento = DateTime::of(2014, 11, 21);
    advance.Datadev = QStringLiteral("31/02/2014");
    test::ScriptedDialogs dialogs;
    bool free = false;
    dialogs.expectBox(
        boxes::internalError(ErrorNumber::TypeMismatch, QStringLiteral("Encerra_adiantamento")),
        Button::Ok, [&] { free = anotherProgramCanWrite(); });
    QVERIFY(!advance.Encerra_adiantamento());
    QVERIFY(free);
  }

  void readsTheSummary() {
    cAdiantamento advance;
    advance.processo = 114;
    advance.Dados_Planilha();
    QCOMPARE(advance.Empenho, 50014);
    QVERIFY(advance.Abertura == Value("01/11/2014"));
    QVERIFY(advance.Retirada == Value("03/11/2014"));
    QCOMPARE(advance.Executor(), QStringLiteral("Ordenador"));
    QCOMPARE(advance.Tomador(), QStringLiteral("Responsável"));
    QCOMPARE(advance.Cargo(), QStringLiteral("Motorista"));
    QCOMPARE(advance.Orgao(), QStringLiteral("Educação"));
    QVERIFY(advance.Valor() == Money::fromReais(1000));
  }

  void aSummaryThatIsMissingKeepsTheProperties() {
    cAdiantamento advance = sample();
    advance.processo = 999;
    advance.Dados_Planilha();
    QCOMPARE(advance.Empenho, 50014);
    QCOMPARE(screenPointer(), PointerShape::Normal);
  }

 private:
  bool anotherProgramCanWrite() const {
    Connection other;
    other.open(QStringLiteral("Data Source=") + office_->database());
    try {
      other.beginTransaction();
    } catch (const RuntimeError&) {
      return false;
    }
    other.rollback();
    return true;
  }

  std::unique_ptr<test::Office> office_;
  std::unique_ptr<ListView> list_;
};

}  // namespace quartela

QUARTELA_TEST_MAIN(quartela::cAdiantamentoTest)
#include "cAdiantamento_test.moc"
