// The notes of the process screen: entry, checks, aids to typing, money summary.
#include <QCheckBox>
#include <QMenu>
#include <QSet>

#include "platform/database/Connection.h"
#include "tests/screens/ProcessDesk.h"
#include "tests/support/WindowChecks.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {

using test::ScriptedDialogs;
namespace boxes = test::boxes;

class frmCadastroNotasTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { desk_ = std::make_unique<test::ProcessDesk>(); }
  void cleanup() { desk_.reset(); }

  void opensThePageOfNotes() {
    desk_->openNotes();
    QCOMPARE(desk_->firstOther({{"lbldatanota", "Data"},
                                {"lblordem", "Identificação da Nota"},
                                {"lblrazao", "Histórico (Razão Social)"},
                                {"lblvalornota", "Valor"},
                                {"Check1", "Habilitar busca aut."},
                                {"Check2", "Exceções na data"},
                                {"Command1_1", "Alterar"},
                                {"Command1_2", "Gravar"},
                                {"Command1_3", "Incluir"},
                                {"Command1_4", "Imprimir Prestação de Contas"},
                                {"Command1_5", "Exportar / Texto"},
                                {"Command1_6", "Cancel"},
                                {"cap_lblEmpenho", "Valor do empenho:"},
                                {"cap_lblGasto", "Total gasto:"},
                                {"cap_lblNao_aplicado", "Importância não aplicada:"},
                                {"txtseq", "0"},
                                {"Text1", ""}}),
             QString());
    QCOMPARE(desk_->headers("lstNotas"),
             QStringList({"SEQ", "DATA", " DOC.", "IDENTIFICAÇÃO DO DOCUMENTO", "VALOR", "TOTAL"}));
    const QList<QPair<const char*, int>> lengths{
        {"txtdatanota", 10}, {"txtordem", 10}, {"txtrazao_social", 45}, {"mskValor_nota", 64}};
    for (const auto& [name, length] : lengths) {
      QCOMPARE(desk_->child<QLineEdit>(name)->maxLength(), length);
    }
    QVERIFY(desk_->child<QCheckBox>("Check1")->isChecked());
    QVERIFY(desk_->child<QCheckBox>("Check2")->isChecked());
    QCOMPARE(desk_->enabled("Check1 Check2"), QString("10"));
    for (const char* hidden : {"txtseq", "Text1", "pbr", "lblachou_0", "lblachou_1"}) {
      QVERIFY(!desk_->widget(hidden)->isVisible());
    }
  }

  void theTabKeyVisitsThePageInOrder() {
    desk_->addNoteRows();
    desk_->click("Command1_3");
    QCOMPARE(test::tabRound(*desk_->window()),
             QStringList({"txtdatanota", "txtordem", "txtrazao_social", "mskValor_nota",
                          "Command1_2", "Command1_6", "Check1", "lstNotas", "Command1_5",
                          "Command1_4", "cmdEncerrar", "cmdPrestacao", "Command1_0"}));
  }

  void paintsButtonsAndAmounts() {
    desk_->openNotes();
    const auto colour = [this](const char* name, QPalette::ColorRole role) {
      return desk_->widget(name)->palette().color(QPalette::Active, role);
    };
    QCOMPARE(colour("Command1_4", QPalette::Button), QColor(0xC8, 0xF0, 0xC8));
    QCOMPARE(colour("Command1_5", QPalette::Button), QColor(Qt::white));
    QCOMPARE(colour("lblEmpenho", QPalette::WindowText), QColor(0, 0, 255));
    QCOMPARE(colour("lblGasto", QPalette::WindowText), QColor(0, 0x64, 0));
    QCOMPARE(colour("lblNao_aplicado", QPalette::WindowText), QColor(0, 0, 255));
  }

  // A name is shown as it was typed, whatever it looks like.
  void showsNamesAsTheyStand() {
    desk_->office().run("UPDATE Tomador SET NOME1 = '<b>Davi</b> & Cia' WHERE ID = 1");
    desk_->openNotes();
    QCOMPARE(desk_->text("lblIdentificacao_27").section(" - ", 1, 1), QString("<b>Davi</b>  Cia"));
    for (const char* name : {"lblIdentificacao_27", "lblachou_0", "lblachou_1"}) {
      QCOMPARE(desk_->child<QLabel>(name)->textFormat(), Qt::PlainText);
    }
  }

  // Amounts sort as the texts that they are.
  void columnsSortAndTurnRound() {
    desk_->addNoteRows();
    ListView* list = desk_->list("lstNotas");
    const auto documents = [list] {
      list->flush();
      return list->subItem(0, 2) + ' ' + list->subItem(1, 2) + ' ' + list->subItem(2, 2);
    };
    QCOMPARE(documents(), QString("17 45 46"));
    emit list->columnClicked(5);
    const QString once = documents();
    emit list->columnClicked(5);
    const QString twice = documents();
    QCOMPARE(QSet<QString>({once, twice}), QSet<QString>({"46 45 17", "17 45 46"}));
  }

  // The table of states, cell by cell: fraNotas, Alterar, Gravar, Incluir, Cancel.
  void enablesByState_data() {
    QTest::addColumn<bool>("notes");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("enabled");
    QTest::newRow("rest, with notes") << true << ""
                                      << "01010";
    QTest::newRow("rest, no notes") << false << ""
                                    << "00010";
    QTest::newRow("after Incluir") << true << "I"
                                   << "10101";
    QTest::newRow("after Incluir, no notes") << false << "I"
                                             << "10101";
    QTest::newRow("after Alterar") << true << "A"
                                   << "11101";
    QTest::newRow("Gravar after Incluir leaves Alterar off") << true << "IG"
                                                             << "00010";
    QTest::newRow("Gravar after Alterar leaves Alterar on") << true << "AG"
                                                            << "01010";
    QTest::newRow("Cancel after Incluir") << true << "IC"
                                          << "01010";
    QTest::newRow("Cancel after Alterar") << true << "AC"
                                          << "01010";
    QTest::newRow("Cancel with no notes") << false << "IC"
                                          << "01010";
  }
  void enablesByState() {
    QFETCH(bool, notes);
    QFETCH(QString, steps);
    if (notes) {
      desk_->addEmpenho();
      desk_->addNote("2014-11-05", "17", "POSTO", 100);
      desk_->openProcess();
      desk_->click("cmdPrestacao");
    } else {
      desk_->openNotes();
    }
    for (const QChar step : steps) {
      doStep(step);
    }
    QTEST(desk_->enabled("fraNotas Command1_1 Command1_2 Command1_3 Command1_6"), "enabled");
  }

  void entersTenNotesWithTheKeyboardAlone() {
    desk_->openNotes();
    desk_->widget("Command1_3")->setFocus();
    ScriptedDialogs dialogs;
    for (int n = 1; n <= 10; ++n) {
      key(Qt::Key_Return);
      QCOMPARE(desk_->focused(), QString("txtdatanota"));
      if (n == 1) {
        typeHere("05112014");
      }
      key(Qt::Key_Return);
      typeHere(QString::number(100 + n));
      key(Qt::Key_Enter);
      typeHere("padaria");
      key(Qt::Key_Return);
      typeHere("12");
      key(Qt::Key_Comma);
      typeHere("5");
      key(Qt::Key_Return);
      QCOMPARE(desk_->focused(), QString("Command1_2"));
      dialogs.expectBox(boxes::saved());
      key(Qt::Key_Return);
      QVERIFY2(dialogs.satisfied(), dialogs.report());
      QCOMPARE(desk_->focused(), QString("Command1_3"));
    }
    QCOMPARE(desk_->list("lstNotas")->count(), 10);
    QCOMPARE(desk_->office().ask(
                 "SELECT sum(DESPESAS)||'|'||min(DATA)||'|'||max(ORDEM)||'|'||min(HISTORICO)"
                 " FROM PrestContas"),
             QString("1250000|2014-11-05 00:00:00|110|PADARIA"));
    QCOMPARE(desk_->text("lblGasto"), QString("125,00"));
    QCOMPARE(desk_->text("txtdatanota"), QString("05/11/2014"));
  }

  void storesWithoutAccents() {
    desk_->openNotes();
    note("05/11/2014", " nf 7 ", " açougue são joão ", "10");
    save();
    QCOMPARE(desk_->office().ask(
                 "SELECT HISTORICO||'|'||ORDEM||'|'||ID_VIAGEM||'|'||PROCESSO FROM PrestContas"),
             QString("ACOUGUE SAO JOAO|Nf 7|0|50014"));
  }

  // A letter of the keyboard presses the button without leaving the field.
  void theDocumentGetsItsCapitalsAlsoByTheKeyboard() {
    desk_->openNotes();
    note("05/11/2014", "1", "D'ÁVILA", "10");
    desk_->type("txtordem", "nf 7");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::saved());
    desk_->mnemonic(Qt::Key_G);
    QTRY_VERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask("SELECT ORDEM||'|'||HISTORICO FROM PrestContas"),
             QString("Nf 7|D'AVILA"));
  }

  void aFailedSaveIsToldAndLosesNothing_data() {
    QTest::addColumn<bool>("alters");
    QTest::newRow("new") << false;
    QTest::newRow("altered") << true;
  }
  void aFailedSaveIsToldAndLosesNothing() {
    QFETCH(bool, alters);
    withOneNote();
    if (alters) {
      pickNote();
      desk_->click("Command1_1");
      desk_->type("txtrazao_social", "PADARIA");
    } else {
      note("05/11/2014", "9", "PADARIA", "12,5");
    }
    const QString amount = alters ? "1.100,00" : "12,50";
    Connection other;
    other.open(QStringLiteral("Data Source=") + desk_->office().database());
    other.beginTransaction();
    ScriptedDialogs dialogs;
    if (alters) {
      dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    }
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::RowLocked));
    desk_->click("Command1_2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->firstOther({{"txtdatanota", "05/11/2014"},
                                {"txtordem", alters ? "17" : "9"},
                                {"txtrazao_social", "PADARIA"},
                                {"mskValor_nota", amount}}),
             QString());
    QCOMPARE(desk_->enabled("fraNotas Command1_2 Command1_3 Command1_6"), QString("1101"));
    other.rollback();
    if (alters) {
      dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    }
    dialogs.expectBox(alters ? boxes::altered() : boxes::saved());
    desk_->click("Command1_2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM PrestContas WHERE HISTORICO = 'PADARIA'"),
             QString("1"));
    QCOMPARE(desk_->text("txtrazao_social"), QString());
  }

  // Declined, the alteration is over, as after saving it.
  void aDeclinedAlterationEndsTheEntry() {
    withOneNote();
    pickNote();
    desk_->click("Command1_1");
    desk_->type("mskValor_nota", "40");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::No);
    desk_->click("Command1_2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask("SELECT DESPESAS FROM PrestContas"), QString("11000000"));
    QCOMPARE(desk_->text("mskValor_nota"), QString());
    QCOMPARE(desk_->enabled("fraNotas Command1_1 Command1_2 Command1_3 Command1_6"),
             QString("01010"));
  }

  void checks_data() {
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("history");
    QTest::addColumn<QString>("amount");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("field");
    const char* bad = "Data inválida!!";
    const char* early = "A data da nota é menor que a da retirada !!";
    const char* late = "A data da nota é maior que a do fechamento !!";
    QTest::newRow("no such day") << "31/02/2014"
                                 << "X"
                                 << "1" << bad << "txtdatanota";
    QTest::newRow("half a date") << "05/11"
                                 << "X"
                                 << "1" << bad << "txtdatanota";
    QTest::newRow("bad date before all else") << "05/11"
                                              << ""
                                              << "" << bad << "txtdatanota";
    QTest::newRow("no history") << "05/11/2014"
                                << ""
                                << ""
                                << "Informe a Identificação da nota !!"
                                << "txtrazao_social";
    QTest::newRow("no amount") << "01/01/2014"
                               << "X"
                               << ""
                               << "Informe um valor !!"
                               << "mskValor_nota";
    QTest::newRow("before the withdrawal") << "02/11/2014"
                                           << "X"
                                           << "1" << early << "txtdatanota";
    QTest::newRow("before 1997") << "31/12/1996"
                                 << "X"
                                 << "1" << early << "txtdatanota";
    QTest::newRow("on the withdrawal") << "03/11/2014"
                                       << "X"
                                       << "1"
                                       << ""
                                       << "";
    QTest::newRow("on the deadline") << "03/12/2014"
                                     << "X"
                                     << "1"
                                     << ""
                                     << "";
    QTest::newRow("after the deadline") << "04/12/2014"
                                        << "X"
                                        << "1" << late << "txtdatanota";
    QTest::newRow("after 2100") << "01/01/2101"
                                << "X"
                                << "1" << late << "txtdatanota";
  }
  void checks() {
    QFETCH(QString, date);
    QFETCH(QString, history);
    QFETCH(QString, amount);
    QFETCH(QString, message);
    QFETCH(QString, field);
    desk_->openNotes();
    note(date, "9", history, amount);
    ScriptedDialogs dialogs;
    dialogs.expectBox(message.isEmpty() ? boxes::saved() : test::warning(message));
    desk_->click("Command1_2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM PrestContas"),
             QString(message.isEmpty() ? "1" : "0"));
    if (!message.isEmpty()) {
      QCOMPARE(desk_->focused(), field);
      QCOMPARE(desk_->text("txtdatanota"), date);
      QCOMPARE(desk_->text("txtrazao_social"), history);
      QCOMPARE(desk_->text("txtordem"), QString("9"));
      QCOMPARE(desk_->enabled("fraNotas Command1_2"), QString("11"));
    }
  }

  void anEmptyDateFailsAndKeepsTheFields() {
    desk_->openNotes();
    note("", "9", "X", "1");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::TypeMismatch, "Função Save_reg"));
    desk_->click("Command1_2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->text("txtrazao_social"), QString("X"));
    QCOMPARE(desk_->enabled("fraNotas Command1_2"), QString("11"));
  }

  void withoutAWithdrawalTheLowerTestIsSkipped() {
    desk_->addEmpenho();
    desk_->office().run("UPDATE Adiantamento SET RETIRADA = NULL");
    desk_->openProcess();
    desk_->click("cmdPrestacao");
    note("01/02/2010", "9", "X", "1");
    save();
    QCOMPARE(desk_->office().ask("SELECT DATA FROM PrestContas"), QString("2010-02-01 00:00:00"));
  }

  void theAmountTakesAmountsOnly_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("letters") << "a1b2"
                             << "12,00";
    QTest::newRow("two commas stay") << "1,2,3"
                                     << "1,2,3";
    QTest::newRow("minus") << "-5"
                           << "5,00";
    QTest::newRow("three decimals stay") << "1,239"
                                         << "1,239";
    QTest::newRow("dotted thousands") << "1.500,00"
                                      << "1.500,00";
    QTest::newRow("dot as comma") << "12.50"
                                  << "12,50";
    QTest::newRow("too many digits stay") << "123456789012345"
                                          << "123456789012345";
  }
  void theAmountTakesAmountsOnly() {
    QFETCH(QString, typed);
    desk_->openNotes();
    desk_->click("Command1_3");
    desk_->type("mskValor_nota", typed);
    desk_->widget("txtordem")->setFocus();
    QTEST(desk_->text("mskValor_nota"), "shown");
  }

  void altersANote() {
    withOneNote();
    pickNote();
    desk_->click("Command1_1");
    QCOMPARE(desk_->text("txtdatanota"), QString("05/11/2014"));
    QCOMPARE(desk_->text("txtordem"), QString("17"));
    QCOMPARE(desk_->text("txtrazao_social"), QString("POSTO"));
    QCOMPARE(desk_->text("mskValor_nota"), QString("1.100,00"));
    desk_->type("mskValor_nota", "40");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::altered());
    desk_->click("Command1_2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask("SELECT count(*)||'|'||max(DESPESAS) FROM PrestContas"),
             QString("1|400000"));
    QCOMPARE(desk_->text("lblGasto"), QString("40,00"));
  }

  void alterNeedsAClickedNote() {
    withOneNote();
    desk_->click("Command1_1");
    QCOMPARE(desk_->enabled("fraNotas Command1_2"), QString("00"));
  }

  void aNoteBeyondSixteenBitsCannotBeAltered() {
    withOneNote();
    desk_->office().run("UPDATE PrestContas SET SEQ = 40000");
    desk_->click("cmdPrestacao");
    desk_->click("cmdPrestacao");
    pickNote();
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::untrapped(ErrorNumber::Overflow));
    desk_->click("Command1_1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->enabled("fraNotas"), QString("0"));
  }

  void cancelClearsEverything() {
    withOneNote();
    pickNote();
    desk_->click("Command1_1");
    desk_->click("Command1_6");
    for (const char* name : {"txtdatanota", "txtordem", "txtrazao_social", "mskValor_nota"}) {
      QCOMPARE(desk_->text(name), QString());
    }
    QCOMPARE(desk_->text("txtseq"), QString("0"));
  }

  void excludesANote_data() {
    QTest::addColumn<bool>("yes");
    QTest::newRow("yes") << true;
    QTest::newRow("no") << false;
  }
  void excludesANote() {
    QFETCH(bool, yes);
    withOneNote();
    const QString item = desk_->list("lstNotas")->text(0);
    pickNote();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::question("Confirma exclusão deste item? - " + item),
                      yes ? Button::Yes : Button::No);
    if (yes) {
      dialogs.expectBox(boxes::deleted());
    }
    QTest::keyClick(desk_->list("lstNotas"), Qt::Key_Delete);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->list("lstNotas")->count(), yes ? 0 : 1);
    QCOMPARE(desk_->enabled("Command1_4 Command1_5 cmdEncerrar"), QString(yes ? "000" : "111"));
    QCOMPARE(desk_->text("lblGasto"), QString(yes ? "0,00" : "1.100,00"));
  }

  void theMenuExcludes() {
    withOneNote();
    auto* menu = desk_->child<QMenu>("mnOpcoes");
    emit desk_->list("lstNotas")->contextMenuRequested(0, QPoint(10, 10));
    QTRY_VERIFY(menu->isVisible());
    menu->hide();
    auto* action = desk_->child<QAction>("mnExcluir");
    QCOMPARE(action->text().remove('&'), QString("Excluir item selecionado"));
    desk_->office().run("DELETE FROM PrestContas");
    desk_->click("cmdPrestacao");
    desk_->click("cmdPrestacao");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::stopped("Informe um item !!!"));
    action->trigger();
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  // Of 1.000,00.
  void sumsUp_data() {
    QTest::addColumn<int>("spent");
    QTest::addColumn<QString>("gasto");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<QString>("enabled");
    const QColor blue(0, 0, 255);
    const QColor red(0xD0, 0, 0);
    QTest::newRow("nothing: the buttons keep their start") << 0 << "0,00"
                                                           << "1.000,00" << blue << "110";
    QTest::newRow("some") << 300 << "300,00"
                          << "700,00" << blue << "111";
    QTest::newRow("all") << 1000 << "1.000,00"
                         << ",00" << red << "111";
    QTest::newRow("more") << 1200 << "1.200,00"
                          << "-200,00" << red << "111";
  }
  void sumsUp() {
    QFETCH(int, spent);
    desk_->addEmpenho();
    if (spent > 0) {
      desk_->addNote("2014-11-05", "17", "POSTO", spent);
    }
    desk_->openProcess();
    desk_->click("cmdPrestacao");
    QCOMPARE(desk_->text("lblEmpenho"), QString("1.000,00"));
    QTEST(desk_->text("lblGasto"), "gasto");
    QTEST(desk_->text("lblNao_aplicado"), "left");
    QTEST(desk_->widget("lblNao_aplicado")->palette().color(QPalette::WindowText), "colour");
    QTEST(desk_->enabled("Command1_4 Command1_5 cmdEncerrar"), "enabled");
  }

  void findsANoteWhileItsNumberIsTyped_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("found");
    QTest::newRow("the number") << "45" << true;
    QTest::newRow("the name, in any case") << "merc" << true;
    QTest::newRow("the amount") << "30,0" << true;
    QTest::newRow("not the key") << "0002" << false;
    QTest::newRow("not the middle") << "ERCADO" << false;
    QTest::newRow("nothing") << "" << false;
  }
  void findsANoteWhileItsNumberIsTyped() {
    QFETCH(QString, typed);
    QFETCH(bool, found);
    desk_->addNoteRows();
    desk_->child<QCheckBox>("Check1")->setChecked(false);
    desk_->click("Command1_3");
    desk_->type("txtordem", "45");
    desk_->type("txtordem", typed);
    if (typed.isEmpty()) {
      desk_->child<QLineEdit>("txtordem")->clear();
    }
    for (const char* name : {"lblachou_0", "lblachou_1"}) {
      QCOMPARE(desk_->widget(name)->isVisible(), found);
    }
    if (found) {
      QCOMPARE(desk_->text("lblachou_0"), QString(" MERCADO"));
      QCOMPARE(desk_->text("lblachou_1"), QString(" VALOR: 30,00"));
      QCOMPARE(desk_->list("lstNotas")->selectedRow(), 1);
    }
  }

  void proposesAHistory() {
    desk_->addNoteRows();
    desk_->click("Command1_3");
    auto* field = desk_->child<QLineEdit>("txtrazao_social");
    desk_->type("txtrazao_social", "me");
    QCOMPARE(field->text(), QString("MERCADO"));
    QCOMPARE(field->selectedText(), QString("RCADO"));
    QCOMPARE(field->cursorPosition(), 2);
    test::typeText(field, "rx");
    QCOMPARE(field->text(), QString("MERX"));
    QTest::keyClick(field, Qt::Key_Backspace);
    QCOMPARE(field->text(), QString("MER"));
    test::typeText(field, "C");
    QCOMPARE(field->text(), QString("MERCADO"));
    desk_->child<QCheckBox>("Check1")->setChecked(false);
    desk_->type("txtrazao_social", "me");
    QCOMPARE(field->text(), QString("ME"));
  }

  // What is stored bears no accents, so that what is typed with them finds nothing.
  void proposesNothingForAnAccent() {
    desk_->addEmpenho();
    desk_->addNote("2014-11-05", "17", "ACOUGUE", 10);
    desk_->openProcess();
    desk_->click("cmdPrestacao");
    desk_->click("Command1_3");
    desk_->type("txtrazao_social", "aç");
    QCOMPARE(desk_->text("txtrazao_social"), QString("AÇ"));
    desk_->type("txtrazao_social", "ac");
    QCOMPARE(desk_->text("txtrazao_social"), QString("ACOUGUE"));
  }

  void aFailedLookUpIsTold() {
    desk_->addNoteRows();
    desk_->click("Command1_3");
    ScriptedDialogs dialogs;
    dialogs.expectBox({.text = test::kAnything, .icon = BoxIcon::Exclamation});
    desk_->type("txtrazao_social", "'");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->text("txtrazao_social"), QString("'"));
  }

  void helpsWithTheDate() {
    desk_->openNotes();
    desk_->click("Command1_3");
    desk_->type("txtdatanota", "0a5-11201499");
    QCOMPARE(desk_->text("txtdatanota"), QString("05/11/2014"));
    desk_->widget("txtordem")->setFocus();
    desk_->widget("txtdatanota")->setFocus();
    QCOMPARE(desk_->child<QLineEdit>("txtdatanota")->selectedText(), QString("05/11/2014"));
  }

  void escapeAsksBeforeANoteIsLost() {
    desk_->openNotes();
    note("05/11/2014", "1", "X", "");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::askAbandon(), Button::No);
    QTest::keyClick(desk_->widget("txtrazao_social"), Qt::Key_Escape);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->text("txtrazao_social"), QString("X"));
    dialogs.expectBox(test::askAbandon(), Button::No);
    QVERIFY(!desk_->window()->close());
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->text("txtrazao_social"), QString("X"));
  }

  // Each of these would put something else in its place.
  void whatEndsAnEntryAsksFirst_data() {
    QTest::addColumn<QString>("way");
    for (const char* way : {"Voltar", "Imprimir", "Alterar", "Excluir"}) {
      QTest::newRow(way) << QString(way);
    }
  }
  void whatEndsAnEntryAsksFirst() {
    QFETCH(QString, way);
    const test::PrintedReports printed;
    withOneNote();
    pickNote();
    desk_->click("Command1_1");
    desk_->type("txtrazao_social", "OUTRO");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::askAbandon(), Button::No);
    end(way);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(desk_->isOpen());
    QCOMPARE(desk_->text("txtrazao_social"), QString("OUTRO"));
    QCOMPARE(desk_->child<TwoPageTab>("SSTab1")->current(), 1);
    QCOMPARE(printed.requests.size(), 0);
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM PrestContas"), QString("1"));
  }

  void aNoteGivenUpIsNotAskedForAgain() {
    withOneNote();
    desk_->click("Command1_3");
    desk_->type("txtrazao_social", "X");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::askAbandon(), Button::Yes);
    desk_->click("cmdPrestacao");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->child<TwoPageTab>("SSTab1")->current(), 0);
    desk_->click("Command1_0");
    QVERIFY(!desk_->isOpen());
  }

  // The slip ends the window, but not what was typed behind it.
  void closingWithASlipAsksForATypedNote() {
    const test::PrintedReports printed;
    desk_->addNoteRows();
    desk_->click("Command1_3");
    desk_->type("txtrazao_social", "X");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::informedQuestion("Deseja Encerrar o Adiantamento agora?"), Button::Yes);
    dialogs.expectBox({.text = "Empenho Encerrado!!!",
                       .title = "Finalizar Prestação de Contas",
                       .icon = BoxIcon::Information});
    dialogs.expectBox(test::askAbandon(), Button::No);
    desk_->click("cmdEncerrar");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(desk_->isOpen());
    QCOMPARE(desk_->text("txtrazao_social"), QString("X"));
    QCOMPARE(printed.requests.size(), 1);
  }

  void whatWasNotTypedIsSavedAsItWas() {
    const char* exact = "SELECT DATA||'|'||DESPESAS FROM PrestContas";
    withOneNote();
    desk_->office().run("UPDATE PrestContas SET DATA = '2014-11-05 07:08:09', DESPESAS = 123456");
    pickNote();
    doStep('A');
    QCOMPARE(desk_->text("mskValor_nota"), QString("12,35"));
    desk_->widget("mskValor_nota")->setFocus();
    doStep('G');
    QCOMPARE(desk_->office().ask(exact), QString("2014-11-05 07:08:09|123456"));
    doStep('A');
    desk_->type("mskValor_nota", "1,2");
    desk_->type("txtdatanota", "06112014");
    doStep('G');
    QCOMPARE(desk_->office().ask(exact), QString("2014-11-06 00:00:00|12000"));
  }

  // It shows as ",00".
  void aNoteOfNothingCanBeAltered() {
    withOneNote();
    desk_->office().run("UPDATE PrestContas SET DESPESAS = 0");
    doStep('A');
    desk_->type("txtrazao_social", "OUTRO");
    doStep('G');
    QCOMPARE(desk_->office().ask("SELECT HISTORICO||DESPESAS FROM PrestContas"), QString("OUTRO0"));
  }

  void anAmountThatIsNoneIsRefused() {
    desk_->openNotes();
    note("05/11/2014", "1", "X", "5");
    desk_->child<MoneyEdit>("mskValor_nota")->setText("1.2.3");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::warning("Valor inválido!!"));
    desk_->click("Command1_2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->focused(), QString("mskValor_nota"));
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM PrestContas"), QString("0"));
  }

  void aNoteOnlyLookedAtIsNotAskedFor_data() {
    QTest::addColumn<bool>("deleted");
    QTest::newRow("loaded") << false;
    QTest::newRow("deleted meanwhile") << true;
  }
  void aNoteOnlyLookedAtIsNotAskedFor() {
    QFETCH(bool, deleted);
    withOneNote();
    pickNote();
    desk_->click("Command1_1");
    desk_->widget("mskValor_nota")->setFocus();
    ScriptedDialogs dialogs;
    if (deleted) {
      dialogs.expectBox({.text = test::kAnything,
                         .title = "Aviso",
                         .icon = BoxIcon::Question,
                         .buttons = {Button::Yes, Button::No},
                         .defaultButton = Button::Yes},
                        Button::Yes);
      dialogs.expectBox(boxes::deleted());
      QTest::keyClick(desk_->list("lstNotas"), Qt::Key_Delete);
      for (const char* name : {"txtdatanota", "txtordem", "txtrazao_social", "mskValor_nota"}) {
        QCOMPARE(desk_->text(name), QString());
      }
    }
    QVERIFY(desk_->window()->close());
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

 private:
  void key(Qt::Key code) { QTest::keyClick(QApplication::focusWidget(), code); }
  void typeHere(const QString& text) { test::typeText(QApplication::focusWidget(), text); }
  void note(const QString& date, const QString& document, const QString& history,
            const QString& amount) {
    desk_->child<QCheckBox>("Check1")->setChecked(false);
    desk_->click("Command1_3");
    desk_->type("txtdatanota", QString(date).remove('/'));
    desk_->type("txtordem", document);
    desk_->type("txtrazao_social", history);
    desk_->type("mskValor_nota", amount);
    desk_->widget("Command1_2")->setFocus();
  }
  void save() {
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::saved());
    desk_->click("Command1_2");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }
  void withOneNote() {
    desk_->addEmpenho();
    desk_->addNote("2014-11-05", "17", "POSTO", 1100);
    desk_->openProcess();
    desk_->click("cmdPrestacao");
  }
  void pickNote() { test::ProcessDesk::clickRow(desk_->list("lstNotas"), 0); }
  void end(const QString& way) {
    if (way == "Excluir") {
      QTest::keyClick(desk_->list("lstNotas"), Qt::Key_Delete);
    } else {
      desk_->click(way == "Voltar"    ? "cmdPrestacao"
                   : way == "Alterar" ? "Command1_1"
                                      : "Command1_4");
    }
  }
  void doStep(QChar step) {
    ScriptedDialogs dialogs;
    if (step == 'I') {
      desk_->click("Command1_3");
      desk_->type("txtdatanota", "05112014");
      desk_->type("txtrazao_social", "X");
      desk_->type("mskValor_nota", "1");
    } else if (step == 'A') {
      pickNote();
      desk_->click("Command1_1");
    } else if (step == 'C') {
      desk_->click("Command1_6");
    } else {
      if (desk_->enabled("Command1_1") == "1") {
        dialogs.expectBox(boxes::askAlteration(), Button::Yes);
        dialogs.expectBox(boxes::altered());
      } else {
        dialogs.expectBox(boxes::saved());
      }
      desk_->click("Command1_2");
      QVERIFY2(dialogs.satisfied(), dialogs.report());
    }
  }

  std::unique_ptr<test::ProcessDesk> desk_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmCadastroNotasTest)
#include "frmCadastro_notas_test.moc"
