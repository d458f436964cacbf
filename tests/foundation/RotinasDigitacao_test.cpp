#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "foundation/Rotinas.h"
#include "tests/support/TestMain.h"

using namespace quartela;

class RotinasDigitacaoTest : public QObject {
  Q_OBJECT
 private slots:
  void dateKeys_data();
  void dateKeys();
  void timeKeys_data();
  void timeKeys();
  void typedDate();
  void typedTime();
  void backspaceInTypedTime();
  void replacesSlashes_data();
  void replacesSlashes();
  void editingInTheMiddleKeepsTheSlashes();
  void filterSeesOnlyWhatIsTyped();
  void filterMayChangeTheKey();
  void halfDateThatIsSelectedIsReplaced_data();
  void halfDateThatIsSelectedIsReplaced();
  void halfTimeThatIsSelectedIsReplaced();
  void onlyDigitsComeIn_data();
  void onlyDigitsComeIn();
  void pastes_data();
  void pastes();
  void refusedPasteIsSaid();
  void menuAndMiddleButtonPasteThroughTheFilter();
};

void RotinasDigitacaoTest::dateKeys_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("key");
  QTest::addColumn<QString>("textAfter");
  QTest::addColumn<int>("keyAfter");
  QTest::newRow("first digit") << "" << int('1') << "" << int('1');
  QTest::newRow("day done") << "21" << int('1') << "21/" << int('1');
  QTest::newRow("month done") << "21/11" << int('0') << "21/11/" << int('0');
  QTest::newRow("9 passes") << "2" << int('9') << "2" << int('9');
  QTest::newRow("colon, the code behind 9") << "2" << int(':') << "2" << 0;
  QTest::newRow("slash, the code before 0") << "21" << int('/') << "21" << 0;
  QTest::newRow("letter") << "21" << int('a') << "21" << 0;
  QTest::newRow("backspace") << "21" << 8 << "21" << 8;
  QTest::newRow("backspace behind the month") << "21/11" << 8 << "21/11" << 8;
  QTest::newRow("beyond") << "21/11/2014" << int('5') << "21/11/2014" << int('5');
}

void RotinasDigitacaoTest::dateKeys() {
  QFETCH(QString, text);
  QFETCH(int, key);
  QFETCH(QString, textAfter);
  QFETCH(int, keyAfter);
  QLineEdit box(text);
  box.setCursorPosition(0);
  Mascara_data(box, key);
  QCOMPARE(box.text(), textAfter);
  QCOMPARE(key, keyAfter);
  QCOMPARE(box.cursorPosition(), text == textAfter ? 0 : static_cast<int>(textAfter.size()));
}

void RotinasDigitacaoTest::timeKeys_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("key");
  QTest::addColumn<QString>("textAfter");
  QTest::addColumn<int>("keyAfter");
  QTest::newRow("first digit") << "" << int('1') << "" << int('1');
  QTest::newRow("hours done") << "14" << int('3') << "14:" << int('3');
  QTest::newRow("backspace sets the colon too") << "14" << 8 << "14:" << 8;
  QTest::newRow("backspace elsewhere") << "14:3" << 8 << "14:3" << 8;
  QTest::newRow("letter") << "14" << int('x') << "14" << 0;
  QTest::newRow("colon") << "14" << int(':') << "14" << 0;
  QTest::newRow("code 5 is swallowed") << "14" << 5 << "14" << 0;
}

void RotinasDigitacaoTest::timeKeys() {
  QFETCH(QString, text);
  QFETCH(int, key);
  QFETCH(QString, textAfter);
  QFETCH(int, keyAfter);
  QLineEdit box(text);
  Mascara_hora(box, key);
  QCOMPARE(box.text(), textAfter);
  QCOMPARE(key, keyAfter);
}

void RotinasDigitacaoTest::typedDate() {
  QLineEdit box;
  Filtra_teclas(box, Mascara_data);
  QTest::keyClicks(&box, "21x11.2014");
  QCOMPARE(box.text(), "21/11/2014");
  QTest::keyClick(&box, Qt::Key_Backspace);
  QCOMPARE(box.text(), "21/11/201");
}

void RotinasDigitacaoTest::typedTime() {
  QLineEdit box;
  Filtra_teclas(box, Mascara_hora);
  QTest::keyClicks(&box, "1430");
  QCOMPARE(box.text(), "14:30");
}

void RotinasDigitacaoTest::backspaceInTypedTime() {
  QLineEdit box;
  Filtra_teclas(box, Mascara_hora);
  QTest::keyClicks(&box, "14");
  QTest::keyClick(&box, Qt::Key_Backspace);
  QCOMPARE(box.text(), "14");
}

void RotinasDigitacaoTest::replacesSlashes_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("caret");
  QTest::addColumn<QString>("textAfter");
  QTest::addColumn<int>("caretAfter");
  QTest::newRow("empty") << "" << 0 << "" << 0;
  QTest::newRow("two digits") << "21" << 2 << "21" << 2;
  QTest::newRow("slash too many") << "21/" << 3 << "21" << 2;
  QTest::newRow("third digit") << "211" << 3 << "21/1" << 4;
  QTest::newRow("four digits") << "2111" << 4 << "21/11" << 4;
  QTest::newRow("fifth digit") << "21/112" << 6 << "21/11/2" << 7;
  QTest::newRow("eight digits") << "21112014" << 8 << "21/11/2014" << 8;
  QTest::newRow("nine digits") << "211120149" << 9 << "21/11/2014" << 9;
  QTest::newRow("well formed, behind a slash") << "21/1" << 3 << "21/1" << 4;
  QTest::newRow("well formed, behind the second") << "21/11/2014" << 6 << "21/11/2014" << 7;
  QTest::newRow("well formed, elsewhere") << "21/11/2014" << 5 << "21/11/2014" << 5;
  QTest::newRow("blanks around") << " 2111 " << 1 << "21/11" << 1;
  QTest::newRow("slashes in wrong places") << "2/1/112014" << 5 << "21/11/2014" << 5;
}

void RotinasDigitacaoTest::replacesSlashes() {
  QFETCH(QString, text);
  QFETCH(int, caret);
  QFETCH(QString, textAfter);
  QFETCH(int, caretAfter);
  QLineEdit box(text);
  box.setCursorPosition(caret);
  Formata_data(box);
  QCOMPARE(box.text(), textAfter);
  QCOMPARE(box.cursorPosition(), caretAfter);
}

void RotinasDigitacaoTest::editingInTheMiddleKeepsTheSlashes() {
  QLineEdit box;
  connect(&box, &QLineEdit::textChanged, &box, [&box] { Formata_data(box); });
  QTest::keyClicks(&box, "21112014");
  QCOMPARE(box.text(), "21/11/2014");
  box.setCursorPosition(1);
  QTest::keyClick(&box, Qt::Key_Delete);
  QCOMPARE(box.text(), "21/12/014");
  QCOMPARE(box.cursorPosition(), 1);
  QTest::keyClicks(&box, "1");
  QCOMPARE(box.text(), "21/11/2014");
  QCOMPARE(box.cursorPosition(), 2);
}

void RotinasDigitacaoTest::filterSeesOnlyWhatIsTyped() {
  QLineEdit box;
  QList<int> seen;
  Filtra_teclas(box, [&seen](QLineEdit&, int& key) { seen.append(key); });
  QTest::keyClicks(&box, "a1");
  QTest::keyClick(&box, Qt::Key_Backspace);
  for (const Qt::Key key :
       {Qt::Key_Left, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Escape, Qt::Key_F4}) {
    QTest::keyClick(&box, key);
  }
  QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
  QCOMPARE(seen, (QList<int>{'a', '1', 8}));
  box.setReadOnly(true);
  QTest::keyClicks(&box, "2");
  QCOMPARE(seen.size(), 3);
}

void RotinasDigitacaoTest::filterMayChangeTheKey() {
  QLineEdit box;
  Filtra_teclas(box, [](QLineEdit&, int& key) { key = key == 'a' ? 'A' : key; });
  QTest::keyClicks(&box, "bab");
  QCOMPARE(box.text(), "bAb");
}

void RotinasDigitacaoTest::halfDateThatIsSelectedIsReplaced_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("start");
  QTest::addColumn<int>("length");
  QTest::addColumn<QString>("keys");
  QTest::addColumn<QString>("textAfter");
  QTest::newRow("day") << "21" << 0 << 2 << "05112014"
                       << "05/11/2014";
  QTest::newRow("day and month") << "21/11" << 0 << 5 << "05112014"
                                 << "05/11/2014";
  QTest::newRow("whole") << "21/11/2014" << 0 << 10 << "05112015"
                         << "05/11/2015";
  QTest::newRow("year with its slash") << "21/11/2014" << 5 << 5 << "2015"
                                       << "21/11/2015";
  QTest::newRow("day and month of a whole one") << "21/11/2014" << 0 << 5 << "0"
                                                << "0/2014";
}

void RotinasDigitacaoTest::halfDateThatIsSelectedIsReplaced() {
  QFETCH(QString, text);
  QFETCH(int, start);
  QFETCH(int, length);
  QFETCH(QString, keys);
  QFETCH(QString, textAfter);
  QLineEdit box(text);
  Filtra_data(box);
  box.setSelection(start, length);
  QTest::keyClicks(&box, keys);
  QCOMPARE(box.text(), textAfter);
}

void RotinasDigitacaoTest::halfTimeThatIsSelectedIsReplaced() {
  QLineEdit box("14");
  Filtra_hora(box);
  box.selectAll();
  QTest::keyClicks(&box, "0930");
  QCOMPARE(box.text(), "09:30");
  box.setText("14");
  box.selectAll();
  QTest::keyClick(&box, Qt::Key_Backspace);
  QCOMPARE(box.text(), "");
}

void RotinasDigitacaoTest::onlyDigitsComeIn_data() {
  QTest::addColumn<QString>("typed");
  QTest::addColumn<QString>("text");
  QTest::newRow("letter with its accent") << QStringLiteral("á") << "12";
  QTest::newRow("emoji") << QStringLiteral("\U0001F600") << "12";
  QTest::newRow("zero-width blank") << QStringLiteral("\u200B") << "12";
  QTest::newRow("digit of another script") << QStringLiteral("\u0663") << "12";
  QTest::newRow("digits and letters") << "3a4"
                                      << "1234";
}

void RotinasDigitacaoTest::onlyDigitsComeIn() {
  QFETCH(QString, typed);
  QFETCH(QString, text);
  for (const bool composed : {true, false}) {
    QLineEdit box("12");
    Filtra_digitos(box);
    if (composed) {
      QInputMethodEvent event;
      event.setCommitString(typed);
      QApplication::sendEvent(&box, &event);
    } else {
      QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, typed);
      QApplication::sendEvent(&box, &event);
    }
    QCOMPARE(box.text(), text);
  }
  QLineEdit box("12");
  Filtra_digitos(box);
  box.selectAll();
  QInputMethodEvent accent(QStringLiteral("´"), {});
  QApplication::sendEvent(&box, &accent);
  QCOMPARE(box.text(), "12");
}

void RotinasDigitacaoTest::pastes_data() {
  QTest::addColumn<bool>("date");
  QTest::addColumn<QString>("pasted");
  QTest::addColumn<QString>("text");
  QTest::newRow("digits") << false << "123"
                          << "123";
  QTest::newRow("blanks around") << false << " 123\n"
                                 << "123";
  QTest::newRow("decimals") << false << "1,999999"
                            << "7";
  QTest::newRow("words") << false << "abc"
                         << "7";
  QTest::newRow("too long") << false << "123456"
                            << "7";
  QTest::newRow("date") << true << "21/11/2014"
                        << "21/11/2014";
  QTest::newRow("date with dashes") << true << "21-11-2014"
                                    << "21/11/2014";
  QTest::newRow("digits of a date") << true << "21112014"
                                    << "21/11/2014";
  QTest::newRow("month in words") << true << "21 nov 2014"
                                  << "7";
  QTest::newRow("date and time") << true << "21/11/2014 10:30"
                                 << "7";
}

void RotinasDigitacaoTest::pastes() {
  QFETCH(bool, date);
  QFETCH(QString, pasted);
  QFETCH(QString, text);
  QLineEdit box("7");
  box.setMaxLength(date ? 10 : 5);
  date ? Filtra_data(box) : Filtra_digitos(box);
  box.selectAll();
  QApplication::clipboard()->setText(pasted);
  QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(box.text(), text);
}

void RotinasDigitacaoTest::refusedPasteIsSaid() {
  QLineEdit box("7");
  Filtra_digitos(box);
  box.show();
  QVERIFY(QTest::qWaitForWindowExposed(&box));
  QApplication::clipboard()->setText("1,999999");
  QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(QToolTip::text(), QStringLiteral("“1,999999” não cabe neste campo: nada foi colado."));
}

void RotinasDigitacaoTest::menuAndMiddleButtonPasteThroughTheFilter() {
  QLineEdit box;
  Filtra_digitos(box);
  box.show();
  QVERIFY(QTest::qWaitForWindowExposed(&box));
  for (const auto& [pasted, text] : {std::pair("x1", ""), std::pair("34", "34")}) {
    QApplication::clipboard()->setText(pasted);
    QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(3, 3), box.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&box, &asked);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    const auto actions = menu->actions();
    const auto paste = std::find_if(actions.begin(), actions.end(), [](const QAction* action) {
      return action->text().startsWith("C&olar");
    });
    QVERIFY(paste != actions.end());
    (*paste)->trigger();
    menu->close();
    QCOMPARE(box.text(), text);
  }
  QMimeData data;
  data.setText("5b");
  QDropEvent drop(QPointF(2, 8), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&box, &drop);
  QCOMPARE(box.text(), "34");
  if (QApplication::clipboard()->supportsSelection()) {
    QApplication::clipboard()->setText("x", QClipboard::Selection);
    QTest::mouseClick(&box, Qt::MiddleButton);
    QCOMPARE(box.text(), "34");
  }
}

QUARTELA_TEST_MAIN(RotinasDigitacaoTest)
#include "RotinasDigitacao_test.moc"
