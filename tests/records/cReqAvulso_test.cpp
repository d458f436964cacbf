// The record of a standalone requisition on a real database: adding with the number that the table
// gives, altering, and what fails.
#include "records/cReqAvulso.h"

#include <QTest>

#include "foundation/Banco.h"
#include "platform/values/RuntimeError.h"
#include "records/cRequisicao.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/Samples.h"

namespace quartela {
namespace {

namespace boxes = test::boxes;

cReqAvulso sample() {
  cReqAvulso requisition;
  requisition.Data = DateTime::of(2014, 11, 20);
  requisition.Orgao = 1;
  requisition.Tomador = 1;
  requisition.Valor = Money::fromCents(123'456);
  requisition.Finalidade = 1;
  requisition.Justificativa = QStringLiteral("Pão d'água & café \"extra\" — João");
  requisition.Ficha = QStringLiteral("128");
  return requisition;
}

void saveQuietly(cReqAvulso& requisition) {
  test::ScriptedDialogs dialogs;
  dialogs.expectBox(boxes::askInclusion(), Button::Yes);
  dialogs.expectBox(boxes::saved());
  QVERIFY(requisition.Save_req(1));
}

}  // namespace

class cReqAvulsoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
  }
  void cleanup() { office_.reset(); }

  void inclusionWritesEveryColumn() {
    cReqAvulso requisition = sample();
    saveQuietly(requisition);
    QCOMPARE(
        office_->ask("SELECT SEQ||'|'||DATA||'|'||ORGAO||'|'||TOMADOR||'|'||VALOR||'|'||FINALIDADE"
                     "||'|'||JUSTIFICATIVA||'|'||FICHA FROM ReqAvulso"),
        QStringLiteral("1|2014-11-20 00:00:00|1|1|12345600|1|Pão d'água & café \"extra\" — "
                       "João|128"));
    QCOMPARE(Tabela.state(), Recordset::Closed);
  }

  void theNumberIsThereBeforeTheOperatorIsTold() {
    cReqAvulso requisition = sample();
    test::ScriptedDialogs dialogs;
    std::int32_t shown = 0;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes,
                      [&] { QCOMPARE(requisition.Seq, std::int32_t{0}); });
    dialogs.expectBox(boxes::saved(), Button::Ok, [&] { shown = requisition.Seq; });
    QVERIFY(requisition.Save_req(1));
    QCOMPARE(QString::number(shown), office_->ask("SELECT SEQ FROM ReqAvulso"));
  }

  // A number that was given once is not given again, though its row has gone.
  void everyRowHasANumberOfItsOwn() {
    cReqAvulso first = sample();
    saveQuietly(first);
    cReqAvulso second = sample();
    saveQuietly(second);
    QCOMPARE(second.Seq, first.Seq + 1);
    office_->run("DELETE FROM ReqAvulso");
    cReqAvulso third = sample();
    saveQuietly(third);
    QCOMPARE(third.Seq, second.Seq + 1);
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao"), QStringLiteral("0"));
  }

  // What stood in Seq does not reach the table.
  void theNumberIsTheTablesOwn() {
    cReqAvulso requisition = sample();
    requisition.Seq = 4711;
    saveQuietly(requisition);
    QCOMPARE(requisition.Seq, std::int32_t{1});
    QCOMPARE(office_->ask("SELECT group_concat(SEQ) FROM ReqAvulso"), QStringLiteral("1"));
  }

  void aNumberBeyondSixteenBits() {
    office_->run("INSERT INTO ReqAvulso(SEQ) VALUES (70000)");
    cReqAvulso requisition = sample();
    saveQuietly(requisition);
    QCOMPARE(requisition.Seq, std::int32_t{70'001});
  }

  void declinedInclusionWritesNothing() {
    cReqAvulso requisition = sample();
    requisition.Seq = 9;
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::No);
    QVERIFY(!requisition.Save_req(1));
    QCOMPARE(requisition.Seq, std::int32_t{9});
    QCOMPARE(office_->ask("SELECT count(*) FROM ReqAvulso"), QStringLiteral("0"));
  }

  void alterationChangesTheRowOfItsNumber() {
    cReqAvulso first = sample();
    saveQuietly(first);
    cReqAvulso second = sample();
    saveQuietly(second);
    first.Valor = Money::fromReais(9);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::altered());
    QVERIFY(first.Save_req(2));
    QCOMPARE(first.Seq, std::int32_t{1});
    QCOMPARE(office_->ask("SELECT group_concat(SEQ||'='||VALOR) FROM ReqAvulso"),
             QStringLiteral("1=90000,2=12345600"));
  }

  void anyOtherCodeIsAnAlteration() {
    cReqAvulso requisition = sample();
    saveQuietly(requisition);
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::No);
    QVERIFY(!requisition.Save_req(0));
  }

  void alterationWithoutARowFails() {
    cReqAvulso requisition = sample();
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::CurrentRowMissing));
    QVERIFY(!requisition.Save_req(2));
    QCOMPARE(office_->ask("SELECT count(*) FROM ReqAvulso"), QStringLiteral("0"));
  }

  void unknownPersonIsRefusedByTheFile() {
    cReqAvulso requisition = sample();
    requisition.Tomador = 99;
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(
        ErrorNumber::ParentMissing,
        QStringLiteral("campo TOMADOR da tabela ReqAvulso, que não está na tabela Tomador")));
    QVERIFY(!requisition.Save_req(1));
    QCOMPARE(requisition.Seq, std::int32_t{0});
  }

  void savingWhileAnotherProgramWritesIsToldAndWorksAfterwards() {
    Connection other;
    other.open(QStringLiteral("Data Source=") + office_->database());
    other.beginTransaction();
    cReqAvulso requisition = sample();
    {
      test::ScriptedDialogs dialogs;
      dialogs.expectBox(boxes::askInclusion(), Button::Yes);
      dialogs.expectBox(boxes::saveFailure(ErrorNumber::RowLocked));
      QVERIFY(!requisition.Save_req(1));
    }
    other.rollback();
    saveQuietly(requisition);
    QCOMPARE(office_->ask("SELECT count(*) FROM ReqAvulso"), QStringLiteral("1"));
  }

  // The two records do not share what they hold.
  void theSharedInstanceIsOneAndItsOwn() {
    QCOMPARE(&cReqAvulso::compartilhada(), &cReqAvulso::compartilhada());
    cReqAvulso::compartilhada().Seq = 5;
    cRequisicao::compartilhada().Seq = 114;
    QCOMPARE(cReqAvulso::compartilhada().Seq, std::int32_t{5});
  }

 private:
  std::unique_ptr<test::Office> office_;
};

}  // namespace quartela

QUARTELA_TEST_MAIN(quartela::cReqAvulsoTest)
#include "cReqAvulso_test.moc"
