// The lists of processes: which rows each filter shows, in which order, and how a row looks.
#include "records/cTodos.h"

#include <QTest>

#include "foundation/Banco.h"
#include "platform/controls/ListView.h"
#include "platform/controls/ScreenPointer.h"
#include "platform/controls/StatusBar.h"
#include "platform/values/Clock.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/Samples.h"

namespace quartela {
namespace {

namespace boxes = test::boxes;
const QString kLabel = QStringLiteral("Função Lista_Movimento");

QStringList cells(const ListView& list, int row) {
  QStringList texts;
  for (int n = 0; n < list.columnCount(); ++n) {
    texts << list.subItem(row, n);
  }
  return texts;
}

QStringList firstColumn(const ListView& list) {
  QStringList texts;
  for (int row = 0; row < list.count(); ++row) {
    texts << list.text(row);
  }
  return texts;
}

// Of this year: 114 requisition only, 214 opened but not withdrawn, 314 open, 414 closed, 514
// annulled; of last year: 113 requisition only, 213 open, 313 closed. Ana has the odd ones.
void addProcesses(const test::Office& office) {
  office.run(
      "UPDATE Tomador SET NOME1 = 'ANA d''Ávila';"
      "INSERT INTO Tomador(ID, NOME1, CARGO, ATIVO) VALUES (2, 'João Bento', 'Fiscal', 1);"
      "INSERT INTO Tipos(SEQUENCIA, IDORGAO, TIPO, PRAZO, ATIVO) VALUES (2, 1, 'Viagem', '05 "
      "dias', 1);"
      "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE) VALUES "
      "(114, '2014-01-10 00:00:00', 1, 1, 10000000, 1), (214, '2014-02-10 00:00:00', 1, 2, 5000, "
      "2),"
      "(314, '2014-03-10 00:00:00', 1, 1, 12345678, 1), (414, '2014-04-10 00:00:00', 1, 2, 40000, "
      "2),"
      "(514, '2014-05-10 00:00:00', 1, 1, 50000, 1), (113, '2013-01-10 00:00:00', 1, 2, 60000, 2),"
      "(213, '2013-02-10 00:00:00', 1, 1, 70000, 1), (313, '2013-03-10 00:00:00', 1, 2, 80000, 2);"
      "INSERT INTO Adiantamento(EMPENHO, PROCESSO, ABERTURA, RETIRADA, FECHAR_EM, FECHAMENTO, "
      "ANULADO) "
      "VALUES (20014, 214, '2014-02-11 00:00:00', NULL, '2014-03-11 00:00:00', NULL, 0),"
      "(30014, 314, '2014-03-11 00:00:00', '2014-03-12 00:00:00', '2014-04-11 00:00:00', NULL, 0),"
      "(40014, 414, '2014-04-11 00:00:00', '2014-04-12 00:00:00', '2014-05-12 00:00:00', "
      "'2014-05-02 00:00:00', 0),"
      "(50014, 514, '2014-05-11 00:00:00', '2014-05-12 00:00:00', '2014-06-11 00:00:00', NULL, 1),"
      "(20013, 213, '2013-02-11 00:00:00', '2013-02-12 00:00:00', '2013-03-14 00:00:00', NULL, 0),"
      "(30013, 313, '2013-03-11 00:00:00', '2013-03-12 00:00:00', '2013-04-11 00:00:00', "
      "'2013-03-20 00:00:00', 0);");
}

}  // namespace

class cTodosTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    addProcesses(*office_);
    list_ = std::make_unique<ListView>();
    for (int column = 0; column < 12; ++column) {
      list_->addColumn(QString::number(column), ColumnWidth::pixels(80));
    }
    bar_ = std::make_unique<StatusBar>();
  }
  void cleanup() {
    bar_.reset();
    list_.reset();
    office_.reset();
    Clock::stopAt(DateTime::of(2014, 11, 21, 10, 30));
  }

  void filters_data() {
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("ordered");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("0 all, newest opening first")
        << 0 << false << QStringList{"0005/14", "0004/14", "0003/14", "0002/14",
                                     "0003/13", "0002/13", "0001/14", "0001/13"};
    QTest::newRow("1 not closed, of this year, newest number first")
        << 1 << true << QStringList{"0005/14", "0003/14", "0002/14", "0001/14"};
    QTest::newRow("2 open with an empenho, any year")
        << 2 << false << QStringList{"0002/14", "0003/14", "0005/14", "0002/13"};
    QTest::newRow("3 closed, of this year") << 3 << false << QStringList{"0004/14"};
    QTest::newRow("4 requisition only, of this year") << 4 << true << QStringList{"0001/14"};
    QTest::newRow("5 by name, any state and year")
        << 5 << false << QStringList{"0002/14", "0004/14", "0001/13", "0003/13"};
    QTest::newRow("6 by number") << 6 << true << QStringList{"0003/14"};
    QTest::newRow("7 by name among those of 1, without an empenho too")
        << 7 << false << QStringList{"0002/14"};
    QTest::newRow("8 by name among those of 2") << 8 << false << QStringList{"0002/14"};
    QTest::newRow("9 by name among the closed of any year")
        << 9 << false << QStringList{"0004/14", "0003/13"};
  }
  void filters() {
    QFETCH(int, code);
    QFETCH(bool, ordered);
    QFETCH(QStringList, rows);
    cTodos all;
    all.Nome = QStringLiteral("JOÃO");
    all.Seq = 314;
    all.Lista_Movimento(*list_, static_cast<std::int16_t>(code), *bar_);
    QStringList shown = firstColumn(*list_);
    if (!ordered) {
      shown.sort();
      rows.sort();
    }
    QCOMPARE(shown, rows);
    QCOMPARE(bar_->panelText(1),
             QStringLiteral("Total: %1 Registros Localizados....").arg(rows.size()));
    QCOMPARE(screenPointer(), PointerShape::Normal);
    QCOMPARE(Tabela.state(), Recordset::Closed);
  }

  void allAreOrderedByOpeningWithTheUnopenedLast() {
    cTodos().Lista_Movimento(*list_, 0, *bar_);
    QCOMPARE(firstColumn(*list_).mid(0, 6),
             QStringList({"0005/14", "0004/14", "0003/14", "0002/14", "0003/13", "0002/13"}));
  }

  void aNameWithoutAnEmpenhoIsInSevenAndNotInEight() {
    cTodos all;
    all.Nome = QStringLiteral("ana");
    all.Lista_Movimento(*list_, 7, *bar_);
    QVERIFY(firstColumn(*list_).contains(QStringLiteral("0001/14")));
    all.Lista_Movimento(*list_, 8, *bar_);
    QVERIFY(!firstColumn(*list_).contains(QStringLiteral("0001/14")));
  }

  void aRowShowsItsColumns() {
    cTodos all;
    all.Seq = 414;
    all.Lista_Movimento(*list_, 6, *bar_);
    QCOMPARE(cells(*list_, 0),
             QStringList({"0004/14", "00400/14", "10/04/2014", "Educação", "João Bento", "4,00",
                          "Viagem", "11/04/2014", "12/04/2014", "12/05/2014", "02/05/2014", "20"}));
  }

  void aRequisitionWithoutAnEmpenhoHasEmptyCells() {
    cTodos all;
    all.Seq = 114;
    all.Lista_Movimento(*list_, 6, *bar_);
    QCOMPARE(cells(*list_, 0), QStringList({"0001/14", "", "10/01/2014", "Educação", "ANA d'Ávila",
                                            "1.000,00", "Miúdas", "", "", "", "", ""}));
  }

  void theIconTellsTheState_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("icon");
    QTest::newRow("requisition only") << 114 << 3;
    QTest::newRow("opened, not withdrawn") << 214 << 3;
    QTest::newRow("withdrawn") << 314 << 1;
    QTest::newRow("closed") << 414 << 2;
    QTest::newRow("annulled has no mark of its own") << 514 << 1;
  }
  void theIconTellsTheState() {
    QFETCH(int, number);
    cTodos all;
    all.Seq = static_cast<std::int16_t>(number);
    all.Lista_Movimento(*list_, 6, *bar_);
    QTEST(list_->icon(0), "icon");
  }

  void anEmptyResultClearsTheListAndCountsZero() {
    cTodos all;
    all.Seq = 999;
    list_->addItem(QStringLiteral("antes"));
    all.Lista_Movimento(*list_, 6, *bar_);
    QCOMPARE(list_->count(), 0);
    QCOMPARE(bar_->panelText(1), QStringLiteral("Total: 0 Registros Localizados...."));
  }

  void theYearIsTheClocks() {
    Clock::stopAt(DateTime::of(2013, 6, 1));
    cTodos().Lista_Movimento(*list_, 1, *bar_);
    QCOMPARE(firstColumn(*list_), QStringList({"0002/13", "0001/13"}));
  }

  void anApostropheBreaksTheStatement_data() {
    QTest::addColumn<int>("code");
    for (int code : {5, 7, 8, 9}) {
      QTest::addRow("%d", code) << code;
    }
  }
  void anApostropheBreaksTheStatement() {
    QFETCH(int, code);
    cTodos all;
    all.Nome = QStringLiteral("d'Ávila");
    bool told = false;
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::SyntaxError, kLabel, test::kAnything),
                      Button::Ok, [&] { told = true; });
    all.Lista_Movimento(*list_, static_cast<std::int16_t>(code), *bar_);
    QVERIFY(told);
    QCOMPARE(screenPointer(), PointerShape::Normal);
  }

  void noSearchTextChangesData_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("a second statement") << QStringLiteral("x%'; DELETE FROM Requisicao; --");
    QTest::newRow("a second statement that opens a text")
        << QStringLiteral("x%'; DELETE FROM Requisicao WHERE FICHA <> '");
    QTest::newRow("a union") << QStringLiteral(
        "x%' UNION SELECT * FROM Tomador WHERE NOME1 Like '");
  }
  void noSearchTextChangesData() {
    QFETCH(QString, text);
    cTodos all;
    all.Nome = text;
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::SyntaxError, kLabel, test::kAnything));
    all.Lista_Movimento(*list_, 5, *bar_);
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao"), QStringLiteral("8"));
  }

  void anUnknownCodeIsReported() {
    test::ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::SyntaxError, kLabel, test::kAnything));
    cTodos().Lista_Movimento(*list_, 10, *bar_);
  }

  void pickerLists_data() {
    QTest::addColumn<int>("code");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("1 all open") << 1 << QStringList{"00200/13", "00300/14", "00500/14"};
    QTest::newRow("2 open by name") << 2 << QStringList{"00200/14"};
    QTest::newRow("3 open by type") << 3 << QStringList{"00200/13", "00300/14", "00500/14"};
    QTest::newRow("4 closed") << 4 << QStringList{"00300/13", "00400/14"};
  }
  void pickerLists() {
    QFETCH(int, code);
    cTodos all;
    all.Nome = QStringLiteral("bento");
    all.Tipo = QStringLiteral("MIÚ");
    all.Lista_Procura(*list_, static_cast<std::int16_t>(code));
    QStringList shown = firstColumn(*list_);
    shown.sort();
    QTEST(shown, "rows");
  }

  // The list has the rows for itself: what is read and changed later does not show in it.
  void theRowsStayWhatTheyWereWhenListed() {
    cTodos().Lista_Movimento(*list_, 0, *bar_);
    const QStringList before = cells(*list_, 0);
    QCOMPARE(Tabela.state(), Recordset::Closed);
    office_->run("UPDATE Requisicao SET VALOR = 70000; DELETE FROM Adiantamento");
    Tabela.open(QStringLiteral("SELECT SEQ FROM Requisicao"), *Conexao);
    QCOMPARE(cells(*list_, 0), before);
    Tabela.close();
    Conexao->close();
    QCOMPARE(cells(*list_, 0), before);
  }

  void aPickerRowShowsItsColumns() {
    cTodos all;
    all.Nome = QStringLiteral("bento");
    all.Lista_Procura(*list_, 2);
    QCOMPARE(cells(*list_, 0).mid(0, 9),
             QStringList({"00200/14", "João Bento", "Viagem", "0,50", "", "11/03/2014",
                          "11/02/2014", "Fiscal", "0002/14"}));
  }

 private:
  std::unique_ptr<test::Office> office_;
  std::unique_ptr<ListView> list_;
  std::unique_ptr<StatusBar> bar_;
};

}  // namespace quartela

QUARTELA_TEST_MAIN(quartela::cTodosTest)
#include "cTodos_test.moc"
