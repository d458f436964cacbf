#include "foundation/Erros.h"

#include <QStringList>

#include "platform/dialogs/Dialogs.h"

namespace quartela {

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
}

void Erro_gravacao(const RuntimeError& erro) {
  Dialogs::stop(QStringLiteral("Erro n°: %1 Descrição: ").arg(erro.number()) + erro.description());
}

}  // namespace quartela
