// The hands of an operator on a screen that enters a requisition, and what such screens are tested
// with: the master rows of a town, the boxes that they share, and what is printed.
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include "foundation/UmaJanela.h"
#include "platform/controls/ComboBox.h"
#include "platform/controls/DatePicker.h"
#include "platform/controls/ListView.h"
#include "platform/controls/MoneyEdit.h"
#include "records/Impressao.h"
#include "tests/support/Hands.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/Typing.h"
#include "tests/support/office/Boxes.h"
#include "tests/support/office/Office.h"

namespace quartela::test {

// Secretariats 1 and 2 with their orderers, persons, types and this year's allocations; orderer 2
// and person 2 are inactive.
inline void addTown(const Office& office) {
  office.run(
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
      "(1, 1, 128, 2014), (1, 1, 130, 2014), (2, 1, 200, 2014)");
}

// The one instance of `Window`, opened and worked on.
template <typename Window>
class RequisitionHands {
 public:
  void show() {
    delete window_.data();
    UmaJanela<Window>::mostra();
    window_ = &UmaJanela<Window>::instancia();
    QVERIFY(QTest::qWaitForWindowActive(window_));
  }

  Window* window() const { return window_; }
  bool isOpen() const { return window_ && window_->isVisible(); }

  template <typename T>
  T* child(const char* name) const {
    const QWidget* const within = window_;
    return within->findChild<T*>(QString::fromLatin1(name));
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
  // Takes away what the field shows.
  void empty(const char* name) const {
    if (auto* box = child<ComboBox>(name)) {
      box->setText({});
      box->setCurrentIndex(-1);
    } else {
      QMetaObject::invokeMethod(widget(name), "clear");
    }
  }
  // Drops the list down and picks the item with that text.
  void pick(const char* name, const QString& item) const { pickItem(*combo(name), item); }
  QStringList items(const char* name) const {
    QStringList texts;
    for (int item = 0; item < combo(name)->count(); ++item) {
      texts << combo(name)->itemText(item);
    }
    return texts;
  }
  QStringList headers(const char* name) const {
    QStringList texts;
    for (int column = 0; column < list(name)->columnCount(); ++column) {
      texts << list(name)->model()->headerData(column, Qt::Horizontal).toString();
    }
    return texts;
  }
  // What the controls show, name by name; gives the first that shows something else.
  QString firstOther(const QList<QPair<const char*, QString>>& shown) const {
    for (const auto& [name, expected] : shown) {
      if (text(name) != expected) {
        return QLatin1String(name) + QStringLiteral(": ") + text(name);
      }
    }
    return {};
  }
  // The letter underlined on a label or button, with Alt.
  void mnemonic(Qt::Key letter) const { QTest::keyClick(window_, letter, Qt::AltModifier); }
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
  // Fills in everything that a requisition requires.
  void fillRequisition() const {
    pick("cmbOrgao", QStringLiteral("Saúde"));
    pick("cmbOrdenador", QStringLiteral("Ana Lima"));
    pick("cmbResponsavel", QStringLiteral("Davi Souza"));
    pick("cmbTipo", QStringLiteral("Miúdas"));
    pick("cmbficha", QStringLiteral("128"));
    type("mskvalor", QStringLiteral("1500,5"));
    type("txtjustificativa", QStringLiteral("Compras miúdas"));
  }

 protected:
  QPointer<Window> window_;
};

inline Box warning(const QString& text) {
  return {.text = text, .title = QStringLiteral("Aviso"), .icon = BoxIcon::Exclamation};
}

inline Box fieldsMissing() {
  return warning(QStringLiteral("Todos os campos obrigatórios devem ser preenchidos!!"));
}

// A row for each field that a requisition must have, with its name as the column "field".
inline void addRequiredFieldRows() {
  QTest::addColumn<QByteArray>("field");
  for (const char* name : {"cmbOrgao", "cmbOrdenador", "cmbResponsavel", "cmbTipo", "cmbficha",
                           "mskvalor", "txtjustificativa"}) {
    QTest::newRow(name) << QByteArray(name);
  }
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

inline Box openAdvance() {
  return {.text = QStringLiteral("Há um adiantamento nesta finalidade já aberto !!!"),
          .title = QStringLiteral("Aviso"),
          .icon = BoxIcon::Exclamation,
          .buttons = {Button::Ok, Button::Cancel},
          .defaultButton = Button::Cancel};
}

using boxes::askAbandon;

inline Box untrapped(ErrorNumber number) {
  return {
      .text = QStringLiteral("Erro em tempo de execução %1:\n\n").arg(static_cast<int>(number)) +
              errorDescription(number),
      .title = {},
      .icon = BoxIcon::Stop};
}

// `print` serves every report of these screens from now on; an empty function takes it back.
inline void registerReports(const Imprime& print) {
  for (const Relatorio report : {Relatorio::Requisicao2, Relatorio::Guia, Relatorio::PrestContas}) {
    registra_impressao(report, print);
  }
}

// Takes what is printed instead of a report.
class PrintedReports {
 public:
  PrintedReports() {
    registerReports([this](const PedidoImpressao& request) { requests.append(request); });
  }
  ~PrintedReports() { registerReports({}); }
  PrintedReports(const PrintedReports&) = delete;
  PrintedReports& operator=(const PrintedReports&) = delete;

  QList<PedidoImpressao> requests;
};

}  // namespace quartela::test
