// The goods form of a request to the store, and what an earlier accountability left behind it: that
// report bore the same name, with its notes in a sub-report.
#pragma once

#include <QMap>
#include <QString>
#include <memory>

#include "platform/reporting/Report.h"

namespace quartela {

// The form over the one row of Produtos that `comando` gives.
std::shared_ptr<reporting::Report> arPrestacao(const QString& comando);

// Prints that form on the default printer, without a question. Errors: those of the statement, 482
// there is no printer.
void Imprime_arPrestacao(const QString& comando);

// The notes of the earlier accountability: columns DATA, ORDEM, HISTORICO, DESPESAS and the
// advance's VALOR on each row.
std::shared_ptr<reporting::Report> srPrestacao(const QString& comando);

// The statements of the earlier accountability: the process of an empenho, and its notes.
// `empenho` is its number as digits.
QString Comando_cabeca(const QString& empenho);
QString Comando_notas(const QString& empenho);

struct PrestacaoAnterior {
  QString notas;                  // the statement of the sub-report
  QMap<QString, QString> textos;  // of the report's elements; "Data2" is the statement of its head
};

// Shows the earlier accountability. Its elements are no longer in the report, so that the first of
// them, "Data2", raises error 9.
void Exibe_prestacao_anterior(const PrestacaoAnterior& prestacao);

}  // namespace quartela
