// Expense notes: the record class and the printed accountability.
#include "tests/database/statements/StatementCase.h"

namespace quartela::test {

namespace {

const QString kNoteList =
    "SELECT PrestContas.SEQ, PrestContas.DATA, PrestContas.ORDEM, PrestContas.HISTORICO, "
    "PrestContas.DESPESAS ";

QString notesOf(int commitment) {
  return kNoteList + "From PrestContas Where PrestContas.Processo =" + digits(commitment) +
         " ORDER BY PrestContas.DATA, PrestContas.SEQ;";
}

QByteArray notesOfPlain(int commitment) {
  return "SELECT SEQ, DATA, ORDEM, HISTORICO, DESPESAS FROM PrestContas WHERE PROCESSO = " +
         plain(commitment);
}

const QList<SortKey> kByDayAndKey = {{1}, {0}};

}  // namespace

void addNoteCases(StatementCases& cases, const Samples& samples) {
  cases << StatementCase{.name = "note: the table's bare name",
                         .statement = "PrestContas",
                         .expected = "SELECT * FROM PrestContas"};
  cases << StatementCase{
      .name = "note: one to alter",
      .statement = "select * from PrestContas WHERE SEQ =" + digits(samples.note),
      .expected = "SELECT * FROM PrestContas WHERE SEQ = " + plain(samples.note)};
  cases << StatementCase{
      .name = "note: one to load",
      .statement = "Select * From PrestContas WHERE SEQ =" + digits(samples.note),
      .expected = "SELECT * FROM PrestContas WHERE SEQ = " + plain(samples.note)};
  cases << StatementCase{
      .name = "note: those that go along with an empenho",
      .statement = "SELECT * FROM PrestContas WHERE PROCESSO = " + digits(samples.commitment),
      .expected = "SELECT * FROM PrestContas WHERE PROCESSO = " + plain(samples.commitment)};
  cases << StatementCase{.name = "note: of an empenho",
                         .statement = notesOf(samples.commitment),
                         .expected = notesOfPlain(samples.commitment),
                         .order = kByDayAndKey};
  cases << StatementCase{.name = "note: of an empenho that does not exist",
                         .statement = notesOf(1),
                         .expected = notesOfPlain(1)};
  cases << StatementCase{.name = "note: whether an empenho has any",
                         .statement = kNoteList + "From PrestContas Where PrestContas.Processo = " +
                                      digits(samples.commitment) +
                                      " ORDER BY PrestContas.DATA, PrestContas.SEQ;",
                         .expected = notesOfPlain(samples.commitment),
                         .order = kByDayAndKey};
  cases << StatementCase{
      .name = "note: printed accountability",
      .statement = "Select * from PrestContas Where PROCESSO = " + digits(samples.commitment) +
                   " Order by DATA, SEQ;",
      .expected = "SELECT * FROM PrestContas WHERE PROCESSO = " + plain(samples.commitment),
      .order = {{2}, {0}}};
}

}  // namespace quartela::test
