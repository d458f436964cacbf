// The notes of an empenho on a real database.
#include "records/cPrestContas.h"

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

cPrestContas sample() {
  cPrestContas note;
  note.processo = 50014;
  note.Data = DateTime::of(2014, 11, 10);
  note.Ordem = QStringLiteral("NF 123");
  note.Historico = QStringLiteral("Padaria D'Ávila");
  note.Despesas = Money::fromCents(2590);
  return note;
}

}  // namespace

class cPrestContasTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    test::addOpenProcess(*office_);
    list_ = std::make_unique<ListView>();
    for (int column = 0; column < 6; ++column) {
      list_->addColumn(QString::number(column), ColumnWidth::pixels(80));
    }
  }
  void cleanup() {
    list_.reset();
    office_.reset();
  }

  void inclusionAsksNothingAndTells() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::saved());
    cPrestContas note = sample();
    note.ID_Viagem = 7;
    QVERIFY(note.Save_prest(1));
    QCOMPARE(office_->ask(
                 "SELECT SEQ||'|'||PROCESSO||'|'||DATA||'|'||ORDEM||'|'||HISTORICO||'|'||DESPESAS"
                 "||'|'||ID_VIAGEM FROM PrestContas"),
             QStringLiteral("1|50014|2014-11-10 00:00:00|NF 123|Padaria D'Ávila|259000|7"));
  }

  void alterationAsks() {
    addNotes();
    cPrestContas note = sample();
    note.Seq = 2;
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::No);
    QVERIFY(note.Save_prest(2));
    QCOMPARE(office_->ask("SELECT ORDEM FROM PrestContas WHERE SEQ = 2"), QStringLiteral("B"));
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::altered());
    QVERIFY(note.Save_prest(2));
    QCOMPARE(office_->ask("SELECT ORDEM FROM PrestContas WHERE SEQ = 2"), QStringLiteral("NF 123"));
  }

  void aNoteOfAnUnknownEmpenhoIsRefused() {
    cPrestContas note = sample();
    note.processo = 9;
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::saveFailure(
        ErrorNumber::ParentMissing,
        QStringLiteral(
            "campo PROCESSO da tabela PrestContas, que não está na tabela Adiantamento")));
    QVERIFY(!note.Save_prest(1));
    QCOMPARE(office_->ask("SELECT count(*) FROM PrestContas"), QStringLiteral("0"));
  }

  void quietSavingSaysNothing() {
    test::ScriptedDialogs dialogs;
    sample().Save_import();
    QCOMPARE(office_->ask("SELECT count(*) FROM PrestContas"), QStringLiteral("1"));
  }

  void quietSavingTellsItsFailure() {
    cPrestContas note = sample();
    note.processo = 9;
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::saveFailure(
        ErrorNumber::ParentMissing,
        QStringLiteral(
            "campo PROCESSO da tabela PrestContas, que não está na tabela Adiantamento")));
    note.Save_import();
  }

  void deletesOne() {
    addNotes();
    cPrestContas note;
    note.Seq = 2;
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::deleted());
    note.Del_prest();
    QCOMPARE(office_->ask("SELECT min(SEQ)||','||max(SEQ)||','||count(*) FROM PrestContas"),
             QStringLiteral("1,3,2"));
  }

  void deletesAllWithoutAWord() {
    addNotes();
    test::ScriptedDialogs dialogs;
    sample().Del_prest_todos();
    QCOMPARE(office_->ask("SELECT count(*) FROM PrestContas"), QStringLiteral("0"));
    sample().Del_prest_todos();
  }

  void aFailedDeletionIsRolledBackFirst() {
    addNotes();
    office_->run(
        "CREATE TABLE Anexo(SEQ INTEGER REFERENCES PrestContas(SEQ));"
        "INSERT INTO Anexo VALUES (2);");
    cPrestContas note = sample();
    note.Seq = 2;
    bool inTransaction = true;
    const auto look = [&] { inTransaction = Conexao->inTransaction(); };
    const Box box = boxes::saveFailure(ErrorNumber::DependantsExist,
                                       QStringLiteral("há registros na tabela Anexo"));
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(box, Button::Ok, look);
    note.Del_prest();
    QVERIFY(!inTransaction);
    dialogs.expectBox(box, Button::Ok, look);
    note.Del_prest_todos();
    QVERIFY(!inTransaction);
    QCOMPARE(office_->ask("SELECT count(*) FROM PrestContas"), QStringLiteral("3"));
  }

  void listsByDateAndKeyWithARunningTotal() {
    addNotes();
    const Money total = sample().Lista_Prest(*list_);
    QStringList rows;
    for (int row = 0; row < list_->count(); ++row) {
      QStringList cells;
      for (int n = 0; n < 6; ++n) {
        cells << list_->subItem(row, n);
      }
      rows << cells.join('|');
    }
    QCOMPARE(rows, QStringList({"0003|01/11/2014|C|Três|1.000,00|1.000,00",
                                "0001|05/11/2014|A|Um|10,00|1.010,00",
                                "0002|05/11/2014|B|Dois|0,50|1.010,50"}));
    QVERIFY(total == Money::fromCents(101'050));
  }

  void theTotalOfNoNotesIsZero() {
    list_->addItem(QStringLiteral("antes"));
    QVERIFY(sample().Lista_Prest(*list_) == Money());
    QCOMPARE(list_->count(), 0);
  }

  void anEmptyAmountEndsTheListingInItsRow() {
    addNotes();
    office_->run("UPDATE PrestContas SET DESPESAS = NULL WHERE SEQ = 1");
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::TypeMismatch,
                                           QStringLiteral("Função Lista_Adiantamento")));
    QVERIFY(sample().Lista_Prest(*list_) == Money());
    QCOMPARE(list_->count(), 1);
    QCOMPARE(screenPointer(), PointerShape::Normal);
  }

  void tellsWhetherThereAreNotes() {
    QVERIFY(!sample().Verifica_Prest());
    addNotes();
    QVERIFY(sample().Verifica_Prest());
  }

  void loadsEveryProperty() {
    addNotes();
    cPrestContas note;
    note.Envia_dados(2);
    QCOMPARE(note.processo, 50014);
    QVERIFY(note.Data == DateTime::of(2014, 11, 5));
    QCOMPARE(note.Ordem, QStringLiteral("B"));
    QCOMPARE(note.Historico, QStringLiteral("Dois"));
    QVERIFY(note.Despesas == Money::fromCents(50));
    QCOMPARE(note.ID_Viagem, 4);
  }

  void loadingAnEmptyColumnFails_data() {
    QTest::addColumn<QString>("column");
    for (const char* column : {"DATA", "DESPESAS", "ID_VIAGEM"}) {
      QTest::newRow(column) << QString::fromLatin1(column);
    }
  }
  void loadingAnEmptyColumnFails() {
    QFETCH(QString, column);
    addNotes();
    office_->run(qPrintable(QStringLiteral("UPDATE PrestContas SET %1 = NULL").arg(column)));
    cPrestContas note;
    QVERIFY_EXCEPTION_THROWN(note.Envia_dados(2), RuntimeError);
  }

 private:
  void addNotes() const {
    office_->run(
        "INSERT INTO PrestContas(SEQ, PROCESSO, DATA, ORDEM, HISTORICO, DESPESAS, ID_VIAGEM) "
        "VALUES "
        "(1, 50014, '2014-11-05 00:00:00', 'A', 'Um', 100000, 0),"
        "(2, 50014, '2014-11-05 00:00:00', 'B', 'Dois', 5000, 4),"
        "(3, 50014, '2014-11-01 00:00:00', 'C', 'Três', 10000000, 0)");
  }

  std::unique_ptr<test::Office> office_;
  std::unique_ptr<ListView> list_;
};

}  // namespace quartela

QUARTELA_TEST_MAIN(quartela::cPrestContasTest)
#include "cPrestContas_test.moc"
