// A desk at which one process is worked on: an office with master rows and process 12/2014, the
// main window's list and status bar, and frmCadastro opened on it.
#pragma once

#include "platform/controls/StatusBar.h"
#include "platform/controls/TwoPageTab.h"
#include "records/Numeracao.h"
#include "records/Principal.h"
#include "screens/frmCadastro.h"
#include "tests/screens/RequisitionHands.h"

namespace quartela::test {

class ProcessDesk : public RequisitionHands<frmCadastro> {
 public:
  // `next` is the number that a new process gets.
  explicit ProcessDesk(int next = 328) {
    Grava_contador(QStringLiteral("2014"), QString::number(next - 1), office_.counter());
    addTown(office_);
    office_.run(
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
    registerReports({});
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

  Office& office() { return office_; }
  ListView& mainList() { return list_; }

 private:
  Office office_;
  ListView list_;
  StatusBar bar_;
};

}  // namespace quartela::test
