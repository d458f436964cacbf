// The one writer: what it tells of each change, and when.
#include "records/Gravacao.h"

#include "foundation/Banco.h"
#include "records/Mudancas.h"
#include "records/cAdiantamento.h"
#include "records/cPrestContas.h"
#include "records/cReqAvulso.h"
#include "records/cRequisicao.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/OfficeMain.h"
#include "tests/support/office/Samples.h"

namespace quartela {

namespace boxes = test::boxes;
using test::ScriptedDialogs;

namespace {

// "+ Table key", "* Table key" or "- Table key"; "~" in front of what went along.
QString brief(const Mudanca& change) {
  const char* const kind = change.especie == Mudanca::Especie::Inclusao    ? "+"
                           : change.especie == Mudanca::Especie::Alteracao ? "*"
                                                                           : "-";
  return (change.arrastada ? "~" : "") + QLatin1String(kind) + ' ' + change.tabela + ' ' +
         QString::number(change.chave.i32());
}

}  // namespace

class GravacaoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    office_ = std::make_unique<test::Office>();
    test::addMasterRows(*office_);
    test::addOpenProcess(*office_);
    office_->run(
        "INSERT INTO PrestContas(SEQ, PROCESSO, DATA, HISTORICO, DESPESAS, ID_VIAGEM) VALUES "
        "(7, 50014, '2014-11-05 00:00:00', 'POSTO', 100000, 0),"
        "(9, 50014, '2014-11-06 00:00:00', 'MERCADO', 200000, 0)");
    told_.clear();
    watcher_ = std::make_unique<ObservaMudancas>([this](const Mudanca& change) { hear(change); });
  }
  void cleanup() {
    watcher_.reset();
    heard_ = {};
    office_.reset();
  }

  // Each with the key that the file has given the row.
  void tellsOfANewRow() {
    requisition().Seq = 214;
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    QVERIFY(requisition().Save_req(kInclusao));
    note().Historico = "PADARIA";
    dialogs.expectBox(boxes::saved());
    QVERIFY(note().Save_prest(kInclusao));
    note().Save_import();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(briefs(), QStringList({"+ Requisicao 214", "+ PrestContas 10", "+ PrestContas 11"}));
    QVERIFY(told_[0].antes.isEmpty());
    QCOMPARE(told_[0].depois.size(), 8);
    QVERIFY(told_[0].depois["VALOR"] == Value(Money::fromReais(5)));
    QVERIFY(told_[1].depois["HISTORICO"] == Value("PADARIA"));
  }

  void tellsOfAnAlteration() {
    note().Seq = 7;
    note().Envia_dados(7);
    note().Historico = "OUTRO";
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::altered());
    QVERIFY(note().Save_prest(kAlteracao));
    QCOMPARE(briefs(), QStringList{"* PrestContas 7"});
    QVERIFY(told_[0].antes["HISTORICO"] == Value("POSTO"));
    QVERIFY(told_[0].depois["HISTORICO"] == Value("OUTRO"));
    QVERIFY(told_[0].antes["DESPESAS"] == told_[0].depois["DESPESAS"]);
  }

  void tellsOfAClosing() {
    cAdiantamento& advance = cAdiantamento::compartilhada();
    advance.Empenho = 50014;
    advance.Fechamento = DateTime::of(2014, 11, 20);
    advance.Devolucao = Money::fromReais(7);
    advance.Datadev = QString();
    QVERIFY(advance.Encerra_adiantamento());
    QCOMPARE(briefs(), QStringList{"* Adiantamento 50014"});
    QVERIFY(told_[0].antes["FECHAMENTO"].isNull());
    QVERIFY(told_[0].depois["FECHAMENTO"] == Value(DateTime::of(2014, 11, 20)));
    QVERIFY(told_[0].depois["DEVOLUCAO"] == Value(Money::fromReais(7)));
  }

  void tellsOfADeletion() {
    addPurpose("one");
    const QString key = office_->ask("SELECT ID FROM Finalidade WHERE FINALIDADE = 'one'");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::deleted());
    Exclui_registro({.tabela = "Finalidade",
                     .apaga = "DELETE FROM Finalidade where ",
                     .condicao = "ID = " + key});
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(briefs(), QStringList({"+ Finalidade " + key, "- Finalidade " + key}));
    QVERIFY(told_[1].antes["FINALIDADE"] == Value("one"));
    QVERIFY(told_[1].depois.isEmpty());
  }

  // All that goes with a process, the row itself first.
  void aCascadeTellsWhatItTookAlong() {
    requisition().Seq = 114;
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::deleted());
    requisition().Del_req();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(briefs(), QStringList({"- Requisicao 114", "~- Adiantamento 50014", "~- PrestContas 7",
                                    "~- PrestContas 9"}));
    QVERIFY(told_[3].antes["HISTORICO"] == Value("MERCADO"));
    QCOMPARE(office_->ask("SELECT count(*) FROM PrestContas"), QString("0"));
  }

  void allNotesOfAnEmpenhoAreToldEach() {
    note().processo = 50014;
    note().Del_prest_todos();
    QCOMPARE(briefs(), QStringList({"- PrestContas 7", "- PrestContas 9"}));
  }

  void whatIsRefusedIsNotTold() {
    ScriptedDialogs dialogs;
    dialogs.expectBox({.text = test::kAnything, .title = {}, .icon = BoxIcon::Stop});
    Exclui_registro(
        {.tabela = "Orgao", .apaga = "DELETE FROM Orgao where ", .condicao = "IDORGAO = 1"});
    requisition().Seq = 114;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox({.text = test::kAnything, .title = {}, .icon = BoxIcon::Stop});
    QVERIFY(!requisition().Save_req(kInclusao));
    dialogs.expectBox(boxes::askInclusion(), Button::No);
    QVERIFY(!requisition().Save_req(kInclusao));
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(briefs(), QStringList());
  }

  // Nobody else sees the change yet, and the operator has not been told.
  void tellsBeforeTheTransactionEnds() {
    requisition().Seq = 214;
    ScriptedDialogs dialogs;
    QString seen = "?";
    bool open = false;
    heard_ = [&] {
      open = Conexao->inTransaction();
      seen = office_->ask("SELECT count(*) FROM Requisicao");
    };
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    QVERIFY(requisition().Save_req(kInclusao));
    QVERIFY(open);
    QCOMPARE(seen, QString("1"));
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao"), QString("2"));
    QVERIFY(!Conexao->inTransaction());
  }

  void whatAnObserverWritesBelongsToTheChange_data() {
    QTest::addColumn<bool>("fails");
    QTest::newRow("kept with it") << false;
    QTest::newRow("undone with it") << true;
  }
  void whatAnObserverWritesBelongsToTheChange() {
    QFETCH(bool, fails);
    heard_ = [this, fails] {
      heard_ = {};
      addPurpose("journal");
      if (fails) {
        throw RuntimeError(ErrorNumber::DiskFull);
      }
    };
    requisition().Seq = 214;
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(fails ? boxes::saveFailure(ErrorNumber::DiskFull) : boxes::saved());
    QCOMPARE(requisition().Save_req(kInclusao), !fails);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    const QString kept = fails ? "0" : "1";
    QCOMPARE(office_->ask("SELECT count(*) FROM Requisicao WHERE SEQ = 214"), kept);
    QCOMPARE(purposes(), kept);
    // Another program can write at once.
    office_->run("UPDATE Tipos SET PRAZO = '9'");
  }

  void anObserverCanForbidADeletion() {
    heard_ = [] { throw RuntimeError(ErrorNumber::DiskFull); };
    requisition().Seq = 114;
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::DiskFull));
    requisition().Del_req();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(office_->ask("SELECT count(*) FROM PrestContas"), QString("2"));
    office_->run("UPDATE Tipos SET PRAZO = '9'");
  }

  // A class that browses keeps its rows open and is where it was.
  void writesThroughRowsOfItsOwn() {
    Recordset rows;
    rows.open("Select * from PrestContas Where PROCESSO = 50014 Order by DATA, SEQ;", *Conexao,
              CursorType::Static, LockType::Pessimistic);
    rows.moveNext();
    Grava_linha(kAlteracao, {.tabela = "PrestContas",
                             .selecao = {},
                             .grava_campos = [&] { rows.setField(u"HISTORICO", "OUTRO"); },
                             .linhas = &rows});
    QCOMPARE(int{rows.state()}, int{Recordset::Open});
    QVERIFY(rows.field(u"SEQ") == Value(9));
    std::int32_t given = 0;
    Grava_linha(kInclusao, {.tabela = "PrestContas",
                            .selecao = {},
                            .grava_campos = [&] { rows.setField(u"PROCESSO", 50014); },
                            .numero = &given,
                            .linhas = &rows});
    QCOMPARE(given, 10);
    QCOMPARE(briefs(), QStringList({"* PrestContas 9", "+ PrestContas 10"}));
    QCOMPARE(office_->ask("SELECT HISTORICO FROM PrestContas WHERE SEQ = 9"), QString("OUTRO"));
  }

  // One of two writes fails: neither is kept.
  void whatBelongsTogetherIsWrittenWholeOrNotAtAll() {
    const auto both = [this] {
      Em_transacao([this] {
        addPurpose("one");
        addPurpose(QString(3, QChar(0)));
        throw RuntimeError(ErrorNumber::DiskFull);
      });
    };
    QVERIFY_EXCEPTION_THROWN(both(), RuntimeError);
    QCOMPARE(purposes(), QString("0"));
    QVERIFY(!Conexao->inTransaction());
    Em_transacao([this] {
      addPurpose("one");
      Em_transacao([this] { addPurpose("two"); });
      QVERIFY(Conexao->inTransaction());
    });
    QCOMPARE(purposes(), QString("2"));
  }

  void tellsAllWhoListenAndNobodyWhoHasLeft() {
    QStringList second;
    {
      const ObservaMudancas other([&](const Mudanca& change) { second << brief(change); });
      addPurpose("one");
    }
    addPurpose("two");
    QCOMPARE(second.size(), 1);
    QCOMPARE(told_.size(), 2);
    watcher_.reset();
    QVERIFY(!ha_quem_observe());
    addPurpose("three");
    QCOMPARE(told_.size(), 2);
  }

 private:
  void hear(const Mudanca& change) {
    told_.append(change);
    if (const auto heard = heard_) {
      heard();
    }
  }
  QStringList briefs() const {
    QStringList all;
    for (const Mudanca& change : told_) {
      all << brief(change);
    }
    return all;
  }
  static cRequisicao& requisition() {
    cRequisicao& row = cRequisicao::compartilhada();
    row.Data = DateTime::of(2014, 11, 21);
    row.Orgao = row.Tomador = row.Finalidade = 1;
    row.Valor = Money::fromReais(5);
    return row;
  }
  static cPrestContas& note() {
    cPrestContas& row = cPrestContas::compartilhada();
    row.processo = 50014;
    row.Data = DateTime::of(2014, 11, 21);
    return row;
  }
  static void addPurpose(const QString& text) {
    Recordset rows;
    rows.open("Finalidade", *Conexao, CursorType::Static, LockType::Pessimistic);
    Grava_linha(kInclusao, {.tabela = "Finalidade",
                            .selecao = {},
                            .grava_campos = [&] { rows.setField(u"FINALIDADE", text); },
                            .linhas = &rows});
  }
  QString purposes() const {
    return office_->ask(
        "SELECT count(*) FROM Finalidade WHERE FINALIDADE IN ('journal', 'one', 'two', 'three')");
  }

  std::unique_ptr<test::Office> office_;
  std::unique_ptr<ObservaMudancas> watcher_;
  QList<Mudanca> told_;
  std::function<void()> heard_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::GravacaoTest)
#include "Gravacao_test.moc"
