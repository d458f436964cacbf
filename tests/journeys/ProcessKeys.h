// The steps of a process from its requisition to its closing, each with the keyboard alone, and
// the boxes that come on the way.
#pragma once

#include "screens/frmAdiantamento.h"
#include "screens/frmCadastro.h"
#include "tests/journeys/Keyboard.h"
#include "tests/screens/RequisitionHands.h"

namespace quartela::test {

inline Box closed() {
  return {.text = QStringLiteral("Empenho Encerrado!!!"),
          .title = QStringLiteral("Finalizar Prestação de Contas"),
          .icon = BoxIcon::Information};
}

inline Box reopened() {
  return {.text = QStringLiteral("Empenho Reativado!!!"),
          .title = QStringLiteral("Reativar Prestação de Contas"),
          .icon = BoxIcon::Information};
}

inline Box askClosing() {
  return informedQuestion(QStringLiteral("Deseja Encerrar o Adiantamento agora?"));
}

inline Box askReopening() {
  return informedQuestion(QStringLiteral("Deseja Reativar o Adiantamento agora?"));
}

inline Box askNumberAndDate() {
  return {.text = QStringLiteral("Deseja mostrar o número do processo e a data de abertura?"),
          .title = QStringLiteral("Aviso"),
          .icon = BoxIcon::Exclamation,
          .buttons = {Button::Yes, Button::No},
          .defaultButton = Button::Yes};
}

// The name of the file that "Exportar / Texto" writes.
inline FileRequest exportRequest() {
  return {.title = QStringLiteral("Salvar..."),
          .filter = QStringLiteral("TXT Files(*.txt)|*.txt|"),
          .folder = {},
          .fileName = {}};
}

// What the empenho's row says of its closing: FECHAMENTO|DEVOLUCAO|DATADEV.
inline QString closingOf(const Office& office) {
  return office.ask(
      "SELECT coalesce(FECHAMENTO, '')||'|'||DEVOLUCAO||'|'||coalesce(DATADEV, '') FROM "
      "Adiantamento");
}

// Who asks for the money, and for what.
struct Applicant {
  QString name = QStringLiteral("Davi Souza");
  QString purpose = QStringLiteral("Miúdas");
};

class ProcessKeys {
 public:
  ProcessKeys(RequisitionHands<frmCadastro>& screen, ScriptedDialogs& dialogs)
      : screen_(screen), dialogs_(dialogs) {}

  // The requisition, field after field.
  void typeRequisition(const QString& amount, const QString& reason,
                       const Applicant& applicant = {}) {
    tabTo("cmbOrgao");
    choose(QStringLiteral("Saúde"));
    press(Qt::Key_Tab);
    choose(QStringLiteral("Ana Lima"));
    press(Qt::Key_Tab);
    choose(applicant.name);
    press(Qt::Key_Tab);
    choose(applicant.purpose);
    press(Qt::Key_Tab);
    choose(screen_.combo("cmbficha")->itemText(0));
    press(Qt::Key_Tab);
    typeHere(amount);
    press(Qt::Key_Tab);
    QCOMPARE(focusName(), QString("txtjustificativa"));
    typeHere(reason);
  }
  void apply(const QList<QPair<Box, Button>>& boxes) { answer('A', boxes); }
  void include() { apply({{boxes::askInclusion(), Button::Yes}, {boxes::saved(), Button::Ok}}); }

  // The dialog of the empenho.
  void openNewEmpenho() {
    mnemonic('U');
    takeDialog();
    QCOMPARE(focusName(), QString("mskempenho"));
  }
  // The one empenho in its list.
  void pickEmpenho() { pickFirst("lstEmpenho"); }
  void openEmpenho() {
    pickEmpenho();
    mnemonic('E');
    takeDialog();
  }
  frmAdiantamento* empenho() const { return empenho_; }
  bool empenhoIsOpen() const { return empenho_ && empenho_->isVisible(); }
  QString empenhoText(const char* name) const {
    return empenho_->findChild<QLineEdit*>(QString::fromLatin1(name))->text();
  }
  void typeEmpenho(const QString& number, const QString& order, const QString& withdrawal) {
    typeHere(number);
    tabTo("mskOP");
    typeHere(order);
    tabTo("dtpretirada");
    typeHere(withdrawal);
  }
  // Enter presses "OK".
  void confirmEmpenho(const QList<QPair<Box, Button>>& boxes) {
    for (const auto& [box, button] : boxes) {
      dialogs_.expectBox(box, button);
    }
    press(Qt::Key_Return);
    settle();
    if (!empenhoIsOpen()) {
      comeForward(screen_.window());
    }
  }
  void alterEmpenho() {
    confirmEmpenho({{boxes::askAlteration(), Button::Yes}, {boxes::altered(), Button::Ok}});
    QVERIFY(!empenhoIsOpen());
  }
  void includeEmpenho(const QString& number, const QString& order, const QString& withdrawal) {
    openNewEmpenho();
    typeEmpenho(number, order, withdrawal);
    confirmEmpenho({{boxes::askInclusion(), Button::Yes}, {boxes::saved(), Button::Ok}});
    QVERIFY(!empenhoIsOpen());
  }

  void goToNotes() {
    mnemonic('C');
    QCOMPARE(screen_.text("cmdPrestacao"), QString("<< Voltar a Requisição"));
  }
  // The first note in its list.
  void pickNote() { pickFirst("lstNotas"); }
  // Types a note up to its last field; an empty `date` keeps the one that stands there.
  void typeNote(const QString& date, const QString& document, const QString& history,
                const QString& amount) {
    mnemonic('U');
    QCOMPARE(focusName(), QString("txtdatanota"));
    typeHere(date);
    press(Qt::Key_Return);
    typeHere(document);
    press(Qt::Key_Return);
    typeHere(history);
    press(Qt::Key_Return);
    typeHere(amount);
    press(Qt::Key_Return);
    QCOMPARE(focusName(), QString("Command1_2"));
  }
  void addNote(const QString& date, const QString& document, const QString& history,
               const QString& amount) {
    typeNote(date, document, history, amount);
    dialogs_.expectBox(boxes::saved());
    press(Qt::Key_Return);
    settle();
    QCOMPARE(focusName(), QString("Command1_3"));
  }

  // Presses the button of that letter, answering what it asks.
  void answer(char letter, const QList<QPair<Box, Button>>& boxes) {
    for (const auto& [box, button] : boxes) {
      dialogs_.expectBox(box, button);
    }
    mnemonic(letter);
    settle();
  }
  void close() { answer('E', {{askClosing(), Button::Yes}, {closed(), Button::Ok}}); }
  void reopen() { answer('R', {{askReopening(), Button::Yes}, {reopened(), Button::Ok}}); }
  void leave() {
    mnemonic('S');
    QVERIFY(!screen_.isOpen());
  }

 private:
  void settle() { QVERIFY2(dialogs_.satisfied(), dialogs_.report()); }
  static void pickFirst(const char* list) {
    tabTo(list);
    press(Qt::Key_Down);
  }
  void takeDialog() {
    empenho_ = screen_.child<frmAdiantamento>("frmAdiantamento");
    QVERIFY(empenho_ != nullptr);
    QTRY_VERIFY(empenho_->isActiveWindow());
  }

  RequisitionHands<frmCadastro>& screen_;
  ScriptedDialogs& dialogs_;
  QPointer<frmAdiantamento> empenho_;
};

}  // namespace quartela::test
