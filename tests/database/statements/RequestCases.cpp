// Requests for goods and services.
#include "tests/database/statements/StatementCase.h"

namespace quartela::test {

void addRequestCases(StatementCases& cases, const Samples& samples) {
  Q_UNUSED(samples);
  for (const QByteArray table : {"Produtos", "Servicos"}) {
    const QString name = table;
    cases << StatementCase{.name = "request: the table's bare name",
                           .statement = name,
                           .expected = "SELECT * FROM " + table};
    cases << StatementCase{.name = "request: all, the newest first",
                           .statement = "Select * From " + name + " ORDER BY ITEM DESC;",
                           .expected = "SELECT * FROM " + table,
                           .order = {{0, true}}};
    cases << StatementCase{.name = "request: one to alter",
                           .statement = "Select * from " + name + " WHERE ITEM =3",
                           .expected = "SELECT * FROM " + table + " WHERE ITEM = 3"};
    cases << StatementCase{.name = "request: one to print",
                           .statement = "SELECT * FROM " + name + " WHERE ITEM = 2",
                           .expected = "SELECT * FROM " + table + " WHERE ITEM = 2"};
  }
}

}  // namespace quartela::test
