// A desk at which the road of a process is travelled: the process screen, its boxes, its real
// documents, and the keys that an operator presses there.
#pragma once

#include <QFile>
#include <QPushButton>

#include "platform/values/Clock.h"
#include "reports/Relatorios.h"
#include "screens/Campos.h"
#include "tests/journeys/Previews.h"
#include "tests/journeys/ProcessKeys.h"
#include "tests/screens/ProcessDesk.h"

namespace quartela::test {

struct ProcessRoad {
  // `next` is the number that a new process gets.
  explicit ProcessRoad(int next = 328) : desk(next) { registra_relatorios(); }
  ~ProcessRoad() {
    qDeleteAll(previews());
    Clock::stopAt(DateTime::of(2014, 11, 21, 10, 30));
  }
  ProcessRoad(const ProcessRoad&) = delete;
  ProcessRoad& operator=(const ProcessRoad&) = delete;

  QString ask(const char* sql) { return desk.office().ask(sql); }
  QString file(const char* name) { return desk.office().file(QLatin1String(name)); }
  // All that is stored of processes, and the counter.
  QString stored() {
    QFile counter(desk.office().counter());
    return ask("SELECT quote(group_concat(SEQ||'|'||DATA||'|'||ORGAO||'|'||TOMADOR||'|'||VALOR||"
               "'|'||FINALIDADE||'|'||JUSTIFICATIVA||'|'||FICHA, x'0A')) FROM Requisicao") +
           ask("SELECT quote(group_concat(EMPENHO||'|'||PROCESSO||'|'||quote(ABERTURA)||"
               "quote(RETIRADA)||quote(FECHAR_EM)||quote(FECHAMENTO)||DEVOLUCAO||quote(DATADEV)||"
               "ANULADO||'|'||OP, x'0A')) FROM Adiantamento") +
           ask("SELECT quote(group_concat(SEQ||'|'||PROCESSO||'|'||DATA||'|'||ORDEM||'|'||"
               "HISTORICO||'|'||DESPESAS, x'0A')) FROM PrestContas") +
           (counter.open(QIODevice::ReadOnly) ? QString::fromUtf8(counter.readAll()) : QString());
  }
  // All that the process screen shows: fields, choices, rows, captions and what is enabled.
  QString shown() {
    QString all = Conteudo_digitado(*desk.widget("fracadastro")) +
                  Conteudo_digitado(*desk.widget("fraNotas"));
    for (const char* name : {"lstEmpenho", "lstNotas"}) {
      const ListView* list = desk.list(name);
      for (int row = 0; row < list->count(); ++row) {
        for (int cell = 0; cell < list->columnCount(); ++cell) {
          all += list->subItem(row, cell) + '|';
        }
      }
    }
    const auto buttons = desk.window()->findChildren<QPushButton*>();
    for (const QPushButton* button : buttons) {
      if (button->window() == desk.window()) {
        all += button->text() + (button->isEnabled() ? '+' : '-');
      }
    }
    return all;
  }
  void openNew() {
    desk.openNew();
    comeForward(desk.window());
  }
  void openProcess(const QString& number = QStringLiteral("0012/14")) {
    desk.openProcess(number);
    comeForward(desk.window());
  }
  void openNotes(const QString& number = QStringLiteral("0012/14")) {
    openProcess(number);
    keys.goToNotes();
  }
  // On the page of its notes, process 12/2014 with one note over 300,00 of its 1.000,00.
  void openWithANote() {
    desk.addEmpenho();
    desk.addNote("2014-11-05", "17", "POSTO", 300);
    openNotes();
  }

  ProcessDesk desk;
  ScriptedDialogs dialogs;
  ProcessKeys keys{desk, dialogs};
};

}  // namespace quartela::test
