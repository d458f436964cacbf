#include "platform/controls/MaskedBox.h"

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <QSignalSpy>
#include <functional>

#include "tests/support/TestMain.h"

using namespace quartela;

Q_DECLARE_METATYPE(std::function<void(QLineEdit*)>)

namespace {

const QString kCpf = QStringLiteral("###.###.###-##");
const QString kBlankCpf = QStringLiteral("___.___.___-__");
const QString kFullCpf = QStringLiteral("123.456.789-01");

}  // namespace

class MaskedBoxTest : public QObject {
  Q_OBJECT
 private slots:
  void init();
  void showsTheTemplate();
  void setTextTakesBothForms_data();
  void setTextTakesBothForms();
  void kindsOfPositions_data();
  void kindsOfPositions();
  void typingStepsOverLiterals();
  void typingOverwritesInPlace();
  void typingIntoAFullBoxIsSwallowed();
  void typingReplacesASelection();
  void refusedKeyLeavesTheSelection();
  void backspaceStepsBack();
  void deleteEmptiesThePosition();
  void selectionIsEmptiedAsAWhole_data();
  void selectionIsEmptiedAsAWhole();
  void homeEndAndArrows();
  void pastes_data();
  void pastes();
  void cutCopiesAndEmpties();
  void baseClassCannotBreakTheTemplate();
  void dropGoesThroughTheTemplate();
  void composedLettersGoThroughTheTemplate();
  void readOnlyStaysAsItIs();
  void maskChangesKeepWhatWasTyped();
  void emptyMaskIsAPlainLine();
  void editsAreSignalled();
  void valueWithAndWithoutPrompts();
  void nobodyHearsOfABrokenTemplate_data();
  void nobodyHearsOfABrokenTemplate();
  void otherCharactersAreSwallowed_data();
  void otherCharactersAreSwallowed();
  void literalThatFitsItsNeighbourStays();

 private:
  std::unique_ptr<MaskedBox> box_;
};

void MaskedBoxTest::init() {
  box_ = std::make_unique<MaskedBox>();
  box_->setMask(kCpf);
}

void MaskedBoxTest::showsTheTemplate() {
  QCOMPARE(box_->text(), kBlankCpf);
  QCOMPARE(box_->clipText(), "");
  QVERIFY(box_->isMaskEmpty());
  QVERIFY(!box_->isComplete());
  box_->setText(kFullCpf);
  QCOMPARE(box_->clipText(), "12345678901");
  QVERIFY(!box_->isMaskEmpty());
  QVERIFY(box_->isComplete());
}

void MaskedBoxTest::setTextTakesBothForms_data() {
  QTest::addColumn<QString>("mask");
  QTest::addColumn<QString>("given");
  QTest::addColumn<QString>("shown");
  QTest::newRow("formatted") << kCpf << kFullCpf << kFullCpf;
  QTest::newRow("digits") << kCpf << "12345678901" << kFullCpf;
  QTest::newRow("blank template") << kCpf << kBlankCpf << kBlankCpf;
  QTest::newRow("half") << kCpf << "123.4__.___-__"
                        << "123.4__.___-__";
  QTest::newRow("hole") << kCpf << "1_3.456.789-01"
                        << "1_3.456.789-01";
  QTest::newRow("empty") << kCpf << "" << kBlankCpf;
  QTest::newRow("too long") << kCpf << "1234567890123" << kFullCpf;
  QTest::newRow("stray characters") << kCpf << " 123 456 789 01 " << kFullCpf;
  QTest::newRow("process") << "####/##"
                           << "0012/14"
                           << "0012/14";
  QTest::newRow("process, digits") << "####/##"
                                   << "001214"
                                   << "0012/14";
  QTest::newRow("slash ends the number") << "####/##"
                                         << "12/14"
                                         << "12__/14";
}

void MaskedBoxTest::setTextTakesBothForms() {
  QFETCH(QString, mask);
  QFETCH(QString, given);
  QFETCH(QString, shown);
  box_->setMask(mask);
  box_->setText(given);
  QCOMPARE(box_->text(), shown);
}

void MaskedBoxTest::kindsOfPositions_data() {
  QTest::addColumn<QString>("mask");
  QTest::addColumn<QString>("typed");
  QTest::addColumn<QString>("shown");
  QTest::newRow("digit refuses letters") << "##"
                                         << "a1b2"
                                         << "12";
  QTest::newRow("digit refuses other scripts") << "##" << QStringLiteral("\u0663\u0664") << "__";
  QTest::newRow("letter refuses digits") << "?#?"
                                         << "1a2b"
                                         << "a2b";
  QTest::newRow("letter takes accents") << "??" << QStringLiteral("çÉ") << QStringLiteral("çÉ");
  QTest::newRow("any") << "&&&"
                       << "a1/"
                       << "a1/";
  QTest::newRow("escaped kind is a literal") << "\\#-##"
                                             << "12"
                                             << "#-12";
}

void MaskedBoxTest::kindsOfPositions() {
  QFETCH(QString, mask);
  QFETCH(QString, typed);
  QFETCH(QString, shown);
  box_->setMask(mask);
  box_->setCursorPosition(0);
  for (const QChar character : typed) {
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
    QApplication::sendEvent(box_.get(), &press);
  }
  QCOMPARE(box_->text(), shown);
}

void MaskedBoxTest::typingStepsOverLiterals() {
  box_->setCursorPosition(0);
  QTest::keyClicks(box_.get(), "123");
  QCOMPARE(box_->text(), "123.___.___-__");
  QCOMPARE(box_->cursorPosition(), 4);
  QTest::keyClicks(box_.get(), "45678901");
  QCOMPARE(box_->text(), kFullCpf);
  box_->setText("");
  box_->setCursorPosition(0);
  QTest::keyClicks(box_.get(), kFullCpf);
  QCOMPARE(box_->text(), kFullCpf);
}

void MaskedBoxTest::typingOverwritesInPlace() {
  box_->setText(kFullCpf);
  box_->setCursorPosition(2);
  QTest::keyClicks(box_.get(), "99");
  QCOMPARE(box_->text(), "129.956.789-01");
  QCOMPARE(box_->cursorPosition(), 5);
}

void MaskedBoxTest::typingIntoAFullBoxIsSwallowed() {
  box_->setText(kFullCpf);
  box_->setCursorPosition(14);
  QTest::keyClicks(box_.get(), "7");
  QCOMPARE(box_->text(), kFullCpf);
}

void MaskedBoxTest::typingReplacesASelection() {
  box_->setText(kFullCpf);
  box_->selectAll();
  QTest::keyClicks(box_.get(), "5");
  QCOMPARE(box_->text(), "5__.___.___-__");
  QCOMPARE(box_->cursorPosition(), 1);
}

void MaskedBoxTest::refusedKeyLeavesTheSelection() {
  box_->setText(kFullCpf);
  box_->selectAll();
  QTest::keyClicks(box_.get(), "x");
  QCOMPARE(box_->text(), kFullCpf);
  QCOMPARE(box_->selectedText(), kFullCpf);
}

void MaskedBoxTest::backspaceStepsBack() {
  box_->setText(kFullCpf);
  box_->setCursorPosition(4);
  QTest::keyClick(box_.get(), Qt::Key_Backspace);
  QCOMPARE(box_->text(), "12_.456.789-01");
  QCOMPARE(box_->cursorPosition(), 2);
  QTest::keyClick(box_.get(), Qt::Key_Backspace);
  QTest::keyClick(box_.get(), Qt::Key_Backspace);
  QTest::keyClick(box_.get(), Qt::Key_Backspace);
  QCOMPARE(box_->text(), "___.456.789-01");
}

void MaskedBoxTest::deleteEmptiesThePosition() {
  box_->setText(kFullCpf);
  box_->setCursorPosition(3);
  QTest::keyClick(box_.get(), Qt::Key_Delete);
  QCOMPARE(box_->text(), "123._56.789-01");
  box_->setCursorPosition(14);
  QTest::keyClick(box_.get(), Qt::Key_Delete);
  QCOMPARE(box_->text(), "123._56.789-01");
}

void MaskedBoxTest::selectionIsEmptiedAsAWhole_data() {
  QTest::addColumn<int>("key");
  QTest::newRow("Delete") << int(Qt::Key_Delete);
  QTest::newRow("Backspace") << int(Qt::Key_Backspace);
}

void MaskedBoxTest::selectionIsEmptiedAsAWhole() {
  QFETCH(int, key);
  box_->setText(kFullCpf);
  box_->setSelection(2, 4);
  QTest::keyClick(box_.get(), static_cast<Qt::Key>(key));
  QCOMPARE(box_->text(), "12_.__6.789-01");
  QCOMPARE(box_->cursorPosition(), 2);
}

void MaskedBoxTest::homeEndAndArrows() {
  box_->setMask("(##) ####");
  box_->setText("1112");
  QTest::keyClick(box_.get(), Qt::Key_Home);
  QCOMPARE(box_->cursorPosition(), 1);
  QTest::keyClick(box_.get(), Qt::Key_Left);
  QCOMPARE(box_->cursorPosition(), 1);
  QTest::keyClick(box_.get(), Qt::Key_Right);
  QTest::keyClick(box_.get(), Qt::Key_Right);
  QCOMPARE(box_->cursorPosition(), 5);
  QTest::keyClick(box_.get(), Qt::Key_Left);
  QCOMPARE(box_->cursorPosition(), 2);
  QTest::keyClick(box_.get(), Qt::Key_End);
  QCOMPARE(box_->cursorPosition(), 7);
}

void MaskedBoxTest::pastes_data() {
  QTest::addColumn<QString>("pasted");
  QTest::addColumn<int>("caret");
  QTest::addColumn<QString>("shown");
  QTest::newRow("formatted") << kFullCpf << 0 << kFullCpf;
  QTest::newRow("digits") << "12345678901" << 0 << kFullCpf;
  QTest::newRow("with blanks and a line end") << " 123.456.789-01\n" << 0 << kFullCpf;
  QTest::newRow("in the middle") << "45" << 4 << "___.45_.___-__";
  QTest::newRow("nothing that fits") << "abc" << 0 << kBlankCpf;
}

void MaskedBoxTest::pastes() {
  QFETCH(QString, pasted);
  QFETCH(int, caret);
  QFETCH(QString, shown);
  QApplication::clipboard()->setText(pasted);
  box_->setCursorPosition(caret);
  QTest::keyClick(box_.get(), Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(box_->text(), shown);
}

void MaskedBoxTest::cutCopiesAndEmpties() {
  box_->setText(kFullCpf);
  box_->selectAll();
  QTest::keyClick(box_.get(), Qt::Key_X, Qt::ControlModifier);
  QCOMPARE(QApplication::clipboard()->text(), kFullCpf);
  QCOMPARE(box_->text(), kBlankCpf);
}

void MaskedBoxTest::baseClassCannotBreakTheTemplate() {
  QLineEdit* line = box_.get();
  line->setText("98765432100");
  QCOMPARE(line->text(), "987.654.321-00");
  line->clear();
  QCOMPARE(line->text(), kBlankCpf);
  line->setCursorPosition(0);
  line->insert("12");
  QCOMPARE(line->text(), "12_.___.___-__");
}

void MaskedBoxTest::dropGoesThroughTheTemplate() {
  QMimeData data;
  data.setText("123.456.789-01");
  QDragEnterEvent enter(QPoint(2, 8), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(box_.get(), &enter);
  QDropEvent drop(QPointF(2, 8), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(box_.get(), &drop);
  QCOMPARE(box_->text(), kFullCpf);
}

void MaskedBoxTest::composedLettersGoThroughTheTemplate() {
  box_->setMask("??");
  box_->setCursorPosition(0);
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("é"));
  QApplication::sendEvent(box_.get(), &composed);
  QCOMPARE(box_->text(), QStringLiteral("é_"));
}

void MaskedBoxTest::readOnlyStaysAsItIs() {
  box_->setText(kFullCpf);
  box_->setReadOnly(true);
  box_->selectAll();
  QTest::keyClicks(box_.get(), "9");
  QTest::keyClick(box_.get(), Qt::Key_Delete);
  QTest::keyClick(box_.get(), Qt::Key_Backspace);
  QTest::keyClick(box_.get(), Qt::Key_X, Qt::ControlModifier);
  QTest::keyClick(box_.get(), Qt::Key_V, Qt::ControlModifier);
  QCOMPARE(box_->text(), kFullCpf);
}

void MaskedBoxTest::maskChangesKeepWhatWasTyped() {
  box_->setMask("####/##");
  box_->setText("0012/14");
  box_->setMask("#####/##");
  QCOMPARE(box_->text(), "00121/4_");
  box_->setMask("");
  QCOMPARE(box_->text(), "001214");
}

void MaskedBoxTest::emptyMaskIsAPlainLine() {
  box_->setMask("");
  box_->setText("qualquer coisa");
  QCOMPARE(box_->text(), "qualquer coisa");
  QCOMPARE(box_->clipText(), "qualquer coisa");
  QTest::keyClicks(box_.get(), "!");
  QTest::keyClick(box_.get(), Qt::Key_Backspace);
  QCOMPARE(box_->text(), "qualquer coisa");
  box_->setText("");
  QVERIFY(box_->isMaskEmpty());
  QVERIFY(box_->isComplete());
}

void MaskedBoxTest::editsAreSignalled() {
  QSignalSpy edited(box_.get(), &QLineEdit::textEdited);
  QSignalSpy changed(box_.get(), &QLineEdit::textChanged);
  box_->setCursorPosition(0);
  QTest::keyClicks(box_.get(), "1");
  QCOMPARE(edited.size(), 1);
  QCOMPARE(edited.at(0).at(0).toString(), "1__.___.___-__");
  box_->setText("");
  QCOMPARE(edited.size(), 1);
  QCOMPARE(changed.size(), 2);
}

void MaskedBoxTest::valueWithAndWithoutPrompts() {
  QCOMPARE(box_->value(), kBlankCpf);
  box_->setPromptIncluded(false);
  QCOMPARE(box_->value(), "");
  box_->setText(kFullCpf);
  QCOMPARE(box_->value(), "12345678901");
}

void MaskedBoxTest::nobodyHearsOfABrokenTemplate_data() {
  QTest::addColumn<std::function<void(QLineEdit*)>>("edit");
  const auto row = [](const char* name, std::function<void(QLineEdit*)> edit) {
    QTest::newRow(name) << std::move(edit);
  };
  row("cleared", [](QLineEdit* line) { line->clear(); });
  row("text deleted", [](QLineEdit* line) {
    line->setSelection(2, 5);
    line->del();
  });
  row("text erased", [](QLineEdit* line) { line->backspace(); });
  row("text inserted", [](QLineEdit* line) { line->insert("77"); });
  row("undone", [](QLineEdit* line) {
    line->insert("77");
    line->undo();
  });
  row("cut", [](QLineEdit* line) {
    line->setSelection(1, 9);
    line->cut();
  });
  row("composed over the selection", [](QLineEdit* line) {
    line->selectAll();
    QInputMethodEvent accent(QStringLiteral("´"), {});
    QApplication::sendEvent(line, &accent);
  });
  row("composed in the place of others", [](QLineEdit* line) {
    QInputMethodEvent composed;
    composed.setCommitString("9", -3, 20);
    QApplication::sendEvent(line, &composed);
  });
  for (const Qt::Key key : {Qt::Key_U, Qt::Key_K, Qt::Key_D, Qt::Key_Z, Qt::Key_Y, Qt::Key_H,
                            Qt::Key_W, Qt::Key_Backspace, Qt::Key_Delete}) {
    row(qPrintable("Ctrl and " + QKeySequence(key).toString()),
        [key](QLineEdit* line) { QTest::keyClick(line, key, Qt::ControlModifier); });
  }
}

void MaskedBoxTest::nobodyHearsOfABrokenTemplate() {
  QFETCH(std::function<void(QLineEdit*)>, edit);
  box_->setText(kFullCpf);
  box_->setCursorPosition(5);
  const auto whole = [](const QString& heard) {
    static const QRegularExpression shape("^[0-9_]{3}\\.[0-9_]{3}\\.[0-9_]{3}-[0-9_]{2}$");
    return shape.match(heard).hasMatch();
  };
  QStringList broken;
  const auto hear = [&] {
    if (!whole(box_->text())) {
      broken << box_->text();
    }
    (void)box_->clipText();
    (void)box_->isComplete();
  };
  connect(box_.get(), &QLineEdit::textEdited, box_.get(), hear);
  connect(box_.get(), &QLineEdit::textChanged, box_.get(), hear);
  connect(box_.get(), &QLineEdit::cursorPositionChanged, box_.get(), hear);
  connect(box_.get(), &QLineEdit::selectionChanged, box_.get(), hear);
  edit(box_.get());
  hear();
  QCOMPARE(broken, QStringList());
}

void MaskedBoxTest::otherCharactersAreSwallowed_data() {
  QTest::addColumn<QString>("typed");
  QTest::newRow("emoji") << QStringLiteral("\U0001F600");
  QTest::newRow("zero-width blank") << QStringLiteral("\u200B");
  QTest::newRow("zero-width joiner") << QStringLiteral("\u200D");
  QTest::newRow("private use") << QStringLiteral("\uE000");
}

void MaskedBoxTest::otherCharactersAreSwallowed() {
  QFETCH(QString, typed);
  for (const QString& mask :
       {kCpf, QString("###.###.###-##").replace('#', '?'), QStringLiteral("&&&.&&&.&&&-&&")}) {
    box_->setMask(mask);
    box_->setText("");
    box_->setCursorPosition(0);
    for (const Qt::KeyboardModifier held : {Qt::NoModifier, Qt::ControlModifier}) {
      QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, held, typed);
      QApplication::sendEvent(box_.get(), &press);
      QCOMPARE(box_->text(), kBlankCpf);
    }
  }
}

void MaskedBoxTest::literalThatFitsItsNeighbourStays() {
  box_->setMask("&-&");
  box_->setText("a-b");
  QCOMPARE(box_->text(), "a-b");
}

QUARTELA_TEST_MAIN(MaskedBoxTest)
#include "MaskedBox_test.moc"
