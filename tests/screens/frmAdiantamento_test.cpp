// The dialog of the empenho.
#include "screens/frmAdiantamento.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QMessageBox>
#include <QTimer>
#include <QToolButton>

#include "platform/controls/MaskedBox.h"
#include "tests/screens/ProcessDesk.h"
#include "tests/support/WindowChecks.h"
#include "tests/support/office/OfficeMain.h"

namespace quartela {

using test::ScriptedDialogs;
namespace boxes = test::boxes;

class frmAdiantamentoTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { desk_ = std::make_unique<test::ProcessDesk>(); }
  void cleanup() { desk_.reset(); }

  void keepsToTheHouseRules() {
    openToEdit();
    QCOMPARE(dialog_->windowTitle(), QString("Adiantamento - Empenho"));
    QCOMPARE(test::mnemonicClashes(*dialog_), QString());
    QCOMPARE(test::unnamedControls(*dialog_), QString());
    QCOMPARE(test::clippedTexts(*dialog_), QString());
    QVERIFY(dialog_->minimumSizeHint().height() <= 540 &&
            dialog_->minimumSizeHint().width() <= 1000);
  }

  void opensNew() {
    openNew();
    QCOMPARE(text("txtprocesso"), QString("001214"));
    QCOMPARE(text("dtpabertura"), QString("21/11/2014"));
    for (const char* name : {"dtpretirada", "dtpfechar_em", "dtpfechamento", "dtpdevolucao"}) {
      QVERIFY(date(name)->isEmpty());
    }
    QCOMPARE(text("mskdev"), QString("0,00"));
    QVERIFY(!child<QWidget>("Frame4")->isEnabled());
    QVERIFY(child<QWidget>("mskempenho")->isEnabled());
    QCOMPARE(focused(), QString("mskempenho"));
    QCOMPARE(child<QCalendarWidget>("MonthView1")->selectedDate(), QDate(2014, 11, 21));
  }

  void opensToEdit() {
    openToEdit(
        "UPDATE Adiantamento SET FECHAMENTO = '2014-11-20 00:00:00', DEVOLUCAO = 1234500, DATADEV "
        "= "
        "'2014-11-19 00:00:00'");
    const QList<QPair<const char*, QString>> shown{{"txtprocesso", "001214"},
                                                   {"mskempenho", "00500/14"},
                                                   {"mskOP", "77"},
                                                   {"dtpabertura", "01/11/2014"},
                                                   {"dtpretirada", "03/11/2014"},
                                                   {"dtpfechar_em", "03/12/2014"},
                                                   {"dtpfechamento", "20/11/2014"},
                                                   {"mskdev", "123,45"},
                                                   {"dtpdevolucao", "19/11/2014"}};
    for (const auto& [name, value] : shown) {
      QCOMPARE(text(name), value);
    }
    QVERIFY(child<QWidget>("Frame4")->isEnabled());
    QVERIFY(!child<QWidget>("mskempenho")->isEnabled());
    QCOMPARE(focused(), QString("mskOP"));
  }

  void theNumberIsCompletedOnLeaving_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("number alone") << "1102"
                                  << "01102/14";
    QTest::newRow("five digits") << "11021"
                                 << "11021/14";
    QTest::newRow("one digit") << "7"
                               << "00007/14";
    QTest::newRow("with its year") << "1102/13"
                                   << "01102/13";
    QTest::newRow("digits in a row") << "110213"
                                     << "01102/13";
    QTest::newRow("year of one digit") << "1102/9"
                                       << "01102/09";
    QTest::newRow("whole") << "0110213"
                           << "01102/13";
    QTest::newRow("nothing") << ""
                             << "_____/__";
    QTest::newRow("year alone") << "/13"
                                << "_____/13";
  }
  void theNumberIsCompletedOnLeaving() {
    QFETCH(QString, typed);
    openNew();
    type("mskempenho", typed);
    QTest::keyClick(child<QWidget>("mskempenho"), Qt::Key_Tab);
    QCOMPARE(focused(), QString("mskOP"));
    QTEST(text("mskempenho"), "shown");
  }

  void theCompletedNumberIsSaved() {
    openNew();
    fill();
    type("mskempenho", "1102");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    QTest::keyClick(child<QWidget>("mskempenho"), Qt::Key_Return);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask("SELECT EMPENHO FROM Adiantamento"), QString("110214"));
  }

  void enterOnCancelSavesNothing() {
    openNew();
    fill();
    auto* const cancel = child<QPushButton>("Command2");
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Return);
    QTRY_VERIFY(!dialog_ || !dialog_->isVisible());
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM Adiantamento"), QString("0"));
  }

  void bearsItsCaptions() {
    openNew();
    const QList<QPair<const char*, QString>> captions{{"lblempenho", "Empenho n°"},
                                                      {"lblOP", "O.P.  n°"},
                                                      {"lblabertura", "Data abertura"},
                                                      {"lblretirada", "Data retirada"},
                                                      {"lblfechar_em", "Fechar em"},
                                                      {"lblfechamento", "Data fechamento"},
                                                      {"lbldev", "Valor devolvido"},
                                                      {"lbldevolucao", "Data da devolução"},
                                                      {"Check1", "Anular este empenho?"},
                                                      {"Command1", "OK"},
                                                      {"Command2", "Cancelar"}};
    for (const auto& [name, caption] : captions) {
      QCOMPARE(child<QWidget>(name)->property("text").toString().remove('&'), caption);
    }
    QCOMPARE(child<MaskedBox>("mskempenho")->mask(), QString("#####/##"));
    QVERIFY(!child<QWidget>("txtprocesso")->isVisible());
  }

  // The opening date has no empty state.
  void aFailedLoadingIsTold() {
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::internalError(ErrorNumber::TypeMismatch, "Função Carrega_dados"));
    openToEdit("UPDATE Adiantamento SET ABERTURA = NULL");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(isOpen());
    QCOMPARE(text("mskempenho"), QString("00500/14"));
    QVERIFY(child<QWidget>("Frame4")->isEnabled());
  }

  void theAnnulledBoxOpensUntickedAndOkClearsTheMark() {
    openToEdit("UPDATE Adiantamento SET ANULADO = 1");
    QCOMPARE(desk_->list("lstEmpenho")->subItem(0, 8), QString("SIM"));
    QVERIFY(!child<QCheckBox>("Check1")->isChecked());
    saveAltered();
    QCOMPARE(desk_->office().ask("SELECT ANULADO FROM Adiantamento"), QString("0"));
  }

  void theTickedBoxAnnuls() {
    openToEdit();
    child<QCheckBox>("Check1")->setChecked(true);
    saveAltered();
    QCOMPARE(desk_->office().ask("SELECT ANULADO FROM Adiantamento"), QString("1"));
    QCOMPARE(desk_->list("lstEmpenho")->subItem(0, 8), QString("SIM"));
  }

  void theTabKeyVisitsTheFieldsInOrder() {
    openToEdit();
    child<QWidget>("mskOP")->setFocus();
    QStringList round = test::tabRound(*dialog_);
    round.removeIf([](const QString& name) { return name.startsWith("qt_calendar"); });
    QCOMPARE(round,
             QStringList({"mskOP", "dtpabertura", "dtpretirada", "dtpfechar_em", "Check1",
                          "dtpfechamento", "mskdev", "dtpdevolucao", "Command1", "Command2"}));
  }

  void savesANewEmpenho() {
    openNew();
    fill();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saved());
    click("Command1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(
        row(),
        QString(
            "60014|1214|2014-11-21 00:00:00|2014-11-21 00:00:00|2014-12-21 00:00:00|||0||0|123"));
    QCOMPARE(desk_->list("lstEmpenho")->text(0), QString("00600/14"));
    QVERIFY(!isOpen());
    QCOMPARE(desk_->enabled("fracadastro cmdAplicar cmdnovo cmdPrestacao"), QString("0010"));
  }

  void aNumberAlreadyTakenIsToldAndChangesNothing() {
    desk_->office().run(
        "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE) VALUES "
        "(114, '2014-10-01 00:00:00', 1, 1, 5, 1);"
        "INSERT INTO Adiantamento(EMPENHO, PROCESSO, OP) VALUES (60014, 114, 5)");
    openNew();
    fill();
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::Yes);
    dialogs.expectBox(boxes::saveFailure(ErrorNumber::DuplicateKey, test::kAnything));
    click("Command1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(desk_->office().ask("SELECT PROCESSO||'|'||OP FROM Adiantamento"), QString("114|5"));
    QVERIFY(!isOpen());
  }

  void altersTheEmpenho() {
    openToEdit();
    type("mskOP", "99");
    type("dtpretirada", "05112014");
    saveAltered();
    QCOMPARE(
        row(),
        QString(
            "50014|1214|2014-11-01 00:00:00|2014-11-05 00:00:00|2014-12-05 00:00:00|||0||0|99"));
  }

  void cancelSavesNothingAndAsksNothing() {
    openNew();
    fill();
    click("Command2");
    QVERIFY(!isOpen());
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM Adiantamento"), QString("0"));
    QCOMPARE(desk_->enabled("fracadastro cmdAplicar"), QString("00"));
  }

  void escapeAsksBeforeTypingIsLost() {
    openNew();
    type("mskOP", "1");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::askAbandon(), Button::No);
    QTest::keyClick(dialog_, Qt::Key_Escape);
    QVERIFY(isOpen());
    QCOMPARE(text("mskOP"), QString("1"));
    dialogs.expectBox(test::askAbandon(), Button::Yes);
    QTest::keyClick(dialog_, Qt::Key_Escape);
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!isOpen());
  }

  void theFrameAsksBeforeTypingIsLost() {
    openNew();
    type("mskOP", "1");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::askAbandon(), Button::No);
    QVERIFY(!dialog_->close());
    QVERIFY(isOpen());
    QCOMPARE(text("mskOP"), QString("1"));
    dialogs.expectBox(test::askAbandon(), Button::Yes);
    QVERIFY(dialog_->close());
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void escapeWithNothingTypedCloses() {
    openNew();
    QTest::keyClick(dialog_, Qt::Key_Escape);
    QVERIFY(!isOpen());
  }

  void lookingRoundIsNotTyping() {
    openToEdit("UPDATE Adiantamento SET DEVOLUCAO = 12345000");
    child<QCalendarWidget>("MonthView1")->setCurrentPage(2016, 3);
    child<QWidget>("mskdev")->setFocus();
    ScriptedDialogs dialogs;
    QTest::keyClick(dialog_, Qt::Key_Escape);
    QVERIFY(!isOpen());
  }

  // Which field is spoilt, what is said, where the focus goes.
  void checksInOrder_data() {
    QTest::addColumn<QString>("spoilt");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("field");
    const char* deadline =
        "Informe uma data para encerramento ?\nObs.: Campo automático. Para despesas com Cursos ou "
        "Viagens "
        "longas \ndistâncias contar 5 (cinco) dias do último dia de retorno do agente";
    QTest::newRow("no number") << "mskempenho dtpfechar_em mskOP"
                               << "Informe o número do Empenho !!"
                               << "mskempenho";
    QTest::newRow("no deadline") << "dtpfechar_em mskOP" << deadline << "dtpfechar_em";
    QTest::newRow("no withdrawal") << "dtpretirada-only mskOP"
                                   << "Informe uma data para a retirada ?"
                                   << "dtpretirada";
    QTest::newRow("deadline before withdrawal")
        << "order mskOP"
        << "A data de encerramento não pode ser menor que a da retirada !!"
        << "dtpfechar_em";
    QTest::newRow("no payment order") << "mskOP"
                                      << "Informe o número da OP !!"
                                      << "mskOP";
  }
  void checksInOrder() {
    QFETCH(QString, spoilt);
    QFETCH(QString, message);
    openNew();
    fill();
    spoil(spoilt);
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::warning(message));
    click("Command1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(isOpen());
    QTEST(focused(), "field");
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM Adiantamento"), QString("0"));
  }

  void equalDatesPass() {
    openNew();
    fill();
    type("dtpfechar_em", "21112014");
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askInclusion(), Button::No);
    click("Command1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void aDateThatIsNoneIsRefused_data() {
    QTest::addColumn<QString>("typed");
    QTest::newRow("half a date") << "0112";
    QTest::newRow("before 1997") << "31121996";
    QTest::newRow("after 2100") << "01012101";
    QTest::newRow("no such day") << "31022014";
  }
  void aDateThatIsNoneIsRefused() {
    QFETCH(QString, typed);
    openNew();
    fill();
    type("dtpfechar_em", typed);
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::warning("Data inválida!!"));
    click("Command1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(focused(), QString("dtpfechar_em"));
    dialogs.expectBox(boxes::askInclusion(), Button::No);
    click("Command1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  // Each is told by itself, the one refused first at first; nothing is saved until both are looked
  // at.
  void everyRefusedDateIsTold() {
    openToEdit();
    type("dtpabertura", "3102");
    type("dtpfechar_em", "31022014");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::warning("Data inválida!!"));
    click("Command1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(focused(), QString("dtpabertura"));
    dialogs.expectBox(test::warning("Data inválida!!"));
    click("Command1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QCOMPARE(focused(), QString("dtpfechar_em"));
    dialogs.expectBox(boxes::askAlteration(), Button::No);
    click("Command1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void aDateCorrectedSinceIsNotTold() {
    openToEdit();
    type("dtpabertura", "3102");
    type("dtpfechar_em", "31022014");
    type("dtpabertura", "02112014");
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::warning("Data inválida!!"));
    click("Command1");
    QCOMPARE(focused(), QString("dtpfechar_em"));
    dialogs.expectBox(boxes::askAlteration(), Button::No);
    click("Command1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
  }

  void numbersThatAreNoneAreRefused_data() {
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("message");
    const QString number = "Informe o número do Empenho !!";
    const QString order = "Informe o número da OP !!";
    QTest::newRow("empenho nought") << QByteArray("mskempenho") << "0000000" << number;
    QTest::newRow("nought of a year") << QByteArray("mskempenho") << "0000014" << number;
    QTest::newRow("a single nought") << QByteArray("mskempenho") << "0" << number;
    QTest::newRow("order with decimals") << QByteArray("mskOP") << "1,999999" << order;
    QTest::newRow("order in letters") << QByteArray("mskOP") << "12a" << order;
    QTest::newRow("negative order") << QByteArray("mskOP") << "-1" << order;
  }
  void numbersThatAreNoneAreRefused() {
    QFETCH(QByteArray, field);
    QFETCH(QString, message);
    openNew();
    fill();
    QFETCH(QString, pasted);
    paste(field.constData(), pasted);
    ScriptedDialogs dialogs;
    dialogs.expectBox(test::warning(message));
    click("Command1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(isOpen());
    QCOMPARE(focused(), QString::fromLatin1(field));
    QCOMPARE(desk_->office().ask("SELECT count(*) FROM Adiantamento"), QString("0"));
  }

  // The list shows days and cents; the row may hold more.
  void whatWasNotTypedIsSavedAsItWas() {
    const char* exact =
        "SELECT ABERTURA||'|'||RETIRADA||'|'||FECHAR_EM||'|'||FECHAMENTO||'|'||DEVOLUCAO||'|'||"
        "DATADEV||'|'||OP FROM Adiantamento";
    openToEdit(
        "UPDATE Adiantamento SET ABERTURA = '2014-11-01 08:30:00', RETIRADA = '2014-11-03 "
        "09:00:00', FECHAR_EM = '2014-12-03 10:00:00', FECHAMENTO = '2014-11-20 11:00:00', "
        "DEVOLUCAO = 123456, DATADEV = '2014-11-19 12:00:00'");
    const QString before = desk_->office().ask(exact);
    QVERIFY(before.contains("|123456|"));
    saveAltered();
    QCOMPARE(desk_->office().ask(exact), before);
    openSelected();
    type("dtpfechamento", "21112014");
    type("mskdev", "1,5");
    saveAltered();
    QCOMPARE(desk_->office().ask(exact),
             QString("2014-11-01 08:30:00|2014-11-03 09:00:00|2014-12-03 10:00:00|2014-11-21 "
                     "00:00:00|15000|2014-11-19 12:00:00|77"));
  }

  // A new empenho begins with its number, however often the operator comes back to it.
  void eachActivationOfANewOneGoesToTheNumber() {
    openNew();
    child<QWidget>("mskOP")->setFocus();
    comeBack();
    QCOMPARE(focused(), QString("mskempenho"));
    child<QWidget>("dtpretirada")->setFocus();
    comeBack();
    QCOMPARE(focused(), QString("mskempenho"));
  }

  void activationOfASavedOneLeavesTheFocus() {
    openToEdit();
    child<QWidget>("dtpretirada")->setFocus();
    comeBack();
    QCOMPARE(focused(), QString("dtpretirada"));
  }

  // A box that really takes the keyboard leaves the focus on the field that it speaks of.
  void aBoxLeavesTheFocusOnItsField() {
    openNew();
    fill();
    child<MaskedBox>("mskOP")->setText({});
    QMessageBox box(QMessageBox::Warning, "Aviso", "x", QMessageBox::Ok, dialog_);
    QTimer::singleShot(0, &box, [&box] {
      QTRY_VERIFY(box.isActiveWindow());
      box.accept();
    });
    child<QWidget>("mskOP")->setFocus();
    box.exec();
    dialog_->activateWindow();
    QTRY_VERIFY(dialog_->isActiveWindow());
    QCOMPARE(focused(), QString("mskOP"));
  }

  void proposesTheDeadline_data() {
    QTest::addColumn<QString>("prazo");
    QTest::addColumn<QString>("deadline");
    QTest::newRow("30 days") << "30 dias"
                             << "10/12/2014";
    QTest::newRow("5 days") << "05 dias"
                            << "15/11/2014";
    QTest::newRow("one digit") << "7 dias"
                               << "17/11/2014";
  }
  void proposesTheDeadline() {
    QFETCH(QString, prazo);
    desk_->office().run(qPrintable(QString("UPDATE Tipos SET PRAZO = '%1'").arg(prazo)));
    openNew();
    type("dtpretirada", "10112014");
    QTEST(text("dtpfechar_em"), "deadline");
    type("dtpfechar_em", "24122014");
    QCOMPARE(text("dtpfechar_em"), QString("24/12/2014"));
  }

  void aDeadlineThatIsNoNumberFails() {
    desk_->office().run("UPDATE Tipos SET PRAZO = 'trinta'");
    openNew();
    ScriptedDialogs dialogs;
    dialogs.expectBox({.text = test::kAnything, .title = {}, .icon = BoxIcon::Stop});
    type("dtpretirada", "10112014");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(date("dtpfechar_em")->isEmpty());
    QVERIFY(isOpen());
  }

  void anEmptiedWithdrawalEmptiesTheDeadline() {
    openToEdit();
    date("dtpretirada")->setFocus();
    QTest::keyClick(date("dtpretirada"), Qt::Key_Delete, Qt::ControlModifier);
    QVERIFY(date("dtpretirada")->isEmpty());
    QVERIFY(date("dtpfechar_em")->isEmpty());
  }

  void computesTheAmountReturned_data() {
    QTest::addColumn<QString>("way");
    QTest::addColumn<int>("spent");
    QTest::addColumn<QString>("amount");
    QTest::addColumn<QString>("dates");
    QTest::newRow("click, money left") << "click" << 300 << "700,00"
                                       << "|";
    QTest::newRow("click on its picture") << "picture" << 300 << "700,00"
                                          << "|";
    QTest::newRow("right click") << "right" << 300 << "5,00"
                                 << "|";
    QTest::newRow("typed") << "type" << 300 << "5,00"
                           << "15/11/2014|";
    QTest::newRow("calendar, money left") << "calendar" << 300 << "700,00"
                                          << "10/11/2014|10/11/2014";
    QTest::newRow("calendar, nothing left") << "calendar" << 1000 << "0,00"
                                            << "10/11/2014|10/11/2014";
    QTest::newRow("calendar, more spent") << "calendar" << 1500 << "5,00"
                                          << "10/11/2014|10/11/2014";
  }
  void computesTheAmountReturned() {
    QFETCH(QString, way);
    QFETCH(int, spent);
    desk_->addEmpenho();
    desk_->addNote("2014-11-05", "1", "A", spent);
    desk_->office().run("UPDATE Adiantamento SET DEVOLUCAO = 50000");
    openSelected();
    QCOMPARE(text("mskdev"), QString("5,00"));
    if (way == "click") {
      QTest::mouseClick(date("dtpfechamento"), Qt::LeftButton);
    } else if (way == "picture") {
      QTest::mouseClick(date("dtpfechamento")->findChild<QToolButton*>(), Qt::LeftButton);
      QTRY_VERIFY(QApplication::activePopupWidget());
      QApplication::activePopupWidget()->close();
    } else if (way == "right") {
      // The menu that a right click opens is not wanted here.
      date("dtpfechamento")->setContextMenuPolicy(Qt::PreventContextMenu);
      QTest::mouseClick(date("dtpfechamento"), Qt::RightButton);
    } else if (way == "type") {
      type("dtpfechamento", "15112014");
    } else {
      emit child<QCalendarWidget>("MonthView1")->clicked(QDate(2014, 11, 10));
    }
    QTEST(text("mskdev"), "amount");
    const QString dates = shownDate("dtpfechamento") + '|' + shownDate("dtpdevolucao");
    QTEST(dates, "dates");
  }

  void withoutAClosingDateNothingIsReturned() {
    openToEdit();
    type("mskdev", "12,5");
    type("dtpdevolucao", "15112014");
    saveAltered();
    QCOMPARE(desk_->office().ask("SELECT DEVOLUCAO||'|'||coalesce(DATADEV, '') FROM Adiantamento"),
             QString("0|"));
  }

  // An amount that was emptied is all that is put right then.
  void theReturnDateStaysBesideAnEmptiedAmount() {
    openToEdit();
    child<MoneyEdit>("mskdev")->clear();
    type("dtpdevolucao", "15112014");
    saveAltered();
    QCOMPARE(desk_->office().ask("SELECT DEVOLUCAO||'|'||DATADEV FROM Adiantamento"),
             QString("0|2014-11-15 00:00:00"));
  }

  // More is spent than was given: the amount that stood there is kept and stored.
  void okStoresTheAmountThatWasKept() {
    desk_->addEmpenho();
    desk_->addNote("2014-11-05", "1", "A", 1500);
    desk_->office().run("UPDATE Adiantamento SET DEVOLUCAO = 50000");
    openSelected();
    type("dtpfechamento", "15112014");
    saveAltered();
    QCOMPARE(desk_->office().ask("SELECT FECHAMENTO||'|'||DEVOLUCAO FROM Adiantamento"),
             QString("2014-11-15 00:00:00|50000"));
  }

  void closesAndReopensByHand() {
    openToEdit();
    type("dtpfechamento", "15112014");
    type("mskdev", "");
    child<MoneyEdit>("mskdev")->clear();
    saveAltered();
    QCOMPARE(desk_->office().ask("SELECT FECHAMENTO||'|'||DEVOLUCAO FROM Adiantamento"),
             QString("2014-11-15 00:00:00|0"));
    openSelected();
    QTest::keyClick(date("dtpfechamento"), Qt::Key_Delete, Qt::ControlModifier);
    saveAltered();
    QCOMPARE(desk_->office().ask("SELECT coalesce(FECHAMENTO, '') FROM Adiantamento"), QString());
  }

  void thePaymentOrderTakesFiveDigits() {
    openNew();
    type("mskOP", "1a2-3.456789");
    QCOMPARE(text("mskOP"), QString("12345"));
    QTest::keyClick(child<QWidget>("mskOP"), Qt::Key_Backspace);
    QCOMPARE(text("mskOP"), QString("1234"));
  }

  void theNumberIsSelectedOnFocus() {
    openNew();
    type("mskempenho", "0060014");
    child<QWidget>("mskOP")->setFocus();
    child<QWidget>("mskempenho")->setFocus();
    QCOMPARE(child<QLineEdit>("mskempenho")->selectedText(), QString("00600/14"));
  }

 private:
  void openNew() {
    desk_->openProcess();
    desk_->click("cmdnovo");
    take();
  }
  void openToEdit(const char* sql = nullptr) {
    desk_->addEmpenho();
    if (sql != nullptr) {
      desk_->office().run(sql);
    }
    openSelected();
  }
  void openSelected() {
    desk_->openProcess();
    test::ProcessDesk::clickRow(desk_->list("lstEmpenho"), 0);
    desk_->click("cmdalterar");
    take();
  }
  void take() {
    dialog_ = desk_->child<frmAdiantamento>("frmAdiantamento");
    QVERIFY(dialog_);
    QTRY_VERIFY(dialog_->isActiveWindow());
  }
  // Number 600/14, order 123, withdrawn today.
  void fill() {
    type("mskempenho", "0060014");
    type("mskOP", "123");
    type("dtpretirada", "21112014");
    QCOMPARE(text("dtpfechar_em"), QString("21/12/2014"));
  }
  void spoil(const QString& what) {
    for (const QString& field : what.split(' ')) {
      if (field == "order") {
        type("dtpfechar_em", "20112014");
      } else if (field == "dtpretirada-only") {
        date("dtpretirada")->setValue(Value());
        type("dtpfechar_em", "21122014");
      } else if (field.startsWith("dtp")) {
        date(qPrintable(field))->setValue(Value());
      } else {
        child<MaskedBox>(qPrintable(field))->setText({});
      }
    }
  }
  // Puts the text in past the filters of single keys.
  void paste(const char* name, const QString& text) const {
    auto* line = child<MaskedBox>(name);
    line->setMaxLength(64);
    line->setText(text);
    QVERIFY(line->text().remove('/').startsWith(text));
  }
  // To the window that opened the dialog and back.
  void comeBack() {
    desk_->window()->activateWindow();
    QTRY_VERIFY(desk_->window()->isActiveWindow());
    dialog_->activateWindow();
    QTRY_VERIFY(dialog_->isActiveWindow());
  }
  void saveAltered() {
    ScriptedDialogs dialogs;
    dialogs.expectBox(boxes::askAlteration(), Button::Yes);
    dialogs.expectBox(boxes::altered());
    click("Command1");
    QVERIFY2(dialogs.satisfied(), dialogs.report());
    QVERIFY(!isOpen());
  }
  QString row() {
    return desk_->office().ask(
        "SELECT EMPENHO||'|'||PROCESSO||'|'||ABERTURA||'|'||RETIRADA||'|'||FECHAR_EM||'|'||"
        "coalesce(FECHAMENTO,'')||'||'||DEVOLUCAO||'|'||coalesce(DATADEV,'')||'|'||ANULADO||'|'||"
        "OP "
        "FROM Adiantamento");
  }
  bool isOpen() const { return dialog_ && dialog_->isVisible(); }
  template <typename T>
  T* child(const char* name) const {
    return dialog_->findChild<T*>(QString::fromLatin1(name));
  }
  DatePicker* date(const char* name) const { return child<DatePicker>(name); }
  QString text(const char* name) const { return child<QLineEdit>(name)->text(); }
  QString shownDate(const char* name) const {
    return date(name)->isEmpty() ? QString() : text(name);
  }
  QString focused() const {
    return dialog_->focusWidget() ? dialog_->focusWidget()->objectName() : QString();
  }
  void click(const char* name) const {
    QTest::mouseClick(child<QAbstractButton>(name), Qt::LeftButton);
  }
  void type(const char* name, const QString& typed) const {
    auto* line = child<QLineEdit>(name);
    line->setFocus();
    line->selectAll();
    test::typeText(line, typed);
  }

  std::unique_ptr<test::ProcessDesk> desk_;
  QPointer<frmAdiantamento> dialog_;
};

}  // namespace quartela

QUARTELA_OFFICE_TEST_MAIN(quartela::frmAdiantamentoTest)
#include "frmAdiantamento_test.moc"
