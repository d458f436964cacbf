// A desk at which one process is worked on: an office with master rows and process 12/2014, the
// main window's list and status bar, and frmCadastro opened on it.
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QtTest>

#include "foundation/UmaJanela.h"
#include "platform/controls/ComboBox.h"
#include "platform/controls/DatePicker.h"
#include "platform/controls/ListView.h"
#include "platform/controls/MoneyEdit.h"
#include "platform/controls/StatusBar.h"
#include "platform/controls/TwoPageTab.h"
#include "records/Impressao.h"
#include "records/Numeracao.h"
#include "records/Principal.h"
#include "screens/frmCadastro.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/Typing.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/Office.h"

namespace quartela::test {

class ProcessDesk {
 public:
  // `next` is the number that a new process gets.
  explicit ProcessDesk(int next = 328) {
    Grava_contador(QStringLiteral("2014"), QString::number(next - 1), office_.counter());
    office_.run(
        "INSERT INTO Orgao(IDORGAO, ORGAO) VALUES (1, 'Saúde'), (2, 'Educação');"
        "INSERT INTO Executor(ORDEM, IDORGAO, NOME, RG, CPF, ATIVO) VALUES "
        "(1, 1, 'Ana Lima', '11.111', '111.111.111-11', 1), (2, 1, 'Beto Reis', '22', '2', 0),"
        "(3, 2, 'Célia Prado', '33', '3', 1);"
        "INSERT INTO Tomador(ID, NOME1, CARGO, RG1, CPF1, ATIVO) VALUES "
        "(1, 'Davi Souza', 'Motorista', '44.444', '444.444.444-44', 1),"
        "(2, 'Elza Nunes', 'Fiscal', '55', '5', 0), (3, 'Fábio Dias', 'Médico', '66', '6', 1);"
        "INSERT INTO Tipos(SEQUENCIA, IDORGAO, TIPO, PRAZO, ATIVO) VALUES (1, 1, 'Miúdas', '30 "
        "dias', 1),"
        "(2, 1, 'Viagem', '05 dias', 1), (3, 2, 'Curso', 'trinta', 1);"
        "INSERT INTO Dotacao(IDTIPO, IDORGAO, DOTACAO, ANO) VALUES (1, 1, 128, 2014), (1, 1, 99, "
        "2013),"
        "(1, 1, 128, 2014), (1, 1, 130, 2014), (2, 1, 200, 2014);"
        "INSERT INTO Requisicao(SEQ, DATA, ORGAO, TOMADOR, VALOR, FINALIDADE, JUSTIFICATIVA, "
        "FICHA) "
        "VALUES (1214, '2014-11-03 00:00:00', 1, 1, 10000000, 1, 'Despesas de pronto pagamento', "
        "'99')");
    for (int column = 0; column < 12; ++column) {
      list_.addColumn(QString::number(column), ColumnWidth::pixels(80));
    }
    registra_lista_principal(&list_, &bar_);
    FiltroStatus = 0;
    Lista_principal(0);
  }
  ~ProcessDesk() {
    delete window_.data();
    registra_lista_principal(nullptr, nullptr);
    for (const Relatorio report :
         {Relatorio::Requisicao2, Relatorio::Guia, Relatorio::PrestContas}) {
      registra_impressao(report, {});
    }
    FiltroStatus = 1;
    ModoAlteracao = 0;
    Tag_principal.clear();
  }
  ProcessDesk(const ProcessDesk&) = delete;
  ProcessDesk& operator=(const ProcessDesk&) = delete;

  // Empenho 500/14 of process 12/2014, withdrawn on 03/11, to be closed by 03/12/2014.
  void addEmpenho() const {
    office_.run(
        "INSERT INTO Adiantamento(EMPENHO, PROCESSO, ABERTURA, RETIRADA, FECHAR_EM, DEVOLUCAO, OP) "
        "VALUES "
        "(50014, 1214, '2014-11-01 00:00:00', '2014-11-03 00:00:00', '2014-12-03 00:00:00', 0, "
        "77)");
  }
  // `amount` in reais.
  void addNote(const char* day, const char* document, const char* history, int amount) const {
    office_.run(qPrintable(
        QStringLiteral("INSERT INTO PrestContas(PROCESSO, DATA, ORDEM, HISTORICO, "
                       "DESPESAS, ID_VIAGEM) VALUES (50014, '%1 00:00:00', '%2', "
                       "'%3', %4, 0)")
            .arg(QString::fromUtf8(day), QString::fromUtf8(document), QString::fromUtf8(history))
            .arg(amount * Money::kUnitsPerReal)));
  }

  void openNew() {
    ModoAlteracao = 0;
    show();
  }
  // Picks the process in the main list and opens it.
  void openProcess(const QString& number = QStringLiteral("0012/14")) {
    Lista_principal(0);
    for (int row = 0; row < list_.count(); ++row) {
      if (list_.text(row) == number) {
        list_.selectRow(row);
      }
    }
    ModoAlteracao = -1;
    Tag_principal = number;
    show();
  }
  // Process 12/2014 on the page of its notes.
  void openNotes() {
    addEmpenho();
    openProcess();
    click("cmdPrestacao");
  }
  // The notes of three days, on their page.
  void addNoteRows() {
    addEmpenho();
    addNote("2014-11-05", "17", "POSTO", 10);
    addNote("2014-11-06", "45", "MERCADO", 30);
    addNote("2014-11-07", "46", "PADARIA", 5);
    openProcess();
    click("cmdPrestacao");
  }
  void show() {
    delete window_.data();
    UmaJanela<frmCadastro>::mostra();
    window_ = &UmaJanela<frmCadastro>::instancia();
    QVERIFY(QTest::qWaitForWindowActive(window_));
  }

  Office& office() { return office_; }
  ListView& mainList() { return list_; }
  frmCadastro* window() const { return window_; }
  bool isOpen() const { return window_ && window_->isVisible(); }

  template <typename T>
  T* child(const char* name) const {
    return window_->findChild<T*>(QString::fromLatin1(name));
  }
  QWidget* widget(const char* name) const { return child<QWidget>(name); }
  ComboBox* combo(const char* name) const { return child<ComboBox>(name); }
  ListView* list(const char* name) const { return child<ListView>(name); }
  void click(const char* name) const {
    QTest::mouseClick(child<QAbstractButton>(name), Qt::LeftButton);
  }
  // What the field, label or button shows.
  QString text(const char* name) const {
    const QWidget* shown = widget(name);
    for (const char* property : {"plainText", "currentText", "text"}) {
      if (shown->property(property).isValid()) {
        return shown->property(property).toString().remove(QLatin1Char('&'));
      }
    }
    return {};
  }
  void type(const char* name, const QString& typed) const {
    widget(name)->setFocus();
    if (auto* line = child<QLineEdit>(name)) {
      line->selectAll();
    }
    typeText(widget(name), typed);
  }
  // Drops the list down and picks the item with that text.
  void pick(const char* name, const QString& item) const {
    ComboBox* box = combo(name);
    emit box->dropDown();
    const int at = box->findText(item);
    QVERIFY2(at >= 0, qPrintable(item));
    box->setCurrentIndex(at);
    emit box->picked(at);
  }
  QStringList items(const char* name) const {
    QStringList texts;
    for (int item = 0; item < combo(name)->count(); ++item) {
      texts << combo(name)->itemText(item);
    }
    return texts;
  }
  static void clickRow(ListView* list, int row) {
    list->flush();
    const QRect place = list->visualRect(list->model()->index(row, 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place.center());
  }
  // "1" for each enabled one of `names` (separated by blanks), "0" for each other.
  QString enabled(const char* names) const {
    QString marks;
    for (const QByteArray& name : QByteArray(names).split(' ')) {
      marks += QLatin1Char(widget(name.constData())->isEnabled() ? '1' : '0');
    }
    return marks;
  }
  // The name of the field or button with the focus.
  QString focused() const {
    return window_->focusWidget() ? window_->focusWidget()->objectName() : QString();
  }
  // Fills page 0 with everything that is required.
  void fillRequisition() const {
    pick("cmbOrgao", QStringLiteral("Saúde"));
    pick("cmbOrdenador", QStringLiteral("Ana Lima"));
    pick("cmbResponsavel", QStringLiteral("Davi Souza"));
    pick("cmbTipo", QStringLiteral("Miúdas"));
    pick("cmbficha", QStringLiteral("128"));
    type("mskvalor", QStringLiteral("1500,5"));
    type("txtjustificativa", QStringLiteral("Compras miúdas"));
  }

 private:
  Office office_;
  ListView list_;
  StatusBar bar_;
  QPointer<frmCadastro> window_;
};

inline Box warning(const QString& text) {
  return {.text = text, .title = QStringLiteral("Aviso"), .icon = BoxIcon::Exclamation};
}

inline Box stopped(const QString& text) {
  return {.text = text, .title = QStringLiteral("Aviso"), .icon = BoxIcon::Stop};
}

inline Box informedQuestion(const QString& text) {
  return {.text = text,
          .title = QStringLiteral("Aviso"),
          .icon = BoxIcon::Information,
          .buttons = {Button::Yes, Button::No},
          .defaultButton = Button::Yes};
}

inline Box askAbandon() {
  return {.text = QStringLiteral("O que foi digitado não foi gravado. Sair assim mesmo?"),
          .title = QStringLiteral("Aviso"),
          .icon = BoxIcon::Question,
          .buttons = {Button::Yes, Button::No},
          .defaultButton = Button::No};
}

inline Box untrapped(ErrorNumber number) {
  return {
      .text = QStringLiteral("Erro em tempo de execução %1:\n\n").arg(static_cast<int>(number)) +
              errorDescription(number),
      .icon = BoxIcon::Stop};
}

// Takes what is printed instead of a report.
class PrintedReports {
 public:
  PrintedReports() {
    for (const Relatorio report :
         {Relatorio::Requisicao2, Relatorio::Guia, Relatorio::PrestContas}) {
      registra_impressao(report,
                         [this](const PedidoImpressao& request) { requests.append(request); });
    }
  }
  QList<PedidoImpressao> requests;
};

}  // namespace quartela::test
