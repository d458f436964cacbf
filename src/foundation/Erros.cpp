#include "foundation/Erros.h"

#include <QStringList>

#include "foundation/Abertura.h"
#include "platform/dialogs/Dialogs.h"

namespace quartela {
namespace {

// What the error box has told is followed by the way on, where there is one.
void oferece_saida(const RuntimeError& erro) {
  if (erro.code() == ErrorNumber::DatabaseMoved) {
    Oferece_reabrir();
  }
}

}  // namespace

void Erro_interno(const RuntimeError& erro, const QString& rotulo) {
  const QStringList linhas{QStringLiteral("Houve um erro interno:"),
                           QString(),
                           QStringLiteral("Número do erro:"),
                           QString::number(erro.number()),
                           QStringLiteral("Descrição :"),
                           erro.description(),
                           QStringLiteral("Origem :"),
                           erro.source() + QStringLiteral(" / ") + rotulo};
  Dialogs::exclamation(linhas.join(QLatin1Char('\n')));
  oferece_saida(erro);
}

void Erro_gravacao(const RuntimeError& erro) {
  Dialogs::stop(QStringLiteral("Erro n°: %1 Descrição: ").arg(erro.number()) + erro.description(),
                {});
  oferece_saida(erro);
}

}  // namespace quartela
