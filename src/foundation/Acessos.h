// The log of the logins that ended with nothing shown, in the user's own data folder: what stopped
// the opening of the database, and when.
#pragma once

#include <QString>
#include <optional>

#include "platform/values/DateTime.h"
#include "platform/values/RuntimeError.h"

namespace quartela {

struct AcessoFalho {
  DateTime quando;
  QString motivo;
};

// Adds a line to the log and writes it to the error output. A log that cannot be written costs
// nobody the login: the error output has the line.
void Anota_acesso_falho(const RuntimeError& erro);

// The login has opened its database: what failed before it is no longer the last.
void Anota_acesso();

// How the last login ended, when it ended in silence; nothing otherwise, or when the log tells
// nothing.
std::optional<AcessoFalho> Ultimo_acesso_falho();

// The log's path.
QString Arquivo_de_acessos();

}  // namespace quartela
