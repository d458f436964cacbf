#include <QLineEdit>
#include <QSignalSpy>
#include <optional>

#include "foundation/Banco.h"
#include "foundation/Rotinas.h"
#include "platform/controls/ComboBox.h"
#include "platform/values/RuntimeError.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestMain.h"
#include "tests/support/office/KnownStatements.h"
#include "tests/support/office/Office.h"

using namespace quartela;
using quartela::test::Office;
using quartela::test::ScriptedDialogs;

namespace {

QStringList items(const ComboBox& combo) {
  QStringList all;
  for (int item = 0; item < combo.count(); ++item) {
    all.append(combo.itemText(item));
  }
  return all;
}

// The box that tells of what goes wrong when the statement is opened.
Box errorBoxOf(const QString& statement, const QString& label) {
  try {
    Recordset rows;
    rows.open(statement, *Conexao, CursorType::Static, LockType::Optimistic);
  } catch (const RuntimeError& error) {
    return {
        .text =
            QStringLiteral("Houve um erro interno:\n\nNúmero do erro:\n%1\nDescrição :\n%2\n"
                           "Origem :\n%3 / %4")
                .arg(QString::number(error.number()), error.description(), error.source(), label),
        .icon = BoxIcon::Exclamation};
  }
  qFatal("the statement does not fail");
}

}  // namespace

class RotinasConsultaTest : public QObject {
  Q_OBJECT
 private slots:
  void init();
  void cleanup();
  void typeAhead_data();
  void typeAhead();
  void typeAheadAsksTheFirstInOrder();
  void typeAheadWithAnApostropheFails();
  void numberOfTheFirstRow();
  void numberWithoutRowsAndOfNull();
  void numberOutOfRangeIsTold();
  void loadsAWholeTableInOrder();
  void loadsActiveRows();
  void loadsAStatement();
  void unknownModeRunsTheStatementThatIsThere();
  void nullTextIsAnEmptyItem();
  void loadingEmptiesTheBoxFirst();
  void failedLoadIsTold();
  void loadingSelectsNothing();
  void loadsTheFirstColumn();
  void loadsAStoredQuery();
  void openTableDoesNotHinder();
  void nextSheet_data();
  void nextSheet();

 private:
  // The loaders and look-ups take any table: these are the test's own.
  test::OwnStatements own_{{
      QStringLiteral("SELECT IDORGAO FROM Orgao WHERE IDORGAO = 99;"),
      QStringLiteral("SELECT IDORGAO, ORGAO FROM Orgao ORDER BY IDORGAO"),
      QStringLiteral("SELECT IDORGAO, ORGAO FROM Orgao ORDER BY IDORGAO DESC;"),
      QStringLiteral("SELECT Max(ID) AS Id FROM Tomador;"),
      QStringLiteral("SELECT Max(IDORGAO) AS Id FROM Orgao WHERE IDORGAO = 99;"),
      QStringLiteral("SELECT ORGAO FROM Orgao WHERE IDORGAO = 1"),
      QStringLiteral("SELECT TOP 1 ORGAO FROM Orgao WHERE ORGAO Like 'O%' ORDER BY ORGAO Asc;"),
      QStringLiteral("Select IDORGAO, ORGAO From Orgao Where IDORGAO > 1 Order By IDORGAO"),
  }};
  std::optional<Office> office_;
};

void RotinasConsultaTest::init() {
  office_.emplace();
  office_->run(
      "INSERT INTO Orgao (IDORGAO, ORGAO) VALUES (1, 'Saúde'), (2, 'Educação'), (3, 'Obras');"
      "INSERT INTO Tomador (ID, NOME1, ATIVO) VALUES (70001, 'Rita', 1), (5, 'Ana', 0), (6, NULL, "
      "1);"
      "INSERT INTO IdentificaTransp (ITEM, PLANILHA, PROCESSO) VALUES"
      " (1, '1', '1214'), (2, '2', '1214'), (7, '1', '1314');");
}

void RotinasConsultaTest::cleanup() {
  QVERIFY(Tabela.state() == Recordset::Closed);
  office_.reset();
}

void RotinasConsultaTest::typeAhead_data() {
  QTest::addColumn<QString>("typed");
  QTest::addColumn<QString>("found");
  QTest::newRow("beginning") << "Ob"
                             << "Obras";
  QTest::newRow("letter case") << "oB"
                               << "Obras";
  QTest::newRow("accent") << "saú"
                          << "Saúde";
  QTest::newRow("whole") << "Obras"
                         << "Obras";
  QTest::newRow("nothing") << "Zz"
                           << "Zz";
  QTest::newRow("not inside") << "bras"
                              << "bras";
  QTest::newRow("empty takes the first") << ""
                                         << "Educação";
}

void RotinasConsultaTest::typeAhead() {
  QFETCH(QString, typed);
  QFETCH(QString, found);
  QCOMPARE(Consulta_combo("Orgao", typed, "ORGAO"), found);
  QCOMPARE(Sql_atual,
           "SELECT TOP 1 ORGAO FROM Orgao WHERE ORGAO Like '" + typed + "%' ORDER BY ORGAO  Asc;");
}

void RotinasConsultaTest::typeAheadAsksTheFirstInOrder() {
  office_->run("INSERT INTO Orgao (ORGAO) VALUES ('Obras e Vias'), ('Obra social')");
  QCOMPARE(Consulta_combo("Orgao", "O", "ORGAO"), "Obra social");
}

void RotinasConsultaTest::typeAheadWithAnApostropheFails() {
  ScriptedDialogs dialogs;
  dialogs.expectBox(
      errorBoxOf("SELECT TOP 1 ORGAO FROM Orgao WHERE ORGAO Like 'D'%' ORDER BY ORGAO  Asc;",
                 QStringLiteral("Função Consulta_combo")));
  QCOMPARE(Consulta_combo("Orgao", "D'", "ORGAO"), "D'");
  QVERIFY2(dialogs.satisfied(), dialogs.report());
}

void RotinasConsultaTest::numberOfTheFirstRow() {
  QLineEdit box("old");
  QCOMPARE(Consulta_numero(box, "SELECT IDORGAO, ORGAO FROM Orgao ORDER BY IDORGAO DESC;"),
           std::int16_t{3});
  QCOMPARE(box.text(), "");
}

void RotinasConsultaTest::numberWithoutRowsAndOfNull() {
  QLineEdit box("old");
  QCOMPARE(Consulta_numero(box, "SELECT IDORGAO FROM Orgao WHERE IDORGAO = 99;"), std::int16_t{0});
  QCOMPARE(box.text(), "");
  ScriptedDialogs dialogs;
  dialogs.expectBox({.text = QStringLiteral("Houve um erro interno:\n\nNúmero do erro:\n13\n"
                                            "Descrição :\n%1\nOrigem :\nQuartela / "
                                            "Função Consulta_numero")
                                 .arg(RuntimeError(ErrorNumber::TypeMismatch).description()),
                     .icon = BoxIcon::Exclamation});
  QCOMPARE(Consulta_numero(box, "SELECT Max(IDORGAO) AS Id FROM Orgao WHERE IDORGAO = 99;"),
           std::int16_t{0});
  QVERIFY2(dialogs.satisfied(), dialogs.report());
}

void RotinasConsultaTest::numberOutOfRangeIsTold() {
  QLineEdit box;
  ScriptedDialogs dialogs;
  dialogs.expectBox({.text = QStringLiteral("Houve um erro interno:\n\nNúmero do erro:\n6\n"
                                            "Descrição :\n%1\nOrigem :\nQuartela / "
                                            "Função Consulta_numero")
                                 .arg(RuntimeError(ErrorNumber::Overflow).description()),
                     .icon = BoxIcon::Exclamation});
  QCOMPARE(Consulta_numero(box, "SELECT Max(ID) AS Id FROM Tomador;"), std::int16_t{0});
  QVERIFY2(dialogs.satisfied(), dialogs.report());
}

void RotinasConsultaTest::loadsAWholeTableInOrder() {
  ComboBox combo;
  Carrega_Controles(combo, "Orgao", "ORGAO", "IDORGAO", 0);
  QCOMPARE(items(combo), (QStringList{"Educação", "Obras", "Saúde"}));
  QCOMPARE(combo.itemDataAt(0), 2);
  QCOMPARE(combo.itemDataAt(2), 1);
  QCOMPARE(Sql_atual, "SELECT * FROM Orgao ORDER BY ORGAO;");
}

void RotinasConsultaTest::loadsActiveRows() {
  ComboBox combo;
  office_->run("DELETE FROM Tomador WHERE ID = 6");
  Carrega_Controles(combo, "Tomador", "NOME1", "ID", 1);
  QCOMPARE(items(combo), QStringList{"Rita"});
  QCOMPARE(combo.itemDataAt(0), 70001);
  QCOMPARE(Sql_atual, "SELECT * FROM Tomador WHERE ATIVO = Yes;");
}

void RotinasConsultaTest::loadsAStatement() {
  ComboBox combo;
  Carrega_Controles(combo, "Select IDORGAO, ORGAO From Orgao Where IDORGAO > 1 Order By IDORGAO",
                    "orgao", "idorgao", 2);
  QCOMPARE(items(combo), (QStringList{"Educação", "Obras"}));
  QCOMPARE(combo.itemDataAt(1), 3);
}

void RotinasConsultaTest::unknownModeRunsTheStatementThatIsThere() {
  ComboBox combo;
  Sql_atual = "SELECT * FROM Orgao WHERE IDORGAO = 3;";
  Carrega_Controles(combo, "Tomador", "ORGAO", "IDORGAO", 3);
  QCOMPARE(items(combo), QStringList{"Obras"});
  QCOMPARE(Sql_atual, "SELECT * FROM Orgao WHERE IDORGAO = 3;");
}

void RotinasConsultaTest::nullTextIsAnEmptyItem() {
  ComboBox combo;
  Carrega_Controles(combo, "SELECT * FROM Tomador WHERE ID = 6", "NOME1", "ID", 2);
  QCOMPARE(items(combo), QStringList{""});
  QCOMPARE(combo.itemDataAt(0), 6);
}

void RotinasConsultaTest::loadingEmptiesTheBoxFirst() {
  ComboBox combo;
  combo.addItem("old");
  combo.setListIndex(0);
  Carrega_Controles(combo, "SELECT * FROM Orgao WHERE IDORGAO = 99", "ORGAO", "IDORGAO", 2);
  QCOMPARE(combo.count(), 0);
  combo.addItem("old");
  Carrega_Combo(combo, "SELECT ORGAO FROM Orgao WHERE IDORGAO = 1");
  QCOMPARE(items(combo), QStringList{"Saúde"});
}

void RotinasConsultaTest::failedLoadIsTold() {
  ComboBox combo;
  ScriptedDialogs dialogs;
  dialogs.expectBox(errorBoxOf("SELECT * FROM Ausente ORDER BY X;", "Carrega_Controles"));
  Carrega_Controles(combo, "Ausente", "X", "Y", 0);
  dialogs.expectBox(errorBoxOf("SELECT X FROM Ausente", "Carrega_Combo"));
  Carrega_Combo(combo, "SELECT X FROM Ausente");
  QVERIFY2(dialogs.satisfied(), dialogs.report());
  QCOMPARE(combo.count(), 0);
}

void RotinasConsultaTest::loadingSelectsNothing() {
  ComboBox combo;
  QSignalSpy picked(&combo, &ComboBox::picked);
  Carrega_Controles(combo, "Orgao", "ORGAO", "IDORGAO", 0);
  QCOMPARE(combo.listIndex(), -1);
  QCOMPARE(picked.size(), 0);
}

void RotinasConsultaTest::loadsTheFirstColumn() {
  ComboBox combo;
  Carrega_Combo(combo, "SELECT IDORGAO, ORGAO FROM Orgao ORDER BY IDORGAO");
  QCOMPARE(items(combo), (QStringList{"1", "2", "3"}));
  QCOMPARE(combo.itemDataAt(0), 0);
}

void RotinasConsultaTest::loadsAStoredQuery() {
  ComboBox combo;
  Carrega_Combo(combo, "Sel_Uf");
  QCOMPARE(items(combo).size(), office_->ask("SELECT count(DISTINCT uf) FROM Cidades").toInt());
  QVERIFY(items(combo).contains("MG"));
}

void RotinasConsultaTest::openTableDoesNotHinder() {
  Tabela.open("Orgao", *Conexao);
  QCOMPARE(Consulta_combo("Orgao", "Ob", "ORGAO"), "Obras");
}

void RotinasConsultaTest::nextSheet_data() {
  QTest::addColumn<int>("mode");
  QTest::addColumn<int>("process");
  QTest::addColumn<int>("next");
  QTest::newRow("in a process") << 1 << 1214 << 3;
  QTest::newRow("in another") << 1 << 1314 << 2;
  QTest::newRow("process without sheets") << 1 << 9999 << 0;
  QTest::newRow("of all") << 2 << 0 << 8;
}

void RotinasConsultaTest::nextSheet() {
  QFETCH(int, mode);
  QFETCH(int, process);
  QFETCH(int, next);
  QCOMPARE(int{Proximo_planilha(static_cast<std::int16_t>(mode), process)}, next);
}

QUARTELA_TEST_MAIN(RotinasConsultaTest)
#include "RotinasConsulta_test.moc"
